#include "numeric/checked.h"

#include <limits>

namespace tavrelo::numeric {

namespace {

const char* NameOf(FailureCode code) {
    switch (code) {
        case FailureCode::DivisionByZero:
            return "division by zero";
        case FailureCode::Overflow:
            return "overflow";
        case FailureCode::OutOfDomain:
            return "argument out of domain";
        case FailureCode::TypeMismatch:
            return "type mismatch";
        case FailureCode::SubscriptRange:
            return "subscript out of range";
        case FailureCode::FileNotFound:
            return "file not found";
        case FailureCode::Internal:
            return "internal error";
    }
    return "failure";
}

std::string Describe(FailureCode code, const std::string& detail) {
    std::string text = NameOf(code);
    if (!detail.empty()) {
        text += ": " + detail;
    }
    return text;
}

}  // namespace

RuntimeFailure::RuntimeFailure(FailureCode code, const std::string& detail)
    : std::runtime_error(Describe(code, detail)), m_code(code) {}

void ThrowNotFinite(double value) {
    throw RuntimeFailure(std::isnan(value) ? FailureCode::OutOfDomain : FailureCode::Overflow);
}

void ThrowDivisionByZero() { throw RuntimeFailure(FailureCode::DivisionByZero); }

double CheckedSqrt(double x) {
    if (x < 0.0) {
        throw RuntimeFailure(FailureCode::OutOfDomain, "square root");
    }
    return Finite(std::sqrt(x));
}

double CheckedLog(double x) {
    if (x <= 0.0) {
        throw RuntimeFailure(FailureCode::OutOfDomain, "logarithm");
    }
    return Finite(std::log(x));
}

double CheckedExp(double x) { return Finite(std::exp(x)); }

double CheckedPower(double base, double exponent) {
    if (base == 0.0 && exponent < 0.0) {
        ThrowDivisionByZero();
    }
    return Finite(std::pow(base, exponent));
}

int RoundToInteger(double x) {
    const double rounded = std::nearbyint(Finite(x));
    if (rounded < std::numeric_limits<int>::min() || rounded > std::numeric_limits<int>::max()) {
        throw RuntimeFailure(FailureCode::Overflow, "32-bit integer");
    }
    return static_cast<int>(rounded);
}

}  // namespace tavrelo::numeric
