#include "mechanics/particle/solve2.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace tavrelo::mechanics::particle {
namespace {

using Numbers = std::vector<double>;
constexpr double kTolerance = 1e-9;
constexpr double kRadians = std::numbers::pi / 180;

struct SystemRow {
    int kind;
    double a, b, c, d, e, f;
    Numbers numbers;
};

void ExpectNumbers(const SystemRow& row, double tolerance = kTolerance) {
    const auto result = Solve2(row.kind, row.a, row.b, row.c, row.d, row.e, row.f);
    ASSERT_TRUE(std::holds_alternative<Numbers>(result)) << std::get<text::Refusal>(result).text;
    const Numbers& got = std::get<Numbers>(result);
    ASSERT_EQ(got.size(), row.numbers.size());
    for (std::size_t i = 0; i < got.size(); ++i)
        EXPECT_NEAR(got[i], row.numbers[i], tolerance)
            << "kind " << row.kind << ", a " << row.a << ", number " << i;
}

TEST(Solve2, SolvesTheLinearSystem) {
    ExpectNumbers({kLinear, 2, 1, -5, 1, -1, -1, {2, 1}});   // 2u + w = 5, u - w = 1
    ExpectNumbers({kLinear, 0, 2, -6, -1, 0, -4, {-4, 3}});  // 2w = 6, -u = 4
}

// Residuals of both equations for each of the two pairs that a trigonometric kind returns.
TEST(Solve2, GivesAMagnitudeAndAnAngleThatSatisfyBothEquations) {
    const SystemRow rows[] = {
        {kMagnitudeAndAngle, 0.6, 5, -2, 0.8, 5, 1, {}},
        {kMagnitudeAndAngle, -0.3, 20, 3, 0.9, 20, 7, {}},
        {kMagnitudeAndAngle, 1, 20, 0, 0, 20, -10, {}},
    };
    for (const SystemRow& row : rows) {
        const auto result = Solve2(row.kind, row.a, row.b, row.c, row.d, row.e, row.f);
        ASSERT_TRUE(std::holds_alternative<Numbers>(result));
        const Numbers& got = std::get<Numbers>(result);
        int good = 0;
        for (std::size_t pair = 0; pair < 4; pair += 2) {
            const double angle = got[pair + 1] * kRadians;
            EXPECT_GE(got[pair], 0);
            const bool x = std::abs(row.a * got[pair] + row.b * std::cos(angle) + row.c) < kTolerance;
            const bool y = std::abs(row.d * got[pair] + row.e * std::sin(angle) + row.f) < kTolerance;
            good += x && y;
        }
        EXPECT_GE(good, 1) << row.a;
    }
}

TEST(Solve2, TurnsANegativeMagnitudeOverWithItsAngle) {
    // u + 20 cos t = 0, 20 sin t = 10: t = 30 gives u = -17.32, turned over to 17.32 at 210 = -150 degrees.
    const double u = 20 * std::cos(30 * kRadians);
    ExpectNumbers({kMagnitudeAndAngle, 1, 20, 0, 0, 20, -10, {u, -150, u, 150}});
    // 20 cos t = -10, -u + 20 sin t = 0: t = -120 gives u = -17.32, turned over to 60 degrees.
    ExpectNumbers({kMagnitudeAndAngle, 0, 20, 10, -1, 20, 0, {u, 120, u, 60}});
}

TEST(Solve2, GivesTwoAnglesSecondRootFirst) {
    // 3 cos a + 4 cos b = 5, 3 sin a + 4 sin b = 0: the 3-4-5 triangle and its mirror image.
    const double alpha = std::acos(0.6) / kRadians;
    const double beta = std::acos(0.8) / kRadians;
    ExpectNumbers({kTwoAngles, 3, 4, -5, 3, 4, 0, {alpha, -beta, -alpha, beta}});
}

TEST(Solve2, GivesTheMagnitudeSharedByTwoForces) {
    // u cos t = 10, u + u sin t = 10: u = 10 at 0 degrees. The other root, -90, gets its magnitude from the
    // cosine.
    ExpectNumbers({kSharedMagnitude, 0, 1, -10, 1, 1, -10, {10, 0, 10, -90}});
}

TEST(Solve2, RepeatsTheOneMagnitudeThatIsFound) {
    // Ropes at 150 and 30 degrees: along x they cancel, so the first root has no magnitude by the equation of
    // x.
    const double c = std::cos(30 * kRadians);
    const auto result = Solve2(kSharedMagnitude, -c, 1, 0, 0.5, 1, -100);
    ASSERT_TRUE(std::holds_alternative<Numbers>(result));
    const Numbers& got = std::get<Numbers>(result);
    EXPECT_EQ(got[0], got[2]);
    EXPECT_EQ(got[1], got[3]);
}

struct RefusedRow {
    int kind;
    double a, b, c, d, e, f;
    const char* text;
};

TEST(Solve2, SaysWhyThereIsNoResult) {
    const RefusedRow rows[] = {
        {0, 1, 1, 1, 1, 1, 1, "Error en los datos."},
        {5, 1, 1, 1, 1, 1, 1, "Error en los datos."},
        {kLinear, 1, 2, 3, 2, 4, 5, "El determinante del sistema es cero."},
        {kLinear, 0, 0, 3, 0, 0, 5, "El determinante del sistema es cero."},
        {kLinear, 1e-3, 0, 3, 0, 1e-3, 5,
         "El determinante del sistema es cero."},  // 1e-6 itself counts as zero
        {kMagnitudeAndAngle, 1, 0, 3, 1, 2, 5, "No resuelvo este caso."},
        {kMagnitudeAndAngle, 1, 2, 3, 1, 1e-6, 5, "No resuelvo este caso."},
        {kMagnitudeAndAngle, 0, 2, 3, 0, 2, 5, "Error en los datos."},
        {kMagnitudeAndAngle, 0, 20, 30, 1, 20, 0, "No existe solución."},
        {kMagnitudeAndAngle, 1, 20, 0, 0, 20, -30, "No existe solución."},
        {kMagnitudeAndAngle, 0.6, 1, 0, 0.8, 1, -100, "No existe solución."},
        {kTwoAngles, 1, 2, 10, 1, 2, 0, "No existe solución."},
        {kSharedMagnitude, 2, 1, 10, 0, 1, 10, "No existe solución."},
        {kSharedMagnitude, 0, 0, 0, 0, 0, 0, "No existe solución."},
    };
    for (const RefusedRow& row : rows) {
        const auto result = Solve2(row.kind, row.a, row.b, row.c, row.d, row.e, row.f);
        ASSERT_TRUE(std::holds_alternative<text::Refusal>(result)) << row.kind << ' ' << row.text;
        EXPECT_EQ(std::get<text::Refusal>(result).text, row.text) << row.kind;
    }
}

}  // namespace
}  // namespace tavrelo::mechanics::particle
