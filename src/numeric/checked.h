#pragma once

#include <cmath>
#include <stdexcept>
#include <string>

namespace tavrelo::numeric {

enum class FailureCode {
    DivisionByZero,
    Overflow,
    OutOfDomain,     // root or logarithm of a number that has none
    TypeMismatch,    // a text that is no number where a number is due
    SubscriptRange,  // an index past a bound, a full stack
    FileNotFound,    // a file that is missing or ends too soon
    Internal,
};

/// The one exception of the program. Mathematics throws it wherever a result does not exist; the guard of an
/// event handler turns it into the handler's own message. `what()` is for developers, never for the screen.
class RuntimeFailure : public std::runtime_error {
  public:
    explicit RuntimeFailure(FailureCode code, const std::string& detail = {});
    FailureCode Code() const { return m_code; }

  private:
    FailureCode m_code;
};

/// Throws what `value`, an infinity or not a number, stands for.
[[noreturn]] void ThrowNotFinite(double value);
[[noreturn]] void ThrowDivisionByZero();

/// The value itself, when it is finite; else Overflow (infinite) or OutOfDomain (not a number).
inline double Finite(double value) {
    if (!std::isfinite(value)) {
        ThrowNotFinite(value);
    }
    return value;
}

inline double CheckedAdd(double a, double b) { return Finite(a + b); }
inline double CheckedSubtract(double a, double b) { return Finite(a - b); }
inline double CheckedMultiply(double a, double b) { return Finite(a * b); }
/// Division by an exact zero fails with DivisionByZero.
inline double CheckedDivide(double a, double b) {
    if (b == 0.0) {
        ThrowDivisionByZero();
    }
    return Finite(a / b);
}

/// Fails with OutOfDomain below 0.
double CheckedSqrt(double x);
/// Natural logarithm; fails with OutOfDomain at 0 and below.
double CheckedLog(double x);
/// An exponential too small for a double is 0.
double CheckedExp(double x);
/// 0 to the power 0 is 1; 0 to a negative power fails with DivisionByZero and a negative base with a
/// broken exponent with OutOfDomain.
double CheckedPower(double base, double exponent);
/// Rounded to the nearest whole number, ties to even; fails with Overflow outside the 32-bit range.
int RoundToInteger(double x);

}  // namespace tavrelo::numeric
