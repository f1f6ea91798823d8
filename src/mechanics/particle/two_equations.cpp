#include "mechanics/particle/two_equations.h"

#include <cmath>
#include <optional>

#include "numeric/angles.h"
#include "numeric/checked.h"
#include "numeric/compare.h"
#include "numeric/polynomials.h"

namespace tavrelo::mechanics::particle {
namespace {

using numeric::CheckedDivide;
using numeric::CosD;
using numeric::Finite;
using numeric::NormAngle;
using numeric::SinD;
using Outcome = std::variant<text::Refusal, TwoRoots>;

constexpr double kZeroTolerance = 1e-6;
constexpr double kHalfTurn = 180;

constexpr const char* kBadData = "Error en los datos.";
constexpr const char* kSingular = "El determinante del sistema es cero.";
constexpr const char* kNotSolved = "No resuelvo este caso.";
constexpr const char* kNoSolution = "No existe solución.";

bool IsZero(double value) { return numeric::NearEq(value, 0, kZeroTolerance); }

// A magnitude that is not negative, and its angle.
Root Flipped(const Root& root) {
    if (root.first >= 0)
        return root;
    return {-root.first, NormAngle(kHalfTurn + root.second)};
}

Root FromFirstEquation(const TwoEquations& s, double angle) {
    return Flipped({CheckedDivide(-s.c - s.b * CosD(angle), s.a), angle});
}

Root FromSecondEquation(const TwoEquations& s, double angle) {
    return Flipped({CheckedDivide(-s.f - s.e * SinD(angle), s.d), angle});
}

// A = 0: the first equation holds the angle alone.
Outcome SolveByCosine(const TwoEquations& s) {
    const double cosine = CheckedDivide(-s.c, s.b);
    if (std::abs(cosine) > 1)
        return text::Refusal{kNoSolution};
    const double angle = numeric::ArcCosD(cosine);
    return TwoRoots{FromSecondEquation(s, angle), FromSecondEquation(s, -angle)};
}

// D = 0: the second equation holds the angle alone.
Outcome SolveBySine(const TwoEquations& s) {
    const double sine = CheckedDivide(-s.f, s.e);
    if (std::abs(sine) > 1)
        return text::Refusal{kNoSolution};
    const double angle = numeric::ArcSinD(sine);
    return TwoRoots{FromFirstEquation(s, angle), FromFirstEquation(s, NormAngle(kHalfTurn - angle))};
}

// Without u: B D cos t - A E sin t + (C D - A F) = 0.
Outcome SolveByElimination(const TwoEquations& s) {
    const auto roots =
        numeric::SolveCosSin(Finite(s.b * s.d), Finite(-s.a * s.e), Finite(s.c * s.d - s.a * s.f));
    if (!roots)
        return text::Refusal{kNoSolution};
    return TwoRoots{FromFirstEquation(s, roots->first), FromFirstEquation(s, roots->second)};
}

double FirstAngle(const TwoEquations& s, double second_angle) {
    return numeric::AngleOf(CheckedDivide(-s.c - s.b * CosD(second_angle), s.a),
                            CheckedDivide(-s.f - s.e * SinD(second_angle), s.a));
}

std::optional<Root> SharedMagnitude(double constant, double factor, double angle) {
    if (IsZero(factor))
        return {};
    return Flipped({CheckedDivide(-constant, factor), angle});
}

}  // namespace

std::variant<text::Refusal, Root> SolveTwoMagnitudes(const TwoEquations& s) {
    const double determinant = Finite(s.a * s.e - s.b * s.d);
    if (IsZero(determinant))
        return text::Refusal{kSingular};
    return Root{CheckedDivide(-(s.c * s.e - s.b * s.f), determinant),
                CheckedDivide(-(s.a * s.f - s.c * s.d), determinant)};
}

Outcome SolveMagnitudeAndAngle(const TwoEquations& s) {
    if (IsZero(s.b) || IsZero(s.e))
        return text::Refusal{kNotSolved};
    if (IsZero(s.a) && IsZero(s.d))
        return text::Refusal{kBadData};
    if (IsZero(s.a))
        return SolveByCosine(s);
    if (IsZero(s.d))
        return SolveBySine(s);
    return SolveByElimination(s);
}

// Squared and added: 2BC cos b + 2BF sin b + (B^2 - A^2 + C^2 + F^2) = 0. The second root comes first.
Outcome SolveTwoAngles(const TwoEquations& s) {
    const auto roots = numeric::SolveCosSin(Finite(2 * s.c * s.b), Finite(2 * s.f * s.b),
                                            Finite(s.b * s.b - s.a * s.a + s.c * s.c + s.f * s.f));
    if (!roots)
        return text::Refusal{kNoSolution};
    return TwoRoots{Root{FirstAngle(s, roots->second), roots->second},
                    Root{FirstAngle(s, roots->first), roots->first}};
}

// Divided by each other: B F cos t - C E sin t + (A F - C D) = 0. The second root is tried with the cosine in
// the equation of the sine: it is never the true root, and the sums of the forces reject it.
Outcome SolveSharedMagnitude(const TwoEquations& s) {
    const auto roots =
        numeric::SolveCosSin(Finite(s.b * s.f), Finite(-s.c * s.e), Finite(s.a * s.f - s.c * s.d));
    if (!roots)
        return text::Refusal{kNoSolution};
    const auto first = SharedMagnitude(s.c, s.a + s.b * CosD(roots->first), roots->first);
    const auto second = SharedMagnitude(s.f, s.d + s.e * CosD(roots->second), roots->second);
    if (!first && !second)
        return text::Refusal{kNoSolution};
    return TwoRoots{first ? *first : *second, second ? *second : *first};
}

}  // namespace tavrelo::mechanics::particle
