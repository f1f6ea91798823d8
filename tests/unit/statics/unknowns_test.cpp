#include "statics/unknowns.h"

#include <gtest/gtest.h>

#include <cmath>

#include "statics/coefficient_tables.h"

namespace tavrelo::statics {
namespace {

constexpr int kDecimals = 3;
constexpr double kTolerance = 1e-12;

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
    EXPECT_NEAR(sums.x.known, -2, kTolerance);
    EXPECT_NEAR(sums.y.known, 3, kTolerance);
    EXPECT_EQ(sums.x.first, "F");
    EXPECT_NEAR(sums.x.first_coef, std::sqrt(3.0) / 2, kTolerance);
    EXPECT_EQ(sums.x.second, "Q");
    EXPECT_EQ(sums.x.unknowns, 2);
    EXPECT_EQ(sums.y.first, "F");
    EXPECT_NEAR(sums.y.first_coef, 2.5, kTolerance);
    EXPECT_EQ(sums.y.unknowns, 1);
}

TEST(CollectSums, TakesEachFormatOfASymbolForOneUnknown) {
    EXPECT_EQ(SumsOf({"p30x,ab", "hab", "AB<20"}).x.unknowns, 1);
    EXPECT_EQ(SumsOf({"hf", "hF"}).x.unknowns, 2);
}

TEST(CollectSums, RefusesAThirdUnknown) {
    for (const std::vector<std::string>& texts : std::vector<std::vector<std::string>>{
             {"hF", "hQ", "hR"}, {"vF", "vQ", "vR"}, {"hF", "20<a", "F<a"}, {"10<a", "20<b", "30<c"}})
        EXPECT_EQ(std::get<Refusal>(CollectSums(Forces(texts))).text, kTooManyUnknowns);
}

// Every row of the table of two magnitudes: the system that the forces write by themselves.
struct LinearRow {
    std::vector<std::string> forces;
    double a, b, d, e;
    const char* first;
    const char* second;
};

TEST(MagnitudeCoefficients, FollowTheNamesInBothSums) {
    const double c = std::sqrt(3.0) / 2;
    const LinearRow rows[] = {
        {{"2,0", "hP", "v-Q"}, 1, 0, 0, -1, "P", "Q"},
        {{"p30x,F", "s30x,Q"}, c, -c, 0.5, 0.5, "F", "Q"},
        {{"hF", "s30x,Q", "p30x,F"}, 1 + c, -c, 0.5, 0.5, "F", "Q"},  // y names them in the other order
        {{"p30x,F", "vQ"}, c, 0, 0.5, 1, "F", "Q"},
        {{"vQ", "p30x,F"}, c, 0, 0.5, 1, "F", "Q"},
        {{"p30x,F", "hQ"}, c, 1, 0.5, 0, "F", "Q"},
        {{"hQ", "p30x,F"}, 1, c, 0, 0.5, "Q", "F"},
        {{"hF", "vQ", "vR"}, 0, 0, 0, 0, "", ""},
        {{"hF", "hQ", "vR"}, 0, 0, 0, 0, "", ""},
        {{"hF", "hQ", "vR", "vS"}, 0, 0, 0, 0, "", ""},
    };
    for (const LinearRow& row : rows) {
        const TwoUnknowns got = MagnitudeCoefficients(SumsOf(row.forces));
        const std::string& label = row.forces.back();
        EXPECT_NEAR(got.a, row.a, kTolerance) << label;
        EXPECT_NEAR(got.b, row.b, kTolerance) << label;
        EXPECT_NEAR(got.d, row.d, kTolerance) << label;
        EXPECT_NEAR(got.e, row.e, kTolerance) << label;
        EXPECT_EQ(got.first, row.first) << label;
        EXPECT_EQ(got.second, row.second) << label;
    }
}

// Every row of the table of a magnitude and an angle, with short names and with names of three characters.
TEST(MagnitudeAndAngleCoefficients, PutTheMagnitudeFirst) {
    const double c = std::sqrt(3.0) / 2;
    const LinearRow rows[] = {
        {{"hF", "20<a"}, 1, 20, 0, 20, "F", "cos A"},
        {{"20<a", "hF"}, 1, 20, 0, 20, "F", "cos A"},
        {{"vF", "20<a"}, 0, 20, 1, 20, "F", "cos A"},
        {{"20<a", "vF"}, 0, 20, 1, 20, "F", "cos A"},
        {{"p30x,F", "20<a"}, c, 20, 0.5, 20, "F", "cos A"},
        {{"20<a", "p30x,F"}, c, 20, 0.5, 20, "F", "cos A"},
        {{"hF", "20<a", "p30x,F"}, 1 + c, 20, 0.5, 20, "F", "cos A"},
        {{"vF", "20<a", "p30x,F"}, c, 20, 1.5, 20, "F", "cos A"},
        {{"hF12", "20<a"}, 1, 20, 0, 20, "F12", "cos A"},
        {{"20<a", "hF12"}, 1, 20, 0, 20, "F12", "cos A"},
        {{"v-F12", "20<a"}, 0, 20, -1, 20, "F12", "cos A"},
        {{"20<a", "v-F12"}, 0, 20, -1, 20, "F12", "cos A"},
        {{"p30x,F12", "20<a"}, c, 20, 0.5, 20, "F12", "cos A"},
        {{"20<a", "p30x,F12"}, c, 20, 0.5, 20, "F12", "cos A"},
        {{"p30x,F", "F<a"}, c, 1, 0.5, 1, "F", "F cos A"},
        {{"2F<a", "vF"}, 0, 2, 1, 2, "F", "F cos A"},
    };
    for (const LinearRow& row : rows) {
        const TwoUnknowns got = MagnitudeAndAngleCoefficients(SumsOf(row.forces));
        const std::string label = row.forces.front() + " " + row.forces.back();
        EXPECT_NEAR(got.a, row.a, kTolerance) << label;
        EXPECT_NEAR(got.b, row.b, kTolerance) << label;
        EXPECT_NEAR(got.d, row.d, kTolerance) << label;
        EXPECT_NEAR(got.e, row.e, kTolerance) << label;
        EXPECT_EQ(got.first, row.first) << label;
        EXPECT_EQ(got.second, row.second) << label;
    }
}

}  // namespace
}  // namespace tavrelo::statics
