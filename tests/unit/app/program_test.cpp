// What only the whole program can do: tools that hand their work to each other, and its two windows.

#include "app/program.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../window/test_host.h"

namespace tavrelo::app {
namespace {

constexpr int kParticleRoutine = 38;
constexpr int kPreferencesButton = 7;

class ProgramTest : public testing::Test {
  protected:
    template <class ControlType>
    ControlType& Get(const char* name) {
        return program.Window().Get<ControlType>(name);
    }
    void PressTool(int button) {
        constexpr double kButtonWidth = 555;  // twips
        Get<window::Picture>("Image1").UserMouseDown({.x = (button - 0.5) * kButtonWidth, .y = 100});
    }
    void Calculate(const std::vector<std::string>& cells) {
        auto& gd = Get<window::Grid>("gd");
        for (std::size_t k = 0; k < cells.size(); ++k)
            gd.SetCell(1, static_cast<int>(k) + 1, cells[k]);
        gd.Select({1, 1, 1, static_cast<int>(cells.size())});
        program.Window().publics.ProcNumber = kParticleRoutine;
        Get<window::Button>("cmdCalculate").UserClick();
    }

    window::TestHost world;
    Program program{world.host};
};

/// A weight of 100 on two cables at 30 and 135 degrees: F1 = 100 sin 45 / sin 105 = 73.205 and
/// F2 = 100 sin 60 / sin 105 = 89.658. No icon leads to the routine.
TEST_F(ProgramTest, TheCalculatorHandsForcesToTheParticle) {
    PressTool(1);
    Calculate({"p30x,F1", "s45x,F2", "v-100"});
    EXPECT_EQ(world.messages, 0);
    const std::string report = Get<window::RichTextBox>("rtbCalc").Text();
    EXPECT_NE(report.find("F1 = 73.205"), std::string::npos) << report;
    EXPECT_NE(report.find("F2 = 89.658"), std::string::npos) << report;
    EXPECT_EQ(program.GlobalValue("ForceCount"), "3");
    const auto& forces = Get<window::Grid>("gdEqui");
    ASSERT_EQ(forces.Rows(), 4);
    EXPECT_EQ(forces.Cell(1, 1), "p30x,F1");
    EXPECT_EQ(forces.Cell(3, 0), "3");
}

TEST_F(ProgramTest, AForceThatCannotBeReadLeavesTheParticleAsItIs) {
    PressTool(1);
    Calculate({"p30x,F1", "s45x,F2", "v-100"});
    Calculate({"h5", "xyz"});
    EXPECT_EQ(world.last_message, "Inventaste un nuevo formato");
    EXPECT_EQ(program.GlobalValue("ForceCount"), "3");
}

TEST_F(ProgramTest, ThePreferencesComeToTheFront) {
    std::vector<std::string> raised;
    program.Window().OnRaise = [&](window::Window& shown) { raised.push_back(shown.Name()); };
    PressTool(kPreferencesButton);
    EXPECT_EQ(raised, std::vector<std::string>{"Form2"});
    EXPECT_TRUE(Get<window::Window>("Form2").IsShown());
}

/// Closing the window ends the program, once.
TEST_F(ProgramTest, ClosingTheWindowEndsTheProgram) {
    int ends = 0;
    program.Window().OnEnd = [&] { ++ends; };
    PressTool(kPreferencesButton);
    auto& window = Get<window::Window>("Form1");
    window.UserClose();
    window.UserClose();
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(window.IsShown());
    EXPECT_FALSE(Get<window::Window>("Form2").IsShown());
}

/// The six tools are a choice, of which one is checked; the other three buttons do what they say.
TEST_F(ProgramTest, TheToolbarIsAChoiceOfToolsAndThreeButtons) {
    PressTool(6);
    const auto cells = Get<window::Picture>("Image1").Cells();
    ASSERT_EQ(cells.size(), 9u);
    for (std::size_t k = 0; k < cells.size(); ++k) {
        EXPECT_EQ(cells[k].role, k < 6 ? window::CellRole::Choice : window::CellRole::Button) << k;
        EXPECT_EQ(cells[k].checked, k == 5) << k;
        EXPECT_EQ(cells[k].bounds.left, static_cast<int>(k) * 37) << k;
        EXPECT_EQ(cells[k].bounds.width, 37) << k;
        EXPECT_FALSE(cells[k].name.empty()) << k;
    }
}
/// Before a tool with a table of points was entered its panel has nothing to work on, and does nothing.
TEST_F(ProgramTest, ThePanelOfPointsWaitsForItsTool) {
    auto& table = Get<window::Grid>("Gd2");
    EXPECT_EQ(table.NameColumn(1), "");
    EXPECT_TRUE(Get<window::Picture>("imgProcs").Cells().empty());
    Get<window::Button>("cmdTable(0)").UserClick();
    Get<window::Picture>("imgProcs").UserMouseDown({.x = 100, .y = 900});
    table.UserPress(0, 1);
    table.UserDblClick(0, 1);
    EXPECT_EQ(world.messages, 0);
    EXPECT_EQ(program.GlobalValue("TableConfigured"), "no");
}

/// The columns of the table go by the numbers of the points, with their mover where there are two.
TEST_F(ProgramTest, TheTableNamesItsColumnsByPoints) {
    for (const int tool : {4, 5}) {
        PressTool(tool);
        Get<window::Button>("cmdTable(0)").UserClick();
        EXPECT_EQ(Get<window::Grid>("Gd2").NameColumn(1), "punto 0") << tool;
        EXPECT_EQ(Get<window::Grid>("Gd2").NameColumn(9), "punto 8") << tool;
    }
    Get<window::Button>("cmdTable(1)").UserClick();  // two projectiles, parted behind the fifth point
    Get<window::Picture>("picAccel").UserMouseDown({.x = 4.5 * 64, .y = 30});
    EXPECT_EQ(Get<window::Grid>("Gd2").NameColumn(5), "punto 4 del móvil 1");
    EXPECT_EQ(Get<window::Grid>("Gd2").NameColumn(6), "punto 0 del móvil 2");
}

/// Without a group of routines in view the bar offers the eight groups alone.
TEST_F(ProgramTest, TheBarOffersItsGroupsFirst) {
    const auto cells = Get<window::Picture>("picBar").Cells();
    ASSERT_EQ(cells.size(), 8u);
    EXPECT_EQ(cells.front().name, "Ecuaciones lineales");
    EXPECT_EQ(cells.back().name, "Sistemas de fuerzas");
    PressTool(1);
    EXPECT_GT(Get<window::Picture>("picBar").Cells().size(), 8u);
}
}  // namespace
}  // namespace tavrelo::app
