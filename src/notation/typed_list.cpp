#include "notation/typed_list.h"

#include <string>

#include "text/number_text.h"

namespace tavrelo::notation {

std::string_view WithoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string_view> PiecesOf(std::string_view text) {
    std::vector<std::string_view> pieces;
    if (WithoutBlanks(text).empty())
        return pieces;
    for (;;) {
        const std::size_t comma = text.find(',');
        pieces.push_back(WithoutBlanks(text.substr(0, comma)));
        if (comma == std::string_view::npos)
            return pieces;
        text.remove_prefix(comma + 1);
    }
}

std::variant<text::Refusal, std::vector<double>> ReadNumbers(std::string_view list, std::size_t count) {
    std::vector<double> numbers;
    for (const std::string_view piece : PiecesOf(list)) {
        if (!text::IsNum(piece))
            return text::Refusal{std::string(kNonNumericCoefficient)};
        numbers.push_back(text::ToNumber(piece));
    }
    if (numbers.size() != count)
        return text::Refusal{std::string(kWrongCoefficientCount)};
    return numbers;
}

}  // namespace tavrelo::notation
