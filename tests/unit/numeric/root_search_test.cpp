#include "numeric/root_search.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "numeric/checked.h"

namespace tavrelo::numeric {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kCell = 1e-6;  // accuracy of the bisection

FoundRoots Found(const std::variant<RootsRefusal, FoundRoots>& result) {
    return std::holds_alternative<FoundRoots>(result) ? std::get<FoundRoots>(result) : FoundRoots{};
}

void ExpectRefused(const std::variant<RootsRefusal, FoundRoots>& result, RootsRefusal refusal) {
    ASSERT_TRUE(std::holds_alternative<RootsRefusal>(result));
    EXPECT_EQ(std::get<RootsRefusal>(result), refusal);
}

TEST(FindRoots, InAscendingOrderWithTheirValues) {
    const auto sine = [](double x) { return std::sin(x); };
    for (const auto& [a, b] : {std::pair(0.5, 10.0), std::pair(10.0, 0.5)}) {
        const FoundRoots found = Found(FindRoots(sine, a, b));
        ASSERT_EQ(found.roots.size(), 3u);
        ASSERT_EQ(found.values.size(), 3u);
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_NEAR(found.roots[i], kPi * static_cast<double>(i + 1), kCell);
            EXPECT_EQ(found.values[i], std::sin(found.roots[i]));
        }
        EXPECT_FALSE(found.more);
    }
}

TEST(FindRoots, OfAPolynomial) {
    // (x - 1)(x + 2)(x - 3.5)
    const FoundRoots found =
        Found(FindRoots([](double x) { return (x - 1) * (x + 2) * (x - 3.5); }, -5, 5.3));
    ASSERT_EQ(found.roots.size(), 3u);
    EXPECT_NEAR(found.roots[0], -2, kCell);
    EXPECT_NEAR(found.roots[1], 1, kCell);
    EXPECT_NEAR(found.roots[2], 3.5, kCell);
}

TEST(FindRoots, ARootOnASampleIsMissed) {
    // With 490 cells 0 is sample 245 of [-1, 1], and 2 sample 245 of [0, 4].
    ExpectRefused(FindRoots([](double x) { return x; }, -1, 1), RootsRefusal::None);
    ExpectRefused(FindRoots([](double x) { return x - 2; }, 0, 4), RootsRefusal::None);
    EXPECT_EQ(Found(FindRoots([](double x) { return x; }, -1, 1.01)).roots.size(), 1u);
}

TEST(FindRoots, AValueOfZeroInsideACellIsTheRoot) {
    // Cells of length 1: the first one runs from -0.5 to 0.5, its middle is 0.
    for (const double sign : {1.0, -1.0}) {
        const FoundRoots found = Found(FindRoots([sign](double x) { return sign * x; }, -0.5, 489.5));
        ASSERT_EQ(found.roots.size(), 1u);
        EXPECT_EQ(found.roots[0], 0);
    }
}

TEST(FindRoots, ATouchingRootIsMissedAndAPoleCounts) {
    ExpectRefused(FindRoots([](double x) { return (x - 1) * (x - 1); }, 0, 3.1), RootsRefusal::None);
    const FoundRoots found = Found(FindRoots([](double x) { return CheckedDivide(1, x - 1); }, 0, 3.1));
    ASSERT_EQ(found.roots.size(), 1u);
    EXPECT_NEAR(found.roots[0], 1, kCell);
    EXPECT_GT(std::abs(found.values[0]), 1e5);
}

TEST(FindRoots, NoIntervalNoRoots) {
    ExpectRefused(FindRoots([](double x) { return x; }, 2, 2), RootsRefusal::None);
    ExpectRefused(FindRoots([](double) { return 0.0; }, 0, 1), RootsRefusal::None);
}

TEST(FindRoots, GivesFiftyRootsAndTellsOfMore) {
    const auto sine = [](double x) { return std::sin(kPi * x); };
    const FoundRoots sixty = Found(FindRoots(sine, 0.5, 60.7));
    ASSERT_EQ(sixty.roots.size(), 50u);
    EXPECT_NEAR(sixty.roots.front(), 1, kCell);
    EXPECT_NEAR(sixty.roots.back(), 50, kCell);
    EXPECT_TRUE(sixty.more);
    const FoundRoots fifty_one = Found(FindRoots(sine, 0.5, 51.4));
    EXPECT_EQ(fifty_one.roots.size(), 50u);
    EXPECT_TRUE(fifty_one.more);
    const FoundRoots fifty = Found(FindRoots(sine, 0.5, 50.6));
    EXPECT_EQ(fifty.roots.size(), 50u);
    EXPECT_FALSE(fifty.more);
}

TEST(FindRoots, AFailureAtASampleEndsTheSearch) {
    ExpectRefused(FindRoots([](double x) { return CheckedLog(x); }, -1, 2), RootsRefusal::Failed);
    ExpectRefused(FindRoots([](double x) { return CheckedDivide(1, x); }, -1, 1), RootsRefusal::Failed);
    ExpectRefused(FindRoots([](double) { return std::nan(""); }, 0, 1), RootsRefusal::Failed);
    ExpectRefused(FindRoots([](double x) { return 1e200 * (x - 0.3001); }, 0, 1), RootsRefusal::Failed);
}

TEST(FindRoots, AFailureBehindTheFiftiethRootIsNoMatter) {
    const auto sine_up_to_55 = [](double x) { return CheckedSqrt(50.55 - x) * std::sin(kPi * x); };
    const FoundRoots found = Found(FindRoots(sine_up_to_55, 0.5, 60.7));
    EXPECT_EQ(found.roots.size(), 50u);
    EXPECT_FALSE(found.more);
}

TEST(FindRoots, AValueCloseToZeroEndsARefinement) {
    // All values are below 1e-10: one halving of the cell of 1/490 is made, and the root lies in that cell.
    int calls = 0;
    const auto flat = [&calls](double x) {
        ++calls;
        return 1e-11 * (x - 0.3001);
    };
    const FoundRoots found = Found(FindRoots(flat, 0, 1));
    ASSERT_EQ(found.roots.size(), 1u);
    EXPECT_EQ(calls, kRootCells + 1 + 1 + 1);
    EXPECT_NEAR(found.roots[0], 0.3001, 1.0 / kRootCells);
}

TEST(FindRoots, HalvesACellAtMostFortyTimes) {
    int calls = 0;
    const auto steep = [&calls](double x) {
        ++calls;
        return x < 1e11 ? -1.0 : 1.0;
    };
    const FoundRoots found = Found(FindRoots(steep, 0, 1e12));
    ASSERT_EQ(found.roots.size(), 1u);
    EXPECT_EQ(calls, kRootCells + 1 + 40 + 1);
    EXPECT_NEAR(found.roots[0], 1e11, 1e12 / kRootCells / std::pow(2, 40) * 1.01);
}

TEST(RootsRefusal, HasItsMessage) {
    EXPECT_EQ(TextOf(RootsRefusal::None), "No encontré raíces en el intervalo dado.");
    EXPECT_EQ(TextOf(RootsRefusal::Failed), "Ocurrió un error en el cálculo de las raíces.");
}

}  // namespace
}  // namespace tavrelo::numeric
