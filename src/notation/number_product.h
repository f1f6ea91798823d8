#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavrelo::notation {

/// What joins the numbers of a product: "15*9.8" is the weight of 15 kg.
inline constexpr char kTimes = '*';

/// The number that a text writes, or the product of numbers joined by "*", blanks around each allowed;
/// nothing for any other text. A product is its fifteen-digit decimal, so that "3*0.1" is the number that
/// "0.3" is. Fails with Overflow past the range of a double.
std::optional<double> ReadNumberProduct(std::string_view text);

/// The number that a product amounts to, as text: "-15*9.8" gives "-147". Any other text stays as it is.
/// Fails as ReadNumberProduct.
std::string WithProductComputed(std::string_view text);

}  // namespace tavrelo::notation
