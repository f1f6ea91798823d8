#include "mechanics/particle/particle_solver.h"

#include "mechanics/forces/force_sums.h"
#include "mechanics/particle/angle_cases.h"
#include "mechanics/particle/magnitude_cases.h"
#include "text/symbols.h"

namespace tavrelo::mechanics::particle {
namespace {

using text::kLongestSymbol;

bool UnknownsStandInOneSum(const forces::ForceSums& sums) {
    return (sums.x.unknowns == 0) != (sums.y.unknowns == 0);
}

bool IsOneForce(const forces::ForceSums& sums) {
    return sums.x.unknowns == 1 && sums.y.unknowns == 1 &&
           sums.x.first.unknown.function == notation::AngleFunction::Cos &&
           sums.y.first.unknown.function == notation::AngleFunction::Sen;
}

struct Lengths {
    std::size_t x1, x2, y1, y2;
};

Lengths LengthsOf(const forces::ForceSums& sums) {
    return {LengthOf(sums.x.first.unknown), LengthOf(sums.x.second.unknown), LengthOf(sums.y.first.unknown),
            LengthOf(sums.y.second.unknown)};
}

bool AreMagnitudes(const Lengths& n) {
    return n.x1 <= kLongestSymbol && n.x2 <= kLongestSymbol && n.y1 <= kLongestSymbol &&
           n.y2 <= kLongestSymbol;
}

bool AreMagnitudeAndAngle(const Lengths& n) {
    return (n.x1 <= kLongestSymbol && n.x2 >= kLongestSymbol) ||
           (n.x1 >= kLongestSymbol && n.x2 <= kLongestSymbol);
}

bool AreTwoAngles(const Lengths& n) {
    return n.x1 >= kLongestSymbol && n.x2 >= kLongestSymbol && n.y1 >= kLongestSymbol &&
           n.y2 >= kLongestSymbol;
}

Equilibrium SolveByCase(std::span<const notation::Force> forces, const forces::ForceSums& sums,
                        int decimals) {
    const Lengths lengths = LengthsOf(sums);
    if (UnknownsStandInOneSum(sums))
        return text::Refusal{kCaseNotSolved};
    if (IsOneForce(sums))
        return SolveEquilibrant(forces, sums, decimals);
    if (AreMagnitudes(lengths))
        return SolveMagnitudes(forces, sums, decimals);
    if (AreMagnitudeAndAngle(lengths))
        return SolveForMagnitudeAndAngle(forces, sums, decimals);
    if (AreTwoAngles(lengths))
        return SolveForTwoAngles(forces, sums, decimals);
    return SilentEnd{};
}

}  // namespace

Equilibrium SolveEquilibrium(std::span<const notation::Force> forces, int decimals) {
    const auto sums = forces::CollectSums(forces);
    if (const auto* refusal = std::get_if<text::Refusal>(&sums))
        return *refusal;
    return SolveByCase(forces, std::get<forces::ForceSums>(sums), decimals);
}

}  // namespace tavrelo::mechanics::particle
