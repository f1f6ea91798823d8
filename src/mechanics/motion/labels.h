#pragma once

#include <string>
#include <string_view>

#include "mechanics/motion/problem.h"
#include "mechanics/points/names.h"

namespace tavrelo::mechanics::motion {

enum class Quantity { Time, Position, Speed };

inline constexpr std::string_view kTimeName = "t";

/// How a stretch writes its quantities in a report, in rich-text markup. Numbers are rounded and carry the
/// typographic minus.
class Labels {
  public:
    Labels(int mover, int stretch, int decimals);

    std::string_view Name(Quantity quantity) const;
    std::string_view Acceleration() const { return m_names.acceleration; }
    /// "x'!3"; in boxes "x'3".
    std::string At(Quantity quantity, int point) const;
    std::string PlainAt(Quantity quantity, int point) const;
    /// "x'!3 = 15", ";Dx' = 30", "a' = 2".
    std::string Given(Quantity quantity, int point, double value) const;
    std::string Increment(Quantity quantity, double value) const;
    /// The same with the plain minus.
    std::string PlainIncrement(Quantity quantity, double value) const;
    /// "x'!3 = 2 x'!1": a factor of 1 is not written.
    std::string Factor(Quantity quantity, int point, int referred, double factor) const;
    /// "t!3 = 2, x'!3 = 15, v'!3 = 4"
    std::string Point(const FoundPoint& found) const;

    /// The number alone, with the typographic minus or, for boxes and cells, the plain one.
    std::string Number(double value) const;
    std::string PlainNumber(double value) const;
    int Decimals() const { return m_decimals; }

  private:
    const points::QuantityNames& m_names;
    int m_decimals;
};

/// " del móvil 1, tramo 2"
std::string OfStretch(int mover, int stretch);

}  // namespace tavrelo::mechanics::motion
