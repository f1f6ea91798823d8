#include "mechanics/particle/particle_solver.h"

#include "mechanics/particle/equilibrium_cases.h"
#include "text/symbols.h"

namespace tavrelo::mechanics::particle {
namespace {

using text::kLongestSymbol;

bool UnknownsStandInOneSum(const mechanics::forces::ForceSums& sums) {
    return (sums.x.unknowns == 0) != (sums.y.unknowns == 0);
}

bool IsOneForce(const mechanics::forces::ForceSums& sums) {
    return sums.x.unknowns == 1 && sums.y.unknowns == 1 &&
           mechanics::forces::ReadUnknown(sums.x.first).function == mechanics::forces::AngleFunction::Cos &&
           mechanics::forces::ReadUnknown(sums.y.first).function == mechanics::forces::AngleFunction::Sen;
}

struct Lengths {
    std::size_t x1, x2, y1, y2;
};

Lengths LengthsOf(const mechanics::forces::ForceSums& sums) {
    return {mechanics::forces::LengthOf(sums.x.first), mechanics::forces::LengthOf(sums.x.second),
            mechanics::forces::LengthOf(sums.y.first), mechanics::forces::LengthOf(sums.y.second)};
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

Equilibrium SolveByCase(const mechanics::forces::ForceTable& table, const mechanics::forces::ForceSums& sums,
                        int decimals) {
    const Lengths lengths = LengthsOf(sums);
    if (UnknownsStandInOneSum(sums))
        return text::Refusal{kCaseNotSolved};
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

Equilibrium SolveEquilibrium(const mechanics::forces::ForceTable& table, int decimals) {
    const auto sums = mechanics::forces::CollectSums(table);
    if (const auto* refusal = std::get_if<text::Refusal>(&sums))
        return *refusal;
    return SolveByCase(table, std::get<mechanics::forces::ForceSums>(sums), decimals);
}

}  // namespace tavrelo::mechanics::particle
