#pragma once

#include <string>
#include <string_view>

namespace tavrelo::mechanics::kinematics {

// A formula of motion is typed in t, x and v; the formula language knows X, Y and Z. Only small letters
// change. Letters inside names change too and five names are mended afterwards (exp, tan, cot, atan, acot);
// any other name with a small t, x or v stays broken, and the parser reports it. A vanishing term for each
// variable is appended, so that every formula has all of them.

/// The renaming alone, for the first `variables` (1 to 3) of t, x and v: no term is appended.
std::string RenameVariables(std::string_view formula, int variables);

/// A formula in t: X.
std::string Rewrite1(std::string_view formula);
/// A formula in t and x: X and Y.
std::string Rewrite2(std::string_view formula);
/// A formula in t, x and v: X, Y and Z.
std::string Rewrite3(std::string_view formula);

}  // namespace tavrelo::mechanics::kinematics
