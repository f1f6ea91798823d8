#include "mechanics/points/typed_numbers.h"

#include "text/number_text.h"
#include "text/utf8.h"

namespace tavrelo::mechanics::points {

std::vector<std::string> PiecesOf(std::string_view typed) {
    std::vector<std::string> pieces;
    for (std::size_t begin = 0;;) {
        const std::size_t comma = typed.find(',', begin);
        pieces.push_back(text::Trim(typed.substr(begin, comma - begin)));
        if (comma == std::string_view::npos)
            return pieces;
        begin = comma + 1;
    }
}

std::variant<text::Refusal, std::vector<double>> ReadNumbers(std::string_view typed, std::size_t count) {
    std::vector<double> numbers;
    for (const std::string& piece : PiecesOf(typed)) {
        if (!text::IsNum(piece))
            return text::Refusal{std::string(kNoNumberAmongCoefficients)};
        numbers.push_back(text::ToNumber(piece));
    }
    if (numbers.size() != count)
        return text::Refusal{std::string(kWrongNumberOfCoefficients)};
    return numbers;
}

}  // namespace tavrelo::mechanics::points
