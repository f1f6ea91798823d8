#pragma once

#include <string>
#include <vector>

namespace tavrelo::physics {

/// The numbers that stand alone in a line of a report, in their order; those within names do not count.
std::vector<double> NumbersIn(const std::string& line);

/// A sum of powers of t or x: "y = ;- 4.9 t¡2 + 10 t + 3".
struct SpokenPolynomial {
    double square = 0;
    double linear = 0;
    double constant = 0;

    double At(double at) const { return (square * at + linear) * at + constant; }
};
/// Reads the right side of a line in such a variable.
SpokenPolynomial ReadPolynomial(const std::string& line, const std::string& variable);

}  // namespace tavrelo::physics
