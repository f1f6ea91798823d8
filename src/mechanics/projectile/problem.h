#pragma once

#include <array>
#include <optional>
#include <variant>

#include "mechanics/points/configuration.h"
#include "mechanics/points/table.h"
#include "mechanics/projectile/launch.h"
#include "text/refusal.h"

/// Projectile motion without drag. A Problem is everything that the user gave and the program found; a
/// procedure (procedures.h) takes one and gives a Step (step.h): a refusal, or a new problem and what is to
/// be shown, in order. Below the procedures stand pure functions of numbers: flight.h, launch.h (equations of
/// a launch), point_substitution.h and parameters.h (what a point says), and the special problems fitting.h,
/// crossing.h, collision.h, intercept.h, tan_systems.h. Decimals round what is shown; a launch keeps six at
/// the least.
namespace tavrelo::mechanics::projectile {

struct Problem {
    points::Table table{points::kProjectileRows};
    points::Configuration configuration;
    /// How the last two rows of each column are to be read; column 1 first.
    std::array<SpeedMode, points::kMostPoints> modes{};
    /// Of mover 1 and mover 2.
    std::array<Equations, points::kMostMovers> equations;

    /// Columns and movers count from 1; both fail with SubscriptRange on any other.
    SpeedMode ModeOf(int column) const;
    const Equations& EquationsOf(int mover) const;
    Equations& EquationsOf(int mover);
    /// The number in a cell, if it holds one.
    std::optional<double> NumberAt(int row, int column) const;
    /// Whether the configuration has such a mover, or such a point of it.
    bool HasMover(int mover) const;
    bool HasPoint(int mover, int point) const;
    int ColumnOf(int mover, int point) const;

    bool operator==(const Problem&) const = default;
};

/// A point of a mover: movers count from 1, points from 0.
struct Place {
    int mover = 1;
    int point = 0;

    friend bool operator==(const Place&, const Place&) = default;
};

// What survives what. A new problem is Problem{}.

/// All cells emptied; configuration, modes and equations stay.
Problem WithEmptyTable(const Problem& problem);
/// A configuration begun anew (index into points::kProjectileVariants): all points read magnitude and
/// direction again, cells and equations stay.
Problem Reconfigured(const Problem& problem, int variant);

/// A click in the grey band, `position` in columns from the left edge of column 1. While the movers are
/// pending it divides them, afterwards it toggles the mode of the column.
std::variant<text::Refusal, Problem> WithBandClicked(const Problem& problem, double position, int decimals);
/// The mode of a column changed, its speed data turned into the other form when both are numbers. Refused for
/// a negative magnitude.
std::variant<text::Refusal, Problem> WithModeToggled(const Problem& problem, int column, int decimals);

/// The column emptied.
Problem WithPointCleared(const Problem& problem, int column);
/// A column moved, or copied, onto another one, whose mode is toggled to that of the source first. Numbers
/// are shown rounded. Nothing changes when the two are the same.
std::variant<text::Refusal, Problem> WithPointDragged(const Problem& problem, int from, int to, bool copy,
                                                      int decimals);

/// A state in a column, in the mode of the column: all digits stored, rounded in view.
void PutPoint(Problem& problem, int column, const State& state, int decimals);

/// A point replaced by the one at which the projectile is at the same height again: all five data have to be
/// numbers, a magnitude not negative. The equations have no part in it.
std::variant<text::Refusal, Problem> WithOtherSide(const Problem& problem, const Place& place, int decimals);

}  // namespace tavrelo::mechanics::projectile
