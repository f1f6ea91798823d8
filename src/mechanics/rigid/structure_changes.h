#pragma once

#include <variant>

#include "mechanics/rigid/chain_vectors.h"
#include "mechanics/rigid/structure.h"

namespace tavrelo::mechanics::rigid {

/// The structure with a chain of vectors more, seen from the same origin; the first point of all is the
/// origin. Throws RuntimeFailure (Overflow) where a point has no coordinates within the range of a double.
std::variant<ChainRefusal, Structure> Extended(const Structure& structure, const ChainEntry& entry,
                                               int decimals);

/// The structure without its last vector, or without as many as it takes until no points coincide; an empty
/// one when none remains. An origin that is lost becomes the first point.
Structure Shortened(const Structure& structure);

}  // namespace tavrelo::mechanics::rigid
