#include "mechanics/motion/data_pair.h"

namespace tavrelo::mechanics::motion {
namespace {

const points::Datum& DatumOf(const PointData& data, Quantity quantity) {
    switch (quantity) {
        case Quantity::Time:
            return data.t;
        case Quantity::Position:
            return data.x;
        case Quantity::Speed:
            break;
    }
    return data.v;
}

}  // namespace

int RowOf(Quantity quantity) {
    switch (quantity) {
        case Quantity::Time:
            return points::kTimeRow;
        case Quantity::Position:
            return points::kPositionRow;
        case Quantity::Speed:
            break;
    }
    return points::kSpeedRow;
}

std::optional<double> ValueOf(const PointData& data, const DatumKey& key) {
    const points::Datum& datum = DatumOf(data, key.quantity);
    if (key.form == Form::Number)
        return points::NumberOf(datum);
    const auto* reference = std::get_if<notation::CellReference>(&datum);
    if (!reference)
        return std::nullopt;
    return key.form == Form::Increment ? reference->addend : reference->factor;
}

std::optional<int> ReferredBy(const PointData& data, Quantity quantity) {
    const auto* reference = std::get_if<notation::CellReference>(&DatumOf(data, quantity));
    return reference ? std::optional(reference->point) : std::nullopt;
}

std::optional<PairValues> ValuesOf(const PointData& data, const DatumKey& first, const DatumKey& second) {
    const auto first_value = ValueOf(data, first);
    const auto second_value = ValueOf(data, second);
    if (!first_value || !second_value)
        return std::nullopt;
    const auto first_referred = ReferredBy(data, first.quantity);
    const auto second_referred = ReferredBy(data, second.quantity);
    if (first_referred && second_referred && *first_referred != *second_referred)
        return std::nullopt;
    return PairValues{*first_value, *second_value, first_referred ? first_referred : second_referred};
}

}  // namespace tavrelo::mechanics::motion
