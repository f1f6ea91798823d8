#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "text/refusal.h"

/// Small systems for the speed v0 and the acceleration a that substitutions leave behind, and the quadratic
/// equation. Coefficients come in the order in which the equations write them, line after line.
namespace tavrelo::mechanics::motion {

/// The shapes of a system of two equations. The names tell the unknowns of the first and the second equation.
enum class SystemShape {
    VA_VA,      // a11 v0 + a12 a = b1,              a21 v0 + a22 a = b2
    V2A_VA,     // a11 v0^2 + a12 a = b1,            a21 v0 + a22 a = b2
    V2A2A_VA,   // a11 v0^2 + a12 a^2 + a13 a = b1,  a21 v0 + a22 a = b2
    V2A2A_V2A,  // a11 v0^2 + a12 a^2 + a13 a = b1,  a21 v0^2 + a22 a = b2
};

/// A solution: v0 itself, or its size when both signs solve the system.
struct SystemSolution {
    double v0 = 0;
    double a = 0;
    bool both_signs = false;

    friend bool operator==(const SystemSolution&, const SystemSolution&) = default;
};

inline constexpr std::string_view kZeroSystem = "El coeficiente del sistema es cero.";
inline constexpr std::string_view kNoSystemSolution = "No hay solución.";

/// How many coefficients a shape takes: six or seven.
std::size_t CoefficientCount(SystemShape shape);

/// Solves by Cramer's rule, or by substituting one unknown into the other equation, which leaves a quadratic.
/// Every solution given satisfies both equations. Refuses a determinant of 0 and a system without a real
/// solution; fails with SubscriptRange on a wrong count and with DivisionByZero when the unknown to be
/// substituted stands in neither equation.
std::variant<text::Refusal, std::vector<SystemSolution>> SolveSystem(SystemShape shape,
                                                                     const std::vector<double>& coefficients);

/// A system typed as a list of coefficients: the lines of its report, in rich-text markup. Refuses a piece
/// that is no number, then a wrong count; fails like SolveSystem.
std::variant<text::Refusal, std::vector<std::string>> ReportSystem(SystemShape shape, std::string_view typed,
                                                                   int decimals);

/// The equation A x^2 + B x + C = 0 typed as "A, B, C": the lines of its report with its two roots, real or
/// complex. Refuses like ReportSystem; fails with DivisionByZero when A is 0.
std::variant<text::Refusal, std::vector<std::string>> ReportQuadratic(std::string_view typed, int decimals);

}  // namespace tavrelo::mechanics::motion
