#pragma once

#include <span>
#include <string>
#include <variant>
#include <vector>

#include "notation/force_record.h"
#include "text/refusal.h"

namespace tavrelo::mechanics::forces {

/// The forces that a list of texts writes; the refusal of the first text that is no force.
std::variant<text::Refusal, std::vector<notation::ForceRecord>> ReadForces(std::span<const std::string> texts,
                                                                           int decimals);

/// What the mechanics needs of records: their forces.
std::vector<notation::Force> ForcesOf(std::span<const notation::ForceRecord> records);

}  // namespace tavrelo::mechanics::forces
