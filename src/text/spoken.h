#pragma once

#include <span>
#include <string>

#include "text/picture_markup.h"
#include "text/rich_text.h"

namespace tavrelo::text {

/// A report or an equation in Spanish as a teacher reads it aloud, line by line (parted by "\n"): "sigma F
/// sub x igual a 0.866 F sub 1 menos 100". Numbers stay digits, words stay words. A bold letter is a vector;
/// where a text uses a letter both small and capital, the capital is told as such.
std::string SpokenText(const RichText& text);

/// The same of one text that was printed on a picture.
std::string SpokenText(std::span<const PlacedRun> runs);

/// The same of a text without any look, such as a caption.
std::string SpokenText(std::string_view text);

}  // namespace tavrelo::text
