#include "numeric/triangles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "../failure_code.h"

namespace tavrelo::numeric {
namespace {

using testing::FailureOf;

constexpr auto kUnknown = std::nullopt;
constexpr double kTolerance = 1e-9;
constexpr double kRadians = std::numbers::pi / 180;

// Sides 5, 6, 7; angles by the law of cosines.
const Triangle kScalene = {{5, 6, 7}, {44.415308597192976, 57.12165043562251, 78.46304096718453}};

void ExpectTriangle(const Triangle& found, const Triangle& expected) {
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(found.sides[i], expected.sides[i], kTolerance) << "side " << i + 1;
        EXPECT_NEAR(found.angles[i], expected.angles[i], kTolerance) << "angle " << i + 1;
    }
}

void ExpectOne(const TriangleData& data, const Triangle& expected) {
    const auto result = SolveTriangle(data);
    ASSERT_TRUE(std::holds_alternative<TriangleSolutions>(result));
    ExpectTriangle(std::get<TriangleSolutions>(result).first, expected);
    EXPECT_FALSE(std::get<TriangleSolutions>(result).second);
}

void ExpectTwo(const TriangleData& data, const Triangle& first, const Triangle& second) {
    const auto result = SolveTriangle(data);
    ASSERT_TRUE(std::holds_alternative<TriangleSolutions>(result));
    ExpectTriangle(std::get<TriangleSolutions>(result).first, first);
    ASSERT_TRUE(std::get<TriangleSolutions>(result).second);
    ExpectTriangle(*std::get<TriangleSolutions>(result).second, second);
}

void ExpectRefused(const TriangleData& data, TriangleRefusal refusal) {
    const auto result = SolveTriangle(data);
    ASSERT_TRUE(std::holds_alternative<TriangleRefusal>(result));
    EXPECT_EQ(std::get<TriangleRefusal>(result), refusal);
}

/// The data of `triangle` that the mask names: weights 1, 2, 4, ... for L1, A1, L2, ...
TriangleData Masked(const Triangle& triangle, unsigned mask) {
    TriangleData data;
    for (std::size_t i = 0; i < data.size(); ++i)
        if (mask >> i & 1u)
            data[i] = i % 2 == 0 ? triangle.sides[i / 2] : triangle.angles[i / 2];
    return data;
}

TEST(SolveTriangle, EveryChoiceOfDataThatDeterminesOneTriangleGivesIt) {
    // Two sides and an opposite angle are among them where the angle lies opposite the longer side.
    for (const unsigned mask :
         {22u, 25u, 37u, 26u, 38u, 41u, 11u, 14u, 35u, 44u, 50u, 56u, 21u, 13u, 49u, 52u}) {
        SCOPED_TRACE(mask);
        ExpectOne(Masked(kScalene, mask), kScalene);
    }
}

TEST(SolveTriangle, TwoSidesAndTheAngleOppositeTheShorterOneGiveTwo) {
    for (const unsigned mask : {7u, 19u, 28u}) {
        SCOPED_TRACE(mask);
        const auto result = SolveTriangle(Masked(kScalene, mask));
        ASSERT_TRUE(std::holds_alternative<TriangleSolutions>(result));
        const TriangleSolutions& solutions = std::get<TriangleSolutions>(result);
        ExpectTriangle(solutions.first, kScalene);  // all its angles are acute
        ASSERT_TRUE(solutions.second);
        const Triangle& other = *solutions.second;
        EXPECT_NEAR(other.angles[0] + other.angles[1] + other.angles[2], 180, kTolerance);
        const double ratio = other.sides[0] / std::sin(other.angles[0] * kRadians);
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_NEAR(other.sides[i] / std::sin(other.angles[i] * kRadians), ratio, kTolerance);
            if (mask >> (2 * i) & 1u) {
                EXPECT_EQ(other.sides[i], kScalene.sides[i]);
            }
            if (mask >> (2 * i + 1) & 1u) {
                EXPECT_EQ(other.angles[i], kScalene.angles[i]);
            }
        }
    }
}

