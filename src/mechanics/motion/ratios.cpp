#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>

#include "mechanics/motion/holding.h"
#include "mechanics/motion/two_movers.h"
#include "notation/typed_list.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::motion {

namespace {

using numeric::CheckedDivide;
using numeric::CleanDifference;
using numeric::Finite;
using numeric::RealRootList;
using numeric::RealRoots;
using text::Refusal;
using text::RoundedText;

using Matches = std::vector<RatioMatch>;

constexpr int kSecondMover = 2;

/// Mover 1 and the ratios: at the time sought mover 2 has the position x(t)/p and the speed v(t)/q. Its data
/// are those of `second`.
struct Sought {
    Motion first;
    BaseMotion second;
    double p;
    double q;

    double Position(double t) const { return CheckedDivide(first.PositionAt(t), p); }
    double Speed(double t) const { return CheckedDivide(first.SpeedAt(t), q); }
};

// For each missing datum: the times that the two equations leave when the datum is eliminated, and the datum
// at such a time. x, v are those of mover 1 at t, and T = t - T0.

/// V0 = v/q - A T, put into x/p = X0 + V0 T + A T^2/2.
RealRootList TimesWithoutSpeed(const Sought& s) {
    const auto& [x0, v0, a] = s.first;
    const BaseMotion& m = s.second;
    return RealRoots(Finite(CleanDifference(CleanDifference(a / (2 * s.p), a / s.q), -m.a / 2)),
                     Finite(CleanDifference(CleanDifference(v0 / s.p, v0 / s.q), (m.a - a / s.q) * m.t0)),
                     Finite(x0 / s.p - m.x0 + v0 * m.t0 / s.q + m.a * m.t0 * m.t0 / 2));
}
double SpeedAtBase(const Sought& s, double t) { return s.Speed(t) - s.second.a * (t - s.second.t0); }

/// A = (v/q - V0)/T, put into x/p = X0 + (V0 + v/q) T/2.
RealRootList TimesWithoutAcceleration(const Sought& s) {
    const auto& [x0, v0, a] = s.first;
    const BaseMotion& m = s.second;
    return RealRoots(Finite(CleanDifference(a / (2 * s.p), a / (2 * s.q))),
                     Finite(CleanDifference(CleanDifference(v0 / s.p, m.v0 / 2),
                                            CleanDifference(v0, a * m.t0) / (2 * s.q))),
                     Finite(x0 / s.p - m.x0 + m.v0 * m.t0 / 2 + v0 * m.t0 / (2 * s.q)));
}
/// Nothing at the base itself, where the acceleration does not show.
std::optional<double> AccelerationAt(const Sought& s, double t) {
    const double since = CleanDifference(t, s.second.t0);
    if (since == 0)
        return std::nullopt;
    return CheckedDivide(CleanDifference(s.Speed(t), s.second.v0), since);
}

/// (v/q)^2 = V0^2 + 2 A (x/p - X0); with A = 0 the speeds alone.
RealRootList TimesWithoutStart(const Sought& s) {
    const auto& [x0, v0, a] = s.first;
    const BaseMotion& m = s.second;
    if (m.a == 0)
        return RealRoots(0, a, CleanDifference(v0, Finite(s.q * m.v0)));
    const double part = a / s.q;
    return RealRoots(Finite(CleanDifference(part * part, m.a * a / s.p)),
                     Finite(CleanDifference(2 * part * v0 / s.q, 2 * m.a * v0 / s.p)),
                     Finite(v0 * v0 / (s.q * s.q) - m.v0 * m.v0 - 2 * m.a * (x0 / s.p - m.x0)));
}
double StartAt(const Sought& s, double t) {
    const BaseMotion& m = s.second;
    if (m.a == 0)
        return t - CheckedDivide(s.Position(t) - m.x0, m.v0);
    return t - CheckedDivide(s.Speed(t) - m.v0, m.a);
}

/// v = q V alone.
RealRootList TimesWithoutPosition(const Sought& s) {
    const BaseMotion& m = s.second;
    return RealRoots(0, CleanDifference(s.first.a, Finite(s.q * m.a)),
                     Finite(s.first.v0 - s.q * m.v0 + s.q * m.a * m.t0));
}
double PositionAtBase(const Sought& s, double t) {
    const double since = t - s.second.t0;
    return s.Position(t) - s.second.v0 * since - s.second.a * since * since / 2;
}

/// Whether the speeds fix the time at all, where nothing but them does.
bool SpeedsFixTime(const Sought& s, MissingDatum missing) {
    const bool only_speeds = missing == MissingDatum::X0 || (missing == MissingDatum::T0 && s.second.a == 0);
    return !only_speeds || CleanDifference(s.first.a, Finite(s.q * s.second.a)) != 0;
}

RealRootList TimesWithout(MissingDatum missing, const Sought& s) {
    switch (missing) {
        case MissingDatum::V0:
            return TimesWithoutSpeed(s);
        case MissingDatum::A:
            return TimesWithoutAcceleration(s);
        case MissingDatum::T0:
            return TimesWithoutStart(s);
        case MissingDatum::X0:
            break;
    }
    return TimesWithoutPosition(s);
}

/// The motion of mover 2 with the missing datum as the time t makes it.
std::optional<BaseMotion> CompletedAt(MissingDatum missing, const Sought& s, double t) {
    BaseMotion second = s.second;
    switch (missing) {
        case MissingDatum::V0:
            second.v0 = Finite(SpeedAtBase(s, t));
            break;
        case MissingDatum::A: {
            const auto acceleration = AccelerationAt(s, t);
            if (!acceleration)
                return std::nullopt;
            second.a = *acceleration;
            break;
        }
        case MissingDatum::T0:
            second.t0 = Finite(StartAt(s, t));
            break;
        case MissingDatum::X0:
            second.x0 = Finite(PositionAtBase(s, t));
            break;
    }
    return second;
}

bool Holds(const Sought& s, const RatioMatch& match) {
    const auto& [t, second] = match;
    const double since = t - second.t0;
    return TermsCancel({s.first.x0, s.first.v0 * t, s.first.a * t * t / 2, -s.p * second.x0,
                        -s.p * second.v0 * since, -s.p * second.a * since * since / 2}) &&
           TermsCancel({s.first.v0, s.first.a * t, -s.q * second.v0, -s.q * second.a * since});
}

// ---- What is typed and what the table holds.

using Cells = std::array<text::Value, 4>;  // in the order of MissingDatum

/// V0, A, T0, X0 of mover 2.
Cells SecondMoverData(const Problem& problem) {
    const int column = points::ColumnOfPoint(problem.configuration, kSecondMover, 0);
    return {problem.table.Stored(points::kSpeedRow, column), problem.AccelerationOf(kSecondMover, 1).stored,
            problem.table.Stored(points::kTimeRow, column),
            problem.table.Stored(points::kPositionRow, column)};
}

bool IsAbsent(const text::Value& value) { return notation::WithoutBlanks(value.Text()).empty(); }

/// The one that is absent; nothing when it is not one.
std::optional<MissingDatum> MissingOf(const Cells& data) {
    std::optional<MissingDatum> missing;
    for (std::size_t k = 0; k < data.size(); ++k) {
        if (!IsAbsent(data[k]))
            continue;
        if (missing)
            return std::nullopt;
        missing = static_cast<MissingDatum>(k);
    }
    return missing;
}

BaseMotion SecondMotionOf(const Cells& data, MissingDatum missing) {
    const auto number = [&](MissingDatum datum) {
        return datum == missing ? 0.0 : data[static_cast<std::size_t>(datum)].Number();
    };
    return {number(MissingDatum::T0), number(MissingDatum::X0), number(MissingDatum::V0),
            number(MissingDatum::A)};
}

// ---- Report.

/// How the report speaks of a missing datum: "V0" as "V!0 = 5, en el punto:" before the point or, where the
/// time comes first, as "  si T!0 = 5" behind it.
struct RatioWords {
    const char* ending;  // of the heading
    const char* before;  // of the line of a point, where the datum follows the point
    const char* name;
    const char* again;  // before the second solution
    bool datum_first;
    std::string_view none;
    double BaseMotion::*value;
};

const RatioWords& WordsOf(MissingDatum missing) {
    static constexpr RatioWords kWords[] = {
        {" se cumplen si", "", "V!0 = ", " o si V0 = ", true, "No existe solución para V0.", &BaseMotion::v0},
        {" se cumplen si", "", "A = ", " o si A = ", true, "No existe solución para A.", &BaseMotion::a},
        {" se cumplen en", "t = ", "  si T!0 = ", "o bien en t = ", false, "No existe solución para T0.",
         &BaseMotion::t0},
        {" se cumplen", "en t = ", "  si X!0 = ", "o bien en t = ", false, kNotApplicable, &BaseMotion::x0},
    };
    return kWords[static_cast<std::size_t>(missing)];
}

/// "5, x = 2, v = 3": the time without its name, with what mover 1 has then.
std::string FirstMoverLine(const Motion& first, double t, int decimals) {
    return RoundedText(t, decimals) + ", x = " + RoundedText(first.PositionAt(t), decimals) +
           ", v = " + RoundedText(first.SpeedAt(t), decimals);
}

std::string SecondMoverLine(const RatioMatch& match, int decimals) {
    return "X = " + RoundedText(match.second.PositionAt(match.t), decimals) +
           ", V = " + RoundedText(match.second.SpeedAt(match.t), decimals);
}

void AddMatch(std::vector<std::string>& lines, const RatioWords& words, const Motion& first,
              const RatioMatch& match, bool is_again, int decimals) {
    const std::string datum = RoundedText(match.second.*words.value, decimals);
    const std::string point = FirstMoverLine(first, match.t, decimals);
    const std::string second = SecondMoverLine(match, decimals);
    if (!words.datum_first) {
        lines.push_back((is_again ? words.again : words.before) + point);
        lines.push_back(second + words.name + datum);
        return;
    }
    if (is_again)
        lines.back() += words.again + datum + ", en el punto:";
    else
        lines.push_back(words.name + datum + ", en el punto:");
    lines.push_back("t = " + point);
    lines.push_back(second);
}

std::vector<std::string> ReportOf(MissingDatum missing, const Motion& first, double p, double q,
                                  const Matches& matches, int decimals) {
    const RatioWords& words = WordsOf(missing);
    std::vector<std::string> lines = {"Las condiciones x = " + RoundedText(p, decimals) +
                                      "*X  y  v = " + RoundedText(q, decimals) + "*V" + words.ending};
    bool is_again = false;
    for (const RatioMatch& match : matches) {
        AddMatch(lines, words, first, match, is_again, decimals);
        is_again = true;
    }
    return lines;
}

}  // namespace

