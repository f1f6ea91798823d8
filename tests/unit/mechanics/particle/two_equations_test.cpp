#include "mechanics/particle/two_equations.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace tavrelo::mechanics::particle {
namespace {

constexpr double kTolerance = 1e-9;
constexpr double kRadians = std::numbers::pi / 180;

using Solver = std::variant<text::Refusal, TwoRoots> (*)(const TwoEquations&);

void ExpectRoot(const Root& got, const Root& wanted) {
    EXPECT_NEAR(got.first, wanted.first, kTolerance);
    EXPECT_NEAR(got.second, wanted.second, kTolerance);
}

void ExpectRoots(Solver solve, const TwoEquations& equations, const Root& first, const Root& second) {
    const auto solved = solve(equations);
    ASSERT_TRUE(std::holds_alternative<TwoRoots>(solved)) << std::get<text::Refusal>(solved).text;
    ExpectRoot(std::get<TwoRoots>(solved)[0], first);
    ExpectRoot(std::get<TwoRoots>(solved)[1], second);
}

TEST(SolveTwoMagnitudes, SolvesTheLinearSystem) {
    ExpectRoot(std::get<Root>(SolveTwoMagnitudes({2, 1, -5, 1, -1, -1})), {2, 1});   // 2u + w = 5, u - w = 1
    ExpectRoot(std::get<Root>(SolveTwoMagnitudes({0, 2, -6, -1, 0, -4})), {-4, 3});  // 2w = 6, -u = 4
}

// Residuals of both equations for each of the two roots.
TEST(SolveMagnitudeAndAngle, GivesAMagnitudeAndAnAngleThatSatisfyBothEquations) {
    for (const TwoEquations& s : {TwoEquations{0.6, 5, -2, 0.8, 5, 1}, TwoEquations{-0.3, 20, 3, 0.9, 20, 7},
                                  TwoEquations{1, 20, 0, 0, 20, -10}}) {
        const auto solved = SolveMagnitudeAndAngle(s);
        ASSERT_TRUE(std::holds_alternative<TwoRoots>(solved));
        int good = 0;
        for (const Root& root : std::get<TwoRoots>(solved)) {
            const double angle = root.second * kRadians;
            EXPECT_GE(root.first, 0);
            const bool x = std::abs(s.a * root.first + s.b * std::cos(angle) + s.c) < kTolerance;
            const bool y = std::abs(s.d * root.first + s.e * std::sin(angle) + s.f) < kTolerance;
            good += x && y;
        }
        EXPECT_GE(good, 1) << s.a;
    }
}

TEST(SolveMagnitudeAndAngle, TurnsANegativeMagnitudeOverWithItsAngle) {
    // u + 20 cos t = 0, 20 sin t = 10: t = 30 gives u = -17.32, turned over to 17.32 at 210 = -150 degrees.
    const double u = 20 * std::cos(30 * kRadians);
    ExpectRoots(SolveMagnitudeAndAngle, {1, 20, 0, 0, 20, -10}, {u, -150}, {u, 150});
    // 20 cos t = -10, -u + 20 sin t = 0: t = -120 gives u = -17.32, turned over to 60 degrees.
    ExpectRoots(SolveMagnitudeAndAngle, {0, 20, 10, -1, 20, 0}, {u, 120}, {u, 60});
}

TEST(SolveTwoAngles, GivesTheSecondRootFirst) {
    // 3 cos a + 4 cos b = 5, 3 sin a + 4 sin b = 0: the 3-4-5 triangle and its mirror image.
    const double alpha = std::acos(0.6) / kRadians;
    const double beta = std::acos(0.8) / kRadians;
    ExpectRoots(SolveTwoAngles, {3, 4, -5, 3, 4, 0}, {alpha, -beta}, {-alpha, beta});
}

TEST(SolveSharedMagnitude, GivesTheMagnitudeOfTwoForces) {
    // u cos t = 10, u + u sin t = 10: u = 10 at 0 degrees. The other root, -90, gets its magnitude from the
    // cosine.
    ExpectRoots(SolveSharedMagnitude, {0, 1, -10, 1, 1, -10}, {10, 0}, {10, -90});
}

TEST(SolveSharedMagnitude, RepeatsTheOneMagnitudeThatIsFound) {
    // Ropes at 150 and 30 degrees: along x they cancel, so the first root has no magnitude by the equation of
    // x.
    const double c = std::cos(30 * kRadians);
    const auto solved = SolveSharedMagnitude({-c, 1, 0, 0.5, 1, -100});
    ASSERT_TRUE(std::holds_alternative<TwoRoots>(solved));
    const auto& [first, second] = std::get<TwoRoots>(solved);
    EXPECT_EQ(first.first, second.first);
    EXPECT_EQ(first.second, second.second);
}

struct RefusedRow {
    Solver solve;
    TwoEquations equations;
    const char* text;
};

TEST(TwoEquations, SayWhyThereIsNoRoot) {
    const RefusedRow rows[] = {
        {SolveMagnitudeAndAngle, {1, 0, 3, 1, 2, 5}, "No resuelvo este caso."},
        {SolveMagnitudeAndAngle, {1, 2, 3, 1, 1e-6, 5}, "No resuelvo este caso."},
        {SolveMagnitudeAndAngle, {0, 2, 3, 0, 2, 5}, "Error en los datos."},
        {SolveMagnitudeAndAngle, {0, 20, 30, 1, 20, 0}, "No existe solución."},
        {SolveMagnitudeAndAngle, {1, 20, 0, 0, 20, -30}, "No existe solución."},
        {SolveMagnitudeAndAngle, {0.6, 1, 0, 0.8, 1, -100}, "No existe solución."},
        {SolveTwoAngles, {1, 2, 10, 1, 2, 0}, "No existe solución."},
        {SolveSharedMagnitude, {2, 1, 10, 0, 1, 10}, "No existe solución."},
        {SolveSharedMagnitude, {0, 0, 0, 0, 0, 0}, "No existe solución."},
    };
    for (const RefusedRow& row : rows) {
        const auto solved = row.solve(row.equations);
        ASSERT_TRUE(std::holds_alternative<text::Refusal>(solved)) << row.text;
        EXPECT_EQ(std::get<text::Refusal>(solved).text, row.text);
    }
}

TEST(TwoEquations, RefuseALinearSystemWithoutADeterminant) {
    // 1e-6 itself counts as zero.
    for (const TwoEquations& equations : {TwoEquations{1, 2, 3, 2, 4, 5}, TwoEquations{0, 0, 3, 0, 0, 5},
                                          TwoEquations{1e-3, 0, 3, 0, 1e-3, 5}}) {
        const auto solved = SolveTwoMagnitudes(equations);
        ASSERT_TRUE(std::holds_alternative<text::Refusal>(solved));
        EXPECT_EQ(std::get<text::Refusal>(solved).text, "El determinante del sistema es cero.");
    }
}

}  // namespace
}  // namespace tavrelo::mechanics::particle
