// Whatever formulas and times are typed in the tool of kinematics: lines of the input are two formulas, then
// the time, the start and the end. Only the documented failure leaves, and every number of a result is
// finite.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "mechanics/kinematics/kinematics_report.h"
#include "mechanics/kinematics/line_motion.h"
#include "mechanics/kinematics/plane_motion.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace {

using namespace tavrelo;
using namespace tavrelo::mechanics::kinematics;

constexpr int kDecimals = 3;
constexpr double kAngleFactor = numeric::kRadiansPerDegree;

void RequireFinite(std::initializer_list<double> numbers) {
    for (const double number : numbers)
        if (!std::isfinite(number))
            std::abort();
}

void RequireFinite(const std::vector<double>& numbers) {
    for (const double number : numbers)
        RequireFinite({number});
}

template <typename Action>
void Try(Action action) {
    try {
        action();
    } catch (const numeric::RuntimeFailure&) {
    }
}

std::string_view NextLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return line;
}

double NumberIn(std::string_view line) {
    double number = 1;
    Try([&] { number = text::IsNum(line) ? text::ToNumber(line) : number; });
    return number;
}

void TryLine(const LineMotion& motion, double t) {
    Try([&] {
        const auto outcome = LineAt(motion, t, kAngleFactor);
        if (const auto* state = std::get_if<LineState>(&outcome)) {
            RequireFinite({state->t, state->x, state->v, state->a.value_or(0)});
            ReportOf(*state, kDecimals);
        }
    });
    Try([&] {
        const auto outcome = SampleLine(motion, motion.start.t, t, {true, true, true}, kAngleFactor);
        if (const auto* curves = std::get_if<LineCurves>(&outcome))
            for (const auto& curve : {curves->t, curves->x, curves->v, curves->a})
                RequireFinite(curve);
    });
}

void TryPlane(const PlaneMotion& motion, double t0, double t) {
    Try([&] {
        const PlaneState state = PlaneAt(motion, t, kAngleFactor);
        for (const auto& pair : {state.position, state.velocity, state.acceleration})
            RequireFinite({pair.first, pair.second});
        ReportOf(state, motion.way, kDecimals);
    });
    Try([&] {
        const Trajectory path = SamplePlane(motion, t0, t, kAngleFactor);
        RequireFinite(path.x);
        RequireFinite(path.y);
    });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::string first(NextLine(text));
    const std::string second(NextLine(text));
    const double t = NumberIn(NextLine(text));
    const LineStart start{NumberIn(NextLine(text)), NumberIn(NextLine(text)), NumberIn(NextLine(text))};
    for (const Way way : {Way::Position, Way::Velocity, Way::Acceleration})
        TryLine({way, first, start}, t);
    for (const Way way : {Way::Plane, Way::Polar})
        TryPlane({way, first, second}, start.t, t);
    return 0;
}