double BaseMotion::PositionAt(double t) const {
    const double since = t - t0;
    return Finite(x0 + (v0 + a * since / 2) * since);
}

double BaseMotion::SpeedAt(double t) const { return Finite(v0 + a * (t - t0)); }

std::variant<Refusal, Matches> MatchRatios(const Motion& first, BaseMotion second, MissingDatum missing,
                                           double p, double q) {
    const Sought sought = {first, second, p, q};
    if (!SpeedsFixTime(sought, missing))
        return Refusal{std::string(kNotApplicable)};
    Matches matches;
    for (const double t : TimesWithout(missing, sought)) {
        const auto completed = CompletedAt(missing, sought, t);
        if (completed && Holds(sought, {t, *completed}))
            matches.push_back({t, *completed});
    }
    return matches;
}

Step ApplyRatios(const Problem& problem, std::string_view typed, int decimals) {
    constexpr std::size_t kRatios = 2;
    const auto typed_ratios = notation::ReadNumbers(typed, kRatios);
    const auto* ratios = std::get_if<std::vector<double>>(&typed_ratios);
    if (!ratios)
        return Refusal{std::string(kBadRatios)};
    const double p = ratios->front(), q = ratios->back();
    if (p == 0 || q == 0)
        return Refusal{std::string(kDegenerateRatio)};
    if (problem.configuration.MoverCount() != kSecondMover)
        return Refusal{std::string(kNotApplicable)};
    if (!problem.EquationsOf(1, 1).IsComplete())
        return Refusal{std::string(kFirstStretchNotPlanted)};
    const Cells data = SecondMoverData(problem);
    const auto missing = MissingOf(data);
    if (!missing)
        return Refusal{std::string(kNotApplicable)};

    const Motion first = problem.EquationsOf(1, 1).Expanded();
    const auto answer = MatchRatios(first, SecondMotionOf(data, *missing), *missing, p, q);
    if (const auto* refusal = std::get_if<Refusal>(&answer))
        return *refusal;
    const auto& matches = std::get<Matches>(answer);
    if (matches.empty())
        return Refusal{std::string(WordsOf(*missing).none)};
    return Outcome{problem, {WriteLines{ReportOf(*missing, first, p, q, matches, decimals)}}};
}

}  // namespace tavrelo::mechanics::motion
