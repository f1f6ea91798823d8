// Pictures of structures as they stand in a course, with all their bodies in view.

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>
#include <utility>
#include <vector>

#include "seen_picture.h"

namespace tavrelo::tools::rigid {
namespace {

using window::Point;

struct Textbook {
    const char* name;
    std::vector<std::tuple<const char*, double, double>> points;
    std::vector<std::pair<int, const char*>> systems;  // besides the whole
    std::vector<std::pair<int, const char*>> lines;
    std::vector<std::tuple<int, const char*, const char*>> forces;

    /// All bodies with forces are in view.
    DrawnProblem Posed() const {
        DrawnProblem problem;
        for (const auto& [letter, x, y] : points)
            problem.At(letter, x, y);
        for (const auto& [system, letters] : systems)
            problem.System(system, letters);
        for (const auto& [system, chain] : lines)
            problem.Line(system, chain);
        for (const auto& [body, point, text] : forces) {
            problem.Force(body, point, text);
            problem.view.Show(body, true);
        }
        return problem;
    }
};

/// Structures as they stand in a course.
const std::vector<Textbook> kTextbooks = {
    {"beam",
     {{"A", 0, 0}, {"C", 2, 0}, {"D", 4, 0}, {"E", 5, 0}, {"B", 6, 0}},
     {},
     {{1, "ACDEB"}},
     {{1, "A", "Ax,Ay"}, {1, "C", "v-60"}, {1, "D", "c60x,40"}, {1, "E", "v-15.5:"}, {1, "B", "vB"}}},
    {"cantilever",
     {{"A", 0, 0}, {"B", 2, 0}, {"C", 4, 0}},
     {},
     {{1, "ABC"}},
     {{1, "A", "Ax,Ay/MA"}, {1, "B", "v-20"}, {1, "C", "p30x,F/-250"}, {1, "B", "150"}}},
    {"arch",
     {{"A", 0, 0}, {"B", 1, 3}, {"C", 4, 5}, {"D", 7, 3}, {"E", 8, 0}},
     {{2, "ABC"}, {3, "CDE"}},
     {{2, "ABC"}, {3, "CDE"}},
     {{2, "A", "Ax,Ay"},
      {2, "B", "h20"},
      {2, "C", "Cx,Cy"},
      {3, "C", "-Cx,-Cy"},
      {3, "D", "v-50"},
      {3, "E", "Ex,Ey"}}},
    {"crane",
     {{"A", 0, 0}, {"B", 0, 3}, {"C", 0, 6}, {"D", 4, 6}},
     {{2, "ABC"}, {3, "BD"}},
     {{2, "ABC"}, {3, "BD"}},
     {{2, "A", "Ax,Ay/MA"},
      {2, "B", "Bx,By"},
      {2, "C", "hT"},
      {3, "B", "-Bx,-By"},
      {3, "D", "h-T"},
      {3, "D", "v-100"}}},
    {"truss joint",
     {{"A", 0, 0}, {"B", 4, 0}, {"C", 2, 3}, {"D", 6, 3}, {"E", 8, 0}},
     {},
     {{1, "ABEDCA"}, {1, "CBD"}},
     {{1, "B", "h-F1"}, {1, "B", "hF2"}, {1, "B", "s56.3x,F3"}, {1, "B", "p56.3x,F4"}, {1, "B", "v-1000"}}},
    {"frame of three bodies",
     {{"A", 0, 0}, {"B", 1, 2}, {"C", 2, 4}, {"D", 3, 2}, {"E", 4, 0}, {"F", 2, 2}},
     {{2, "ABC"}, {3, "CDE"}, {4, "BFD"}},
     {{2, "ABC"}, {3, "CDE"}, {4, "BFD"}},
     {{2, "A", "Ax,Ay"},
      {2, "B", "-Bx,-By"},
      {2, "C", "Cx,Cy"},
      {3, "C", "-Cx,-Cy"},
      {3, "D", "-Dx,-Dy"},
      {3, "E", "vE"},
      {4, "B", "Bx,By"},
      {4, "D", "Dx,Dy"},
      {4, "F", "v-60"}}},
    {"ladder",
     {{"A", -3, -4}, {"C", -1.5, -2}, {"B", 0, 0}},
     {},
     {{1, "ACB"}},
     {{1, "A", "0,N"}, {1, "A", "fr,0"}, {1, "B", "h-R"}, {1, "C", "v-200"}}},
    {"column",
     {{"A", 0, 0}, {"B", 0, 2}, {"C", 0, 4}, {"D", 0, 6}},
     {},
     {{1, "ABCD"}},
     {{1, "A", "Ax,Ay/MA"}, {1, "B", "h30:"}, {1, "C", "h-20:"}, {1, "D", "h10/40"}, {1, "D", "v-100"}}},
    {"portal",
     {{"A", 0, 0}, {"B", 0, 5}, {"C", 3, 5}, {"D", 3, 0}},
     {},
     {{1, "ABCD"}},
     {{1, "A", "Ax,Ay"}, {1, "D", "vD"}, {1, "C", "h-100"}, {1, "B", "45,-45/30"}}},
    {"bracket",
     {{"A", 0, 0}, {"B", 3, 0}, {"C", 3, -2}, {"D", -1, -2}},
     {},
     {{1, "ABCD"}},
     {{1, "A", "Ax,Ay"},
      {1, "C", "1234.567,-987.6"},
      {1, "D", "p45x,T1"},
      {1, "D", "h-2.5F"},
      {1, "B", "-M1"},
      {1, "B", "250"}}},
    {"row of loads",
     {{"A", 0, 0}, {"B", 1, 0}, {"C", 2, 0}, {"D", 3, 0}, {"E", 4, 0}, {"F", 5, 0}},
     {},
     {{1, "ABCDEF"}},
     {{1, "A", "Ax,Ay"},
      {1, "B", "v-80.25:"},
      {1, "C", "v-120.5"},
      {1, "D", "v-80.25:"},
      {1, "E", "v-120.5"},
      {1, "E", "-500"},
      {1, "F", "0,Fy"}}},
    {"loads on one point",
     {{"A", 0, 0}, {"C", 2.5, 0}, {"B", 5, 0}},
     {},
     {{1, "ACB"}},
     {{1, "A", "F<q"},
      {1, "A", "hA"},
      {1, "B", "20<a:"},
      {1, "C", "v-30"},
      {1, "C", "v-40"},
      {1, "C", "v-55:"},
      {1, "C", "v20"}}},
};

TEST(RigidLabels, TextbooksStayOnTheCanvas) {
    for (const Textbook& book : kTextbooks) {
        const Seen seen = book.Posed().Draw();
        const auto inside = [](double x, double y) {
            return x >= 0 && x <= kWidth && y >= 0 && y <= kHeight;
        };
        for (const auto* arrows : {&seen.axes, &seen.forces})
            for (const SeenArrow& arrow : *arrows) {
                EXPECT_TRUE(inside(arrow.tail.x, arrow.tail.y)) << book.name;
                EXPECT_TRUE(inside(arrow.tip.x, arrow.tip.y)) << book.name;
            }
        for (const SeenCouple& couple : seen.couples) {
            EXPECT_TRUE(inside(couple.arc.x - couple.arc.radius, couple.arc.y - couple.arc.radius))
                << book.name;
            EXPECT_TRUE(inside(couple.arc.x + couple.arc.radius, couple.arc.y + couple.arc.radius))
                << book.name;
        }
        for (const SeenText& text : seen.texts) {
            EXPECT_TRUE(inside(text.left, text.top)) << book.name << ": " << text.text;
            EXPECT_TRUE(inside(text.right, text.bottom)) << book.name << ": " << text.text;
        }
    }
}

TEST(RigidLabels, LabelsOfTextbooksDoNotMeet) {
    for (const Textbook& book : kTextbooks) {
        const Seen seen = book.Posed().Draw();
        for (std::size_t i = 0; i < seen.texts.size(); ++i)
            for (std::size_t k = i + 1; k < seen.texts.size(); ++k)
                EXPECT_FALSE(seen.texts[i].Meets(seen.texts[k]))
                    << book.name << ": " << seen.texts[i].text << " and " << seen.texts[k].text;
    }
}

/// Lines, shafts, arcs and dots are walked in small steps.
TEST(RigidLabels, NothingRunsThroughTheLabelsOfTextbooks) {
    constexpr int kSteps = 400;
    for (const Textbook& book : kTextbooks) {
        const Seen seen = book.Posed().Draw();
        std::vector<Point> ink;
        const auto walk = [&](Point from, Point to) {
            for (int i = 0; i <= kSteps; ++i)
                ink.push_back({from.x + (to.x - from.x) * i / kSteps, from.y + (to.y - from.y) * i / kSteps});
        };
        for (const window::LineOp& line : seen.lines)
            walk({line.x1, line.y1}, {line.x2, line.y2});
        for (const SeenArrow& arrow : seen.forces)
            walk(arrow.tail, arrow.tip);
        for (const window::CircleOp& dot : seen.dots)
            ink.push_back({dot.x, dot.y});
        for (const SeenCouple& couple : seen.couples) {
            walk(couple.head.tail, couple.head.tip);
            for (int i = 0; i <= kSteps; ++i) {
                const double degrees = couple.arc.start + 270.0 * i / kSteps;
                const double radians = degrees * std::acos(-1.0) / 180;
                ink.push_back({couple.arc.x + couple.arc.radius * std::cos(radians),
                               couple.arc.y - couple.arc.radius * std::sin(radians)});
            }
        }
        for (const SeenText& text : seen.texts)
            for (const Point point : ink)
                if (text.Holds(point)) {
                    ADD_FAILURE() << book.name << ": " << text.text << " at " << point.x << ", " << point.y;
                    break;
                }
    }
}

}  // namespace
}  // namespace tavrelo::tools::rigid
