#include <gtest/gtest.h>

#include "test_host.h"
#include "window/form1.h"

namespace tavrelo::window {
namespace {

class ChangeBatchTest : public testing::Test {
  protected:
    ChangeBatchTest() {
        grid.Arrange(4, 4, 1, 1);
        form.OnChange = [this](Control& control, Change change) {
            contents += &control == &grid && change == Change::Content;
            selections += &control == &grid && change == Change::Selection;
            others += &control != &grid;
        };
    }

    TestHost world;
    Form1 form{world.host};
    Grid& grid = form.Get<Grid>("gd");
    int contents = 0;
    int selections = 0;
    int others = 0;
};

TEST_F(ChangeBatchTest, TellsEachKindOfChangeOnceAtItsEnd) {
    {
        const ChangeBatch batch(grid);
        for (int col = 1; col < 4; ++col)
            grid.SetCell(1, col, "5");
        grid.SetCurrent(2, 2);
        EXPECT_EQ(contents, 0);
    }
    EXPECT_EQ(contents, 1);
    EXPECT_EQ(selections, 1);
    grid.SetCell(2, 2, "6");
    EXPECT_EQ(contents, 2);
}

TEST_F(ChangeBatchTest, TheOutermostOneTells) {
    {
        const ChangeBatch outer(grid);
        {
            const ChangeBatch inner(grid);
            grid.SetCell(1, 1, "5");
        }
        EXPECT_EQ(contents, 0);
    }
    EXPECT_EQ(contents, 1);
}

TEST_F(ChangeBatchTest, HoldsNothingBackOfOtherControls) {
    const ChangeBatch batch(grid);
    form.Get<TextBox>("txtVector").SetText("h5");
    EXPECT_EQ(others, 1);
}

TEST_F(ChangeBatchTest, AnAppendedTextIsToldOnce) {
    RichTextBox& log = form.Get<RichTextBox>("rtbReg");
    log.AppendContent(text::PlainRichText("uno\r\n", text::kTextFont, 10));
    others = 0;
    log.AppendContent(text::PlainRichText("dos", text::kTextFont, 10));
    EXPECT_EQ(log.Text(), "uno\r\ndos");
    EXPECT_EQ(log.Text(), log.Content().PlainText());
    EXPECT_EQ(log.Selection(), (TextSelection{8, 0}));
    EXPECT_EQ(others, 2);  // its content and its selection
}

}  // namespace
}  // namespace tavrelo::window
