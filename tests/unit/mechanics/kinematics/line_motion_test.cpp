#include "mechanics/kinematics/line_motion.h"

#include <gtest/gtest.h>

#include <algorithm>
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

LineState StateAt(const LineMotion& motion, double t) {
    return std::get<LineState>(LineAt(motion, t, kRadians));
}

/// Closed forms: x, v and a of each motion by hand.
struct Row {
    const char* name;
    LineMotion motion;
    double t, x, v;
    std::optional<double> a;
    double tolerance;
};

TEST(LineAt, FollowsTheClosedForms) {
    const double e = std::exp(-1.0);
    const Row rows[] = {
        // x = t^3 - 6 t^2 + 9 t: x' = 3 t^2 - 12 t + 9, x'' = 6 t - 12.
        {"cubic", {Way::Position, "t^3-6*t^2+9*t", {}}, 4, 4, 9, 12, 1e-7},
        {"cubic before zero", {Way::Position, "t^3", {}}, -2, -8, 12, -12, 1e-7},
        {"root near its edge", {Way::Position, "r(t)", {}}, 0.25, 0.5, 1, -2, 1e-5},
        // x' = 2 t from x(0) = 1: x = 1 + t^2.
        {"velocity of time", {Way::Velocity, "2*t", {0, 1, 0}}, 3, 10, 6, std::nullopt, 1e-7},
        // x' = -x / 2 from x(0) = 8: x = 8 exp(-t / 2).
        {"velocity of place", {Way::Velocity, "-0.5*x", {0, 8, 0}}, 2, 8 * e, -4 * e, std::nullopt, 1e-7},
        {"backwards", {Way::Velocity, "-0.5*x", {2, 8 * e, 0}}, 0, 8, -4, std::nullopt, 1e-7},
        {"at the start", {Way::Velocity, "3+x", {5, 4, 0}}, 5, 4, 7, std::nullopt, 0},
        // x'' = -4 x from x = 1 at rest: x = cos 2 t.
        {"spring",
         {Way::Acceleration, "-4*x", {0, 1, 0}},
         1,
         std::cos(2),
         -2 * std::sin(2),
         -4 * std::cos(2),
         1e-6},
        // Ten periods of it.
        {"spring for long", {Way::Acceleration, "-4*x", {0, 1, 0}}, 10 * numeric::kPi, 1, 0, -4, 1e-4},
        // x'' = g - k v with g = 9.8, k = 0.5: v = 19.6 (1 - exp(-t / 2)), x = 19.6 (t - 2 (1 - exp(-t /
        // 2))).
        {"drag",
         {Way::Acceleration, "9.8-0.5*v", {0, 0, 0}},
         2,
         19.6 * (2 - 2 * (1 - e)),
         19.6 * (1 - e),
         9.8 * e,
         1e-6},
        // x'' = g - k v^2 with k = 0.02: v = sqrt(g / k) tanh(sqrt(g k) t), x = ln cosh(sqrt(g k) t) / k.
        {"quadratic drag",
         {Way::Acceleration, "9.8-0.02*v^2", {0, 0, 0}},
         3,
         std::log(std::cosh(std::sqrt(0.196) * 3)) / 0.02,
         std::sqrt(490) * std::tanh(std::sqrt(0.196) * 3),
         9.8 / std::pow(std::cosh(std::sqrt(0.196) * 3), 2),
         1e-6},
    };
    for (const Row& row : rows) {
        const LineState state = StateAt(row.motion, row.t);
        EXPECT_EQ(state.t, row.t) << row.name;
        EXPECT_NEAR(state.x, row.x, row.tolerance) << row.name;
        EXPECT_NEAR(state.v, row.v, row.tolerance) << row.name;
        ASSERT_EQ(state.a.has_value(), row.a.has_value()) << row.name;
        EXPECT_NEAR(state.a.value_or(0), row.a.value_or(0), row.tolerance * 10) << row.name;
    }
}

/// In degrees the sine takes t as degrees, so its slope at 60 degrees is k cos 60, k = pi / 180.
TEST(LineAt, TakesTheAngleUnitInForce) {
    const auto state = std::get<LineState>(LineAt({Way::Position, "sen(t)", {}}, 60, kDegrees));
    EXPECT_NEAR(state.x, std::sqrt(3.0) / 2, 1e-12);
    EXPECT_NEAR(state.v, kDegrees / 2, 1e-9);
}

