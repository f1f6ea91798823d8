#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "mechanics/kinematics/motion_formula.h"

namespace tavrelo::mechanics::kinematics {

/// A motion along a line. `way` is Position, Velocity or Acceleration; `start` counts for the last two.
struct LineMotion {
    Way way = Way::Position;
    std::string formula;
    LineStart start;
};

/// The motion at one time. The acceleration is not told where the velocity is given.
struct LineState {
    double t = 0;
    double x = 0;
    double v = 0;
    std::optional<double> a;
};

/// The integration did not reach the time in the steps that it has.
struct TooManySteps {};

/// The motion at the time t. A position is differentiated numerically, its second derivative with the step
/// t / 100, so t = 0 fails; a velocity or an acceleration is integrated from the start with error control, in
/// either direction. Fails with a RuntimeFailure where a formula is refused or has no value.
std::variant<LineState, TooManySteps> LineAt(const LineMotion& motion, double t, const double& angle_factor);

/// Which curves are wanted.
struct CurveChoice {
    bool x = false;
    bool v = false;
    bool a = false;

    bool None() const { return !x && !v && !a; }
};

/// Samples of a motion at equal steps of time. All lists of one length, but that of a curve not wanted is
/// empty.
struct LineCurves {
    std::vector<double> t;
    std::vector<double> x;
    std::vector<double> v;
    std::vector<double> a;
};

/// Steps of a graph.
inline constexpr int kGraphSteps = 300;

/// The curves between two times, given in either order. A velocity or an acceleration is integrated from its
/// start to the first time, and from there by Runge-Kutta steps of fourth order. Fails as LineAt, and with
/// OutOfDomain for two equal times.
std::variant<LineCurves, TooManySteps> SampleLine(const LineMotion& motion, double t0, double t1,
                                                  const CurveChoice& choice, const double& angle_factor);

}  // namespace tavrelo::mechanics::kinematics
