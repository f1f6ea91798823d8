#include "tools/rigid/rigid_picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "seen_picture.h"
#include "tools/rigid/structure_layout.h"

namespace tavrelo::tools::rigid {
namespace {

using text::Color;
using window::Point;
using Strings = std::vector<std::string>;

constexpr double kArrow = 33;   // 1.375 world units of 24 pixels
constexpr double kCouple = 12;  // 0.5 world units
constexpr Color kBlack = text::Rgb(0, 0, 0);
constexpr Color kRed = text::Rgb(255, 0, 0);
constexpr Color kMagenta = text::Rgb(255, 0, 255);

/// A level beam AB in view, with one force at its end B.
DrawnProblem BeamWith(const char* text) {
    DrawnProblem beam;
    beam.At("A", 0, 0).At("B", 6, 0).Line(1, "AB").Force(1, "B", text).Show({1});
    return beam;
}

// --- One scale for both axes, in the middle

TEST(RigidPicture, TheColoursOfTheSystems) {
    EXPECT_EQ(SystemColor(1), text::Rgb(128, 128, 128));
    EXPECT_EQ(SystemColor(2), text::Rgb(192, 192, 0));
    EXPECT_EQ(SystemColor(3), text::Rgb(0, 192, 0));
    EXPECT_EQ(SystemColor(4), text::Rgb(0, 192, 192));
    EXPECT_EQ(SystemColor(5), text::Rgb(0, 0, 192));
}

TEST(RigidPicture, WithoutPointsThePictureIsEmpty) {
    DrawnProblem nothing;
    nothing.picture.Circle(5, 5, 3, kRed);
    nothing.Draw();
    ASSERT_EQ(nothing.picture.Operations().size(), 1u);
    EXPECT_TRUE(std::holds_alternative<window::ClearOp>(nothing.picture.Operations()[0]));
}

/// A right triangle of 4 by 2: both sides in one scale, within the rounding to pixels, up is up.
TEST(RigidPicture, OneScaleForBothAxes) {
    DrawnProblem triangle;
    triangle.At("A", 0, 0).At("B", 4, 0).At("C", 4, 2).Draw();
    const Point a = triangle.Place("A"), b = triangle.Place("B"), c = triangle.Place("C");
    EXPECT_EQ(a.y, b.y);
    EXPECT_EQ(b.x, c.x);
    EXPECT_NEAR(b.y - c.y, (b.x - a.x) / 2, 1);
    EXPECT_NEAR((a.x + b.x) / 2, kWidth / 2, 1);
    EXPECT_NEAR((b.y + c.y) / 2, kHeight / 2, 1);
    EXPECT_GT(b.x - a.x, kWidth / 2);
}

/// Every point has room for an arrow on each side.
TEST(RigidPicture, TheStructureIsFittedWithAMargin) {
    const std::initializer_list<std::pair<double, double>> corners = {{8, 1}, {1, 8}, {3, 3}, {1e-9, 2e-9}};
    for (const auto& [x, y] : corners) {
        DrawnProblem bar;
        bar.At("A", 0, 0).At("B", x, y).Draw();
        for (const char* name : {"A", "B"}) {
            EXPECT_GT(bar.Place(name).x, kArrow + 20);
            EXPECT_LT(bar.Place(name).x, kWidth - kArrow - 20);
            EXPECT_GT(bar.Place(name).y, kArrow + 15);
            EXPECT_LT(bar.Place(name).y, kHeight - kArrow - 15);
        }
    }
}

TEST(RigidPicture, OnePointAloneStandsInTheMiddle) {
    DrawnProblem particle;
    particle.At("A", 0, 0).Force(1, "A", "Ax,Ay/MA").Show({1});
    const Seen seen = particle.Draw();
    // 198.5 and 192.5, halves up.
    EXPECT_EQ(particle.Place("A").x, 199);
    EXPECT_EQ(particle.Place("A").y, 193);
    EXPECT_EQ(seen.forces.size(), 2u);
    EXPECT_EQ(seen.couples.size(), 1u);
}

TEST(RigidPicture, PointsOnOneLineKeepTheirDistances) {
    DrawnProblem upright;
    upright.At("A", 0, 0).At("B", 0, 1).At("C", 0, -3).Draw();
    EXPECT_EQ(upright.Place("A").x, upright.Place("C").x);
    EXPECT_NEAR(upright.Place("C").y - upright.Place("A").y,
                3 * (upright.Place("A").y - upright.Place("B").y), 2);
}

/// Coordinates at both ends of the range of a double: B is a hundred million times nearer to A than C is.
TEST(RigidPicture, HugeAndTinyCoordinates) {
    DrawnProblem huge;
    huge.At("A", 0, 0).At("B", 1e300, 0).At("C", -1e308, 1.7e308).At("D", 1.7e308, -1.7e308).Line(1, "ABCD");
    huge.Draw();
    EXPECT_EQ(huge.Place("A").x, huge.Place("B").x);
    EXPECT_NEAR(huge.Place("D").x - huge.Place("A").x, (huge.Place("A").x - huge.Place("C").x) * 1.7, 2);
    DrawnProblem tiny;
    tiny.At("A", 0, 0).At("B", 3e-308, 0).At("C", 3e-308, 3e-308).Draw();
    EXPECT_GT(tiny.Place("B").x - tiny.Place("A").x, 200);
    EXPECT_NEAR(tiny.Place("B").x - tiny.Place("A").x, tiny.Place("B").y - tiny.Place("C").y, 1);
}

TEST(RigidPicture, OtherCanvases) {
    for (const auto& [width, height] :
         {std::pair{800.0, 300.0}, std::pair{120.0, 500.0}, std::pair{40.0, 30.0}}) {
        DrawnProblem bar;
        bar.picture.Resize(width, height);
        bar.At("A", 0, 0).At("B", 4, 2).Line(1, "AB");
        const Seen seen = bar.Draw();
        for (const window::CircleOp& dot : seen.dots) {
            EXPECT_TRUE(dot.x > 0 && dot.x < width && dot.y > 0 && dot.y < height) << width;
        }
        for (const SeenArrow& axis : seen.axes)
            for (const Point end : {axis.tail, axis.tip}) {
                EXPECT_TRUE(end.x >= 0 && end.x <= width && end.y >= 0 && end.y <= height) << width;
            }
    }
}

// --- Axes, points and lines

TEST(RigidPicture, GreyAxesThroughTheOrigin) {
    DrawnProblem bar;
    bar.At("A", -2, 1).At("B", 0, 0).At("C", 3, 1);
    const Seen seen = bar.Draw();
    ASSERT_EQ(seen.axes.size(), 2u);
    const Point origin = bar.Place("B");
    EXPECT_EQ(seen.axes[0].Degrees(), 0);
    EXPECT_NEAR(seen.axes[1].Degrees(), 90, 1e-9);
    EXPECT_EQ(seen.axes[0].tail.y, origin.y);
    EXPECT_EQ(seen.axes[1].tail.x, origin.x);
    EXPECT_LT(seen.axes[0].tail.x, bar.Place("A").x);
    EXPECT_GT(seen.axes[0].tip.x, bar.Place("C").x);
    EXPECT_GT(seen.axes[1].tail.y, origin.y);
    EXPECT_LT(seen.axes[1].tip.y, bar.Place("C").y);
    for (const char* letter : {"X", "Y"}) {
        const SeenText& text = seen.Text(letter);
        const Point tip = seen.axes[letter == std::string("Y") ? 1 : 0].tip;
        EXPECT_LT(Distance({(text.left + text.right) / 2, (text.top + text.bottom) / 2}, tip), 20) << letter;
    }
}

TEST(RigidPicture, PointsTakeTheColourOfTheFirstSystemInView) {
    DrawnProblem frame;
    frame.At("A", 0, 0).At("B", 2, 2).At("C", 4, 0).At("D", 6, 0).System(2, "AB").System(3, "BC").Show(
        {2, 3});
    const Seen seen = frame.Draw();
    ASSERT_EQ(seen.dots.size(), 4u);
    EXPECT_TRUE(seen.dots[0].filled);
    EXPECT_EQ(seen.dots[0].color, SystemColor(2));
    EXPECT_EQ(seen.dots[1].color, SystemColor(2));
    EXPECT_EQ(seen.dots[2].color, SystemColor(3));
    for (std::size_t system = 1; system <= mechanics::rigid::kSystems; ++system)
        EXPECT_NE(seen.dots[3].color, SystemColor(static_cast<int>(system)));
    EXPECT_EQ(seen.text_colors[2], SystemColor(2));  // "A", behind "X" and "Y"
    EXPECT_EQ(seen.text_colors[4], SystemColor(3));
    const Seen configuration = frame.Show({}).Draw();
    for (const window::CircleOp& dot : configuration.dots)
        EXPECT_EQ(dot.color, configuration.dots[0].color);
}

TEST(RigidPicture, LinesOfTheSystemsInView) {
    DrawnProblem frame;
    frame.At("A", 0, 0).At("B", 2, 2).At("C", 4, 0).System(2, "AB").System(3, "ABC");
    frame.Line(2, "AB").Line(3, "ABCA");
    const Seen all = frame.Draw();
    ASSERT_EQ(all.lines.size(), 4u);
    EXPECT_EQ(all.lines[0].color, SystemColor(2));
    EXPECT_EQ(all.lines[3].color, SystemColor(3));
    EXPECT_EQ(all.lines[0].width, 2);
    EXPECT_EQ((Point{all.lines[3].x2, all.lines[3].y2}.x), frame.Place("A").x);
    const Seen one = frame.Show({2}).Draw();
    ASSERT_EQ(one.lines.size(), 1u);
    EXPECT_EQ(one.lines[0].x1, frame.Place("A").x);
    EXPECT_EQ(one.lines[0].y2, frame.Place("B").y);
    EXPECT_TRUE(frame.Show({4}).Draw().lines.empty());
}

TEST(RigidPicture, AddLinesCountsItsRows) {
    DrawnProblem frame;
    frame.At("A", 0, 0).At("B", 2, 2).Line(2, "AB").Line(3, "AB").Line(3, "BA").Show({3});
    const CanvasSize size = {kWidth, kHeight};
    const PointPlaces places = PlacesOf(frame.problem.structure.points, size);
    DiagramLayout layout(size);
    EXPECT_EQ(AddLines(layout, frame.Scene(), places), 2u);
    EXPECT_EQ(AddLines(layout, frame.Show({}).Scene(), places), 3u);
}

// --- Forces

/// Directions and ends of the arrows of one text at B, in their order, and the labels.
TEST(RigidPicture, TheArrowsOfATextAtAPoint) {
    struct Arrow {
        double degrees;
        Color color;
    };
    struct Row {
        const char* text;
        std::vector<Arrow> arrows;
        Strings labels;
        bool leaves = true;
    };
    const Row rows[] = {
        {"v-60", {{270, kBlack}}, {"60"}},
        {"v-60:", {{270, kBlack}}, {"60"}, false},
        {"h25.12345", {{0, kBlack}}, {"25.123"}},
        {"p30x,40", {{30, kBlack}}, {"40"}},
        {"s30y,40:", {{120, kBlack}}, {"40"}, false},
        {"10<-160", {{200, kBlack}}, {"10"}},
        {"-3,4", {{DegreesOf({0, 0}, {-3, -4}), kBlack}}, {"5"}},
        {"1E+300<-90", {{270, kBlack}}, {"1E+300"}},
        {"vB", {{90, kRed}}, {"B"}},
        {"v-B", {{270, kRed}}, {"B"}},
        {"h2Bx", {{0, kRed}}, {"2 BX"}},
        {"t45x,T1", {{225, kRed}}, {"T1"}},
        {"Bx,By", {{0, kRed}, {90, kRed}}, {"BX", "BY"}},
        {"Bx,By:", {{0, kRed}, {90, kRed}}, {"BX", "BY"}, false},
        {"-Bx,-2By", {{180, kRed}, {270, kRed}}, {"BX", "2 BY"}},
        {"Bx,-40", {{0, kRed}, {270, kBlack}}, {"BX", "40"}},
        {"30.5,-By", {{0, kBlack}, {270, kRed}}, {"30.5", "BY"}},
        {"Bx,0", {{0, kRed}}, {"BX"}},
        {"0,-By", {{270, kRed}}, {"BY"}},
        {"hLARGA", {{0, kRed}}, {"LARGA"}},
        {"20<q", {{45, kRed}}, {"20"}},
        {"F<q", {{45, kRed}}, {"F"}},
        {"uq", {{45, kRed}}, {"1"}},
    };
    for (const Row& row : rows) {
        DrawnProblem beam = BeamWith(row.text);
        const Seen seen = beam.Draw();
        const Point b = beam.Place("B");
        ASSERT_EQ(seen.forces.size(), row.arrows.size()) << row.text;
        for (std::size_t i = 0; i < row.arrows.size(); ++i) {
            const SeenArrow& arrow = seen.forces[i];
            EXPECT_NEAR(arrow.Degrees(), row.arrows[i].degrees, 1e-6) << row.text;
            EXPECT_NEAR(arrow.Length(), kArrow, 1e-9) << row.text;
            EXPECT_NEAR(Distance(row.leaves ? arrow.tail : arrow.tip, b), 0, 1e-9) << row.text;
            EXPECT_EQ(arrow.color, row.arrows[i].color) << row.text;
            EXPECT_EQ(arrow.width, 2) << row.text;
            EXPECT_EQ(seen.text_colors[4 + i], row.arrows[i].color) << row.text;
        }
        Strings texts = {"X", "Y", "A", "B"};
        texts.insert(texts.end(), row.labels.begin(), row.labels.end());
        EXPECT_EQ(beam.picture.VisibleTexts(), texts) << row.text;
    }
}

TEST(RigidPicture, ANegativeMagnitudeTakesTheOppositeHour) {
    DrawnProblem beam = BeamWith("p30x,40");
    beam.problem.forces[0].force->magnitude = -40.0;
    const Seen seen = beam.Draw();
    EXPECT_NEAR(seen.forces.at(0).Degrees(), 210, 1e-6);
    EXPECT_EQ(seen.Text("40").text, "40");
}

TEST(RigidPicture, SolvedForcesAreMagenta) {
    DrawnProblem beam = BeamWith("vB/MB");
    beam.problem.forces[0].force->magnitude = 12.3456;
    beam.problem.forces[0].force->knowledge = notation::Knowledge::Found;
    beam.problem.forces[0].couple->value = -7.5;
    const Seen seen = beam.Draw();
    EXPECT_EQ(seen.forces.at(0).color, kMagenta);
    EXPECT_EQ(seen.couples.at(0).arc.color, kBlack);
    EXPECT_EQ(beam.picture.VisibleTexts(), (Strings{"X", "Y", "A", "B", "12.346", "7.5"}));
}

/// By has no value yet, but Bx has.
TEST(RigidPicture, AFoundComponentBesideAnUnknownOne) {
    DrawnProblem beam = BeamWith("Bx,By");
    beam.problem.forces[0].force->x.number = -8.0;
    const Seen seen = beam.Draw();
    ASSERT_EQ(seen.forces.size(), 2u);
    EXPECT_NEAR(seen.forces[0].Degrees(), 180, 1e-6);
    EXPECT_EQ(seen.forces[0].color, kMagenta);
    EXPECT_EQ(seen.forces[1].color, kRed);
    EXPECT_EQ(beam.picture.VisibleTexts(), (Strings{"X", "Y", "A", "B", "8", "BY"}));
}

TEST(RigidPicture, AnUnknownDirectionIsDrawnWhereTheUserWants) {
    DrawnProblem beam = BeamWith("20<q");
    beam.view.looks[0].asked_direction = 120;
    EXPECT_NEAR(beam.Draw().forces.at(0).Degrees(), 120, 1e-6);
}

TEST(RigidPicture, OnlyUnknownDirectionsAreAskedFor) {
    for (const char* text : {"v-20", "Bx,By", "hB", "p30x,F", "250", "MB", "hLARGA"})
        EXPECT_FALSE(NeedsDirection(BeamWith(text).problem.forces[0], {})) << text;
    for (const char* text : {"20<q", "F<q", "uq", "F<q:/30"})
        EXPECT_TRUE(NeedsDirection(BeamWith(text).problem.forces[0], {})) << text;
}

TEST(RigidPicture, BodiesOutOfViewDrawNothing) {
    DrawnProblem frame;
    frame.At("A", 0, 0).At("B", 5, 1).System(2, "AB").Force(1, "A", "Ax,Ay/MA").Force(2, "B", "v-40/30");
    EXPECT_TRUE(frame.Draw().forces.empty());
    const Seen seen = frame.Show({2}).Draw();
    ASSERT_EQ(seen.forces.size(), 1u);
    EXPECT_EQ(seen.couples.size(), 1u);
    EXPECT_NEAR(Distance(seen.forces[0].tail, frame.Place("B")), 0, 1e-9);
}

/// Also a load that arrives from above beside one that leaves upward.
TEST(RigidPicture, ArrowsOnOneLineStandBesideEachOther) {
    DrawnProblem beam = BeamWith("v-30");
    beam.Force(1, "B", "v-40").Force(1, "B", "v-50").Force(1, "B", "v20").Force(1, "B", "v-10:");
    const Seen seen = beam.Draw();
    ASSERT_EQ(seen.forces.size(), 5u);
    const auto is_above = [&](const SeenArrow& arrow) {
        return (arrow.tail.y + arrow.tip.y) / 2 < beam.Place("B").y;
    };
    for (std::size_t i = 0; i < seen.forces.size(); ++i)
        for (std::size_t k = i + 1; k < seen.forces.size(); ++k) {
            const SeenArrow& a = seen.forces[i];
            const SeenArrow& b = seen.forces[k];
            EXPECT_TRUE(is_above(a) != is_above(b) || std::abs(a.tip.x - b.tip.x) >= 7) << i << " and " << k;
        }
    EXPECT_EQ(seen.forces[0].tail.x, beam.Place("B").x);
}

TEST(RigidPicture, ArrowsOnOneObliqueLineStandBesideEachOther) {
    for (const char* text : {"p30x,10", "s45x,10", "10<-100"}) {
        DrawnProblem beam = BeamWith(text);
        beam.Force(1, "B", text);
        const Seen seen = beam.Draw();
        EXPECT_NEAR(Distance(seen.forces.at(0).tip, seen.forces.at(1).tip), 8, 1e-9) << text;
        EXPECT_NEAR(seen.forces[0].Degrees(), seen.forces[1].Degrees(), 1e-9) << text;
    }
}

TEST(RigidPicture, OppositeArrowsOfAPinStayOnIt) {
    DrawnProblem beam = BeamWith("Bx,By");
    beam.Force(1, "B", "-Bx,-By");
    for (const SeenArrow& arrow : beam.Draw().forces)
        EXPECT_NEAR(Distance(arrow.tail, beam.Place("B")), 0, 1e-9);
}

// --- Couples

TEST(RigidPicture, TheSenseOfACouple) {
    struct Row {
        const char* text;
        bool is_counterclockwise;
        Color color;
        const char* label;
    };
    const Row rows[] = {{"250", true, kBlack, "250"},      {"-250", false, kBlack, "250"},
                        {"0.00049", true, kBlack, "0"},    {"MA", true, kRed, "Ma"},
                        {"-MA", false, kRed, "Ma"},        {"-1.23456", false, kBlack, "1.235"},
                        {"MOMENTO", true, kRed, "MOMENTO"}};
    for (const Row& row : rows) {
        DrawnProblem beam = BeamWith(row.text);
        const Seen seen = beam.Draw();
        ASSERT_EQ(seen.couples.size(), 1u) << row.text;
        EXPECT_TRUE(seen.forces.empty()) << row.text;
        const SeenCouple& couple = seen.couples[0];
        EXPECT_NEAR(Distance({couple.arc.x, couple.arc.y}, beam.Place("B")), 0, 1e-9) << row.text;
        EXPECT_NEAR(couple.arc.radius, kCouple, 1e-9) << row.text;
        EXPECT_NEAR(couple.arc.end - couple.arc.start, 270, 1e-9) << row.text;
        EXPECT_EQ(couple.IsCounterclockwise(), row.is_counterclockwise) << row.text;
        EXPECT_EQ(couple.arc.color, row.color) << row.text;
        EXPECT_EQ(couple.head.color, row.color) << row.text;
        EXPECT_EQ(beam.picture.VisibleTexts(), (Strings{"X", "Y", "A", "B", row.label})) << row.text;
    }
}

/// The opening looks down while no line is near; a line through the head turns it.
TEST(RigidPicture, TheOpeningOfACoupleLooksDown) {
    const SeenCouple couple = BeamWith("250").Draw().couples.at(0);
    EXPECT_NEAR(couple.arc.start, -45, 1e-9);
    EXPECT_NEAR(couple.arc.end, 225, 1e-9);
    DrawnProblem turned = BeamWith("250");
    turned.Force(1, "B", "t55x,10");
    EXPECT_GT(std::abs(turned.Draw().couples.at(0).arc.end - 225), 1);
}

/// Across the radius, onward in the sense of the couple.
TEST(RigidPicture, TheHeadOfACoupleIsATangent) {
    for (const char* text : {"250", "-250", "Bx,By/-M"}) {
        DrawnProblem beam = BeamWith(text);
        const SeenCouple couple = beam.Draw().couples.at(0);
        const Point b = beam.Place("B");
        const double quarter = couple.IsCounterclockwise() ? 90 : -90;
        const double turn = couple.head.Degrees() - DegreesOf(b, couple.head.tail) - quarter;
        EXPECT_NEAR(std::remainder(turn, 360), 0, 1e-6) << text;
    }
}

TEST(RigidPicture, CouplesOfOnePointGrow) {
    DrawnProblem beam = BeamWith("250");
    beam.Force(1, "B", "-30").Force(1, "B", "v-10/MB").Force(1, "A", "40");
    const Seen seen = beam.Draw();
    ASSERT_EQ(seen.couples.size(), 4u);
    EXPECT_GE(seen.couples[1].arc.radius, seen.couples[0].arc.radius + 6);
    EXPECT_GE(seen.couples[2].arc.radius, seen.couples[1].arc.radius + 6);
    EXPECT_NEAR(seen.couples[3].arc.radius, kCouple, 1e-9);
}

TEST(RigidPicture, LettersStandOutsideTheCouplesOfTheirPoint) {
    DrawnProblem beam = BeamWith("250");
    beam.Force(1, "B", "-30").Force(1, "B", "MB");
    const Seen seen = beam.Draw();
    const Point b = beam.Place("B");
    for (const SeenText& text : seen.texts) {
        const double dx = std::max({text.left - b.x, b.x - text.right, 0.0});
        const double dy = std::max({text.top - b.y, b.y - text.bottom, 0.0});
        EXPECT_GE(std::hypot(dx, dy), seen.couples.at(2).arc.radius - 1) << text.text;
    }
}

/// C stands 13 pixels to the right of A, just outside the couple of A.
TEST(RigidPicture, ALetterBesideACoupleStaysOffItsArc) {
    DrawnProblem beam;
    beam.At("A", 0, 0).At("C", 0.05, 0).At("B", 1, 0).Force(1, "A", "250").Show({1});
    const Seen seen = beam.Draw();
    const window::ArcOp& arc = seen.couples.at(0).arc;
    const SeenText& letter = seen.Text("C");
    for (double degrees = arc.start; degrees <= arc.end; degrees += 2) {
        const double radians = degrees * std::acos(-1.0) / 180;
        EXPECT_FALSE(
            letter.Holds({arc.x + arc.radius * std::cos(radians), arc.y - arc.radius * std::sin(radians)}))
            << degrees;
    }
}

// --- Labels

/// Axes first, then points, then the labels row by row, the couple of a row last.
TEST(RigidPicture, TextsStandInTheOrderOfTheRows) {
    DrawnProblem beam;
    beam.At("A", 0, 0).At("C", 2, 0).At("B", 4, 0).Line(1, "ACB").Force(1, "A", "Ax,Ay/MA");
    beam.Force(1, "C", "-25").Force(1, "B", "v-100").Force(1, "C", "h7").Show({1}).Draw();
    EXPECT_EQ(beam.picture.VisibleTexts(),
              (Strings{"X", "Y", "A", "C", "B", "AX", "AY", "Ma", "25", "100", "7"}));
}

/// A label is read with its arrow: it stands within a few pixels of the free end.
TEST(RigidPicture, LabelsStandAtTheirArrows) {
    for (const char* text : {"v-60", "v-60:", "hB", "p30x,40", "t20y,40:"}) {
        DrawnProblem beam = BeamWith(text);
        const Seen seen = beam.Draw();
        const SeenArrow& arrow = seen.forces.at(0);
        const bool leaves = Distance(arrow.tail, beam.Place("B")) < 1e-6;
        const Point end = leaves ? arrow.tip : arrow.tail;
        const SeenText& label = seen.texts.back();
        const double dx = std::max({label.left - end.x, end.x - label.right, 0.0});
        const double dy = std::max({label.top - end.y, end.y - label.bottom, 0.0});
        EXPECT_LE(std::hypot(dx, dy), 12) << text;
    }
}

}  // namespace
}  // namespace tavrelo::tools::rigid
