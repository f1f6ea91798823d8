#include "run.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <stdexcept>

#include "equations.h"
#include "independence.h"
#include "typed.h"

namespace tavrelo::physics {
namespace {

constexpr std::string_view kToldRefusals[] = {"No."};

struct Outcome {
    bool passed;
    std::string table;
};

Outcome Played(Verdict (*play)(Problem&), int problems, double most_refused = 0) {
    std::ostringstream table;
    const ProblemKind kind = {"group.kind", "", 10, play, kToldRefusals, most_refused};
    const bool passed = PlayKind(kind, 7, problems, table);
    return {passed, table.str()};
}

bool Holds(const Outcome& run, std::string_view text) { return run.table.find(text) != std::string::npos; }

TEST(PlayKind, PassesWhenEveryAnswerIsRight) {
    EXPECT_TRUE(Played([](Problem&) { return Right(); }, 5).passed);
}

TEST(PlayKind, TellsAWrongAnswerSoThatItCanBePlayedAgain) {
    const Outcome run = Played(
        [](Problem& problem) {
            problem.Type("h20");
            return Wrong("leaves 5");
        },
        2);
    EXPECT_FALSE(run.passed);
    EXPECT_TRUE(Holds(run, "leaves 5"));
    EXPECT_TRUE(Holds(run, "physics --kind group.kind --seed 7 --problems 1"));
    EXPECT_TRUE(Holds(run, "physics --kind group.kind --seed 8 --problems 1"));
    EXPECT_TRUE(Holds(run, "h20"));
}

TEST(PlayKind, TakesAFailureForAWrongAnswer) {
    const Outcome run = Played([](Problem&) -> Verdict { throw std::runtime_error("broken"); }, 1);
    EXPECT_FALSE(run.passed);
    EXPECT_TRUE(Holds(run, "broken"));
}

TEST(PlayKind, CountsToldRefusalsUpToTheirPart) {
    const auto every_other = [](Problem& problem) {
        return problem.chance.OneIn(2) ? Refused("No.") : Right();
    };
    EXPECT_TRUE(Played(every_other, 100, 0.8).passed);
    EXPECT_FALSE(Played(every_other, 100, 0.2).passed);
    EXPECT_TRUE(Holds(Played(every_other, 100, 0.8), "No."));
}

TEST(PlayKind, RefusesARefusalThatTheKindDoesNotKnow) {
    EXPECT_FALSE(Played([](Problem&) { return Refused("Perhaps."); }, 1, 1).passed);
}

TEST(Chance, IsTheSameOnEveryMachine) {
    // The first number of SplitMix64 from 0 is 0xE220A8397B1DCDAF.
    EXPECT_EQ(Chance(0).Below(1000), 0xE220A8397B1DCDAFu % 1000);
    std::set<int> seen;
    Chance chance(1);
    for (int k = 0; k < 200; ++k) {
        seen.insert(chance.Between(-1, 2));
        const double size = chance.Size(0.1, 10);
        EXPECT_TRUE(size >= 0.1 && size < 10.0001);
    }
    EXPECT_EQ(seen, (std::set<int>{-1, 0, 1, 2}));
}

TEST(Typed, HasTheValueOfItsText) {
    EXPECT_EQ(Rounded(2.50, 2).text, "2.5");
    EXPECT_EQ(Rounded(-7.004, 2).text, "-7");
    EXPECT_EQ(Rounded(-0.001, 2).text, "0");
    EXPECT_EQ(Rounded(1.0 / 3, 3).value, 0.333);
    EXPECT_EQ(Significant(1234.56, 3).text, "1235");
    EXPECT_EQ(Significant(0.0123456, 3).text, "0.0123");
}

TEST(Sum, VanishesWithinAThousandthOfAThousandOrOfItsLargestTerm) {
    EXPECT_TRUE(SumOf({50, -49.9991}).Vanishes());
    EXPECT_FALSE(SumOf({50, -49.998}).Vanishes());
    EXPECT_TRUE(SumOf({0.1, -0.09995}).Vanishes());
    EXPECT_FALSE(SumOf({0.1, -0.0998}).Vanishes());
    EXPECT_TRUE(SumOf({1e9, -1e9 + 0.5}).Vanishes());
    EXPECT_FALSE(SumOf({1e9, -1e9 + 2}).Vanishes());
    EXPECT_FALSE(SumOf({1e-12}).Vanishes());
    EXPECT_TRUE(SumOf({1e-12}).VanishesBeside(1));
}

TEST(Independence, IsTheSmallestPivotOfColumnsAndRowsOfOneSize) {
    EXPECT_EQ(Independence({{2, 0}, {0, 1e-9}}), 1);
    EXPECT_EQ(Independence({{1, 2}, {2, 4}}), 0);
    EXPECT_NEAR(Independence({{1, 1}, {1, 1.001}}), 0.001, 1e-5);
    EXPECT_NEAR(DeterminantSize({{2, 1}, {7, 5}}), 3, 1e-12);
}

TEST(Degrees, AreExactAtTheAxes) {
    EXPECT_EQ(CosDegrees(90), 0);
    EXPECT_EQ(CosDegrees(-270), 0);
    EXPECT_EQ(SinDegrees(180), 0);
    EXPECT_EQ(SinDegrees(-90), -1);
    EXPECT_NEAR(SinDegrees(30), 0.5, 1e-15);
}

}  // namespace
}  // namespace tavrelo::physics
