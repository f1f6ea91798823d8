#include "mechanics/motion/labels.h"

#include "text/number_text.h"

namespace tavrelo::mechanics::motion {
namespace {

constexpr const char* kEquals = " = ";

std::string Delta(std::string_view name) { return ";D" + std::string(name); }

}  // namespace

Labels::Labels(int mover, int stretch, int decimals)
    : m_names(points::NamesOf(mover, stretch)), m_decimals(decimals) {}

std::string_view Labels::Name(Quantity quantity) const {
    switch (quantity) {
        case Quantity::Time:
            return kTimeName;
        case Quantity::Position:
            return m_names.position;
        case Quantity::Speed:
            break;
    }
    return m_names.speed;
}

std::string Labels::At(Quantity quantity, int point) const { return points::AtPoint(Name(quantity), point); }

std::string Labels::PlainAt(Quantity quantity, int point) const {
    return points::PlainAtPoint(Name(quantity), point);
}

std::string Labels::Given(Quantity quantity, int point, double value) const {
    return At(quantity, point) + kEquals + Number(value);
}

std::string Labels::Increment(Quantity quantity, double value) const {
    return Delta(Name(quantity)) + kEquals + Number(value);
}

std::string Labels::PlainIncrement(Quantity quantity, double value) const {
    return Delta(Name(quantity)) + kEquals + PlainNumber(value);
}

std::string Labels::Factor(Quantity quantity, int point, int referred, double factor) const {
    const std::string name = At(quantity, referred);
    const double rounded = text::RoundTo(factor, m_decimals);
    const std::string product = rounded == 1.0    ? name
                                : rounded == -1.0 ? ";-" + name
                                                  : Number(factor) + " " + name;
    return At(quantity, point) + kEquals + product;
}

std::string Labels::Point(const FoundPoint& found) const {
    return Given(Quantity::Time, found.point, found.t) + ", " +
           Given(Quantity::Position, found.point, found.x) + ", " +
           Given(Quantity::Speed, found.point, found.v);
}

std::string Labels::Number(double value) const { return text::NumText(value, m_decimals).Text(); }

std::string Labels::PlainNumber(double value) const { return text::RoundedText(value, m_decimals); }

std::string OfStretch(int mover, int stretch) {
    return " del móvil " + std::to_string(mover) + ", tramo " + std::to_string(stretch);
}

}  // namespace tavrelo::mechanics::motion
