#include "window/reading_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "test_host.h"

namespace tavrelo::window {
namespace {

class ReadingOrderTest : public testing::Test {
  protected:
    std::size_t PlaceOf(const char* name) const {
        const auto order = ReadingOrder(form);
        return static_cast<std::size_t>(std::ranges::find(order, form.Find(name)) - order.begin());
    }

    TestHost world;
    Form1 form{world.host};
};

TEST_F(ReadingOrderTest, HoldsEveryControlOnce) {
    const auto order = ReadingOrder(form);
    EXPECT_EQ(order.size(), form.Controls().size());
    EXPECT_EQ(std::set<Control*>(order.begin(), order.end()).size(), order.size());
}

TEST_F(ReadingOrderTest, AControlStandsBehindItsPanel) {
    const auto order = ReadingOrder(form);
    for (std::size_t k = 0; k < order.size(); ++k)
        if (const Control* parent = order[k]->Parent()) {
            EXPECT_LT(std::ranges::find(order, parent) - order.begin(), static_cast<std::ptrdiff_t>(k))
                << order[k]->Name();
        }
}

/// Panels go from top to bottom, and from left to right at one height, wherever they are moved.
TEST_F(ReadingOrderTest, FollowsThePanelsAsTheyStand) {
    auto& clock = form.Get<Frame>("fraDirec");
    auto& help = form.Get<Frame>("fraHelp");
    ASSERT_EQ(clock.Parent(), help.Parent());
    const auto put = [](Control& panel, int left, int top) {
        Rect bounds = panel.Bounds();
        bounds.left = left;
        bounds.top = top;
        panel.SetBounds(bounds);
    };
    put(clock, 500, 10);
    put(help, 0, 20);
    EXPECT_LT(PlaceOf("fraDirec"), PlaceOf("fraHelp"));
    EXPECT_LT(PlaceOf("txtAngle"), PlaceOf("fraHelp"));
    put(help, 0, 10);
    EXPECT_LT(PlaceOf("fraHelp"), PlaceOf("fraDirec"));
    EXPECT_LT(PlaceOf("rtbHelp"), PlaceOf("fraDirec"));
}

}  // namespace
}  // namespace tavrelo::window
