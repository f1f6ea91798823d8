#pragma once

#include <string>

#include "mechanics/motion/step.h"

namespace tavrelo::mechanics::motion {

/// The equations that a base point's data plant: t and x are numbers, an empty v or a becomes a parameter.
/// Fails with TypeMismatch on any other text.
Equations PlantedFrom(const PlantRequest& request);

/// The two equations of a stretch in picture markup, "x = 4.9 t¡2 + 20 t" and "v = 9.8 t + 20"; a parameter
/// stands as "v!0" or "a", and the time counts from the base, "(t ;- 2)".
struct EquationLines {
    std::string position;
    std::string speed;
};
EquationLines LinesOf(const Equations& equations, int mover, int stretch, int decimals);

/// Plants the equations of a stretch, whatever was planted there before: lines on the board and the two lines
/// of the report. A known acceleration that differs from that of the stretch's box goes there too. Fails with
/// TypeMismatch, and then nothing is planted, where a datum is no number.
Outcome Plant(const Problem& problem, const PlantRequest& request, int decimals);

}  // namespace tavrelo::mechanics::motion
