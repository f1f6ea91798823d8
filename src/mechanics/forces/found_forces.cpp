#include "mechanics/forces/found_forces.h"

#include "numeric/angles.h"
#include "numeric/checked.h"

namespace tavrelo::mechanics::forces {

void PutFoundValues(notation::Force& force, const FactorOf& factor_of) {
    for (notation::ForceComponent* component : {&force.x, &force.y}) {
        if (component->unknown.IsNone())
            continue;
        if (const std::optional<double> factor = factor_of(component->unknown))
            component->number = numeric::CheckedMultiply(component->coefficient, *factor);
    }
}

void CompleteFoundForce(notation::Force& force) {
    if (!force.HasComponents())
        return;
    force.magnitude = numeric::Finite(numeric::Hypot(*force.x.number, *force.y.number));
    force.direction = numeric::AngleOf(*force.x.number, *force.y.number);
    force.x.unknown = {};
    force.y.unknown = {};
    if (force.knowledge == notation::Knowledge::Unknown)
        force.knowledge = notation::Knowledge::Found;
}

}  // namespace tavrelo::mechanics::forces
