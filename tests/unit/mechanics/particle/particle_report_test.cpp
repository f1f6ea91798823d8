#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "../forces/force_lists.h"
#include "mechanics/particle/particle_solver.h"

namespace tavrelo::mechanics::particle {
namespace {

using Lines = std::vector<std::string>;

constexpr int kDecimals = 3;
constexpr double kTolerance = 1e-9;

Equilibrium Solved(const std::vector<std::string>& forces, int decimals = kDecimals) {
    return SolveEquilibrium(forces::Forces(forces), decimals);
}

struct ReportRow {
    std::vector<std::string> forces;
    Lines report;
    int decimals = kDecimals;
};

void ExpectReports(const std::vector<ReportRow>& rows) {
    for (const ReportRow& row : rows) {
        const Equilibrium outcome = Solved(row.forces, row.decimals);
        ASSERT_TRUE(std::holds_alternative<Solution>(outcome)) << row.forces.front();
        EXPECT_EQ(std::get<Solution>(outcome).report, row.report) << row.forces.front();
    }
}

TEST(SolveEquilibrium, ReportsTwoMagnitudes) {
    ExpectReports({
        // 10 at -135 is held by 10 cos 45 = 7.071 to the right and upward.
        {{"F1<0", "F2<90", "10<-135"},
         {";SF!x =  F!1 ;- 7.071 = 0", ";SF!y = F!2 ;- 7.071 = 0", "F!1 = 7.071", "F!2 = 7.071",
          ";SF!x = 0    ;SF!y = 0"}},
        // Sine rule: F1 = 100 sin 45 / sin 105, F2 = 100 sin 60 / sin 105.
        {{"p30x,F1", "s45x,F2", "v-100"},
         {";SF!x =  0.866 F!1 ;- 0.707 F!2 = 0", ";SF!y =  0.5 F!1 + 0.707 F!2 ;- 100 = 0", "F!1 = 73.205",
          "F!2 = 89.658", ";SF!x = 0    ;SF!y = 0"}},
        // A negative magnitude is told as it is: the force points the other way.
        {{"hP", "vQ", "3,4"},
         {";SF!x =  P + 3 = 0", ";SF!y = Q + 4 = 0", "P = -3", "Q = -4", ";SF!x = 0    ;SF!y = 0"}},
        // One unknown in y, two in x.
        {{"hP", "p30x,F", "-10,-5"},
         {";SF!x =  P + 0.866 F ;- 10 = 0", ";SF!y = 0.5 F ;- 5 = 0", "P = 1.34", "F = 10",
          ";SF!x = 0    ;SF!y = 0"}},
        // The names AB and Ab are one unknown; the first spelling is told.
        {{"hab", "p30x,ab", "vQ", "-10,0"},
         {";SF!x =  1.866 A!B ;- 10 = 0", ";SF!y =  0.5 A!B + Q = 0", "A!B = 5.359", "Q = -2.679",
          ";SF!x = 0    ;SF!y = 0"}},
        // A friction force f and a force F are two.
        {{"hf", "p90x,F", "3,-4"},
         {";SF!x =  f + 3 = 0", ";SF!y = F ;- 4 = 0", "f = -3", "F = 4", ";SF!x = 0    ;SF!y = 0"}},
        {{"p30x,F1", "s45x,F2", "v-100"},
         {";SF!x =  0.9 F!1 ;- 0.7 F!2 = 0", ";SF!y =  0.5 F!1 + 0.7 F!2 ;- 100 = 0", "F!1 = 73.2",
          "F!2 = 89.7", ";SF!x = 0    ;SF!y = 0"},
         1},
    });
}

TEST(SolveEquilibrium, ReportsTheEquilibrantOfKnownForces) {
    ExpectReports({
        // 30 and 40 leftward and downward: 50 at atan(4/3).
        {{"F<a", "-30,-40"},
         {";SF!x =  F cos A ;- 30 = 0", ";SF!y =  F sen A ;- 40 = 0", "F = 50", "A = 53.13°",
          ";SF!x = 0    ;SF!y = 0"}},
        {{"2F1<a1", "30,0", "0,40"},
         {";SF!x =  2 F!1 cos A!1 + 30 = 0", ";SF!y =  2 F!1 sen A!1 + 40 = 0", "F!1 = 25", "A!1 = -126.87°",
          ";SF!x = 0    ;SF!y = 0"}},
        // Nothing to hold: no magnitude, direction 0.
        {{"F<a", "10,0", "-10,0"},
         {";SF!x =  F cos A = 0", ";SF!y =  F sen A = 0", "F = 0", "A = 0°", ";SF!x = 0    ;SF!y = 0"}},
    });
}

TEST(SolveEquilibrium, ReportsTheGoodRootAndGoesOnFromTheSumsOfTheLast) {
    ExpectReports({
        // 20 sin A = 10 and F1 > 0 leave A = 150 alone, which was tested last: the check is clean.
        {{"hF1", "20<a", "v-10"},
         {";SF!x =  F!1 + 20 cos A = 0", ";SF!y = 20 sen A ;- 10 = 0", "F!1 = 17.321", "A = 150°",
          ";SF!x = 0    ;SF!y = 0"}},
        // cos A = -1/2: 120 holds, and the candidate tested last, 60, left 20 cos 60 + 10 along x.
        {{"v-F1", "20<a", "h10"},
         {";SF!x = 20 cos A + 10 = 0", ";SF!y =  ;- F!1 + 20 sen A = 0", "F!1 = 17.321", "A = 120°",
          ";SF!x = 20    ;SF!y = 0"}},
        {{"20<a", "h10", "v-F12"},
         {";SF!x = 20 cos A + 10 = 0", ";SF!y =  ;- F!1!2 + 20 sen A = 0", "F!1!2 = 17.321", "A = 120°",
          ";SF!x = 20    ;SF!y = 0"}},
        // A rope over a pulley, upward and to the right with 10 each; the last candidate was 10 upward, 10 at
        // -90.
        {{"vF", "F<a", "-10,-10"},
         {";SF!x = F cos A ;- 10 = 0", ";SF!y =  F + F sen A ;- 10 = 0", "F = 10", "A = 0°",
          ";SF!x = -10    ;SF!y = -10"}},
    });
}

TEST(SolveEquilibrium, OffersNoRootThatSmallLoadsAloneLetPass) {
    // The rope over a pulley with 0.0008: the other root leaves 0.0008 in both sums.
    const Equilibrium outcome = Solved({"vF", "F<a", "-0.0008,-0.0008"}, 4);
    ASSERT_TRUE(std::holds_alternative<Solution>(outcome));
    EXPECT_EQ(std::get<Solution>(outcome).report[2], "F = 0.0008");
    EXPECT_EQ(std::get<Solution>(outcome).report[3], "A = 0°");
}

TEST(SolveEquilibrium, OffersTwoGoodRoots) {
    // The legs 30 to the right and 20 at A hold F1 to the left: sin A = 1 twice.
    const Equilibrium outcome = Solved({"h-F1", "20<a", "30,-20"});
    ASSERT_TRUE(std::holds_alternative<Choice>(outcome));
    const Choice& choice = std::get<Choice>(outcome);
    EXPECT_FALSE(choice.between_angles);
    EXPECT_EQ(choice.question,
              "Existen dos soluciones (posiblemente iguales) que son:\n"
              "F1 = 30, A = 90°\n"
              "F1 = 30, A = 90°\n"
              "Para escoger la primera oprime el botón \"Sí\". Para la segunda oprime \"No\".");
    const Lines report = {";SF!x =  ;- F!1 + 20 cos A + 30 = 0", ";SF!y = 20 sen A ;- 20 = 0", "F!1 = 30",
                          "A = 90°", ";SF!x = 0    ;SF!y = 0"};
    EXPECT_EQ(choice.solutions[0].report, report);
    EXPECT_EQ(choice.solutions[1].report, report);
}

TEST(SolveEquilibrium, OffersTwoAngles) {
    // The 3-4-5 triangle and its mirror image: acos(3/5) = 53.13, acos(4/5) = 36.87 degrees.
    const Equilibrium outcome = Solved({"3<a1", "4<b", "h-5"});
    ASSERT_TRUE(std::holds_alternative<Choice>(outcome));
    const Choice& choice = std::get<Choice>(outcome);
    EXPECT_TRUE(choice.between_angles);
    EXPECT_EQ(choice.question,
              "Existen dos soluciones (posiblemente iguales) que son:\n"
              "A1 = 53.13°, B = -36.87°\n"
              "A1 = -53.13°, B = 36.87°\n"
              "Para escoger la primera oprime el botón \"Sí\". Para la segunda oprime \"No\".");
    EXPECT_EQ(choice.solutions[1].report,
              (Lines{";SF!x =  3 cos A!1 + 4 cos B ;- 5 = 0", ";SF!y =  3 sen A!1 + 4 sen B = 0",
                     "A!1 = -53.13°", "B = 36.87°", ";SF!x = 0    ;SF!y = 0"}));
}

TEST(SolveEquilibrium, TellsTheSumsOfKnownForces) {
    const Equilibrium outcome = Solved({"3,4", "h-5", "v0.5"});
    ASSERT_TRUE(std::holds_alternative<NothingToSolve>(outcome));
    EXPECT_EQ(std::get<NothingToSolve>(outcome).report,
              (Lines{"No hay incógnitas.", ";SF!x = -2", ";SF!y = 4.5"}));
    EXPECT_EQ(std::get<NothingToSolve>(Solved({"10<30", "10<-150"})).report,
              (Lines{"No hay incógnitas.", ";SF!x = 0", ";SF!y = 0"}));
}

TEST(SolveEquilibrium, EscapesTheMarksOfANameInItsReport) {
    const Equilibrium outcome = Solved({"hF/", "vQ#", "3,4"});
    ASSERT_TRUE(std::holds_alternative<Solution>(outcome));
    EXPECT_EQ(std::get<Solution>(outcome).report[0], ";SF!x =  F!// + 3 = 0");
    EXPECT_EQ(std::get<Solution>(outcome).report[3], "Q!## = -4");
}

TEST(SolveEquilibrium, RewritesTheForcesAsKnownOnes) {
    const Equilibrium outcome = Solved({"p30x,F1", "s45x,F2:", "v-100", "p90x,0.5", "v-0.5"});
    ASSERT_TRUE(std::holds_alternative<Solution>(outcome));
    const std::vector<notation::Force>& solved = std::get<Solution>(outcome).forces;
    const double f1 = 100 * std::sin(std::numbers::pi / 4) / std::sin(7 * std::numbers::pi / 12);
    EXPECT_NEAR(solved[0].magnitude.value_or(0), f1, kTolerance);
    EXPECT_NEAR(solved[0].direction.value_or(0), 30, kTolerance);
    EXPECT_TRUE(solved[0].x.unknown.IsNone());
    EXPECT_TRUE(solved[0].y.unknown.IsNone());
    EXPECT_NEAR(solved[0].x.number.value_or(0), f1 * std::cos(std::numbers::pi / 6), kTolerance);
    EXPECT_EQ(solved[0].knowledge, notation::Knowledge::Found);
    EXPECT_EQ(solved[1].knowledge, notation::Knowledge::Found);
    EXPECT_EQ(solved[2].knowledge, notation::Knowledge::Given);
    EXPECT_NEAR(solved[2].direction.value_or(0), -90, kTolerance);
}

}  // namespace
}  // namespace tavrelo::mechanics::particle
