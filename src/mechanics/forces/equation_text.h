#pragma once

#include <string>
#include <vector>

namespace tavrelo::mechanics::forces {

/// A coefficient and the unknown it multiplies, its name ready in markup.
struct EquationTerm {
    double coef;
    std::string label;
};

/// Sum of the terms and a constant, equal to zero.
struct Equation {
    std::vector<EquationTerm> terms;
    double constant = 0;
};

/// The equation in markup: coefficients rounded, terms that vanish left out, " = 0" at the end. The first
/// term keeps the blank that stands for its sign.
std::string EquationText(const Equation& equation, int decimals);

/// The angle functions as equations write them.
inline constexpr const char* kCos = "cos";
inline constexpr const char* kSen = "sen";

/// "cos A!1" or "sen A!1" in markup, from the plain name of the angle; with a magnitude "F!1 cos A!1".
std::string AngleLabel(const std::string& function, const std::string& angle);
std::string AngleLabel(const std::string& magnitude, const std::string& function, const std::string& angle);

}  // namespace tavrelo::mechanics::forces
