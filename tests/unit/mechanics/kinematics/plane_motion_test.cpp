#include "mechanics/kinematics/plane_motion.h"

#include <gtest/gtest.h>

#include <cmath>

#include "../../failure_code.h"
#include "numeric/angles.h"
#include "numeric/checked.h"

namespace tavrelo::mechanics::kinematics {
namespace {

using numeric::FailureCode;
using testing::FailureOf;

constexpr double kRadians = 1;
constexpr double kDegrees = numeric::kRadiansPerDegree;

struct Row {
    const char* name;
    PlaneMotion motion;
    double unit, t;
    PlaneState::Pair position, velocity, acceleration;
};

TEST(PlaneAt, FollowsTheClosedForms) {
    const double half_pi = numeric::kPi / 2;
    const Row rows[] = {
        {"throw", {Way::Plane, "3*t", "4*t-4.9*t^2"}, kRadians, 1, {3, -0.9}, {3, -5.8}, {0, -9.8}},
        // A circle of radius 2 with w = 3: speed 6, acceleration 18 towards the centre.
        {"circle",
         {Way::Plane, "2*cos(3*t)", "2*sen(3*t)"},
         kRadians,
         1,
         {2 * std::cos(3), 2 * std::sin(3)},
         {-6 * std::sin(3), 6 * std::cos(3)},
         {-18 * std::cos(3), -18 * std::sin(3)}},
        // The same motion in polar form.
        {"polar circle", {Way::Polar, "2", "3*t"}, kRadians, 1, {2, 3}, {0, 6}, {-18, 0}},
        // A quarter of a turn each second in degrees: w = pi / 2.
        {"polar in degrees",
         {Way::Polar, "2", "90*t"},
         kDegrees,
         1,
         {2, 90},
         {0, 2 * half_pi},
         {-2 * half_pi * half_pi, 0}},
        // r = t, theta = t: v_r = 1, v_t = t, a_r = -t, a_t = 2.
        {"spiral", {Way::Polar, "t", "t"}, kRadians, 2, {2, 2}, {1, 2}, {-2, 2}},
        // r = t^2, theta = t^2: v_t = 2 t^3, a_r = 2 - 4 t^4, a_t = 2 t^2 + 8 t^2.
        {"faster spiral", {Way::Polar, "t^2", "t^2"}, kRadians, 1, {1, 1}, {2, 2}, {-2, 10}},
    };
    for (const Row& row : rows) {
        const PlaneState state = PlaneAt(row.motion, row.t, row.unit);
        EXPECT_NEAR(state.position.first, row.position.first, 1e-9) << row.name;
        EXPECT_NEAR(state.position.second, row.position.second, 1e-9) << row.name;
        EXPECT_NEAR(state.velocity.first, row.velocity.first, 1e-6) << row.name;
        EXPECT_NEAR(state.velocity.second, row.velocity.second, 1e-6) << row.name;
        EXPECT_NEAR(state.acceleration.first, row.acceleration.first, 1e-4) << row.name;
        EXPECT_NEAR(state.acceleration.second, row.acceleration.second, 1e-4) << row.name;
    }
}

TEST(PlaneAt, RefusesWhatIsNoMotion) {
    EXPECT_EQ(FailureOf([] { PlaneAt({Way::Plane, "t", ""}, 1, kRadians); }), FailureCode::TypeMismatch);
    EXPECT_EQ(FailureOf([] {
                  PlaneAt({Way::Plane, "sqrt(t)", "t"}, 1, kRadians);
              }),
              FailureCode::TypeMismatch);
    EXPECT_EQ(FailureOf([] { PlaneAt({Way::Polar, "t", "t"}, 0, kRadians); }), FailureCode::DivisionByZero);
}

TEST(SamplePlane, TurnsPolarFormulasIntoAPath) {
    const Trajectory path = SamplePlane({Way::Polar, "2", "90*t"}, 4, 0, kDegrees);
    ASSERT_EQ(path.x.size(), 301u);
    for (std::size_t k = 0; k < path.x.size(); k += 25)
        EXPECT_NEAR(std::hypot(path.x[k], path.y[k]), 2, 1e-12);
    EXPECT_NEAR(path.x[75], 0, 1e-12);  // t = 1
    EXPECT_NEAR(path.y[75], 2, 1e-12);
    EXPECT_EQ(FailureOf([] {
                  SamplePlane({Way::Plane, "t", "t"}, 1, 1, kRadians);
              }),
              FailureCode::OutOfDomain);
}

}  // namespace
}  // namespace tavrelo::mechanics::kinematics
