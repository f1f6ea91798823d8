// Two movers: what one lacks to have a given ratio of places and one of speeds to the other at some time.

#include <algorithm>
#include <cmath>
#include <utility>

#include "motion/motion_kinds.h"
#include "motion/motion_sheet.h"

namespace tavrelo::physics {
namespace {

namespace motion = mechanics::motion;

constexpr int kPointsOfFirst = 7;
constexpr int kDecimalsOfRatios = 13;
constexpr double kFoundAgain = 1e-3;
constexpr double kClearlyRegular = 0.01;

/// What the second mover lacks.
enum class Lacking { Speed, Acceleration, Time, Place };
constexpr Lacking kLacking[] = {Lacking::Speed, Lacking::Acceleration, Lacking::Time, Lacking::Place};

double& DatumOf(KnownMotion& mover, Lacking lacking) {
    switch (lacking) {
        case Lacking::Speed:
            return mover.vn;
        case Lacking::Acceleration:
            return mover.a;
        case Lacking::Time:
            return mover.tn;
        case Lacking::Place:
            break;
    }
    return mover.xn;
}

void TypeSecond(MotionSheet& sheet, const KnownMotion& second, Lacking lacking) {
    const auto cell = [&](Lacking datum, double value) {
        return lacking == datum ? TypedDatum{} : TypedDatum{Form::Number, Significant(value, 15).text, value};
    };
    sheet.TypeAcceleration(2, 1, cell(Lacking::Acceleration, second.a).text);
    sheet.TypeColumn(
        2, 0,
        {cell(Lacking::Time, second.tn), cell(Lacking::Place, second.xn), cell(Lacking::Speed, second.vn)});
}

/// The times and the missing data of a report, in the order in which they stand.
struct Match {
    double t;
    double datum;
};
std::vector<Match> MatchesOf(const motion::Step& step) {
    std::vector<double> times, data;
    const auto lines = ReportOf(step);
    for (std::size_t k = 1; k < lines.size(); ++k) {
        if (const auto t = NumberAfter(lines[k], "t"))
            times.push_back(*t);
        for (const char* name : {"V!0", "A", "T!0", "X!0", "V0"})
            if (const auto datum = NumberAfter(lines[k], name))
                data.push_back(*datum);
    }
    std::vector<Match> matches;
    for (std::size_t k = 0; k < std::min(times.size(), data.size()); ++k)
        matches.push_back({times[k], data[k]});
    return matches;
}

/// The movers with the ratios that they have at a time, as typed.
struct KnownRatios {
    KnownMotion first;
    KnownMotion second;
    double t = 0;
    Typed p, q;

    /// Where no ratio is extreme and both the time and the datum show in the two conditions.
    bool IsRegular(Lacking lacking) const {
        const double big =
            std::max({std::abs(p.value), std::abs(q.value), 1 / std::abs(p.value), 1 / std::abs(q.value)});
        const auto [place, speed] = SlopesOf(lacking);
        const double with_place = (first.a - q.value * second.a) * p.value * place;
        const double with_speed = (first.V(t) - p.value * second.V(t)) * q.value * speed;
        const double size = std::max({1.0, std::abs(with_place), std::abs(with_speed)});
        return big < 100 && std::abs(with_place - with_speed) > kClearlyRegular * size;
    }

  private:
    /// How place and speed of the second mover change with the missing datum.
    std::pair<double, double> SlopesOf(Lacking lacking) const {
        const double since = t - second.tn;
        switch (lacking) {
            case Lacking::Speed:
                return {since, 1};
            case Lacking::Acceleration:
                return {since * since / 2, since};
            case Lacking::Time:
                return {-second.V(t), -second.a};
            case Lacking::Place:
                break;
        }
        return {1, 0};
    }
};

/// What a match leaves of both ratios, empty when they hold.
std::string WhyNot(const KnownRatios& known, const KnownMotion& other, double t) {
    const KnownMotion& first = known.first;
    const double p = known.p.value, q = known.q.value;
    const double since = t - other.tn, after = t - first.tn;
    const Sum places = SumOf({first.xn, first.vn * after, first.a * after * after / 2, -p * other.xn,
                              -p * other.vn * since, -p * other.a * since * since / 2});
    const Sum speeds = SumOf({first.vn, first.a * after, -q * other.vn, -q * other.a * since});
    if (!places.Vanishes())
        return "the places leave " + places.Told();
    return speeds.Vanishes() ? std::string() : "the speeds leave " + speeds.Told();
}

Verdict Judge(const motion::Step& step, const KnownRatios& known, Lacking lacking) {
    if (const std::string* message = MessageOf(step))
        return known.IsRegular(lacking) ? Wrong("refused: " + *message) : Refused(*message);
    const auto matches = MatchesOf(step);
    if (matches.empty())
        return Wrong("nothing is read in the report");
    KnownMotion whole = known.second;
    bool is_found = false;
    for (const Match& match : matches) {
        KnownMotion other = known.second;
        DatumOf(other, lacking) = match.datum;
        if (const std::string why = WhyNot(known, other, match.t); !why.empty())
            return Wrong("t = " + Digits(match.t) + ", found " + Digits(match.datum) + ": " + why);
        is_found = is_found || std::abs(match.datum - DatumOf(whole, lacking)) < kFoundAgain;
    }
    return is_found || !known.IsRegular(lacking) ? Right() : Wrong("the datum is not found again");
}

}  // namespace

Verdict PlayRatios(Problem& problem) {
    Chance& chance = problem.chance;
    KnownRatios known = {AnyMotion(chance), AnyMotion(chance), BookNumber(chance, 8), {}, {}};
    const auto& [first, second, t, p, q] = known;
    const Lacking lacking = chance.Of(kLacking);
    problem.Type(first.Told() + " and " + second.Told() + " at " + Digits(t));
    if (IsNearlyZero(second.X(t), second.ScaleOfX(t)) || IsNearlyZero(second.V(t), second.ScaleOfV(t)))
        return Right();  // there is no ratio
    known.p = Rounded(first.X(t) / second.X(t), kDecimalsOfRatios);
    known.q = Rounded(first.V(t) / second.V(t), kDecimalsOfRatios);
    MotionSheet sheet = MotionSheet::OfTwoMovers(problem, kPointsOfFirst);
    sheet.TypeAcceleration(1, 1, Significant(first.a, 15).text);
    sheet.TypeBase(1, 0, first, true);
    sheet.Plant({1, 1, 0});
    TypeSecond(sheet, second, lacking);
    return Judge(sheet.Run(motion::Procedure::PositionAndSpeedRatio, p.text + ", " + q.text), known, lacking);
}

}  // namespace tavrelo::physics
