#include "mechanics/forces/equation_text.h"

#include <string_view>

#include "text/number_text.h"
#include "text/symbols.h"

namespace tavrelo::mechanics::forces {

std::string EquationText(const Equation& equation, int decimals) {
    constexpr std::string_view kLeadingPlus = " + ";
    const auto term = [decimals](bool plus_sign, double coef, const text::Value& label) {
        return text::TermText(plus_sign, false, text::RoundTo(coef, decimals), label);
    };
    std::string text;
    bool first = true;
    for (const EquationTerm& each : equation.terms) {
        text += term(!first, each.coef, each.label);
        first = false;
    }
    text += term(true, equation.constant, 1) + " = 0";
    return text.starts_with(kLeadingPlus) ? text.substr(kLeadingPlus.size()) : text;
}

std::string AngleLabel(const std::string& function, const std::string& angle) {
    return function + " " + text::SubscriptName(angle);
}

std::string AngleLabel(const std::string& magnitude, const std::string& function, const std::string& angle) {
    return text::SubscriptName(magnitude) + " " + AngleLabel(function, angle);
}

}  // namespace tavrelo::mechanics::forces