TEST(SolveTriangle, BothTrianglesOfAnAmbiguousCase) {
    // Sides 10 and 6, 30 degrees opposite the 6: the third side is 5 sqrt 3 +- sqrt 11.
    const double acute = std::asin(10.0 / 6 * 0.5) / kRadians;
    const double far = 5 * std::sqrt(3.0) + std::sqrt(11.0);
    const double near = 5 * std::sqrt(3.0) - std::sqrt(11.0);
    ExpectTwo({10, kUnknown, 6, 30, kUnknown, kUnknown}, {{10, 6, far}, {acute, 30, 150 - acute}},
              {{10, 6, near}, {180 - acute, 30, acute - 30}});
    ExpectTwo({kUnknown, kUnknown, 10, kUnknown, 6, 30}, {{far, 10, 6}, {150 - acute, acute, 30}},
              {{near, 10, 6}, {acute - 30, 180 - acute, 30}});
}

TEST(SolveTriangle, RightObtuseAndIsoscelesCases) {
    const double root3 = std::sqrt(3.0);
    const double angle = std::asin(0.6) / kRadians;
    // A right angle found and given.
    ExpectOne({5, 30, 10, kUnknown, kUnknown, kUnknown}, {{5, 10, 5 * root3}, {30, 90, 60}});
    ExpectOne({3, kUnknown, 5, 90, kUnknown, kUnknown}, {{3, 5, 4}, {angle, 90, 90 - angle}});
    ExpectOne({3, kUnknown, 4, kUnknown, kUnknown, 90}, {{3, 4, 5}, {angle, 90 - angle, 90}});
    // Isosceles: both angles at the base, and an equilateral triangle.
    ExpectOne({2, 30, 2, kUnknown, kUnknown, kUnknown}, {{2, 2, 2 * root3}, {30, 30, 120}});
    ExpectOne({2, 60, kUnknown, kUnknown, 2, kUnknown}, {{2, 2, 2}, {60, 60, 60}});
    // Sides 4 and 9 and 120 degrees opposite the 9: c^2 + 4 c + 16 = 81, c = sqrt 69 - 2.
    const double opposite4 = std::asin(4.0 / 9 * root3 / 2) / kRadians;
    ExpectOne({kUnknown, kUnknown, 4, kUnknown, 9, 120},
              {{std::sqrt(69.0) - 2, 4, 9}, {60 - opposite4, opposite4, 120}});
    ExpectOne({3, kUnknown, 4, kUnknown, 5, kUnknown}, {{3, 4, 5}, {angle, 90 - angle, 90}});
    ExpectOne({kUnknown, 30, 2, kUnknown, kUnknown, 120}, {{2, 2, 2 * root3}, {30, 30, 120}});
    ExpectOne({6, kUnknown, 6, kUnknown, kUnknown, 60}, {{6, 6, 6}, {60, 60, 60}});
}

TEST(SolveTriangle, RefusesWhatIsNoTriangle) {
    using enum TriangleRefusal;
    const auto x = kUnknown;
    const std::pair<TriangleData, TriangleRefusal> rows[] = {
        {{x, 60, x, 60, x, 60}, ThreeAngles},
        {{x, 200, x, -60, x, 60}, ThreeAngles},
        {{x, x, x, x, x, x}, NotThreeData},
        {{3, x, 4, x, x, x}, NotThreeData},
        {{3, 30, 4, 40, x, x}, NotThreeData},
        {{3, 40, 4, 50, 5, 90}, NotThreeData},
        {{3, x, 4, x, x, 180}, AngleTooLarge},
        {{3, 181, 4, x, x, x}, AngleTooLarge},
        {{3, x, 4, x, x, 0}, Inconsistent},
        {{3, x, 4, x, x, -30}, Inconsistent},
        {{-3, x, 4, x, x, 30}, Inconsistent},
        {{0, x, 4, x, 5, x}, Inconsistent},
        {{x, -10, x, 50, 5, x}, Inconsistent},
        {{10, x, 4, 30, x, x}, Inconsistent},  // 4 does not reach down from 10 at 30 degrees
        {{5, x, 5, 90, x, x}, Inconsistent},   // the hypotenuse must exceed the other side
        {{5, x, 4, 90, x, x}, Inconsistent},
        {{5, x, 5, 100, x, x}, Inconsistent},
        {{9, x, 4, 120, x, x}, Inconsistent},
        {{x, 90, x, 90, 5, x}, Inconsistent},  // angles of exactly 180 degrees
        {{5, 100, x, 90, x, x}, Inconsistent},
        {{1, x, 2, x, 3, x}, NoTriangle},
        {{8, x, 2, x, 3, x}, NoTriangle},
    };
    for (const auto& [data, refusal] : rows) {
        SCOPED_TRACE(TextOf(refusal));
        ExpectRefused(data, refusal);
    }
}

