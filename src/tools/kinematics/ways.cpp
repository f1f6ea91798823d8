#include "tools/kinematics/ways.h"

#include <algorithm>
#include <iterator>

#include "numeric/checked.h"

namespace tavrelo::tools::kinematics {
namespace {

using mechanics::kinematics::Way;

constexpr WayPanel kPanels[] = {
    {Way::Position, "x(t)=", "", 0},         {Way::Velocity, "v(t,x)=", "", 2},
    {Way::Acceleration, "a(t,x,v)=", "", 3}, {Way::Plane, "x(t)=", "y(t)=", 0},
    {Way::Polar, "r(t)=", "theta(t)=", 0},
};

}  // namespace

const WayPanel& PanelOf(int way) {
    const auto* found = std::ranges::find(kPanels, static_cast<Way>(way), &WayPanel::way);
    if (found == std::end(kPanels))
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "way of giving a motion");
    return *found;
}

}  // namespace tavrelo::tools::kinematics
