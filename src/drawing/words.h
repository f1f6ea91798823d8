#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

// The words with which drawings are described to those who do not see them: Spanish, as one would tell them
// over the telephone.

namespace tavrelo::drawing {

/// Something that is counted.
struct Noun {
    std::string_view one;
    std::string_view many;
    bool feminine = false;
};

/// "una fuerza", "dos fuerzas", "12 fuerzas"; "ninguna fuerza" for 0.
std::string Counted(std::size_t count, const Noun& noun);

/// "A", "A y B", "A, B y C".
std::string Listed(std::span<const std::string> items);
/// The same for longer items: "a; b; c".
std::string ListedAtLength(std::span<const std::string> items);

/// With a capital at its beginning.
std::string AsSentence(std::string words);

/// A rounded number as it is said: "menos 2.5". Never fails: words for a drawing cannot stop it.
std::string NumberWords(double number, int decimals);
/// "30 grados", "1 grado".
std::string DegreesWords(double degrees, int decimals);
/// Where something points: "hacia la derecha", "hacia abajo", else "a 30 grados"; from the x axis,
/// counter-clockwise.
std::string DirectionWords(double degrees, int decimals);
/// "x 4, y menos 3".
std::string PlaceWords(double x, double y, int decimals);

/// A label without its marks: "F!1" is "F1", "-A!x,A!y" is "menos Ax, Ay".
std::string LabelWords(std::string_view markup);

}  // namespace tavrelo::drawing
