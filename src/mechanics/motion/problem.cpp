#include "mechanics/motion/problem.h"

#include "numeric/checked.h"
#include "text/number_text.h"
#include "text/utf8.h"

namespace tavrelo::mechanics::motion {
namespace {

constexpr double kGravity = 9.8;
constexpr const char* kNotANumber = "Valor no numérico.";

[[noreturn]] void ThrowNoSuch(const char* what) {
    throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, what);
}

points::Cell AccelerationCell(double number) { return {number, text::NumberToText(number)}; }

void PassPoint(Problem& problem, const FoundPoint& found, int decimals) {
    const int column = points::ColumnOfPoint(problem.configuration, problem.results.mover, found.point);
    problem.table.SetNumber(points::kTimeRow, column, found.t, decimals);
    problem.table.SetNumber(points::kPositionRow, column, found.x, decimals);
    problem.table.SetNumber(points::kSpeedRow, column, found.v, decimals);
}

}  // namespace

double Motion::PositionAt(double t) const { return numeric::Finite(x0 + (v0 + 0.5 * a * t) * t); }

double Motion::SpeedAt(double t) const { return numeric::Finite(v0 + a * t); }

Motion Equations::Expanded() const {
    return {numeric::Finite(0.5 * a * t * t - v * t + x), numeric::Finite(v - a * t), a};
}

std::size_t SlotOf(int mover, int stretch) {
    if (mover == 1 && stretch >= 1 && stretch <= points::kMostStretches)
        return static_cast<std::size_t>(stretch - 1);
    if (mover == 2 && stretch == 1)
        return kSlots - 1;
    ThrowNoSuch("slot of a stretch");
}

const points::Cell& Problem::AccelerationOf(int mover, int stretch) const {
    return accelerations[SlotOf(mover, stretch)];
}

const Equations& Problem::EquationsOf(int mover, int stretch) const {
    return equations[SlotOf(mover, stretch)];
}

points::Cell TypedAcceleration(std::string_view text) {
    const std::string trimmed = text::Trim(text);
    if (trimmed == "g")
        return AccelerationCell(kGravity);
    if (trimmed == "-g")
        return AccelerationCell(-kGravity);
    points::Cell cell;
    if (!trimmed.empty())
        cell.stored = trimmed;
    cell.shown = text;
    return cell;
}

std::optional<text::Refusal> CheckAcceleration(std::string_view text) {
    const std::string trimmed = text::Trim(text);
    if (trimmed.empty() || TypedAcceleration(trimmed).stored.HoldsNumber() || text::IsNum(trimmed))
        return std::nullopt;
    return text::Refusal{kNotANumber};
}

Problem WithEmptyTable(const Problem& problem) {
    Problem changed = problem;
    changed.table.Clear();
    return changed;
}

Problem Reconfigured(const Problem& problem, int variant) {
    if (variant < 0 || variant >= static_cast<int>(points::kMotionVariants.size()))
        ThrowNoSuch("variant");
    Problem changed = problem;
    changed.configuration = points::Begin(points::kMotionVariants[static_cast<std::size_t>(variant)]);
    changed.accelerations = {};
    return changed;
}

Problem WithoutEquations(const Problem& problem) {
    Problem changed = problem;
    changed.equations = {};
    return changed;
}

Problem WithResultsPassed(const Problem& problem, std::size_t solution, int decimals) {
    if (solution >= problem.results.solutions.size())
        ThrowNoSuch("solution");
    Problem changed = problem;
    const FoundSolution& found = problem.results.solutions[solution];
    PassPoint(changed, found.first, decimals);
    if (found.second)
        PassPoint(changed, *found.second, decimals);
    return changed;
}

}  // namespace tavrelo::mechanics::motion
