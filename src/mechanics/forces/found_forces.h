#pragma once

#include <functional>
#include <optional>

#include "notation/force_record.h"

namespace tavrelo::mechanics::forces {

/// What the coefficient of an unknown is to be multiplied by; nothing while it is not known.
using FactorOf = std::function<std::optional<double>(const notation::UnknownTerm&)>;

/// Puts found values into the components of a force that have an unknown: where `factor_of` gives a number,
/// the component becomes its coefficient times it. All other components stay. Fails with Overflow.
void PutFoundValues(notation::Force& force, const FactorOf& factor_of);

/// Makes a force whose components are both numbers one without unknowns: magnitude and direction are reckoned
/// from the components, and a force that was unknown counts as found. Any other force stays. Fails with
/// Overflow.
void CompleteFoundForce(notation::Force& force);

}  // namespace tavrelo::mechanics::forces
