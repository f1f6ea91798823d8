#include "mechanics/points/names.h"

#include <array>

#include "numeric/checked.h"

namespace tavrelo::mechanics::points {
namespace {

constexpr std::array<QuantityNames, 3> kFirstMover = {
    {{"x", "v", "a"}, {"x'", "v'", "a'"}, {"x''", "v''", "a''"}}};
constexpr QuantityNames kSecondMover = {"X", "V", "A"};

constexpr ProjectileNames kFirstProjectile = {"x", "y", "v!x", "v!y"};
constexpr ProjectileNames kSecondProjectile = {"X", "Y", "V!x", "V!y"};

[[noreturn]] void ThrowNoSuchMover() {
    throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "names of a mover");
}

}  // namespace

const QuantityNames& NamesOf(int mover, int stretch) {
    if (mover == 1 && stretch >= 1 && stretch <= static_cast<int>(kFirstMover.size()))
        return kFirstMover[static_cast<std::size_t>(stretch - 1)];
    if (mover == 2 && stretch == 1)
        return kSecondMover;
    ThrowNoSuchMover();
}

const ProjectileNames& ProjectileNamesOf(int mover) {
    if (mover == 1)
        return kFirstProjectile;
    if (mover == 2)
        return kSecondProjectile;
    ThrowNoSuchMover();
}

std::string AtPoint(std::string_view name, int point) {
    return std::string(name) + "!" + std::to_string(point);
}

std::string PlainAtPoint(std::string_view name, int point) {
    return std::string(name) + std::to_string(point);
}

}  // namespace tavrelo::mechanics::points
