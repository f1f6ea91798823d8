#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include "mechanics/motion/holding.h"
#include "mechanics/motion/times.h"
#include "mechanics/motion/two_movers.h"
#include "notation/typed_list.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::motion {

namespace {

using numeric::CheckedMultiply;
using numeric::CleanDifference;
using text::Refusal;
using text::RoundedText;

constexpr int kSecondMover = 2;

/// A relation reads "first = factor * second + difference", of positions or of speeds.
struct RelationRow {
    bool of_positions;
    bool is_ratio;  // the constant is the factor, else the difference
    const char* title;
    const char* title_end;
    const char* first;
    const char* second;
};

const RelationRow& RowOf(Relation relation) {
    static constexpr RelationRow kRows[] = {
        {true, false, "x ;- X = ", "", "x", "X"},
        {true, true, "x = ", "X", "x", "X"},
        {false, false, "v ;- V = ", "", "v", "V"},
        {false, true, "v = ", "V", "v", "V"},
    };
    return kRows[static_cast<std::size_t>(relation)];
}

struct Linear {
    double factor;
    double difference;
};

Linear LinearOf(Relation relation, double constant) {
    return RowOf(relation).is_ratio ? Linear{constant, 0} : Linear{1, constant};
}

/// a - factor b - difference, free of what rounding leaves.
double Rest(double a, double b, const Linear& linear, double difference) {
    return CleanDifference(CleanDifference(a, CheckedMultiply(linear.factor, b)), difference);
}

/// A value of both movers at a time.
struct Pair {
    double first;
    double second;
};

Pair ValuesAt(Relation relation, const Motion& first, const Motion& second, double t) {
    if (RowOf(relation).of_positions)
        return {first.PositionAt(t), second.PositionAt(t)};
    return {first.SpeedAt(t), second.SpeedAt(t)};
}

std::string TitleOf(Relation relation, double constant, int decimals) {
    const RelationRow& row = RowOf(relation);
    return row.title + RoundedText(constant, decimals) + row.title_end;
}

std::string LineOf(Relation relation, double t, const Pair& values, int decimals) {
    const RelationRow& row = RowOf(relation);
    return "t = " + RoundedText(t, decimals) + ", " + row.first + " = " +
           RoundedText(values.first, decimals) + ", " + row.second + " = " +
           RoundedText(values.second, decimals);
}

/// The report of one stretch of mover 1: its heading and a line for each time that counts, or nothing.
struct StretchReport {
    bool depends_on_time;
    std::vector<std::string> lines;
};

StretchReport ReportStretch(const Problem& problem, Relation relation, int stretch, double constant,
                            int decimals) {
    const Motion first = problem.EquationsOf(1, stretch).Expanded();
    const Motion second = problem.EquationsOf(kSecondMover, 1).Expanded();
    const RelationTimes found = TimesOf(relation, first, second, constant);
    StretchReport report = {found.depends_on_time, {}};
    for (const double t : found.times) {
        if (!IsWithinStretch(problem, 1, stretch, t))
            continue;
        if (report.lines.empty())
            report.lines.push_back("La condición " + TitleOf(relation, constant, decimals) +
                                   " se cumple en el tramo " + std::to_string(stretch) + " del móvil 1 en:");
        report.lines.push_back(LineOf(relation, t, ValuesAt(relation, first, second, t), decimals));
    }
    return report;
}

std::vector<int> PlantedStretches(const Problem& problem) {
    std::vector<int> stretches;
    for (int stretch = 1; stretch <= points::kMostStretches; ++stretch)
        if (problem.configuration.HasStretch(1, stretch) && problem.EquationsOf(1, stretch).IsComplete())
            stretches.push_back(stretch);
    return stretches;
}

}  // namespace

RelationTimes TimesOf(Relation relation, const Motion& first, const Motion& second, double constant) {
    const Linear linear = LinearOf(relation, constant);
    const double accelerations = Rest(first.a, second.a, linear, 0);
    const bool of_positions = RowOf(relation).of_positions;
    const double speeds = Rest(first.v0, second.v0, linear, of_positions ? 0 : linear.difference);
    RelationTimes found;
    if (of_positions) {
        const double positions = Rest(first.x0, second.x0, linear, linear.difference);
        found.times = numeric::RealRoots(accelerations / 2, speeds, positions);
        found.depends_on_time = accelerations != 0 || speeds != 0;
    } else {
        found.times = numeric::RealRoots(0, accelerations, speeds);
        found.depends_on_time = accelerations != 0;
    }
    return found;
}

Step ApplyRelation(const Problem& problem, Relation relation, std::string_view typed, int decimals) {
    if (problem.configuration.MoverCount() != kSecondMover)
        return Refusal{std::string(kForTwoMovers)};
    const std::string_view constant_text = notation::WithoutBlanks(typed);
    if (!text::IsNum(constant_text))
        return Refusal{std::string(kCheckTheData)};
    if (!problem.EquationsOf(kSecondMover, 1).IsComplete())
        return Refusal{std::string(kSecondNotPlanted)};
    const std::vector<int> stretches = PlantedStretches(problem);
    if (stretches.empty())
        return Refusal{std::string(kFirstNotPlanted)};

    const double constant = text::ToNumber(constant_text);
    bool depends_on_time = false;
    std::vector<std::string> lines;
    for (const int stretch : stretches) {
        StretchReport report = ReportStretch(problem, relation, stretch, constant, decimals);
        depends_on_time = depends_on_time || report.depends_on_time;
        std::move(report.lines.begin(), report.lines.end(), std::back_inserter(lines));
    }
    if (lines.empty())
        return Refusal{std::string(depends_on_time ? kNoSuchPoints : kNoRelationSolution)};
    return Outcome{problem, {WriteLines{std::move(lines)}}};
}

}  // namespace tavrelo::mechanics::motion
