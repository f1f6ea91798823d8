#include "mechanics/forces/force_sums.h"

#include <cmath>

#include "numeric/checked.h"

namespace tavrelo::mechanics::forces {
namespace {

using notation::Force;
using notation::ForceComponent;

constexpr double kEquilibriumTolerance = 0.001;

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

bool InEquilibrium(const std::optional<ComponentSums>& sums) {
    return sums && std::abs(sums->x) < kEquilibriumTolerance && std::abs(sums->y) < kEquilibriumTolerance;
}

}  // namespace tavrelo::mechanics::forces
