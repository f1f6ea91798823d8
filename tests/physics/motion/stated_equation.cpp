#include "motion/stated_equation.h"

#include <cstdlib>
#include <sstream>

#include "text/utf8.h"

namespace tavrelo::physics {
namespace {

/// A number with the typographic minus.
double NumberOf(std::string text) { return std::strtod(text::ReplaceAll(text, ";-", "-").c_str(), nullptr); }

}  // namespace

Sum StatedEquation::For(double speed, double acceleration) const {
    return SumOf({v_squared * speed * speed, v * speed, a_squared * acceleration * acceleration,
                  a * acceleration, -constant});
}

std::optional<StatedEquation> ReadEquation(const std::string& line, int base) {
    const std::size_t equals = line.find(" = ");
    if (equals == std::string::npos)
        return std::nullopt;
    const std::string v = "v!" + std::to_string(base);
    StatedEquation equation;
    equation.constant = NumberOf(line.substr(equals + 3));
    // Words: signs, coefficients and symbols; a symbol ends a term.
    std::istringstream words(line.substr(0, equals));
    double sign = 1;
    double coefficient = 1;
    for (std::string word; words >> word;) {
        double* place = word == v + "¡2" ? &equation.v_squared
                        : word == v      ? &equation.v
                        : word == "a¡2"  ? &equation.a_squared
                        : word == "a"    ? &equation.a
                                         : nullptr;
        if (place) {
            *place = sign * coefficient;
            sign = coefficient = 1;
        } else if (word == "+" || word == ";-") {
            sign = word == "+" ? 1 : -1;
        } else {
            char* end = nullptr;
            coefficient = std::strtod(word.c_str(), &end);
            if (*end != '\0')
                return std::nullopt;
        }
    }
    return equation;
}

}  // namespace tavrelo::physics
