// The interval equations: three or four data of one interval, typed in a line.

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "motion/motion_kinds.h"
#include "motion/motion_sheet.h"

namespace tavrelo::physics {
namespace {

namespace motion = mechanics::motion;

/// The data by their names in the line, in the order of the report, and by their names there.
enum Name { A, Ti, Tf, Dt, Xi, Xf, Dx, Vi, Vf, Dv, kNames };
constexpr const char* kTypedNames[kNames] = {"a", "ti", "tf", "dt", "xi", "xf", "dx", "vi", "vf", "dv"};
constexpr const char* kReportNames[kNames] = {"a",   "t!i", "t!f", ";Dt", "x!i",
                                              "x!f", ";Dx", "v!i", "v!f", ";Dv"};

using Numbers = std::array<double, kNames>;
using Known = std::array<std::optional<double>, kNames>;

Numbers NumbersOf(const KnownInterval& each) {
    return {each.motion.a, each.ti,   each.tf,   each.Dt(), each.xi(),
            each.xf(),     each.Dx(), each.vi(), each.vf(), each.Dv()};
}

/// A quantity at both ends and its change; any two tell the third.
constexpr std::array<std::array<Name, 3>, 3> kGroups = {{{Ti, Tf, Dt}, {Xi, Xf, Dx}, {Vi, Vf, Dv}}};

void Complete(Known& known) {
    for (const auto& [start, end, change] : kGroups) {
        if (known[start] && known[end] && !known[change])
            known[change] = *known[end] - *known[start];
        if (known[start] && known[change] && !known[end])
            known[end] = *known[start] + *known[change];
        if (known[end] && known[change] && !known[start])
            known[start] = *known[end] - *known[change];
    }
}

/// Whether the data determine the interval, counted in what is independent: the acceleration, the duration,
/// the displacement, and each speed or the change of speed. A lone end of time or place says nothing of it.
bool IsDetermined(const Known& data) {
    for (const auto& [start, end, change] : kGroups)
        if (data[start] && data[end] && data[change])
            return false;
    Known known = data;
    for (const auto& [start, end, change] : {kGroups[0], kGroups[1]})
        if (known[start] && known[end])
            known[change] = *known[end] - *known[start];
    int independent = 0;
    for (const Name name : {A, Dt, Dx, Vi, Vf, Dv})
        independent += known[name] ? 1 : 0;
    return independent == 3 && !(known[A] && known[Dt] && known[Dv]);
}

/// Where no formula divides by nothing and the sign of a speed is that of the other.
bool IsOrdinary(const KnownInterval& each) {
    const double speeds = each.ScaleOfV();
    return !IsNearlyZero(each.Dv(), speeds) && !IsNearlyZero(each.Dx(), each.ScaleOfX()) &&
           !IsNearlyZero(each.vi() + each.vf(), speeds);
}

/// What an interval leaves of its laws, empty when they hold.
std::string WhyNoInterval(const Known& known) {
    const auto sum = [&](std::initializer_list<double> terms) { return SumOf(terms); };
    const double a = *known[A], dt = *known[Dt], dx = *known[Dx], vi = *known[Vi], vf = *known[Vf];
    const double scale = std::abs(a * dt) + std::abs(vi) + std::abs(vf);
    if (const Sum speeds = sum({vi, a * dt, -vf}); !Holds(speeds, scale))
        return "vf = vi + a dt leaves " + speeds.Told();
    if (const Sum places = sum({vi * dt, a * dt * dt / 2, -dx}); !Holds(places, scale * std::abs(dt)))
        return "dx = vi dt + a dt dt/2 leaves " + places.Told();
    for (const auto& [start, end, change] : kGroups)
        if (known[start] && known[end])
            if (const Sum ends = sum({*known[start], *known[change], -*known[end]});
                !Holds(ends, std::abs(*known[start])))
                return std::string(kTypedNames[change]) + " leaves " + ends.Told();
    return {};
}

bool DetermineAnInterval(const std::vector<Name>& names) {
    Known known;
    for (const Name name : names)
        known[name] = 1;
    return IsDetermined(known);
}

/// Three or four names in any order.
std::vector<Name> SomeNames(Chance& chance) {
    std::vector<Name> names = {A, Ti, Tf, Dt, Xi, Xf, Dx, Vi, Vf, Dv};
    for (std::size_t k = names.size() - 1; k > 0; --k)
        std::swap(names[k], names[chance.Below(k + 1)]);
    names.resize(chance.OneIn(3) ? 3 : 4);
    return names;
}

/// Mostly names that determine an interval.
std::vector<Name> SensibleNames(Chance& chance) {
    std::vector<Name> names = SomeNames(chance);
    while (!DetermineAnInterval(names) && !chance.OneIn(10))
        names = SomeNames(chance);
    return names;
}

/// How the data come from an interval: as they are, rounded as in a book, or each from another interval.
enum class Source { Itself, Rounded, Mixed };

Known TypeData(Chance& chance, const KnownInterval& interval, Source source, std::string& line) {
    Known data;
    for (const Name name : SensibleNames(chance)) {
        const KnownInterval from = source == Source::Mixed ? PlainInterval(chance) : interval;
        const double number = NumbersOf(from)[name];
        const Typed typed =
            source == Source::Rounded ? Rounded(number, 2) : AllDigits(number, 10 * from.ScaleOfX() + 10);
        data[name] = typed.value;
        line += (line.empty() ? "" : ", ") + std::string(kTypedNames[name]) + " = " + typed.text;
    }
    return data;
}

}  // namespace

Verdict PlayIntervalLine(Problem& problem) {
    Chance& chance = problem.chance;
    const KnownInterval interval = PlainInterval(chance);
    constexpr Source kSources[] = {Source::Itself, Source::Itself, Source::Rounded, Source::Mixed};
    const Source source = chance.Of(kSources);
    std::string line;
    Known known = TypeData(chance, interval, source, line);
    const bool is_determined = IsDetermined(known);
    const bool is_solvable = is_determined && source == Source::Itself && IsOrdinary(interval);
    MotionSheet sheet(problem);
    const motion::Step step = sheet.Run(motion::Procedure::Interval, line);
    constexpr std::string_view kInconsistent = "Datos de más, de menos, o inconsistentes";
    if (const std::string* message = MessageOf(step))
        return is_solvable || is_determined == (*message == kInconsistent) ? Wrong("refused: " + *message)
                                                                           : Refused(*message);
    if (!is_determined)
        return Wrong("an interval is told that the data do not determine");
    const std::string results = ReportOf(step).back();
    for (int name = 0; name < kNames; ++name)
        if (const auto number = NumberAfter(results, kReportNames[name])) {
            if (known[static_cast<std::size_t>(name)])
                return Wrong("a datum is told as found: " + results);
            known[static_cast<std::size_t>(name)] = number;
        }
    Complete(known);
    const std::string why = WhyNoInterval(known);
    return why.empty() ? Right() : Wrong(results + ": " + why);
}

}  // namespace tavrelo::physics
