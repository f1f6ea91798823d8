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

struct ComponentElements {
    ForceElement component;
    ForceElement coefficient;
    ForceElement unknown;
    ForceElement text;
};
constexpr ComponentElements kX = {ForceX, ForceXCoefficient, ForceXUnknown, ForceXText};
constexpr ComponentElements kY = {ForceY, ForceYCoefficient, ForceYUnknown, ForceYText};

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

std::string WithoutMinus(std::string_view text) {
    return std::string(text.starts_with('-') ? text.substr(1) : text);
}

void SetKnown(const Reading& reading, const ComponentElements& axis, double component) {
    reading.record[axis.component] = component;
    reading.record[axis.unknown] = "";
    reading.record[axis.text] = text::RoundedText(component, reading.decimals);
}

void SetUnknown(const Reading& reading, const ComponentElements& axis, double coefficient,
                const std::string& unknown) {
    reading.record[axis.component] = "";
    reading.record[axis.coefficient] = coefficient;
    reading.record[axis.unknown] = unknown;
    reading.record[axis.text] = text::FactorText(coefficient, unknown, reading.decimals);
    reading.record[ForceColour] = kUnknownColour;
}

void SetDirection(const Reading& reading, double direction, int hour, double angle) {
    reading.record[ForceDirection] = direction;
    reading.record[ForceHour] = hour;
    reading.record[ForceClockAngle] = angle;
}

void SetDirection(const Reading& reading, double direction, const numeric::ClockReading& clock) {
    SetDirection(reading, direction, clock.hour, clock.angle);
}

void SetSymbol(const Reading& reading, const text::FactoredSymbol& symbol) {
    reading.record[ForceSymbolPart] = symbol.symbol;
    reading.record[ForceSymbolFactor] = symbol.factor;
}

void SetKnownMagnitude(const Reading& reading, double magnitude, const std::string& text) {
    reading.record[ForceMagnitude] = magnitude;
    reading.record[ForceMagnitudeText] = text;
    reading.record[ForceShownMagnitude] = text::RoundedText(magnitude, kLabelDecimals);
}

void SetUnknownMagnitude(const Reading& reading, const text::FactoredSymbol& symbol,
                         const std::string& text) {
    reading.record[ForceMagnitude] = symbol.symbol;
    reading.record[ForceMagnitudeText] = text;
    reading.record[ForceShownMagnitude] = text::SymbolMarkup(symbol.factor, symbol.symbol, reading.decimals);
    SetSymbol(reading, symbol);
}

void SetMagnitude(const Reading& reading, const Part& magnitude, const std::string& text) {
    if (magnitude.known)
        SetKnownMagnitude(reading, magnitude.number, text);
    else
        SetUnknownMagnitude(reading, magnitude.symbol, text);
}

void SetKnownAlong(const Reading& reading, double magnitude, double direction) {
    SetKnown(reading, kX, magnitude * numeric::CosD(direction));
    SetKnown(reading, kY, magnitude * numeric::SinD(direction));
}

// A magnitude k S along a known direction: its components are k cos D and k sin D times S.
void SetUnknownAlong(const Reading& reading, const text::FactoredSymbol& symbol, double direction) {
    SetUnknown(reading, kX, symbol.factor * numeric::CosD(direction), symbol.symbol);
    SetUnknown(reading, kY, symbol.factor * numeric::SinD(direction), symbol.symbol);
}

// A magnitude (with the name in front, when it has one) along an unknown direction.
void SetUnknownDirection(const Reading& reading, double coefficient, const std::string& name_and_blank,
                         const std::string& angle) {
    reading.record[ForceDirection] = angle;
    SetUnknown(reading, kX, coefficient, name_and_blank + "cos " + angle);
    SetUnknown(reading, kY, coefficient, name_and_blank + "sen " + angle);
}

// "cAe,M"

Outcome ReadQuadrantSymbol(const Reading& reading, const text::FactoredSymbol& symbol, double direction) {
    if (IsLong(symbol))
        return text::Refusal{kLongSymbol};
    if (symbol.factor <= 0)
        return text::Refusal{kNoMagnitude};
    SetUnknownMagnitude(reading, symbol, reading.format.second);
    SetUnknownAlong(reading, symbol, direction);
    return {};
}

Outcome ReadQuadrantMagnitude(const Reading& reading, double direction) {
    const Part magnitude = ReadPart(reading.format.second);
    if (!magnitude.known)
        return ReadQuadrantSymbol(reading, magnitude.symbol, direction);
    SetKnownMagnitude(reading, magnitude.number, reading.format.second);
    SetKnownAlong(reading, magnitude.number, direction);
    return {};
}

// "cAe,C"

Outcome ReadQuadrantComponent(const Reading& reading, double direction) {
    if (IsVertical(direction))
        return text::Refusal{"El ángulo no debe ser 90° ó -90°."};
    const std::string& second = reading.format.second;
    const double magnitude =
        MagnitudeFromComponent(direction, text::ToNumber(WithoutLastLetter(second)), second.back());
    SetKnownMagnitude(reading, magnitude, text::RoundedText(magnitude, reading.decimals));
    SetKnownAlong(reading, magnitude, direction);
    return {};
}

