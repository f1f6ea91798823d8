#pragma once

#include <string>
#include <string_view>

namespace tavrelo::mechanics::points {

/// The names of the quantities of a mover's stretch: x, v, a of mover 1, with one prime a stretch more; X, V,
/// A of mover 2. They hold no mark.
struct QuantityNames {
    std::string_view position;
    std::string_view speed;
    std::string_view acceleration;
};
/// Movers and stretches count from 1; fails with SubscriptRange on any other.
const QuantityNames& NamesOf(int mover, int stretch);

/// The names of a projectile's quantities in markup: x, y, v!x, v!y; in capitals for mover 2.
struct ProjectileNames {
    std::string_view x;
    std::string_view y;
    std::string_view speed_x;
    std::string_view speed_y;
};
const ProjectileNames& ProjectileNamesOf(int mover);

/// A quantity at a point in markup: "x'!3".
std::string AtPoint(std::string_view name, int point);
/// The same without marks, for boxes: "x'3".
std::string PlainAtPoint(std::string_view name, int point);

}  // namespace tavrelo::mechanics::points
