#include "numeric/angles.h"

#include <cmath>

#include "numeric/checked.h"

namespace tavrelo::numeric {

namespace {

constexpr double kQuarterTurn = 90.0;
constexpr double kEighthTurn = 45.0;
constexpr double kHalfTurn = 180.0;
constexpr double kFullTurn = 360.0;

/// Arctangent in degrees by the fifteen-digit factor, not yet made whole.
double RawArcTanD(double x) { return std::atan(x) * kDegreesPerRadian; }

/// tan of the arc whose sine is x, |x| < 1.
double TangentOfArcSin(double x) { return x / CheckedSqrt(1.0 - x * x); }

/// The reading of the left half of the clock face, from 12 over 9 to 6, the axes excepted.
ClockReading LeftHalfReading(double a) {
    if (a > kQuarterTurn) {
        return a <= kQuarterTurn + kEighthTurn ? ClockReading{11, a - kQuarterTurn}
                                               : ClockReading{10, kHalfTurn - a};
    }
    return a >= -kQuarterTurn - kEighthTurn ? ClockReading{7, -a - kQuarterTurn}
                                            : ClockReading{8, kHalfTurn + a};
}

/// The reading of the right half of the clock face, from 12 over 3 to 6, the axes excepted.
ClockReading RightHalfReading(double a) {
    if (a > 0.0) {
        return a <= kEighthTurn ? ClockReading{2, a} : ClockReading{1, kQuarterTurn - a};
    }
    return a >= -kEighthTurn ? ClockReading{4, -a} : ClockReading{5, kQuarterTurn + a};
}

}  // namespace

double SinH(double x) { return (CheckedExp(x) - CheckedExp(-x)) * 0.5; }
double CosH(double x) { return (CheckedExp(x) + CheckedExp(-x)) * 0.5; }

double SinD(double degrees) { return Finite(std::sin(degrees * kRadiansPerDegree)); }
double CosD(double degrees) { return Finite(std::cos(degrees * kRadiansPerDegree)); }
double TanD(double degrees) { return Finite(std::tan(degrees * kRadiansPerDegree)); }

double ArcTanD(double x) { return Finite(WholeDegrees(RawArcTanD(x))); }

double ArcSinD(double x) {
    if (std::abs(x) == 1.0) {
        return std::copysign(WholeDegrees(kHalfPi * kDegreesPerRadian), x);
    }
    return ArcTanD(TangentOfArcSin(x));
}

double ArcCosD(double x) {
    if (std::abs(x) == 1.0) {
        return std::copysign(WholeDegrees(kPi * kDegreesPerRadian), x);
    }
    return Finite(WholeDegrees((kHalfPi - std::atan(TangentOfArcSin(x))) * kDegreesPerRadian));
}

double Hypot(double x, double y) { return CheckedSqrt(Finite(x * x + y * y)); }

double AngleOf(double x, double y) {
    if (std::abs(x) < kDirectionTolerance && y != 0.0) {
        return std::copysign(kQuarterTurn, y);
    }
    if (std::abs(y) < kDirectionTolerance && x != 0.0) {
        return x > 0.0 ? 0.0 : kHalfTurn;
    }
    if (x == 0.0) {
        return 0.0;
    }
    const double acute = RawArcTanD(y / x);
    if (x > 0.0) {
        return Finite(WholeDegrees(acute));
    }
    return Finite(WholeDegrees(y > 0.0 ? acute + kHalfTurn : acute - kHalfTurn));
}

double NormAngle(double degrees) {
    constexpr double kLimit = kHalfTurn + kFullTurn;
    if (!(std::abs(degrees) <= kLimit)) {
        return 0.0;
    }
    if (degrees <= -kHalfTurn) {
        return degrees + kFullTurn;
    }
    return degrees > kHalfTurn ? degrees - kFullTurn : degrees;
}

ClockReading ClockOf(double x, double y) {
    const double a = AngleOf(x, y);
    if (a == 0.0) {
        return {3, 0.0};
    }
    if (a == kQuarterTurn) {
        return {12, 0.0};
    }
    if (std::abs(a) == kHalfTurn) {
        return {9, 0.0};
    }
    if (a == -kQuarterTurn) {
        return {6, 0.0};
    }
    ClockReading reading = std::abs(a) > kQuarterTurn ? LeftHalfReading(a) : RightHalfReading(a);
    reading.angle = WholeDegrees(reading.angle);
    return reading;
}

}  // namespace tavrelo::numeric
