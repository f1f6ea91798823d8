#include <algorithm>
#include <array>
#include <cmath>

#include "mechanics/motion/holding.h"
#include "mechanics/motion/labels.h"
#include "mechanics/motion/planting.h"
#include "mechanics/motion/procedures.h"
#include "numeric/checked.h"
#include "numeric/linear_systems.h"
#include "text/number_text.h"
#include "text/utf8.h"

namespace tavrelo::mechanics::motion {
namespace {

constexpr const char* kNotThreePoints = "Los puntos no pertenecen al mismo móvil y tramo,\no se repiten.";
constexpr const char* kInstructionFailed = "No pude ejecutar la instrucción.";
constexpr const char* kPassQuestion = "¿Pasar los resultados a la tabla?";
constexpr int kFirstSlot = 9;

[[noreturn]] void ThrowNoNumber() {
    throw numeric::RuntimeFailure(numeric::FailureCode::TypeMismatch, "three points");
}

bool IsWhole(const std::string& text) {
    return text::IsNum(text) && text::ToNumber(text) == std::floor(text::ToNumber(text)) &&
           std::abs(text::ToNumber(text)) <= points::kMostPoints;
}

/// Mover, stretch and the three points i, j, k.
struct Choice {
    int mover;
    int stretch;
    std::array<int, 3> points;
};

Choice ReadChoice(std::string_view text) {
    std::array<int, 5> numbers = {};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const std::size_t comma = text.find(',');
        const bool is_last = i + 1 == numbers.size();
        if (is_last != (comma == std::string_view::npos))
            ThrowNoNumber();
        const std::string piece = text::Trim(text.substr(0, comma));
        if (!IsWhole(piece))
            ThrowNoNumber();
        numbers[i] = static_cast<int>(text::ToNumber(piece));
        text.remove_prefix(is_last ? text.size() : comma + 1);
    }
    return {numbers[0], numbers[1], {numbers[2], numbers[3], numbers[4]}};
}

bool IsInStretch(const points::Configuration& configuration, int mover, int stretch, int point) {
    if (!configuration.HasStretch(mover, stretch))
        return false;
    const points::Stretch& limits = configuration.StretchAt(mover, stretch);
    return point >= limits.first && point <= limits.last;
}

bool AreThreePoints(const points::Configuration& configuration, const Choice& choice) {
    const auto& [i, j, k] = choice.points;
    if (i == j || j == k || i == k)
        return false;
    for (const int point : choice.points) {
        if (!IsInStretch(configuration, choice.mover, choice.stretch, point))
            return false;
    }
    return true;
}

double NumberAt(const Problem& problem, int row, int column) {
    const text::Value& stored = problem.table.Stored(row, column);
    if (!text::IsNum(stored))
        ThrowNoNumber();
    return stored.Number();
}

struct TimedPosition {
    double t = 0;
    double x = 0;
};

/// The motion through three points, by divided differences: the unique solution of the linear system for its
/// three coefficients, without the loss of digits of short times. Nothing when two times are equal.
std::optional<Motion> Through(std::array<TimedPosition, 3> points) {
    // From the time nearest to 0 on: a position given at t = 0 is that of the motion without rounding.
    std::ranges::sort(points, {}, [](const TimedPosition& point) { return std::abs(point.t); });
    const auto& [p, q, r] = points;
    if (p.t == q.t || q.t == r.t || p.t == r.t)
        return std::nullopt;
    const double first = numeric::CheckedDivide(q.x - p.x, q.t - p.t);
    const double second = numeric::CheckedDivide(r.x - q.x, r.t - q.t);
    const double half = numeric::CheckedDivide(second - first, r.t - p.t);
    const Motion motion = {numeric::Finite(p.x - first * p.t + half * p.t * q.t),
                           numeric::Finite(first - half * (p.t + q.t)), numeric::Finite(2.0 * half)};
    const bool passes = std::ranges::all_of(points, [&](const TimedPosition& point) {
        return TermsCancel({motion.x0, motion.v0 * point.t, 0.5 * motion.a * point.t * point.t, -point.x});
    });
    return passes ? std::optional(motion) : std::nullopt;
}

std::string ValuesLine(const Motion& motion, const Labels& labels) {
    const auto at_base = [](std::string_view name) { return std::string(name) + "!n = "; };
    return at_base(kTimeName) + "0, " + at_base(labels.Name(Quantity::Position)) +
           labels.PlainNumber(motion.x0) + ", " + at_base(labels.Name(Quantity::Speed)) +
           labels.PlainNumber(motion.v0) + ", " + std::string(labels.Acceleration()) + " = " +
           labels.PlainNumber(motion.a);
}

Step FindMotion(const Problem& problem, std::string_view text, int decimals) {
    const Choice choice = ReadChoice(text);
    if (!AreThreePoints(problem.configuration, choice))
        return text::Refusal{kNotThreePoints};
    std::array<TimedPosition, 3> given = {};
    for (std::size_t i = 0; i < given.size(); ++i) {
        const int column = points::ColumnOfPoint(problem.configuration, choice.mover, choice.points[i]);
        given[i] = {NumberAt(problem, points::kTimeRow, column),
                    NumberAt(problem, points::kPositionRow, column)};
    }
    const auto motion = Through(given);
    if (!motion)
        return text::Refusal{std::string(numeric::TextOf(numeric::LinearOutcome::DeterminantIsZero))};
    const Labels labels(choice.mover, choice.stretch, decimals);
    const AwaitedBase awaited = {choice.mover, choice.stretch, *motion};
    return Outcome{problem,
                   {ClearSlot{kFirstSlot}, ClearSlot{kFirstSlot + 1}, ShowBoard{},
                    BoardLine{kFirstSlot, "Punto base n a fijar:"},
                    BoardLine{kFirstSlot + 1, ValuesLine(*motion, labels)},
                    Question{Buttons::YesNo, kPassQuestion, AwaitBaseRequest{awaited}, std::nullopt}}};
}

/// The wait ends, and the text says why.
Outcome NoBase(const Problem& forgotten, const char* text) { return {forgotten, {Box{text}}}; }

Step TakeBase(const Problem& problem, std::string_view text, int decimals) {
    const AwaitedBase awaited = *problem.awaited_base;
    Problem based = problem;
    based.awaited_base.reset();
    const std::string number = text::Trim(text);
    if (!IsWhole(number))
        return NoBase(based, kInstructionFailed);
    const int point = static_cast<int>(text::ToNumber(number));
    if (!IsInStretch(problem.configuration, awaited.mover, awaited.stretch, point))
        return NoBase(based, kNotThreePoints);
    const int column = points::ColumnOfPoint(problem.configuration, awaited.mover, point);
    const Motion& motion = awaited.motion;
    based.table.SetNumber(points::kTimeRow, column, 0.0, decimals);
    based.table.SetNumber(points::kPositionRow, column, motion.x0, decimals);
    based.table.SetNumber(points::kSpeedRow, column, motion.v0, decimals);
    return Plant(based, {awaited.mover, awaited.stretch, point, 0.0, motion.x0, motion.v0, motion.a},
                 decimals);
}

}  // namespace

Step RunThreePoints(const Problem& problem, std::string_view text, int decimals) {
    return problem.awaited_base ? TakeBase(problem, text, decimals) : FindMotion(problem, text, decimals);
}

}  // namespace tavrelo::mechanics::motion
