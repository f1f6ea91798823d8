#pragma once

#include <optional>
#include <vector>

#include "equations.h"
#include "problem.h"
#include "typed.h"

namespace tavrelo::physics {

/// A number as problems have them: mostly halves, whole numbers and tenths, so that rest, opposite speeds and
/// equal places happen too; at times with all its digits.
double BookNumber(Chance& chance, double limit);

/// A uniformly accelerated motion through a base: the law with which the generators reckon.
struct KnownMotion {
    double tn = 0;
    double xn = 0;
    double vn = 0;
    double a = 0;

    double X(double t) const { return xn + vn * (t - tn) + a * (t - tn) * (t - tn) / 2; }
    double V(double t) const { return vn + a * (t - tn); }
    /// The size of the terms in a position or speed at a time: a value far below it is rounding.
    double ScaleOfX(double t) const;
    double ScaleOfV(double t) const;
    /// The same motion seen from another of its moments.
    KnownMotion From(double t) const { return {t, X(t), V(t), a}; }

    /// The times at which it passes a place, nothing when it rests there.
    std::optional<std::vector<double>> TimesAtX(double x) const;
    /// Nothing when it always has this speed.
    std::optional<std::vector<double>> TimesAtV(double v) const;

    std::string Told() const;
};

/// A motion of book numbers; half of them start counting at their base.
KnownMotion AnyMotion(Chance& chance);

/// A motion with two of its moments.
struct KnownInterval {
    KnownMotion motion;
    double ti = 0;
    double tf = 0;

    double Dt() const { return tf - ti; }
    double Dx() const { return motion.X(tf) - motion.X(ti); }
    double Dv() const { return motion.V(tf) - motion.V(ti); }
    double xi() const { return motion.X(ti); }
    double xf() const { return motion.X(tf); }
    double vi() const { return motion.V(ti); }
    double vf() const { return motion.V(tf); }
    /// The size of the terms of its places and speeds.
    double ScaleOfX() const;
    double ScaleOfV() const;

    std::string Told() const;
};

KnownInterval PlainInterval(Chance& chance);
/// An interval of any motion, in one of ten at other units: micrometres to megametres, milliseconds to hours.
KnownInterval AnyInterval(Chance& chance);

/// Whether an equation of a motion holds whose numbers have this scale at other times.
bool Holds(const Sum& sum, double scale);
/// Whether a value is rounding beside a scale.
bool IsNearlyZero(double value, double scale);
/// The value typed with all the digits that it has beside a scale.
Typed AllDigits(double value, double scale);

}  // namespace tavrelo::physics
