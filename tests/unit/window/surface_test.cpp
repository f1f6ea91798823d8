#include "window/surface.h"

#include <gtest/gtest.h>

namespace tavrelo::window {
namespace {

using Texts = std::vector<std::string>;

TEST(Recorder, ForgetsWhatWasBeforeAClearing) {
    Recorder surface(100, 100);
    surface.Print("antes");
    surface.Cls();
    EXPECT_TRUE(surface.VisibleTexts().empty());
    EXPECT_EQ(surface.CurrentX, 0);
}

TEST(Recorder, AFilledBoxHidesTheTextsUnderIt) {
    Recorder surface(100, 100);
    surface.CurrentX = 10;
    surface.CurrentY = 10;
    surface.Print("oculto");
    surface.CurrentX = 10;
    surface.CurrentY = 60;
    surface.Print("visible");
    surface.Box(0, 0, 100, 40, text::kWhite, false);
    EXPECT_EQ(surface.VisibleTexts(), (Texts{"oculto", "visible"}));
    surface.Box(0, 0, 100, 40, text::kWhite, true);
    EXPECT_EQ(surface.VisibleTexts(), (Texts{"visible"}));
}

TEST(Recorder, ReplaysOnAnotherSurface) {
    Recorder first(50, 50);
    first.Line(1, 2, 3, 4, text::kBlack);
    first.Print("x");
    Recorder second(50, 50);
    Replay(first.Operations(), second);
    EXPECT_EQ(second.Operations().size(), 2u);
    EXPECT_EQ(second.VisibleTexts(), (Texts{"x"}));
}

TEST(Recorder, ItsWordsGoOnUntilTheNextClearing) {
    Recorder surface(50, 50);
    int changes = 0;
    surface.OnChange = [&] { ++changes; };
    surface.Describe("Una fuerza.");
    surface.Describe("");
    surface.Describe("Su resultante.");
    EXPECT_EQ(surface.Words(), "Una fuerza. Su resultante.");
    EXPECT_EQ(changes, 2);
    surface.Cls();
    EXPECT_EQ(surface.Words(), "");
}

TEST(Recorder, BringsAKeptDrawingBackWithItsWords) {
    Recorder surface(50, 50);
    surface.Print("x");
    surface.Describe("La letra x.");
    const Recording kept = surface.Kept();
    surface.Cls();
    surface.Describe("Nada.");
    surface.Restore(kept);
    EXPECT_EQ(surface.VisibleTexts(), (Texts{"x"}));
    EXPECT_EQ(surface.Words(), "La letra x.");
}

/// A line that a white band has covered is no longer read; the others are read from the top downward.
TEST(Recorder, ReadsAPageByTheTextsThatStandOnIt) {
    Recorder surface(50, 100);
    const auto print = [&](double y, const char* text) {
        surface.CurrentX = 0;
        surface.CurrentY = y;
        surface.Print(text);
    };
    print(60, "y = 2");
    print(20, "x = 1");
    print(40, "z = 0");
    EXPECT_EQ(surface.Words(), "");
    surface.DescribeByTexts();
    surface.Box(0, 40, 50, 55, text::kWhite, true);
    EXPECT_EQ(surface.Words(), "x igual a 1\ny igual a 2");
    surface.Cls();
    print(0, "w");
    EXPECT_EQ(surface.Words(), "");
}

TEST(Surface, ThePenEndsBehindWhatWasDrawn) {
    Recorder surface(50, 50);
    surface.Line(1, 2, 30, 40, text::kBlack);
    EXPECT_EQ(surface.CurrentX, 30);
    EXPECT_EQ(surface.CurrentY, 40);
    surface.Print("ab");
    EXPECT_DOUBLE_EQ(surface.CurrentX, 30 + surface.TextWidth("ab"));
}

/// The widths that the font files give: 2048 units an em; "A" of the serif is 1479 wide, of the sans 1366.
TEST(Fonts, MeasureByTheTable) {
    const text::Font serif{std::string(text::kTextFont), 12};
    const text::Font sans{std::string(text::kInterfaceFont), 12};
    EXPECT_DOUBLE_EQ(text::TextWidth("A", serif), 1479 * 16.0 / 2048);
    EXPECT_DOUBLE_EQ(text::TextWidth("A", sans), 1366 * 16.0 / 2048);
    EXPECT_GT(text::TextWidth("∠", serif), 0);
}

}  // namespace
}  // namespace tavrelo::window
