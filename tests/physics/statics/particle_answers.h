#pragma once

#include <optional>
#include <string>
#include <vector>

#include "problem.h"
#include "statics/stated_force.h"

namespace tavrelo::physics {

/// What the solver says to forces on a particle: a refusal, or the values of the unknowns of each solution
/// that it offers, all of them put into the sums.
struct ParticleAnswers {
    std::string refusal;
    std::vector<Values> solutions;
    std::string fault;  // of a solution that does not satisfy the problem; empty when all do
};

/// Types the forces in an order left to chance and has them solved.
ParticleAnswers SolveParticle(Problem& problem, std::vector<StatedForce> forces);

/// What counts as the refusal where the solver ends without a word.
inline constexpr std::string_view kSilence = "(nothing)";

}  // namespace tavrelo::physics
