#include "drawing/print_markup.h"

#include <gtest/gtest.h>

#include "text/picture_markup.h"

namespace tavrelo::drawing {
namespace {

text::Font TextFont(double size) { return text::Font{std::string(text::kTextFont), size}; }

std::string Shown(std::string_view markup) {
    return window::TextOp{0, 0, text::LayOutMarkup(markup, TextFont(8), text::kBlack)}.PlainText();
}

TEST(PictureMarkup, KnowsSixMarksAndNoEscapes) {
    struct Row {
        const char* markup;
        const char* shown;
    };
    const Row rows[] = {
        {"a/b", "a/b"}, {"a\\b¬", "a\\b¬"}, {"x!1", "x1"}, {"x¡2", "x2"}, {"_x$F", "xF"},      {";q!1", "θ1"},
        {"#cruz", "×"}, {"!!1", "!1"},      {"#abcd", ""}, {"a;", "a"},   {"2 ;- 1", "2 − 1"}, {"#me", ""},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Shown(row.markup), row.shown) << row.markup;
}

/// Pixels below (above 0) the top of the plain characters, by the size in force.
TEST(PictureMarkup, HeightsGoWithTheSize) {
    struct Row {
        double size;
        double subscript_drop;
        double subscript_size;
        double superscript_drop;
        double greek_drop;
    };
    const Row rows[] = {{8, 5, 7, -2, 0}, {10, 5, 8, -2, -1}, {12, 6, 8, -1, 0}, {7, 5, 7, -2, -1}};
    for (const Row& row : rows) {
        const auto runs = text::LayOutMarkup("x!1x¡2x;q", TextFont(row.size), text::kBlack);
        ASSERT_EQ(runs.size(), 6u);
        EXPECT_EQ(runs[1].dy, row.subscript_drop) << row.size;
        EXPECT_EQ(runs[1].font.size, row.subscript_size) << row.size;
        EXPECT_EQ(runs[3].dy, row.superscript_drop) << row.size;
        EXPECT_EQ(runs[3].font.size, 7) << row.size;
        EXPECT_EQ(runs[5].dy, row.greek_drop) << row.size;
    }
}

TEST(PictureMarkup, PrintsFromTheBottomUpwardAndAdvancesThePen) {
    window::Recorder surface(200, 100);
    surface.CurrentFont = TextFont(12);
    PrintMarkup(surface, "F!1", 10, 30, text::kTextFont, 8);
    const auto& text = std::get<window::TextOp>(surface.Operations().front());
    EXPECT_EQ(text.x, 10);
    EXPECT_EQ(text.y, 70);
    EXPECT_DOUBLE_EQ(surface.CurrentX, 10 + text::MarkupWidth("F!1", TextFont(8)));
    EXPECT_EQ(surface.CurrentFont.size, 12);  // given back
}

}  // namespace
}  // namespace tavrelo::drawing
