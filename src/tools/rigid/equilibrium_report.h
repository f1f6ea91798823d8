#pragma once

#include <span>
#include <string>
#include <vector>

#include "frame/writer.h"
#include "mechanics/rigid/body_solver.h"

namespace tavrelo::tools::rigid {

/// "x: A!X + B ;- 100 = 0" in rich-text markup, one blank behind the colon.
std::string EquationLine(const mechanics::rigid::BodyEquation& equation, int decimals);

/// The report in rich-text markup, paragraph by paragraph: counts and unknowns, the equations under the name
/// of each body, and behind them the results, if there are any.
std::vector<frame::Lines> EquilibriumReport(std::span<const mechanics::rigid::ChosenBody> bodies,
                                            const mechanics::rigid::BodyEquations& equations,
                                            const mechanics::rigid::BodyResults& results, int decimals);

/// The text of the question between two results, numbers bare; lines parted by "\n".
std::string QuestionBetween(const mechanics::rigid::BodyChoice& choice, int decimals);

}  // namespace tavrelo::tools::rigid
