#pragma once

#include <cstddef>
#include <string_view>
#include <variant>
#include <vector>

#include "text/refusal.h"

namespace tavrelo::notation {

/// The text without the blanks around it, not copied.
std::string_view WithoutBlanks(std::string_view text);

/// The pieces of a list typed with commas, without the blanks around each; they point into `text`. A text of
/// blanks alone has no pieces, and every comma ends one, so "1," has a second piece that is empty.
std::vector<std::string_view> PiecesOf(std::string_view text);

inline constexpr std::string_view kNonNumericCoefficient = "Hay algún coeficiente no numérico.";
inline constexpr std::string_view kWrongCoefficientCount = "Número de coeficientes incorrecto.";

/// The numbers of such a list, `count` of them. Refuses a piece that counts as no number, then a wrong count.
/// Fails with Overflow past the range of a double.
std::variant<text::Refusal, std::vector<double>> ReadNumbers(std::string_view list, std::size_t count);

}  // namespace tavrelo::notation
