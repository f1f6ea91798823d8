#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavrelo::expr {

/// A message box to be opened.
struct PostfixBox {
    std::string title;
    std::string text;
};

/// Either a value, or what refused the line: the text for the result box, and maybe a message box before it.
struct PostfixResult {
    std::optional<double> value;
    std::string message;
    std::optional<PostfixBox> box;
};

/// Evaluates a line in reverse Polish notation, tokens apart by blanks: "3 4 +" is 7. Letters count without
/// regard to case, a token is a number when IsNum holds. Angles are degrees whatever the angle mode; "cosh"
/// is the hyperbolic sine and "senh" the cosine, as the users of this notation know them. Never throws.
PostfixResult EvalRPN(std::string_view text);

}  // namespace tavrelo::expr
