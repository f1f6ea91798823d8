#include "tools/motion/motion_strip.h"

#include <gtest/gtest.h>

namespace tavrelo::tools::motion {
namespace {

using mechanics::points::Stage;
using window::MouseButton;
using window::MouseStroke;

// Columns are 64 wide: x = 160 lies in the middle of the third.
constexpr double kX = 160;
constexpr double kPosition = 2.5;
constexpr int kColumn = 3;

struct PressCase {
    const char* name;
    MouseStroke stroke;
    Stage stage;
    StripMeaning meaning;
};

MouseStroke Left(double y) { return {.x = kX, .y = y}; }
MouseStroke Right(double y) { return {.x = kX, .y = y, .button = MouseButton::Right}; }
MouseStroke Shifted() { return {.x = kX, .y = 10, .shift = true}; }
MouseStroke WithCtrl() { return {.x = kX, .y = 10, .ctrl = true}; }
MouseStroke WithAlt() { return {.x = kX, .y = 10, .alt = true}; }

StripMeaning Means(StripAction action, Shortcut shortcut = Shortcut::None) {
    return {action, kPosition, kColumn, shortcut};
}

const PressCase kPresses[] = {
    {"label before any choice", Left(10), Stage::Unconfigured, Means(StripAction::AskConfiguration)},
    {"label while the movers are pending", Left(10), Stage::Pending, Means(StripAction::AskConfiguration)},
    {"label while limits are set", Left(10), Stage::Limits, Means(StripAction::AskConfiguration)},
    {"label", Left(10), Stage::Configured, Means(StripAction::RunLabel)},
    {"the label's upper edge belongs to it", Left(19), Stage::Configured, Means(StripAction::RunLabel)},
    {"just above is the grey band", Left(19.5), Stage::Configured, Means(StripAction::StartDrag)},
    {"the label's foot belongs to it", Left(0), Stage::Configured, Means(StripAction::RunLabel)},
    {"Shift", Shifted(), Stage::Configured, Means(StripAction::RunLabel, Shortcut::Plant)},
    {"Ctrl", WithCtrl(), Stage::Configured, Means(StripAction::RunLabel, Shortcut::Substitute)},
    {"Alt", WithAlt(), Stage::Configured, Means(StripAction::RunLabel, Shortcut::OppositeSpeed)},
    {"a key held before the table is configured", Shifted(), Stage::Pending,
     Means(StripAction::AskConfiguration)},
    {"grey band before any choice", Left(30), Stage::Unconfigured, {}},
    {"grey band for the movers", Left(30), Stage::Pending, Means(StripAction::Divide)},
    {"grey band for a limit", Left(30), Stage::Limits, Means(StripAction::Divide)},
    {"grey band of a table", Left(30), Stage::Configured, Means(StripAction::StartDrag)},
    {"upper edge of the strip", Left(42), Stage::Configured, Means(StripAction::StartDrag)},
    {"right button on a label", Right(10), Stage::Configured, Means(StripAction::ClearPoint)},
    {"right button just below the upper edge", Right(18.5), Stage::Configured,
     Means(StripAction::ClearPoint)},
    {"right button on the upper edge", Right(19), Stage::Configured, {}},
    {"right button on the foot", Right(0), Stage::Configured, {}},
    {"right button in the grey band", Right(30), Stage::Configured, {}},
    {"left of the columns", {.x = -1, .y = 10}, Stage::Configured, {}},
    {"right of the columns", {.x = 576, .y = 10}, Stage::Configured, {}},
    {"first column", {.x = 0, .y = 10}, Stage::Configured, {StripAction::RunLabel, 0, 1, Shortcut::None}},
    {"last column",
     {.x = 575, .y = 30},
     Stage::Configured,
     {StripAction::StartDrag, 575.0 / 64, 9, Shortcut::None}},
};

TEST(StripMeaningTest, TellsWhatAPressMeans) {
    for (const PressCase& row : kPresses)
        EXPECT_EQ(MeaningOfPress(row.stroke, row.stage), row.meaning) << row.name;
}

TEST(StripMeaningTest, EndsADragAboveTheLabelsOnly) {
    EXPECT_FALSE(MeaningOfRelease(Left(19)));
    EXPECT_FALSE(MeaningOfRelease(Left(-3)));
    const auto end = MeaningOfRelease(Left(19.5));
    ASSERT_TRUE(end);
    EXPECT_EQ(end->position, kPosition);
    EXPECT_FALSE(end->copies);
    // The mouse may have left the strip by its upper edge.
    EXPECT_TRUE(MeaningOfRelease(Left(60)));
}

TEST(StripMeaningTest, CopiesWithShift) {
    const auto end = MeaningOfRelease({.x = kX, .y = 30, .shift = true});
    ASSERT_TRUE(end);
    EXPECT_TRUE(end->copies);
}

/// A table of which columns 2 and 4 were clicked as limits.
mechanics::points::Configuration ThreeStretches() {
    using namespace mechanics::points;
    const Configuration begun = Begin(kMotionVariants[1]);
    return ClickBand(ClickBand(begun, 1.5).configuration, 3.5).configuration;
}

TEST(SpansOfTest, CoverEachStretchWithItsSharedPoints) {
    const auto spans = SpansOf(ThreeStretches());
    ASSERT_EQ(spans.size(), 3u);
    // Points 0 to 1, 1 to 3 and 3 to 8 stand in the columns from 1, 2 and 4.
    EXPECT_EQ(spans[0].first_column, 1);
    EXPECT_EQ(spans[0].points, 2);
    EXPECT_EQ(spans[1].first_column, 2);
    EXPECT_EQ(spans[1].points, 3);
    EXPECT_EQ(spans[2].first_column, 4);
    EXPECT_EQ(spans[2].points, 6);
    EXPECT_EQ(spans[2].slot, 2u);
}

TEST(SpansOfTest, GiveMoverTwoTheLastSlot) {
    using namespace mechanics::points;
    const auto spans = SpansOf(ClickBand(Begin(kMotionVariants[2]), 3.5).configuration);
    ASSERT_EQ(spans.size(), 2u);
    EXPECT_EQ(spans[1].slot, 3u);
    EXPECT_EQ(spans[1].first_column, 5);
    EXPECT_EQ(spans[1].points, 5);
}

}  // namespace
}  // namespace tavrelo::tools::motion
