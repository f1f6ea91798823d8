#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "mechanics/motion/procedures.h"
#include "mechanics/motion/step.h"

namespace tavrelo::mechanics::motion::testing {

inline constexpr int kDecimals = 3;

/// What a point's column holds, as typed.
struct Column {
    std::string t;
    std::string x;
    std::string v;
};

inline void Fill(Problem& problem, int mover, int point, const Column& column) {
    const int number = points::ColumnOfPoint(problem.configuration, mover, point);
    const auto type = [&](int row, const std::string& text) {
        problem.table.At(row, number) = points::TextCell(text);
    };
    type(points::kTimeRow, column.t);
    type(points::kPositionRow, column.x);
    type(points::kSpeedRow, column.v);
}

/// A table of one mover with one stretch, its acceleration typed.
inline Problem OneMover(std::string_view acceleration = {}) {
    Problem problem = Reconfigured({}, 0);
    problem.accelerations[0] = TypedAcceleration(acceleration);
    return problem;
}

/// A clicked configuration: the columns of the clicks, from 1.
inline Problem Divided(int variant, const std::vector<int>& clicked_columns) {
    constexpr double kMiddle = 0.5;
    Problem problem = Reconfigured({}, variant);
    for (const int column : clicked_columns)
        problem.configuration = points::ClickBand(problem.configuration, column - kMiddle).configuration;
    return problem;
}

/// The problem after a step that must not be refused.
inline Problem After(const Step& step) {
    return std::holds_alternative<Outcome>(step) ? std::get<Outcome>(step).problem : Problem{};
}

/// The equations of mover 1 planted on point 0 with these data.
inline Problem PlantedOnOrigin(const Column& base, std::string_view acceleration) {
    Problem problem = OneMover(acceleration);
    Fill(problem, 1, 0, base);
    return After(ClickPoint(problem, Procedure::Plant, {1, 1, 0}, kDecimals));
}

struct EventText {
    std::vector<std::string>& lines;

    void operator()(const WriteLines& event) const {
        lines.insert(lines.end(), event.lines.begin(), event.lines.end());
    }
    void operator()(const ClearSlot& event) const { lines.push_back("clear " + std::to_string(event.slot)); }
    void operator()(const BoardLine& event) const {
        lines.push_back("board " + std::to_string(event.slot) + ": " + event.markup);
    }
    void operator()(const ShowBoard&) const { lines.push_back("show board"); }
    void operator()(const ShowResults&) const { lines.push_back("show results"); }
    void operator()(const Box& event) const { lines.push_back("box: " + event.text); }
    void operator()(const Question& event) const {
        lines.push_back((event.buttons == Buttons::YesNo ? "ask: " : "offer: ") + event.text);
    }
};

/// A step as lines of text: "refused: ..." or what its events show, in order.
inline std::vector<std::string> Shown(const Step& step) {
    if (const auto* refusal = std::get_if<text::Refusal>(&step))
        return {"refused: " + refusal->text};
    std::vector<std::string> lines;
    for (const Event& event : std::get<Outcome>(step).events)
        std::visit(EventText{lines}, event);
    return lines;
}

inline std::string RefusalOf(const Step& step) {
    const auto* refusal = std::get_if<text::Refusal>(&step);
    return refusal ? refusal->text : std::string();
}

/// The question that a step ends in; null when there is none.
inline const Question* QuestionOf(const Step& step) {
    const auto* outcome = std::get_if<Outcome>(&step);
    if (!outcome || outcome->events.empty())
        return nullptr;
    return std::get_if<Question>(&outcome->events.back());
}

/// What a cell shows.
inline std::string ShownAt(const Problem& problem, int row, int column) {
    return problem.table.At(row, column).shown;
}

}  // namespace tavrelo::mechanics::motion::testing
