#pragma once

#include <span>
#include <string>

#include "text/value.h"

namespace tavrelo::text {

/// A coefficient and what it multiplies: a symbol in markup, or 1 for a number alone.
struct SumTerm {
    double coef;
    Value symbol;
};

/// The sum in markup, coefficients rounded and terms that vanish left out: "4.9 t¡2 ;- 20 t". A sum that
/// begins with a negative term keeps the blank before it; "0" when nothing is left.
std::string SignedSum(std::span<const SumTerm> terms, int decimals);

}  // namespace tavrelo::text
