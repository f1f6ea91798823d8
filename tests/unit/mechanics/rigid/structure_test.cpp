#include "mechanics/rigid/structure.h"

#include <gtest/gtest.h>

#include "numeric/checked.h"

namespace tavrelo::mechanics::rigid {
namespace {

using Lines = std::vector<std::string>;

constexpr int kDecimals = 3;
constexpr double kTolerance = 1e-12;

SegRow Seg(const std::string& pair, double dx, double dy) {
    return {pair.substr(0, 1), pair.substr(1), dx, dy};
}

PointTable CoordsOf(const SegTable& segments) { return std::get<PointTable>(ComputeCoords(segments)); }

std::string RefusalOf(const SegTable& segments) {
    return std::get<text::Refusal>(ComputeCoords(segments)).text;
}

struct Expected {
    std::string name;
    double x;
    double y;
};

void ExpectPoints(const PointTable& points, const std::vector<Expected>& expected) {
    ASSERT_EQ(points.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(points[i].name, expected[i].name) << i;
        EXPECT_NEAR(points[i].x, expected[i].x, kTolerance) << expected[i].name;
        EXPECT_NEAR(points[i].y, expected[i].y, kTolerance) << expected[i].name;
    }
}

TEST(PointIndex, CountsFromOneAndIsZeroForAStranger) {
    const PointTable points = CoordsOf({Seg("AB", 4, 0), Seg("BC", 0, 3)});
    EXPECT_EQ(PointIndex(points, "A"), 1u);
    EXPECT_EQ(PointIndex(points, "C"), 3u);
    EXPECT_EQ(PointIndex(points, "c"), 0u);
    EXPECT_EQ(PointIndex(points, "D"), 0u);
    EXPECT_EQ(PointIndex(points, ""), 0u);
    EXPECT_EQ(PointIndex({}, "A"), 0u);
}

TEST(FindPoint, IsNullForAStranger) {
    const PointTable points = CoordsOf({Seg("AB", 4, 0)});
    ASSERT_NE(FindPoint(points, "B"), nullptr);
    EXPECT_EQ(FindPoint(points, "B"), &points[1]);
    EXPECT_EQ(FindPoint(points, "C"), nullptr);
}

TEST(LettersOf, CutsATextByCharacters) {
    EXPECT_EQ(LettersOf("AÑBA"), (Lines{"A", "Ñ", "B", "A"}));
    EXPECT_TRUE(LettersOf("").empty());
}

TEST(LettersOf, TakesStartAndEndOfEachVectorOnce) {
    EXPECT_EQ(LettersOf(SegTable{Seg("BA", 1, 0), Seg("DC", 1, 0), Seg("CB", 1, 0)}),
              (Lines{"B", "A", "D", "C"}));
    EXPECT_TRUE(LettersOf(SegTable{}).empty());
}

TEST(HasRepeated, FindsACharacterThatOccursTwice) {
    EXPECT_TRUE(HasRepeated("ABCA"));
    EXPECT_TRUE(HasRepeated("ÑÑ"));
    EXPECT_FALSE(HasRepeated("ABC"));
    EXPECT_FALSE(HasRepeated("ÑÁ"));  // two letters that begin with the same byte
    EXPECT_FALSE(HasRepeated("Aa"));
    EXPECT_FALSE(HasRepeated(""));
}

TEST(ComputeCoords, AddsAVectorFromItsStartAndSubtractsItFromItsEnd) {
    // C lies on top of B, and D is where the vector to C begins: (4, 3) - (1, 1)
    ExpectPoints(CoordsOf({Seg("AB", 4, 0), Seg("BC", 0, 3), Seg("DC", 1, 1)}),
                 {{"A", 0, 0}, {"B", 4, 0}, {"C", 4, 3}, {"D", 3, 2}});
}

TEST(ComputeCoords, WalksThePointsInOrderAndTheVectorsForEach) {
    // both vectors of A come before the one of B, and after each find the walk begins again
    ExpectPoints(CoordsOf({Seg("AB", 4, 0), Seg("BC", 0, 3), Seg("AD", 0, 5)}),
                 {{"A", 0, 0}, {"B", 4, 0}, {"D", 0, 5}, {"C", 4, 3}});
    ExpectPoints(CoordsOf({Seg("AB", 1, 0), Seg("CD", 1, 0), Seg("BC", 1, 0)}),
                 {{"A", 0, 0}, {"B", 1, 0}, {"C", 2, 0}, {"D", 3, 0}});
}

TEST(ComputeCoords, PassesOverAVectorBetweenKnownPoints) {
    ExpectPoints(CoordsOf({Seg("AB", 4, 0), Seg("BC", 100, 100), Seg("AC", 4, 3)}),
                 {{"A", 0, 0}, {"B", 4, 0}, {"C", 4, 3}});
}

TEST(ComputeCoords, FindsTheLastPointOfALoopFromTheFirstOne) {
    // C is reached backwards from A before the vector of B comes to its turn
    ExpectPoints(CoordsOf({Seg("AB", 4, 0), Seg("BC", 100, 100), Seg("CA", -4, -3)}),
                 {{"A", 0, 0}, {"B", 4, 0}, {"C", 4, 3}});
}

TEST(ComputeCoords, LeavesOutPointsThatNothingJoinsToTheFirst) {
    ExpectPoints(CoordsOf({Seg("AB", 4, 0), Seg("CD", 1, 0)}), {{"A", 0, 0}, {"B", 4, 0}});
}

TEST(ComputeCoords, GivesNoPointsWithoutVectors) { EXPECT_TRUE(CoordsOf({}).empty()); }

TEST(ComputeCoords, RefusesAPointOnAnother) {
    EXPECT_EQ(RefusalOf({Seg("AB", 4, 0), Seg("BC", -4, 0)}), "El punto C coincidiría con A");
    EXPECT_EQ(RefusalOf({Seg("AB", 4, 0), Seg("CB", 0, 0)}), "El punto C coincidiría con B");
    EXPECT_EQ(RefusalOf({Seg("AB", 0, 0)}), "El punto B coincidiría con A");
    // D is found before C, because A comes before B
    EXPECT_EQ(RefusalOf({Seg("AB", 1, 0), Seg("BC", -1, 0), Seg("AD", 1, 0)}),
              "El punto D coincidiría con B");
}

TEST(ComputeCoords, TakesPointsCloserThanTheToleranceInBothDirectionsForOne) {
    EXPECT_EQ(RefusalOf({Seg("AB", 4, 0), Seg("AC", 4.00000005, -0.00000005)}),
              "El punto C coincidiría con B");
    EXPECT_EQ(CoordsOf({Seg("AB", 4, 0), Seg("AC", 4.0000002, 0)}).size(), 3u);
    EXPECT_EQ(CoordsOf({Seg("AB", 4, 0), Seg("AC", 4, 0.0000002)}).size(), 3u);
}

TEST(ComputeCoords, FailsPastTheRangeOfNumbers) {
    SegTable segments = {Seg("AB", 1.7e308, 0), Seg("BC", 1.7e308, 0)};
    EXPECT_THROW(ComputeCoords(segments), numeric::RuntimeFailure);
}

TEST(SeenFrom, KeepsTheFigure) {
    const PointTable points = CoordsOf({Seg("AB", 4, 0), Seg("BC", 0, 3)});
    const auto seen_from_c = std::get<PointTable>(SeenFrom(points, "C"));
    ExpectPoints(seen_from_c, {{"A", -4, -3}, {"B", 0, -3}, {"C", 0, 0}});
    ExpectPoints(std::get<PointTable>(SeenFrom(seen_from_c, "A")), {{"A", 0, 0}, {"B", 4, 0}, {"C", 4, 3}});
}

TEST(SeenFrom, RefusesAPointWithoutCoordinates) {
    const PointTable points = CoordsOf({Seg("AB", 4, 0)});
    const auto refusal = [&](const char* origin) {
        return std::get<text::Refusal>(SeenFrom(points, origin)).text;
    };
    EXPECT_EQ(refusal("Z"), "No conozco las coordenadas del punto Z");
    EXPECT_EQ(refusal(""), "No conozco las coordenadas del punto ");
}

TEST(SeenFrom, FailsPastTheRangeOfNumbers) {
    const PointTable points = {{"A", 0, 0}, {"B", 1.7e308, 0}, {"C", -1.7e308, 0}};
    EXPECT_THROW(SeenFrom(points, "B"), numeric::RuntimeFailure);
}

TEST(CoordLines, ShowsEachLetterOnceKnownOrNot) {
    const SegTable segments = {Seg("BA", 1.23456, 0), Seg("CD", 1, 0)};
    EXPECT_EQ(CoordLines(segments, CoordsOf(segments), kDecimals),
              (Lines{"B = (0, 0)", "A = (1.235, 0)", "C(?, ?)", "D(?, ?)"}));
    EXPECT_EQ(CoordLines(segments, CoordsOf(segments), 0)[1], "A = (1, 0)");
    EXPECT_TRUE(CoordLines({}, {}, kDecimals).empty());
}

TEST(CoordLines, NeverShowsANegativeZero) {
    const SegTable segments = {Seg("AB", -1e-16, -0.0), Seg("AC", -0.0004, 5)};
    const PointTable points = {{"A", -0.0, 0}, {"B", -1e-16, -0.0}, {"C", -0.0004, 5}};
    EXPECT_EQ(CoordLines(segments, points, kDecimals), (Lines{"A = (0, 0)", "B = (0, 0)", "C = (0, 5)"}));
    EXPECT_EQ(SepLines(segments, kDecimals), (Lines{"AB = (0, 0)", "AC = (0, 5)"}));
}

TEST(SepLines, ShowsEveryVectorWithItsPair) {
    EXPECT_EQ(SepLines({Seg("AB", 4, 0), Seg("CB", -2.0 / 3, 1.5)}, kDecimals),
              (Lines{"AB = (4, 0)", "CB = (-0.667, 1.5)"}));
}

}  // namespace
}  // namespace tavrelo::mechanics::rigid
