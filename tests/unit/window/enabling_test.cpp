#include "window/enabling.h"

#include <gtest/gtest.h>

#include "test_host.h"

namespace tavrelo::window {
namespace {

using enum Enabling;

enum class Event { Solved, Restored, Forgotten };

constexpr EnablingRow<Event, 3> kTable[] = {
    {Event::Solved, {Off, On, AsItWas}},
    {Event::Restored, {On, Off, Off}},
};

class EnablingTest : public testing::Test {
  protected:
    void Happens(Event event) {
        Enable(kTable, event, {&form.Get<Button>("cmdVMb(0)"), &form.Get<Button>("cmdVMb(1)"), &frame});
    }
    void Expect(bool first, bool second, bool third) {
        EXPECT_EQ(form.Get<Button>("cmdVMb(0)").Enabled(), first);
        EXPECT_EQ(form.Get<Button>("cmdVMb(1)").Enabled(), second);
        EXPECT_EQ(frame.Enabled(), third);
    }

    TestHost world;
    Form1 form{world.host};
    Frame& frame = form.Get<Frame>("fraDirec");
};

TEST_F(EnablingTest, AnEventSwitchesWhatItsRowSaysAndLeavesTheRest) {
    Happens(Event::Restored);
    Expect(true, false, false);
    Happens(Event::Solved);
    Expect(false, true, false);
    frame.SetEnabled(true);
    Happens(Event::Solved);
    Expect(false, true, true);
}

TEST_F(EnablingTest, AnEventWithoutARowChangesNothing) {
    Happens(Event::Restored);
    Happens(Event::Forgotten);
    Expect(true, false, false);
}

TEST_F(EnablingTest, AnArrayGivesItsControlsInOrder) {
    const auto buttons = form.GetArray<Button>("cmdParts");
    const auto controls = ControlsOf<6>(buttons);
    EXPECT_EQ(controls[0], &buttons[0]);
    EXPECT_EQ(controls[3], &buttons[5]);
    EXPECT_THROW(ControlsOf<5>(buttons), numeric::RuntimeFailure);
}

}  // namespace
}  // namespace tavrelo::window
