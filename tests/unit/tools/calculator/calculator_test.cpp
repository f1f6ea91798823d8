#include <gtest/gtest.h>

#include <cmath>

#include "../../window/test_host.h"
#include "tools/calculator/calculator_tool.h"

namespace tavrelo::tools::calculator {
namespace {

constexpr int kQuadraticRoutine = 5;
constexpr int kLineFitRoutine = 23;
constexpr int kParticleRoutine = 38;
constexpr int kVectorSumRoutine = 28;
constexpr int kPlaneForcesRoutine = 36;

class CalculatorTest : public testing::Test {
  protected:
    void Run(int routine, const std::vector<std::string>& cells) {
        for (std::size_t k = 0; k < cells.size(); ++k)
            gd.SetCell(1, static_cast<int>(k) + 1, cells[k]);
        gd.Select({1, 1, 1, static_cast<int>(cells.size())});
        form.publics.ProcNumber = routine;
        form.Get<window::Button>("cmdCalculate").UserClick();
    }

    window::TestHost world;
    window::Form1 form{world.host};
    frame::SharedExpression expression{form.publics.AngleFactor};
    frame::DirectionClock clock{form};
    CalculatorTool calculator{form, expression, clock};
    window::Grid& gd = form.Get<window::Grid>("gd");
    window::Picture& pic = form.Get<window::Picture>("pic");
};

/// No icon leads to this routine, so no transcript does.
TEST_F(CalculatorTest, TheParticleRoutineHandsItsTextsOver) {
    std::vector<std::string> handed;
    calculator.SolveParticle = [&](std::span<const std::string> texts) {
        handed.assign(texts.begin(), texts.end());
    };
    Run(kParticleRoutine, {"p30x,F1", "", "s45x,F2", "v-100"});
    EXPECT_EQ(handed, (std::vector<std::string>{"p30x,F1", "s45x,F2", "v-100"}));
    EXPECT_EQ(world.last_message, "");
}

TEST_F(CalculatorTest, ThePointerIsGivenBackAfterAFailure) {
    form.SetPointer(window::kPointerCross);
    Run(kVectorSumRoutine, {""});
    EXPECT_EQ(world.last_message, "Falló la rutina. Revisa los argumentos.");
    EXPECT_EQ(form.Pointer(), window::kPointerCross);
}

/// A routine refuses a single cell of a row that holds more: most often the others were not selected.
TEST_F(CalculatorTest, TheSizeOfTheSelectionStandsOutAfterARefusal) {
    const auto& size = form.Get<window::Label>("lblRC");
    gd.SetCell(1, 1, "1");
    gd.SetCell(1, 2, "-3");
    gd.SetCell(1, 3, "2");
    gd.UserPress(1, 1);
    form.publics.ProcNumber = kQuadraticRoutine;
    form.Get<window::Button>("cmdCalculate").UserClick();
    EXPECT_NE(world.last_message, "");
    EXPECT_TRUE(size.CallsAttention());
    gd.UserDrag({1, 1, 1, 3});
    EXPECT_FALSE(size.CallsAttention());
}

TEST_F(CalculatorTest, ASingleCellOfAnEmptyRowDoesNotStandOut) {
    gd.SetCell(1, 1, "1");
    gd.UserPress(1, 1);
    form.publics.ProcNumber = kQuadraticRoutine;
    form.Get<window::Button>("cmdCalculate").UserClick();
    EXPECT_NE(world.last_message, "");
    EXPECT_FALSE(form.Get<window::Label>("lblRC").CallsAttention());
}

TEST_F(CalculatorTest, TheInvitationGoesWithTheFirstDatum) {
    pic.Canvas().Invite(calculator.Hooks().invitation);
    gd.UserPress(1, 1);
    EXPECT_NE(pic.Canvas().Invitation(), "");
    gd.UserKeyPress(U'7');
    EXPECT_EQ(pic.Canvas().Invitation(), "");
}

/// y = 2x through (0, 0), (1, 2) and (2, 4) leaves none outside; the fit of (0, 0), (1, 3) and (2, 0), which
/// is y = 1, all three.
TEST_F(CalculatorTest, AFitTellsHowManyPointsLieOutsideItsFrame) {
    const window::Point middle{
        drawing::DrawEng::kGraphLeft + drawing::DrawEng::kGraphSize / 2,
        pic.Canvas().FromBottom(drawing::DrawEng::kGraphBottom + drawing::DrawEng::kGraphSize / 2)};
    Run(kLineFitRoutine, {"0", "0", "1", "2", "2", "4"});
    EXPECT_EQ(pic.Canvas().TipAt(middle).find("fuera"), std::string::npos);
    Run(kLineFitRoutine, {"0", "0", "1", "3", "2", "0"});
    EXPECT_NE(pic.Canvas().TipAt(middle).find("3 puntos quedan fuera del recuadro."), std::string::npos);
}

/// Ends of all arrows, the axes left out, on a picture.
std::vector<window::Point> ArrowEnds(const window::Recorder& picture) {
    constexpr double kLongestForce = 5.5 * drawing::DrawEng::kPixPerUnit;
    std::vector<window::Point> ends;
    for (const window::DrawOp& operation : picture.Operations()) {
        const auto* line = std::get_if<window::LineOp>(&operation);
        if (!line || std::hypot(line->x2 - line->x1, line->y2 - line->y1) > kLongestForce + 1)
            continue;
        ends.push_back({line->x1, line->y1});
        ends.push_back({line->x2, line->y2});
    }
    return ends;
}

TEST_F(CalculatorTest, ForcesOfEverySystemLieInsideThePicture) {
    const std::vector<std::vector<std::string>> systems = {
        {"2,0", "v-10", "5,0", "6,-20"},
        {"-300,40", "0,5", "500,-80", "-7,5", "20,900", "h3"},
        {"0,0", "1,1"},
        {"0.001,0", "v1", "0.002,0.003", "h-1000"},
    };
    for (const auto& system : systems) {
        Run(kPlaneForcesRoutine, system);
        const auto ends = ArrowEnds(pic.Canvas());
        // The forces and their resultant.
        EXPECT_EQ(ends.size(), system.size() + 2) << system.front();
        for (const window::Point& end : ends) {
            EXPECT_GE(end.x, 0) << system.front();
            EXPECT_GE(end.y, 0) << system.front();
            EXPECT_LE(end.x, pic.Canvas().Width()) << system.front();
            EXPECT_LE(end.y, pic.Canvas().Height()) << system.front();
        }
        for (int col = 1; col <= kGridCols; ++col)
            gd.SetCell(1, col, "");
    }
}

}  // namespace
}  // namespace tavrelo::tools::calculator
