#include "notation/interval_line.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../failure_code.h"
#include "notation/typed_list.h"

namespace tavrelo::notation {
namespace {

using numeric::FailureCode;
using testing::FailureOf;

TEST(TypedList, PiecesLoseTheBlanksAroundThem) {
    using Pieces = std::vector<std::string_view>;
    EXPECT_EQ(PiecesOf(""), Pieces{});
    EXPECT_EQ(PiecesOf("   "), Pieces{});
    EXPECT_EQ(PiecesOf(" a b "), Pieces{"a b"});
    EXPECT_EQ(PiecesOf("1, 2 ,3"), (Pieces{"1", "2", "3"}));
    EXPECT_EQ(PiecesOf("1,,"), (Pieces{"1", "", ""}));
}

TEST(TypedList, NumbersOfAListAndWhatItLacks) {
    const auto read = ReadNumbers("1, -2.5 , +3, 1.5E+3", 4);
    EXPECT_EQ(std::get<std::vector<double>>(read), (std::vector<double>{1, -2.5, 3, 1500}));
    struct Row {
        const char* list;
        std::string_view refusal;
    };
    for (const Row& row : {Row{"1, x", kNonNumericCoefficient},
                           {"1,,2", kNonNumericCoefficient},
                           {"1; 2", kNonNumericCoefficient},
                           {"", kWrongCoefficientCount},
                           {"1", kWrongCoefficientCount},
                           {"1, 2, 3", kWrongCoefficientCount}})
        EXPECT_EQ(std::get<text::Refusal>(ReadNumbers(row.list, 2)).text, row.refusal) << row.list;
}

TEST(IntervalLine, TheBeginningOfANamePicksTheDatum) {
    const auto answer = ReadIntervalLine("acel = 3, xinicial=12, d t = 1, dtotal =6");
    const auto& data = std::get<IntervalData>(answer);
    IntervalData expected;
    expected[IntervalDatum::a] = 3;
    expected[IntervalDatum::xi] = 12;
    expected[IntervalDatum::dt] = 6;
    EXPECT_EQ(data, expected);
}

TEST(IntervalLine, EveryNameIsRead) {
    constexpr const char* kNames[] = {"a", "ti", "tf", "dt", "xi", "xf", "dx", "vi", "vf", "dv"};
    for (std::size_t k = 0; k < kIntervalData; ++k) {
        const auto answer = ReadIntervalLine("y = 1, A = 2, " + std::string(kNames[k]) + " = -1.5");
        IntervalData expected;
        expected[static_cast<IntervalDatum>(k)] = -1.5;
        EXPECT_EQ(std::get<IntervalData>(answer), expected) << kNames[k];
    }
}

TEST(IntervalLine, RefusesANumberOfDataAndFailsOnTexts) {
    for (const char* line : {"", "a = 1", "a = 1, vi = 2", "a = 1, b = 2, c = 3, d = 4, e = 5"})
        EXPECT_EQ(std::get<text::Refusal>(ReadIntervalLine(line)).text, kWrongNumberOfData) << line;
    EXPECT_EQ(FailureOf([] { (void)ReadIntervalLine("a = uno, vi = 2, vf = 3"); }),
              FailureCode::TypeMismatch);
    EXPECT_EQ(FailureOf([] { (void)ReadIntervalLine("a =, vi = 2, vf = 3"); }), FailureCode::TypeMismatch);
    EXPECT_EQ(FailureOf([] { (void)ReadIntervalLine("a = 1E999, vi = 2, vf = 3"); }), FailureCode::Overflow);
}

}  // namespace
}  // namespace tavrelo::notation
