#include "mechanics/motion/substitution.h"

#include <string>

#include "mechanics/motion/candidates.h"
#include "mechanics/motion/data_pair.h"
#include "mechanics/motion/holding.h"
#include "mechanics/motion/interval_cases.h"
#include "numeric/checked.h"
#include "numeric/real_roots.h"

namespace tavrelo::mechanics::motion {
namespace {

constexpr const char* kMissing = "No tengo las ecuaciones sin parámetros";
constexpr const char* kUniformDatum = "Dato no aplicable al movimiento uniforme.";
constexpr const char* kNotReached = "El móvil no alcanza esta posición.";
constexpr const char* kAccelerationGiven = "La aceleración ya está dada.";
constexpr const char* kKnownStart = "El punto inicial del intervalo debe ser completamente desconocido.";
constexpr const char* kZeroFactor = "El factor \"C\" no puede ser 0.";
constexpr const char* kNoSolution = "No hay solución.";
constexpr const char* kFactorTitle = "Sustituir en las ecs. sin parámetros";
constexpr const char* kSolutionSeparator = "--------------";
constexpr const char* kFound = "Se halló: ";
constexpr const char* kOrElse = "o bien ";
constexpr const char* kComma = ", ";

/// A click on a point of a stretch with complete equations.
struct Click {
    const Problem& problem;
    points::PointPlace place;
    Motion motion;
    Labels labels;

    int Column() const { return points::ColumnOfPoint(problem.configuration, place); }
    std::string Header() const { return "Sust. en las ecs." + OfStretch(place.mover, place.stretch); }
    FoundPoint PointAt(int point, double t) const {
        return {point, t, motion.PositionAt(t), motion.SpeedAt(t)};
    }
};

template <typename Point>
auto& ValueOf(Point& found, Quantity quantity) {
    switch (quantity) {
        case Quantity::Time:
            return found.t;
        case Quantity::Position:
            return found.x;
        case Quantity::Speed:
            break;
    }
    return found.v;
}

/// What one number finds: the two other quantities of the point, for one moment or two. The root of `shown`
/// goes to the table, the other one only to the report.
Outcome FoundRest(const Click& click, Quantity given, double value, const std::vector<double>& times,
                  std::size_t shown) {
    Outcome outcome = {click.problem, {}};
    Results& results = outcome.problem.results;
    results = {click.place.mover, click.place.stretch, {}};
    std::vector<Quantity> wanted;
    for (const Quantity quantity : {Quantity::Time, Quantity::Position, Quantity::Speed}) {
        if (quantity != given)
            wanted.push_back(quantity);
    }
    for (const double t : times) {
        FoundPoint found = click.PointAt(click.place.point, t);
        ValueOf(found, given) = value;
        results.solutions.push_back({found, std::nullopt});
    }
    const auto values = [&](std::size_t solution) {
        const FoundPoint& found = results.solutions[solution].first;
        return click.labels.Given(wanted[0], found.point, ValueOf(found, wanted[0])) + kComma +
               click.labels.Given(wanted[1], found.point, ValueOf(found, wanted[1]));
    };
    for (const Quantity quantity : wanted)
        outcome.problem.table.SetNumber(RowOf(quantity), click.Column(),
                                        ValueOf(results.solutions[shown].first, quantity),
                                        click.labels.Decimals());
    std::vector<std::string> lines = {click.Header() + ":   " + click.labels.At(given, click.place.point) +
                                          " = " + click.labels.PlainNumber(value),
                                      kFound + values(shown)};
    if (results.HasSecond())
        lines.push_back(kOrElse + values(1 - shown));
    outcome.events.emplace_back(WriteLines{std::move(lines)});
    if (results.HasSecond())
        outcome.events.emplace_back(ShowResults{});
    return outcome;
}

Step SubstituteTime(const Click& click, double t) { return FoundRest(click, Quantity::Time, t, {t}, 0); }

Step SubstituteSpeed(const Click& click, double v) {
    const auto time = TimeOfSpeed(click.motion, v);
    if (const auto* refusal = std::get_if<text::Refusal>(&time))
        return *refusal;
    return FoundRest(click, Quantity::Speed, v, {std::get<double>(time)}, 0);
}

/// The one root that lies in the future; else the first.
std::size_t FutureRoot(const std::vector<double>& times) {
    return times.size() > 1 && times[1] >= 0.0 && times[0] < 0.0 ? 1 : 0;
}

Step SubstitutePosition(const Click& click, double x) {
    const Motion& motion = click.motion;
    // A place copied with all its digits from where the mover rests must not lie beyond it by rounding.
    const double away = numeric::CleanDifference(motion.x0, x);
    Candidates times = CandidatesOf(numeric::RealRoots(0.5 * motion.a, motion.v0, away));
    std::erase_if(times, [&](double t) {
        return !TermsCancel({0.5 * motion.a * t * t, motion.v0 * t, motion.x0, -x});
    });
    if (times.empty())
        return text::Refusal{kNotReached};
    return FoundRest(click, Quantity::Position, x, times, FutureRoot(times));
}

/// The terms whose sum is a quantity at a moment.
std::vector<double> TermsOf(const Motion& motion, Quantity quantity, double t, double factor) {
    switch (quantity) {
        case Quantity::Time:
            return {factor * t};
        case Quantity::Position:
            return {factor * motion.x0, factor * motion.v0 * t, factor * 0.5 * motion.a * t * t};
        case Quantity::Speed:
            break;
    }
    return {factor * motion.v0, factor * motion.a * t};
}

/// Whether the ends of an interval are related as the datum says.
bool Holds(const Motion& motion, const Interval& interval, const DatumKey& key, double value) {
    const bool is_factor = key.form == Form::Factor;
    std::vector<double> terms = TermsOf(motion, key.quantity, interval.tf, 1.0);
    const auto start = TermsOf(motion, key.quantity, interval.ti, is_factor ? -value : -1.0);
    terms.insert(terms.end(), start.begin(), start.end());
    if (!is_factor)
        terms.push_back(-value);
    return TermsCancel(terms);
}

/// One row of the table of pairs: which two data over an earlier point lead to which calculation.
struct PairRow {
    DatumKey first;
    DatumKey second;
    Intervals (*find)(const Motion& motion, double first, double second);

