#pragma once

#include <string>

namespace tavrelo::physics {

/// A number as a student types it: the text, and the value that this text has, with which a generator
/// reckons.
struct Typed {
    std::string text;
    double value;
};

/// The number with at most so many decimals, no zeros at the end: "2.5", "-7", "0".
Typed Rounded(double number, int decimals);
/// The number with at most so many significant digits, never with an exponent.
Typed Significant(double number, int digits);

}  // namespace tavrelo::physics
