#include "mechanics/projectile/problem.h"

#include <cstddef>

#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::projectile {
namespace {

using points::kAcrossRow;
using points::kDirectionRow;
using points::kHeightRow;
using points::kLaunchTimeRow;
using points::kMagnitudeRow;

constexpr const char* kInvalidMagnitude = "Tienes una magnitud no válida para la velocidad.";
constexpr const char* kNoValidSpeed = "No hay valor válido de la velocidad.";

[[noreturn]] void ThrowOutOfRange(const char* what) {
    throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, what);
}

std::size_t ColumnIndex(int column) {
    if (column < 1 || column > points::kMostPoints)
        ThrowOutOfRange("column");
    return static_cast<std::size_t>(column - 1);
}

std::size_t MoverIndex(int mover) {
    if (mover < 1 || mover > points::kMostMovers)
        ThrowOutOfRange("mover");
    return static_cast<std::size_t>(mover - 1);
}

SpeedMode Other(SpeedMode mode) {
    return mode == SpeedMode::Polar ? SpeedMode::Components : SpeedMode::Polar;
}

/// The two numbers that a mode writes for a velocity.
std::array<double, 2> Written(const Velocity& velocity, SpeedMode mode) {
    if (mode == SpeedMode::Components)
        return {velocity.x, velocity.y};
    return {SpeedOf(velocity), DirectionOf(velocity)};
}

}  // namespace

SpeedMode Problem::ModeOf(int column) const { return modes[ColumnIndex(column)]; }

const Equations& Problem::EquationsOf(int mover) const { return equations[MoverIndex(mover)]; }
Equations& Problem::EquationsOf(int mover) { return equations[MoverIndex(mover)]; }

std::optional<double> Problem::NumberAt(int row, int column) const {
    const text::Value& stored = table.Stored(row, column);
    return text::IsNum(stored) ? std::optional(stored.Number()) : std::nullopt;
}

bool Problem::HasMover(int mover) const {
    return mover >= 1 && mover <= points::kMostMovers && configuration.MoverAt(mover).points > 0;
}

bool Problem::HasPoint(int mover, int point) const {
    return HasMover(mover) && point >= 0 && point < configuration.MoverAt(mover).points;
}

int Problem::ColumnOf(int mover, int point) const {
    return points::ColumnOfPoint(configuration, mover, point);
}

Problem WithEmptyTable(const Problem& problem) {
    Problem next = problem;
    next.table.Clear();
    return next;
}

Problem Reconfigured(const Problem& problem, int variant) {
    if (variant < 0 || variant >= static_cast<int>(points::kProjectileVariants.size()))
        ThrowOutOfRange("variant");
    Problem next = problem;
    next.configuration = points::Begin(points::kProjectileVariants[static_cast<std::size_t>(variant)]);
    next.modes = {};
    return next;
}

std::variant<text::Refusal, Problem> WithBandClicked(const Problem& problem, double position, int decimals) {
    if (problem.configuration.IsConfigured()) {
        const auto place = points::Locate(problem.configuration, position);
        return place
                   ? WithModeToggled(problem, points::ColumnOfPoint(problem.configuration, *place), decimals)
                   : problem;
    }
    points::ConfigurationStep step = points::ClickBand(problem.configuration, position);
    if (step.refusal)
        return *step.refusal;
    Problem next = problem;
    next.configuration = step.configuration;
    return next;
}

std::variant<text::Refusal, Problem> WithModeToggled(const Problem& problem, int column, int decimals) {
    const SpeedMode mode = problem.ModeOf(column);
    const auto first = problem.NumberAt(kMagnitudeRow, column);
    const auto second = problem.NumberAt(kDirectionRow, column);
    Problem next = problem;
    next.modes[ColumnIndex(column)] = Other(mode);
    if (!first || !second)
        return next;
    if (mode == SpeedMode::Polar && *first < 0.0)
        return text::Refusal{kInvalidMagnitude};
    const Velocity velocity =
        mode == SpeedMode::Polar ? FromSpeed(*first, *second) : Velocity{*first, *second};
    const auto written = Written(velocity, Other(mode));
    next.table.SetNumber(kMagnitudeRow, column, written[0], decimals);
    next.table.SetNumber(kDirectionRow, column, written[1], decimals);
    return next;
}

Problem WithPointCleared(const Problem& problem, int column) {
    Problem next = problem;
    next.table.ClearColumn(column);
    return next;
}

std::variant<text::Refusal, Problem> WithPointDragged(const Problem& problem, int from, int to, bool copy,
                                                      int decimals) {
    if (from == to)
        return problem;
    Problem next = problem;
    if (problem.ModeOf(from) != problem.ModeOf(to)) {
        auto toggled = WithModeToggled(problem, to, decimals);
        if (auto* refusal = std::get_if<text::Refusal>(&toggled))
            return *refusal;
        next = std::get<Problem>(toggled);
    }
    next.table.CopyColumn(from, to);
    for (int row = 0; row < points::kProjectileRows; ++row) {
        points::Cell& cell = next.table.At(row, to);
        cell.shown =
            text::IsNum(cell.stored) ? text::RoundedText(cell.stored.Number(), decimals) : cell.stored.Text();
    }
    if (!copy)
        next.table.ClearColumn(from);
    return next;
}

void PutPoint(Problem& problem, int column, const State& state, int decimals) {
    const auto written = Written(state.velocity, problem.ModeOf(column));
    problem.table.SetNumber(kLaunchTimeRow, column, state.t, decimals);
    problem.table.SetNumber(kAcrossRow, column, state.x, decimals);
    problem.table.SetNumber(kHeightRow, column, state.y, decimals);
    problem.table.SetNumber(kMagnitudeRow, column, written[0], decimals);
    problem.table.SetNumber(kDirectionRow, column, written[1], decimals);
}

std::variant<text::Refusal, Problem> WithOtherSide(const Problem& problem, const Place& place, int decimals) {
    const int column = problem.ColumnOf(place.mover, place.point);
    std::array<double, points::kProjectileRows> numbers{};
    for (int row = 0; row < points::kProjectileRows; ++row) {
        const auto number = problem.NumberAt(row, column);
        if (!number)
            return text::Refusal{kNoValidSpeed};
        numbers[static_cast<std::size_t>(row)] = *number;
    }
    const auto& [t, x, y, first, second] = numbers;
    const bool polar = problem.ModeOf(column) == SpeedMode::Polar;
    if (polar && first < 0.0)
        return text::Refusal{kNoValidSpeed};
    const Velocity velocity = polar ? FromSpeed(first, second) : Velocity{first, second};
    Problem next = problem;
    PutPoint(next, column, OtherSide({t, x, y, velocity}), decimals);
    return next;
}

}  // namespace tavrelo::mechanics::projectile
