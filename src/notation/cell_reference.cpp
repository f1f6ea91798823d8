#include "notation/cell_reference.h"

#include <string>

#include "numeric/checked.h"
#include "text/number_text.h"
#include "text/utf8.h"

namespace tavrelo::notation {
namespace {

constexpr char kMinus = '-';

/// The digit of a name such as "t3".
std::optional<int> PointOf(std::string_view text) {
    const std::string name = text::Trim(text);
    const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
    if (name.size() != 2 || is_digit(name[0]) || !is_digit(name[1]))
        return std::nullopt;
    return name[1] - '0';
}

std::optional<double> NumberIn(std::string_view text) {
    const std::string number = text::Trim(text);
    if (!text::IsNum(number))
        return std::nullopt;
    return text::ToNumber(number);
}

std::optional<CellReference> WithAddend(std::string_view name, std::optional<double> addend) {
    const auto point = PointOf(name);
    if (!point || !addend)
        return std::nullopt;
    return CellReference{*point, addend, std::nullopt};
}

std::optional<CellReference> WithFactor(std::string_view name, std::optional<double> factor) {
    const auto point = PointOf(name);
    if (!point || !factor)
        return std::nullopt;
    return CellReference{*point, std::nullopt, factor};
}

}  // namespace

std::optional<CellReference> ParseCellReference(std::string_view text) {
    constexpr auto kAbsent = std::string_view::npos;
    const std::size_t plus = text.find('+');
    const std::size_t minus = text.find(kMinus);
    const std::size_t times = text.find('*');
    const std::size_t over = text.find('/');
    const bool is_opposite = minus == 0;
    const bool has_no_inner_minus = minus == kAbsent || is_opposite;
    const std::string_view unsigned_text = text.substr(is_opposite ? 1 : 0);

    if (plus != kAbsent) {
        if (minus != kAbsent || times != kAbsent || over != kAbsent)
            return std::nullopt;
        return WithAddend(text.substr(0, plus), NumberIn(text.substr(plus + 1)));
    }
    if (times != kAbsent) {
        if (!has_no_inner_minus || over != kAbsent)
            return std::nullopt;
        return WithFactor(text.substr(times + 1), NumberIn(text.substr(0, times)));
    }
    if (over != kAbsent) {
        if (!has_no_inner_minus)
            return std::nullopt;
        const auto divisor = NumberIn(text.substr(over + 1));
        if (!divisor)
            return std::nullopt;
        const double factor = numeric::CheckedDivide(is_opposite ? -1.0 : 1.0, *divisor);
        return WithFactor(unsigned_text.substr(0, unsigned_text.find('/')), factor);
    }
    if (is_opposite)
        return WithFactor(unsigned_text, -1.0);
    if (minus != kAbsent)
        return WithAddend(text.substr(0, minus), NumberIn(kMinus + text::Trim(text.substr(minus + 1))));
    return WithAddend(text, 0.0);
}

}  // namespace tavrelo::notation
