#pragma once

#include <array>
#include <string>
#include <variant>
#include <vector>

#include "mechanics/forces/force_table.h"
#include "text/refusal.h"

namespace tavrelo::mechanics::particle {

/// A solved system of forces: the table with the found values, and the report's lines in rich-text markup:
/// the two equations, the values and the check of the sums.
struct Solution {
    mechanics::forces::ForceTable table;
    std::vector<std::string> report;
};

/// All forces are known: the report tells their sums, and the table stays.
struct NothingToSolve {
    std::vector<std::string> report;
};

/// The shapes of the unknowns fit no case. Nothing is reported, yet it counts as solved.
struct SilentEnd {};

/// Two solutions; the user is asked for the first (Yes) or the second (No).
struct Choice {
    std::string title;
    std::string question;  // lines parted by "\n"
    std::array<Solution, 2> solutions;
};

using Equilibrium = std::variant<text::Refusal, NothingToSolve, SilentEnd, Solution, Choice>;

}  // namespace tavrelo::mechanics::particle
