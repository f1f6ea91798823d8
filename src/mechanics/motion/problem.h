#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "mechanics/points/configuration.h"
#include "mechanics/points/table.h"
#include "text/refusal.h"

/// Uniformly accelerated motion along a line. A Problem is everything that the user gave and the program
/// found; a procedure takes one and gives a Step (step.h): a refusal, or a new problem and what is to be
/// shown. Positions, times and speeds have no units; decimals round what is shown, never what is stored.
namespace tavrelo::mechanics::motion {

/// x = x0 + v0 t + a t^2 / 2, v = v0 + a t.
struct Motion {
    double x0 = 0;
    double v0 = 0;
    double a = 0;

    double PositionAt(double t) const;  // fails with Overflow
    double SpeedAt(double t) const;
    friend bool operator==(const Motion&, const Motion&) = default;
};

/// Which of the speed at the base point and the acceleration the equations of a stretch still lack.
enum class EquationKind { NotPlanted, Complete, SpeedUnknown, AccelerationUnknown, BothUnknown };

/// The equations of a stretch as they were planted; what the table and the acceleration boxes hold since then
/// does not change them. `v` is known in the kinds Complete and AccelerationUnknown, `a` in Complete and
/// SpeedUnknown.
struct Equations {
    EquationKind kind = EquationKind::NotPlanted;
    int base = 0;  // point of the mover
    double t = 0;  // time, position and speed there
    double x = 0;
    double v = 0;
    double a = 0;

    bool IsComplete() const { return kind == EquationKind::Complete; }
    /// The polynomial in t; only of complete equations.
    Motion Expanded() const;
    friend bool operator==(const Equations&, const Equations&) = default;
};

/// A found point, and a found solution: one point, or the two ends of an interval.
struct FoundPoint {
    int point = 0;
    double t = 0;
    double x = 0;
    double v = 0;

    friend bool operator==(const FoundPoint&, const FoundPoint&) = default;
};
struct FoundSolution {
    FoundPoint first;
    std::optional<FoundPoint> second;

    friend bool operator==(const FoundSolution&, const FoundSolution&) = default;
};

/// What the last calculation found on a stretch: the results panel shows it, and it can be passed to the
/// table.
struct Results {
    int mover = 1;
    int stretch = 1;
    std::vector<FoundSolution> solutions;  // at most two

    bool HasSecond() const { return solutions.size() > 1; }
    friend bool operator==(const Results&, const Results&) = default;
};

/// A motion found through three points that waits for the point which becomes its base.
struct AwaitedBase {
    int mover = 1;
    int stretch = 1;
    Motion motion;

    friend bool operator==(const AwaitedBase&, const AwaitedBase&) = default;
};

/// Accelerations and equations stand in four slots: stretches 1 to 3 of mover 1, then mover 2.
inline constexpr std::size_t kSlots = 4;
/// Fails with SubscriptRange when there can be no such stretch.
std::size_t SlotOf(int mover, int stretch);

struct Problem {
    points::Table table{points::kMotionRows};
    points::Configuration configuration;
    /// As in the boxes: stored and shown differ where a number was computed.
    std::array<points::Cell, kSlots> accelerations;
    std::array<Equations, kSlots> equations;
    Results results;
    std::optional<AwaitedBase> awaited_base;

    const points::Cell& AccelerationOf(int mover, int stretch) const;
    const Equations& EquationsOf(int mover, int stretch) const;
    bool operator==(const Problem&) const = default;
};

/// What a box of accelerations holds after its text changed: "g" and "-g" become 9.8 and -9.8 in text and
/// value.
points::Cell TypedAcceleration(std::string_view text);
/// Refuses a text that is neither empty nor a number; blanks around do not count.
std::optional<text::Refusal> CheckAcceleration(std::string_view text);

// What survives what. A new problem is Problem{}.

/// All cells emptied; configuration, accelerations and equations stay.
Problem WithEmptyTable(const Problem& problem);
/// A configuration begun anew (index into points::kMotionVariants): the accelerations go, cells and equations
/// stay.
Problem Reconfigured(const Problem& problem, int variant);
/// All equations forgotten.
Problem WithoutEquations(const Problem& problem);

/// The shown solution (0 or 1) in the columns of its points: cells as the panel shows them, all digits
/// stored. Fails with SubscriptRange when there is no such solution.
Problem WithResultsPassed(const Problem& problem, std::size_t solution, int decimals);

}  // namespace tavrelo::mechanics::motion
