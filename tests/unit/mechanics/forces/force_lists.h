// Lists of forces as the user types them.

#pragma once

#include <string>
#include <variant>
#include <vector>

#include "mechanics/forces/read_forces.h"

namespace tavrelo::mechanics::forces {

inline constexpr int kDecimals = 3;

inline std::vector<notation::Force> Forces(const std::vector<std::string>& texts) {
    return ForcesOf(std::get<std::vector<notation::ForceRecord>>(ReadForces(texts, kDecimals)));
}

}  // namespace tavrelo::mechanics::forces
