#include "numeric/angles.h"

#include <gtest/gtest.h>

#include <cmath>

#include "../failure_code.h"

namespace tavrelo::numeric {
namespace {

using testing::FailureOf;

/// The fifteen-digit constants are right to about this share.
constexpr double kConstantsTolerance = 1e-12;

TEST(Angles, OnlyWhatIsAlmostWholeBecomesWhole) {
    EXPECT_EQ(WholeDegrees(45.000000000000064), 45);
    EXPECT_EQ(WholeDegrees(-134.99999999999994), -135);
    EXPECT_EQ(WholeDegrees(45.00000000001), 45.00000000001);
    EXPECT_EQ(WholeDegrees(45.5), 45.5);
    EXPECT_EQ(WholeDegrees(1e-13), 1e-13);
    EXPECT_EQ(WholeDegrees(-1e-13), -1e-13);
    EXPECT_EQ(WholeDegrees(0), 0);
}

TEST(Angles, DirectFunctionsTakeDegrees) {
    EXPECT_NEAR(SinD(30), 0.5, kConstantsTolerance);
    EXPECT_NEAR(SinD(-90), -1, kConstantsTolerance);
    EXPECT_NEAR(CosD(60), 0.5, kConstantsTolerance);
    EXPECT_NEAR(CosD(180), -1, kConstantsTolerance);
    EXPECT_NEAR(TanD(45), 1, kConstantsTolerance);
    EXPECT_NEAR(SinD(37) * SinD(37) + CosD(37) * CosD(37), 1, kConstantsTolerance);
}

TEST(Angles, HyperbolicFunctions) {
    // Values by Python's math.sinh and math.cosh.
    EXPECT_NEAR(SinH(1), 1.1752011936438014, 1e-15);
    EXPECT_NEAR(CosH(1), 1.5430806348152437, 1e-15);
    EXPECT_EQ(SinH(0), 0);
    EXPECT_EQ(CosH(0), 1);
    EXPECT_EQ(FailureOf([] { SinH(800); }), FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] { CosH(-800); }), FailureCode::Overflow);
}

TEST(Angles, InverseFunctionsGiveWholeDegrees) {
    EXPECT_EQ(ArcTanD(0), 0);
    EXPECT_EQ(ArcTanD(1), 45);
    EXPECT_EQ(ArcTanD(-1), -45);
    EXPECT_EQ(ArcTanD(1e300), 90);
    EXPECT_EQ(ArcSinD(1), 90);
    EXPECT_EQ(ArcSinD(-1), -90);
    EXPECT_EQ(ArcSinD(0.5), 30);
    EXPECT_EQ(ArcSinD(0), 0);
    EXPECT_EQ(ArcCosD(0), 90);
    EXPECT_EQ(ArcCosD(0.5), 60);
    EXPECT_EQ(ArcCosD(-0.5), 120);
    // Values by Python's math.degrees of asin and acos.
    EXPECT_NEAR(ArcSinD(0.6), 36.86989764584402, 1e-11);
    EXPECT_NEAR(ArcCosD(0.6), 53.13010235415599, 1e-11);
    EXPECT_NEAR(ArcTanD(1e-10) / 1e-10, 57.2957795130824, 1e-10);
}

TEST(Angles, ArcCosDHasEndValuesOfItsOwn) {
    EXPECT_EQ(ArcCosD(1), 180);
    EXPECT_EQ(ArcCosD(-1), -180);
    EXPECT_LT(ArcCosD(std::nextafter(1.0, 0.0)), 1e-5);
}

TEST(Angles, NoArcBeyondOne) {
    for (const double x : {1.0000000001, -1.1, 2.0, 1e200}) {
        EXPECT_EQ(FailureOf([x] { ArcSinD(x); }), FailureCode::OutOfDomain) << x;
        EXPECT_EQ(FailureOf([x] { ArcCosD(x); }), FailureCode::OutOfDomain) << x;
    }
}

