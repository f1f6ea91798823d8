#include "drawing/draw_engine.h"

#include <gtest/gtest.h>

#include <cmath>

#include "numeric/checked.h"
#include "text/picture_markup.h"

namespace tavrelo::drawing {
namespace {

using text::Color;
using window::Recorder;

constexpr Color kRed = text::Rgb(255, 0, 0);

template <class Op>
std::vector<Op> All(const Recorder& surface) {
    std::vector<Op> found;
    for (const window::DrawOp& op : surface.Operations())
        if (const auto* wanted = std::get_if<Op>(&op))
            found.push_back(*wanted);
    return found;
}

/// The directions of the clock: 3 right, 12 up, 9 left, 6 down; the others by their quadrant and axis.
TEST(DrawEng, DirectionsOfTheClock) {
    struct Row {
        int hour;
        double angle;
        double degrees;
    };
    const Row rows[] = {{3, 0, 0},     {12, 0, 90},   {9, 0, 180},  {6, 0, 270},  {2, 30, 30},  {1, 60, 30},
                        {11, 20, 110}, {10, 40, 140}, {8, 25, 205}, {7, 15, 255}, {5, 35, 305}, {4, 10, 350}};
    for (const Row& row : rows) {
        DrawEng engine;
        engine.SetDirection(row.hour, row.angle);
        const double radians = row.degrees * std::acos(-1.0) / 180;
        EXPECT_NEAR(engine.ArrowCos(), std::cos(radians), 1e-12) << row.hour;
        EXPECT_NEAR(engine.ArrowSin(), std::sin(radians), 1e-12) << row.hour;
    }
    EXPECT_THROW(DrawEng().SetDirection(0, 0), numeric::RuntimeFailure);
    EXPECT_THROW(DrawEng().SetDirection(13, 0), numeric::RuntimeFailure);
}

/// The head is 2w + 1 pixels long and w + 1 wide to each side, whatever the length of the arrow.
TEST(DrawEng, TheHeadGoesWithTheWidth) {
    struct Row {
        int width;
        double length;
        double half;
    };
    for (const Row& row : {Row{1, 3, 2}, Row{2, 5, 3}}) {
        Recorder surface(400, 400);
        DrawEng engine;
        engine.MoveTo(surface, 100, 200, 1);
        engine.DrawArrow(surface, {.length = 2, .hour = 3, .color = kRed, .width = row.width});
        const auto head = All<window::PolygonOp>(surface).at(0).points;
        ASSERT_EQ(head.size(), 3u);
        EXPECT_EQ(head[0].x, 148);  // two world units of 24 pixels
        EXPECT_EQ(head[0].y, 200);
        EXPECT_EQ(head[1].x, 148 - row.length);
        EXPECT_EQ(std::abs(head[1].y - 200), row.half);
        EXPECT_EQ(head[2].y - 200, 200 - head[1].y);
    }
}

TEST(DrawEng, ALeavingArrowEndsAndAnArrivingOneBeginsAwayFromThePen) {
    for (const bool leaves : {true, false}) {
        Recorder surface(400, 400);
        DrawEng engine;
        engine.MoveTo(surface, 200, 200, 1);
        engine.DrawArrow(surface, {.length = 1, .leaves = leaves, .hour = 12, .color = kRed});
        const auto shaft = All<window::LineOp>(surface).at(0);
        EXPECT_NEAR(shaft.y1, leaves ? 200 : 224, 1e-9);
        EXPECT_NEAR(shaft.y2, leaves ? 176 : 200, 1e-9);
        EXPECT_NEAR(All<window::PolygonOp>(surface).at(0).points[0].y, leaves ? 176 : 200, 1e-9);
    }
}

/// Outside the arrow in every octant: the label's box never holds the free end's inner side.
TEST(DrawEng, LabelsStandClearOfTheShaft) {
    for (int hour = 1; hour <= 12; ++hour) {
        Recorder surface(400, 400);
        DrawEng engine;
        engine.MoveTo(surface, 200, 200, 1);
        engine.DrawArrow(surface, {.length = 4, .hour = hour, .angle = 20, .color = kRed, .label = "-F!1"});
        const auto label = All<window::TextOp>(surface).at(0);
        EXPECT_EQ(label.PlainText(), "F1") << hour;
        const auto shaft = All<window::LineOp>(surface).at(0);
        const double width = text::MarkupWidth("F!1", LabelFont());
        const double height = text::TextHeight(LabelFont());
        for (double part = 0; part <= 1; part += 0.01) {
            const double x = shaft.x1 + part * (shaft.x2 - shaft.x1);
            const double y = shaft.y1 + part * (shaft.y2 - shaft.y1);
            const bool inside = x > label.x && x < label.x + width && y > label.y && y < label.y + height;
            EXPECT_FALSE(inside) << "hour " << hour << " at " << part;
        }
    }
}

TEST(DrawEng, LabelsStayInThePicture) {
    Recorder surface(100, 100);
    PrintLabel(surface, "muy largo", 95, -30, LabelFont(), kRed);
    const auto label = All<window::TextOp>(surface).at(0);
    EXPECT_EQ(label.y, 0);
    EXPECT_NEAR(label.x + text::TextWidth("muy largo", LabelFont()), 100, 1e-9);
}

TEST(DrawEng, ShapesAreNumberedUntilANewDiagramBegins) {
    Recorder surface(400, 400);
    DrawEng engine;
    engine.MoveTo(surface, 5, 5);
    engine.DrawArrow(surface, {.length = 1, .color = kRed});
    engine.DrawLine(surface, 1, 3, 0, kRed);
    ASSERT_EQ(engine.Shapes().size(), 2u);
    EXPECT_EQ(engine.Shapes()[0].key, "1-Flecha");
    EXPECT_EQ(engine.Shapes()[1].key, "2-Linea");
    EXPECT_EQ(engine.Shapes()[0].x1, 120);  // five world units
    engine.Begin();
    EXPECT_TRUE(engine.Shapes().empty());
}

TEST(DrawEng, MoveByGoesOnFromTheLastTip) {
    Recorder surface(400, 400);
    DrawEng engine;
    engine.MoveTo(surface, 100, 100, 1);
    engine.DrawArrow(surface, {.length = 1, .color = kRed});
    engine.MoveBy(surface, 10, -5, 1);
    EXPECT_NEAR(surface.CurrentX, 134, 1e-9);
    EXPECT_NEAR(surface.CurrentY, 95, 1e-9);
    engine.ClearPen();
    engine.MoveBy(surface, 1, 1);
    EXPECT_EQ(surface.CurrentX, DrawEng::kPixPerUnit);
}

TEST(DrawEng, TheAxesOfDiagramsAreGreyAndLettered) {
    Recorder surface(397, 385);
    DrawEng engine;
    engine.DrawAxes(surface, 10, 370);
    const auto shafts = All<window::LineOp>(surface);
    ASSERT_EQ(shafts.size(), 2u);
    EXPECT_NEAR(shafts[0].y1 - shafts[0].y2, 15 * 24, 1e-9);
    EXPECT_NEAR(shafts[1].x2 - shafts[1].x1, 15.5 * 24, 1e-9);
    EXPECT_EQ(shafts[0].color, text::Rgb(0x80, 0x80, 0x80));
    EXPECT_EQ(surface.VisibleTexts(), (std::vector<std::string>{"Y", "X"}));
}

/// y = x^2 - 1 on [-2, 2]: both axes cross the frame, the extremes are 3 and -1, the ends of the curve its
/// upper corners.
TEST(DrawEng, AGraphFillsItsFrame) {
    Recorder surface(397, 385);
    const std::vector<double> xs = {-2, -1, 0, 1, 2};
    const std::vector<double> ys = {3, 0, -1, 0, 3};
    DrawEng().DrawGraph(surface, {xs, ys}, kRed, 3);
    const auto lines = All<window::LineOp>(surface);
    ASSERT_EQ(lines.size(), 2u + 4u);
    const auto frame = All<window::BoxOp>(surface).at(0);
    EXPECT_NEAR(lines[2].x1, frame.x1, 1e-9);
    EXPECT_NEAR(lines[2].y1, frame.y1, 1e-9);
    EXPECT_NEAR(lines[3].y2, frame.y2, 1e-9);  // the lowest point
    EXPECT_EQ(surface.VisibleTexts(), (std::vector<std::string>{"Ymax = 3", "Ymin = -1", "-2", "2"}));
}

TEST(DrawEng, AConstantLiesInTheMiddleOfTheFrame) {
    Recorder surface(397, 385);
    const std::vector<double> xs = {1, 2}, ys = {5, 5};
    DrawEng().DrawGraph(surface, {xs, ys}, kRed, 3);
    const auto frame = All<window::BoxOp>(surface).at(0);
    EXPECT_NEAR(All<window::LineOp>(surface).at(0).y1, (frame.y1 + frame.y2) / 2, 1e-9);
}

}  // namespace
}  // namespace tavrelo::drawing
