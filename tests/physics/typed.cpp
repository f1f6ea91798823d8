#include "typed.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace tavrelo::physics {

Typed Rounded(double number, int decimals) {
    char digits[400];
    std::snprintf(digits, sizeof digits, "%.*f", decimals, number);
    std::string text = digits;
    if (text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.')
            text.pop_back();
    }
    if (text == "-0")
        text = "0";
    return {text, std::strtod(text.c_str(), nullptr)};
}

Typed Significant(double number, int digits) {
    const int whole = number == 0 ? 1 : 1 + static_cast<int>(std::floor(std::log10(std::abs(number))));
    return Rounded(number, std::max(digits - whole, 0));
}

}  // namespace tavrelo::physics
