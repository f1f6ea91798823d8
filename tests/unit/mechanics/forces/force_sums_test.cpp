#include "mechanics/forces/force_sums.h"

#include <gtest/gtest.h>

#include <cmath>

#include "../../failure_code.h"
#include "force_lists.h"

namespace tavrelo::mechanics::forces {
namespace {

constexpr double kTolerance = 1e-12;

ForceSums SumsOf(const std::vector<std::string>& texts) {
    return std::get<ForceSums>(CollectSums(Forces(texts)));
}

TEST(CollectSums, AddsWhatIsKnownAndJoinsEqualUnknowns) {
    const double c = std::sqrt(3.0) / 2;
    const ForceSums sums = SumsOf({"p30x,F", "3,4", "2F<90", "hQ", "-5,-1"});
    EXPECT_NEAR(sums.x.known, -2, kTolerance);
    EXPECT_EQ(TextOf(sums.x.first.unknown), "F");
    EXPECT_NEAR(sums.x.first.coef, c, kTolerance);  // 2 cos 90 adds nothing
    EXPECT_EQ(TextOf(sums.x.second.unknown), "Q");
    EXPECT_NEAR(sums.x.second.coef, 1, kTolerance);
    EXPECT_EQ(sums.x.unknowns, 2);
    EXPECT_NEAR(sums.y.known, 3, kTolerance);
    EXPECT_EQ(TextOf(sums.y.first.unknown), "F");
    EXPECT_NEAR(sums.y.first.coef, 2.5, kTolerance);
    EXPECT_TRUE(sums.y.second.unknown.IsNone());
    EXPECT_EQ(sums.y.unknowns, 1);
}

TEST(CollectSums, AddsUpTheSecondUnknownToo) {
    const ForceSums sums = SumsOf({"hF", "2Q,1", "h-3F", "4Q,1"});
    EXPECT_EQ(sums.x.first.coef, -2);
    EXPECT_EQ(sums.x.second.coef, 6);
}

TEST(CollectSums, TakesEachFormatOfASymbolForOneUnknown) {
    EXPECT_EQ(SumsOf({"p30x,ab", "hab", "AB<20"}).x.unknowns, 1);
    EXPECT_EQ(SumsOf({"hf", "hF"}).x.unknowns, 2);
}

TEST(CollectSums, RefusesAThirdUnknown) {
    for (const std::vector<std::string>& texts : std::vector<std::vector<std::string>>{
             {"hF", "hQ", "hR"}, {"vF", "vQ", "vR"}, {"hF", "20<a", "F<a"}, {"10<a", "20<b", "30<c"}})
        EXPECT_EQ(std::get<text::Refusal>(CollectSums(Forces(texts))).text, kTooManyUnknowns);
}

TEST(CollectSums, FailsPastTheRangeOfNumbers) {
    const std::vector<notation::Force> forces = Forces({"h1E308", "h1E308"});
    EXPECT_EQ(tavrelo::testing::FailureOf([&] { CollectSums(forces); }), numeric::FailureCode::Overflow);
}

TEST(SumComponents, AddsToTheStart) {
    const auto sums = SumComponents(Forces({"3,4", "h-5", "v0.5"}), {10, 20});
    ASSERT_TRUE(sums);
    EXPECT_NEAR(sums->x, 8, kTolerance);
    EXPECT_NEAR(sums->y, 24.5, kTolerance);
    EXPECT_FALSE(SumComponents(Forces({"3,4", "vF"})));
}

struct BalanceRow {
    std::vector<std::string> forces;
    bool balanced;
};

TEST(AreBalanced, MeasuresASumByItsOwnComponents) {
    const BalanceRow rows[] = {
        {{"3,4", "-3,-4"}, true},
        {{"3,4", "-3,-4.0009"}, true},
        {{"3,4", "-3,-4.0011"}, false},
        {{"3,4", "-3.0011,-4"}, false},
        {{"0.0008,0", "0.0008,0"}, false},  // below 0.001, and all there is
        {{"0.5,0", "-0.5004,0"}, true},     // a thousandth of 0.5 is 0.0005
        {{"0.5,0", "-0.4994,0"}, false},
        {{"1E9,0", "-1000000000.9,0"}, true},  // 1E-9 of the largest
        {{"1E9,0", "-1000000001.1,0"}, false},
        {{"1E9<90", "1E9<-90"}, true},  // the cosine of 90 leaves dust along x
        {{"0.00001,1E6", "0,-1E6"}, false},
        {{"0.0000001,1E6", "0,-1E6"}, true},  // 1E-12 of the largest in both sums
        {{"3,4", "-3,F"}, false},
        {{}, true},
    };
    for (const BalanceRow& row : rows)
        EXPECT_EQ(AreBalanced(Forces(row.forces)), row.balanced)
            << (row.forces.empty() ? "" : row.forces.back());
}

TEST(InEquilibrium, AllowsLessThanAThousandth) {
    EXPECT_TRUE(InEquilibrium(ComponentSums{0.0009, -0.0009}));
    EXPECT_FALSE(InEquilibrium(ComponentSums{0.001, 0}));
    EXPECT_FALSE(InEquilibrium(ComponentSums{0, -0.001}));
    EXPECT_FALSE(InEquilibrium(std::nullopt));
}

}  // namespace
}  // namespace tavrelo::mechanics::forces
