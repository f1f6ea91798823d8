#include "window/form1.h"

#include <gtest/gtest.h>

#include <set>

#include "test_host.h"

namespace tavrelo::window {
namespace {

class Form1Test : public testing::Test {
  protected:
    TestHost world;
    Form1 form{world.host};
};

TEST_F(Form1Test, EveryRowOfTheTableIsAControlOfItsOwn) {
    std::set<std::string_view> names;
    for (const ControlRow& row : ControlTable()) {
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
        ASSERT_NE(form.Find(row.name), nullptr) << row.name;
        EXPECT_EQ(form.Find(row.name)->Name(), row.name);
    }
    EXPECT_EQ(form.Find("txtNada"), nullptr);
    EXPECT_EQ(form.Find("cmdParts(3)"), nullptr);
}

TEST_F(Form1Test, ArraysKeepTheirIndexes) {
    EXPECT_EQ(form.Get<Button>("cmdParts(5)").Caption(), "Cancelar última");
    EXPECT_THROW(form.Get<Button>("cmdParts(3)"), numeric::RuntimeFailure);
    EXPECT_EQ(form.GetArray<TextBox>("txtSegm").Count(), 7);
}

/// Two controls that can be seen together, of one panel and page, must not overlap.
TEST_F(Form1Test, ControlsOfAPanelDoNotOverlap) {
    const auto overlap = [](const Rect& a, const Rect& b) {
        return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
               b.top < a.top + a.height;
    };
    for (const Control* a : form.Controls())
        for (const Control* b : form.Controls()) {
            const bool same_place = a->Parent() == b->Parent() && a->Page() == b->Page();
            const bool in_panel = a->Parent() && a->Parent()->Parent();
            const bool exempt = a->Name() == "shpMrua" || b->Name() == "shpMrua" ||
                                a->Parent() == &form.Get<TabStrip>("tabCalc");
            if (a < b && same_place && in_panel && !exempt) {
                EXPECT_FALSE(overlap(a->Bounds(), b->Bounds())) << a->Name() << ' ' << b->Name();
            }
        }
}

TEST_F(Form1Test, SaysWhatChangedToWhoeverListens) {
    std::vector<std::string> heard;
    form.Announce("Nadie escucha.");
    form.OnAnnounce = [&](std::string_view sentence) { heard.emplace_back(sentence); };
    form.Announce("Fuerza 1 añadida.");
    form.Announce("");
    EXPECT_EQ(heard, std::vector<std::string>{"Fuerza 1 añadida."});
}

TEST_F(Form1Test, VisibilityAndUseGoThroughAllPanels) {
    EXPECT_FALSE(form.Get<TextBox>("txtVector").IsShown());
    form.Get<Frame>("fraDirec").SetVisible(true);
    EXPECT_TRUE(form.Get<TextBox>("txtVector").IsUsable());
    form.Get<Frame>("fraDirec").SetEnabled(false);
    EXPECT_TRUE(form.Get<TextBox>("txtVector").IsShown());
    EXPECT_FALSE(form.Get<TextBox>("txtVector").IsUsable());
}

TEST_F(Form1Test, OnlyThePageInFrontIsShown) {
    form.Get<TabStrip>("tabStat").SetVisible(true);
    EXPECT_TRUE(form.Get<TextBox>("txtSegm(0)").IsShown());
    EXPECT_FALSE(form.Get<TextBox>("txtBody(0)").IsShown());
    form.Get<TabStrip>("tabStat").UserPick(1);
    EXPECT_FALSE(form.Get<TextBox>("txtSegm(0)").IsShown());
    EXPECT_TRUE(form.Get<TextBox>("txtBody(0)").IsShown());
}

TEST_F(Form1Test, TheFocusNeedsAUsableControlAndIsLostWithIt) {
    form.SetFocus(form.Get<TextBox>("txtVector"));
    EXPECT_EQ(form.Focus(), nullptr);
    form.Get<Frame>("fraDirec").SetVisible(true);
    form.SetFocus(form.Get<TextBox>("txtVector"));
    EXPECT_EQ(form.Focus(), &form.Get<TextBox>("txtVector"));
    form.Get<Frame>("fraDirec").SetEnabled(false);
    EXPECT_EQ(form.Focus(), nullptr);
}

TEST_F(Form1Test, OptionsOfAGroupExcludeEachOther) {
    form.Get<OptionButton>("optPrint(0)").UserClick();
    form.Get<OptionButton>("optPrint(2)").UserClick();
    EXPECT_FALSE(form.Get<OptionButton>("optPrint(0)").Checked());
    EXPECT_TRUE(form.Get<OptionButton>("optPrint(2)").Checked());
}

TEST_F(Form1Test, TheCalculatorMakesRoomForTheClock) {
    form.Arrange(Arrangement::CalculatorWithClock);
    EXPECT_EQ(form.Get<TabStrip>("tabCalc").Bounds(), (Rect{397, 397, 400, 180}));
    EXPECT_EQ(form.Get<RichTextBox>("rtbCalc").Bounds(), (Rect{2, 24, 396, 154}));
    EXPECT_EQ(form.Get<Picture>("picBar").Bounds().height, 63);
    form.Arrange(Arrangement::Kinematics);
    EXPECT_EQ(form.Get<Picture>("picBar").Bounds().height, 31);
}

TEST_F(Form1Test, TwoWindowsLiveSideBySide) {
    TestHost other_world;
    Form1 other(other_world.host);
    form.Get<TextBox>("txtVector").SetText("h5");
    form.publics.Decimals = 7;
    EXPECT_EQ(other.Get<TextBox>("txtVector").Text(), "");
    EXPECT_EQ(other.publics.Decimals, 3);
}

TEST_F(Form1Test, TellsOfFocusAndPointer) {
    std::vector<std::pair<std::string, Change>> heard;
    form.OnChange = [&](Control& control, Change change) { heard.emplace_back(control.Name(), change); };
    auto& box = form.Get<TextBox>("txtNCD");
    form.Get<Window>("Form2").SetVisible(true);
    heard.clear();
    form.SetFocus(box);
    form.SetFocus(box);
    form.SetPointer(kPointerCross);
    EXPECT_EQ(form.Focus(), &box);
    EXPECT_EQ(form.Pointer(), kPointerCross);
    EXPECT_EQ(heard, (std::vector<std::pair<std::string, Change>>{{"txtNCD", Change::Focus},
                                                                  {"Form1", Change::State}}));
}

TEST_F(Form1Test, EndsOnce) {
    int ends = 0;
    form.OnEnd = [&] { ++ends; };
    form.End();
    form.End();
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(form.Get<Window>("Form1").IsShown());
}

TEST_F(Form1Test, AnArrayHasNoOtherIndexes) {
    const auto parts = form.GetArray<Button>("cmdParts");
    EXPECT_EQ(parts[5].Caption(), "Cancelar última");
    EXPECT_THROW(parts[3], numeric::RuntimeFailure);
}

/// Fifteen twips are a pixel; the upward pixels of a picture begin at its lower edge.
TEST_F(Form1Test, APictureHasItsOwnUnits) {
    auto& picture = form.Get<Picture>("picClock");
    const double height = picture.Bounds().height;
    const std::pair<MouseUnits, Point> rows[] = {{MouseUnits::Pixels, {30, 20}},
                                                 {MouseUnits::PixelsUp, {30, height - 20}},
                                                 {MouseUnits::Twips, {450, 300}}};
    for (const auto& [units, own] : rows) {
        picture.SetUnits(units);
        EXPECT_EQ(picture.ToOwnUnits({30, 20}).x, own.x);
        EXPECT_EQ(picture.ToOwnUnits({30, 20}).y, own.y);
    }
}
}  // namespace
}  // namespace tavrelo::window