TEST(SolveTriangle, TooThinForADoubleItTakesTheEndValuesOfTheArccosine) {
    // The cosine opposite the tiny side rounds to 1.
    const auto result = SolveTriangle(TriangleData{1, kUnknown, 1, kUnknown, 1e-9, kUnknown});
    ASSERT_TRUE(std::holds_alternative<TriangleSolutions>(result));
    EXPECT_EQ(std::get<TriangleSolutions>(result).first.angles[2], 180);
}

TEST(SolveTriangle, PastTheRangeFails) {
    EXPECT_EQ(FailureOf([] {
                  SolveTriangle(TriangleData{1e200, kUnknown, 1e200, kUnknown, 1e200, kUnknown});
              }),
              FailureCode::Overflow);
}

TEST(SolveTriangle, OfItsVertices) {
    const auto result = SolveTriangle(std::array<Point, 3>{Point{0, 0}, {4, 0}, {0, 3}});
    ASSERT_TRUE(std::holds_alternative<VertexTriangle>(result));
    const VertexTriangle& found = std::get<VertexTriangle>(result);
    const double angle = std::asin(0.6) / kRadians;
    ExpectTriangle(found.triangle, {{5, 3, 4}, {90, angle, 90 - angle}});
    EXPECT_NEAR(found.centroid.x, 4.0 / 3, 1e-15);
    EXPECT_NEAR(found.centroid.y, 1, 1e-15);
}

TEST(SolveTriangle, RefusesVerticesInOneLine) {
    for (const std::array<Point, 3>& vertices : {std::array<Point, 3>{Point{0, 0}, {1, 1}, {3, 3}},
                                                 {Point{1, 2}, {1, 2}, {5, 0}},
                                                 {Point{0, 0}, {1, 0}, {0, 1e-6}}}) {
        const auto result = SolveTriangle(vertices);
        ASSERT_TRUE(std::holds_alternative<TriangleRefusal>(result));
        EXPECT_EQ(std::get<TriangleRefusal>(result), TriangleRefusal::Collinear);
    }
    EXPECT_TRUE(std::holds_alternative<VertexTriangle>(
        SolveTriangle(std::array<Point, 3>{Point{0, 0}, {1, 0}, {0, 2e-6}})));
}

TEST(Triangle, PerimeterAndArea) {
    const double angle = std::asin(0.6) / kRadians;
    const Triangle right = {{3, 4, 5}, {angle, 90 - angle, 90}};
    EXPECT_NEAR(PerimeterOf(right), 12, 1e-14);
    EXPECT_NEAR(AreaOf(right), 6, 1e-12);
    EXPECT_NEAR(PerimeterOf(kScalene), 18, 1e-14);
    EXPECT_NEAR(AreaOf(kScalene), std::sqrt(9.0 * 4 * 3 * 2), 1e-9);  // Heron
}

TEST(Triangle, IsPlacedWithItsFirstSideLevel) {
    const auto [p, q, r] = PlaceTriangle(kScalene);
    EXPECT_EQ(q, (Point{0, 0}));
    EXPECT_EQ(r, (Point{5, 0}));
    EXPECT_NEAR(std::hypot(p.x - q.x, p.y - q.y), 7, 1e-12);
    EXPECT_NEAR(std::hypot(p.x - r.x, p.y - r.y), 6, 1e-9);
    EXPECT_GT(p.y, 0);
}

TEST(TriangleRefusal, HasItsMessage) {
    EXPECT_EQ(TextOf(TriangleRefusal::ThreeAngles), "Estás especificando 3 ángulos.");
    EXPECT_EQ(TextOf(TriangleRefusal::NotThreeData), "Deben ser exactamente 3 argumentos. ");
    EXPECT_EQ(TextOf(TriangleRefusal::AngleTooLarge), "Ángulo mayor de 180°.");
    EXPECT_EQ(TextOf(TriangleRefusal::Inconsistent), "Los datos son inconsistentes.");
    EXPECT_EQ(TextOf(TriangleRefusal::NoTriangle), "No forman un triángulo.");
    EXPECT_EQ(TextOf(TriangleRefusal::Collinear), "Los puntos dados están en una misma línea recta.");
}

}  // namespace
}  // namespace tavrelo::numeric
