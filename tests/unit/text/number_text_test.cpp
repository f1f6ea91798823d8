#include "text/number_text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <ostream>
#include <string>

#include "../failure_code.h"

namespace tavrelo::text {
namespace {

using testing::FailureOf;

const std::string kFourHundredDigits(400, '9');

TEST(NumberText, FifteenDigitsWithoutTrailingZeros) {
    struct Row {
        double number;
        const char* text;
    };
    // Digits by hand or as Python's "%.15G" writes them.
    for (const Row& row :
         {Row{0, "0"}, Row{-0.0, "0"}, Row{2, "2"}, Row{-2.50, "-2.5"}, Row{0.1 + 0.2, "0.3"},
          Row{1.0 / 3.0, "0.333333333333333"}, Row{2.0 / 3.0, "0.666666666666667"},
          Row{1234567.125, "1234567.125"}, Row{0.0001, "0.0001"}, Row{0.00001, "1E-05"},
          Row{-0.00012345, "-0.00012345"}, Row{999999999999999.0, "999999999999999"},
          Row{-999999999999999.0, "-999999999999999"}, Row{999999999999999.9, "1E+15"}, Row{1e15, "1E+15"},
          Row{1.5e20, "1.5E+20"}, Row{1e300, "1E+300"}, Row{-1.5e-7, "-1.5E-07"},
          Row{123456789012345.678, "123456789012346"}}) {
        EXPECT_EQ(NumberToText(row.number), row.text);
    }
}

TEST(NumberText, TheTextReadsBackAsTheSameFifteenDigits) {
    for (const double number : {0.1, 1.0 / 3.0, 2.5e-9, 6.02214076e23, -1.7e308, 4.9e-324, 12345.678}) {
        const std::string text = NumberToText(number);
        EXPECT_TRUE(IsNum(text)) << text;
        EXPECT_EQ(NumberToText(ToNumber(text)), text);
    }
}

TEST(NumberText, OnlyFiniteNumbersHaveAText) {
    EXPECT_EQ(FailureOf([] { NumberToText(std::numeric_limits<double>::infinity()); }),
              numeric::FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] { NumberToText(std::numeric_limits<double>::quiet_NaN()); }),
              numeric::FailureCode::OutOfDomain);
}

struct NumberTextRow {
    const char* text;
    double value;
};

void PrintTo(const NumberTextRow& row, std::ostream* out) { *out << row.text; }

class AcceptedNumber : public ::testing::TestWithParam<NumberTextRow> {};

TEST_P(AcceptedNumber, CountsAndConverts) {
    EXPECT_TRUE(IsNum(GetParam().text));
    EXPECT_EQ(ToNumber(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    NumberText, AcceptedNumber,
    ::testing::Values(NumberTextRow{"0", 0}, NumberTextRow{"5", 5}, NumberTextRow{"+5", 5},
                      NumberTextRow{"5.", 5}, NumberTextRow{".5", 0.5}, NumberTextRow{"-.5", -0.5},
                      NumberTextRow{"-.", 0}, NumberTextRow{"+.", 0}, NumberTextRow{"007", 7},
                      NumberTextRow{"-0", 0}, NumberTextRow{"1E5", 1e5}, NumberTextRow{"1.5E+20", 1.5e20},
                      NumberTextRow{"-1.5E-3", -0.0015}, NumberTextRow{"+.5E1", 5}, NumberTextRow{"5.E1", 50},
                      NumberTextRow{" 1E5", 1e5}, NumberTextRow{"1E5  ", 1e5}, NumberTextRow{"1E-400", 0},
                      NumberTextRow{"0E999", 0}, NumberTextRow{"0.000001E+310", 1e304}));

class RefusedNumber : public ::testing::TestWithParam<const char*> {};

TEST_P(RefusedNumber, NeitherCountsNorConverts) {
    EXPECT_FALSE(IsNum(GetParam()));
    EXPECT_EQ(FailureOf([] { ToNumber(GetParam()); }), numeric::FailureCode::TypeMismatch);
}

INSTANTIATE_TEST_SUITE_P(NumberText, RefusedNumber,
                         ::testing::Values("", "-", "+", ".", "1,5", "1,5E3", "1.2.3", "1-2", "5-", "--5",
                                           "+-5", " 5", "5 ", "1e5", "1D5", "F", "2X", "0x10", "1_000", "inf",
                                           "nan", "1E", "1E+", "E5", ".E5", "FE", "1E5.5", "1E5E5", "1 E5",
                                           "1E 5", "1.2.3E4", "-E5", "Ee", "1eE5", "١", "²", "5\xC2\xA0"));

TEST(NumberText, EveryKindOfTextCountsAlike) {
    EXPECT_TRUE(IsNum(std::string("-.")));
    EXPECT_TRUE(IsNum(std::string_view("1E5")));
    EXPECT_FALSE(IsNum(std::string_view("5\0", 2)));
    EXPECT_TRUE(IsNum(Value(2.5)));
    EXPECT_TRUE(IsNum(Value(1e-300)));
    EXPECT_TRUE(IsNum(Value("2.5")));
    EXPECT_FALSE(IsNum(Value("F")));
    EXPECT_FALSE(IsNum(Value()));
}

TEST(NumberText, PastTheRangeOfADouble) {
    EXPECT_FALSE(IsNum("1E400"));
    EXPECT_EQ(FailureOf([] { ToNumber("1E400"); }), numeric::FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] { ToNumber("-1E99999999999999999999999"); }), numeric::FailureCode::Overflow);
    EXPECT_EQ(ToNumber("1E-99999999999999999999999"), 0);
    EXPECT_TRUE(IsNum(kFourHundredDigits));
    EXPECT_EQ(FailureOf([] { ToNumber(kFourHundredDigits); }), numeric::FailureCode::Overflow);
    EXPECT_EQ(ToNumber("0." + std::string(400, '0') + "1"), 0);
    EXPECT_NEAR(ToNumber(kFourHundredDigits + "E-400"), 1.0, 1e-15);
}

