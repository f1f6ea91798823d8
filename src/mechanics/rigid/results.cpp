#include "mechanics/rigid/results.h"

#include "numeric/angles.h"
#include "numeric/checked.h"
#include "text/symbols.h"

namespace tavrelo::mechanics::rigid {

std::optional<double> ValueOf(const BodyResults& results, std::string_view name, bool is_angle) {
    for (const FoundUnknown& found : results)
        if (found.is_angle == is_angle && text::SameSymbol(found.name, name))
            return found.value;
    return {};
}

std::optional<double> FactorOf(const BodyResults& results, const notation::UnknownTerm& unknown) {
    if (!unknown.HasAngle())
        return ValueOf(results, unknown.magnitude, false);
    const auto magnitude = unknown.HasBoth() ? ValueOf(results, unknown.magnitude, false) : 1.0;
    const auto angle = ValueOf(results, unknown.angle, true);
    if (!magnitude || !angle)
        return {};
    return numeric::CheckedMultiply(*magnitude,
                                    unknown.IsCos() ? numeric::CosD(*angle) : numeric::SinD(*angle));
}

}  // namespace tavrelo::mechanics::rigid
