#include "mechanics/forces/unknowns.h"

#include <algorithm>
#include <optional>

#include "numeric/checked.h"
#include "text/number_text.h"
#include "text/symbols.h"
#include "text/utf8.h"

namespace tavrelo::mechanics::forces {
namespace {

constexpr std::string_view kCosMark = "cos ";
constexpr std::string_view kSenMark = "sen ";

AngleFunction FunctionAt(std::string_view text) {
    if (text.starts_with(kCosMark))
        return AngleFunction::Cos;
    return text.starts_with(kSenMark) ? AngleFunction::Sen : AngleFunction::None;
}

// Where the angle function of a text stands: at its start or behind the blank after a magnitude.
std::size_t FunctionPosition(std::string_view text) {
    if (FunctionAt(text) != AngleFunction::None)
        return 0;
    const std::size_t cos = text.find(" " + std::string(kCosMark));
    const std::size_t sen = text.find(" " + std::string(kSenMark));
    const std::size_t blank = std::min(cos, sen);
    return blank == std::string_view::npos ? blank : blank + 1;
}

void AddUnknown(ForceSum& sum, const std::string& unknown, double coefficient) {
    const bool is_first = sum.first.empty();
    (is_first ? sum.first : sum.second) = unknown;
    (is_first ? sum.first_coef : sum.second_coef) = coefficient;
    ++sum.unknowns;
}

// False when the component holds a third unknown.
bool AddComponent(ForceSum& sum, const ForceRow& force, const ComponentColumns& columns) {
    if (text::IsNum(force[columns.component])) {
        sum.known = numeric::CheckedAdd(sum.known, force[columns.component].Number());
        return true;
    }
    const std::string unknown = force[columns.unknown].Text();
    const double coefficient = force[columns.coefficient].Number();
    if (SameUnknown(unknown, sum.first))
        sum.first_coef = numeric::CheckedAdd(sum.first_coef, coefficient);
    else if (SameUnknown(unknown, sum.second))
        sum.second_coef = numeric::CheckedAdd(sum.second_coef, coefficient);
    else if (sum.second.empty())
        AddUnknown(sum, unknown, coefficient);
    else
        return false;
    return true;
}

std::optional<ForceSum> Collect(const ForceTable& table, const ComponentColumns& columns) {
    ForceSum sum;
    for (const ForceRow& force : table)
        if (!AddComponent(sum, force, columns))
            return {};
    return sum;
}

}  // namespace

UnknownTerm ReadUnknown(std::string_view text) {
    const std::size_t position = FunctionPosition(text);
    if (position == std::string_view::npos)
        return {std::string(text), AngleFunction::None, {}};
    return {text::Trim(text.substr(0, position)), FunctionAt(text.substr(position)),
            std::string(text.substr(position + kCosMark.size()))};
}

bool SameUnknown(std::string_view a, std::string_view b) {
    const UnknownTerm left = ReadUnknown(a);
    const UnknownTerm right = ReadUnknown(b);
    return left.function == right.function && text::SameSymbol(left.magnitude, right.magnitude) &&
           text::SameSymbol(left.angle, right.angle);
}

std::variant<text::Refusal, ForceSums> CollectSums(const ForceTable& table) {
    const auto x = Collect(table, kXColumns);
    const auto y = Collect(table, kYColumns);
    if (!x || !y)
        return text::Refusal{kTooManyUnknowns};
    return ForceSums{*x, *y};
}

std::size_t LengthOf(std::string_view unknown) { return text::CharacterCount(unknown); }

}  // namespace tavrelo::mechanics::forces
