#pragma once

#include <array>

#include "mechanics/forces/force_table.h"
#include "text/value.h"

namespace tavrelo::tools::particle {

/// Pixels from the middle of the canvas, x to the right and y upward.
struct Offset {
    double dx;
    double dy;
};

/// The twelve places beside the axes where an arrow along an axis may start, three for each half axis, so
/// that arrows on the same half axis do not cover each other.
class AxisSlots {
  public:
    /// Frees all places.
    void Clear() { m_taken.fill(false); }

    /// Takes the next free place beside the half axis on which the arrow lies, turned with the axes by
    /// `rotation` degrees. An arriving force lies on the side it comes from. No offset once the three are
    /// taken, and for an hour that is empty or lies on no axis.
    Offset AxisOffset(bool leaves, const text::Value& hour, double rotation);

  private:
    static constexpr std::size_t kSlots = 12;
    std::array<bool, kSlots> m_taken{};
};

/// Sets the start of the force's arrow on a canvas of that size in pixels.
void PlaceForce(mechanics::forces::ForceRow& row, AxisSlots& slots, double canvas_width, double canvas_height,
                double rotation);

}  // namespace tavrelo::tools::particle
