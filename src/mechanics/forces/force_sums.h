#pragma once

#include <optional>
#include <span>
#include <variant>

#include "mechanics/forces/sum_equation.h"
#include "notation/force_record.h"
#include "text/refusal.h"

namespace tavrelo::mechanics::forces {

/// The sum of one component of all forces: what is known of it, and at most two different unknowns in the
/// order in which they appear.
struct ForceSum {
    double known = 0;
    SumTerm first;  // its unknown is none while the sum holds none
    SumTerm second;
    int unknowns = 0;
};

struct ForceSums {
    ForceSum x;
    ForceSum y;
};

/// Sums the components of all forces; refused when a sum holds a third unknown. Fails with Overflow.
std::variant<text::Refusal, ForceSums> CollectSums(std::span<const notation::Force> forces);

/// What the solver says when the forces hold more unknowns than two equations can find.
inline constexpr const char* kTooManyUnknowns = "El número de incógnitas excede al número de ecuaciones.";

struct ComponentSums {
    double x = 0;
    double y = 0;
};

/// The sums of the components of all forces, added to `start`; nothing while a component is unknown. Fails
/// with Overflow.
std::optional<ComponentSums> SumComponents(std::span<const notation::Force> forces, ComponentSums start = {});

/// Whether the components of all forces truly add up to nothing: each sum is at most 0.001 and a thousandth
/// of its largest component, or what rounding leaves of such numbers. False while a component is unknown.
/// Fails with Overflow.
bool AreBalanced(std::span<const notation::Force> forces);

/// Whether both sums are below the 0.001 that counts as equilibrium.
bool InEquilibrium(const std::optional<ComponentSums>& sums);

}  // namespace tavrelo::mechanics::forces
