#include "mechanics/kinematics/kinematics_report.h"

#include "text/number_text.h"

namespace tavrelo::mechanics::kinematics {
namespace {

/// Rounded first, so that a small negative number is a plain 0.
std::string Shown(double number, int decimals) {
    return text::NumText(text::RoundTo(number, decimals), decimals).Text();
}

std::string TimeLine(double t, int decimals) { return "En t = " + Shown(t, decimals) + ":"; }

struct PairNames {
    const char* position[2];
    const char* velocity[2];
    const char* acceleration[2];
};
constexpr PairNames kPlaneNames = {{"x", "y"}, {"v!x", "v!y"}, {"a!x", "a!y"}};
constexpr PairNames kPolarNames = {{"r", ";q"}, {"v!r", "v!t"}, {"a!r", "a!t"}};

std::string PairLine(const char* const (&names)[2], const PlaneState::Pair& pair, int decimals) {
    return std::string(names[0]) + " = " + Shown(pair.first, decimals) + ", " + names[1] + " = " +
           Shown(pair.second, decimals);
}

}  // namespace

std::vector<std::string> ReportOf(const LineState& state, int decimals) {
    std::vector<std::string> lines = {
        TimeLine(state.t, decimals),
        "x = " + Shown(state.x, decimals) + ", v = " + Shown(state.v, decimals),
    };
    if (state.a)
        lines.push_back("a = " + Shown(*state.a, decimals));
    return lines;
}

std::vector<std::string> ReportOf(const PlaneState& state, Way way, int decimals) {
    const PairNames& names = way == Way::Polar ? kPolarNames : kPlaneNames;
    return {TimeLine(state.t, decimals), PairLine(names.position, state.position, decimals),
            PairLine(names.velocity, state.velocity, decimals),
            PairLine(names.acceleration, state.acceleration, decimals)};
}

}  // namespace tavrelo::mechanics::kinematics