using DirectedReader = Outcome (*)(const Reading&, double direction);

template <DirectedReader ReadRest>
Outcome ReadQuadrant(const Reading& reading) {
    const auto outcome = CheckedQuadrantDirection(reading.format.first);
    if (const auto* refusal = std::get_if<text::Refusal>(&outcome))
        return *refusal;
    const auto& direction = std::get<QuadrantDirection>(outcome);
    SetDirection(reading, direction.direction, direction.hour, direction.angle);
    return ReadRest(reading, direction.direction);
}

// "hCx" and "vCy"

struct LineFormat {
    const ComponentElements& along;
    const ComponentElements& across;
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
        SetDirection(reading, line.positive_direction, line.positive_hour, 0);
    else
        SetDirection(reading, line.negative_direction, line.negative_hour, 0);
}

// The shown text of the component is its size alone: the arrow tells the sense.
void ReadLineNumber(const Reading& reading, const LineFormat& line, double component) {
    SetKnownMagnitude(reading, std::abs(component), WithoutMinus(reading.format.second));
    SetLineDirection(reading, line, component);
    SetKnown(reading, line.along, component);
    reading.record[line.along.text] = text::RoundedText(std::abs(component), reading.decimals);
}

void ReadLineSymbol(const Reading& reading, const LineFormat& line, text::FactoredSymbol symbol) {
    if (!symbol.symbol.starts_with('f'))
        symbol.symbol = text::ToUpper(symbol.symbol);
    SetUnknownMagnitude(reading, symbol, WithoutMinus(reading.format.second));
    if (!IsLong(symbol))
        SetLineDirection(reading, line, symbol.factor);
    SetUnknown(reading, line.along, symbol.factor, symbol.symbol);
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
    SetKnownMagnitude(reading, magnitude, text::RoundedText(magnitude, reading.decimals));
    SetDirection(reading, numeric::AngleOf(x, y), numeric::ClockOf(x, y));
    SetKnown(reading, kX, x);
    SetKnown(reading, kY, y);
}

void SetComponent(const Reading& reading, const ComponentElements& axis, const Part& part) {
    if (part.known)
        SetKnown(reading, axis, part.number);
    else
        SetUnknown(reading, axis, part.symbol.factor, part.symbol.symbol);
}

// A symbol on one axis beside a component that is zero is a magnitude along that axis.
void LayOnAxis(const Reading& reading, const LineFormat& line, const Part& along, const Part& across,
               const std::string& text) {
    if (along.known || !across.known || !numeric::NearEq(across.number, 0, kOnAxisTolerance))
        return;
    SetLineDirection(reading, line, along.symbol.factor);
    SetUnknownMagnitude(reading, along.symbol, WithoutMinus(text));
}

std::string ShownComponent(const Reading& reading, const Part& part, const std::string& text) {
    if (part.known)
        return text;
    return (part.symbol.factor < 0 ? "-" : "") +
           text::SymbolMarkup(part.symbol.factor, part.symbol.symbol, reading.decimals);
}

void ReadSymbolicComponents(const Reading& reading, const Part& x, const Part& y) {
    const std::string& first = reading.format.first;
    const std::string& second = reading.format.second;
    SetSymbol(reading, x.known ? y.symbol : x.symbol);
    SetComponent(reading, kX, x);
    SetComponent(reading, kY, y);
    LayOnAxis(reading, kHorizontalLine, x, y, first);
    LayOnAxis(reading, kVerticalLine, y, x, second);
    reading.record[ForceShownMagnitude] =
        ShownComponent(reading, x, first) + "," + ShownComponent(reading, y, second);
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
        SetUnknownDirection(reading, magnitude.symbol.factor, magnitude.symbol.symbol + " ", angle);
}

Outcome ReadPolar(const Reading& reading) {
    const Part magnitude = ReadPart(reading.format.first);
    const Part direction = ReadPart(reading.format.second);
    if (const Outcome refusal = CheckPolar(magnitude, direction))
        return refusal;
    SetMagnitude(reading, magnitude, reading.format.first);
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
    SetKnownMagnitude(reading, 1, "1");
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
    if (record[ForceMagnitude].HoldsNumber() && record[ForceMagnitude].Number() <= 0)
        return text::Refusal{kNoMagnitude};
    return CheckAngles(record[ForceClockAngle], record[ForceDirection]);
}

std::string InCapitals(const std::string& text) {
    if (text.starts_with('f'))
        return "f" + text::ToUpper(std::string_view(text).substr(1));
    return text::ToUpper(text);
}

ForceRecord EmptyRecord(std::string_view text, const VectorFormat& format) {
    ForceRecord record;
    record[ForceGivenText] = text;
    record[ForceLeavesPoint] = format.not_colon ? kLeaves : kArrives;
    record[ForceFormatCode] = format.code;
    record[ForceColour] = kKnownColour;
    return record;
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
    ForceRecord record = EmptyRecord(text, format);
    if (const Outcome refusal = ReadByFormat({format, decimals, record}))
        return *refusal;
    if (const Outcome refusal = CheckRanges(record))
        return *refusal;
    record[ForceMagnitudeText] = InCapitals(record[ForceMagnitudeText].Text());
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
