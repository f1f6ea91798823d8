#include "mechanics/forces/sum_equation.h"

#include <string_view>

#include "text/number_text.h"

namespace tavrelo::mechanics::forces {

std::string TermMarkup(const notation::UnknownTerm& unknown, const NameMarkup& name) {
    if (!unknown.HasAngle())
        return name(unknown.magnitude);
    const std::string term = std::string(notation::NameOf(unknown.function)) + " " + name(unknown.angle);
    return unknown.HasBoth() ? name(unknown.magnitude) + " " + term : term;
}

std::string EquationMarkup(const SumEquation& equation, const NameMarkup& name, int decimals) {
    constexpr std::string_view kLeadingPlus = " + ";
    const auto term = [decimals](bool plus_sign, double coef, const text::Value& label) {
        return text::TermText(plus_sign, false, text::RoundTo(coef, decimals), label);
    };
    std::string text;
    bool first = true;
    for (const SumTerm& each : equation.terms) {
        text += term(!first, each.coef, TermMarkup(each.unknown, name));
        first = false;
    }
    text += term(true, equation.constant, 1) + " = 0";
    return text.starts_with(kLeadingPlus) ? text.substr(kLeadingPlus.size()) : text;
}

}  // namespace tavrelo::mechanics::forces
