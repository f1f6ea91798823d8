#pragma once

#include <string>
#include <variant>
#include <vector>

#include "mechanics/motion/candidates.h"
#include "mechanics/motion/data_set.h"
#include "text/refusal.h"

namespace tavrelo::mechanics::motion {

/// A data set that meets equations with parameters. In the formulas of the cases D = t - tn, Di = ti - tn, Df
/// = tf - tn, p = xi - xn, q = xf - xn, dx = xf - xi, C is the factor, h is Dt.
struct ParameterCase {
    GivenSet given;
    Equations equations;
    Labels labels;
    int point;  // the clicked one, f

    double D() const { return given.values.f - equations.t; }
    double Di() const { return given.values.i - equations.t; }
    double Df() const { return given.values.f - equations.t; }
    double P() const { return given.values.i - equations.x; }
    double Q() const { return given.values.f - equations.x; }
    double FromStart() const { return given.values.f - given.values.i; }
    /// The second datum: x or v, an increment, or the factor C.
    double Relation() const { return given.values.relation; }

    /// The name of the unknown speed, in markup and for boxes.
    std::string SpeedName() const { return labels.At(Quantity::Speed, equations.base); }
    std::string PlainSpeedName() const { return labels.PlainAt(Quantity::Speed, equations.base); }
    /// A relation written with the letters n, i and f behind t, x and v: each quantity by its name, each
    /// letter by its point's number. Plain, for boxes.
    std::string PlainRelation(std::string_view pattern) const;
};

/// The data say something else of the parameter than its value: lines of the report.
struct Remarks {
    std::vector<std::string> lines;
};

/// What a data set finds for the one parameter; no candidates are no solution.
using Finding = std::variant<text::Refusal, Candidates, Remarks>;

/// The one equation that a data set states for both parameters, v the speed at the base:
/// v_squared v^2 + v v + a_squared a^2 + a a = constant. Either v^2 or v takes part.
struct ParameterEquation {
    double v_squared = 0;
    double v = 0;
    double a_squared = 0;
    double a = 0;
    double constant = 0;
};
using Statement = std::variant<text::Refusal, ParameterEquation>;

/// An equation without its unknown holds when its sides differ by at most this part of them.
inline constexpr double kIdentityTolerance = 1e-8;

// Refusals that more than one kind of equations has.
inline constexpr const char* kOnlyAtZero = "Sólo manejo este caso cuando t0 = 0.";
inline constexpr const char* kFactorZero = "El factor \"C\" no puede ser 0.";
inline constexpr const char* kFactorOneInProcedure = "No puedes tomar C = 1 en este procedimiento.";

}  // namespace tavrelo::mechanics::motion
