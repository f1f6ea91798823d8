#include "mechanics/projectile/tan_systems.h"

#include <cmath>
#include <optional>

#include "mechanics/projectile/real_roots.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "numeric/linear_systems.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::projectile {
namespace {

using numeric::ArcTanD;
using numeric::Finite;

constexpr const char* kSystemFailed = "Falló la rutina.";

struct LinearSolution {
    double tangent;
    double w;
};
std::optional<LinearSolution> SolveLinearPair(const std::array<double, 6>& k) {
    numeric::SquareMatrix matrix(2, std::array{k[0], k[1], k[3], k[4]});
    std::array right = {k[2], k[5]};
    if (numeric::SolveLinear(matrix, right) != numeric::LinearOutcome::Done)
        return std::nullopt;
    return LinearSolution{Finite(right[0]), Finite(right[1])};
}

text::Refusal None() { return {kNoSolution}; }
text::Refusal Invalid() { return {kInvalidData}; }

TanSolutions OrNone(const std::vector<PolarVelocity>& solutions) {
    if (solutions.empty())
        return None();
    return solutions;
}

/// The launch of a horizontal component and a tangent.
PolarVelocity FromHorizontal(double component, double tangent) {
    const double angle = ArcTanD(tangent);
    return Polar(component / numeric::CosD(angle), angle);
}

}  // namespace

TanSolutions SolveSquaredPair(const std::array<double, 6>& coefficients) {
    const auto solution = SolveLinearPair(coefficients);
    if (!solution)
        return text::Refusal{kSystemFailed};
    if (!(solution->w > 0.0))
        return None();
    return std::vector{FromHorizontal(1.0 / std::sqrt(solution->w), solution->tangent)};
}

TanSolutions SolvePlainPair(const std::array<double, 6>& coefficients) {
    const auto solution = SolveLinearPair(coefficients);
    if (!solution)
        return text::Refusal{kSystemFailed};
    if (solution->w == 0.0)
        return None();
    return std::vector{FromHorizontal(1.0 / solution->w, solution->tangent)};
}

TanSolutions SolveMixedPair(const std::array<double, 6>& coefficients) {
    const auto& [a, b, c, d, e, f] = coefficients;
    if (e == 0.0)
        return Invalid();
    // 1/c = (F - D t)/E in the first equation.
    const double linear = Finite(a * e * e - 2.0 * b * d * f);
    std::vector<PolarVelocity> solutions;
    for (const double tangent : RealRoots(Finite(b * d * d), linear, Finite(b * f * f - c * e * e))) {
        const double rest = f - d * tangent;
        if (std::abs(rest) > kRounding * (std::abs(f) + std::abs(d * tangent)))
            solutions.push_back(FromHorizontal(e / rest, tangent));
    }
    return OrNone(solutions);
}

TanSolutions SolveWithHorizontal(const std::array<double, 4>& coefficients) {
    const auto& [a, b, c, d] = coefficients;
    if (a == 0.0 || d == 0.0)
        return Invalid();
    return std::vector{FromHorizontal(d, Finite((c - b / (d * d)) / a))};
}

TanSolutions SolveWithVertical(const std::array<double, 4>& coefficients) {
    const auto& [a, b, c, d] = coefficients;
    if (a == 0.0 || d == 0.0)
        return Invalid();
    std::vector<PolarVelocity> solutions;
    for (const double tangent : RealRoots(Finite(b / (d * d)), a, -c))
        if (!IsZero(tangent))
            solutions.push_back(FromHorizontal(d / tangent, tangent));
    return OrNone(solutions);
}

std::vector<std::string> TanReport(const std::vector<PolarVelocity>& solutions, TanLayout layout,
                                   int decimals) {
    std::vector<std::string> report = {"Solución del sistema:"};
    for (const PolarVelocity& solution : solutions) {
        if (report.size() > 1)
            report.push_back(kOr);
        const std::string speed = "v!0 = " + Shown(solution.speed, decimals);
        const std::string angle = " = " + Shown(solution.angle, decimals) + "°";
        if (layout == TanLayout::TwoLines) {
            report.push_back(speed);
            report.push_back(";q!0" + angle);
        } else {
            report.push_back(speed + (layout == TanLayout::OneLine ? ", ;q!0" : ", ;q") + angle);
        }
    }
    return report;
}

}  // namespace tavrelo::mechanics::projectile
