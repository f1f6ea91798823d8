#pragma once

#include <array>
#include <string>
#include <variant>
#include <vector>

#include "statics/force_table.h"
#include "vectors/refusal.h"

namespace tavrelo::statics {

/// A solved system of forces: the table with the found values, and the report's lines in rich-text markup:
/// the two equations, the values and the check of the sums.
struct Solution {
    ForceTable table;
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

using Equilibrium = std::variant<Refusal, NothingToSolve, SilentEnd, Solution, Choice>;

}  // namespace tavrelo::statics
