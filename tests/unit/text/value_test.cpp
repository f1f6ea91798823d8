#include "text/value.h"

#include <gtest/gtest.h>

#include "../failure_code.h"

namespace tavrelo::text {
namespace {

using testing::FailureOf;

TEST(Value, HoldsNothingANumberOrAText) {
    const Value nothing;
    const Value number(2.5);
    const Value whole(2);
    const Value text("2");
    const Value empty_text("");
    EXPECT_TRUE(nothing.IsEmpty());
    EXPECT_TRUE(number.HoldsNumber());
    EXPECT_TRUE(whole.HoldsNumber());
    EXPECT_TRUE(text.HoldsText());
    EXPECT_TRUE(empty_text.HoldsText());
    EXPECT_FALSE(empty_text.IsEmpty());
}

TEST(Value, ReachesWhatItHolds) {
    const Value number(2.5);
    const Value text("F");
    EXPECT_EQ(*number.IfNumber(), 2.5);
    EXPECT_EQ(number.IfText(), nullptr);
    EXPECT_EQ(*text.IfText(), "F");
    EXPECT_EQ(text.IfNumber(), nullptr);
    EXPECT_EQ(Value().IfNumber(), nullptr);
}

TEST(Value, TextOfEachKind) {
    EXPECT_EQ(Value().Text(), "");
    EXPECT_EQ(Value(0.1 + 0.2).Text(), "0.3");
    EXPECT_EQ(Value("007").Text(), "007");
}

TEST(Value, NumberOfEachKind) {
    EXPECT_EQ(Value().Number(), 0);
    EXPECT_EQ(Value(-1.5).Number(), -1.5);
    EXPECT_EQ(Value("-1.5").Number(), -1.5);
    EXPECT_EQ(FailureOf([] { Value("F").Number(); }), numeric::FailureCode::TypeMismatch);
    EXPECT_EQ(FailureOf([] { Value("").Number(); }), numeric::FailureCode::TypeMismatch);
}

TEST(Value, EqualOnlyWithinItsKind) {
    EXPECT_EQ(Value(5), Value(5.0));
    EXPECT_NE(Value(5), Value("5"));
    EXPECT_NE(Value("F"), Value("f"));
    EXPECT_NE(Value(), Value(""));
    EXPECT_NE(Value(), Value(0));
    EXPECT_EQ(Value(), Value());
}

}  // namespace
}  // namespace tavrelo::text
