#pragma once

#include <string>
#include <vector>

#include "mechanics/kinematics/motion_formula.h"

namespace tavrelo::mechanics::kinematics {

/// A motion in the plane by two formulas in t: x(t), y(t) (way Plane) or r(t), theta(t) (way Polar), the
/// angle in the unit in force.
struct PlaneMotion {
    Way way = Way::Plane;
    std::string first;
    std::string second;
};

/// Position, velocity and acceleration at one time. Plane: along x and along y. Polar: `first` and `second`
/// of the position are r and theta in the unit in force; those of velocity and acceleration are the radial
/// and the transverse component, in units of length.
struct PlaneState {
    struct Pair {
        double first = 0;
        double second = 0;
    };
    double t = 0;
    Pair position;
    Pair velocity;
    Pair acceleration;
};

/// The motion at the time t by numeric derivatives, the second ones with the step t / 100, so t = 0 fails.
/// Polar components by the usual formulas, with w = k theta' and k the radians in one unit of angle:
/// v_r = r', v_t = r w, a_r = r'' - r w^2, a_t = r w' + 2 r' w. Fails with a RuntimeFailure where a formula
/// is refused or has no value.
PlaneState PlaneAt(const PlaneMotion& motion, double t, const double& angle_factor);

struct Trajectory {
    std::vector<double> x;
    std::vector<double> y;
};
/// The path between two times, given in either order. Fails as PlaneAt, and with OutOfDomain for two equal
/// times.
Trajectory SamplePlane(const PlaneMotion& motion, double t0, double t1, const double& angle_factor);

}  // namespace tavrelo::mechanics::kinematics
