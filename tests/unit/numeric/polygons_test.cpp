#include "numeric/polygons.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "../failure_code.h"

namespace tavrelo::numeric {
namespace {

using testing::FailureOf;
using Vertices = std::vector<Point>;

constexpr double kTolerance = 1e-9;

void ExpectList(const std::vector<double>& found, const std::vector<double>& expected) {
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < found.size(); ++i)
        EXPECT_NEAR(found[i], expected[i], kTolerance) << i + 1;
}

TEST(SolvePolygon, ARectangleInBothSenses) {
    for (const Vertices& vertices :
         {Vertices{{0, 0}, {4, 0}, {4, 3}, {0, 3}}, Vertices{{4, 3}, {4, 0}, {0, 0}, {0, 3}}}) {
        const Polygon polygon = SolvePolygon(vertices);
        ExpectList(polygon.angles, {90, 90, 90, 90});
        EXPECT_NEAR(polygon.perimeter, 14, kTolerance);
        EXPECT_NEAR(polygon.area, 12, kTolerance);
        EXPECT_NEAR(polygon.angle_total, 360, kTolerance);
        EXPECT_NEAR(polygon.centroid.x, 2, kTolerance);
        EXPECT_NEAR(polygon.centroid.y, 1.5, kTolerance);
    }
    ExpectList(SolvePolygon(Vertices{{0, 0}, {4, 0}, {4, 3}, {0, 3}}).sides, {4, 3, 4, 3});
}

TEST(SolvePolygon, AnAngleSectionIsConcave) {
    // An L of two rectangles, 4 x 1 and 1 x 2 upon its left end; centroid by composite areas.
    Vertices vertices = {{0, 0}, {4, 0}, {4, 1}, {1, 1}, {1, 3}, {0, 3}};
    for (int sense = 0; sense < 2; ++sense) {
        const Polygon polygon = SolvePolygon(vertices);
        EXPECT_NEAR(polygon.area, 6, kTolerance);
        EXPECT_NEAR(polygon.centroid.x, (4 * 2 + 2 * 0.5) / 6, kTolerance);
        EXPECT_NEAR(polygon.centroid.y, (4 * 0.5 + 2 * 2.0) / 6, kTolerance);
        EXPECT_NEAR(polygon.angle_total, 720, kTolerance);  // (6 - 2) 180
        EXPECT_NEAR(*std::max_element(polygon.angles.begin(), polygon.angles.end()), 270, kTolerance);
        std::reverse(vertices.begin(), vertices.end());
    }
    ExpectList(SolvePolygon(vertices).angles, {90, 90, 90, 270, 90, 90});
}

TEST(SolvePolygon, ARegularHexagonFarFromTheOrigin) {
    Vertices vertices;
    for (int i = 0; i < 6; ++i) {
        const double turn = std::numbers::pi / 3 * i + 0.2;
        vertices.push_back({1000 + 2 * std::cos(turn), -500 + 2 * std::sin(turn)});
    }
    const Polygon polygon = SolvePolygon(vertices);
    ExpectList(polygon.sides, {2, 2, 2, 2, 2, 2});
    ExpectList(polygon.angles, {120, 120, 120, 120, 120, 120});
    EXPECT_NEAR(polygon.area, 6 * std::sqrt(3.0), kTolerance);
    EXPECT_NEAR(polygon.centroid.x, 1000, kTolerance);
    EXPECT_NEAR(polygon.centroid.y, -500, kTolerance);
}

TEST(SolvePolygon, OfATriangleTheCentroidIsTheMeanOfTheVertices) {
    const Polygon polygon = SolvePolygon(Vertices{{1, 2}, {7, 3}, {-2, 10}});
    EXPECT_NEAR(polygon.centroid.x, 2, kTolerance);
    EXPECT_NEAR(polygon.centroid.y, 5, kTolerance);
    EXPECT_NEAR(polygon.angle_total, 180, kTolerance);
    EXPECT_NEAR(polygon.area, 0.5 * (6 * 8 + 3 * 1), kTolerance);  // half the cross product from (1, 2)
}

TEST(SolvePolygon, WithoutAnAreaFails) {
    for (const Vertices& vertices :
         {Vertices{}, Vertices{{1, 1}}, Vertices{{0, 0}, {3, 4}}, Vertices{{0, 0}, {1, 1}, {2, 2}},
          Vertices{{0.1, 0.3}, {0.2, 0.6}, {0.7, 2.1}, {0.3, 0.9}}, Vertices{{0, 0}, {2, 2}, {2, 0}, {0, 2}}})
        EXPECT_EQ(FailureOf([&] { SolvePolygon(vertices); }), FailureCode::DivisionByZero);
    EXPECT_EQ(FailureOf([] {
                  SolvePolygon(Vertices{{0, 0}, {1e200, 0}, {0, 1e200}});
              }),
              FailureCode::Overflow);
}

}  // namespace
}  // namespace tavrelo::numeric
