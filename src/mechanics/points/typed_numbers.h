#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "text/refusal.h"

namespace tavrelo::mechanics::points {

inline constexpr std::string_view kNoNumberAmongCoefficients = "Hay algún coeficiente no numérico.";
inline constexpr std::string_view kWrongNumberOfCoefficients = "Número de coeficientes incorrecto.";

/// The pieces of a text between commas, blanks around them cut; one empty piece for an empty text.
std::vector<std::string> PiecesOf(std::string_view typed);

/// The numbers of a list typed with commas between. Refuses a piece that is no number, then a wrong count.
std::variant<text::Refusal, std::vector<double>> ReadNumbers(std::string_view typed, std::size_t count);

}  // namespace tavrelo::mechanics::points
