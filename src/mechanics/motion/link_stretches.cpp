#include "mechanics/motion/link_stretches.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "mechanics/motion/labels.h"
#include "mechanics/motion/linking.h"
#include "mechanics/motion/planting.h"
#include "notation/typed_list.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::motion {

namespace {

using text::Refusal;

// ---- The table.

std::optional<double> NumberAt(const Problem& problem, int row, int column) {
    const text::Value& value = problem.table.Stored(row, column);
    if (notation::WithoutBlanks(value.Text()).empty())
        return std::nullopt;
    return value.Number();
}

std::optional<double> AccelerationIn(const Problem& problem, int stretch) {
    const text::Value& value = problem.AccelerationOf(1, stretch).stored;
    if (notation::WithoutBlanks(value.Text()).empty())
        return std::nullopt;
    return value.Number();
}

/// What a point must have; an empty cell fails.
double RequiredAt(const Problem& problem, int row, int column) {
    const auto number = NumberAt(problem, row, column);
    if (!number)
        throw numeric::RuntimeFailure(numeric::FailureCode::TypeMismatch, "empty cell");
    return *number;
}

LinkData DataOf(const Problem& problem, int stretch, int a, int c) {
    const int column_a = points::ColumnOfPoint(problem.configuration, 1, a);
    const int column_c = points::ColumnOfPoint(problem.configuration, 1, c);
    LinkData data;
    data.a = {RequiredAt(problem, points::kTimeRow, column_a),
              RequiredAt(problem, points::kPositionRow, column_a),
              RequiredAt(problem, points::kSpeedRow, column_a)};
    data.first_acceleration = AccelerationIn(problem, stretch);
    data.second_acceleration = AccelerationIn(problem, stretch + 1);
    data.tc = NumberAt(problem, points::kTimeRow, column_c);
    data.xc = NumberAt(problem, points::kPositionRow, column_c);
    data.vc = NumberAt(problem, points::kSpeedRow, column_c);
    return data;
}

std::optional<std::string_view> WhyNoPair(const points::PointPlace& first, const points::PointPlace& second) {
    if (first.mover != second.mover)
        return kSpansTwoMovers;
    if (first.mover != 1)
        return kOnlyFirstMover;
    if (second.stretch != first.stretch + 1)
        return kNotConsecutive;
    return std::nullopt;
}

// ---- Report and questions.

FoundPoint PointOf(int point, const MotionPoint& motion) { return {point, motion.t, motion.x, motion.v}; }

Linked LinkedOf(const LinkedMotion& motion, const LinkData& data, const points::PointPlace& a, int b, int c) {
    return {a.stretch,
            PointOf(a.point, data.a),
            PointOf(b, motion.junction),
            PointOf(c, motion.end),
            motion.first_acceleration,
            motion.second_acceleration};
}

std::string Shown(const std::string& name, double value, int decimals) {
    return name + " = " + text::RoundedText(value, decimals);
}

std::string MissingLine(LinkDatum missing, const Linked& linked, int decimals) {
    const Labels first(1, linked.stretch, decimals), second(1, linked.stretch + 1, decimals);
    const FoundPoint& c = linked.end;
    switch (missing) {
        case LinkDatum::FirstAcceleration:
            return Shown(std::string(first.Acceleration()), linked.first_acceleration, decimals);
        case LinkDatum::SecondAcceleration:
            return Shown(std::string(second.Acceleration()), linked.second_acceleration, decimals);
        case LinkDatum::FinalTime:
            return Shown(second.At(Quantity::Time, c.point), c.t, decimals);
        case LinkDatum::FinalPosition:
            return Shown(second.At(Quantity::Position, c.point), c.x, decimals);
        case LinkDatum::FinalSpeed:
            break;
    }
    return Shown(second.At(Quantity::Speed, c.point), c.v, decimals);
}

/// The missing datum, then the junction.
std::string SolutionLine(LinkDatum missing, const Linked& linked, int decimals) {
    const Labels labels(1, linked.stretch, decimals);
    const FoundPoint& b = linked.junction;
    return MissingLine(missing, linked, decimals) + ", " +
           Shown(labels.At(Quantity::Time, b.point), b.t, decimals) + ", " +
           Shown(labels.At(Quantity::Position, b.point), b.x, decimals) + ", " +
           Shown(labels.At(Quantity::Speed, b.point), b.v, decimals);
}

WriteLines ReportOf(LinkDatum missing, const std::vector<Linked>& solutions, int decimals) {
    const Linked& first = solutions.front();
    WriteLines report = {{"Datos: " + Labels(1, first.stretch, decimals).Point(first.start)}};
    int number = 0;
    for (const Linked& solution : solutions) {
        report.lines.push_back(solutions.size() == 1 ? "Solución:"
                                                     : "Solución " + std::to_string(++number) + ":");
        report.lines.push_back(SolutionLine(missing, solution, decimals));
    }
    return report;
}

Question ChoiceOf(const std::vector<Linked>& solutions) {
    return {Buttons::YesNo,
            "Para escoger la primera solución desplegada en la pestaña \"Resultados\"\n"
            "oprime el botón \"Sí\". Para la segunda oprime \"No\".",
            TakeLinkRequest{solutions[0]}, TakeLinkRequest{solutions[1]}};
}

Question PlantingQuestion(const Linked& linked) {
    return {Buttons::YesNo,
            "¿Deseas plantear las ecuaciones de movimiento de los\n"
            "dos tramos considerados del móvil 1 con los valores calculados?",
            PlantLinkRequest{linked}, std::nullopt};
}

void TakePoint(Problem& problem, const FoundPoint& point, int decimals) {
    const int column = points::ColumnOfPoint(problem.configuration, 1, point.point);
    problem.table.SetNumber(points::kTimeRow, column, point.t, decimals);
    problem.table.SetNumber(points::kPositionRow, column, point.x, decimals);
    problem.table.SetNumber(points::kSpeedRow, column, point.v, decimals);
}

Outcome Taken(const Problem& problem, const Linked& linked, int decimals) {
    Outcome outcome = {problem, {}};
    TakePoint(outcome.problem, linked.junction, decimals);
    TakePoint(outcome.problem, linked.end, decimals);
    outcome.problem.accelerations[SlotOf(1, linked.stretch)] =
        points::NumberCell(linked.first_acceleration, decimals);
    outcome.problem.accelerations[SlotOf(1, linked.stretch + 1)] =
        points::NumberCell(linked.second_acceleration, decimals);
    outcome.events.push_back(PlantingQuestion(linked));
    return outcome;
}

PlantRequest PlantingOn(const FoundPoint& base, int stretch, double acceleration) {
    return {1, stretch, base.point, base.t, base.x, base.v, acceleration};
}

}  // namespace

