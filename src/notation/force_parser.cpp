#include "notation/force_parser.h"

#include <array>
#include <cmath>
#include <optional>
#include <string>

#include "notation/clock_direction.h"
#include "notation/notation_checks.h"
#include "notation/number_product.h"
#include "notation/quadrant_notation.h"
#include "notation/vector_format.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "numeric/compare.h"
#include "text/number_text.h"
#include "text/symbols.h"
#include "text/utf8.h"

namespace tavrelo::notation {
namespace {

using Outcome = std::optional<text::Refusal>;

constexpr int kLabelDecimals = 2;
constexpr double kOnAxisTolerance = 1e-8;

constexpr const char* kNoMagnitude = "Magnitud negativa o cero.";
constexpr const char* kLongSymbol = "El símbolo debe constar de una literal y uno o dos subíndices.";
constexpr const char* kLongComponentSymbol =
    "El símbolo debe constar de una literal y uno o dos subíndices entre 0 y 9.";
constexpr const char* kAngleFactor = "No se permiten factores para el ángulo.";

// The record under construction and what it is made from.
struct Reading {
    const VectorFormat& format;
    int decimals;
    ForceRecord& record;
};

// One axis in the record.
struct Axis {
    ForceComponent Force::*component;
    std::string ForceRecord::*text;
};
constexpr Axis kX = {&Force::x, &ForceRecord::x_text};
constexpr Axis kY = {&Force::y, &ForceRecord::y_text};

// A piece of the text: a number, or a symbol with its factor.
struct Part {
    bool known;
    double number;
    text::FactoredSymbol symbol;
};

Part ReadPart(std::string_view text) {
    if (text::IsNum(text))
        return {true, text::ToNumber(text), {}};
    const text::FactoredSymbol symbol = text::SplitFactor(text);
    if (!text::IsSymbolName(symbol.symbol))
        throw numeric::RuntimeFailure(numeric::FailureCode::TypeMismatch, "neither a number nor a symbol");
    return {false, 0, symbol};
}

bool IsLong(const text::FactoredSymbol& symbol) {
    return text::CharacterCount(symbol.symbol) > text::kLongestSymbol;
}

ForceComponent& ComponentOf(const Reading& reading, const Axis& axis) {
    return reading.record.force.*axis.component;
}

void SetKnown(const Reading& reading, const Axis& axis, double component) {
    ComponentOf(reading, axis) = {.number = component};
    reading.record.*axis.text = text::RoundedText(component, reading.decimals);
}

void SetUnknown(const Reading& reading, const Axis& axis, double coefficient, const UnknownTerm& unknown) {
    ComponentOf(reading, axis) = {.coefficient = coefficient, .unknown = unknown};
    reading.record.*axis.text = text::FactorText(coefficient, TextOf(unknown), reading.decimals);
    reading.record.force.knowledge = Knowledge::Unknown;
}

void SetUnknown(const Reading& reading, const Axis& axis, const text::FactoredSymbol& symbol) {
    SetUnknown(reading, axis, symbol.factor, {.magnitude = symbol.symbol});
}

void SetDirection(const Reading& reading, double direction, const numeric::ClockReading& clock) {
    reading.record.force.direction = direction;
    reading.record.clock = clock;
}

void SetMagnitude(const Reading& reading, double magnitude) {
    reading.record.force.magnitude = magnitude;
    reading.record.label = text::RoundedText(magnitude, kLabelDecimals);
}

void SetMagnitude(const Reading& reading, const text::FactoredSymbol& symbol) {
    reading.record.label = text::SymbolMarkup(symbol.factor, symbol.symbol, reading.decimals);
}

void SetMagnitude(const Reading& reading, const Part& magnitude) {
    if (magnitude.known)
        SetMagnitude(reading, magnitude.number);
    else
        SetMagnitude(reading, magnitude.symbol);
}

void SetKnownAlong(const Reading& reading, double magnitude, double direction) {
    SetKnown(reading, kX, magnitude * numeric::CosD(direction));
    SetKnown(reading, kY, magnitude * numeric::SinD(direction));
}

// A magnitude k S along a known direction: its components are k cos D and k sin D times S.
void SetUnknownAlong(const Reading& reading, const text::FactoredSymbol& symbol, double direction) {
    const UnknownTerm unknown = {.magnitude = symbol.symbol};
    SetUnknown(reading, kX, symbol.factor * numeric::CosD(direction), unknown);
    SetUnknown(reading, kY, symbol.factor * numeric::SinD(direction), unknown);
}

// A magnitude, or its coefficient and name, along an unknown direction.
void SetUnknownDirection(const Reading& reading, double coefficient, const std::string& magnitude,
                         const std::string& angle) {
    SetUnknown(reading, kX, coefficient, {magnitude, AngleFunction::Cos, angle});
    SetUnknown(reading, kY, coefficient, {magnitude, AngleFunction::Sen, angle});
}

// "cAe,M"

Outcome ReadQuadrantSymbol(const Reading& reading, const text::FactoredSymbol& symbol, double direction) {
    if (IsLong(symbol))
        return text::Refusal{kLongSymbol};
    if (symbol.factor <= 0)
        return text::Refusal{kNoMagnitude};
    SetMagnitude(reading, symbol);
    SetUnknownAlong(reading, symbol, direction);
    return {};
}

Outcome ReadQuadrantMagnitude(const Reading& reading, double direction) {
    const Part magnitude = ReadPart(reading.format.second);
    if (!magnitude.known)
        return ReadQuadrantSymbol(reading, magnitude.symbol, direction);
    SetMagnitude(reading, magnitude.number);
    SetKnownAlong(reading, magnitude.number, direction);
    return {};
}

// "cAe,C"

Outcome ReadQuadrantComponent(const Reading& reading, double direction) {
    if (IsVertical(direction))
        return text::Refusal{"El ángulo no debe ser 90° ó -90°."};
    const auto component = ReadLetteredComponent(reading.format.second);
    if (!component)
        return text::Refusal{kUnreadableVector};
    const double magnitude =
        MagnitudeFromComponent(direction, text::ToNumber(component->number), component->letter);
    SetMagnitude(reading, magnitude);
    SetKnownAlong(reading, magnitude, direction);
    return {};
}

using DirectedReader = Outcome (*)(const Reading&, double direction);

template <DirectedReader ReadRest>
Outcome ReadQuadrant(const Reading& reading) {
    const auto marks = ReadQuadrantMarks(reading.format.first);
    if (!marks)
        return text::Refusal{kMissingPart};
    const auto outcome = CheckedQuadrantDirection(*marks);
    if (const auto* refusal = std::get_if<text::Refusal>(&outcome))
        return *refusal;
    const auto& direction = std::get<QuadrantDirection>(outcome);
    SetDirection(reading, direction.direction, {direction.hour, direction.angle});
    return ReadRest(reading, direction.direction);
}

// "hCx" and "vCy"

struct LineFormat {
    const Axis& along;
    const Axis& across;
    int positive_hour;
    int negative_hour;
    double positive_direction;
    double negative_direction;
    const char* missing;
};
constexpr LineFormat kHorizontalLine = {kX, kY, kHourRight, kHourLeft, kRightward, kLeftward, kMissingX};
constexpr LineFormat kVerticalLine = {kY, kX, kHourUp, kHourDown, kUpward, kDownward, kMissingY};

void SetLineDirection(const Reading& reading, const LineFormat& line, double sign) {
    if (sign >= 0)
        SetDirection(reading, line.positive_direction, {line.positive_hour, 0});
    else
        SetDirection(reading, line.negative_direction, {line.negative_hour, 0});
}

// The shown text of the component is its size alone: the arrow tells the sense.
void ReadLineNumber(const Reading& reading, const LineFormat& line, double component) {
    SetMagnitude(reading, std::abs(component));
    SetLineDirection(reading, line, component);
    SetKnown(reading, line.along, component);
    reading.record.*line.along.text = text::RoundedText(std::abs(component), reading.decimals);
}

void ReadLineSymbol(const Reading& reading, const LineFormat& line, text::FactoredSymbol symbol) {
    if (!symbol.symbol.starts_with('f'))
        symbol.symbol = text::ToUpper(symbol.symbol);
    SetMagnitude(reading, symbol);
    if (!IsLong(symbol))
        SetLineDirection(reading, line, symbol.factor);
    SetUnknown(reading, line.along, symbol);
}

template <const LineFormat& line>
Outcome ReadLine(const Reading& reading) {
    if (reading.format.second.empty() || reading.format.second == "-")
        return text::Refusal{line.missing};
    const Part component = ReadPart(reading.format.second);
    SetKnown(reading, line.across, 0);
    if (component.known)
        ReadLineNumber(reading, line, component.number);
    else
        ReadLineSymbol(reading, line, component.symbol);
    return {};
}

// "Fx,Fy"

void ReadKnownComponents(const Reading& reading, double x, double y) {
    const double magnitude = numeric::Finite(numeric::Hypot(x, y));
    SetMagnitude(reading, magnitude);
    SetDirection(reading, numeric::AngleOf(x, y), numeric::ClockOf(x, y));
    SetKnown(reading, kX, x);
    SetKnown(reading, kY, y);
}

void SetComponent(const Reading& reading, const Axis& axis, const Part& part) {
    if (part.known)
        SetKnown(reading, axis, part.number);
    else
        SetUnknown(reading, axis, part.symbol);
}

// A symbol on one axis beside a component that is zero is a magnitude along that axis.
void LayOnAxis(const Reading& reading, const LineFormat& line, const Part& along, const Part& across) {
    if (along.known || !across.known || !numeric::NearEq(across.number, 0, kOnAxisTolerance))
        return;
    SetLineDirection(reading, line, along.symbol.factor);
}

std::string ShownComponent(const Reading& reading, const Part& part, const std::string& text) {
    if (part.known)
        return text;
    return (part.symbol.factor < 0 ? "-" : "") +
           text::SymbolMarkup(part.symbol.factor, part.symbol.symbol, reading.decimals);
}

void ReadSymbolicComponents(const Reading& reading, const Part& x, const Part& y) {
    SetComponent(reading, kX, x);
    SetComponent(reading, kY, y);
    LayOnAxis(reading, kHorizontalLine, x, y);
    LayOnAxis(reading, kVerticalLine, y, x);
    reading.record.label = ShownComponent(reading, x, reading.format.first) + "," +
                           ShownComponent(reading, y, reading.format.second);
}

Outcome ReadComponents(const Reading& reading) {
    const Part x = ReadPart(reading.format.first);
    const Part y = ReadPart(reading.format.second);
    if (IsLong(x.symbol) || IsLong(y.symbol))
        return text::Refusal{kLongComponentSymbol};
    if (x.known && y.known)
        ReadKnownComponents(reading, x.number, y.number);
    else
        ReadSymbolicComponents(reading, x, y);
    return {};
}

// "M<D"

Outcome CheckPolar(const Part& magnitude, const Part& direction) {
    if (!magnitude.known && IsLong(magnitude.symbol))
        return text::Refusal{kLongSymbol};
    if (!magnitude.known && magnitude.symbol.factor < 0)
        return text::Refusal{"La magnitud no debe tener signo negativo en este formato."};
    if (!direction.known && direction.symbol.factor != 1)
        return text::Refusal{kAngleFactor};
    return {};
}

void ReadKnownPolar(const Reading& reading, double magnitude, double direction) {
    const double x = magnitude * numeric::CosD(direction);
    const double y = magnitude * numeric::SinD(direction);
    SetDirection(reading, direction, numeric::ClockOf(x, y));
    SetKnown(reading, kX, x);
    SetKnown(reading, kY, y);
}

void ReadPolarSymbol(const Reading& reading, const text::FactoredSymbol& magnitude, double direction) {
    SetDirection(reading, direction, numeric::ClockOf(numeric::CosD(direction), numeric::SinD(direction)));
    SetUnknownAlong(reading, magnitude, direction);
}

void ReadPolarAngle(const Reading& reading, const Part& magnitude, const std::string& angle) {
    if (magnitude.known)
        SetUnknownDirection(reading, magnitude.number, "", angle);
    else
        SetUnknownDirection(reading, magnitude.symbol.factor, magnitude.symbol.symbol, angle);
}

Outcome ReadPolar(const Reading& reading) {
    const Part magnitude = ReadPart(reading.format.first);
    const Part direction = ReadPart(reading.format.second);
    if (Outcome refusal = CheckPolar(magnitude, direction))
        return refusal;
    SetMagnitude(reading, magnitude);
    if (!direction.known)
        ReadPolarAngle(reading, magnitude, direction.symbol.symbol);
    else if (magnitude.known)
        ReadKnownPolar(reading, magnitude.number, direction.number);
    else
        ReadPolarSymbol(reading, magnitude.symbol, direction.number);
    return {};
}

// "uD"

Outcome ReadUnit(const Reading& reading) {
    if (reading.format.second.empty())
        return text::Refusal{kMissingAngle};
    const Part direction = ReadPart(reading.format.second);
    SetMagnitude(reading, 1.0);
    if (direction.known)
        ReadKnownPolar(reading, 1, direction.number);
    else if (direction.symbol.factor != 1)
        return text::Refusal{kAngleFactor};
    else
        SetUnknownDirection(reading, 1, "", direction.symbol.symbol);
    return {};
}

struct FormatReader {
    std::string_view code;
    bool separated;  // two parts, of which none may be empty
    Outcome (*read)(const Reading&);
};
constexpr std::array<FormatReader, 7> kReaders = {{
    {kQuadrantMagnitude, true, ReadQuadrant<ReadQuadrantMagnitude>},
    {kQuadrantComponent, true, ReadQuadrant<ReadQuadrantComponent>},
    {kComponents, true, ReadComponents},
    {kPolar, true, ReadPolar},
    {kHorizontal, false, ReadLine<kHorizontalLine>},
    {kVertical, false, ReadLine<kVerticalLine>},
    {kUnit, false, ReadUnit},
}};

Outcome ReadByFormat(const Reading& reading) {
    for (const FormatReader& reader : kReaders) {
        if (reader.code != reading.format.code)
            continue;
        if (reader.separated && (reading.format.first.empty() || reading.format.second.empty()))
            return text::Refusal{kMissingPart};
        return reader.read(reading);
    }
    return text::Refusal{kUnreadableVector};
}

// What holds for a force of every format.

Outcome CheckRanges(const ForceRecord& record) {
    if (record.force.magnitude && *record.force.magnitude <= 0)
        return text::Refusal{kNoMagnitude};
    return CheckAngles(record.clock, record.force.direction);
}

// The formats in which a part is a magnitude or a component: there a product of numbers stands for a number.
struct ProductParts {
    std::string_view code;
    bool first;
    bool second;
};
constexpr std::array<ProductParts, 5> kProductParts = {{
    {kQuadrantMagnitude, false, true},
    {kComponents, true, true},
    {kPolar, true, false},
    {kHorizontal, false, true},
    {kVertical, false, true},
}};

void ComputeProducts(VectorFormat& format) {
    for (const ProductParts& parts : kProductParts) {
        if (parts.code != format.code)
            continue;
        if (parts.first)
            format.first = WithProductComputed(format.first);
        if (parts.second)
            format.second = WithProductComputed(format.second);
    }
}

std::variant<text::Refusal, ForceRecord> Parse(std::string_view text, int decimals) {
    VectorFormat format = VectorFormatOf(text);
    if (!format.msg.empty())
        return text::Refusal{format.msg};
    ComputeProducts(format);
    ForceRecord record;
    record.given_text = text;
    record.code = format.code;
    record.leaves = format.not_colon;
    if (const Outcome refusal = ReadByFormat({format, decimals, record}))
        return *refusal;
    if (const Outcome refusal = CheckRanges(record))
        return *refusal;
    return record;
}

}  // namespace

std::variant<text::Refusal, ForceRecord> ParseForce(std::string_view text, int decimals) {
    try {
        return Parse(text, decimals);
    } catch (const numeric::RuntimeFailure&) {
        return text::Refusal{kUnreadableVector};
    }
}

}  // namespace tavrelo::notation
