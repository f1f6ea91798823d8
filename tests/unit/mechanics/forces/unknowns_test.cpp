#include "mechanics/forces/unknowns.h"

#include <gtest/gtest.h>

namespace tavrelo::mechanics::forces {
namespace {

constexpr int kDecimals = 3;

ForceTable Forces(const std::vector<std::string>& texts) {
    return std::get<ForceTable>(ForcesOf(texts, kDecimals));
}

ForceSums SumsOf(const std::vector<std::string>& texts) {
    return std::get<ForceSums>(CollectSums(Forces(texts)));
}

struct TermRow {
    const char* text;
    const char* magnitude;
    AngleFunction function;
    const char* angle;
};

TEST(ReadUnknown, PartsMagnitudeFunctionAndAngle) {
    const TermRow rows[] = {
        {"F1", "F1", AngleFunction::None, ""},
        {"cos A1", "", AngleFunction::Cos, "A1"},
        {"sen A1", "", AngleFunction::Sen, "A1"},
        {"F1 cos A1", "F1", AngleFunction::Cos, "A1"},
        {"f sen Alfa", "f", AngleFunction::Sen, "Alfa"},
        {"fcos", "fcos", AngleFunction::None, ""},
        {"cos Al fa", "", AngleFunction::Cos, "Al fa"},
        {"F sen B cos c", "F", AngleFunction::Sen, "B cos c"},
        {"", "", AngleFunction::None, ""},
    };
    for (const TermRow& row : rows) {
        const UnknownTerm term = ReadUnknown(row.text);
        EXPECT_EQ(term.magnitude, row.magnitude) << row.text;
        EXPECT_EQ(term.function, row.function) << row.text;
        EXPECT_EQ(term.angle, row.angle) << row.text;
    }
}

TEST(SameUnknown, ComparesPartByPart) {
    EXPECT_TRUE(SameUnknown("Ab", "AB"));
    EXPECT_TRUE(SameUnknown("F1 cos Aa", "F1 cos AA"));
    EXPECT_FALSE(SameUnknown("f1", "F1"));
    EXPECT_FALSE(SameUnknown("f cos A", "F cos A"));
    EXPECT_FALSE(SameUnknown("cos fi", "cos Fi"));
    EXPECT_FALSE(SameUnknown("cos A", "sen A"));
    EXPECT_FALSE(SameUnknown("cos A", "F cos A"));
}

TEST(CollectSums, AddsWhatIsKnownAndJoinsEqualUnknowns) {
    const ForceSums sums = SumsOf({"p30x,F", "3,4", "2F<90", "hQ", "-5,-1"});
    EXPECT_EQ(sums.x.first, "F");
    EXPECT_EQ(sums.x.second, "Q");
    EXPECT_EQ(sums.x.unknowns, 2);
    EXPECT_EQ(sums.y.first, "F");
    EXPECT_EQ(sums.y.unknowns, 1);
}

TEST(CollectSums, TakesEachFormatOfASymbolForOneUnknown) {
    EXPECT_EQ(SumsOf({"p30x,ab", "hab", "AB<20"}).x.unknowns, 1);
    EXPECT_EQ(SumsOf({"hf", "hF"}).x.unknowns, 2);
}

TEST(CollectSums, RefusesAThirdUnknown) {
    for (const std::vector<std::string>& texts : std::vector<std::vector<std::string>>{
             {"hF", "hQ", "hR"}, {"vF", "vQ", "vR"}, {"hF", "20<a", "F<a"}, {"10<a", "20<b", "30<c"}})
        EXPECT_EQ(std::get<text::Refusal>(CollectSums(Forces(texts))).text, kTooManyUnknowns);
}

}  // namespace
}  // namespace tavrelo::mechanics::forces
