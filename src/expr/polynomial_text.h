#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tavrelo::expr {

inline constexpr std::string_view kCoefficientNoNumber = "Uno de los coeficientes no es un número.";

/// A polynomial in x written in the formula language, from its coefficients with the highest degree first:
/// {"2", "0", "-1"} is "2*x^2+0*x-1". Nothing, for kCoefficientNoNumber to be shown, when a coefficient is no
/// number by IsNum. Fails with Overflow on a coefficient past the range of a double.
std::optional<std::string> GetPolynomial(std::span<const std::string> coefs);

}  // namespace tavrelo::expr
