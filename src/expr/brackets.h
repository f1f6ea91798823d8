#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavrelo::expr {

inline constexpr std::string_view kParenthesesDisagree = "Los paréntesis no concuerdan.";

/// The formula with all brackets and braces as parentheses; nothing, for kParenthesesDisagree to be shown,
/// when it does not close as many as it opens. Only the counts are compared, so ")(" passes.
std::optional<std::string> CheckParentheses(std::string_view text);

}  // namespace tavrelo::expr
