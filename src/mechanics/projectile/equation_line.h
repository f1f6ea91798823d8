#pragma once

#include <string>
#include <vector>

namespace tavrelo::mechanics::projectile {

/// One term of a sum: a number, rounded as it is to be read, times a factor in markup ("v!0 t", or "1" for
/// the number alone).
struct Term {
    double coefficient = 0.0;
    std::string factor = "1";
};

/// A line of equations: "left = sum of the terms". Terms that vanish are left out; an empty sum is 0.
struct EquationLine {
    std::string left;
    std::vector<Term> right;
};

/// The line in the markup of pictures, in which "/" is a plain character.
std::string ForPicture(const EquationLine& line);
/// The line in the markup of rich boxes.
std::string ForReport(const EquationLine& line);
/// The sum alone, in the markup of pictures.
std::string SumText(const std::vector<Term>& terms);

}  // namespace tavrelo::mechanics::projectile
