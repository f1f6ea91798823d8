#pragma once

#include <variant>

#include "notation/vector_format.h"
#include "text/refusal.h"

namespace tavrelo::notation {

/// A direction as the quadrant formats write it: the hour and the angle stay as typed, so "p90x" is hour 2
/// with 90.
struct QuadrantDirection {
    int hour;
    double angle;      // degrees from the axis
    double direction;  // degrees
};

/// The direction that the marks write. Fails with TypeMismatch when their angle is no number.
QuadrantDirection QuadrantDirectionOf(const QuadrantMarks& marks);
/// The same, refused unless the angle is a number from 0 to 90.
std::variant<text::Refusal, QuadrantDirection> CheckedQuadrantDirection(const QuadrantMarks& marks);

/// Whether a direction is exactly vertical, so that no component of it sets the magnitude by a tangent.
bool IsVertical(double direction);
/// Magnitude of the vector along `direction` whose component is `component`, the horizontal one (`letter`
/// "h") or the vertical one ("v"): the hypotenuse of it and its partner by the tangent. The sign of the
/// component is lost. A vertical component of a horizontal direction fails with DivisionByZero.
double MagnitudeFromComponent(double direction, double component, char letter);

}  // namespace tavrelo::notation
