#include "mechanics/forces/resultants.h"

#include <gtest/gtest.h>

#include <cmath>

#include "../../failure_code.h"

namespace tavrelo::mechanics::forces {
namespace {

using numeric::FailureCode;
using numeric::Point;
using testing::FailureOf;
using Arguments = std::span<const double>;

constexpr double kTolerance = 1e-9;

PlaneVector Vector(double x, double y) { return VectorFromComponents(x, y); }

void ExpectVector(const PlaneVector& found, double x, double y) {
    EXPECT_NEAR(found.x, x, kTolerance);
    EXPECT_NEAR(found.y, y, kTolerance);
    EXPECT_NEAR(found.magnitude, std::hypot(x, y), kTolerance);
}

PlacedForce Placed(double x, double y, double fx, double fy) { return {Vector(x, y), Vector(fx, fy)}; }

TEST(VectorFromComponents, HasBothForms) {
    const PlaneVector v = Vector(-3, 4);
    EXPECT_EQ(v.magnitude, 5);
    EXPECT_NEAR(v.direction, 126.86989764584402, kTolerance);
    EXPECT_EQ(v.hour, 11);
    EXPECT_NEAR(v.clock_angle, 36.86989764584402, kTolerance);
    EXPECT_EQ(FailureOf([] { Vector(1e200, 0); }), FailureCode::Overflow);
}

TEST(ReadVector, KeepsWhatWasWritten) {
    const auto reading = ReadVector("-2<90");
    ASSERT_TRUE(std::holds_alternative<PlaneVector>(reading));
    const PlaneVector& v = std::get<PlaneVector>(reading);
    EXPECT_NEAR(v.x, 0, kTolerance);
    EXPECT_NEAR(v.y, -2, kTolerance);
    EXPECT_EQ(v.magnitude, -2);
    EXPECT_EQ(v.direction, 90);
    EXPECT_EQ(v.hour, 6);
}

TEST(ReadVector, RefusesWithTheParsersWordsAndFailsWithoutADirection) {
    EXPECT_EQ(std::get<text::Refusal>(ReadVector("h")).text, "Falta el valor de la componente X.");
    EXPECT_EQ(FailureOf([] { ReadVector("12,5h"); }), FailureCode::TypeMismatch);
}

TEST(VectorSum2, SumDifferenceAndProducts) {
    const SumAndProducts result = VectorSum2(Vector(3, 4), Vector(1, 2));
    ExpectVector(result.sum, 4, 6);
    ExpectVector(result.difference, 2, 2);
    EXPECT_EQ(result.difference.direction, 45);
    EXPECT_EQ(result.dot, 11);
    EXPECT_EQ(result.cross, 2);
    // The directions are 53.1301... and 63.4349... degrees.
    EXPECT_NEAR(result.angle, 10.304846468766033, 1e-8);
    EXPECT_EQ(VectorSum2(Vector(2, 0), Vector(0, 3)).angle, 90);
}

TEST(VectorSum2, ParallelVectorsTakeTheEndValuesOfTheArccosine) {
    for (const auto& [a, b] : {std::pair(Vector(1, 0), Vector(2, 0)), std::pair(Vector(2, 3), Vector(4, 6)),
                               std::pair(Vector(1, 1), Vector(2, 2))}) {
        EXPECT_EQ(VectorSum2(a, b).angle, 180);
        EXPECT_EQ(VectorSum2(a, Vector(-b.x, -b.y)).angle, -180);
    }
    EXPECT_EQ(FailureOf([] { VectorSum2(Vector(0, 0), Vector(1, 1)); }), FailureCode::DivisionByZero);
}

TEST(BaseDecompose, FindsTheFactors) {
    const auto factors = BaseDecompose(Vector(7, 11), Vector(2, 1), Vector(1, 3));  // 2 (2, 1) + 3 (1, 3)
    ASSERT_TRUE(factors);
    EXPECT_NEAR(factors->lambda, 2, kTolerance);
    EXPECT_NEAR(factors->mu, 3, kTolerance);
    EXPECT_FALSE(BaseDecompose(Vector(1, 1), Vector(2, 1), Vector(-4, -2)));
    EXPECT_FALSE(BaseDecompose(Vector(1, 1), Vector(1e-3, 0), Vector(0, 1e-3)));  // within the tolerance
}

TEST(VectorFromProjections, HasTheProjectionsAsked) {
    const PlaneVector a = Vector(3, 1), b = Vector(-1, 2), v = Vector(5, -7);
    const double on_a = (v.x * a.x + v.y * a.y) / 10;  // multiples of the lengths squared, 10 and 5
    const double on_b = (v.x * b.x + v.y * b.y) / 5;
    const auto found = VectorFromProjections(a, on_a, b, on_b);
    ASSERT_TRUE(found);
    ExpectVector(*found, 5, -7);
    EXPECT_FALSE(VectorFromProjections(a, 1, Vector(6, 2), 1));
}

TEST(VectorListSum, WithAndWithoutFactors) {
    ExpectVector(VectorListSum(std::vector{Vector(3, 4), Vector(-1, 0), Vector(0, 2)}), 2, 6);
    ExpectVector(VectorListSum(std::vector<WeightedVector>{{2, Vector(3, 4)}, {-0.5, Vector(2, 2)}}), 5, 7);
    ExpectVector(VectorListSum(std::vector<PlaneVector>{}), 0, 0);
}

TEST(VectorListMoments, AboutTheOriginAndAboutAPoint) {
    const std::vector forces = {Placed(2, 0, 0, 3), Placed(0, 1, 4, 0), Placed(1, 1, 2, 5)};
    EXPECT_NEAR(VectorListMoments(forces), 6 - 4 + 3, kTolerance);
    EXPECT_NEAR(VectorListMoments(forces, {1, 1}), 3 + 0 + 0, kTolerance);
}

TEST(RotateVector, TurnsTheVectorOrTheAxes) {
    ExpectVector(RotateVector(Vector(3, 4), 90, RotationKind::Vector), -4, 3);
    ExpectVector(RotateVector(Vector(3, 4), 90, RotationKind::Axes), 4, -3);
    ExpectVector(RotateVector(Vector(2, 0), 60, RotationKind::Vector), 1, std::sqrt(3.0));
    ExpectVector(RotateVector(Vector(2, 0), 60, RotationKind::Axes), 1, -std::sqrt(3.0));
}

TEST(PlaneForces, AForceAndItsLineOfAction) {
    // 3 upward at x = 4 and 2 to the right at y = 5: moment 12 - 10, line 3 x - 2 y = 2.
    const PlaneResultant result = PlaneForces(std::vector{Placed(4, 0, 0, 3), Placed(0, 5, 2, 0)}, {});
    ExpectVector(result.force, 2, 3);
    EXPECT_NEAR(result.moment, 2, kTolerance);
    EXPECT_EQ(result.kind, ResultantKind::Force);
    EXPECT_EQ(result.line, ActionLine::Oblique);
    EXPECT_NEAR(result.x_intercept, 2.0 / 3, kTolerance);
    EXPECT_NEAR(result.y_intercept, -1, kTolerance);
    EXPECT_NEAR(MomentAt(result, {result.x_intercept, 0}), 0, kTolerance);
    EXPECT_NEAR(MomentAt(result, {0, result.y_intercept}), 0, kTolerance);
    EXPECT_NEAR(MomentAt(result, {1, 1}), 2 - (3 - 2), kTolerance);
}

TEST(PlaneForces, HorizontalAndVerticalLines) {
    const PlaneResultant level = PlaneForces(std::vector{Placed(7, 2, 5, 0)}, std::vector{4.0});
    EXPECT_EQ(level.line, ActionLine::Horizontal);
    EXPECT_NEAR(level.moment, -6, kTolerance);
    EXPECT_NEAR(level.y_intercept, 6.0 / 5, kTolerance);
    const PlaneResultant upright = PlaneForces(std::vector{Placed(3, 8, 0, -2)}, {});
    EXPECT_EQ(upright.line, ActionLine::Vertical);
    EXPECT_NEAR(upright.x_intercept, 3, kTolerance);
}

TEST(PlaneForces, ACoupleAndNothing) {
    const std::vector couple = {Placed(0, 0, 0, -5), Placed(3, 0, 0, 5)};
    const PlaneResultant turning = PlaneForces(couple, {});
    EXPECT_EQ(turning.kind, ResultantKind::Couple);
    EXPECT_NEAR(turning.moment, 15, kTolerance);
    EXPECT_NEAR(MomentAt(turning, {-4, 9}), 15, kTolerance);  // a couple is the same everywhere
    EXPECT_EQ(PlaneForces(couple, std::vector{-15.0}).kind, ResultantKind::Null);
    EXPECT_EQ(PlaneForces({}, std::vector{2.0}).kind, ResultantKind::Couple);
    EXPECT_EQ(PlaneForces({}, {}).kind, ResultantKind::Null);
}

TEST(ParallelLine, ForceCoupleAndNothing) {
    const LineResultant beam = ParallelLine(std::vector<LineForce>{{1, 20}, {4, 30}});
    EXPECT_EQ(beam.kind, ResultantKind::Force);
    EXPECT_EQ(beam.force, 50);
    EXPECT_NEAR(beam.x, 2.8, kTolerance);
    EXPECT_NEAR(MomentAt(beam, 2), 40, kTolerance);  // 30 * 2 - 20 * 1
    const LineResultant couple = ParallelLine(std::vector<LineForce>{{1, -20}, {4, 20}});
    EXPECT_EQ(couple.kind, ResultantKind::Couple);
    EXPECT_EQ(couple.moment, 60);
    EXPECT_EQ(ParallelLine({}).kind, ResultantKind::Null);
    EXPECT_EQ(FailureOf([] { ParallelLine(std::vector<LineForce>{{1e200, 1e200}}); }), FailureCode::Overflow);
}

TEST(ParallelSpace, ForceCoupleAndNothing) {
    // Corners of a slab of 6 by 4: moments about x are y Fz, about y minus x Fz.
    const std::vector<VerticalForce> slab = {{{0, 0}, 10}, {{6, 0}, 20}, {{6, 4}, 30}, {{0, 4}, 40}};
    const SpaceResultant result = ParallelSpace(slab);
    EXPECT_EQ(result.kind, ResultantKind::Force);
    EXPECT_EQ(result.force, 100);
    EXPECT_EQ(result.moment_x, 280);
    EXPECT_EQ(result.moment_y, -300);
    EXPECT_NEAR(result.position.x, 3, kTolerance);
    EXPECT_NEAR(result.position.y, 2.8, kTolerance);
    EXPECT_EQ(MomentAt(result, result.position), (Point{0, 0}));
    EXPECT_EQ(MomentAt(result, {6, 4}), (Point{-120, 300}));  // 280 - 4 * 100, -300 + 6 * 100
    EXPECT_EQ(ParallelSpace(std::vector<VerticalForce>{{{0, 1}, 5}, {{0, 2}, -5}}).kind,
              ResultantKind::Couple);
    EXPECT_EQ(ParallelSpace(std::vector<VerticalForce>{{{1, 1}, 5}, {{1, 1}, -5}}).kind, ResultantKind::Null);
}

/// The resultant of the load f(x) between x1 and x2.
template <typename Load>
std::optional<LineResultant> ResultantOf(Load load, double x1, double x2) {
    const auto density = [&](Arguments arguments) { return load(arguments[0]); };
    const auto moment = [&](Arguments arguments) { return arguments[0] * load(arguments[0]); };
    return DistributedLoad(density, moment, x1, x2);
}

TEST(DistributedLoad, UniformAndTriangular) {
    for (const auto& [x1, x2] : {std::pair(0.0, 3.0), std::pair(3.0, 0.0)}) {
        const LineResultant uniform = ResultantOf([](double) { return 2.0; }, x1, x2).value();
        EXPECT_EQ(uniform.kind, ResultantKind::Force);
        EXPECT_NEAR(uniform.force, 6, 1e-4);
        EXPECT_NEAR(uniform.x, 1.5, 1e-4);
    }
    const LineResultant triangular = ResultantOf([](double x) { return 100 * x / 3; }, 0, 6).value();
    EXPECT_NEAR(triangular.force, 600, 1e-2);  // half of 6 by 200, at two thirds of the span
    EXPECT_NEAR(triangular.moment, 2400, 1e-1);
    EXPECT_NEAR(triangular.x, 4, 1e-4);
}

TEST(DistributedLoad, ACoupleAndNothing) {
    const LineResultant couple = ResultantOf([](double x) { return x - 1; }, 0, 2).value();
    EXPECT_EQ(couple.kind, ResultantKind::Couple);
    EXPECT_NEAR(couple.moment, 2.0 / 3, 1e-5);
    EXPECT_EQ(ResultantOf([](double) { return 0.0; }, 0, 3).value().kind, ResultantKind::Null);
}

/// 20 (x - 2) from 2 to 5 is a triangle of base 3 and height 60: 90 at two thirds of it, x = 4.
TEST(DistributedLoad, LoadsThatBeginAtZero) {
    const LineResultant triangle = ResultantOf([](double x) { return 20 * (x - 2); }, 2, 5).value();
    EXPECT_NEAR(triangle.force, 90, 1e-3);
    EXPECT_NEAR(triangle.x, 4, 1e-4);
    // 4 on the second half of 3: 6 at 2.25, as well as the steps find the jump.
    const LineResultant late = ResultantOf([](double x) { return x < 1.5 ? 0.0 : 4.0; }, 0, 3).value();
    EXPECT_NEAR(late.force, 6, 1e-2);
    EXPECT_NEAR(late.x, 2.25, 1e-2);
}

TEST(DistributedLoad, GivesUpALoadThatIsZeroAtBothEnds) {
    EXPECT_FALSE(ResultantOf([](double x) { return x > 1 && x < 2 ? 4.0 : 0.0; }, 0, 3).has_value());
    EXPECT_EQ(FailureOf([] { ResultantOf([](double x) { return numeric::CheckedDivide(1, x); }, 0, 1); }),
              FailureCode::DivisionByZero);
}

}  // namespace
}  // namespace tavrelo::mechanics::forces
