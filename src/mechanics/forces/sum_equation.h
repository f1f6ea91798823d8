#pragma once

#include <functional>
#include <string>
#include <vector>

#include "notation/unknown_term.h"

namespace tavrelo::mechanics::forces {

/// A coefficient and the unknown that it multiplies.
struct SumTerm {
    double coef = 0;
    notation::UnknownTerm unknown = {};
};

/// Sum of the terms and a constant, equal to zero.
struct SumEquation {
    std::vector<SumTerm> terms;
    double constant = 0;
};

/// How a name of an unknown is written, in markup.
using NameMarkup = std::function<std::string(const std::string& name)>;

/// The term of an unknown in markup, its names by `name`: "F!1", "cos A!1", "F!1 cos A!1".
std::string TermMarkup(const notation::UnknownTerm& unknown, const NameMarkup& name);

/// The equation in markup: coefficients rounded, terms that vanish left out, " = 0" at the end. The first
/// term keeps the blank that stands for its sign.
std::string EquationMarkup(const SumEquation& equation, const NameMarkup& name, int decimals);

}  // namespace tavrelo::mechanics::forces
