#include "numeric/compare.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../failure_code.h"

namespace tavrelo::numeric {
namespace {

using testing::FailureOf;

TEST(Compare, NearEqCountsItsBound) {
    EXPECT_TRUE(NearEq(1, 1.5, 0.5));
    EXPECT_TRUE(NearEq(2, 2, 0));
    // 1.1 - 1 is a hair above 0.1 in doubles, and no margin is added.
    EXPECT_FALSE(NearEq(1, 1.1, 0.1));
    EXPECT_FALSE(NearEq(1, 1, -1));
    EXPECT_FALSE(NearEq(-3, 3, 5));
}

TEST(Compare, WithinPctDropsSignsAndCountsItsBounds) {
    EXPECT_TRUE(WithinPct(99, 100, 1));
    EXPECT_TRUE(WithinPct(101, -100, 1));
    EXPECT_TRUE(WithinPct(-100, 100, 0));
    EXPECT_TRUE(WithinPct(0, 0, 1));
    EXPECT_FALSE(WithinPct(98.9, 100, 1));
    EXPECT_FALSE(WithinPct(101.1, 100, 1));
    EXPECT_FALSE(WithinPct(0.1, 0, 1));
}

TEST(Compare, IsInListKeepsKindsAndCaseApart) {
    const std::vector<Value> list = {1, "5", "F"};
    EXPECT_TRUE(IsInList("5", list));
    EXPECT_TRUE(IsInList(1.0, list));
    EXPECT_FALSE(IsInList(5, list));
    EXPECT_FALSE(IsInList("1", list));
    EXPECT_FALSE(IsInList("f", list));
    EXPECT_FALSE(IsInList(Value(), list));
    EXPECT_TRUE(IsInList(Value(), std::vector<Value>{1, Value()}));
    EXPECT_FALSE(IsInList(1, {}));
}

TEST(Compare, ExtremesTakeTheStartAndNumericTexts) {
    EXPECT_EQ(MaxOf(3, std::vector<Value>{1, "4.5", -7}), 4.5);
    EXPECT_EQ(MaxOf("9", std::vector<Value>{1, 4}), 9);
    EXPECT_EQ(MinOf(3, std::vector<Value>{1, "-4.5", 7}), -4.5);
    EXPECT_EQ(MinOf(-9, std::vector<Value>{}), -9);
    EXPECT_EQ(MaxArr(std::vector<double>{-3, -1, -2}), -1);
    EXPECT_EQ(FailureOf([] { MaxOf(0, std::vector<Value>{1, "F"}); }), FailureCode::TypeMismatch);
    EXPECT_EQ(FailureOf([] { MinOf("F", std::vector<Value>{1}); }), FailureCode::TypeMismatch);
    EXPECT_EQ(FailureOf([] { MaxArr({}); }), FailureCode::SubscriptRange);
}

TEST(Compare, RemoveDuplicatesKeepsTheFirstOfEach) {
    using Texts = std::vector<std::string>;
    struct Row {
        Texts list;
        Texts kept;
        int count;
    };
    for (Row row :
         {Row{{}, {}, 0}, Row{{"A"}, {"A"}, 1}, Row{{"A", "A"}, {"A", ""}, 1},
          Row{{"B", "A", "B", "C", "A"}, {"B", "A", "C", "", ""}, 3}, Row{{"a", "A"}, {"a", "A"}, 2}}) {
        EXPECT_EQ(RemoveDuplicates(row.list), row.count);
        EXPECT_EQ(row.list, row.kept);
    }
}

}  // namespace
}  // namespace tavrelo::numeric
