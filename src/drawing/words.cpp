#include "drawing/words.h"

#include <cmath>
#include <iterator>

#include "text/number_text.h"
#include "text/picture_markup.h"
#include "text/spoken.h"
#include "text/utf8.h"

namespace tavrelo::drawing {
namespace {

constexpr std::string_view kCounts[] = {"",     "",      "dos",  "tres",  "cuatro", "cinco",
                                        "seis", "siete", "ocho", "nueve", "diez"};

std::string CountWord(std::size_t count, bool feminine) {
    if (count == 0)
        return feminine ? "ninguna" : "ningún";
    if (count == 1)
        return feminine ? "una" : "un";
    return count < std::size(kCounts) ? std::string(kCounts[count]) : std::to_string(count);
}

struct NamedDirection {
    std::string_view degrees;
    std::string_view words;
};
constexpr NamedDirection kDirections[] = {
    {"0", "hacia la derecha"},      {"90", "hacia arriba"}, {"180", "hacia la izquierda"},
    {"-180", "hacia la izquierda"}, {"-90", "hacia abajo"}, {"270", "hacia abajo"},
};

std::string Joined(std::span<const std::string> items, std::string_view between, std::string_view last) {
    std::string joined;
    for (std::size_t k = 0; k < items.size(); ++k) {
        if (k > 0)
            joined += k + 1 == items.size() ? last : between;
        joined += items[k];
    }
    return joined;
}

}  // namespace

std::string Counted(std::size_t count, const Noun& noun) {
    return CountWord(count, noun.feminine) + " " + std::string(count < 2 ? noun.one : noun.many);
}

std::string Listed(std::span<const std::string> items) { return Joined(items, ", ", " y "); }

std::string ListedAtLength(std::span<const std::string> items) { return Joined(items, "; ", "; "); }

std::string AsSentence(std::string words) {
    const std::u32string characters = text::ToCodePoints(words);
    if (characters.empty())
        return words;
    return text::ToUpper(text::ToUtf8(characters.front())) +
           text::ToUtf8(std::u32string_view(characters).substr(1));
}

std::string NumberWords(double number, int decimals) {
    if (!std::isfinite(number))
        return "fuera de alcance";
    return text::SpokenText(text::RoundedText(number, decimals));
}

std::string DegreesWords(double degrees, int decimals) {
    const std::string number = NumberWords(degrees, decimals);
    return number + (number == "1" || number == "menos 1" ? " grado" : " grados");
}

std::string DirectionWords(double degrees, int decimals) {
    const std::string rounded = std::isfinite(degrees) ? text::RoundedText(degrees, decimals) : std::string();
    for (const NamedDirection& named : kDirections)
        if (rounded == named.degrees)
            return std::string(named.words);
    return "a " + DegreesWords(degrees, decimals);
}

std::string PlaceWords(double x, double y, int decimals) {
    return "x " + NumberWords(x, decimals) + ", y " + NumberWords(y, decimals);
}

std::string LabelWords(std::string_view markup) {
    std::string words;
    for (const text::PlacedRun& run : text::LayOutMarkup(markup, text::Font{}, text::kBlack))
        words += run.text;
    words = text::ReplaceAll(words, ",", ", ");
    return text::ReplaceAll(words, "-", "menos ");
}

}  // namespace tavrelo::drawing
