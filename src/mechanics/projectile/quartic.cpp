#include "mechanics/projectile/quartic.h"

#include <cmath>

#include "expr/roots.h"
#include "mechanics/projectile/parameter_checks.h"
#include "mechanics/projectile/real_roots.h"
#include "numeric/checked.h"
#include "text/number_text.h"
#include "text/utf8.h"

namespace tavrelo::mechanics::projectile {
namespace {

using numeric::Finite;

constexpr double kScanTolerance = 1e-6;
constexpr std::string_view kLimitTooLow = "El límite superior debe ser mayor que 0.";
constexpr std::string_view kFault = "Error en la rutina.";

/// Newton's steps from a root of the scan, which ends where the value is small; they stop where they would
/// lead away.
double Refined(const Quartic& quartic, double root) {
    constexpr int kMostSteps = 20;
    for (int step = 0; step < kMostSteps; ++step) {
        const double slope = (4.0 * root * root + 2.0 * quartic.square) * root + quartic.linear;
        const double next = root - quartic(root) / slope;
        if (!std::isfinite(next) || !(std::abs(quartic(next)) < std::abs(quartic(root))))
            break;
        root = next;
    }
    return root;
}

/// Whether the value at a root vanishes beside its terms.
bool Vanishes(const Quartic& quartic, double w) {
    const double terms = w * w * w * w + std::abs(quartic.square) * w * w + std::abs(quartic.linear * w) +
                         std::abs(quartic.constant);
    return std::abs(quartic(w)) <= kScanTolerance * terms;
}

std::string SignedTerm(double coefficient, std::string_view power) {
    return (coefficient < 0.0 ? "-" : "+") + text::NumberToText(std::abs(coefficient)) + std::string(power);
}

}  // namespace

double Quartic::operator()(double w) const { return ((w * w + square) * w + linear) * w + constant; }

std::variant<text::Refusal, Quartic> QuarticFor(const Launch& launch, const PairData& data) {
    const double v0y = *launch.second;
    const Differences differences = DifferencesOf(launch, data, v0y);
    constexpr std::array kChecks = {Check::SameXOfTrajectory};
    if (auto refusal = FirstFailed(kChecks, differences))
        return *refusal;
    if (data.speed < 0.0)
        return text::Refusal{"No hay solución para v0x."};
    return Quartic{Finite(v0y * v0y - data.speed * data.speed), Finite(-kTwiceGravity * v0y * differences.x),
                   Finite(kGravitySquared * differences.x * differences.x)};
}

std::string FormulaOf(const Quartic& quartic) {
    return "X^4" + SignedTerm(quartic.square, "*X^2") + SignedTerm(quartic.linear, "*X") +
           SignedTerm(quartic.constant, "");
}

EquationLine EquationOf(const Quartic& quartic, int mover, int decimals) {
    const std::string vx = SymbolsOf(mover).InitialVx();
    const auto rounded = [decimals](double number) { return text::RoundTo(number, decimals); };
    return {SumText({{1.0, vx + "¡4"},
                     {rounded(quartic.square), vx + "¡2"},
                     {rounded(quartic.linear), vx},
                     {rounded(quartic.constant), "1"}}),
            {}};
}

std::vector<double> RootsUpTo(const Quartic& quartic, double limit) {
    std::vector<double> roots;
    const auto value = [&quartic](double w) { return Finite(quartic(w)); };
    for (const double found : expr::ScanRoots(value, {0.0, limit, 0.0, kScanTolerance})) {
        const double root = Refined(quartic, found);
        if (root > 0.0 && root <= limit * (1.0 + kRounding) && Vanishes(quartic, root))
            AddDistinct(roots, root);
    }
    return roots;
}

std::variant<text::Refusal, double> ReadLimit(std::string_view typed) {
    const std::string trimmed = text::Trim(typed);
    if (!text::IsNum(trimmed))
        return text::Refusal{std::string(kFault)};
    const double limit = text::ToNumber(trimmed);
    if (!(limit > 0.0))
        return text::Refusal{std::string(kLimitTooLow)};
    return limit;
}

}  // namespace tavrelo::mechanics::projectile
