#include "mechanics/motion/interval_equations.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <optional>
#include <span>

#include "numeric/checked.h"
#include "numeric/real_roots.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::motion {

namespace {

using notation::IntervalData;
using notation::IntervalDatum;
using numeric::CheckedDivide;
using numeric::Finite;
using text::Refusal;

/// The quantities of an interval; each is known by itself or by two others of its kind.
struct Interval {
    double a = 0, dt = 0, dx = 0, vi = 0, vf = 0, dv = 0;
};

// Which quantities are known, as a sum of bits.
constexpr unsigned kA = 1, kDt = 2, kDx = 4, kVi = 8, kVf = 16, kDv = 32;

// How the known quantities were given, as bits, for the refusals that speak of it.
constexpr unsigned kDirect = 1;     // each by itself
constexpr unsigned kTimeEnds = 2;   // dt by ti and tf
constexpr unsigned kPlaceEnds = 4;  // dx by xi and xf
constexpr unsigned kAnchored = 8;   // each by itself, and one end of time or position beside them
constexpr unsigned kEveryForm = kDirect | kTimeEnds | kPlaceEnds | kAnchored;

/// Which quantities the data tell, and how.
struct Given {
    unsigned known = 0;
    unsigned form = kDirect;
    Interval interval;
    std::optional<IntervalDatum> anchor;
};

// ---- Formulas: each finds one quantity from those known before it.

using Step = void (*)(Interval&);

void AccelFromTime(Interval& i) { i.a = CheckedDivide(i.vf - i.vi, i.dt); }
void AccelFromPlace(Interval& i) {
    i.a = CheckedDivide(Finite((i.vf - i.vi) * (i.vf + i.vi)), Finite(2 * i.dx));
}
void TimeFromAccel(Interval& i) { i.dt = CheckedDivide(i.vf - i.vi, i.a); }
void TimeFromChange(Interval& i) { i.dt = CheckedDivide(i.dv, i.a); }
void TimeFromMeanSpeed(Interval& i) { i.dt = CheckedDivide(Finite(2 * i.dx), i.vi + i.vf); }
/// Two speeds of one sign have a sum free of cancellation; when both are 0 only the acceleration tells.
void TimeFromSpeeds(Interval& i) {
    if (i.vi + i.vf == 0)
        TimeFromAccel(i);
    else
        TimeFromMeanSpeed(i);
}
void PlaceFromTime(Interval& i) { i.dx = Finite((i.vi + i.vf) / 2 * i.dt); }
void FinalSpeedFromTime(Interval& i) { i.vf = Finite(i.vi + i.a * i.dt); }
void InitialSpeedFromTime(Interval& i) { i.vi = Finite(i.vf - i.a * i.dt); }
void FinalSpeedFromMean(Interval& i) { i.vf = Finite(2 * CheckedDivide(i.dx, i.dt) - i.vi); }
void InitialSpeedFromMean(Interval& i) { i.vi = Finite(2 * CheckedDivide(i.dx, i.dt) - i.vf); }
void InitialSpeedFromAccel(Interval& i) { i.vi = Finite(CheckedDivide(i.dx, i.dt) - i.a * i.dt / 2); }
void InitialSpeedFromChange(Interval& i) { i.vi = Finite(CheckedDivide(i.dx, i.dt) - i.dv / 2); }
void FinalSpeedFromChange(Interval& i) { i.vf = Finite(i.vi + i.dv); }

double FinalSpeedSquared(const Interval& i) {
    return numeric::CleanDifference(Finite(i.vi * i.vi), Finite(-2 * i.a * i.dx));
}
double InitialSpeedSquared(const Interval& i) {
    return numeric::CleanDifference(Finite(i.vf * i.vf), Finite(2 * i.a * i.dx));
}
/// With the sign of the other speed, or that of `beside_zero` when the other is 0.
double SpeedOf(double squared, double other, double beside_zero) {
    return std::copysign(numeric::CheckedSqrt(squared), other != 0 ? other : beside_zero);
}
void FinalSpeedFromPlace(Interval& i) { i.vf = SpeedOf(FinalSpeedSquared(i), i.vi, i.a); }
void InitialSpeedFromPlace(Interval& i) { i.vi = SpeedOf(InitialSpeedSquared(i), i.vf, -i.a); }

// ---- Refusals.

bool NoAccel(const Interval& i) { return i.a == 0; }
bool NoTime(const Interval& i) { return i.dt == 0; }
bool NoPlace(const Interval& i) { return i.dx == 0; }
bool NoChange(const Interval& i) { return i.dv == 0; }
bool EqualSpeeds(const Interval& i) { return i.vi == i.vf; }
bool OppositeSpeeds(const Interval& i) { return i.vi == -i.vf; }
bool NoAccelOrPlace(const Interval& i) { return i.a == 0 || i.dx == 0; }
bool NoFinalSpeed(const Interval& i) { return FinalSpeedSquared(i) < 0; }
bool NoInitialSpeed(const Interval& i) { return InitialSpeedSquared(i) < 0; }
/// The unknown speed is still 0 here.
bool NoMotion(const Interval& i) { return i.a == 0 && i.vi == 0 && i.vf == 0; }

struct Rule {
    unsigned forms;
    bool (*applies)(const Interval&);
    std::string_view text;
};

constexpr std::string_view kZero = "Valor 0 no permitido";
constexpr std::string_view kNoSpeedOrTime = "No hay solución para vi o dt";

constexpr Rule kZeroTime[] = {{kEveryForm, NoTime, kZero}};
constexpr Rule kZeroAccel[] = {{kEveryForm, NoAccel, kZero}};
constexpr Rule kZeroPlace[] = {{kEveryForm, NoPlace, kZero}, {kEveryForm, OppositeSpeeds, kZero}};
constexpr Rule kZeroAccelOrChange[] = {{kEveryForm, NoAccel, kZero}, {kEveryForm, NoChange, kZero}};
constexpr Rule kNamedTime[] = {
    {kTimeEnds, NoTime, "ti no debe ser igual a tf."},
    {kDirect | kPlaceEnds, NoTime, "Valor 0 de dt no permitido."},
    {kAnchored, NoTime, kZero},
};
constexpr Rule kNamedAccel[] = {{kEveryForm, NoAccel, "Valor 0 de la aceleración no permitido."}};
constexpr Rule kNamedPlace[] = {
    {kDirect, NoPlace, "Valor 0 de dx no permitido."},
    {kDirect, EqualSpeeds, "Si vi = vf entonces dx = 0."},
    {kPlaceEnds, NoPlace, "Si xi = xf entonces vi = -vf. Datos insuficientes."},
    {kPlaceEnds, OppositeSpeeds, "Si vi = -vf entonces xi = xf. Datos insuficientes."},
    {kAnchored, NoPlace, kZero},
    {kAnchored, OppositeSpeeds, kZero},
};
constexpr Rule kFindInitialSpeed[] = {
    {kPlaceEnds, NoAccelOrPlace, "No puede ser a = 0 ni xi = xf."},
    {kPlaceEnds, NoInitialSpeed, "No hay solución para vi"},
    {kDirect, NoInitialSpeed, "No hay solución para vi."},
    {kAnchored, NoInitialSpeed, kNoSpeedOrTime},
    {kAnchored, NoMotion, kZero},
};
constexpr Rule kFindFinalSpeed[] = {
    {kDirect | kPlaceEnds, NoFinalSpeed, "No hay solución para vf."},
    {kAnchored, NoFinalSpeed, kNoSpeedOrTime},
    {kAnchored, NoMotion, kZero},
};

// ---- The sets of known quantities.

/// A set of three known quantities: how the others are found, which are reported in which order, and what is
/// refused (the first rule that applies).
struct KnownSet {
    unsigned known;
    Step steps[3];
    IntervalDatum results[3];
    std::size_t result_count;
    std::span<const Rule> rules;
};

constexpr auto a = IntervalDatum::a, dt = IntervalDatum::dt, dx = IntervalDatum::dx, vi = IntervalDatum::vi,
               vf = IntervalDatum::vf;

constexpr KnownSet kSets[] = {
    {kDt | kVi | kVf, {AccelFromTime, PlaceFromTime}, {a, dx}, 2, kNamedTime},
    {kDt | kDx | kA, {InitialSpeedFromAccel, FinalSpeedFromTime}, {vi, vf}, 2, kNamedTime},
    {kDt | kDx | kVi, {FinalSpeedFromMean, AccelFromTime}, {a, vf}, 2, kNamedTime},
    {kDt | kDx | kVf, {InitialSpeedFromMean, AccelFromTime}, {a, vi}, 2, kNamedTime},
    {kA | kVi | kVf, {TimeFromAccel, PlaceFromTime}, {dt, dx}, 2, kNamedAccel},
    {kDx | kVi | kVf, {AccelFromPlace, TimeFromMeanSpeed}, {a, dt}, 2, kNamedPlace},
    {kDx | kA | kVf, {InitialSpeedFromPlace, TimeFromSpeeds}, {vi, dt}, 2, kFindInitialSpeed},
    {kDx | kA | kVi, {FinalSpeedFromPlace, TimeFromSpeeds}, {vf, dt}, 2, kFindFinalSpeed},
    {kDt | kA | kVi, {FinalSpeedFromTime, PlaceFromTime}, {vf, dx}, 2, kZeroTime},
    {kDt | kA | kVf, {InitialSpeedFromTime, PlaceFromTime}, {vi, dx}, 2, kZeroTime},
    // With the change of speed and one speed, the other is known from the start.
    {kDt | kDv | kVi, {AccelFromTime, PlaceFromTime}, {vf, a, dx}, 3, kZeroTime},
    {kDt | kDv | kVf, {AccelFromTime, PlaceFromTime}, {vi, a, dx}, 3, kZeroTime},
    {kA | kDv | kVi, {TimeFromAccel, PlaceFromTime}, {vf, dt, dx}, 3, kZeroAccel},
    {kA | kDv | kVf, {TimeFromAccel, PlaceFromTime}, {vi, dt, dx}, 3, kZeroAccel},
    {kDx | kDv | kVi, {AccelFromPlace, TimeFromMeanSpeed}, {vf, a, dt}, 3, kZeroPlace},
    {kDx | kDv | kVf, {AccelFromPlace, TimeFromMeanSpeed}, {vi, a, dt}, 3, kZeroPlace},
    {kDt | kDx | kDv,
     {InitialSpeedFromChange, FinalSpeedFromChange, AccelFromTime},
     {vi, vf, a},
     3,
     kZeroTime},
    {kA | kDx | kDv,
     {TimeFromChange, InitialSpeedFromChange, FinalSpeedFromChange},
     {vi, vf, dt},
     3,
     kZeroAccelOrChange},
};

const KnownSet* SetOf(unsigned known) {
    const auto* const set = std::find_if(std::begin(kSets), std::end(kSets),
                                         [known](const KnownSet& row) { return row.known == known; });
    return set == std::end(kSets) ? nullptr : set;
}

// ---- Reading which quantities are known.

/// The names of a group: both ends and their change, with the bit of the change and its place in the
/// interval.
struct EndsAndChange {
    IntervalDatum first, last, change;
    unsigned known;
    unsigned ends_form;
    double Interval::*value;
};
constexpr EndsAndChange kTimes = {IntervalDatum::ti, IntervalDatum::tf, dt, kDt, kTimeEnds, &Interval::dt};
constexpr EndsAndChange kPlaces = {IntervalDatum::xi, IntervalDatum::xf, dx, kDx, kPlaceEnds, &Interval::dx};

void ReadSingle(const IntervalData& data, IntervalDatum datum, unsigned known, double& value, Given& given) {
    if (data.Has(datum)) {
        given.known |= known;
        value = *data[datum];
    }
}

/// Reads one group. False when its change is given twice, or when ends are given in both groups.
bool ReadGroup(const IntervalData& data, const EndsAndChange& group, Given& given) {
    ReadSingle(data, group.change, group.known, given.interval.*group.value, given);
    const bool has_first = data.Has(group.first), has_last = data.Has(group.last);
    if (!has_first && !has_last)
        return true;
    if (given.form != kDirect)
        return false;
    if (!has_first || !has_last) {
        given.anchor = has_first ? group.first : group.last;
        given.form = kAnchored;
        return true;
    }
    given.form = group.ends_form;
    given.interval.*group.value = Finite(*data[group.last] - *data[group.first]);
    const bool only_ends = (given.known & group.known) == 0;
    given.known |= group.known;
    return only_ends;
}

void CompleteSpeeds(Given& given) {
    const unsigned speeds = given.known & (kVi | kVf | kDv);
    if (speeds == (kVi | kDv))
        given.interval.vf = Finite(given.interval.vi + given.interval.dv);
    if (speeds == (kVf | kDv))
        given.interval.vi = Finite(given.interval.vf - given.interval.dv);
}

std::optional<Given> ReadGiven(const IntervalData& data) {
    Given given;
    if (!ReadGroup(data, kTimes, given) || !ReadGroup(data, kPlaces, given))
        return std::nullopt;
    ReadSingle(data, a, kA, given.interval.a, given);
    ReadSingle(data, vi, kVi, given.interval.vi, given);
    ReadSingle(data, vf, kVf, given.interval.vf, given);
    ReadSingle(data, IntervalDatum::dv, kDv, given.interval.dv, given);
    CompleteSpeeds(given);
    return given;
}

// ---- Results.

double ValueOf(const Interval& interval, IntervalDatum datum) {
    switch (datum) {
        case a:
            return interval.a;
        case dt:
            return interval.dt;
        case dx:
            return interval.dx;
        case vi:
            return interval.vi;
        default:
            return interval.vf;
    }
}

/// The end of time or position across the interval from the given one.
IntervalResult OtherEnd(const IntervalData& data, const Interval& interval, IntervalDatum anchor) {
    const EndsAndChange& group = anchor == kTimes.first || anchor == kTimes.last ? kTimes : kPlaces;
    const double change = interval.*group.value;
    if (anchor == group.first)
        return {group.last, Finite(*data[anchor] + change)};
    return {group.first, Finite(*data[anchor] - change)};
}

const char* LabelOf(IntervalDatum datum) {
    constexpr const char* kLabels[] = {"a", "t!i", "t!f", ";Dt", "x!i", "x!f", ";Dx", "v!i", "v!f", ";Dv"};
    return kLabels[static_cast<std::size_t>(datum)];
}

void AddShown(std::string& line, IntervalDatum datum, double value, int decimals) {
    if (!line.empty())
        line += ", ";
    line.append(LabelOf(datum)).append(" = ").append(text::RoundedText(value, decimals));
}

}  // namespace

