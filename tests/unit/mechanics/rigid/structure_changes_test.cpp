#include "mechanics/rigid/structure_changes.h"

#include <gtest/gtest.h>

#include "numeric/checked.h"

namespace tavrelo::mechanics::rigid {
namespace {

constexpr int kDecimals = 3;

Structure With(const Structure& structure, const std::string& chain, const std::string& vector,
               const std::vector<std::string>& texts = {}) {
    return std::get<Structure>(Extended(structure, {chain, vector, "M", texts}, kDecimals));
}

TEST(Extended, BeginsAtTheFirstPointAndKeepsTheOriginInForce) {
    const Structure first = With({}, "AB", "h4");
    EXPECT_EQ(first.origin, "A");
    Structure seen_from_b = first;
    seen_from_b.origin = "B";
    seen_from_b.points = std::get<PointTable>(SeenFrom(seen_from_b.points, "B"));
    const Structure longer = With(seen_from_b, "AC", "v3");
    EXPECT_EQ(longer.origin, "B");
    EXPECT_EQ(FindPoint(longer.points, "A")->x, -4);
    EXPECT_EQ(FindPoint(longer.points, "C")->x, -4);
    EXPECT_EQ(FindPoint(longer.points, "C")->y, 3);
}

TEST(Extended, RefusesPointsThatCoincideByTheVector) {
    const Structure first = With({}, "AB", "h4");
    const auto outcome = Extended(first, {"AC", "h4", "", {}}, kDecimals);
    EXPECT_EQ(std::get<ChainRefusal>(outcome).refusal, text::Refusal{"El punto C coincidiría con B"});
    EXPECT_EQ(std::get<ChainRefusal>(outcome).field, ChainField::Vector);
}

TEST(Extended, FailsOnAPointPastTheRange) {
    Structure structure = With({}, "AB", "h1E308");
    EXPECT_THROW(Extended(structure, {"BC", "h1E308", "", {}}, kDecimals), numeric::RuntimeFailure);
}

TEST(Shortened, TakesTheLastVectorAndALostOriginWithIt) {
    Structure structure = With(With({}, "AB", "h4"), "BC", "v3");
    structure.origin = "C";
    structure.points = std::get<PointTable>(SeenFrom(structure.points, "C"));
    const Structure shorter = Shortened(structure);
    EXPECT_EQ(shorter.segments.size(), 1u);
    EXPECT_EQ(shorter.origin, "A");
    EXPECT_EQ(FindPoint(shorter.points, "B")->x, 4);
    EXPECT_TRUE(Shortened(shorter).segments.empty());
}

// D is found from A by the vector DA; without that vector it would be C + (0, 5), where E is.
TEST(Shortened, TakesMoreWherePointsWouldCoincide) {
    Structure structure = With(With({}, "AB", "h4"), "BCE", "v3", {"5"});
    structure = With(structure, "CDA", "v5", {"9"});
    ASSERT_EQ(structure.segments.size(), 5u);
    EXPECT_EQ(FindPoint(structure.points, "D")->y, -9);
    const Structure shorter = Shortened(structure);
    EXPECT_EQ(shorter.segments.size(), 3u);
    EXPECT_EQ(PointIndex(shorter.points, "D"), 0u);
}

}  // namespace
}  // namespace tavrelo::mechanics::rigid
