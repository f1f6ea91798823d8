#pragma once

#include <span>
#include <string>
#include <vector>

#include "mechanics/rigid/body_solver.h"

namespace tavrelo::mechanics::rigid {

/// A report in rich-text markup, in portions that one rendering takes each: the counts and the unknowns with
/// the first body, then one portion a body, then the solutions. A report with few marks is one portion.
using ReportPortions = std::vector<std::vector<std::string>>;

/// Counts, unknowns and, under the name of each body, its equations; behind them the results, if there are
/// any.
ReportPortions EquilibriumReport(std::span<const ChosenBody> bodies, const BodyEquations& equations,
                                 const BodyResults& results, int decimals);

}  // namespace tavrelo::mechanics::rigid
