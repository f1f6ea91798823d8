#include "statics/particle_solver.h"

#include "statics/equilibrium_cases.h"
#include "vectors/symbols.h"

namespace tavrelo::statics {
namespace {

using vectors::kLongestSymbol;

bool UnknownsStandInOneSum(const ForceSums& sums) { return (sums.x.unknowns == 0) != (sums.y.unknowns == 0); }

bool IsOneForce(const ForceSums& sums) {
    return sums.x.unknowns == 1 && sums.y.unknowns == 1 &&
           ReadUnknown(sums.x.first).function == AngleFunction::Cos &&
           ReadUnknown(sums.y.first).function == AngleFunction::Sen;
}

struct Lengths {
    std::size_t x1, x2, y1, y2;
};

Lengths LengthsOf(const ForceSums& sums) {
    return {LengthOf(sums.x.first), LengthOf(sums.x.second), LengthOf(sums.y.first), LengthOf(sums.y.second)};
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

Equilibrium SolveByCase(const ForceTable& table, const ForceSums& sums, int decimals) {
    const Lengths lengths = LengthsOf(sums);
    if (UnknownsStandInOneSum(sums))
        return Refusal{kCaseNotSolved};
    if (IsOneForce(sums))
        return SolveEquilibrant(table, sums, decimals);
    if (AreMagnitudes(lengths))
        return SolveMagnitudes(table, sums, decimals);
    if (AreMagnitudeAndAngle(lengths))
        return SolveMagnitudeAndAngle(table, sums, decimals);
    if (AreTwoAngles(lengths))
        return SolveTwoAngles(table, sums, decimals);
    return SilentEnd{};
}

}  // namespace

Equilibrium SolveEquilibrium(const ForceTable& table, int decimals) {
    const auto sums = CollectSums(table);
    if (const auto* refusal = std::get_if<Refusal>(&sums))
        return *refusal;
    return SolveByCase(table, std::get<ForceSums>(sums), decimals);
}

}  // namespace tavrelo::statics
