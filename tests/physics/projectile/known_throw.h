#pragma once

#include <optional>
#include <string>
#include <vector>

#include "equations.h"
#include "problem.h"
#include "typed.h"

namespace tavrelo::physics {

/// Of free fall, in metres and seconds.
inline constexpr double kGravity = 9.8;

/// A throw without drag: the law with which the generators reckon. Angles are in degrees.
struct KnownThrow {
    double t0 = 0;
    double x0 = 0;
    double y0 = 0;
    double vx = 0;
    double vy = 0;

    double X(double t) const { return x0 + vx * (t - t0); }
    double Y(double t) const;
    double Vy(double t) const;
    double Speed(double t) const;
    double Angle(double t) const;
    /// The times at which it is at a height, those that just touch it too.
    std::vector<double> TimesAtY(double y) const;
    /// The size of the terms in a place or speed at a time, also of those that count from t = 0.
    double ScaleOfPlace(double t) const;
    double ScaleOfSpeed(double t) const;
    std::string Told() const;
};

/// How the speed of a launch is typed: v0 and its angle, or both components.
enum class SpeedForm { Polar, Components };

/// A throw with its launch as typed: `first` is v0 or v0x, `second` the angle or v0y.
struct TypedThrow {
    KnownThrow law;
    SpeedForm form = SpeedForm::Polar;
    Typed first = {};
    Typed second = {};
};

/// A launch as in a book, to either side, up or down, now and then level or upright; half of them at t = 0.
TypedThrow AnyThrow(Chance& chance, SpeedForm form);
/// A launch by speed and angle that has this velocity.
TypedThrow PolarThrow(const KnownThrow& start, double vx, double vy);
/// Whether a launch found has the velocity of a known one, but for what a double root leaves.
bool IsSameLaunch(const KnownThrow& found, const KnownThrow& known);
/// The same throw in a world of another size, in which lengths are `length` times as long.
TypedThrow InSize(const TypedThrow& plain, double length);
/// The law of a launch with these speed data.
KnownThrow ThrowFrom(const KnownThrow& start, SpeedForm form, double first, double second);

/// An angle as in a book, in degrees.
double BookAngle(Chance& chance);

}  // namespace tavrelo::physics