std::variant<Refusal, IntervalResults> SolveInterval(const IntervalData& data) {
    const std::optional<Given> given = ReadGiven(data);
    const KnownSet* const set = given ? SetOf(given->known) : nullptr;
    if (!set)
        return Refusal{std::string(kInconsistentInterval)};
    Interval interval = given->interval;
    for (const Rule& rule : set->rules)
        if ((rule.forms & given->form) != 0 && rule.applies(interval))
            return Refusal{std::string(rule.text)};
    for (const Step step : set->steps)
        if (step)
            step(interval);

    IntervalResults results;
    // Between two given speeds the report keeps to duration and distance.
    if (given->anchor && set->known != (kA | kVi | kVf))
        results.push_back(OtherEnd(data, interval, *given->anchor));
    for (std::size_t k = 0; k < set->result_count; ++k)
        results.push_back({set->results[k], ValueOf(interval, set->results[k])});
    return results;
}

std::vector<std::string> IntervalReport(const IntervalData& data, const IntervalResults& results,
                                        int decimals) {
    std::string given;
    for (std::size_t k = 0; k < notation::kIntervalData; ++k) {
        const auto datum = static_cast<IntervalDatum>(k);
        if (data.Has(datum))
            AddShown(given, datum, *data[datum], decimals);
    }
    std::string found;
    for (const IntervalResult& result : results)
        AddShown(found, result.datum, result.value, decimals);
    return {"Sust. en las ecs. de intervalo:", "Datos: " + given, found};
}

std::variant<Refusal, std::vector<std::string>> ApplyIntervalEquations(std::string_view line, int decimals) {
    const auto data = notation::ReadIntervalLine(line);
    if (const auto* refusal = std::get_if<Refusal>(&data))
        return *refusal;
    const auto results = SolveInterval(std::get<IntervalData>(data));
    if (const auto* refusal = std::get_if<Refusal>(&results))
        return *refusal;
    return IntervalReport(std::get<IntervalData>(data), std::get<IntervalResults>(results), decimals);
}

}  // namespace tavrelo::mechanics::motion