TEST(Angles, LengthOfAVector) {
    EXPECT_EQ(Hypot(3, -4), 5);
    EXPECT_EQ(Hypot(0, 0), 0);
    EXPECT_EQ(FailureOf([] { Hypot(1e200, 1e200); }), FailureCode::Overflow);
}

TEST(Angles, DirectionOfAVector) {
    struct Row {
        double x;
        double y;
        double angle;
    };
    for (const Row& row :
         {Row{1, 0, 0},       Row{0, 1, 90},        Row{-1, 0, 180},         Row{0, -1, -90},
          Row{1, 1, 45},      Row{-1, 1, 135},      Row{-1, -1, -135},       Row{1, -1, -45},
          Row{0, 0, 0},       Row{1e-7, 5, 90},     Row{-1e-7, -5, -90},     Row{5, 1e-7, 0},
          Row{-5, 1e-7, 180}, Row{-1, -1e-7, 180},  Row{1e-7, 1e-8, 90},     Row{1e-7, -1e-8, -90},
          Row{1e-7, 0, 0},    Row{-1e-7, 0, 180},   Row{1, 1e300, 90},       Row{-1e300, 1, 180},
          Row{1e-300, 0, 0},  Row{0, -1e-300, -90}, Row{std::sqrt(3), 1, 30}}) {
        EXPECT_EQ(AngleOf(row.x, row.y), row.angle) << row.x << ", " << row.y;
    }
    // Python: math.degrees(math.atan2(4, 3)).
    EXPECT_NEAR(AngleOf(3, 4), 53.13010235415598, 1e-11);
    EXPECT_NEAR(AngleOf(-3, 4), 180 - 53.13010235415598, 1e-11);
    EXPECT_NEAR(AngleOf(-3, -4), 53.13010235415598 - 180, 1e-11);
}

TEST(Angles, AVectorOfEveryWholeDegreePointsThere) {
    for (int degrees = -179; degrees <= 180; ++degrees) {
        EXPECT_EQ(AngleOf(CosD(degrees), SinD(degrees)), degrees);
    }
}

TEST(Angles, NormAngleWrapsOneTurn) {
    struct Row {
        double angle;
        double normal;
    };
    for (const Row& row : {Row{0, 0}, Row{180, 180}, Row{-180, 180}, Row{-179.5, -179.5}, Row{181, -179},
                           Row{-181, 179}, Row{360, 0}, Row{-360, 0}, Row{540, 180}, Row{-540, -180},
                           Row{541, 0}, Row{-541, 0}, Row{1e300, 0}}) {
        EXPECT_EQ(NormAngle(row.angle), row.normal) << row.angle;
    }
}

TEST(Angles, ClockReadings) {
    struct Row {
        double x;
        double y;
        int hour;
        double angle;
    };
    const double root3 = std::sqrt(3);
    for (const Row& row :
         {Row{1, 0, 3, 0}, Row{0, 1, 12, 0}, Row{-1, 0, 9, 0}, Row{0, -1, 6, 0}, Row{0, 0, 3, 0},
          Row{1, 1, 2, 45}, Row{-1, 1, 11, 45}, Row{1, -1, 4, 45}, Row{-1, -1, 7, 45}, Row{root3, 1, 2, 30},
          Row{1, root3, 1, 30}, Row{-1, root3, 11, 30}, Row{-root3, 1, 10, 30}, Row{root3, -1, 4, 30},
          Row{1, -root3, 5, 30}, Row{-1, -root3, 7, 30}, Row{-root3, -1, 8, 30}}) {
        const ClockReading reading = ClockOf(row.x, row.y);
        EXPECT_EQ(reading.hour, row.hour) << row.x << ", " << row.y;
        EXPECT_EQ(reading.angle, row.angle) << row.x << ", " << row.y;
    }
    EXPECT_EQ(ClockOf(1, 2).hour, 1);
}

}  // namespace
}  // namespace tavrelo::numeric
