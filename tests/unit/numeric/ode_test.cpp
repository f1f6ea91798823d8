#include "numeric/ode.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "../failure_code.h"

namespace tavrelo::numeric {
namespace {

using testing::FailureOf;
using Arguments = std::span<const double>;

const auto kGrowth = [](Arguments arguments) { return arguments[1]; };   // y' = y
const auto kSpring = [](Arguments arguments) { return -arguments[1]; };  // y'' = -y

auto PowerOfX(int power) {
    return [power](Arguments arguments) { return std::pow(arguments[0], power); };
}

TEST(OdeDerivs, HandsOverWhatTheOrderAsksFor) {
    const auto count = [](Arguments arguments) { return static_cast<double>(arguments.size()); };
    OdeState dydx = {-1, -1};
    OdeDerivs(count, 1, 5, {2, 3}, dydx);
    EXPECT_EQ(dydx, (OdeState{2, -1}));
    OdeDerivs(count, 2, 5, {2, 3}, dydx);
    EXPECT_EQ(dydx, (OdeState{3, 3}));
    const auto last = [](Arguments arguments) { return arguments[2] * 100 + arguments[0]; };
    OdeDerivs(last, 2, 5, {2, 3}, dydx);
    EXPECT_EQ(dydx, (OdeState{3, 305}));
}

TEST(OdeDerivs, AnyOtherOrderLeavesTheDerivatives) {
    OdeState dydx = {-1, -2};
    for (const int order : {0, 3, -1}) {
        OdeDerivs(kGrowth, order, 5, {2, 3}, dydx);
        EXPECT_EQ(dydx, (OdeState{-1, -2}));
        EXPECT_EQ(FailureOf([&] { RKCK(kGrowth, order, {}, {}, 0, 1); }), FailureCode::SubscriptRange);
        EXPECT_EQ(FailureOf([&] { RK4(kGrowth, order, {}, {}, 0, 1); }), FailureCode::SubscriptRange);
    }
}

TEST(RKCK, IntegratesFourthPowersAndSeesTheirErrorInTheFourthOrder) {
    for (int power = 0; power <= 4; ++power) {
        const CashKarpStep step = RKCK(PowerOfX(power), 1, {}, {power == 0 ? 1.0 : 0.0, 0}, 0, 2);
        EXPECT_NEAR(step.y[0], std::pow(2, power + 1) / (power + 1), 1e-13);
        // The published weights differ by -277/409600 on fourth powers, by 0 on lower ones.
        EXPECT_NEAR(step.error[0], power == 4 ? -277.0 / 409600 * 32 : 0, 1e-14);
    }
}

TEST(RKCK, OnGrowthIsItsPolynomialOfSixthDegree) {
    // In fractions from the published table: 1 + h + ... + h^5/120 + h^6/800; the error is
    // -277/1228800 h^5 + 277/1638400 h^6.
    const CashKarpStep step = RKCK(kGrowth, 1, {1, 0}, {1, 0}, 3, 0.5);
    EXPECT_NEAR(step.y[0], 1.6487174479166666, 1e-15);
    // Slopes of about 1.5 are known to 2e-16, and the weights of the error add up to 0.12 in size.
    EXPECT_NEAR(step.error[0], -4.402796427408854e-06, 3e-17);
}

TEST(RKCK, OnTheOscillatorIsTheSamePolynomialOfTheImaginaryUnit) {
    // y - i y' turns as exp(ih), so y and -y' are the real and the imaginary part of the polynomial at ih.
    const double h = 0.5;
    const CashKarpStep step = RKCK(kSpring, 2, {1, 0}, {0, -1}, 0, h);
    EXPECT_NEAR(step.y[0], 1 - h * h / 2 + std::pow(h, 4) / 24 - std::pow(h, 6) / 800, 1e-15);
    EXPECT_NEAR(step.y[1], -(h - std::pow(h, 3) / 6 + std::pow(h, 5) / 120), 1e-15);
}

/// y' = x^4 from 0 with the step h, accuracy eps and scale 1: the error of a step is 277/409600 |h|^5.
ControlledStep StepOnFourthPower(double h, double eps) {
    OdeState y{};
    double x = 0;
    const ControlledStep step = RKQS(PowerOfX(4), 1, y, {}, x, h, eps, {1, 1});
    EXPECT_EQ(x, step.done);
    EXPECT_NEAR(y[0], std::pow(x, 5) / 5, 1e-13);
    return step;
}

constexpr double kFourthPowerError = 277.0 / 409600;

TEST(RKQS, GrowsByTheFifthRootOfTheError) {
    const double ratio = kFourthPowerError * 32 / 0.1;
    const ControlledStep step = StepOnFourthPower(2, 0.1);
    EXPECT_EQ(step.done, 2);
    EXPECT_NEAR(step.next, 0.9 * 2 * std::pow(ratio, -0.2), 1e-12);
    // An error of a thousandth of what is allowed still grows by the root, 3.58 times.
    EXPECT_NEAR(StepOnFourthPower(2, kFourthPowerError * 32 * 1000).next, 1.8 * std::pow(1e-3, -0.2), 1e-12);
}

TEST(RKQS, GrowsAtMostFivefold) {
    const ControlledStep step = StepOnFourthPower(0.1, 0.1);
    EXPECT_EQ(step.done, 0.1);
    EXPECT_DOUBLE_EQ(step.next, 0.5);
}

TEST(RKQS, ShrinksByTheFourthRootOfTheError) {
    const double ratio = kFourthPowerError * 32 / 1e-3;
    EXPECT_NEAR(StepOnFourthPower(2, 1e-3).done, 0.9 * 2 * std::pow(ratio, -0.25), 1e-12);
    // far too long: no limit on the reduction
    const double far = kFourthPowerError * 1e10 / 1e-3;
    EXPECT_LT(StepOnFourthPower(100, 1e-3).done, 100 * 0.9 * std::pow(far, -0.25) * 1.0001);
}

TEST(RKQS, ANegativeStepShrinksTenTimesMore) {
    const double ratio = kFourthPowerError * 32 / 1e-3;
    EXPECT_NEAR(StepOnFourthPower(-2, 1e-3).done, -0.09 * 2 * std::pow(ratio, -0.25), 1e-12);
}

TEST(RKQS, AScaleOrAnAccuracyOfZeroFails) {
    OdeState y{};
    double x = 0;
    EXPECT_EQ(FailureOf([&] {
                  RKQS(PowerOfX(4), 1, y, {}, x, 1, 1e-3, {0, 1});
              }),
              FailureCode::DivisionByZero);
    EXPECT_EQ(FailureOf([&] { RKQS(PowerOfX(4), 1, y, {}, x, 1, 0, {1, 1}); }), FailureCode::DivisionByZero);
}

TEST(ODEInt, FollowsAnOscillatorInBothDirections) {
    for (const double end : {2 * std::numbers::pi, 1.0, -1.0, -10.0, 40.0}) {
        OdeState y = {1, 0};
        ASSERT_EQ(ODEInt(kSpring, 2, y, 0, end, 1e-8, 0.1, 0.001), OdeOutcome::Done);
        EXPECT_NEAR(y[0], std::cos(end), 1e-5) << end;
        EXPECT_NEAR(y[1], -std::sin(end), 1e-5) << end;
    }
}

TEST(ODEInt, FallsWithDrag) {
    // v' = g - k v: v = g/k (1 - exp(-k t)), y'' with y' in it.
    const auto fall = [](Arguments arguments) { return 9.8 - 0.5 * arguments[2]; };
    OdeState y{};
    ASSERT_EQ(ODEInt(fall, 2, y, 1, 4, 1e-8, 0.1, 0.001), OdeOutcome::Done);
    const double decay = std::exp(-1.5);
    EXPECT_NEAR(y[1], 19.6 * (1 - decay), 1e-5);
    EXPECT_NEAR(y[0], 19.6 * 3 - 39.2 * (1 - decay), 1e-5);
}

TEST(ODEInt, NoDistanceKeepsTheStart) {
    OdeState y = {3, 4};
    ASSERT_EQ(ODEInt(kSpring, 2, y, 2, 2, 1e-8, 0.1, 0.001), OdeOutcome::Done);
    EXPECT_EQ(y, (OdeState{3, 4}));
}

TEST(ODEInt, AfterAThousandStepsTheStartStays) {
    const auto fast = [](Arguments arguments) { return -1e8 * arguments[1]; };
    OdeState y = {1, 0};
    EXPECT_EQ(ODEInt(fast, 2, y, 0, 10, 1e-8, 0.1, 0.001), OdeOutcome::TooManySteps);
    EXPECT_EQ(y, (OdeState{1, 0}));
}

TEST(ODEInt, LiftsTooSmallAStepAndGoesOn) {
    // At the top of a cliff the error control asks for tiny steps; the least step carries on behind it.
    const auto cliff = [](Arguments arguments) { return arguments[0] < 1.5 ? 1.0 : 12.5; };
    OdeState y{};
    ASSERT_EQ(ODEInt(cliff, 1, y, 0, 3, 1e-5, 0.1, 0.001), OdeOutcome::Done);
    EXPECT_NEAR(y[0], 1.5 + 1.5 * 12.5, 1e-3);
    // With a least step as long as the way every step is tried in full length.
    OdeState coarse = {1, 0};
    int calls = 0;
    const auto growth = [&calls](Arguments arguments) { return ++calls, arguments[1]; };
    ASSERT_EQ(ODEInt(growth, 1, coarse, 0, 1, 1e-5, 1e-6, 1), OdeOutcome::Done);
    EXPECT_NEAR(coarse[0], std::numbers::e, 1e-4);
    EXPECT_LT(calls, 60);
}

TEST(ODEInt, BeginsWithTheFirstStepInItsDirection) {
    for (const double end : {3.0, -3.0}) {
        std::vector<double> places;
        const auto watched = [&places](Arguments arguments) { return places.push_back(arguments[0]), 1.0; };
        OdeState y{};
        ASSERT_EQ(ODEInt(watched, 1, y, 0, end, 1e-5, 0.1, 0.001), OdeOutcome::Done);
        EXPECT_NEAR(y[0], end, 1e-12);
        // Start and five stages a step; a constant slope has no error, so the steps are 0.1, 0.5 and the
        // rest.
        ASSERT_EQ(places.size(), 18u);
        EXPECT_NEAR(places[4], std::copysign(0.1, end), 1e-15);
        EXPECT_NEAR(places[6], std::copysign(0.1, end), 1e-15);
        EXPECT_NEAR(places[12], std::copysign(0.6, end), 1e-15);
    }
}

TEST(ODEInt, GivesUpAfterAThousandSteps) {
    // At this accuracy a step on y' = y is about 0.02 long, whatever y is.
    int calls = 0;
    const auto growth = [&calls](Arguments arguments) { return ++calls, arguments[1]; };
    OdeState y = {1, 0};
    EXPECT_EQ(ODEInt(growth, 1, y, 0, 10, 1e-12, 0.01, 1e-6), OdeOutcome::Done);
    EXPECT_NEAR(y[0] / std::exp(10), 1, 1e-10);
    y = {1, 0};
    calls = 0;
    EXPECT_EQ(ODEInt(growth, 1, y, 0, 40, 1e-12, 0.01, 1e-6), OdeOutcome::TooManySteps);
    EXPECT_EQ(y[0], 1);
    EXPECT_GE(calls, 6000);
    EXPECT_LT(calls, 6100);  // few steps are tried twice
}

TEST(ODEInt, LiftsASmallStepInItsDirection) {
    // Before the cliff the step is cut down below the least one, which must not lead back to the start.
    const auto cliff = [](Arguments arguments) { return arguments[0] > -1.5 ? 1.0 : 12.5; };
    OdeState y{};
    ASSERT_EQ(ODEInt(cliff, 1, y, 0, -3, 1e-5, 0.1, 0.001), OdeOutcome::Done);
    EXPECT_NEAR(y[0], -1.5 - 1.5 * 12.5, 1e-3);
}

TEST(ODEInt, PassesFailuresOn) {
    const auto pole = [](Arguments arguments) { return CheckedDivide(1, arguments[0]); };
    OdeState y{};
    EXPECT_EQ(FailureOf([&] { (void)ODEInt(pole, 1, y, 0, 1, 1e-5, 0.1, 0.001); }),
              FailureCode::DivisionByZero);
    EXPECT_EQ(FailureOf([&] { (void)ODEInt(kGrowth, 3, y, 0, 1, 1e-5, 0.1, 0.001); }),
              FailureCode::SubscriptRange);
    const auto square = [](Arguments arguments) { return arguments[1] * arguments[1]; };
    y = {1e200, 0};
    EXPECT_EQ(FailureOf([&] { (void)ODEInt(square, 1, y, 0, 1, 1e-5, 0.1, 0.001); }), FailureCode::Overflow);
}

TEST(IntegrateOde, KnownIntegralsInEitherOrderOfTheLimits) {
    for (const auto& [a, b] : {std::pair(1.0, 4.0), std::pair(4.0, 1.0)}) {
        const OdeIntegral integral = IntegrateOde(PowerOfX(2), a, b);
        EXPECT_EQ(integral.outcome, OdeOutcome::Done);
        EXPECT_NEAR(integral.value, 21, 21e-5);
    }
    EXPECT_EQ(IntegrateOde(PowerOfX(2), 3, 3).value, 0);
    const auto sine = [](Arguments arguments) { return std::sin(arguments[0]); };
    EXPECT_NEAR(IntegrateOde(sine, 0, 50).value, 1 - std::cos(50), 1e-3);
    EXPECT_NEAR(IntegrateOde(sine, 0, 50, 1e-9).value, 1 - std::cos(50), 1e-7);
}

TEST(IntegrateOde, HandsOverTheIntegralSoFarAsSecondArgument) {
    const auto grows = [](Arguments arguments) { return 1 + arguments[1]; };
    EXPECT_NEAR(IntegrateOde(grows, 0, 1).value, std::numbers::e - 1, 1e-5);
}

TEST(IntegrateOde, AJumpFromNothingIsMadeFromTheOtherLimit) {
    const auto late = [](Arguments arguments) { return arguments[0] < 1.5 ? 0.0 : 12.5; };
    for (const auto& [a, b] : {std::pair(0.0, 3.0), std::pair(3.0, 0.0)}) {
        const OdeIntegral integral = IntegrateOde(late, a, b, 1e-9);
        EXPECT_EQ(integral.outcome, OdeOutcome::Done);
        EXPECT_NEAR(integral.value, 18.75, 1e-4);
    }
    const auto early = [](Arguments arguments) { return arguments[0] < 1.5 ? 12.5 : 0.0; };
    EXPECT_NEAR(IntegrateOde(early, 0, 3, 1e-9).value, 18.75, 1e-4);
}

TEST(IntegrateOde, AJumpInsideNothingIsTooManySteps) {
    const auto inside = [](Arguments arguments) { return arguments[0] > 1 && arguments[0] < 2 ? 12.5 : 0.0; };
    const OdeIntegral integral = IntegrateOde(inside, 0, 3);
    EXPECT_EQ(integral.outcome, OdeOutcome::TooManySteps);
    EXPECT_EQ(integral.value, 0);
}

TEST(RK4, OnGrowthIsTheSeriesToTheFourthPower) {
    const double h = 0.5;
    EXPECT_NEAR(RK4(kGrowth, 1, {2, 0}, {2, 0}, 0, h)[0],
                2 * (1 + h + h * h / 2 + h * h * h / 6 + h * h * h * h / 24), 1e-15);
    const OdeState turned = RK4(kSpring, 2, {1, 0}, {0, -1}, 0, h);
    EXPECT_NEAR(turned[0], 1 - h * h / 2 + std::pow(h, 4) / 24, 1e-15);
    EXPECT_NEAR(turned[1], -(h - h * h * h / 6), 1e-15);
}

TEST(RKDumb, TakesEqualStepsAndKeepsThemAll) {
    const OdeTable table = RKDumb(kSpring, 2, {1, 0}, 0, 3, 300);
    ASSERT_EQ(table.x.size(), 301u);
    ASSERT_EQ(table.y[0].size(), 301u);
    ASSERT_EQ(table.y[1].size(), 301u);
    EXPECT_EQ(table.x[0], 0);
    EXPECT_EQ(table.y[0][0], 1);
    for (const std::size_t k : {1u, 150u, 300u}) {
        const double x = 0.01 * static_cast<double>(k);
        EXPECT_NEAR(table.x[k], x, 1e-12);
        EXPECT_NEAR(table.y[0][k], std::cos(x), 1e-9);
        EXPECT_NEAR(table.y[1][k], -std::sin(x), 1e-9);
    }
}

TEST(RKDumb, GoesBackwardsToo) {
    const OdeTable table = RKDumb(kGrowth, 1, {1, 0}, 0, -1, 10);
    ASSERT_EQ(table.x.size(), 11u);
    EXPECT_NEAR(table.x.back(), -1, 1e-12);
    EXPECT_NEAR(table.y[0].back(), std::exp(-1), 1e-6);
    EXPECT_EQ(table.y[1].back(), 0);
}

TEST(RKDumb, StopsWhereXNoLongerMoves) {
    EXPECT_EQ(RKDumb(kGrowth, 1, {1, 0}, 0, 1e-8, 1).x.size(), 1u);
    EXPECT_EQ(RKDumb(kGrowth, 1, {1, 0}, 0, 3e-8, 2).x.size(), 3u);
    EXPECT_EQ(RKDumb(kGrowth, 1, {1, 0}, 2, 2, 300).x.size(), 1u);
    EXPECT_EQ(RKDumb(kGrowth, 1, {1, 0}, 0, 1, -5).x.size(), 1u);
    EXPECT_EQ(FailureOf([] { RKDumb(kGrowth, 1, {1, 0}, 0, 1, 0); }), FailureCode::DivisionByZero);
}

}  // namespace
}  // namespace tavrelo::numeric
