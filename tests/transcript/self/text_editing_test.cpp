#include "text_editing.h"

#include <gtest/gtest.h>

#include "key_names.h"
#include "recorded_host.h"

namespace tavrelo::transcript {
namespace {

/// A box of its own that takes the keys of a list of names parted by blanks.
class TextEditingTest : public testing::Test {
  protected:
    void Keys(std::string_view names) {
        while (!names.empty()) {
            const std::size_t end = std::min(names.find(' '), names.size());
            m_editing.Take(m_box, StrokeNamed(names.substr(0, end)));
            names.remove_prefix(std::min(end + 1, names.size()));
        }
    }
    void Start(std::string text, window::TextSelection selection) {
        m_box.UserEdited(std::move(text), selection);
    }
    void Expect(const std::string& text, window::TextSelection selection) {
        EXPECT_EQ(m_box.Text(), text);
        EXPECT_EQ(m_box.Selection().start, selection.start);
        EXPECT_EQ(m_box.Selection().length, selection.length);
    }

    window::ControlLinks m_links{[](window::Control&, window::Change) {}, [] {}};
    window::TextBox m_box{{"txtBox", window::ControlKind::TextBox, nullptr, window::Control::kAllPages},
                          m_links};
    RecordedClipboard m_clipboard;
    TextEditing m_editing{m_clipboard};
};

TEST_F(TextEditingTest, TypesAtTheCaret) {
    Start("añb", {2, 0});
    Keys("x y");
    Expect("añxyb", {4, 0});
}

TEST_F(TextEditingTest, TypingReplacesTheSelection) {
    Start("abcd", {1, 2});
    Keys("x");
    Expect("axd", {2, 0});
}

TEST_F(TextEditingTest, DeletesOnEitherSide) {
    Start("abcd", {2, 0});
    Keys("Backspace");
    Expect("acd", {1, 0});
    Keys("Delete");
    Expect("ad", {1, 0});
    Keys("Home Backspace End Delete");
    Expect("ad", {2, 0});
}

TEST_F(TextEditingTest, DeletesTheSelection) {
    Start("abcd", {1, 2});
    Keys("Backspace");
    Expect("ad", {1, 0});
}

TEST_F(TextEditingTest, MovesTheCaret) {
    Start("abc", {3, 0});
    Keys("Left Left");
    Expect("abc", {1, 0});
    Keys("Right");
    Expect("abc", {2, 0});
    Keys("Home Left");
    Expect("abc", {0, 0});
    Keys("End Right");
    Expect("abc", {3, 0});
}

TEST_F(TextEditingTest, ShiftSelectsBothWays) {
    Start("abcd", {2, 0});
    Keys("Shift+Left Shift+Left");
    Expect("abcd", {0, 2});
    Keys("Shift+Right Shift+Right Shift+Right");
    Expect("abcd", {2, 1});
    Keys("Shift+End");
    Expect("abcd", {2, 2});
    Keys("Left");
    Expect("abcd", {2, 0});
}

TEST_F(TextEditingTest, CopiesCutsAndPastes) {
    Start("abcd", {1, 2});
    Keys("Ctrl+C");
    EXPECT_EQ(m_clipboard.Text(), "bc");
    Keys("End Ctrl+V");
    Expect("abcdbc", {6, 0});
    Keys("Ctrl+A Ctrl+X");
    EXPECT_EQ(m_clipboard.Text(), "abcdbc");
    Expect("", {0, 0});
    m_clipboard.SetText("one\r\ntwo");
    Keys("Ctrl+V");
    Expect("one two", {7, 0});
}

TEST_F(TextEditingTest, NothingSelectedCopiesNothing) {
    m_clipboard.SetText("kept");
    Start("abc", {1, 0});
    Keys("Ctrl+C");
    EXPECT_EQ(m_clipboard.Text(), "kept");
}

TEST_F(TextEditingTest, ALockedBoxOnlyLetsCopy) {
    Start("abc", {0, 2});
    m_box.SetLocked(true);
    Keys("x Backspace Delete Ctrl+X Ctrl+V");
    Expect("abc", {0, 2});
    EXPECT_EQ(m_clipboard.Text(), "ab");
}

TEST_F(TextEditingTest, KeysHeldDownTypeNothing) {
    Start("abc", {3, 0});
    Keys("Ctrl+q Alt+a Enter Up F10");
    Expect("abc", {3, 0});
}

}  // namespace
}  // namespace tavrelo::transcript
