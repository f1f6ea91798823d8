#include "notation/number_product.h"

#include <gtest/gtest.h>

#include <string>

#include "../failure_code.h"
#include "notation/force_parser.h"
#include "notation/vector_parser.h"

namespace tavrelo::notation {
namespace {

constexpr int kDecimals = 3;

struct ProductRow {
    const char* text;
    double product;
};

TEST(NumberProduct, ReadsNumbersAndTheirProducts) {
    const ProductRow rows[] = {
        {"15*9.8", 147},      {"-15*9.8", -147}, {"15*-9.8", -147}, {"-2*-3", 6},   {" 2 * 3 * 4 ", 24},
        {"2E3*4", 8000},      {".5*4", 2},       {"0*7", 0},        {"3*0.1", 0.3}, {"0.1*0.1*0.1", 0.001},
        {"1E-200*1E-200", 0}, {"147", 147},      {"-5", -5},        {"+5*2", 10},
    };
    for (const ProductRow& row : rows) {
        const auto product = ReadNumberProduct(row.text);
        ASSERT_TRUE(product) << row.text;
        EXPECT_EQ(*product, row.product) << row.text;
    }
}

TEST(NumberProduct, LeavesOtherTextsAlone) {
    for (const char* text : {"", "*", "15*", "*9.8", "15**9.8", "15*g", "F*2", "15x9.8", "3,5*2", "1e3*2"}) {
        EXPECT_FALSE(ReadNumberProduct(text)) << text;
        EXPECT_EQ(WithProductComputed(text), text);
    }
    EXPECT_EQ(WithProductComputed("007.50"), "007.50");
    EXPECT_EQ(WithProductComputed("-15*9.8"), "-147");
}

TEST(NumberProduct, FailsPastTheRangeOfNumbers) {
    EXPECT_EQ(testing::FailureOf([] { ReadNumberProduct("1E200*1E200"); }), numeric::FailureCode::Overflow);
    EXPECT_EQ(testing::FailureOf([] { WithProductComputed("1E200*1E200"); }), numeric::FailureCode::Overflow);
}

struct SameRow {
    const char* product;
    const char* number;
};

// Products that stand where a magnitude or a component does; 15 * 9.8 = 147.
const SameRow kSameVectors[] = {
    {"v-15*9.8", "v-147"},       {"h15*9.8", "h147"},   {"15*9.8<30", "147<30"}, {"15*9.8;30", "147;30"},
    {"p30x,15*9.8", "p30x,147"}, {"15*9.8,3", "147,3"}, {"3,-15*9.8", "3,-147"}, {"2*3,-15*9.8", "6,-147"},
};
const SameRow kSameForces[] = {
    {"2*3,F", "6,F"}, {"F,2*0", "F,0"}, {"15*9.8<a", "147<a"}, {"v-15*9.8:", "v-147:"}, {"v0*9.8", "v0"},
};

void ExpectSameForce(const SameRow& row) {
    auto product = ParseForce(row.product, kDecimals);
    const auto number = ParseForce(row.number, kDecimals);
    if (auto* record = std::get_if<ForceRecord>(&product)) {
        EXPECT_EQ(record->given_text, row.product);
        record->given_text = row.number;
    }
    ASSERT_EQ(product.index(), number.index()) << row.product;
    EXPECT_TRUE(product == number) << row.product;
}

TEST(NumberProduct, StandsForItsNumberInAVector) {
    for (const SameRow& row : kSameVectors) {
        const auto product = ParseVector(row.product);
        ASSERT_TRUE(std::holds_alternative<VectorRecord>(product)) << row.product;
        EXPECT_TRUE(product == ParseVector(row.number)) << row.product;
    }
}

TEST(NumberProduct, StandsForItsNumberInAForce) {
    for (const SameRow& row : kSameVectors)
        ExpectSameForce(row);
    for (const SameRow& row : kSameForces)
        ExpectSameForce(row);
}

TEST(NumberProduct, IsRefusedElsewhere) {
    constexpr const char* kUnreadable = "Error en la especificación del vector.";
    struct Row {
        const char* text;
        const char* refusal;
    };
    const Row rows[] = {
        {"p2*15x,5", "En este formato el ángulo debe conocerse."},
        {"5<2*15", kUnreadable},
        {"u2*15", kUnreadable},
        {"p30x,2*3h", kUnreadable},
        {"v-5*F", kUnreadable},
        {"v5*", kUnreadable},
        {"hF*2", kUnreadable},
        {"v1E200*1E200", kUnreadable},
    };
    for (const Row& row : rows) {
        const auto force = ParseForce(row.text, kDecimals);
        ASSERT_TRUE(std::holds_alternative<text::Refusal>(force)) << row.text;
        EXPECT_EQ(std::get<text::Refusal>(force).text, row.refusal) << row.text;
        const auto vector = ParseVector(row.text);
        ASSERT_TRUE(std::holds_alternative<text::Refusal>(vector)) << row.text;
        EXPECT_EQ(std::get<text::Refusal>(vector).text, row.refusal) << row.text;
    }
}

}  // namespace
}  // namespace tavrelo::notation
