// Whatever is typed or pasted into the cells of a table of points: a reference reads or is refused, every
// procedure on a point ends in an outcome, a refusal or its documented failure, and no infinity reaches
// cells, results or equations. Each line of the input is a cell: time, position and speed of two points, then
// the acceleration.

#include <array>
#include <cmath>
#include <cstdint>
#include <string_view>
#include <variant>

#include "harness.h"
#include "mechanics/motion/procedures.h"
#include "notation/cell_reference.h"
#include "numeric/checked.h"

namespace {

using namespace tavrelo;
using fuzz::Require;
namespace motion = mechanics::motion;
namespace points = mechanics::points;

constexpr int kDecimals = 3;
constexpr motion::Procedure kProcedures[] = {motion::Procedure::Plant, motion::Procedure::Substitute,
                                             motion::Procedure::SubstituteWithParameters};

void TryReference(std::string_view text) {
    try {
        if (const auto reference = notation::ParseCellReference(text)) {
            Require(reference->addend.has_value() != reference->factor.has_value());
            Require(std::isfinite(reference->addend.value_or(reference->factor.value_or(0))));
            Require(reference->point >= 0 && reference->point <= 9);
        }
    } catch (const numeric::RuntimeFailure&) {  // past the range of a double, or a division by zero
    }
}

void RequireFinite(const motion::Problem& problem) {
    for (int row = 0; row < points::kMotionRows; ++row)
        for (int column = 1; column <= points::kMostPoints; ++column)
            if (const double* number = problem.table.Stored(row, column).IfNumber())
                Require(std::isfinite(*number));
    for (const motion::Equations& each : problem.equations)
        Require(std::isfinite(each.t + each.x) && std::isfinite(each.v) && std::isfinite(each.a));
    for (const motion::FoundSolution& each : problem.results.solutions)
        Require(std::isfinite(each.first.t) && std::isfinite(each.first.x) && std::isfinite(each.first.v));
}

/// The problem after a procedure, and after the first answer to its question; the same one when it was
/// refused or failed.
motion::Problem After(const motion::Problem& problem, motion::Procedure procedure, int point) {
    try {
        motion::Step step = motion::ClickPoint(problem, procedure, {1, 1, point}, kDecimals);
        if (!std::holds_alternative<motion::Outcome>(step))
            return problem;
        motion::Outcome outcome = std::get<motion::Outcome>(std::move(step));
        RequireFinite(outcome.problem);
        if (outcome.events.empty())
            return outcome.problem;
        if (const auto* question = std::get_if<motion::Question>(&outcome.events.back());
            question && question->yes)
            RequireFinite(
                std::get<motion::Outcome>(motion::Continue(outcome.problem, *question->yes, kDecimals))
                    .problem);
        return outcome.problem;
    } catch (const numeric::RuntimeFailure&) {
        return problem;
    }
}

std::string_view NextLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return line;
}

points::Cell CellOf(std::string_view text) {
    try {
        return points::PastedCell(text, kDecimals);
    } catch (const numeric::RuntimeFailure&) {  // a number past the range of a double
        return {};
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view text(reinterpret_cast<const char*>(data), size);
    motion::Problem problem = motion::Reconfigured({}, 0);
    for (int column = 1; column <= 2; ++column) {
        for (int row = 0; row < points::kMotionRows; ++row) {
            const std::string_view line = NextLine(text);
            TryReference(line);
            problem.table.At(row, column) = CellOf(line);
        }
    }
    problem.accelerations[0] = motion::TypedAcceleration(NextLine(text));
    motion::CheckAcceleration(problem.accelerations[0].shown);
    motion::Problem worked = After(problem, motion::Procedure::Plant, 0);
    for (const motion::Procedure procedure : kProcedures)
        worked = After(worked, procedure, 1);
    return 0;
}
