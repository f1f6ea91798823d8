#include "notation/quadrant_notation.h"

#include <cmath>
#include <string>

#include "notation/clock_direction.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::notation {
namespace {

constexpr double kRightAngle = 90;
/// Below this a tangent is that of a horizontal direction, whose cosine table leaves a hair.
constexpr double kHorizontalTangent = 1e-12;

text::Refusal AngleRefusal(const char* text) {
    return {std::string("En este formato el ángulo debe ") + text};
}

double Tangent(double direction, char letter) {
    const double tangent = numeric::TanD(direction);
    if (letter == kVerticalLetter && std::abs(tangent) < kHorizontalTangent)
        throw numeric::RuntimeFailure(numeric::FailureCode::DivisionByZero,
                                      "vertical component of a horizontal");
    return tangent;
}

}  // namespace

QuadrantDirection QuadrantDirectionOf(const QuadrantMarks& marks) {
    const int hour = ClockHour(marks.quadrant, marks.axis);
    const double angle = text::ToNumber(marks.angle);
    return {hour, angle, ClockDir(hour, angle, true)};
}

std::variant<text::Refusal, QuadrantDirection> CheckedQuadrantDirection(const QuadrantMarks& marks) {
    if (!text::IsNum(marks.angle))
        return AngleRefusal("conocerse.");
    const QuadrantDirection direction = QuadrantDirectionOf(marks);
    if (direction.angle < 0)
        return AngleRefusal("ser positivo.");
    if (direction.angle > kRightAngle)
        return AngleRefusal("estar entre 0° y 90°.");
    return direction;
}

bool IsVertical(double direction) { return std::abs(direction) == kRightAngle; }

double MagnitudeFromComponent(double direction, double component, char letter) {
    const double tangent = Tangent(direction, letter);
    const double partner = letter == kVerticalLetter ? numeric::CheckedDivide(component, tangent)
                                                     : numeric::CheckedMultiply(tangent, component);
    return numeric::Finite(numeric::Hypot(component, partner));
}

}  // namespace tavrelo::notation
