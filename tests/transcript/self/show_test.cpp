#include "show.h"

#include <gtest/gtest.h>

namespace tavrelo::transcript {
namespace {

using Lines = std::vector<std::string>;

text::Run RunOf(std::string text, bool bold = false) {
    text::Run run;
    run.text = std::move(text);
    run.font.size = 7.5;
    run.font.bold = bold;
    return run;
}

TEST(Show, JoinsCellsAndDropsEmptyOnesAtTheEnd) {
    EXPECT_EQ(GridLines({{"a", "", "b", ""}, {"", "c"}, {"", ""}}), (Lines{"a |  | b", " | c", ""}));
}

TEST(Show, MarksChosenRows) { EXPECT_EQ(ListLines({{"a", false}, {"b", true}}), (Lines{"  a", "* b"})); }

TEST(Show, WritesColorsWithSixDigits) { EXPECT_EQ(ColorText(text::Rgb(0, 128, 255)), "#0080ff"); }

TEST(Show, RunsAreJoinedAndSplitAtLineEnds) {
    text::Run lowered = RunOf("c", true);
    lowered.font.underline = lowered.font.italic = true;
    lowered.color = text::Rgb(255, 0, 0);
    lowered.offset = -45;
    const Lines lines = RunLines({RunOf("a"), RunOf("b\r\n\r\nb"), lowered, RunOf("\r\n")});
    EXPECT_EQ(lines, (Lines{"\"ab\" Times New Roman 7.5 - #000000 0", "\"b\" Times New Roman 7.5 - #000000 0",
                            "\"c\" Times New Roman 7.5 bui #ff0000 -45"}));
}

TEST(Show, ShapesAreRoundedHalvesUp) {
    const text::Color red = text::Rgb(255, 0, 0);
    const std::vector<window::DrawOp> drawing = {
        window::ClearOp{text::kWhite},
        window::LineOp{0.5, -0.5, 1.49, -1.5, red, 2},
        window::BoxOp{1, 2, 3, 4, red, false, 1},
        window::BoxOp{1, 2, 3, 4, red, true, 1},
        window::CircleOp{1, 2, 3, red, false, 1},
        window::CircleOp{1, 2, 3, red, true, 1},
        window::ArcOp{1, 2, 3, 0, 90, red, 1},
        window::PolygonOp{{{1, 2}, {3, 4}, {5, 6}}, red},
        window::TextOp{-0.2, 2, {{0, 0, "F", {}, red}, {5, 2, "1", {}, red}}},
        window::ImageOp{"toolbar", 0, 0, 1, 1, 0, 0},
    };
    EXPECT_EQ(ShapeLines(drawing, ""),
              (Lines{"line 1 0 1 -1 #ff0000", "box 1 2 3 4 #ff0000", "filled 1 2 3 4 #ff0000",
                     "circle 1 2 3 #ff0000", "circle 1 2 3 #ff0000", "arc 1 2 3 0 90 #ff0000",
                     "polygon 1 2 3 4 5 6 #ff0000", "text 0 2 \"F1\""}));
    EXPECT_EQ(ShapeLines(drawing, "filled"), Lines{"filled 1 2 3 4 #ff0000"});
}

TEST(Show, NamesPointers) {
    EXPECT_EQ(PointerText(window::kPointerDefault), "default");
    EXPECT_EQ(PointerText(window::kPointerBusy), "busy");
    EXPECT_EQ(PointerText(window::kPointerCross), "cross");
    EXPECT_EQ(PointerText(8), "shape 8");
}

TEST(Show, NumbersPages) {
    const auto line = [](const char* text) {
        return window::PrintedLine{0, 0, {window::PrintedRun{0, text::Run{text, {}, text::kBlack, 0}}}};
    };
    const std::vector<window::PrintedPage> pages = {{{line("a"), line("b")}}, {{line("c")}}};
    EXPECT_EQ(PageLines(pages), (Lines{"page 1", "a", "b", "page 2", "c"}));
}

TEST(Show, TellsTheSizeOfAnImage) {
    EXPECT_EQ(ClipboardLines({"", 397, 385}), Lines{"image 397 x 385"});
    EXPECT_EQ(ClipboardLines({"a\r\nb", 0, 0}), (Lines{"a", "b"}));
}

}  // namespace
}  // namespace tavrelo::transcript