Step LinkStretches(const Problem& problem, const points::PointPlace& first, const points::PointPlace& second,
                   int decimals) {
    if (const auto why = WhyNoPair(first, second))
        return Refusal{std::string(*why)};
    const int junction = problem.configuration.StretchAt(1, first.stretch).last;
    const LinkData data = DataOf(problem, first.stretch, first.point, second.point);
    const auto solved = SolveLink(data);
    if (const auto* refusal = std::get_if<Refusal>(&solved))
        return *refusal;
    std::vector<Linked> solutions;
    for (const LinkedMotion& motion : std::get<std::vector<LinkedMotion>>(solved))
        solutions.push_back(LinkedOf(motion, data, first, junction, second.point));

    const WriteLines report = ReportOf(data.Missing(), solutions, decimals);
    if (solutions.size() > 1)
        return Outcome{problem, {report, ChoiceOf(solutions)}};
    Outcome outcome = Taken(problem, solutions.front(), decimals);
    outcome.events.insert(outcome.events.begin(), report);
    return outcome;
}

Step TakeLink(const Problem& problem, const TakeLinkRequest& request, int decimals) {
    return Taken(problem, request.linked, decimals);
}

Step PlantLink(const Problem& problem, const PlantLinkRequest& request, int decimals) {
    const Linked& linked = request.linked;
    Outcome first =
        Plant(problem, PlantingOn(linked.start, linked.stretch, linked.first_acceleration), decimals);
    Outcome both = Plant(first.problem,
                         PlantingOn(linked.end, linked.stretch + 1, linked.second_acceleration), decimals);
    both.events.insert(both.events.begin(), first.events.begin(), first.events.end());
    return both;
}

}  // namespace tavrelo::mechanics::motion
