#pragma once

#include <string>
#include <string_view>

#include "notation/unknown_term.h"

namespace tavrelo::mechanics::forces {

using notation::AngleFunction;
using notation::SameUnknown;
using notation::UnknownTerm;

UnknownTerm ReadUnknown(std::string_view text);

/// Whether two texts are the same unknown, part by part (see vectors::SameSymbol).
bool SameUnknown(std::string_view a, std::string_view b);

}  // namespace tavrelo::mechanics::forces
