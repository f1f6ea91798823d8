#include "mechanics/motion/planting.h"

#include <vector>

#include "mechanics/motion/labels.h"
#include "text/number_text.h"
#include "text/signed_sum.h"

namespace tavrelo::mechanics::motion {
namespace {

constexpr const char* kUnknown = "?";
constexpr const char* kSquared = "¡2";

using Sum = std::vector<text::SumTerm>;

bool IsGiven(const text::Value& value) { return !value.Text().empty(); }

/// The time since the base: "t" or "(t ;- 2)".
std::string TimeSince(double t, int decimals) {
    const double rounded = text::RoundTo(t, decimals);
    if (rounded == 0.0)
        return std::string(kTimeName);
    return "(" + std::string(kTimeName) + text::TermText(true, true, -rounded, 1) + ")";
}

struct Sums {
    Sum position;
    Sum speed;
};

Sums ExpandedSums(const Equations& equations) {
    const Motion motion = equations.Expanded();
    const std::string t(kTimeName);
    return {{{0.5 * motion.a, t + kSquared}, {motion.v0, t}, {motion.x0, 1}},
            {{motion.a, t}, {motion.v0, 1}}};
}

/// The sums around the base; `speed` and `acceleration` are the symbols of the parameters.
Sums SumsWithParameters(const Equations& equations, const std::string& time, const std::string& speed,
                        const std::string& acceleration) {
    const std::string squared = time + kSquared;
    const text::SumTerm unknown_speed = {1, speed + " " + time};
    const text::SumTerm unknown_acceleration = {0.5, acceleration + " " + squared};
    switch (equations.kind) {
        case EquationKind::SpeedUnknown:
            return {{{0.5 * equations.a, squared}, unknown_speed, {equations.x, 1}},
                    {{equations.a, time}, {1, speed}}};
        case EquationKind::AccelerationUnknown:
            return {{{equations.x, 1}, {equations.v, time}, unknown_acceleration},
                    {{equations.v, 1}, {1, acceleration + " " + time}}};
        default:
            return {{{equations.x, 1}, unknown_speed, unknown_acceleration},
                    {{1, speed}, {1, acceleration + " " + time}}};
    }
}

std::vector<std::string> ReportOf(const Equations& equations, int mover, int stretch, const Labels& labels) {
    const bool has_speed =
        equations.kind == EquationKind::Complete || equations.kind == EquationKind::AccelerationUnknown;
    const bool has_acceleration =
        equations.kind == EquationKind::Complete || equations.kind == EquationKind::SpeedUnknown;
    const int n = equations.base;
    return {"Plantear ecs." + OfStretch(mover, stretch) + ", punto base: " + std::to_string(n),
            labels.At(Quantity::Time, n) + " = " + labels.PlainNumber(equations.t) + ", " +
                labels.At(Quantity::Position, n) + " = " + labels.PlainNumber(equations.x) + ", " +
                labels.At(Quantity::Speed, n) + " = " +
                (has_speed ? labels.PlainNumber(equations.v) : kUnknown) + ", " +
                std::string(labels.Acceleration()) + " = " +
                (has_acceleration ? labels.PlainNumber(equations.a) : kUnknown)};
}

/// Shows a found acceleration in its box; one that stands there as typed stays as typed.
void TakeAcceleration(points::Cell& box, double a, int decimals) {
    if (!text::IsNum(box.stored) || box.stored.Number() != a)
        box = points::NumberCell(a, decimals);
}

}  // namespace

Equations PlantedFrom(const PlantRequest& request) {
    Equations planted;
    planted.base = request.base;
    planted.t = request.t.Number();
    planted.x = request.x.Number();
    const bool has_speed = IsGiven(request.v);
    const bool has_acceleration = IsGiven(request.a);
    if (has_speed)
        planted.v = request.v.Number();
    if (has_acceleration)
        planted.a = request.a.Number();
    if (has_speed)
        planted.kind = has_acceleration ? EquationKind::Complete : EquationKind::AccelerationUnknown;
    else
        planted.kind = has_acceleration ? EquationKind::SpeedUnknown : EquationKind::BothUnknown;
    return planted;
}

EquationLines LinesOf(const Equations& equations, int mover, int stretch, int decimals) {
    const Labels labels(mover, stretch, decimals);
    const Sums sums = equations.IsComplete() ? ExpandedSums(equations)
                                             : SumsWithParameters(equations, TimeSince(equations.t, decimals),
                                                                  labels.At(Quantity::Speed, equations.base),
                                                                  std::string(labels.Acceleration()));
    const auto line = [&](Quantity quantity, const Sum& sum) {
        return std::string(labels.Name(quantity)) + " = " + text::SignedSum(sum, decimals);
    };
    return {line(Quantity::Position, sums.position), line(Quantity::Speed, sums.speed)};
}

Outcome Plant(const Problem& problem, const PlantRequest& request, int decimals) {
    const Equations planted = PlantedFrom(request);
    const EquationLines lines = LinesOf(planted, request.mover, request.stretch, decimals);
    const std::size_t slot = SlotOf(request.mover, request.stretch);
    Outcome outcome = {problem, {}};
    outcome.problem.equations[slot] = planted;
    if (planted.kind == EquationKind::Complete || planted.kind == EquationKind::SpeedUnknown)
        TakeAcceleration(outcome.problem.accelerations[slot], planted.a, decimals);
    const int board_slot = BoardSlotOf(request.mover, request.stretch);
    outcome.events = {ClearSlot{board_slot},
                      ClearSlot{board_slot + 1},
                      ShowBoard{},
                      BoardLine{board_slot, lines.position},
                      BoardLine{board_slot + 1, lines.speed},
                      WriteLines{ReportOf(planted, request.mover, request.stretch,
                                          Labels(request.mover, request.stretch, decimals))}};
    return outcome;
}

}  // namespace tavrelo::mechanics::motion
