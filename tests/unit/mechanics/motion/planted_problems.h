#pragma once

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

#include "mechanics/motion/step.h"

/// Problems with a configured table and equations, for the procedures that work on them.
namespace tavrelo::mechanics::motion::testing {

inline constexpr int kDecimals = 3;

/// The limits of mover 1's stretches clicked, and its last point.
inline void ClickLimits(Problem& problem, const std::vector<int>& limits) {
    for (const int limit : limits)
        problem.configuration = points::ClickBand(problem.configuration, limit + 0.5).configuration;
    const int last = problem.configuration.MoverAt(1).points - 1;
    problem.configuration = points::ClickBand(problem.configuration, last + 0.5).configuration;
}

/// One mover of nine points, divided at `limits`.
inline Problem OneMover(const std::vector<int>& limits = {}) {
    Problem problem;
    problem.configuration = points::Begin(points::kMotionVariants[limits.empty() ? 0 : 1]);
    if (!limits.empty())
        ClickLimits(problem, limits);
    return problem;
}

/// Two movers, the first of `first_points` points, divided at `limits`.
inline Problem TwoMovers(int first_points, const std::vector<int>& limits = {}) {
    Problem problem;
    problem.configuration = points::Begin(points::kMotionVariants[limits.empty() ? 2 : 3]);
    problem.configuration = points::ClickBand(problem.configuration, first_points - 0.5).configuration;
    if (!limits.empty())
        ClickLimits(problem, limits);
    return problem;
}

/// Complete equations of x = x0 + v0 t + a t^2/2.
inline void GiveMotion(Problem& problem, int mover, int stretch, const Motion& motion) {
    Equations& equations = problem.equations[SlotOf(mover, stretch)];
    equations = {EquationKind::Complete, 0, 0, motion.x0, motion.v0, motion.a};
}

inline void SetCell(Problem& problem, int mover, int point, int row, const text::Value& value) {
    const int column = points::ColumnOfPoint(problem.configuration, mover, point);
    problem.table.At(row, column) = {value, value.Text()};
}

inline void SetTime(Problem& problem, int mover, int point, double t) {
    SetCell(problem, mover, point, points::kTimeRow, t);
}

/// The lines that a step reports; of a refusal its text behind "refused: ".
inline std::vector<std::string> LinesOf(const Step& step) {
    if (const auto* refusal = std::get_if<text::Refusal>(&step))
        return {"refused: " + refusal->text};
    std::vector<std::string> lines;
    for (const Event& event : std::get<Outcome>(step).events)
        if (const auto* report = std::get_if<WriteLines>(&event))
            lines.insert(lines.end(), report->lines.begin(), report->lines.end());
    return lines;
}

}  // namespace tavrelo::mechanics::motion::testing
