#pragma once

#include <functional>
#include <string>

#include "mechanics/kinematics/line_motion.h"
#include "numeric/formulas.h"
#include "problem.h"

namespace tavrelo::physics {

/// A motion along a line whose position, velocity and acceleration are known at every time in closed form, or
/// by one integral of a closed form, and how it is typed.
struct KnownCourse {
    mechanics::kinematics::LineMotion typed;
    std::function<double(double)> x;
    std::function<double(double)> v;
    std::function<double(double)> a;
    double last = 5;  // until when it is an ordinary motion

    std::string Told() const;
};

/// A formula in t, for times from -1 on.
Formula AnyFormulaOfTime(Chance& chance);

KnownCourse CourseOfPosition(Chance& chance);
/// Velocities of time, of the place, and of both.
KnownCourse CourseOfVelocity(Chance& chance);
/// Accelerations of time, of the place (springs), of the velocity (drags), and of both.
KnownCourse CourseOfAcceleration(Chance& chance);

}  // namespace tavrelo::physics
