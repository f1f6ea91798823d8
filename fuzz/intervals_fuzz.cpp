// Whatever is typed in the box of a procedure of motion: only the documented failure leaves, and no report
// shows what is no number.

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "harness.h"
#include "mechanics/motion/interval_equations.h"
#include "mechanics/motion/typed_procedures.h"
#include "notation/interval_line.h"
#include "numeric/checked.h"
#include "text/markup.h"

namespace {

using namespace tavrelo;
using fuzz::Require;
namespace motion = mechanics::motion;
namespace points = mechanics::points;
using motion::Procedure;

constexpr int kDecimals = 3;
constexpr Procedure kTyped[] = {
    Procedure::ThreePoints,    Procedure::Interval,   Procedure::PositionDifference,
    Procedure::PositionRatio,  Procedure::SpeedRatio, Procedure::SpeedDifference,
    Procedure::SystemVA,       Procedure::SystemV2A,  Procedure::SystemV2A2A,
    Procedure::SystemV2A2AV2A, Procedure::Quadratic,  Procedure::PositionAndSpeedRatio,
};

void RequireReadable(const motion::Step& step) {
    const auto* outcome = std::get_if<motion::Outcome>(&step);
    if (!outcome)
        return;
    for (const motion::Event& event : outcome->events) {
        const auto* report = std::get_if<motion::WriteLines>(&event);
        if (!report)
            continue;
        for (const std::string& line : report->lines)
            Require(line.find("inf") == std::string::npos && line.find("nan") == std::string::npos &&
                    text::CountMarks(line) <= text::kMarkLimit);
    }
}

template <typename Action>
void Try(Action action) {
    try {
        action();
    } catch (const numeric::RuntimeFailure&) {
    }
}

// Two movers of four and five points; the second lacks its acceleration for the ratios.
motion::Problem TwoMovers() {
    constexpr double kFirstPoints = 3.5;
    motion::Problem problem;
    problem.configuration =
        points::ClickBand(points::Begin(points::kMotionVariants[2]), kFirstPoints).configuration;
    problem.equations[motion::SlotOf(1, 1)] = {motion::EquationKind::Complete, 0, 0, 0, 0, 2};
    problem.equations[motion::SlotOf(2, 1)] = {motion::EquationKind::Complete, 0, 0, 6, 1, -1};
    for (int point = 0; point < 4; ++point)
        for (int row = 0; row < points::kMotionRows; ++row)
            problem.table.SetNumber(row, point + 1, (row + 1) * point, kDecimals);
    const int base = points::ColumnOfPoint(problem.configuration, 2, 0);
    for (int row = 0; row < points::kMotionRows; ++row)
        problem.table.SetNumber(row, base, row, kDecimals);
    return problem;
}

void TryInterval(std::string_view text) {
    const auto data = notation::ReadIntervalLine(text);
    if (!std::holds_alternative<notation::IntervalData>(data))
        return;
    const auto results = motion::SolveInterval(std::get<notation::IntervalData>(data));
    if (const auto* found = std::get_if<motion::IntervalResults>(&results))
        for (const motion::IntervalResult& result : *found)
            Require(std::isfinite(result.value));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const motion::Problem problem = TwoMovers();
    for (const Procedure procedure : kTyped)
        Try([&] { RequireReadable(motion::RunTyped(problem, procedure, text, kDecimals)); });
    Try([&] { TryInterval(text); });
    return 0;
}
