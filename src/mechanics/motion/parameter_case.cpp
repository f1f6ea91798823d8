#include "mechanics/motion/parameter_case.h"

#include <optional>

namespace tavrelo::mechanics::motion {
namespace {

std::optional<Quantity> QuantityOfLetter(char letter) {
    switch (letter) {
        case 't':
            return Quantity::Time;
        case 'x':
            return Quantity::Position;
        case 'v':
            return Quantity::Speed;
        default:
            return std::nullopt;
    }
}

}  // namespace

std::string ParameterCase::PlainRelation(std::string_view pattern) const {
    const auto point_of = [&](char letter) -> std::optional<int> {
        switch (letter) {
            case 'n':
                return equations.base;
            case 'i':
                return given.referred;
            case 'f':
                return point;
            default:
                return std::nullopt;
        }
    };
    std::string text;
    for (std::size_t k = 0; k < pattern.size(); ++k) {
        const auto quantity = QuantityOfLetter(pattern[k]);
        const auto of_point = quantity && k + 1 < pattern.size() ? point_of(pattern[k + 1]) : std::nullopt;
        if (of_point) {
            text += labels.PlainAt(*quantity, *of_point);
            ++k;
        } else {
            text += pattern[k];
        }
    }
    return text;
}

}  // namespace tavrelo::mechanics::motion
