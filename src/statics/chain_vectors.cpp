#include "statics/chain_vectors.h"

#include <algorithm>
#include <cmath>

#include "numeric/angles.h"
#include "numeric/checked.h"
#include "numeric/number_text.h"
#include "numeric/utf8.h"
#include "vectors/force_parser.h"
#include "vectors/vector_format.h"

namespace tavrelo::statics {
namespace {

using vectors::ForceRecord;

constexpr std::size_t kShortestChain = 2;
constexpr std::size_t kLongestChain = 7;
constexpr const char* kChainLength = "Mínimo 2 letras, máximo 7";

// What the further values of a chain mean.
enum class Series { None, X, Y, Magnitude };

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
std::optional<Refusal> CheckCommandChain(std::string_view chain) {
    const std::vector<std::string> letters = LettersOf(chain);
    if (!ArePointLetters(letters))
        return Refusal{"Sólo letras A,B,C,...,etc. en el comando."};
    if (HasRepeated(chain))
        return Refusal{"Hay una letra repetida en el comando."};
    if (!HasChainLength(letters))
        return Refusal{kChainLength};
    return {};
}

std::optional<Refusal> CheckVector(const ForceRecord& vector, std::size_t vectors) {
    if (!vector[vectors::ForceX].HoldsNumber() || !vector[vectors::ForceY].HoldsNumber())
        return Refusal{"Componentes no numéricas del vector."};
    if (vector[vectors::ForceFormatCode].Text() == vectors::kUnit && vectors > 1)
        return Refusal{"Operación no válida con este formato."};
    return {};
}

Series SeriesOf(std::string_view text) {
    const std::string mark = numeric::ToUpper(numeric::Trim(text));
    if (mark == "X")
        return Series::X;
    if (mark == "Y")
        return Series::Y;
    return mark == "M" ? Series::Magnitude : Series::None;
}

Series SeriesFor(const ForceRecord& first, std::string_view text) {
    return NeedsSeries(first[vectors::ForceFormatCode].Text()) ? SeriesOf(text) : Series::Magnitude;
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
    switch (series) {
        case Series::X:
            return StepByX(direction, value);
        case Series::Y:
            return StepByY(direction, value);
        case Series::Magnitude:
            return {value * numeric::CosD(direction), value * numeric::SinD(direction)};
        case Series::None:
            break;
    }
    throw numeric::RuntimeFailure(numeric::FailureCode::TypeMismatch, "series that is not told");
}

double FurtherValue(const ChainEntry& entry, std::size_t further) {
    if (further >= entry.texts.size())
        throw numeric::RuntimeFailure(numeric::FailureCode::TypeMismatch, "missing value of a chain");
    return numeric::ToNumber(numeric::Trim(entry.texts[further]));
}

// Of the pair that begins at the letter `pair` of the chain.
Step StepOf(const ChainEntry& entry, const ForceRecord& first, std::size_t pair) {
    if (pair == 0)
        return {first[vectors::ForceX].Number(), first[vectors::ForceY].Number()};
    return StepBy(SeriesFor(first, entry.series), first[vectors::ForceDirection].Number(),
                  FurtherValue(entry, pair - 1));
}

std::optional<Refusal> CheckPair(const std::string& from, const std::string& to, const PointTable& known) {
    if (!FindPoint(known, from) || !FindPoint(known, to))
        return {};
    std::string text = "El segmento ";
    text.append(from).append(to).append(" ya está registrado.");
    return Refusal{text};
}

}  // namespace

std::optional<Refusal> CheckChain(std::string_view chain) {
    const std::vector<std::string> letters = LettersOf(chain);
    if (!HasChainLength(letters))
        return Refusal{kChainLength};
    if (!ArePointLetters(letters))
        return Refusal{"Carácter inválido en el símbolo del segmento."};
    if (HasRepeated(chain))
        return Refusal{"Hay una letra repetida."};
    return {};
}

bool NeedsSeries(std::string_view format_code) {
    return format_code == vectors::kQuadrantComponent || format_code == vectors::kComponents;
}

std::variant<Refusal, SegTable> ChainRows(const ChainEntry& entry, const PointTable& known, int decimals) {
    if (const auto refusal = CheckCommandChain(entry.chain))
        return *refusal;
    const auto parsed = vectors::ParseForce(entry.vector, decimals);
    if (const auto* refusal = std::get_if<Refusal>(&parsed))
        return *refusal;
    const auto& first = std::get<ForceRecord>(parsed);
    const std::vector<std::string> letters = LettersOf(entry.chain);
    if (const auto refusal = CheckVector(first, letters.size() - 1))
        return *refusal;
    SegTable rows;
    for (std::size_t pair = 0; pair + 1 < letters.size(); ++pair) {
        const std::string& from = letters[pair];
        const std::string& to = letters[pair + 1];
        if (const auto refusal = CheckPair(from, to, known))
            return *refusal;
        const Step step = StepOf(entry, first, pair);
        rows.push_back({from, to, step.dx, step.dy});
    }
    return rows;
}

}  // namespace tavrelo::statics
