#include "notation/typed_list.h"

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

std::optional<std::vector<double>> NumbersOf(std::string_view text) {
    std::vector<double> numbers;
    for (const std::string_view piece : PiecesOf(text)) {
        if (!text::IsNum(piece))
            return std::nullopt;
        numbers.push_back(text::ToNumber(piece));
    }
    return numbers;
}

}  // namespace tavrelo::notation
