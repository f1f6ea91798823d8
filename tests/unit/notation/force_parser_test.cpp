#include "notation/force_parser.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <optional>
#include <string>

#include "notation/vector_format.h"
#include "text/number_text.h"

namespace tavrelo::notation {
namespace {

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

void ExpectNumber(const std::optional<double>& number, double wanted, const char* text) {
    ASSERT_TRUE(number) << text;
    EXPECT_NEAR(*number, wanted, kTolerance) << text;
}

// Hour 0: no direction is known.
void ExpectClock(const ForceRecord& record, int hour, double angle) {
    ASSERT_EQ(record.clock.has_value(), hour != 0) << record.given_text;
    if (hour == 0)
        return;
    EXPECT_EQ(record.clock->hour, hour) << record.given_text;
    EXPECT_NEAR(record.clock->angle, angle, kTolerance) << record.given_text;
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
        EXPECT_EQ(record.code, row.code) << row.text;
        ExpectNumber(record.force.magnitude, row.magnitude, row.text);
        ExpectNumber(record.force.direction, row.direction, row.text);
        ExpectNumber(record.force.x.number, row.x, row.text);
        ExpectNumber(record.force.y.number, row.y, row.text);
        ExpectClock(record, row.hour, row.angle);
        EXPECT_EQ(record.x_text, row.x_text) << row.text;
        EXPECT_EQ(record.y_text, row.y_text) << row.text;
        EXPECT_EQ(record.label, row.shown) << row.text;
        EXPECT_TRUE(record.force.x.unknown.IsNone()) << row.text;
        EXPECT_TRUE(record.force.y.unknown.IsNone()) << row.text;
        EXPECT_EQ(record.force.knowledge, Knowledge::Given) << row.text;
        EXPECT_EQ(record.given_text, row.text);
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
    const char* magnitude;  // the number as text; "" while it is unknown
    const char* direction;  // the same
    Component x, y;
    const char* shown;
    int hour;  // 0: none
    double angle;
};

void ExpectComponent(const ForceComponent& component, const Component& wanted, const char* text) {
    EXPECT_EQ(TextOf(component.unknown), wanted.unknown) << text;
    if (component.unknown.IsNone())
        ExpectNumber(component.number, wanted.number, text);
    else
        EXPECT_NEAR(component.coefficient, wanted.number, kTolerance) << text;
    EXPECT_EQ(component.number.has_value(), component.unknown.IsNone()) << text;
}

// "" for a number that is unknown.
std::string NumberText(const std::optional<double>& number) {
    return number ? text::NumberToText(*number) : std::string();
}

TEST(ParseForce, ReadsSymbolsInEveryFormat) {
    const double sin20 = std::sin(20 * kRadians);
    const double cos20 = std::cos(20 * kRadians);
    const UnknownRow rows[] = {
        {"p30x,F", "", "30", {kCos30, "F", "0.866 F"}, {0.5, "F", "0.5 F"}, "F", 2, 30},
        {"p20y,2t1", "", "70", {2 * sin20, "T1", "0.684 T1"}, {2 * cos20, "T1", "1.879 T1"}, "2 T!1", 1, 20},
        {"p30x,2F", "", "30", {2 * kCos30, "F", "1.732 F"}, {1, "F", "F"}, "2 F", 2, 30},
        {"p30x,Th", "", "30", {kCos30, "Th", "0.866 Th"}, {0.5, "Th", "0.5 Th"}, "T!h", 2, 30},
        {"p30x,ab", "", "30", {kCos30, "Ab", "0.866 Ab"}, {0.5, "Ab", "0.5 Ab"}, "A!b", 2, 30},
        {"p90x,F", "", "90", {0, "F", "0"}, {1, "F", "F"}, "F", 2, 90},
        {"p30x,f2", "", "30", {kCos30, "f2", "0.866 f2"}, {0.5, "f2", "0.5 f2"}, "f!2", 2, 30},

        {"hF", "", "0", {1, "F", "F"}, {0, "", "0"}, "F", 3, 0},
        {"h-2F1", "", "180", {-2, "F1", "-2 F1"}, {0, "", "0"}, "2 F!1", 9, 0},
        {"hab", "", "0", {1, "AB", "AB"}, {0, "", "0"}, "A!b", 3, 0},
        {"hfab", "", "0", {1, "fab", "fab"}, {0, "", "0"}, "f!a!b", 3, 0},
        {"v-N", "", "-90", {0, "", "0"}, {-1, "N", "-N"}, "N", 6, 0},
        {"vQ", "", "90", {0, "", "0"}, {1, "Q", "Q"}, "Q", 12, 0},
        {"hola", "", "0", {1, "OLA", "OLA"}, {0, "", "0"}, "O!L!A", 3, 0},
        {"hFuerza", "", "", {1, "FUERZA", "FUERZA"}, {0, "", "0"}, "FUERZA", 0, 0},

        {"-F,0", "", "180", {-1, "F", "-F"}, {0, "", "0"}, "-F,0", 9, 0},
        {"F,0.000000001", "", "0", {1, "F", "F"}, {1e-9, "", "0"}, "F,0.000000001", 3, 0},
        {"0,2q", "", "90", {0, "", "0"}, {2, "Q", "2 Q"}, "0,2 Q", 12, 0},
        {"0,-q1", "", "-90", {0, "", "0"}, {-1, "Q1", "-Q1"}, "0,-Q!1", 6, 0},
        {"10,F12", "", "", {10, "", "10"}, {1, "F12", "F12"}, "10,F!1!2", 0, 0},
        {"F1,-3", "", "", {1, "F1", "F1"}, {-3, "", "-3"}, "F!1,-3", 0, 0},
        {"-2Ax,Ay", "", "", {-2, "Ax", "-2 Ax"}, {1, "Ay", "Ay"}, "-2 A!X,A!Y", 0, 0},
        {"12,5h", "", "", {12, "", "12"}, {5, "H", "5 H"}, "12,5 H", 0, 0},
        {"px,10", "", "", {1, "Px", "Px"}, {10, "", "10"}, "P!X,10", 0, 0},

        {"2F<90", "", "90", {0, "F", "0"}, {2, "F", "2 F"}, "2 F", 12, 0},
        {"T;150", "", "150", {-kCos30, "T", "-0.866 T"}, {0.5, "T", "0.5 T"}, "T", 10, 30},
        {"2F1;120", "", "120", {-1, "F1", "-F1"}, {2 * kCos30, "F1", "1.732 F1"}, "2 F!1", 11, 30},
        {"20<a", "20", "", {20, "cos A", "20 cos A"}, {20, "sen A", "20 sen A"}, "20", 0, 0},
        {"1<c", "1", "", {1, "cos C", "cos C"}, {1, "sen C", "sen C"}, "1", 0, 0},
        {"20<alfa", "20", "", {20, "cos Alfa", "20 cos Alfa"}, {20, "sen Alfa", "20 sen Alfa"}, "20", 0, 0},
        {"F<a1", "", "", {1, "F cos A1", "F cos A1"}, {1, "F sen A1", "F sen A1"}, "F", 0, 0},
        {"2F1<b", "", "", {2, "F1 cos B", "2 F1 cos B"}, {2, "F1 sen B", "2 F1 sen B"}, "2 F!1", 0, 0},
        {"h5<3",
         "",
         "3",
         {std::cos(3 * kRadians), "H5", "0.999 H5"},
         {std::sin(3 * kRadians), "H5", "0.052 H5"},
         "H!5",
         2,
         3},

        {"ud", "1", "", {1, "cos D", "cos D"}, {1, "sen D", "sen D"}, "1", 0, 0},
        {"ufi", "1", "", {1, "cos fi", "cos fi"}, {1, "sen fi", "sen fi"}, "1", 0, 0},
    };
    for (const UnknownRow& row : rows) {
        const ForceRecord record = Parsed(row.text);
        EXPECT_EQ(NumberText(record.force.magnitude), row.magnitude) << row.text;
        EXPECT_EQ(NumberText(record.force.direction), row.direction) << row.text;
        ExpectComponent(record.force.x, row.x, row.text);
        ExpectComponent(record.force.y, row.y, row.text);
        EXPECT_EQ(record.x_text, row.x.text) << row.text;
        EXPECT_EQ(record.y_text, row.y.text) << row.text;
        EXPECT_EQ(record.label, row.shown) << row.text;
        ExpectClock(record, row.hour, row.angle);
        EXPECT_EQ(record.force.knowledge, Knowledge::Unknown) << row.text;
    }
}

TEST(ParseForce, MarksAnArrivingForceAndKeepsTheRest) {
    ForceRecord arriving = Parsed("10<30:");
    EXPECT_FALSE(arriving.leaves);
    EXPECT_EQ(arriving.given_text, "10<30:");
    const ForceRecord leaving = Parsed("10<30");
    EXPECT_TRUE(leaving.leaves);
    arriving.leaves = leaving.leaves;
    arriving.given_text = leaving.given_text;
    EXPECT_EQ(arriving, leaving);
}

TEST(ParseForce, RoundsTheShownTextsToTheDecimalsInForce) {
    EXPECT_EQ(Parsed("p30x,F", 1).x_text, "0.9 F");
    EXPECT_EQ(Parsed("p30x,10", 0).x_text, "9");
    EXPECT_EQ(Parsed("p30x,5h", 5).y_text, "2.88675");
    EXPECT_EQ(Parsed("p30x,1.23456", 5).label, "1.23");
}

TEST(ParseForce, ShowsNoMinusZero) {
    EXPECT_EQ(Parsed("10<-180").y_text, "0");
    EXPECT_EQ(Parsed("10<90").x_text, "0");
    EXPECT_EQ(Parsed("p90x,10").x_text, "0");
}

}  // namespace
}  // namespace tavrelo::notation
