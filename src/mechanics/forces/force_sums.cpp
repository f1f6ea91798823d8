#include "mechanics/forces/force_sums.h"

#include <algorithm>
#include <cmath>

#include "numeric/checked.h"
#include "numeric/compare.h"

namespace tavrelo::mechanics::forces {
namespace {

using notation::Force;
using notation::ForceComponent;

constexpr double kEquilibriumTolerance = 0.001;
// What rounding may leave of the largest component in both sums, which a solution mixes with each other.
constexpr double kRoundingOfBoth = 1e-12;

// False when the component holds a third unknown.
bool AddComponent(ForceSum& sum, const ForceComponent& component) {
    if (component.number) {
        sum.known = numeric::CheckedAdd(sum.known, *component.number);
        return true;
    }
    for (SumTerm* term : {&sum.first, &sum.second}) {
        if (term->unknown.IsNone()) {
            term->unknown = component.unknown;
            ++sum.unknowns;
        }
        if (SameUnknown(term->unknown, component.unknown)) {
            term->coef = numeric::CheckedAdd(term->coef, component.coefficient);
            return true;
        }
    }
    return false;
}

std::optional<ForceSum> Collect(std::span<const Force> forces, ForceComponent Force::*component) {
    ForceSum sum;
    for (const Force& force : forces)
        if (!AddComponent(sum, force.*component))
            return {};
    return sum;
}

}  // namespace

std::variant<text::Refusal, ForceSums> CollectSums(std::span<const Force> forces) {
    const auto x = Collect(forces, &Force::x);
    const auto y = Collect(forces, &Force::y);
    if (!x || !y)
        return text::Refusal{kTooManyUnknowns};
    return ForceSums{*x, *y};
}

std::optional<ComponentSums> SumComponents(std::span<const Force> forces, ComponentSums start) {
    for (const Force& force : forces) {
        if (!force.HasComponents())
            return {};
        start.x = numeric::CheckedAdd(start.x, *force.x.number);
        start.y = numeric::CheckedAdd(start.y, *force.y.number);
    }
    return start;
}

bool AreBalanced(std::span<const Force> forces) {
    const auto sums = SumComponents(forces);
    if (!sums)
        return false;
    ComponentSums largest;
    for (const Force& force : forces) {
        largest.x = std::max(largest.x, std::abs(force.x.number.value_or(0)));
        largest.y = std::max(largest.y, std::abs(force.y.number.value_or(0)));
    }
    const double largest_of_both = std::max(largest.x, largest.y);
    const auto is_zero = [&](double sum, double own_largest) {
        return std::abs(sum) <=
               std::max(numeric::LargestRest(own_largest), kRoundingOfBoth * largest_of_both);
    };
    return is_zero(sums->x, largest.x) && is_zero(sums->y, largest.y);
}

bool InEquilibrium(const std::optional<ComponentSums>& sums) {
    return sums && std::abs(sums->x) < kEquilibriumTolerance && std::abs(sums->y) < kEquilibriumTolerance;
}

}  // namespace tavrelo::mechanics::forces
