#include "tools/particle/axis_slots.h"

#include "notation/clock_direction.h"
#include "numeric/angles.h"

namespace tavrelo::tools::particle {
namespace {

constexpr std::size_t kSlotsPerSide = 3;
constexpr double kGap = 5;  // pixels between an arrow and the axis beside it

constexpr std::array<Offset, 12> kOffsets = {{
    {0, 0},
    {kGap, -kGap},
    {kGap, kGap - 1},
    {0, 0},
    {kGap, kGap - 1},
    {1 - kGap, kGap - 1},
    {0, 0},
    {1 - kGap, kGap - 1},
    {1 - kGap, -kGap},
    {0, 0},
    {1 - kGap, -kGap},
    {kGap, -kGap},
}};

// The half axes in the order of their slots.
constexpr std::array<int, 4> kSides = {notation::kHourRight, notation::kHourUp, notation::kHourLeft,
                                       notation::kHourDown};

// Nothing for an hour that lies on no axis.
std::optional<std::size_t> FirstSlot(int side) {
    for (std::size_t index = 0; index < kSides.size(); ++index)
        if (kSides[index] == side)
            return index * kSlotsPerSide;
    return {};
}

Offset Turned(const Offset& offset, double rotation) {
    const double cosine = numeric::CosD(rotation);
    const double sine = numeric::SinD(rotation);
    return {offset.dx * cosine - offset.dy * sine, offset.dx * sine + offset.dy * cosine};
}

}  // namespace

Offset AxisSlots::AxisOffset(bool leaves, std::optional<int> hour, double rotation) {
    if (!hour)
        return {};
    const auto first = FirstSlot(leaves ? *hour : notation::OppositeHour(*hour));
    if (!first)
        return {};
    for (std::size_t slot = *first; slot < *first + kSlotsPerSide; ++slot)
        if (!m_taken[slot]) {
            m_taken[slot] = true;
            return Turned(kOffsets[slot], rotation);
        }
    return {0, 0};
}

}  // namespace tavrelo::tools::particle
