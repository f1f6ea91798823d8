#pragma once

#include <array>
#include <cstddef>
#include <optional>

namespace tavrelo::tools::particle {

/// Pixels from the middle of the canvas, x to the right and y upward.
struct Offset {
    double dx = 0;
    double dy = 0;
};

/// The twelve places beside the axes where an arrow along an axis may start, three for each half axis, so
/// that arrows on the same half axis do not cover each other.
class AxisSlots {
  public:
    /// Frees all places.
    void Clear() { m_taken.fill(false); }

    /// Takes the next free place beside the half axis on which the arrow lies, turned with the axes by
    /// `rotation` degrees. An arriving force lies on the side it comes from. No offset once the three are
    /// taken, and for an hour that is unknown or lies on no axis.
    Offset AxisOffset(bool leaves, std::optional<int> hour, double rotation);

  private:
    static constexpr std::size_t kSlots = 12;
    std::array<bool, kSlots> m_taken{};
};

}  // namespace tavrelo::tools::particle