TEST(NumberText, LiteralsOfTheFormulaLanguage) {
    EXPECT_EQ(LiteralToNumber("1e5"), 1e5);
    EXPECT_EQ(LiteralToNumber("1D3"), 1000);
    EXPECT_EQ(LiteralToNumber("2.5d-1"), 0.25);
    EXPECT_EQ(LiteralToNumber(" -7 "), -7);
    EXPECT_EQ(FailureOf([] { LiteralToNumber("1E"); }), numeric::FailureCode::TypeMismatch);
    EXPECT_EQ(FailureOf([] { LiteralToNumber("1D+"); }), numeric::FailureCode::TypeMismatch);
    EXPECT_EQ(FailureOf([] { LiteralToNumber(""); }), numeric::FailureCode::TypeMismatch);
    EXPECT_EQ(FailureOf([] { LiteralToNumber("."); }), numeric::FailureCode::TypeMismatch);
    EXPECT_EQ(FailureOf([] { LiteralToNumber("X"); }), numeric::FailureCode::TypeMismatch);
    EXPECT_EQ(FailureOf([] { LiteralToNumber("1D400"); }), numeric::FailureCode::Overflow);
}

TEST(NumberText, TheLocaleChangesNothing) {
    // Where the locale is installed, its mark is the comma.
    std::setlocale(LC_ALL, "es_ES.UTF-8");
    EXPECT_EQ(NumberToText(2.5), "2.5");
    EXPECT_EQ(ToNumber("2.5"), 2.5);
    EXPECT_EQ(RoundTo(2.56, 1), 2.6);
    std::setlocale(LC_ALL, "C");
}

TEST(Rounding, TiesToEvenOnTheFifteenDigitText) {
    struct Row {
        double number;
        int decimals;
        double rounded;
    };
    // Reference: Python's decimal module, quantize half-even of the "%.15G" text.
    for (const Row& row : {Row{0.0025, 3, 0.002},
                           Row{0.0035, 3, 0.004},
                           Row{0.1245, 3, 0.124},
                           Row{2.675, 2, 2.68},
                           Row{1.015, 2, 1.02},
                           Row{0.5, 0, 0},
                           Row{1.5, 0, 2},
                           Row{2.5, 0, 2},
                           Row{-2.5, 0, -2},
                           Row{8.5, 0, 8},
                           Row{0.0005, 3, 0},
                           Row{0.0015, 3, 0.002},
                           Row{999.9995, 3, 1000},
                           Row{0.05, 1, 0},
                           Row{0.06, 1, 0.1},
                           Row{1234.5678, 0, 1235},
                           Row{0.000125, 5, 0.00012},
                           Row{0.1 + 0.2, 20, 0.3},
                           Row{1.0 / 3.0, 3, 0.333},
                           Row{2.0 / 3.0, 15, 0.666666666666667},
                           Row{1.0000000000000002, 15, 1},
                           Row{1e-300, 3, 0},
                           Row{123456789012345.678, 3, 123456789012346.0},
                           Row{1e15 + 0.5, 0, 1e15 + 0.5},
                           Row{1e300, 3, 1e300},
                           Row{1250, -2, 1200},
                           Row{7, 2147483647, 7},
                           Row{7, -2147483647, 0}}) {
        EXPECT_EQ(RoundTo(row.number, row.decimals), row.rounded) << row.number << " to " << row.decimals;
        EXPECT_EQ(RoundTo(-row.number, row.decimals), -row.rounded) << -row.number << " to " << row.decimals;
    }
}

