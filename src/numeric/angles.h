#pragma once

#include <cmath>

namespace tavrelo::numeric {

// The program's own fifteen-digit constants; every result in degrees is built on them.
inline constexpr double kPi = 3.14159265358979;
inline constexpr double kHalfPi = 1.5707963267949;
inline constexpr double kDegreesPerRadian = 57.2957795130824;
inline constexpr double kRadiansPerDegree = 0.0174532925199433;

/// Absolute tolerance under which a component counts as zero for a direction.
inline constexpr double kDirectionTolerance = 1e-6;

/// A result in degrees within 1e-12 of a whole number other than 0 is that whole number: the constants above
/// are a hair too large, and 90 must be 90. Nothing else is rounded.
inline double WholeDegrees(double degrees) {
    constexpr double kWholeDegreeTolerance = 1e-12;
    // From here on a double has no place for a fraction, and a smaller one added to it is rounded to a whole
    // number, ties to even.
    constexpr double kNoFraction = 6755399441055744.0;  // 1.5 times 2 to the power 52
    const double whole = (degrees + kNoFraction) - kNoFraction;
    return whole != 0.0 && std::abs(degrees - whole) <= kWholeDegreeTolerance ? whole : degrees;
}

double SinH(double x);
double CosH(double x);

// All angles in degrees.
double SinD(double degrees);
double CosD(double degrees);
double TanD(double degrees);
double ArcTanD(double x);
/// Fails with OutOfDomain when |x| > 1.
double ArcSinD(double x);
/// 180 for exactly 1 and -180 for exactly -1: the program's own end values. Fails with OutOfDomain when |x|
/// > 1.
double ArcCosD(double x);

/// Length of the vector (x, y).
double Hypot(double x, double y);
/// Direction of (x, y) in degrees, above -180 up to 180; the vertical is tested first, (0, 0) gives 0.
double AngleOf(double x, double y);
/// Brings an angle within one and a half turns to the range above -180 up to 180; -540 stays -180; outside:
/// 0.
double NormAngle(double degrees);

/// A direction as read on a clock face: 3 is +x, 12 is +y; the angle (0 to 45 degrees) is measured from the
/// nearest axis.
struct ClockReading {
    int hour;
    double angle;

    friend bool operator==(const ClockReading&, const ClockReading&) = default;
};
ClockReading ClockOf(double x, double y);

}  // namespace tavrelo::numeric
