#include "notation/unknown_term.h"

#include <gtest/gtest.h>

#include <variant>

#include "notation/force_parser.h"

namespace tavrelo::notation {
namespace {

UnknownTerm Cos(const char* magnitude, const char* angle) { return {magnitude, AngleFunction::Cos, angle}; }
UnknownTerm Sen(const char* magnitude, const char* angle) { return {magnitude, AngleFunction::Sen, angle}; }

struct TextRow {
    UnknownTerm term;
    const char* text;
    std::size_t length;
};

TEST(UnknownTerm, IsShownByItsParts) {
    const TextRow rows[] = {
        {{}, "", 0},
        {{"F1"}, "F1", 2},
        {{"Ñu"}, "Ñu", 2},
        {Cos("", "A1"), "cos A1", 6},
        {Sen("", "Alfa"), "sen Alfa", 8},
        {Cos("F1", "A"), "F1 cos A", 8},
        {Sen("f", "B"), "f sen B", 7},
    };
    for (const TextRow& row : rows) {
        EXPECT_EQ(TextOf(row.term), row.text);
        EXPECT_EQ(LengthOf(row.term), row.length) << row.text;
    }
}

TEST(UnknownTerm, TellsWhatItHolds) {
    EXPECT_TRUE(UnknownTerm{}.IsNone());
    EXPECT_FALSE(UnknownTerm{"F"}.IsNone());
    EXPECT_FALSE(Cos("", "A").IsNone());
    EXPECT_FALSE(UnknownTerm{"F"}.HasAngle());
    EXPECT_TRUE(Sen("", "A").HasAngle());
    EXPECT_FALSE(Sen("", "A").HasBoth());
    EXPECT_TRUE(Sen("F", "A").HasBoth());
    EXPECT_TRUE(Cos("", "A").IsCos());
    EXPECT_FALSE(Sen("", "A").IsCos());
    EXPECT_FALSE(UnknownTerm{"F"}.IsCos());
}

TEST(SameUnknown, ComparesPartByPart) {
    EXPECT_TRUE(SameUnknown({"Ab"}, {"AB"}));
    EXPECT_TRUE(SameUnknown(Cos("F1", "Aa"), Cos("F1", "AA")));
    EXPECT_TRUE(SameUnknown({}, {}));
    EXPECT_FALSE(SameUnknown({"f1"}, {"F1"}));
    EXPECT_FALSE(SameUnknown(Cos("f", "A"), Cos("F", "A")));
    EXPECT_FALSE(SameUnknown(Cos("", "fi"), Cos("", "Fi")));
    EXPECT_FALSE(SameUnknown(Cos("", "A"), Sen("", "A")));
    EXPECT_FALSE(SameUnknown(Cos("", "A"), Cos("F", "A")));
    EXPECT_FALSE(SameUnknown({"F"}, {}));
}

struct ReadRow {
    const char* text;
    UnknownTerm x, y;
};

TEST(UnknownTerm, IsMadeByTheReaderOfForces) {
    const ReadRow rows[] = {
        {"p30x,2F1", {"F1"}, {"F1"}},
        {"hab", {"AB"}, {}},
        {"-2Ax,Ay", {"Ax"}, {"Ay"}},
        {"20<a1", Cos("", "A1"), Sen("", "A1")},
        {"F1<b", Cos("F1", "B"), Sen("F1", "B")},
        {"ufi", Cos("", "fi"), Sen("", "fi")},
        {"hcos", {"COS"}, {}},  // a name like any other
    };
    for (const ReadRow& row : rows) {
        const auto record = std::get<ForceRecord>(ParseForce(row.text, 3));
        EXPECT_EQ(record.force.x.unknown, row.x) << row.text;
        EXPECT_EQ(record.force.y.unknown, row.y) << row.text;
    }
}

}  // namespace
}  // namespace tavrelo::notation