TEST(LineAt, RefusesWhatIsNoMotion) {
    struct Refused {
        LineMotion motion;
        double t;
        FailureCode code;
    };
    const Refused rows[] = {
        {{Way::Position, "", {}}, 1, FailureCode::TypeMismatch},
        {{Way::Position, "  ", {}}, 1, FailureCode::TypeMismatch},
        {{Way::Position, "t+", {}}, 1, FailureCode::TypeMismatch},
        {{Way::Position, "t*", {}}, 1, FailureCode::TypeMismatch},
        {{Way::Position, "w+t", {}}, 1, FailureCode::TypeMismatch},
        {{Way::Position, "T", {}}, 1, FailureCode::TypeMismatch},
        {{Way::Position, "t+y", {}}, 1, FailureCode::TypeMismatch},
        {{Way::Velocity, "sqrt(x)", {}}, 1, FailureCode::TypeMismatch},
        {{Way::Velocity, "x+z", {}}, 1, FailureCode::TypeMismatch},
        {{Way::Position, "t^2", {}}, 0, FailureCode::DivisionByZero},
        {{Way::Position, "1/(t-2)", {}}, 2, FailureCode::DivisionByZero},
        {{Way::Acceleration, "ln(-x)", {0, 1, 0}}, 1, FailureCode::OutOfDomain},
    };
    for (const Refused& row : rows)
        EXPECT_EQ(FailureOf([&] { LineAt(row.motion, row.t, kRadians); }), row.code) << row.motion.formula;
}

/// x' = x^2 from x(0) = 1 is 1 / (1 - t): it never reaches t = 1.
TEST(LineAt, EndsWhereTheMotionRunsAway) {
    const auto outcome = [] {
        try {
            return LineAt({Way::Velocity, "x^2", {0, 1, 0}}, 2, kRadians).index();
        } catch (const numeric::RuntimeFailure&) {
            return std::size_t{1};
        }
    }();
    EXPECT_EQ(outcome, 1u);
}

double Largest(const std::vector<double>& values) { return *std::ranges::max_element(values); }
double Least(const std::vector<double>& values) { return *std::ranges::min_element(values); }

LineCurves Curves(const LineMotion& motion, double t0, double t1, const CurveChoice& choice) {
    return std::get<LineCurves>(SampleLine(motion, t0, t1, choice, kRadians));
}

/// x = t^3 - 6 t^2 + 9 t from 0 to 4: largest 4 at t = 1 and 4, least 0; v from -3 to 9, a from -12 to 12.
TEST(SampleLine, SamplesAGivenPosition) {
    const LineCurves curves = Curves({Way::Position, "t^3-6*t^2+9*t", {}}, 0, 4, {true, true, true});
    ASSERT_EQ(curves.t.size(), 301u);
    EXPECT_EQ(curves.t.front(), 0);
    EXPECT_EQ(curves.t.back(), 4);
    EXPECT_NEAR(Largest(curves.x), 4, 1e-9);
    EXPECT_NEAR(Least(curves.x), 0, 1e-9);
    EXPECT_NEAR(Least(curves.v), -3, 1e-6);
    EXPECT_NEAR(Largest(curves.v), 9, 1e-6);
    EXPECT_NEAR(Least(curves.a), -12, 1e-4);
    EXPECT_NEAR(Largest(curves.a), 12, 1e-4);
}

/// The spring started at t = 0 and drawn from t = 1 to 3, in either order.
TEST(SampleLine, CarriesTheStartToTheFirstTime) {
    const LineMotion spring = {Way::Acceleration, "-4*x", {0, 1, 0}};
    for (const auto& [t0, t1] : {std::pair{1.0, 3.0}, std::pair{3.0, 1.0}}) {
        const LineCurves curves = Curves(spring, t0, t1, {true, true, true});
        for (std::size_t k = 0; k < curves.t.size(); k += 50) {
            const double t = curves.t[k];
            EXPECT_NEAR(curves.x[k], std::cos(2 * t), 1e-6);
            EXPECT_NEAR(curves.v[k], -2 * std::sin(2 * t), 1e-6);
            EXPECT_NEAR(curves.a[k], -4 * std::cos(2 * t), 1e-6);
        }
    }
}

/// x' = -x / 2: the acceleration along the motion is x / 4.
TEST(SampleLine, FindsTheAccelerationOfAGivenVelocity) {
    const LineCurves curves = Curves({Way::Velocity, "-0.5*x", {0, 8, 0}}, 0, 3, {true, true, true});
    for (std::size_t k = 0; k < curves.t.size(); k += 60)
        EXPECT_NEAR(curves.a[k], curves.x[k] / 4, 1e-7);
}

TEST(SampleLine, KeepsOnlyTheCurvesThatAreWanted) {
    const LineCurves curves = Curves({Way::Velocity, "2*t", {0, 1, 0}}, 0, 1, {false, true, false});
    EXPECT_TRUE(curves.x.empty());
    EXPECT_EQ(curves.v.size(), curves.t.size());
    EXPECT_TRUE(curves.a.empty());
    EXPECT_EQ(FailureOf([] { Curves({Way::Position, "t", {}}, 2, 2, {true}); }), FailureCode::OutOfDomain);
    EXPECT_EQ(FailureOf([] {
                  Curves({Way::Position, "ln(t)", {}}, -1, 2, {true});
              }),
              FailureCode::OutOfDomain);
}

}  // namespace
}  // namespace tavrelo::mechanics::kinematics
