#include "text/symbols.h"

#include <gtest/gtest.h>

#include "numeric/checked.h"

namespace tavrelo::text {
namespace {

constexpr int kDecimals = 3;

struct SplitRow {
    const char* text;
    double factor;
    const char* symbol;
};

TEST(SplitFactor, ReadsTheNumberInFrontAndTheSymbolBehind) {
    const SplitRow rows[] = {
        {"F", 1, "F"},       {"2F", 2, "F"},        {"-T", -1, "T"},     {"0.5F1", 0.5, "F1"},
        {" 2 t1 ", 2, "T1"}, {"-.5ab", -0.5, "Ab"}, {"f2", 1, "f2"},     {"3f2", 3, "f2"},
        {"T12", 1, "T12"},   {"- F", -1, "F"},      {"2 F 1", 2, "F 1"}, {"ñu", 1, "Ñu"},
        {"-.F", 0, "F"},     {"7", 7, ""},          {"-", -1, ""},       {"", 1, ""},
        {"alfa", 1, "Alfa"}, {"aBC", 1, "ABC"},     {"+F", 1, "+F"},     {"2E5F", 2, "E5F"},
    };
    for (const SplitRow& row : rows) {
        const FactoredSymbol split = SplitFactor(row.text);
        EXPECT_EQ(split.factor, row.factor) << row.text;
        EXPECT_EQ(split.symbol, row.symbol) << row.text;
    }
}

TEST(SplitFactor, FailsWhereTheFactorIsNoNumber) {
    for (const char* text : {"--F", "1-2F", "1..2F", ".F", "5-", "..", "--"})
        EXPECT_THROW(SplitFactor(text), numeric::RuntimeFailure) << text;
}

TEST(IsSymbolName, AsksForALetterInFrontAndNoBlankOrStar) {
    for (const char* name : {"F", "F1", "f", "Ñ1", "á", "Ë", "α", "Ω2", "z", "A-", "F(1", "Alfa"})
        EXPECT_TRUE(IsSymbolName(name)) << name;
    for (const char* text : {"",   "1",  "-F", "+F", "*F", "F*2", "F 1", " F", "_F", "(F)",
                             "−5", "×2", "÷2", "²",  "°",  "[",   "@",   "`",  "{",  "\xFF"})
        EXPECT_FALSE(IsSymbolName(text)) << text;
}

struct FactorTextRow {
    double coef;
    const char* symbol;
    int decimals;
    const char* text;
};

TEST(FactorText, WritesTheCoefficientUnlessItIsZeroOrOne) {
    const FactorTextRow rows[] = {
        {0, "F", 3, "0"},
        {1e-8, "F", 3, "0"},
        {-1e-8, "F", 3, "0"},
        {1, "F", 3, "F"},
        {-1, "F", 3, "-F"},
        {0.9999999999999999, "F", 3, "F"},  // 2 sin 30 in doubles
        {-1.0000000000000002, "F1", 3, "-F1"},
        {0.8660254037844386, "F", 3, "0.866 F"},
        {0.8660254037844386, "F", 0, "1 F"},
        {-2, "F1", 3, "-2 F1"},
        {2e-8, "F", 3, "0 F"},
        {20, "cos A", 3, "20 cos A"},
        {1, "F cos A", 3, "F cos A"},
    };
    for (const FactorTextRow& row : rows)
        EXPECT_EQ(FactorText(row.coef, row.symbol, row.decimals), row.text) << row.coef << ' ' << row.symbol;
}

struct MarkupRow {
    double factor;
    const char* symbol;
    const char* markup;
};

TEST(SymbolMarkup, PutsSubscriptsBehindTheLetter) {
    const MarkupRow rows[] = {
        {1, "F", "F"},    {1, "q", "Q"},    {1, "F1", "F!1"},    {1, "Fa", "F!a"},        {1, "FA", "F!a"},
        {1, "Fx", "F!X"}, {1, "AY", "A!Y"}, {1, "T12", "T!1!2"}, {1, "Tab", "T!A!B"},     {1, "f2", "f!2"},
        {1, "fA", "f!a"}, {1, "f", "f"},    {1, "f12", "f!1!2"}, {1, "Fuerza", "FUERZA"}, {1, "", ""},
    };
    for (const MarkupRow& row : rows)
        EXPECT_EQ(SymbolMarkup(row.factor, row.symbol, kDecimals), row.markup) << row.symbol;
}

TEST(SymbolMarkup, WritesTheFactorByItsAbsoluteValue) {
    const MarkupRow rows[] = {
        {2, "F1", "2 F!1"}, {-2, "F1", "2 F!1"}, {-1, "T", "T"}, {0.12345, "F", "0.123 F"}, {0, "F", "0"}};
    for (const MarkupRow& row : rows)
        EXPECT_EQ(SymbolMarkup(row.factor, row.symbol, kDecimals), row.markup) << row.factor << row.symbol;
}

TEST(SubscriptName, MarksTwoAndThreeCharacters) {
    const std::pair<const char*, const char*> rows[] = {
        {"F", "F"},       {"F1", "F!1"}, {"Ab", "A!B"}, {"T12", "T!1!2"},   {"fab", "f!A!B"},
        {"Alfa", "Alfa"}, {"", ""},      {"añ", "a!Ñ"}, {"cos A", "cos A"},
    };
    for (const auto& [name, markup] : rows)
        EXPECT_EQ(SubscriptName(name), markup) << name;
}

TEST(SubscriptName, EscapesMarksThatTheUserTyped) {
    EXPECT_EQ(SubscriptName("F/"), "F!//");
    EXPECT_EQ(SubscriptName("#"), "##");
    EXPECT_EQ(SubscriptName("Al/a"), "Al//a");
}

TEST(SameSymbol, IgnoresCaseButForALeadingF) {
    EXPECT_TRUE(SameSymbol("Ab", "AB"));
    EXPECT_TRUE(SameSymbol("F1", "F1"));
    EXPECT_TRUE(SameSymbol("fa", "fA"));
    EXPECT_TRUE(SameSymbol("Ñu", "ÑU"));
    EXPECT_FALSE(SameSymbol("f1", "F1"));
    EXPECT_FALSE(SameSymbol("F1", "F2"));
    EXPECT_FALSE(SameSymbol("F", "F1"));
}

}  // namespace
}  // namespace tavrelo::text
