#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace tavrelo::notation {

/// The text without the blanks around it, not copied.
std::string_view WithoutBlanks(std::string_view text);

/// The pieces of a list typed with commas, without the blanks around each; they point into `text`. A text of
/// blanks alone has no pieces, and every comma ends one, so "1," has a second piece that is empty.
std::vector<std::string_view> PiecesOf(std::string_view text);

/// The numbers of such a list; nothing when a piece counts as no number. Fails with Overflow past the range
/// of a double.
std::optional<std::vector<double>> NumbersOf(std::string_view text);

}  // namespace tavrelo::notation
