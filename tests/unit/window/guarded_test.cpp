#include "window/guarded.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "test_host.h"

namespace tavrelo::window {
namespace {

[[noreturn]] void Fail() { throw numeric::RuntimeFailure(numeric::FailureCode::Internal, "test"); }

class GuardedTest : public testing::Test {
  protected:
    TestHost world;
    Form1 form{world.host};
    Button& button = form.Get<Button>("cmdInc");
    TextBox& box = form.Get<TextBox>("txtVector");
    ControlArray<Button> buttons = form.GetArray<Button>("cmdParts");
};

TEST_F(GuardedTest, AFailureInsideAClickIsTold) {
    OnClick(form, button, [] { Fail(); });
    button.UserClick();
    EXPECT_EQ(world.last_message, text::kCommandFailed);
    EXPECT_EQ(world.messages, 1);
}

TEST_F(GuardedTest, AnOwnMessageTakesThePlaceOfTheCommonOne) {
    OnClick(
        form, button, [] { Fail(); }, "Error en la impresión.");
    button.UserClick();
    EXPECT_EQ(world.last_message, "Error en la impresión.");
}

TEST_F(GuardedTest, AnEmptyMessageOnlyStops) {
    OnClick(
        form, button, [] { Fail(); }, "");
    button.UserClick();
    EXPECT_EQ(world.messages, 0);
}

TEST_F(GuardedTest, AnArrayTellsTheIndexThatWasClicked) {
    int clicked = -1;
    OnClick(form, buttons, [&](int index) { clicked = index; });
    buttons[6].UserClick();
    EXPECT_EQ(clicked, 6);
    buttons[0].UserClick();
    EXPECT_EQ(clicked, 0);
}

TEST_F(GuardedTest, OnlyEnterIsConsumed) {
    int entered = 0;
    OnEnter(form, box, [&] { ++entered; });
    EXPECT_FALSE(box.UserKeyPress(U'a'));
    EXPECT_FALSE(box.UserKeyPress(kBackspaceCharacter));
    EXPECT_EQ(entered, 0);
    EXPECT_TRUE(box.UserKeyPress(kEnterCharacter));
    EXPECT_EQ(entered, 1);
}

TEST_F(GuardedTest, EnterIsConsumedByAHandlerThatFails) {
    OnEnter(form, box, [] { Fail(); });
    EXPECT_TRUE(box.UserKeyPress(kEnterCharacter));
    EXPECT_EQ(world.last_message, text::kCommandFailed);
}

TEST_F(GuardedTest, EnterInAnArrayTellsTheBox) {
    int entered = -1;
    OnEnter(form, form.GetArray<TextBox>("txtSegm"), [&](int index) { entered = index; });
    form.Get<TextBox>("txtSegm(4)").UserKeyPress(kEnterCharacter);
    EXPECT_EQ(entered, 4);
}

TEST_F(GuardedTest, AKeyOfAHandlerThatFailsIsNotConsumed) {
    On(form, box.OnKeyDown, [](const KeyStroke& stroke) {
        if (stroke.ctrl)
            Fail();
        return true;
    });
    EXPECT_TRUE(box.UserKeyDown({Key::F10}));
    EXPECT_FALSE(box.UserKeyDown({.key = Key::F10, .ctrl = true}));
    EXPECT_EQ(world.messages, 1);
}

TEST_F(GuardedTest, MouseAndGridEventsArriveWithTheirPlace) {
    double x = 0;
    int row = 0;
    On(form, form.Get<Picture>("picBar").OnMouseDown, [&](const MouseStroke& stroke) { x = stroke.x; });
    form.Get<Picture>("picBar").UserMouseDown({.x = 40});
    EXPECT_EQ(x, 40);
    Grid& grid = form.Get<Grid>("gd");
    grid.Arrange(3, 3, 1, 1);
    On(form, grid.OnMouseDown, [&](int pressed_row, int) { row = pressed_row; });
    grid.UserPress(2, 1);
    EXPECT_EQ(row, 2);
}

/// What stands under the guards: a failure that is no exception of the library.
TEST_F(GuardedTest, NoFailureReachesTheEventLoop) {
    OnClick(form, button, [] { throw 1; });
    EXPECT_NO_THROW(button.UserClick());
    EXPECT_EQ(world.last_message, text::kCommandFailed);
    On(form, box.OnKeyPress, [](char32_t) -> bool { throw 1; });
    EXPECT_NO_THROW(EXPECT_FALSE(box.UserKeyPress(U'a')));
    EXPECT_EQ(world.messages, 2);
}

TEST_F(GuardedTest, AFailureAtAChangeOfFocusStopsThere) {
    form.Get<Frame>("fraDirec").SetVisible(true);
    On(form, box.OnGotFocus, [] { throw 1; });
    EXPECT_NO_THROW(form.UserFocused(box));
    EXPECT_EQ(world.messages, 1);
    EXPECT_EQ(form.Focus(), &box);
}

/// A handler that the program sets off by another handler has a guard of its own.
TEST_F(GuardedTest, AFailureFurtherInIsToldThere) {
    On(form, box.OnChange, [] { Fail(); });
    OnClick(form, button, [&] {
        box.SetTextAndTell("h5");
        Fail();
    });
    button.UserClick();
    EXPECT_EQ(world.messages, 2);
}

TEST_F(GuardedTest, ControlsAreBoundByNameAndKind) {
    EXPECT_EQ(&form.Get<Button>("cmdInc"), form.Find("cmdInc"));
    EXPECT_THROW(form.Get<Button>("txtVector"), numeric::RuntimeFailure);
    EXPECT_THROW(form.Get<Button>("cmdNada"), numeric::RuntimeFailure);
    EXPECT_THROW(form.GetArray<TextBox>("cmdParts"), numeric::RuntimeFailure);
    EXPECT_THROW(form.GetArray<Button>("cmdNada"), numeric::RuntimeFailure);
}

}  // namespace
}  // namespace tavrelo::window
