#include "notation/force_parser.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>

#include "notation/vector_format.h"
#include "text/number_text.h"

namespace tavrelo::notation {
namespace {

using text::Value;

constexpr int kDecimals = 3;
constexpr double kTolerance = 1e-9;
constexpr double kRadians = std::numbers::pi / 180;
const double kCos30 = std::sqrt(3.0) / 2;

ForceRecord Parsed(const std::string& text, int decimals = kDecimals) {
    const auto result = ParseForce(text, decimals);
    if (const auto* refusal = std::get_if<text::Refusal>(&result)) {
        ADD_FAILURE() << text << ": " << refusal->text;
        return {};
    }
    return std::get<ForceRecord>(result);
}

struct KnownRow {
    const char* text;
    std::string_view code;
    double magnitude, direction, x, y;
    int hour;
    double angle;
    const char* x_text;
    const char* y_text;
    const char* shown;
};

TEST(ParseForce, ReadsKnownForcesInEveryFormat) {
    const double m =
        9 / std::sin(34.5 * kRadians);  // direction 124.5: the horizontal component is M sin 34.5
    const KnownRow rows[] = {
        {"p30x,10", kQuadrantMagnitude, 10, 30, 10 * kCos30, 5, 2, 30, "8.66", "5", "10"},
        {"s30y, 10", kQuadrantMagnitude, 10, 120, -5, 10 * kCos30, 11, 30, "-5", "8.66", "10"},
        {"t0x,10", kQuadrantMagnitude, 10, -180, -10, 0, 8, 0, "-10", "0", "10"},
        {"p90x,3.456", kQuadrantMagnitude, 3.456, 90, 0, 3.456, 2, 90, "0", "3.456", "3.46"},
        {"s34.5y, 9h", kQuadrantComponent, m, 124.5, -9, m * std::cos(34.5 * kRadians), 11, 34.5, "-9",
         "13.095", "15.89"},
        {"p30x,5h", kQuadrantComponent, 5 / kCos30, 30, 5, 2.5 / kCos30, 2, 30, "5", "2.887", "5.77"},
        {"s30x,-5h", kQuadrantComponent, 5 / kCos30, 150, -5, 2.5 / kCos30, 10, 30, "-5", "2.887", "5.77"},
        {"c30x,5v", kQuadrantComponent, 10, -30, 10 * kCos30, -5, 4, 30, "8.66", "-5", "10"},
        {"p60x,30v", kQuadrantComponent, 30 / kCos30, 60, 15 / kCos30, 30, 2, 60, "17.321", "30", "34.64"},
        {"3,-4", kComponents, 5, -std::atan2(4, 3) / kRadians, 3, -4, 5, 90 - std::atan2(4, 3) / kRadians,
         "3", "-4", "5"},
        {"-30,-40", kComponents, 50, std::atan2(40, 30) / kRadians - 180, -30, -40, 7,
         90 - std::atan2(40, 30) / kRadians, "-30", "-40", "50"},
        {"1,1", kComponents, std::sqrt(2), 45, 1, 1, 2, 45, "1", "1", "1.41"},
        {"10<-135", kPolar, 10, -135, -std::sqrt(50), -std::sqrt(50), 7, 45, "-7.071", "-7.071", "10"},
        {"230;-34", kPolar, 230, -34, 230 * std::cos(34 * kRadians), -230 * std::sin(34 * kRadians), 4, 34,
         "190.679", "-128.614", "230"},
        {"10<-180", kPolar, 10, -180, -10, 0, 9, 0, "-10", "0", "10"},
        {"h-55", kHorizontal, 55, 180, -55, 0, 9, 0, "55", "0", "55"},
        {"h 5", kHorizontal, 5, 0, 5, 0, 3, 0, "5", "0", "5"},
        {"v0.24", kVertical, 0.24, 90, 0, 0.24, 12, 0, "0", "0.24", "0.24"},
        {"v-100", kVertical, 100, -90, 0, -100, 6, 0, "0", "100", "100"},
        {"u150", kUnit, 1, 150, -kCos30, 0.5, 10, 30, "-0.866", "0.5", "1"},
    };
    for (const KnownRow& row : rows) {
        const ForceRecord record = Parsed(row.text);
        EXPECT_EQ(record[ForceFormatCode], Value(row.code)) << row.text;
        EXPECT_NEAR(record[ForceMagnitude].Number(), row.magnitude, kTolerance) << row.text;
        EXPECT_NEAR(record[ForceDirection].Number(), row.direction, kTolerance) << row.text;
        EXPECT_NEAR(record[ForceX].Number(), row.x, kTolerance) << row.text;
        EXPECT_NEAR(record[ForceY].Number(), row.y, kTolerance) << row.text;
        EXPECT_EQ(record[ForceHour], Value(row.hour)) << row.text;
        EXPECT_NEAR(record[ForceClockAngle].Number(), row.angle, kTolerance) << row.text;
        EXPECT_EQ(record[ForceXText], Value(row.x_text)) << row.text;
        EXPECT_EQ(record[ForceYText], Value(row.y_text)) << row.text;
        EXPECT_EQ(record[ForceShownMagnitude], Value(row.shown)) << row.text;
        EXPECT_EQ(record[ForceXUnknown], Value("")) << row.text;
        EXPECT_EQ(record[ForceYUnknown], Value("")) << row.text;
        EXPECT_EQ(record[ForceColour], Value(kKnownColour)) << row.text;
        EXPECT_EQ(record[ForceGivenText], Value(row.text));
        EXPECT_TRUE(record[ForceDrawDirection].IsEmpty()) << row.text;
    }
}

// A component: a known number, or its coefficient and unknown. `number` is NaN-free: coefficient when
// `unknown` is set.
struct Component {
    double number;
    const char* unknown;
    const char* text;
};

struct UnknownRow {
    const char* text;
    const char* magnitude;  // the symbol, or the number as text
    const char* direction;  // the same; "" when it is empty
    Component x, y;
    const char* shown;
    int hour;  // 0: none
    double angle;
};

void ExpectComponent(const ForceRecord& record, bool x, const Component& wanted, const char* text) {
    const std::string unknown = wanted.unknown;
    const Value& number =
        record[unknown.empty() ? (x ? ForceX : ForceY) : (x ? ForceXCoefficient : ForceYCoefficient)];
    ASSERT_TRUE(number.HoldsNumber()) << text;
    EXPECT_NEAR(number.Number(), wanted.number, kTolerance) << text;
    EXPECT_EQ(record[x ? ForceXUnknown : ForceYUnknown], Value(unknown)) << text;
    EXPECT_EQ(record[x ? ForceXText : ForceYText], Value(wanted.text)) << text;
    EXPECT_EQ(text::IsNum(record[x ? ForceX : ForceY]), unknown.empty()) << text;
}

TEST(ParseForce, ReadsSymbolsInEveryFormat) {
    const double sin20 = std::sin(20 * kRadians);
    const double cos20 = std::cos(20 * kRadians);
    const UnknownRow rows[] = {
        {"p30x,F", "F", "30", {kCos30, "F", "0.866 F"}, {0.5, "F", "0.5 F"}, "F", 2, 30},
        {"p20y,2t1",
         "T1",
         "70",
         {2 * sin20, "T1", "0.684 T1"},
         {2 * cos20, "T1", "1.879 T1"},
         "2 T!1",
         1,
         20},
        {"p30x,2F", "F", "30", {2 * kCos30, "F", "1.732 F"}, {1, "F", "F"}, "2 F", 2, 30},
        {"p30x,Th", "Th", "30", {kCos30, "Th", "0.866 Th"}, {0.5, "Th", "0.5 Th"}, "T!h", 2, 30},
        {"p30x,ab", "Ab", "30", {kCos30, "Ab", "0.866 Ab"}, {0.5, "Ab", "0.5 Ab"}, "A!b", 2, 30},
        {"p90x,F", "F", "90", {0, "F", "0"}, {1, "F", "F"}, "F", 2, 90},
        {"p30x,f2", "f2", "30", {kCos30, "f2", "0.866 f2"}, {0.5, "f2", "0.5 f2"}, "f!2", 2, 30},

        {"hF", "F", "0", {1, "F", "F"}, {0, "", "0"}, "F", 3, 0},
        {"h-2F1", "F1", "180", {-2, "F1", "-2 F1"}, {0, "", "0"}, "2 F!1", 9, 0},
        {"hab", "AB", "0", {1, "AB", "AB"}, {0, "", "0"}, "A!b", 3, 0},
        {"hfab", "fab", "0", {1, "fab", "fab"}, {0, "", "0"}, "f!a!b", 3, 0},
        {"v-N", "N", "-90", {0, "", "0"}, {-1, "N", "-N"}, "N", 6, 0},
        {"vQ", "Q", "90", {0, "", "0"}, {1, "Q", "Q"}, "Q", 12, 0},
        {"hola", "OLA", "0", {1, "OLA", "OLA"}, {0, "", "0"}, "O!L!A", 3, 0},
        {"hFuerza", "FUERZA", "", {1, "FUERZA", "FUERZA"}, {0, "", "0"}, "FUERZA", 0, 0},

        {"-F,0", "F", "180", {-1, "F", "-F"}, {0, "", "0"}, "-F,0", 9, 0},
        {"F,0.000000001", "F", "0", {1, "F", "F"}, {1e-9, "", "0"}, "F,0.000000001", 3, 0},
        {"0,2q", "Q", "90", {0, "", "0"}, {2, "Q", "2 Q"}, "0,2 Q", 12, 0},
        {"0,-q1", "Q1", "-90", {0, "", "0"}, {-1, "Q1", "-Q1"}, "0,-Q!1", 6, 0},
        {"10,F12", "", "", {10, "", "10"}, {1, "F12", "F12"}, "10,F!1!2", 0, 0},
        {"F1,-3", "", "", {1, "F1", "F1"}, {-3, "", "-3"}, "F!1,-3", 0, 0},
        {"-2Ax,Ay", "", "", {-2, "Ax", "-2 Ax"}, {1, "Ay", "Ay"}, "-2 A!X,A!Y", 0, 0},
        {"12,5h", "", "", {12, "", "12"}, {5, "H", "5 H"}, "12,5 H", 0, 0},
        {"px,10", "", "", {1, "Px", "Px"}, {10, "", "10"}, "P!X,10", 0, 0},

        {"2F<90", "F", "90", {0, "F", "0"}, {2, "F", "2 F"}, "2 F", 12, 0},
        {"T;150", "T", "150", {-kCos30, "T", "-0.866 T"}, {0.5, "T", "0.5 T"}, "T", 10, 30},
        {"2F1;120", "F1", "120", {-1, "F1", "-F1"}, {2 * kCos30, "F1", "1.732 F1"}, "2 F!1", 11, 30},
        {"20<a", "20", "A", {20, "cos A", "20 cos A"}, {20, "sen A", "20 sen A"}, "20", 0, 0},
        {"1<c", "1", "C", {1, "cos C", "cos C"}, {1, "sen C", "sen C"}, "1", 0, 0},
        {"20<alfa",
         "20",
         "Alfa",
         {20, "cos Alfa", "20 cos Alfa"},
         {20, "sen Alfa", "20 sen Alfa"},
         "20",
         0,
         0},
        {"F<a1", "F", "A1", {1, "F cos A1", "F cos A1"}, {1, "F sen A1", "F sen A1"}, "F", 0, 0},
        {"2F1<b", "F1", "B", {2, "F1 cos B", "2 F1 cos B"}, {2, "F1 sen B", "2 F1 sen B"}, "2 F!1", 0, 0},
        {"h5<3",
         "H5",
         "3",
         {std::cos(3 * kRadians), "H5", "0.999 H5"},
         {std::sin(3 * kRadians), "H5", "0.052 H5"},
         "H!5",
         2,
         3},

        {"ud", "1", "D", {1, "cos D", "cos D"}, {1, "sen D", "sen D"}, "1", 0, 0},
        {"ufi", "1", "fi", {1, "cos fi", "cos fi"}, {1, "sen fi", "sen fi"}, "1", 0, 0},
    };
    for (const UnknownRow& row : rows) {
        const ForceRecord record = Parsed(row.text);
        EXPECT_EQ(record[ForceMagnitude].Text(), row.magnitude) << row.text;
        EXPECT_EQ(record[ForceDirection].Text(), row.direction) << row.text;
        ExpectComponent(record, true, row.x, row.text);
        ExpectComponent(record, false, row.y, row.text);
        EXPECT_EQ(record[ForceShownMagnitude], Value(row.shown)) << row.text;
        EXPECT_EQ(record[ForceHour], row.hour == 0 ? Value() : Value(row.hour)) << row.text;
        EXPECT_EQ(record[ForceClockAngle].IsEmpty(), row.hour == 0) << row.text;
        EXPECT_NEAR(record[ForceClockAngle].Number(), row.angle, kTolerance) << row.text;
        EXPECT_EQ(record[ForceColour], Value(kUnknownColour)) << row.text;
    }
}

struct SymbolRow {
    const char* text;
    const char* symbol;
    double factor;
    const char* magnitude_text;
};

TEST(ParseForce, KeepsTheSymbolItsFactorAndTheMagnitudeText) {
    const SymbolRow rows[] = {
        {"p30x,2t1", "T1", 2, "2T1"}, {"p30x,f2a", "f2a", 1, "f2A"}, {"h-2f1", "f1", -2, "2F1"},
        {"v-N", "N", -1, "N"},        {"-F,0", "F", -1, "F"},        {"2ab<30", "Ab", 2, "2AB"},
        {"10,-2q", "Q", -2, ""},      {"F,Q", "F", 1, ""},
    };
    for (const SymbolRow& row : rows) {
        const ForceRecord record = Parsed(row.text);
        EXPECT_EQ(record[ForceSymbolPart], Value(row.symbol)) << row.text;
        EXPECT_EQ(record[ForceSymbolFactor], Value(row.factor)) << row.text;
        EXPECT_EQ(record[ForceMagnitudeText], Value(row.magnitude_text)) << row.text;
    }
}

TEST(ParseForce, MarksAnArrivingForceAndKeepsTheRest) {
    ForceRecord arriving = Parsed("10<30:");
    EXPECT_EQ(arriving[ForceLeavesPoint], Value(kArrives));
    EXPECT_EQ(arriving[ForceGivenText], Value("10<30:"));
    ForceRecord leaving = Parsed("10<30");
    EXPECT_EQ(leaving[ForceLeavesPoint], Value(kLeaves));
    arriving[ForceLeavesPoint] = leaving[ForceLeavesPoint];
    arriving[ForceGivenText] = leaving[ForceGivenText];
    EXPECT_EQ(arriving, leaving);
}

TEST(ParseForce, RoundsTheShownTextsToTheDecimalsInForce) {
    EXPECT_EQ(Parsed("p30x,F", 1)[ForceXText], Value("0.9 F"));
    EXPECT_EQ(Parsed("p30x,10", 0)[ForceXText], Value("9"));
    EXPECT_EQ(Parsed("p30x,5h", 5)[ForceMagnitudeText], Value("5.7735"));
    EXPECT_EQ(Parsed("p30x,1.23456", 5)[ForceShownMagnitude], Value("1.23"));
}

TEST(ParseForce, ShowsNoMinusZero) {
    EXPECT_EQ(Parsed("10<-180")[ForceYText], Value("0"));
    EXPECT_EQ(Parsed("10<90")[ForceXText], Value("0"));
    EXPECT_EQ(Parsed("p90x,10")[ForceXText], Value("0"));
}

}  // namespace
}  // namespace tavrelo::notation
