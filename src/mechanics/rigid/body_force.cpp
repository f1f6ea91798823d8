#include "mechanics/rigid/body_force.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <system_error>
#include <utility>

#include "notation/force_parser.h"
#include "notation/number_product.h"
#include "notation/vector_format.h"
#include "numeric/angles.h"
#include "text/number_text.h"
#include "text/symbols.h"
#include "text/utf8.h"

namespace tavrelo::mechanics::rigid {
namespace {

using notation::VectorFormat;

// What begins or joins the parts of a force; a text without any of it is a couple.
constexpr std::string_view kForceSeparators = ",;<";
constexpr std::string_view kForceLetters = "hvu";
constexpr char kCoupleMark = '/';
constexpr char kMinus = '-';
constexpr char kColon = ':';

// Words of the force field. Where they stand for nothing they are bad forces, not couples.
constexpr std::array<std::string_view, 5> kKeywords = {"art", "art:", "emp", "emp:", "per"};

constexpr std::size_t kReferenceWord = 3;  // characters of "neg" and of "pos"

constexpr double kHalfTurn = 180;
constexpr int kAngleDecimals = 12;  // the dust of a sum with 180 lies behind them

// --- The two sides of a text

struct Sides {
    std::string force;
    std::string couple;
};

bool IsPureCouple(std::string_view text) {
    return !text.empty() && text.find_first_of(kForceSeparators) == std::string_view::npos &&
           kForceLetters.find(text.front()) == std::string_view::npos &&
           std::find(kKeywords.begin(), kKeywords.end(), text) == kKeywords.end();
}

Sides SidesOf(std::string_view text) {
    const std::size_t mark = std::min(text.find(kCoupleMark), text.size());
    Sides sides = {text::Trim(text.substr(0, mark)), ""};
    if (mark < text.size())
        sides.couple = text::Trim(text.substr(mark + 1));
    if (sides.couple.empty() && IsPureCouple(sides.force))
        std::swap(sides.force, sides.couple);
    return sides;
}

bool IsCoupleAlone(const Sides& sides) { return sides.force.empty() && !sides.couple.empty(); }

// --- Couples

std::string NameOfCouple(std::string_view text) {
    return text::Trim(text.starts_with(kMinus) ? text.substr(1) : text);
}

// A name of any length: that of a couple is examined only where it is negated.
bool IsCoupleName(std::string_view name) {
    return !name.empty() && name.find_first_of("+-.0123456789") != 0 &&
           name.find_first_of(" /:,;<") == std::string_view::npos;
}

std::variant<text::Refusal, Couple> ReadCouple(const std::string& text) {
    if (text::IsNum(text))
        return Couple{.text = text, .value = text::ToNumber(text)};
    const std::string name = NameOfCouple(text);
    if (!IsCoupleName(name))
        return text::Refusal{"El símbolo debe constar de una literal y uno o dos subíndices."};
    return Couple{.text = text, .symbol = text::ToUpper(name), .sign = text.starts_with(kMinus) ? -1.0 : 1.0};
}

std::optional<text::Refusal> SetCouple(BodyForce& row, const std::string& text) {
    auto couple = ReadCouple(text);
    if (const auto* refusal = std::get_if<text::Refusal>(&couple))
        return *refusal;
    row.couple = std::get<Couple>(std::move(couple));
    return {};
}

std::optional<text::Refusal> SetForce(ReadForce& read, const std::string& text, int decimals) {
    auto parsed = notation::ParseForce(text, decimals);
    if (const auto* refusal = std::get_if<text::Refusal>(&parsed))
        return *refusal;
    read.written = std::get<notation::ForceRecord>(std::move(parsed));
    read.force.force = read.written->force;
    return {};
}

// --- Negation

std::string ToggledMinus(const std::string& text) {
    return text.starts_with(kMinus) ? text::Trim(std::string_view(text).substr(1)) : kMinus + text;
}

// A number, a product of numbers or a symbol with the other sign.
std::string Negated(const std::string& text) {
    const std::optional<double> number = notation::ReadNumberProduct(text);
    return number ? text::NumberToText(-*number) : ToggledMinus(text);
}

// The opposite of an unknown direction cannot be written: the sign makes the later entry tell so.
std::string OppositeDirection(const std::string& text) {
    if (!text::IsNum(text))
        return ToggledMinus(text);
    const double opposite = numeric::NormAngle(text::ToNumber(text) + kHalfTurn);
    return text::RoundedText(opposite, kAngleDecimals);
}

// The letter of a quadrant in front becomes that of the opposite one; any other letter stays.
std::string NegatedQuadrant(std::string text) {
    constexpr std::string_view kQuadrants = "ptsc";
    constexpr std::string_view kOpposites = "tpcs";
    const std::size_t quadrant = text.empty() ? std::string_view::npos : kQuadrants.find(text.front());
    if (quadrant != std::string_view::npos)
        text.front() = kOpposites[quadrant];
    return text;
}

std::string NegatedComponents(const VectorFormat& format) {
    return Negated(format.first) + ", " + Negated(format.second);
}

std::string NegatedPolar(const VectorFormat& format, const std::string& text) {
    return text.substr(0, text.find_first_of(kForceSeparators) + 1) + OppositeDirection(format.second);
}

// `text` is the trimmed force without its final colon.
std::string NegateByFormat(const VectorFormat& format, const std::string& text) {
    if (format.code == notation::kQuadrantMagnitude || format.code == notation::kQuadrantComponent)
        return NegatedQuadrant(text);
    if (format.code == notation::kComponents)
        return NegatedComponents(format);
    if (format.code == notation::kPolar)
        return NegatedPolar(format, text);
    const std::string letter = text.substr(0, 1);
    return letter +
           (format.code == notation::kUnit ? OppositeDirection(format.second) : Negated(format.second));
}

std::variant<text::Refusal, std::string> NegateForce(const std::string& text) {
    const VectorFormat format = notation::VectorFormatOf(text);
    if (!format.msg.empty())
        return text::Refusal{format.msg};
    if (format.not_colon)
        return NegateByFormat(format, text);
    return NegateByFormat(format, text::Trim(text.substr(0, text.rfind(kColon)))) + kColon;
}

// Digits stay as typed, unlike those of a component.
std::string NegatedNumber(const std::string& text) {
    if (text::ToNumber(text) == 0)
        return "0";
    return text.starts_with('+') ? kMinus + text.substr(1) : ToggledMinus(text);
}

std::variant<text::Refusal, std::string> NegateCouple(const std::string& text) {
    if (text::IsNum(text))
        return NegatedNumber(text);
    if (text::CharacterCount(NameOfCouple(text)) > text::kLongestSymbol)
        return text::Refusal{"El símbolo del momento debe constar a lo más de tres literales."};
    return ToggledMinus(text);
}

// --- References

int RowNumber(const std::string& text) {
    int row = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, row);
    return read.ec == std::errc() && read.ptr == end ? std::max(row, 0) : 0;
}

}  // namespace

