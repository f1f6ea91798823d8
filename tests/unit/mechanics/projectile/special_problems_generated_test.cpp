// Thousands of random special problems: what is found satisfies both motions, and the motion that the problem
// was made from is found again.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "mechanics/projectile/collision.h"
#include "mechanics/projectile/crossing.h"
#include "mechanics/projectile/fitting.h"
#include "mechanics/projectile/intercept.h"
#include "mechanics/projectile/point_substitution.h"
#include "mechanics/projectile/tan_systems.h"
#include "throw.h"

namespace tavrelo::mechanics::projectile {
namespace {

using testing::FromPolar;
using testing::Near;
using testing::Throw;
using testing::Throws;

constexpr int kRounds = 4000;
constexpr int kDecimals = 3;
/// Decimals for which a flight keeps nearly all digits: the comparison is with the exact motion.
constexpr int kManyDecimals = 12;

Equations Plant(const Throw& motion, int decimals = kManyDecimals) {
    const Launch launch = {SpeedMode::Components, motion.From(), motion.vx, motion.vy};
    return std::get<Planted>(PlantLaunch(1, launch, decimals)).equations;
}
Throw Thrown(const Launch& launch) { return FromPolar(*launch.start, *launch.first, *launch.second); }

const Worked* WorkedIn(const WorkedOrRefusal& outcome) { return std::get_if<Worked>(&outcome); }

bool SameLaunch(const Throw& a, const Throw& b, double tolerance = 1e-5) {
    return Near(a.vx, b.vx, tolerance) && Near(a.vy, b.vy, tolerance);
}

TEST(Completion, EveryDatumFindsItsPoint) {
    Throws throws(1);
    for (int i = 0; i < kRounds; ++i) {
        const Throw motion = throws.Next();
        const double t = throws.TimeIn(motion);
        const double d = throws.Between(0.1, 3);
        const Flight flight = Plant(motion).flight;
        const PointDatum data[] = {{Datum::Time, t, 0, 0},
                                   {Datum::X, motion.X(t), 0, 0},
                                   {Datum::Y, motion.Y(t), 0, 0},
                                   {Datum::Vy, motion.Vy(t), 0, 0},
                                   {Datum::Angle, motion.Angle(t), 0, 0},
                                   {Datum::Increments, 0, d, motion.Y(t) - motion.Y(t - d)},
                                   {Datum::Speed, motion.V(t), 0, 0}};
        for (const PointDatum& datum : data) {
            const auto found = StatesWith(flight, datum);
            const auto* states = std::get_if<std::vector<State>>(&found);
            ASSERT_NE(states, nullptr) << static_cast<int>(datum.datum);
            // A double root, at the top, has half the digits.
            ASSERT_TRUE(std::ranges::any_of(*states,
                                            [t](const State& state) { return std::abs(state.t - t) < 1e-3; }))
                << static_cast<int>(datum.datum) << " t " << t;
            for (const State& state : *states) {
                ASSERT_TRUE(Near(state.x, motion.X(state.t)) && Near(state.y, motion.Y(state.t)));
                ASSERT_TRUE(Near(state.velocity.x, motion.vx) && Near(state.velocity.y, motion.Vy(state.t)));
                ASSERT_TRUE(datum.datum != Datum::Y || Near(state.y, datum.value));
                ASSERT_TRUE(datum.datum != Datum::Speed || Near(motion.V(state.t), datum.value));
            }
        }
    }
}

// What three decimals keep, six places, moves a throw of some seconds by less than a thousandth.
TEST(Completion, WorkingPlacesAreEnoughForWhatIsShown) {
    Throws throws(2);
    for (int i = 0; i < kRounds; ++i) {
        const Throw motion = throws.Next();
        const double t = throws.TimeIn(motion);
        const State state = StateAt(Plant(motion, kDecimals).flight, t);
        ASSERT_NEAR(state.x, motion.X(t), 2e-5);
        ASSERT_NEAR(state.y, motion.Y(t), 2e-5);
    }
}

TEST(CrossTrajectories, MeetsBothMotions) {
    Throws throws(3);
    int crossed = 0;
    for (int i = 0; i < kRounds; ++i) {
        const Throw first = throws.Next();
        const Throw second = throws.Next();
        if (std::abs(first.vx) < 1 || std::abs(second.vx) < 1)
            continue;
        const auto found = CrossTrajectories(Plant(first, kDecimals), Plant(second, kDecimals));
        const auto* crossings = std::get_if<std::vector<Crossing>>(&found);
        if (!crossings)
            continue;
        ++crossed;
        for (const Crossing& each : *crossings) {
            ASSERT_TRUE(Near(first.X(each.first_time), each.x) && Near(second.X(each.second_time), each.x));
            ASSERT_TRUE(Near(first.Y(each.first_time), each.y, 1e-4));
            ASSERT_TRUE(Near(second.Y(each.second_time), each.y, 1e-4));
        }
    }
    EXPECT_GT(crossed, kRounds / 2);
}

// A throw made to be where the first one is at some time: it is told as a collision.
TEST(CrossTrajectories, TellsEveryCollision) {
    Throws throws(4);
    for (int i = 0; i < kRounds; ++i) {
        const Throw first = throws.Next();
        Throw second = throws.Next();
        const double t = std::max(first.t0, second.t0) + throws.Between(0.5, 4);
        const double d = t - second.t0;
        second.vx = (first.X(t) - second.x0) / d;
        second.vy = (first.Y(t) - second.y0) / d + 4.9 * d;
        if (std::abs(first.vx) < 1 || std::abs(second.vx) < 1 || Near(first.vx, second.vx, 0.01))
            continue;
        const auto found = CrossTrajectories(Plant(first, kDecimals), Plant(second, kDecimals));
        const auto& crossings = std::get<std::vector<Crossing>>(found);
        ASSERT_TRUE(std::ranges::any_of(crossings, &Crossing::IsCollision));
    }
}

TEST(RangeOnPlane, MeetsTheLineAndTheMotion) {
    Throws throws(5);
    for (int i = 0; i < kRounds; ++i) {
        const Throw motion = throws.Next();
        if (std::abs(motion.vx) < 1)
            continue;
        const double angle = throws.Between(-60, 60);
        // Through the launch: one of the solutions is the launch itself, the other has the textbook's range.
        const auto found = RangeOnPlane(1, Plant(motion, kDecimals), motion.x0, motion.y0, angle);
        const auto& hits = std::get<std::vector<InclineHit>>(found);
        const double a = angle * M_PI / 180.0;
        const double q = motion.Theta() * M_PI / 180.0;
        const double range = std::abs(2 * motion.V0() * motion.V0() * std::cos(q) * std::sin(q - a) /
                                      (9.8 * std::cos(a) * std::cos(a)));
        ASSERT_TRUE(
            std::ranges::any_of(hits, [&](const InclineHit& hit) { return Near(hit.range, range, 1e-4); }));
        for (const InclineHit& hit : hits) {
            ASSERT_TRUE(Near(motion.X(hit.t), hit.x, 1e-5) && Near(motion.Y(hit.t), hit.y, 1e-4));
            ASSERT_TRUE(Near(hit.y, motion.y0 + std::tan(a) * (hit.x - motion.x0)));
        }
    }
}

/// Simpson's rule over the time, the speed being the derivative of the path.
double LengthOf(const Throw& motion, double first, double last) {
    constexpr int kPanels = 2000;
    const double h = (last - first) / kPanels;
    double sum = motion.V(first) + motion.V(last);
    for (int k = 1; k < kPanels; ++k)
        sum += (k % 2 == 1 ? 4 : 2) * motion.V(first + k * h);
    return std::abs(sum * h / 3);
}
TEST(PathLength, IsTheIntegralOfTheSpeed) {
    Throws throws(6);
    for (int i = 0; i < 500; ++i) {
        const Throw motion = throws.Next();
        if (std::abs(motion.vx) < 1)
            continue;
        const double first = throws.TimeIn(motion);
        const double last = throws.TimeIn(motion);
        const auto length = PathLength(Plant(motion).flight, first, last);
        ASSERT_TRUE(length);
        ASSERT_TRUE(Near(*length, LengthOf(motion, first, last), 1e-5));
    }
}

TEST(Fitting, FindsTheLaunchAgain) {
    Throws throws(7);
    for (int i = 0; i < kRounds; ++i) {
        const Throw motion = throws.Next();
        if (std::abs(motion.vx) < 0.5)
            continue;
        const double near = motion.t0 + throws.Between(0.5, 2);
        const double far = near + throws.Between(0.5, 2);
        const auto through = LaunchThrough(
            1, motion.t0,
            {{{motion.x0, motion.y0}, {motion.X(near), motion.Y(near)}, {motion.X(far), motion.Y(far)}}},
            kDecimals);
        ASSERT_TRUE(SameLaunch(Thrown(WorkedIn(through)->launches.front()), motion, 1e-4));
        if (motion.vy < 0.1)
            continue;
        const double time = motion.vy / 4.9;
        const auto flown = LaunchWithFlight(1, motion.From(), time, motion.vx * time, kDecimals);
        ASSERT_TRUE(SameLaunch(Thrown(WorkedIn(flown)->launches.front()), motion));
        const double ratio = motion.vx * time / (motion.vy * motion.vy / 19.6);
        const auto by_ratio = LaunchWithRangeRatio(1, motion.From(), motion.V0(), ratio, kDecimals);
        ASSERT_TRUE(SameLaunch(Thrown(WorkedIn(by_ratio)->launches.front()), motion));
    }
}

// Two throws made to collide: every launch that is offered collides, and the one that it was made from is
// among them.
TEST(CollideProjectiles, EveryOfferedLaunchCollides) {
    Throws throws(8);
    int with_two = 0;
    for (int i = 0; i < kRounds; ++i) {
        Throw first = throws.Next();
        first.t0 = 0;
        Throw second = throws.Next();
        const double t = std::max(0.0, second.t0) + throws.Between(0.5, 4);
        const double d = t - second.t0;
        second.vx = (first.X(t) - second.x0) / d;
        second.vy = (first.Y(t) - second.y0) / d + 4.9 * d;
        const Start start = second.From();
        const std::pair<Launch, std::optional<double>> problems[] = {
            {{SpeedMode::Polar, start, {}, {}}, t},
            {{SpeedMode::Polar, start, second.V0(), {}}, std::nullopt},
            {{SpeedMode::Polar, start, {}, second.Theta()}, std::nullopt}};
        for (const auto& [launch, time] : problems) {
            const Equations unknown = std::get<Planted>(PlantLaunch(2, launch, kDecimals)).equations;
            const auto outcome = CollideProjectiles(Plant(first, kDecimals), unknown, time, kDecimals);
            const Worked* worked = WorkedIn(outcome);
            ASSERT_NE(worked, nullptr);
            ASSERT_TRUE(std::ranges::any_of(worked->launches, [&](const Launch& each) {
                return SameLaunch(Thrown(each), second, 1e-4);
            }));
            with_two += worked->launches.size() == 2 ? 1 : 0;
            for (const Launch& each : worked->launches) {
                // Uniform relative motion: the nearest approach, reckoned on its own, is a meeting after the
                // launch.
                const Throw other = Thrown(each);
                const double p = first.X(start.t) - start.x;
                const double q = first.Y(start.t) - start.y;
                const double u = first.vx - other.vx;
                const double w = first.Vy(start.t) - other.vy;
                const double meeting = -(p * u + q * w) / (u * u + w * w);
                ASSERT_GT(meeting, 0.0);
                ASSERT_NEAR(std::hypot(p + u * meeting, q + w * meeting), 0.0, 1e-4);
            }
        }
    }
    EXPECT_GT(with_two, kRounds / 20);
}

// A throw made to meet an object on the axis.
TEST(Intercept, EveryOfferedLaunchMeetsTheObject) {
    Throws throws(9);
    int solved_by_speed = 0;
    for (int i = 0; i < kRounds; ++i) {
        Throw motion = throws.Next();
        const double d = throws.Between(0.5, 5);
        const double tc = motion.t0 + d;
        if (tc < 0.2)
            continue;
        const double u = throws.Between(-15, 15);
        motion.vx = (u * tc - motion.x0) / d;
        motion.vy = 4.9 * d - motion.y0 / d;
        const Start start = motion.From();
        const double speed = motion.V0();
        const double angle = motion.Theta();
        const Interception problems[] = {{start, {}, {}, u, tc},
                                         {start, {}, angle, u, {}},
                                         {start, speed, {}, u, {}},
                                         {start, {}, angle, {}, tc},
                                         {start, speed, {}, {}, tc}};
        for (const Interception& problem : problems) {
            // Nearly level: the height then says nothing of the speed.
            if (!problem.object_speed && problem.angle && std::abs(motion.vy) < 0.1)
                continue;
            const auto outcome = Intercept(problem, 12.0, kDecimals);
            const Worked* worked = WorkedIn(outcome);
            if (problem.NeedsLimit() && !worked)
                continue;  // two times in one step of the search, or a double one
            ASSERT_NE(worked, nullptr) << std::get<text::Refusal>(outcome).text;
            solved_by_speed += problem.NeedsLimit() ? 1 : 0;
            ASSERT_LE(worked->launches.size(), 2u);
            for (const Launch& each : worked->launches) {
                const Throw other = Thrown(each);
                // On the axis, on the way down or up; there the object, of known speed, is as well.
                const double root = std::sqrt(std::max(0.0, other.vy * other.vy + 19.6 * start.y));
                const auto meets = [&](double flight) {
                    if (flight <= 0)
                        return false;
                    if (problem.meeting_time && std::abs(flight - d) > 1e-4)
                        return false;
                    return !problem.object_speed ||
                           Near(other.X(start.t + flight), u * (start.t + flight), 1e-3);
                };
                ASSERT_TRUE(meets((other.vy + root) / 9.8) || meets((other.vy - root) / 9.8))
                    << problem.NeedsLimit() << ' ' << i;
            }
        }
    }
    EXPECT_GT(solved_by_speed, kRounds * 8 / 10);
}

// Two points of a throw, as the equations in tan q and the horizontal component: the throw is found again.
TEST(TanSystems, FindTheLaunchAgain) {
    Throws throws(10);
    const auto holds = [](const TanSolutions& found, const Throw& motion) {
        const auto* solutions = std::get_if<std::vector<PolarVelocity>>(&found);
        return solutions && std::ranges::any_of(*solutions, [&](const PolarVelocity& each) {
                   // Only the square of the component stands in some: then either side fits.
                   const Throw other = FromPolar(motion.From(), each.speed, each.angle);
                   return SameLaunch(other, motion, 1e-3) ||
                          (Near(other.vx, -motion.vx, 1e-3) && Near(other.vy, -motion.vy, 1e-3));
               });
    };
    for (int i = 0; i < kRounds; ++i) {
        const Throw motion = throws.Next();
        if (std::abs(motion.vx) < 1 || std::abs(motion.vy) < 1)
            continue;
        const double first = throws.Between(0.5, 2);
        const double second = first + throws.Between(0.5, 2);
        const auto x = [&](double d) { return motion.vx * d; };
        const auto y = [&](double d) { return motion.vy * d - 4.9 * d * d; };
        const auto slope = [&](double d) { return (motion.vy - 9.8 * d) / motion.vx; };
        const auto by_place = [&](double d) { return std::array{x(d), -4.9 * x(d) * x(d), y(d)}; };
        const auto by_slope = [&](double d) { return std::array{1.0, -9.8 * d, slope(d)}; };
        const auto [a, b, c] = by_place(first);
        const auto [d, e, f] = by_place(second);
        ASSERT_TRUE(holds(SolveSquaredPair({a, b, c, d, e, f}), motion));
        const auto [g, h, k] = by_slope(first);
        const auto [l, m, n] = by_slope(second);
        ASSERT_TRUE(holds(SolvePlainPair({g, h, k, l, m, n}), motion));
        ASSERT_TRUE(holds(SolveMixedPair({a, b, c, l, m, n}), motion));
        ASSERT_TRUE(holds(SolveWithHorizontal({a, b, c, motion.vx}), motion));
        ASSERT_TRUE(holds(SolveWithVertical({a, b, c, motion.vy}), motion));
    }
}

}  // namespace
}  // namespace tavrelo::mechanics::projectile
