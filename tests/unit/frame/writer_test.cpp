#include "frame/writer.h"

#include <gtest/gtest.h>

#include "../window/test_host.h"
#include "text/markup.h"

namespace tavrelo::frame {
namespace {

/// A line of that many marks: "A!1!1!1...".
std::string LineOf(int marks) {
    std::string line = "A";
    for (int k = 0; k < marks; ++k)
        line += "!1";
    return line;
}

std::size_t MarksOf(const Lines& lines) {
    std::size_t marks = 0;
    for (const std::string& line : lines)
        marks += text::CountMarks(line);
    return marks;
}

TEST(Portions, AreOneWhileOneRenderingTakesThem) {
    const std::vector<Lines> paragraphs = {{"uno", "dos"}, {LineOf(150)}, {LineOf(48)}};
    const auto portions = Portions(paragraphs);
    ASSERT_EQ(portions.size(), 1u);
    EXPECT_EQ(portions.front(), (Lines{"uno", "dos", LineOf(150), LineOf(48)}));
}

TEST(Portions, BeginAnewWithTheParagraphThatDoesNotFit) {
    const std::vector<Lines> paragraphs = {{LineOf(150)}, {"encabezado", LineOf(60)}, {"fin"}};
    const auto portions = Portions(paragraphs);
    ASSERT_EQ(portions.size(), 2u);
    EXPECT_EQ(portions[0], (Lines{LineOf(150)}));
    EXPECT_EQ(portions[1], (Lines{"encabezado", LineOf(60), "fin"}));
}

TEST(Portions, TakeALongParagraphLineByLine) {
    const std::vector<Lines> paragraphs = {{LineOf(90), LineOf(90), LineOf(90), LineOf(90)}};
    const auto portions = Portions(paragraphs);
    std::size_t lines = 0;
    for (const Lines& portion : portions) {
        EXPECT_LT(MarksOf(portion), static_cast<std::size_t>(text::kMarkLimit));
        lines += portion.size();
    }
    EXPECT_EQ(portions.size(), 2u);
    EXPECT_EQ(lines, 4u);
    EXPECT_TRUE(Portions({}).empty());
}

TEST(WritePortions, ShowsAllOfALongReportAndTellsTheViewOnce) {
    window::TestHost world;
    window::Form1 form(world.host);
    auto& box = form.Get<window::RichTextBox>("rtbSolve");
    int told = 0;
    form.OnChange = [&](window::Control& control, window::Change change) {
        told += &control == &box && change == window::Change::Content;
    };
    const std::vector<Lines> paragraphs = {{LineOf(120)}, {LineOf(120)}, {"fin"}};
    WritePortions(form, box, paragraphs);
    const std::string line = "A" + std::string(120, '1') + "\r\n";
    EXPECT_EQ(box.Text(), line + line + "fin\r\n");
    EXPECT_EQ(told, 1);
    EXPECT_EQ(form.Get<window::RichTextBox>("rtbReg").Text(), line + "-----\r\n" + line + "fin\r\n-----\r\n");
}

}  // namespace
}  // namespace tavrelo::frame
