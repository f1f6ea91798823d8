#include "text/markup.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tavrelo::text {
namespace {

RichText Render(std::string_view text) { return RenderMarkup(kTextFont, 10, text); }

/// Characters by the table of the symbol font and the escapes, as they read when rendered.
TEST(Markup, RendersTheCharacters) {
    struct Row {
        const char* markup;
        const char* shown;
    };
    const Row rows[] = {
        {"", ""},
        {"plano", "plano"},
        {"x!1", "x1"},
        {"x¡2", "x2"},
        {"n¡-¡1", "n-1"},
        {"$F!1", "F1"},
        {";q;D;S;l;m;e", "θΔΣλμε"},
        // Behind the Greek mark other marks are letters of the symbol font like any other.
        {";!2", "!2"},
        {";/3a", "/3a"},
        {"x!", "x"},
        {"3 ;- 2", "3 − 2"},
        {"#cruz", "×"},
        {"#angu#esca#mame#grad#cora", "∠•±°♥"},
        {"#meig#maig#suma#infi#dife#abso", "≤≥∑∞≠|"},
        {"#0163", "≤"},
        {"/3a/b", "ab"},
        {"/3Suma/:  (", "Suma:  ("},
        {"\\0100Titulo\\ y", "Titulo y"},
        {"a¬b", "ab¬"},  // an end mark of the text ends the rendering
        // Escapes leave one mark and skip the character behind it.
        {"x¡¡2", "x¡2"},
        {"//3", "/3"},
        {"6//2 = 3", "6/2 = 3"},
        {"//!1", "/!1"},
        {"!!!1", "!!1"},
        {"\\\\ ;; $$ ## ", "\\ ; $ # "},
        {"//", "/¬"},  // a text that ends in an escape skips its own end
        // An unclosed style runs to the end.
        {"/3a", "a"},
        {"a/b", "a"},
        {"/", ""},
        // Inside a style nothing is interpreted.
        {"/3x!1/", "x!1"},
        {"/3a\r\nb/c", "a\r\nbc"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Render(row.markup).PlainText(), row.shown) << row.markup;
}

TEST(Markup, AnUnknownSymbolIsCharacterZero) {
    EXPECT_EQ(Render("a#abcd").PlainText(), std::string("a\0", 2));
    EXPECT_EQ(Render("#ab").PlainText(), std::string("\0", 1));
    EXPECT_EQ(Render("a#abcd").Runs().back().font.name, kSymbolFont);
}

TEST(Markup, StylesSetFlagsAndColour) {
    struct Row {
        const char* markup;
        bool bold;
        bool underline;
        bool italic;
        Color color;
    };
    const Row rows[] = {
        {"/3a/", false, false, false, Rgb(0, 0, 255)},
        {"/Aa/", false, false, false, Rgb(0, 128, 128)},
        {"/Ea/", false, false, false, Rgb(128, 64, 0)},
        {"/Fa/", false, false, false, Rgb(128, 64, 0)},
        {"/ta/", true, false, false, Rgb(0, 128, 0)},
        {"/ga/", false, false, true, Rgb(0, 0, 255)},
        {"/ca/", true, false, false, Rgb(128, 0, 0)},
        {"/oa/", false, false, false, Rgb(255, 0, 0)},
        {"/pa/", true, true, false, Rgb(255, 128, 0)},
        {"/na/", false, true, false, Rgb(128, 0, 128)},
        {"/ba/", true, false, false, kBlack},
        {"/ia/", false, false, true, kBlack},
        {"/ua/", false, true, false, kBlack},
        {"\\1000a\\", true, false, false, kBlack},
        {"\\0101a\\", false, true, false, Rgb(255, 0, 0)},
        {"\\001Ba\\", false, false, true, Rgb(128, 0, 128)},
        {"\\000xa\\", false, false, false, kBlack},
        {"/?a/", false, false, false, kBlack},
    };
    for (const Row& row : rows) {
        const RichText text = Render(row.markup);
        ASSERT_EQ(text.Runs().size(), 1u) << row.markup;
        const auto& run = text.Runs().front();
        EXPECT_EQ(run.font.bold, row.bold) << row.markup;
        EXPECT_EQ(run.font.underline, row.underline) << row.markup;
        EXPECT_EQ(run.font.italic, row.italic) << row.markup;
        EXPECT_EQ(run.color, row.color) << row.markup;
    }
}

TEST(Markup, AnUnknownStyleKeepsThePreviousOne) {
    const RichText text = Render("/ta//?b/");
    EXPECT_EQ(text.Runs().size(), 1u);  // equal neighbours are one run
    EXPECT_TRUE(text.Runs().front().font.bold);
}

TEST(Markup, ScriptsTakeTheirSizeFontAndOffset) {
    const RichText digit = Render("x!1");
    EXPECT_EQ(digit.Runs()[1].offset, -45);
    EXPECT_EQ(digit.Runs()[1].font.size, 7);
    const RichText letter = Render("x¡n");
    EXPECT_EQ(letter.Runs()[1].offset, 60);
    EXPECT_EQ(letter.Runs()[1].font.size, 8);
    // A mark behind a mark is interpreted, and the offset goes with the deleted character.
    const RichText greek = Render("!;q");
    ASSERT_EQ(greek.Runs().size(), 1u);
    EXPECT_EQ(greek.Runs()[0].offset, 0);
    EXPECT_EQ(greek.Runs()[0].font.name, kSymbolFont);
}

std::string Subscripts(int count) {
    std::string text;
    for (int k = 0; k < count; ++k)
        text += "!a";
    return text;
}

TEST(Markup, TwoHundredMarksAreTheLimitEndMarkIncluded) {
    EXPECT_EQ(Render(Subscripts(199)).PlainText(), std::string(199, 'a'));
    EXPECT_EQ(Render(Subscripts(200)).PlainText(), std::string(200, 'a') + "¬");
    EXPECT_EQ(Render(Subscripts(201)).PlainText(), std::string(200, 'a') + "!a¬");
}

TEST(Markup, EscapedTextShowsAsTyped) {
    for (const char* typed : {"a/b", "7\\2", "x!y;z$w#v", "¡hola", "//", "1/2/3", "a\\b/c"}) {
        // A line end always stands behind what a report shows.
        EXPECT_EQ(Render(EscapeMarks(typed) + "\r\n").PlainText(), std::string(typed) + "\r\n") << typed;
    }
}

TEST(Markup, EscapingLeavesTheEndMarkOut) {
    EXPECT_EQ(EscapeMarks("M¬/2"), "M//2");
    EXPECT_EQ(Render(EscapeMarks("M¬") + " = 1").PlainText(), "M = 1");
}

TEST(Markup, CountsEveryMark) {
    EXPECT_EQ(CountMarks("A!x ;- ¡2 /p/ \\0100\\ $ # ¬"), 10u);
    EXPECT_EQ(CountMarks("Ax = -20"), 0u);
}

TEST(Markup, TheSymbolFontHasAllItsLetters) {
    EXPECT_EQ(SymbolFontCharacter(U'j'), U'ϕ');
    EXPECT_EQ(SymbolFontCharacter(U'J'), U'ϑ');
    EXPECT_EQ(SymbolFontCharacter(U'v'), U'ϖ');
    EXPECT_EQ(SymbolFontCharacter(U'V'), U'ς');
    EXPECT_EQ(SymbolFontCharacter(U'W'), U'Ω');
    EXPECT_EQ(SymbolFontCharacter(U'5'), U'5');
    EXPECT_EQ(SymbolChar(U"0999"), U'\0');
}

}  // namespace
}  // namespace tavrelo::text