std::variant<text::Refusal, ReadForce> ReadBodyForce(int body, const PointRecord& point,
                                                     std::string_view text, int decimals) {
    ReadForce read;
    BodyForce& row = read.force;
    row.body = body;
    row.point = point.name;
    row.x = point.x;
    row.y = point.y;
    row.text = text;
    const Sides sides = SidesOf(text);
    if (!IsCoupleAlone(sides))
        if (const auto refusal = SetForce(read, sides.force, decimals))
            return *refusal;
    if (!sides.couple.empty())
        if (const auto refusal = SetCouple(row, sides.couple))
            return *refusal;
    return read;
}

BodyForces AtPoints(BodyForces forces, const PointTable& points) {
    for (BodyForce& row : forces)
        if (const PointRecord* point = FindPoint(points, row.point)) {
            row.x = point->x;
            row.y = point->y;
        }
    return forces;
}

std::variant<text::Refusal, std::string> NegateForceText(std::string_view text) {
    const Sides sides = SidesOf(text);
    if (sides.couple.empty())
        return NegateForce(sides.force);
    auto couple = NegateCouple(sides.couple);
    if (IsCoupleAlone(sides) || std::holds_alternative<text::Refusal>(couple))
        return couple;
    auto force = NegateForce(sides.force);
    if (std::holds_alternative<text::Refusal>(force))
        return force;
    return std::get<std::string>(force) + kCoupleMark + std::get<std::string>(couple);
}

std::string SupportText(std::string_view keyword, std::string_view point) {
    const bool is_built_in = keyword == "emp" || keyword == "emp:";
    if (!is_built_in && keyword != "art" && keyword != "art:")
        return {};
    const std::string name(point);
    const std::string colon = keyword.ends_with(kColon) ? ":" : "";
    return name + "x, " + name + "y" + colon + (is_built_in ? "/M" + name : "");
}

std::optional<RowReference> ReadRowReference(std::string_view text) {
    const bool negated = text.starts_with("neg");
    if (!negated && !text.starts_with("pos"))
        return {};
    const std::string_view behind = text.substr(kReferenceWord);
    const std::string number = text::Trim(behind);
    const bool is_reference = number.empty() || behind.starts_with(' ') || text::IsNum(number);
    if (!is_reference)
        return {};
    return RowReference{negated, RowNumber(number)};
}

std::string SeriesText(std::string_view first_text, std::string_view value) {
    return std::string(text::Trim(first_text).substr(0, 1)) + text::Trim(value);
}

}  // namespace tavrelo::mechanics::rigid
