#pragma once

#include <string_view>
#include <variant>

#include "notation/force_record.h"
#include "text/refusal.h"

namespace tavrelo::notation {

/// Reads a force in any of the formats of VectorFormatOf; magnitude, direction and components may be symbols.
/// `decimals` rounds the texts for showing. Never throws: what cannot be read or computed is a refusal.
std::variant<text::Refusal, ForceRecord> ParseForce(std::string_view text, int decimals);

}  // namespace tavrelo::notation
