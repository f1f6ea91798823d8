// Thousands of random throws: from every pair of data of every kind of equations the launch is found again,
// and whatever is found meets the data.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "mechanics/projectile/parameters.h"
#include "mechanics/projectile/quartic.h"
#include "throw.h"

namespace tavrelo::mechanics::projectile {
namespace {

using testing::FromPolar;
using testing::Meets;
using testing::Near;
using testing::PairAt;
using testing::Throw;
using testing::Throws;

constexpr int kRounds = 3000;
constexpr int kDecimals = 3;

std::string Describe(const Throw& motion, const PairData& data) {
    return "pair " + std::to_string(static_cast<int>(data.pair)) + " t0 " + std::to_string(motion.t0) +
           " v0 " + std::to_string(motion.V0()) + " theta " + std::to_string(motion.Theta()) + " t " +
           std::to_string(data.t) + " x " + std::to_string(data.x) + " y " + std::to_string(data.y) + " v " +
           std::to_string(data.speed) + " al " + std::to_string(data.angle);
}

bool Holds(const std::vector<double>& values, double value) {
    return std::ranges::any_of(values, [value](double each) { return Near(each, value, 1e-4); });
}

std::vector<double> ValuesOf(const ParameterValues& found) {
    const auto* values = std::get_if<std::vector<double>>(&found);
    return values ? *values : std::vector<double>{};
}

class EveryPair : public ::testing::TestWithParam<int> {
  protected:
    Pair ThePair() const { return static_cast<Pair>(GetParam()); }
    unsigned Seed() const { return 100u + static_cast<unsigned>(GetParam()); }
};
INSTANTIATE_TEST_SUITE_P(Pairs, EveryPair, ::testing::Range(0, kPairs));

TEST_P(EveryPair, FindsTheSpeed) {
    Throws throws(Seed());
    for (int i = 0; i < kRounds; ++i) {
        const Throw motion = throws.Next();
        const PairData data = PairAt(ThePair(), motion, throws.TimeIn(motion));
        const Launch launch = {SpeedMode::Polar, motion.From(), {}, motion.Theta()};
        const auto values = ValuesOf(SpeedsFor(launch, data));
        ASSERT_TRUE(Holds(values, motion.V0())) << Describe(motion, data);
        ASSERT_LE(values.size(), 2u);
        for (const double speed : values) {
            ASSERT_GT(speed, 0.0);
            ASSERT_TRUE(Meets(FromPolar(motion.From(), speed, motion.Theta()), data, true))
                << speed << ' ' << Describe(motion, data);
        }
    }
}

TEST_P(EveryPair, FindsTheAngle) {
    if (ThePair() == Pair::YSpeed)
        GTEST_SKIP() << "the speed at a height is the same for every angle";
    Throws throws(Seed());
    int with_two = 0;
    for (int i = 0; i < kRounds; ++i) {
        const Throw motion = throws.Next();
        const PairData data = PairAt(ThePair(), motion, throws.TimeIn(motion));
        const Launch launch = {SpeedMode::Polar, motion.From(), motion.V0(), {}};
        const auto values = ValuesOf(AnglesFor(launch, data));
        ASSERT_TRUE(Holds(values, motion.Theta())) << Describe(motion, data);
        ASSERT_LE(values.size(), 2u);
        with_two += values.size() == 2 ? 1 : 0;
        for (const double angle : values) {
            ASSERT_TRUE(-180.0 < angle && angle <= 180.0) << angle;
            ASSERT_TRUE(Meets(FromPolar(motion.From(), motion.V0(), angle), data, false))
                << angle << ' ' << Describe(motion, data);
        }
    }
    // The two directions of a sine, a cosine or a target; only the direction at the point may rule one out.
    if (!HoldsAngle(ThePair())) {
        EXPECT_GT(with_two, kRounds * 9 / 10);
    }
}

TEST_P(EveryPair, FindsTheHorizontalComponent) {
    if (ThePair() == Pair::TimeY)
        GTEST_SKIP() << "says nothing of the horizontal component";
    Throws throws(Seed());
    int searched = 0;
    int found = 0;
    for (int i = 0; i < kRounds; ++i) {
        const Throw motion = throws.Next();
        const PairData data = PairAt(ThePair(), motion, throws.TimeIn(motion));
        const Launch launch = {SpeedMode::Components, motion.From(), {}, motion.vy};
        std::vector<double> values;
        if (ThePair() == Pair::XSpeed) {
            const auto quartic = QuarticFor(launch, data);
            if (motion.vx < 0.0)
                continue;  // the search goes from 0 up
            values = RootsUpTo(std::get<Quartic>(quartic), 70.0);
            found += Holds(values, motion.vx) ? 1 : 0;
            ++searched;
        } else {
            values = ValuesOf(HorizontalSpeedsFor(1, launch, data, kDecimals));
            ASSERT_LE(values.size(), 2u);
            ASSERT_TRUE(Holds(values, motion.vx)) << Describe(motion, data);
        }
        for (const double vx : values)
            ASSERT_TRUE(Meets({motion.t0, motion.x0, motion.y0, vx, motion.vy}, data, true))
                << vx << ' ' << Describe(motion, data);
    }
    // Two roots in one step of the scan show no change of sign: they are missed, never wrong.
    EXPECT_GE(found, searched * 9 / 10);
}

TEST_P(EveryPair, FindsTheVerticalComponent) {
    if (ThePair() == Pair::TimeX)
        GTEST_SKIP() << "says nothing of the vertical component";
    Throws throws(Seed());
    for (int i = 0; i < kRounds; ++i) {
        const Throw motion = throws.Next();
        const PairData data = PairAt(ThePair(), motion, throws.TimeIn(motion));
        const Launch launch = {SpeedMode::Components, motion.From(), motion.vx, {}};
        const auto values = ValuesOf(VerticalSpeedsFor(1, launch, data, kDecimals));
        ASSERT_TRUE(Holds(values, motion.vy)) << Describe(motion, data);
        ASSERT_LE(values.size(), 2u);
        for (const double vy : values)
            ASSERT_TRUE(Meets({motion.t0, motion.x0, motion.y0, motion.vx, vy}, data, true))
                << vy << ' ' << Describe(motion, data);
    }
}

/// Data that need not fit any throw: what is found meets them all the same.
TEST_P(EveryPair, NeverGivesAFalseValue) {
    Throws throws(Seed() + 50);
    for (int i = 0; i < kRounds; ++i) {
        const Throw motion = throws.Next();
        const PairData data = {ThePair(),
                               motion.t0 + throws.Between(-2, 6),
                               throws.Between(-60, 60),
                               throws.Between(-60, 120),
                               throws.Between(0, 60),
                               throws.Between(-179, 179)};
        const Start start = motion.From();
        for (const double speed : ValuesOf(SpeedsFor({SpeedMode::Polar, start, {}, motion.Theta()}, data)))
            ASSERT_TRUE(Meets(FromPolar(start, speed, motion.Theta()), data, true)) << Describe(motion, data);
        for (const double angle : ValuesOf(AnglesFor({SpeedMode::Polar, start, motion.V0(), {}}, data)))
            ASSERT_TRUE(Meets(FromPolar(start, motion.V0(), angle), data, false)) << Describe(motion, data);
        for (const double vx :
             ValuesOf(HorizontalSpeedsFor(1, {SpeedMode::Components, start, {}, motion.vy}, data, kDecimals)))
            ASSERT_TRUE(Meets({start.t, start.x, start.y, vx, motion.vy}, data, true))
                << Describe(motion, data);
        for (const double vy :
             ValuesOf(VerticalSpeedsFor(1, {SpeedMode::Components, start, motion.vx, {}}, data, kDecimals)))
            ASSERT_TRUE(Meets({start.t, start.x, start.y, motion.vx, vy}, data, true))
                << Describe(motion, data);
    }
}

/// The same from millimetres to hundreds of kilometres. Data of few digits then do not fit to the last place:
/// judged by a thousandth.
TEST_P(EveryPair, NeverGivesAFalseValueAtAnyScale) {
    Throws throws(Seed() + 90);
    for (int i = 0; i < kRounds; ++i) {
        const double length = std::pow(10.0, throws.Between(-3, 5));
        const double speed_scale = std::sqrt(9.8 * length);
        const double time_scale = std::sqrt(length / 9.8);
        const Start start = {throws.Between(-1, 1) * time_scale, throws.Between(-1, 1) * length,
                             throws.Between(-1, 1) * length};
        const Throw motion =
            FromPolar(start, throws.Between(0.1, 3) * speed_scale, throws.Between(-179, 179));
        const PairData data = {ThePair(),
                               start.t + throws.Between(-1, 4) * time_scale,
                               start.x + throws.Between(-3, 3) * length,
                               start.y + throws.Between(-3, 3) * length,
                               throws.Between(0, 3) * speed_scale,
                               throws.Between(-179, 179)};
        constexpr double kThousandth = 1e-3;
        for (const double speed : ValuesOf(SpeedsFor({SpeedMode::Polar, start, {}, motion.Theta()}, data)))
            ASSERT_TRUE(Meets(FromPolar(start, speed, motion.Theta()), data, true, kThousandth))
                << Describe(motion, data);
        for (const double angle : ValuesOf(AnglesFor({SpeedMode::Polar, start, motion.V0(), {}}, data)))
            ASSERT_TRUE(Meets(FromPolar(start, motion.V0(), angle), data, false, kThousandth))
                << Describe(motion, data);
        for (const double vx :
             ValuesOf(HorizontalSpeedsFor(1, {SpeedMode::Components, start, {}, motion.vy}, data, kDecimals)))
            ASSERT_TRUE(Meets({start.t, start.x, start.y, vx, motion.vy}, data, true, kThousandth))
                << Describe(motion, data);
        for (const double vy :
             ValuesOf(VerticalSpeedsFor(1, {SpeedMode::Components, start, motion.vx, {}}, data, kDecimals)))
            ASSERT_TRUE(Meets({start.t, start.x, start.y, motion.vx, vy}, data, true, kThousandth))
                << Describe(motion, data);
    }
}

}  // namespace
}  // namespace tavrelo::mechanics::projectile
