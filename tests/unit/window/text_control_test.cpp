#include <gtest/gtest.h>

#include "test_host.h"
#include "text/utf8.h"
#include "window/guarded.h"

namespace tavrelo::window {
namespace {

class TextControlTest : public testing::Test {
  protected:
    TextControlTest() {
        On(form, box.OnChange, [this] { ++changes; });
        form.OnChange = [this](Control& control, Change change) {
            if (&control == &box && change == Change::Content)
                ++tellings;
        };
    }

    TestHost world;
    Form1 form{world.host};
    TextBox& box = form.Get<TextBox>("txtVector");
    int changes = 0;
    int tellings = 0;  // of the content, to the view
};

TEST_F(TextControlTest, ATextSetByTheProgramIsCutToWhatABoxHolds) {
    const std::string most(kMostCharacters, '7');
    box.SetText(most);
    EXPECT_EQ(box.Text(), most);
    box.SetText(most + "x");
    EXPECT_EQ(box.Text(), most);
    std::string signs;  // characters count, not bytes
    for (std::size_t k = 0; k < kMostCharacters; ++k)
        signs += "ñ";
    box.SetText(signs + "x");
    EXPECT_EQ(box.Text(), signs);
    EXPECT_EQ(box.Selection(), (TextSelection{kMostCharacters, 0}));
}

TEST_F(TextControlTest, WhatNoLongerFitsIsLeftOutOfWhatIsPasted) {
    const std::string rest(kMostCharacters - 3, '7');
    box.SetText("1" + rest);
    box.UserEdited("1abc" + rest, {4, 0});
    EXPECT_EQ(box.Text(), "1ab" + rest);
    EXPECT_EQ(box.Selection(), (TextSelection{3, 0}));
    EXPECT_EQ(changes, 1);
}

TEST_F(TextControlTest, AFullBoxTakesNoCharacterMoreAndTheViewIsTold) {
    const std::string most(kMostCharacters, '7');
    box.SetText(most);
    tellings = 0;
    box.UserEdited("x" + most, {1, 0});
    EXPECT_EQ(box.Text(), most);
    EXPECT_EQ(box.Selection(), (TextSelection{0, 0}));
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(tellings, 1);
}

TEST_F(TextControlTest, WhatIsTooMuchBehindTheCaretGoesWhenNothingStandsInFrontOfIt) {
    const std::string most(kMostCharacters, '7');
    box.UserEdited(most + "xy", {0, 0});
    EXPECT_EQ(box.Text(), most);
    EXPECT_EQ(box.Selection(), (TextSelection{0, 0}));
}

TEST_F(TextControlTest, TheProgramInsertsWhatFits) {
    const std::string rest(kMostCharacters - 2, '7');
    box.SetText(rest);
    box.Select({1, 1});  // replaced
    box.Insert("abcde");
    EXPECT_EQ(box.Text(), "7abc" + rest.substr(2));
    EXPECT_EQ(box.Selection(), (TextSelection{4, 0}));
}

TEST_F(TextControlTest, SeveralLinesBecomeOne) {
    struct Case {
        const char* edited;
        const char* text;
    };
    for (const Case& each : {Case{"a\nb", "a b"}, Case{"a\r\nb", "a b"}, Case{"a\r\n\r\n\nb", "a b"},
                             Case{"a\n", "a"}, Case{"\r\n a", "a"}, Case{"\n", ""}}) {
        box.UserEdited(each.edited, {0, 0});
        EXPECT_EQ(box.Text(), each.text);
        EXPECT_EQ(box.Selection(), (TextSelection{text::CharacterCount(each.text), 0})) << each.edited;
    }
    box.UserEdited(" a ", {3, 0});  // blanks stay where there was no line end
    EXPECT_EQ(box.Text(), " a ");
}

TEST_F(TextControlTest, LinesThatLeaveTheTextAsItWasAreToldToTheView) {
    box.SetText("a");
    tellings = 0;
    box.UserEdited("a\n", {2, 0});
    EXPECT_EQ(box.Text(), "a");
    EXPECT_EQ(tellings, 1);
    EXPECT_EQ(changes, 0);
}

}  // namespace
}  // namespace tavrelo::window
