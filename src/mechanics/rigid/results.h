#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "notation/unknown_term.h"

namespace tavrelo::mechanics::rigid {

/// The value of an unknown; an angle in degrees, above -180 up to 180.
struct FoundUnknown {
    std::string name;
    double value;
    bool is_angle = false;  // an angle and a force may share a name
};
using BodyResults = std::vector<FoundUnknown>;

/// The value of the force, couple or angle of that name; nothing when it was not found.
std::optional<double> ValueOf(const BodyResults& results, std::string_view name, bool is_angle);

/// What the coefficient of an unknown is to be multiplied by; nothing while a part of it is unknown. Fails
/// with Overflow.
std::optional<double> FactorOf(const BodyResults& results, const notation::UnknownTerm& unknown);

}  // namespace tavrelo::mechanics::rigid
