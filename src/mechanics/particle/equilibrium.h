#pragma once

#include <array>
#include <string>
#include <variant>
#include <vector>

#include "notation/force_record.h"
#include "text/refusal.h"

namespace tavrelo::mechanics::particle {

/// A solved system of forces: the forces with the found values, and the report's lines in rich-text markup:
/// the two equations, the values and the check of the sums.
struct Solution {
    std::vector<notation::Force> forces;
    std::vector<std::string> report;
};

/// All forces are known: the report tells their sums, and the forces stay.
struct NothingToSolve {
    std::vector<std::string> report;
};

/// The shapes of the unknowns fit no case. Nothing is reported, yet it counts as solved.
struct SilentEnd {};

/// What the solver says when what it finds does not balance the forces.
inline constexpr const char* kNoEquilibrium = "No se pueden cumplir las ecuaciones de equilibrio.";
/// What the solver says to unknowns that it has no method for.
inline constexpr const char* kCaseNotSolved = "No resuelvo este caso.";

/// Two solutions; the user is asked for the first (Yes) or the second (No).
struct Choice {
    bool between_angles;   // both unknowns are angles
    std::string question;  // lines parted by "\n"
    std::array<Solution, 2> solutions;
};

using Equilibrium = std::variant<text::Refusal, NothingToSolve, SilentEnd, Solution, Choice>;

}  // namespace tavrelo::mechanics::particle
