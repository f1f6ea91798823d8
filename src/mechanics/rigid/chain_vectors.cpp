#include "mechanics/rigid/chain_vectors.h"

#include <algorithm>
#include <cmath>

#include "notation/force_parser.h"
#include "notation/number_product.h"
#include "notation/vector_format.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "text/number_text.h"
#include "text/refusal.h"
#include "text/utf8.h"

namespace tavrelo::mechanics::rigid {
namespace {

using notation::ForceRecord;

constexpr std::size_t kShortestChain = 2;
constexpr std::size_t kLongestChain = 7;
constexpr const char* kChainLength = "Mínimo 2 letras, máximo 7";

// What the further values of a chain mean.
enum class Series { X, Y, Magnitude };

struct Step {
    double dx;
    double dy;
};

bool IsPointLetter(const std::string& letter) {
    return letter.size() == 1 && letter.front() >= 'A' && letter.front() <= 'Z';
}

bool ArePointLetters(const std::vector<std::string>& letters) {
    return std::all_of(letters.begin(), letters.end(), IsPointLetter);
}

bool HasChainLength(const std::vector<std::string>& letters) {
    return letters.size() >= kShortestChain && letters.size() <= kLongestChain;
}

// The tests of the command; they come in another order and with other words than those of the chain box.
std::optional<text::Refusal> CheckCommandChain(std::string_view chain) {
    const std::vector<std::string> letters = LettersOf(chain);
    if (!ArePointLetters(letters))
        return text::Refusal{"Sólo letras A,B,C,...,etc. en el comando."};
    if (HasRepeated(chain))
        return text::Refusal{"Hay una letra repetida en el comando."};
    if (!HasChainLength(letters))
        return text::Refusal{kChainLength};
    return {};
}

std::optional<text::Refusal> CheckVector(const ForceRecord& vector, std::size_t vectors) {
    if (!vector.force.HasComponents())
        return text::Refusal{"Componentes no numéricas del vector."};
    if (vector.code == notation::kUnit && vectors > 1)
        return text::Refusal{"Operación no válida con este formato."};
    return {};
}

// Nothing for any other mark.
std::optional<Series> SeriesOf(std::string_view text) {
    const std::string mark = text::ToUpper(text::Trim(text));
    if (mark == "X")
        return Series::X;
    if (mark == "Y")
        return Series::Y;
    if (mark == "M")
        return Series::Magnitude;
    return {};
}

std::optional<Series> SeriesFor(const ForceRecord& first, std::string_view text) {
    return NeedsSeries(first.code) ? SeriesOf(text) : Series::Magnitude;
}

bool IsZero(double part) { return std::abs(part) <= numeric::kDirectionTolerance; }

// The first number's size with the second one's sign; the sign of nothing is 0.
double Along(double size, double sign) { return IsZero(sign) ? 0 : std::copysign(size, sign); }

// Across an axis no component tells the magnitude, so that the vector is null.
Step StepByX(double direction, double x) {
    const double cosine = numeric::CosD(direction);
    const double sine = numeric::SinD(direction);
    if (IsZero(cosine))
        return {0, 0};
    const double partner = numeric::CheckedMultiply(x, numeric::TanD(direction));
    return {Along(std::abs(x), cosine), Along(std::abs(partner), sine)};
}

// Keeps the sign of the value, unlike StepByX.
Step StepByY(double direction, double y) {
    const double cosine = numeric::CosD(direction);
    const double sine = numeric::SinD(direction);
    if (IsZero(sine))
        return {0, 0};
    const double partner = IsZero(cosine) ? 0 : numeric::CheckedDivide(y, numeric::TanD(direction));
    return {Along(std::abs(partner), cosine), sine > 0 ? y : -y};
}

Step StepBy(Series series, double direction, double value) {
    if (series == Series::X)
        return StepByX(direction, value);
    if (series == Series::Y)
        return StepByY(direction, value);
    return {value * numeric::CosD(direction), value * numeric::SinD(direction)};
}

ChainRefusal Missing(ChainField field, std::size_t value = 0) { return {std::nullopt, field, value}; }

std::variant<ChainRefusal, Step> FurtherStep(const ChainEntry& entry, const ForceRecord& first,
                                             std::size_t further) {
    const std::optional<Series> series = SeriesFor(first, entry.series);
    if (!series)
        return Missing(ChainField::Series);
    const std::string text = further < entry.texts.size() ? text::Trim(entry.texts[further]) : "";
    const std::optional<double> value = notation::ReadNumberProduct(text);
    if (!value)
        return Missing(ChainField::Value, further);
    return StepBy(*series, first.force.direction.value_or(0), *value);
}

// Of the pair that begins at the letter `pair` of the chain.
std::variant<ChainRefusal, Step> StepOf(const ChainEntry& entry, const ForceRecord& first, std::size_t pair) {
    if (pair > 0)
        return FurtherStep(entry, first, pair - 1);
    return Step{first.force.x.number.value_or(0), first.force.y.number.value_or(0)};
}

std::optional<text::Refusal> CheckPair(const std::string& from, const std::string& to,
                                       const PointTable& known) {
    if (!FindPoint(known, from) || !FindPoint(known, to))
        return {};
    std::string text = "El segmento ";
    text.append(from).append(to).append(" ya está registrado.");
    return text::Refusal{text};
}

}  // namespace

std::optional<text::Refusal> CheckChain(std::string_view chain) {
    const std::vector<std::string> letters = LettersOf(chain);
    if (!HasChainLength(letters))
        return text::Refusal{kChainLength};
    if (!ArePointLetters(letters))
        return text::Refusal{"Carácter inválido en el símbolo del segmento."};
    if (HasRepeated(chain))
        return text::Refusal{"Hay una letra repetida."};
    return {};
}

bool NeedsSeries(std::string_view format_code) {
    return format_code == notation::kQuadrantComponent || format_code == notation::kComponents;
}

std::variant<ChainRefusal, SegTable> ChainRows(const ChainEntry& entry, const PointTable& known,
                                               int decimals) {
    if (const auto refusal = CheckCommandChain(entry.chain))
        return ChainRefusal{*refusal, ChainField::Chain};
    const auto parsed = notation::ParseForce(entry.vector, decimals);
    if (const auto* refusal = std::get_if<text::Refusal>(&parsed))
        return ChainRefusal{*refusal, ChainField::Vector};
    const auto& first = std::get<ForceRecord>(parsed);
    const std::vector<std::string> letters = LettersOf(entry.chain);
    if (const auto refusal = CheckVector(first, letters.size() - 1))
        return ChainRefusal{*refusal, ChainField::Vector};
    SegTable rows;
    for (std::size_t pair = 0; pair + 1 < letters.size(); ++pair) {
        const std::string& from = letters[pair];
        const std::string& to = letters[pair + 1];
        if (const auto refusal = CheckPair(from, to, known))
            return ChainRefusal{*refusal, ChainField::Chain};
        const auto step = StepOf(entry, first, pair);
        if (const auto* refusal = std::get_if<ChainRefusal>(&step))
            return *refusal;
        rows.push_back({from, to, std::get<Step>(step).dx, std::get<Step>(step).dy});
    }
    return rows;
}

}  // namespace tavrelo::mechanics::rigid
