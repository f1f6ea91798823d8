#pragma once

#include <optional>
#include <string>

#include "mechanics/forces/force_table.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::forces {

/// Puts values into the components of a force: where `factor_of(unknown text)` returns a number, the
/// component becomes its coefficient times it. All other components stay.
template <typename FactorOf>
void Substitute(ForceRow& force, const FactorOf& factor_of) {
    for (const ComponentColumns* columns : {&kXColumns, &kYColumns}) {
        const std::string unknown = force[columns->unknown].Text();
        if (unknown.empty())
            continue;
        if (const std::optional<double> factor = factor_of(unknown))
            force[columns->component] =
                numeric::CheckedMultiply(force[columns->coefficient].Number(), *factor);
    }
}
/// Rewrites a force whose components are both known as a known force: magnitude, direction, clock reading and
/// texts from the components, no unknowns, and the colour of a solved one where it was unknown. Any other
/// force stays.
void MarkSolved(ForceRow& force, int decimals);

}  // namespace tavrelo::mechanics::forces
