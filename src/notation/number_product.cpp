#include "notation/number_product.h"

#include <algorithm>

#include "numeric/checked.h"
#include "text/number_text.h"
#include "text/utf8.h"

namespace tavrelo::notation {

std::optional<double> ReadNumberProduct(std::string_view text) {
    std::size_t times = text.find(kTimes);
    if (times == std::string_view::npos)
        return text::IsNum(text) ? std::optional(text::ToNumber(text)) : std::nullopt;
    double product = 1;
    for (std::size_t begin = 0; begin <= text.size(); begin = times + 1) {
        times = std::min(text.find(kTimes, begin), text.size());
        const std::string factor = text::Trim(text.substr(begin, times - begin));
        if (!text::IsNum(factor))
            return {};
        product = numeric::CheckedMultiply(product, text::ToNumber(factor));
    }
    return text::ToNumber(text::NumberToText(product));
}

std::string WithProductComputed(std::string_view text) {
    if (text.find(kTimes) == std::string_view::npos)
        return std::string(text);
    const std::optional<double> product = ReadNumberProduct(text);
    return product ? text::NumberToText(*product) : std::string(text);
}

}  // namespace tavrelo::notation
