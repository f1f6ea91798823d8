#include "notation/vector_parser.h"

#include <cmath>
#include <string>

#include "notation/clock_direction.h"
#include "notation/notation_checks.h"
#include "notation/number_product.h"
#include "notation/quadrant_notation.h"
#include "notation/vector_format.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "text/number_text.h"
#include "text/utf8.h"

namespace tavrelo::notation {
namespace {

using Result = VectorReading;

struct Parts {
    std::string first;
    std::string second;
};

Parts SplitAt(std::string_view text, std::size_t separator) {
    return {text::Trim(text.substr(0, separator)), text::Trim(text.substr(separator + 1))};
}

bool LacksPart(const Parts& parts) { return parts.first.empty() || parts.second.empty(); }

// A magnitude or a component: a number or a product of numbers.
double NumberOf(const std::string& text) { return text::ToNumber(WithProductComputed(text)); }

VectorRecord Along(double magnitude, const QuadrantDirection& direction) {
    return {magnitude,
            direction.direction,
            magnitude * numeric::CosD(direction.direction),
            magnitude * numeric::SinD(direction.direction),
            {direction.hour, direction.angle}};
}

// p30x,5h
Result ReadQuadrantComponent(const Parts& parts, const LetteredComponent& component) {
    const auto marks = ReadQuadrantMarks(parts.first);
    if (!marks)
        return NoDirection{};
    const QuadrantDirection direction = QuadrantDirectionOf(*marks);
    if (IsVertical(direction.direction))
        return text::Refusal{"Formato incorrecto."};
    const double number = text::ToNumber(component.number);
    return Along(MagnitudeFromComponent(direction.direction, number, component.letter), direction);
}

// p30x,5
Result ReadQuadrantMagnitude(const QuadrantMarks& marks, const std::string& magnitude) {
    const auto outcome = CheckedQuadrantDirection(marks);
    if (const auto* refusal = std::get_if<text::Refusal>(&outcome))
        return *refusal;
    return Along(NumberOf(magnitude), std::get<QuadrantDirection>(outcome));
}

// 3,4
Result ReadComponents(const Parts& parts) {
    const double x = NumberOf(parts.first);
    const double y = NumberOf(parts.second);
    return VectorRecord{numeric::Finite(numeric::Hypot(x, y)), numeric::AngleOf(x, y), x, y,
                        numeric::ClockOf(x, y)};
}

Result ReadCommaFormat(const Parts& parts) {
    if (const auto component = ReadLetteredComponent(parts.second))
        return ReadQuadrantComponent(parts, *component);
    if (LacksPart(parts))
        return text::Refusal{kMissingPart};
    const auto marks = ReadQuadrantMarks(parts.first);
    return marks ? ReadQuadrantMagnitude(*marks, parts.second) : ReadComponents(parts);
}

VectorRecord Polar(double magnitude, double direction) {
    const double x = magnitude * numeric::CosD(direction);
    const double y = magnitude * numeric::SinD(direction);
    return {magnitude, direction, x, y, numeric::ClockOf(x, y)};
}

// 5<30
Result ReadPolar(const Parts& parts) {
    if (LacksPart(parts))
        return text::Refusal{kMissingPart};
    return Polar(NumberOf(parts.first), text::ToNumber(parts.second));
}

// h-5
Result ReadHorizontal(const std::string& rest) {
    if (rest.empty())
        return text::Refusal{kMissingX};
    const double component = NumberOf(rest);
    const bool right = component >= 0;
    return VectorRecord{std::abs(component),
                        right ? kRightward : kLeftward,
                        component,
                        0,
                        {right ? kHourRight : kHourLeft, 0}};
}

// v-5
Result ReadVertical(const std::string& rest) {
    if (rest.empty())
        return text::Refusal{kMissingY};
    const double component = NumberOf(rest);
    const bool up = component >= 0;
    return VectorRecord{
        std::abs(component), up ? kUpward : kDownward, 0, component, {up ? kHourUp : kHourDown, 0}};
}

// u30
Result ReadUnit(const std::string& rest) {
    if (rest.empty())
        return text::Refusal{kMissingAngle};
    return Polar(1, text::ToNumber(rest));
}

Result ReadLetterFormat(std::string_view text) {
    if (text.empty())
        return text::Refusal{"Formato desconocido."};
    const std::string rest = text::Trim(text.substr(1));
    switch (text.front()) {
        case 'h':
            return ReadHorizontal(rest);
        case 'v':
            return ReadVertical(rest);
        case 'u':
            return ReadUnit(rest);
        default:
            return text::Refusal{"Formato desconocido."};
    }
}

Result ReadByFormat(std::string_view text) {
    if (const std::size_t comma = text.find(','); comma != std::string_view::npos)
        return ReadCommaFormat(SplitAt(text, comma));
    if (const std::size_t separator = text.find_first_of(";<"); separator != std::string_view::npos)
        return ReadPolar(SplitAt(text, separator));
    return ReadLetterFormat(text);
}

Result CheckedRecord(const VectorRecord& record) {
    if (const auto refusal = CheckAngles(record.clock, record.direction))
        return *refusal;
    return record;
}

}  // namespace

VectorReading ParseVector(std::string_view text) {
    try {
        const Result result = ReadByFormat(text::Trim(text));
        const auto* record = std::get_if<VectorRecord>(&result);
        return record ? CheckedRecord(*record) : result;
    } catch (const numeric::RuntimeFailure&) {
        return text::Refusal{kUnreadableVector};
    }
}

}  // namespace tavrelo::notation
