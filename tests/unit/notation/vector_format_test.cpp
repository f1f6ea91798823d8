#include "notation/vector_format.h"

#include <gtest/gtest.h>

namespace tavrelo::notation {
namespace {

struct FormatRow {
    const char* text;
    std::string_view code;
    const char* first;
    const char* second;
};

TEST(VectorFormatOf, TellsTheFormatAndCutsTheText) {
    const FormatRow rows[] = {
        {"p23x,12", kQuadrantMagnitude, "p23x", "12"},
        {"p23x,F", kQuadrantMagnitude, "p23x", "F"},
        {"p30x,Th", kQuadrantMagnitude, "p30x", "Th"},
        {"p30x,h", kQuadrantMagnitude, "p30x", "h"},
        {"p30x,", kQuadrantMagnitude, "p30x", ""},
        {"s34.5y, 9h", kQuadrantComponent, "s34.5y", "9h"},
        {"t45x, 12h", kQuadrantComponent, "t45x", "12h"},
        {"c36.87x, 10v", kQuadrantComponent, "c36.87x", "10v"},
        {" s30x , -5 h ", kQuadrantComponent, "s30x", "-5 h"},
        {"23,-45", kComponents, "23", "-45"},
        {" 23 , -45 ", kComponents, "23", "-45"},
        {"12,5h", kComponents, "12", "5h"},
        {"px,10", kComponents, "px", "10"},
        {"P30x,10", kComponents, "P30x", "10"},
        {"p30X,10", kComponents, "p30X", "10"},
        {"h3,4", kComponents, "h3", "4"},
        {",", kComponents, "", ""},
        {"230<-34", kPolar, "230", "-34"},
        {"230;-34", kPolar, "230", "-34"},
        {"h5<3", kPolar, "h5", "3"},
        {"<", kPolar, "", ""},
        {"h-55", kHorizontal, "", "-55"},
        {"h", kHorizontal, "", ""},
        {"hola", kHorizontal, "", "ola"},
        {" h 5 ", kHorizontal, "", "5"},
        {"v0.24", kVertical, "", "0.24"},
        {"u156", kUnit, "", "156"},
    };
    for (const FormatRow& row : rows) {
        const VectorFormat format = VectorFormatOf(row.text);
        EXPECT_EQ(format.msg, "") << row.text;
        EXPECT_EQ(format.code, row.code) << row.text;
        EXPECT_EQ(format.first, row.first) << row.text;
        EXPECT_EQ(format.second, row.second) << row.text;
        EXPECT_TRUE(format.not_colon) << row.text;
    }
}

TEST(VectorFormatOf, TakesTheFinalColonOff) {
    for (const char* text : {"10<30:", "10<30 :", " 10<30: "}) {
        const VectorFormat format = VectorFormatOf(text);
        EXPECT_FALSE(format.not_colon) << text;
        EXPECT_EQ(format.second, "30") << text;
    }
    EXPECT_EQ(VectorFormatOf("p30x,5h:").code, kQuadrantComponent);
    EXPECT_EQ(VectorFormatOf("h5::").second, "5:");
}

TEST(VectorFormatOf, RefusesMixedAndRepeatedSeparators) {
    for (const char* text :
         {"1,2;3", "1,2<3", "1;2<3", "1,2;3<4", "1,2,3", "1<2<3", "1;2;3", "p30x,5,", ",,"})
        EXPECT_EQ(VectorFormatOf(text).msg, "Formato incorrecto.") << text;
}

TEST(VectorFormatOf, RefusesWhatMatchesNothing) {
    for (const char* text : {"xyz", "5", "", "   ", ":", "H5", "p30x", "ñ", "-5"})
        EXPECT_EQ(VectorFormatOf(text).msg, "Inventaste un nuevo formato") << text;
}

struct MarksRow {
    const char* first;
    const char* quadrant;
    const char* angle;
    const char* axis;
};

TEST(ReadQuadrantMarks, CutsTheLettersOffTheAngle) {
    const MarksRow rows[] = {
        {"p30x", "p", "30", "x"}, {"s0y", "s", "0", "y"},       {"tax", "t", "a", "x"},
        {"c  y", "c", "", "y"},   {"c 3.5 y", "c", "3.5", "y"},
    };
    for (const MarksRow& row : rows) {
        const auto marks = ReadQuadrantMarks(row.first);
        ASSERT_TRUE(marks) << row.first;
        EXPECT_EQ(marks->quadrant, row.quadrant) << row.first;
        EXPECT_EQ(marks->angle, row.angle) << row.first;
        EXPECT_EQ(marks->axis, row.axis) << row.first;
    }
}

TEST(ReadQuadrantMarks, NeedsLettersAtBothEndsAndSomethingBetween) {
    for (const char* first : {"", "p", "px", "30", "p30", "30x", "P30x", "a30x", "ñ30x", "p30ñ"})
        EXPECT_FALSE(ReadQuadrantMarks(first)) << first;
}

TEST(ReadLetteredComponent, CutsTheLetterOff) {
    const auto horizontal = ReadLetteredComponent("-5 h");
    ASSERT_TRUE(horizontal);
    EXPECT_EQ(horizontal->number, "-5");
    EXPECT_EQ(horizontal->letter, 'h');
    const auto vertical = ReadLetteredComponent("v");
    ASSERT_TRUE(vertical);
    EXPECT_EQ(vertical->number, "");
    EXPECT_EQ(vertical->letter, 'v');
    for (const char* second : {"", "5", "5H", "h5"})
        EXPECT_FALSE(ReadLetteredComponent(second)) << second;
}

}  // namespace
}  // namespace tavrelo::notation
