#include "expr/polynomial_text.h"

#include <cmath>

#include "text/number_text.h"

namespace tavrelo::expr {

namespace {

std::string PowerText(std::size_t exponent) {
    switch (exponent) {
        case 0:
            return "";
        case 1:
            return "*x";
        default:
            return "*x^" + std::to_string(exponent);
    }
}

}  // namespace

std::optional<std::string> GetPolynomial(std::span<const std::string> coefs) {
    std::string text;
    for (std::size_t i = 0; i < coefs.size(); ++i) {
        if (!text::IsNum(coefs[i])) {
            return std::nullopt;
        }
        const double coef = text::ToNumber(coefs[i]);
        if (coef < 0.0) {
            text += "-";
        } else if (i > 0) {
            text += "+";
        }
        text += text::NumberToText(std::abs(coef)) + PowerText(coefs.size() - 1 - i);
    }
    return text;
}

}  // namespace tavrelo::expr
