#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "mechanics/projectile/data_pair.h"
#include "mechanics/projectile/equation_line.h"
#include "text/refusal.h"

namespace tavrelo::mechanics::projectile {

/// w^4 + square w^2 + linear w + constant, for w = v0x: what x and the speed of a point say when v0y is
/// known.
struct Quartic {
    double square = 0.0;
    double linear = 0.0;
    double constant = 0.0;

    double operator()(double w) const;
    friend bool operator==(const Quartic&, const Quartic&) = default;
};

/// w^2 v^2 = w^4 + (v0y w - 9.8 X)^2. Refused where the point lies over the start. Fails with Overflow.
std::variant<text::Refusal, Quartic> QuarticFor(const Launch& launch, const PairData& data);

/// The quartic in the formula language, all digits: "X^4-400*X^2-8820*X+86436".
std::string FormulaOf(const Quartic& quartic);
/// The quartic as an equation in the symbol of v0x.
EquationLine EquationOf(const Quartic& quartic, int mover, int decimals);

/// The roots between 0 and a limit above 0, ascending, as the scan of the formula language finds them (by
/// change of sign, in two hundred steps), refined until nothing moves; each once.
std::vector<double> RootsUpTo(const Quartic& quartic, double limit);

/// The positive limit that the user typed, or what is said to any other text.
std::variant<text::Refusal, double> ReadLimit(std::string_view typed);

}  // namespace tavrelo::mechanics::projectile