TEST(Rounding, NeverMinusZero) {
    EXPECT_FALSE(std::signbit(RoundTo(-0.0004, 3)));
    EXPECT_FALSE(std::signbit(RoundTo(-0.0, 3)));
    EXPECT_EQ(RoundedText(-0.0004, 3), "0");
    EXPECT_EQ(RoundedText(-0.4, 0), "0");
}

TEST(Rounding, DoesNotPad) {
    EXPECT_EQ(RoundedText(2.5, 3), "2.5");
    EXPECT_EQ(RoundedText(2.0001, 3), "2");
    EXPECT_EQ(RoundedText(-2.5, 3), "-2.5");
}

TEST(NumText, NumbersAndSymbols) {
    struct Row {
        Value value;
        int decimals;
        Value expected;
    };
    for (const Row& row : {Row{0.0004, 3, 0},
                           Row{0.00004, 3, 0},
                           Row{-0.00004, 3, 0},
                           Row{-0.0004, 3, ";-0"},
                           Row{-2.5, 3, ";-2.5"},
                           Row{2.5, 3, 2.5},
                           Row{2.0006, 3, 2.001},
                           Row{-12.34567, 2, ";-12.35"},
                           Row{-0.04, 0, 0},
                           Row{-0.4, 0, ";-0"},
                           Row{"-F", 3, ";-F"},
                           Row{"F", 3, "F"},
                           Row{"--F", 3, ";--F"},
                           Row{"-", 3, ";-"},
                           Row{"+5", 3, 5},
                           Row{"5.", 3, 5},
                           Row{"-5", 3, ";-5"},
                           Row{"-.", 3, 0},
                           Row{"1E5", 3, 100000},
                           Row{"1e5", 3, "1e5"},
                           Row{"", 3, ""},
                           Row{Value(), 3, Value()},
                           Row{kFourHundredDigits, 3, ""}}) {
        EXPECT_EQ(NumText(row.value, row.decimals), row.expected) << row.value.Text();
    }
}

struct TermRow {
    bool plus_sign;
    bool keep_zero;
    Value coef;
    Value term;
    const char* text;
};

TEST(TermText, OneSignedTerm) {
    for (const TermRow& row :
         {TermRow{false, false, 2, "x", " 2 x"}, TermRow{true, false, 2, "x", " + 2 x"},
          TermRow{false, false, -1, "x", " ;- x"}, TermRow{true, false, -1, "x", " ;- x"},
          TermRow{false, false, 1, "x", " x"}, TermRow{true, false, 1, "x", " + x"},
          TermRow{false, false, -2, "-x", " 2 x"}, TermRow{true, false, -1, "-x", " + x"},
          TermRow{true, false, 2, "-x", " ;- 2 x"}, TermRow{true, false, 1, "-x", " ;- x"},
          TermRow{true, false, -2.5, "x", " ;- 2.5 x"}, TermRow{true, false, "2", "x", " + 2 x"},
          TermRow{false, false, 2, "-", " ;- 2 "}, TermRow{false, false, 3, 2, " 6"},
          TermRow{true, false, 3, 2, " + 6"}, TermRow{true, true, -3, 1, " ;- 3"},
          TermRow{true, true, 3, "-2", " ;- 6"}, TermRow{true, true, -0.5, -3, " + 1.5"},
          TermRow{true, false, 1.0 / 3.0, 1, " + 0.333333333333333"}}) {
        EXPECT_EQ(TermText(row.plus_sign, row.keep_zero, row.coef, row.term), row.text);
    }
}

TEST(TermText, ZeroIsKeptOrLeftOut) {
    for (const TermRow& row : {TermRow{true, false, 0, "x", ""}, TermRow{true, true, 0, "x", " 0 "},
                               TermRow{true, true, "-.", "x", " 0 "}, TermRow{true, true, 3, 0, " 0 "},
                               TermRow{true, false, 3, 0, ""}, TermRow{true, true, 1e-300, 1e-300, " 0 "},
                               TermRow{true, true, 1e-9, "x", " + 1E-09 x"}}) {
        EXPECT_EQ(TermText(row.plus_sign, row.keep_zero, row.coef, row.term), row.text);
    }
}

TEST(TermText, WhatHasNoTermGivesNoText) {
    for (const TermRow& row :
         {TermRow{true, true, 2, "", ""}, TermRow{true, true, 2, Value(), ""}, TermRow{true, true, 0, "", ""},
          TermRow{true, true, "F", "x", ""}, TermRow{true, true, "F", 2, ""},
          TermRow{true, true, Value(), "x", ""}, TermRow{true, true, 1e200, 1e200, ""},
          TermRow{true, true, kFourHundredDigits, "x", ""}}) {
        EXPECT_EQ(TermText(row.plus_sign, row.keep_zero, row.coef, row.term), row.text);
    }
}

}  // namespace
}  // namespace tavrelo::text
