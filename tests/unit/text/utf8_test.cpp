#include "text/utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace tavrelo::text {
namespace {

TEST(Utf8, CodePointsOfEveryLength) {
    EXPECT_EQ(ToCodePoints("aé∠😀"), U"aé∠😀");
    EXPECT_EQ(ToUtf8(U"aé∠😀"), "aé∠😀");
    EXPECT_EQ(ToUtf8(U'Ñ'), "Ñ");
    EXPECT_EQ(CharacterCount("aé∠😀"), 4U);
    EXPECT_EQ(CharacterCount(""), 0U);
    EXPECT_EQ(ToCodePoints(std::string_view("\0a", 2)).size(), 2U);
}

TEST(Utf8, EveryInvalidByteIsReplacedByItself) {
    struct Row {
        std::string_view bytes;
        std::u32string_view characters;
    };
    for (const Row& row :
         {Row{"\xFF", U"\uFFFD"}, Row{"\x80z", U"\uFFFDz"}, Row{"\xC3", U"\uFFFD"},  // cut short
          Row{"\xC3(", U"\uFFFD("},                                                  // no follower
          Row{"\xE2\x88", U"\uFFFD\uFFFD"},                                          // cut short
          Row{"\xC0\xAF", U"\uFFFD\uFFFD"},                                          // overlong
          Row{"\xE0\x80\xAF", U"\uFFFD\uFFFD\uFFFD"},                                // overlong
          Row{"\xED\xA0\x80", U"\uFFFD\uFFFD\uFFFD"},                                // surrogate
          Row{"\xF4\x90\x80\x80", U"\uFFFD\uFFFD\uFFFD\uFFFD"},                      // past the last
          Row{"\xEF\xBF\xBD", U"\uFFFD"}}) {
        EXPECT_EQ(ToCodePoints(row.bytes), row.characters);
        EXPECT_EQ(CharacterCount(row.bytes), row.characters.size());
    }
}

TEST(Utf8, WhatIsNoCharacterIsWrittenAsTheReplacement) {
    EXPECT_EQ(ToUtf8(static_cast<char32_t>(0xD800)), "\uFFFD");
    EXPECT_EQ(ToUtf8(static_cast<char32_t>(0x110000)), "\uFFFD");
    EXPECT_EQ(ToUtf8(static_cast<char32_t>(0x10FFFF)), "\xF4\x8F\xBF\xBF");
}

TEST(Utf8, TrimTakesBlanksOnly) {
    EXPECT_EQ(Trim("  a b "), "a b");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim(""), "");
    EXPECT_EQ(Trim("\ta\n"), "\ta\n");
    EXPECT_EQ(Trim("\u00A0a"), "\u00A0a");
}

TEST(Utf8, SpanishLetters) {
    EXPECT_EQ(ToUpper("sección ñ áéíóúü z"), "SECCIÓN Ñ ÁÉÍÓÚÜ Z");
    EXPECT_EQ(ToLower("SECCIÓN Ñ ÁÉÍÓÚÜ Z"), "sección ñ áéíóúü z");
    EXPECT_EQ(ToUpper("θ à ç 1_"), "θ à ç 1_");
    EXPECT_EQ(ToLower("Θ À Ç 1_"), "Θ À Ç 1_");
    EXPECT_EQ(ToUpper("\xC3"), "\xC3");
}

TEST(Utf8, NamesWithoutCase) {
    EXPECT_TRUE(EqualIgnoringCase("rtbCalc", "RTBCALC"));
    EXPECT_TRUE(EqualIgnoringCase("", ""));
    EXPECT_FALSE(EqualIgnoringCase("gd", "gd1"));
    EXPECT_FALSE(EqualIgnoringCase("ñ", "Ñ"));
    EXPECT_FALSE(EqualIgnoringCase("@", "`"));
}

TEST(Utf8, ReplaceAllGoesOnBehindEachReplacement) {
    EXPECT_EQ(ReplaceAll("a/b/", "/", "//"), "a//b//");
    EXPECT_EQ(ReplaceAll("aaa", "aa", "b"), "ba");
    EXPECT_EQ(ReplaceAll("abc", "x", "y"), "abc");
    EXPECT_EQ(ReplaceAll("abc", "", "y"), "abc");
    EXPECT_EQ(ReplaceAll("abc", "b", ""), "ac");
}

}  // namespace
}  // namespace tavrelo::text
