#pragma once

#include <string_view>

#include "mechanics/motion/step.h"

namespace tavrelo::mechanics::motion {

inline constexpr std::string_view kSpansTwoMovers = "Estás abarcando dos móviles.";
inline constexpr std::string_view kOnlyFirstMover =
    "Esta subrutina es aplicable a dos tramos contiguos del móvil 1.";
inline constexpr std::string_view kNotConsecutive = "Los tramos a ligar deben ser consecutivos.";

/// The procedure on two clicked points: one of the data of c and the two boxes of accelerations is empty. One
/// solution goes to the table and the boxes and the planting of both stretches is offered; of two the user
/// chooses first.
Step LinkStretches(const Problem& problem, const points::PointPlace& first, const points::PointPlace& second,
                   int decimals);

/// The chosen solution to the table and the boxes, and the question about the planting.
Step TakeLink(const Problem& problem, const TakeLinkRequest& request, int decimals);
/// The equations of both stretches, on a and on c.
Step PlantLink(const Problem& problem, const PlantLinkRequest& request, int decimals);

}  // namespace tavrelo::mechanics::motion
