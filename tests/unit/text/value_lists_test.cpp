#include "text/value_lists.h"

#include <gtest/gtest.h>

#include "../failure_code.h"
#include "numeric/checked.h"

namespace tavrelo::text {
namespace {

using numeric::FailureCode;
using testing::FailureOf;

TEST(ValueLists, IsInListKeepsKindsAndCaseApart) {
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

TEST(ValueLists, ExtremesTakeTheStartAndNumericTexts) {
    EXPECT_EQ(MaxOf(3, std::vector<Value>{1, "4.5", -7}), 4.5);
    EXPECT_EQ(MaxOf("9", std::vector<Value>{1, 4}), 9);
    EXPECT_EQ(MinOf(3, std::vector<Value>{1, "-4.5", 7}), -4.5);
    EXPECT_EQ(MinOf(-9, std::vector<Value>{}), -9);
    EXPECT_EQ(FailureOf([] { MaxOf(0, std::vector<Value>{1, "F"}); }), FailureCode::TypeMismatch);
    EXPECT_EQ(FailureOf([] { MinOf("F", std::vector<Value>{1}); }), FailureCode::TypeMismatch);
}

TEST(ValueLists, RemoveDuplicatesKeepsTheFirstOfEach) {
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
}  // namespace tavrelo::text