    bool HasFactor() const { return second.form == Form::Factor; }
};

Intervals RefuseGivenAcceleration(const Motion&, double, double) { return text::Refusal{kAccelerationGiven}; }

constexpr PairRow kPairRows[] = {
    {kTimeIncrement, kSpeedIncrement, RefuseGivenAcceleration},
    {kTimeIncrement, kPositionIncrement, IntervalOfDtDx},
    {kPositionIncrement, kSpeedIncrement, IntervalOfDxDv},
    {kTimeIncrement, kPositionFactor, IntervalOfDtPositionFactor},
    {kTimeIncrement, kSpeedFactor, IntervalOfDtSpeedFactor},
    {kPositionIncrement, kTimeFactor, IntervalOfDxTimeFactor},
    {kPositionIncrement, kSpeedFactor, IntervalOfDxSpeedFactor},
    {kSpeedIncrement, kTimeFactor, IntervalOfDvTimeFactor},
    {kSpeedIncrement, kPositionFactor, IntervalOfDvPositionFactor},
};

/// What may not be substituted, before anything is calculated.
std::optional<text::Refusal> CheckStart(const Click& click, const PairRow& row, const PairValues& values) {
    if (!row.HasFactor()) {
        // A point that differs from itself is no interval.
        return *values.referred == click.place.point ? std::optional(text::Refusal{kNoSolution})
                                                     : std::nullopt;
    }
    const int column =
        points::ColumnOfPoint(click.problem.configuration, click.place.mover, *values.referred);
    if (!click.problem.table.IsEmptyColumn(column))
        return text::Refusal{kKnownStart};
    if (values.second == 0.0)
        return text::Refusal{kZeroFactor};
    return std::nullopt;
}

std::vector<std::string> HeadOf(const Click& click, const PairRow& row, const PairValues& values) {
    const Labels& labels = click.labels;
    if (!row.HasFactor()) {
        return {click.Header() + " los datos:",
                labels.PlainIncrement(row.first.quantity, values.first) + kComma +
                    labels.PlainIncrement(row.second.quantity, values.second)};
    }
    return {kFactorTitle,
            "Datos: " + labels.Increment(row.first.quantity, values.first) + kComma +
                labels.Factor(row.second.quantity, click.place.point, *values.referred, values.second)};
}

Outcome FoundIntervals(const Click& click, const PairRow& row, const PairValues& values,
                       const std::vector<Interval>& intervals) {
    Outcome outcome = {click.problem, {}};
    Results& results = outcome.problem.results;
    results = {click.place.mover, click.place.stretch, {}};
    std::vector<std::string> lines = HeadOf(click, row, values);
    for (const Interval& interval : intervals) {
        if (!results.solutions.empty())
            lines.push_back(kSolutionSeparator);
        const FoundPoint start = click.PointAt(*values.referred, interval.ti);
        const FoundPoint end = click.PointAt(click.place.point, interval.tf);
        results.solutions.push_back({start, end});
        lines.push_back(click.labels.Point(start));
        lines.push_back(click.labels.Point(end));
    }
    outcome.events = {WriteLines{std::move(lines)}, ShowResults{}};
    return outcome;
}

Step SubstitutePair(const Click& click, const PairRow& row, const PairValues& values) {
    if (const auto refusal = CheckStart(click, row, values))
        return *refusal;
    Intervals found = row.find(click.motion, values.first, values.second);
    if (const auto* refusal = std::get_if<text::Refusal>(&found))
        return *refusal;
    auto& intervals = std::get<std::vector<Interval>>(found);
    std::erase_if(intervals, [&](const Interval& interval) {
        return !Holds(click.motion, interval, row.first, values.first) ||
               !Holds(click.motion, interval, row.second, values.second);
    });
    if (intervals.empty())
        return text::Refusal{kNoSolution};
    return FoundIntervals(click, row, values, intervals);
}

}  // namespace

std::variant<text::Refusal, double> TimeOfSpeed(const Motion& motion, double v) {
    if (motion.a == 0.0)
        return text::Refusal{kUniformDatum};
    return numeric::CheckedDivide(v - motion.v0, motion.a);
}

Step Substitute(const Problem& problem, const points::PointPlace& place, const PointData& data,
                int decimals) {
    const Equations& equations = problem.EquationsOf(place.mover, place.stretch);
    if (!equations.IsComplete())
        return text::Refusal{kMissing + OfStretch(place.mover, place.stretch)};
    const Click click = {problem, place, equations.Expanded(), Labels(place.mover, place.stretch, decimals)};
    if (const auto t = ValueOf(data, kTime))
        return SubstituteTime(click, *t);
    if (const auto x = ValueOf(data, kPosition))
        return SubstitutePosition(click, *x);
    if (const auto v = ValueOf(data, kSpeed))
        return SubstituteSpeed(click, *v);
    for (const PairRow& row : kPairRows) {
        if (const auto values = ValuesOf(data, row.first, row.second))
            return SubstitutePair(click, row, *values);
    }
    return Outcome{problem, {}};
}

}  // namespace tavrelo::mechanics::motion
