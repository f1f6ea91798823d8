#include "expr/brackets.h"

#include <algorithm>

namespace tavrelo::expr {

namespace {

char NormalBracket(char c) {
    switch (c) {
        case '{':
        case '[':
            return '(';
        case '}':
        case ']':
            return ')';
        default:
            return c;
    }
}

}  // namespace

std::optional<std::string> CheckParentheses(std::string_view text) {
    std::string normal(text);
    std::transform(normal.begin(), normal.end(), normal.begin(), NormalBracket);
    if (std::count(normal.begin(), normal.end(), '(') != std::count(normal.begin(), normal.end(), ')')) {
        return std::nullopt;
    }
    return normal;
}

}  // namespace tavrelo::expr
