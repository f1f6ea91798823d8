// Systems for v0 and a, and the quadratic equation: each is built from a known answer.

#include "mechanics/motion/equation_systems.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "../../failure_code.h"
#include "notation/typed_list.h"

namespace tavrelo::mechanics::motion {
namespace {

using notation::kNonNumericCoefficient;
using notation::kWrongCoefficientCount;
using numeric::FailureCode;
using testing::FailureOf;
using Lines = std::vector<std::string>;
using Solutions = std::vector<SystemSolution>;

constexpr int kDecimals = 3;
constexpr SystemShape kShapes[] = {SystemShape::VA_VA, SystemShape::V2A_VA, SystemShape::V2A2A_VA,
                                   SystemShape::V2A2A_V2A};

Lines LinesOf(const std::variant<text::Refusal, Lines>& answer) {
    if (const auto* refusal = std::get_if<text::Refusal>(&answer))
        return {"refused: " + refusal->text};
    return std::get<Lines>(answer);
}

TEST(EquationSystems, ReportsTheSystemAndItsSolutions) {
    struct Row {
        SystemShape shape;
        const char* typed;
        Lines lines;
    };
    const Row rows[] = {
        // v0 = 2, a = 3.
        {SystemShape::VA_VA,
         "1, 2, 8, 3, -1, 3",
         {"Resolver el sistema:", "v!0 + 2 a = 8", "3 v!0 ;- a = 3", "v!0 = 2, a = 3"}},
        {SystemShape::VA_VA,
         "-1.5, 0, -3, 0, 2, -6",
         {"Resolver el sistema:", ";- 1.5 v!0 = ;-3", "2 a = ;-6", "v!0 = 2, a = -3"}},
        // v0^2 + a = 7 and v0 + a = 5: v0^2 - v0 - 2 = 0, v0 = 2 or -1.
        {SystemShape::V2A_VA,
         "1, 1, 7, 1, 1, 5",
         {"Resolver el sistema:", "v!0¡2 + a = 7", "v!0 + a = 5", "v!0 = 2, a = 3",
          "o bien   v!0 = -1, a = 6"}},
        // The second equation has no a: v0 = 3, a = (20 - 2 * 9)/4.
        {SystemShape::V2A_VA,
         "2, 4, 20, 2, 0, 6",
         {"Resolver el sistema:", "2 v!0¡2 + 4 a = 20", "2 v!0 = 6", "v!0 = 3, a = 0.5"}},
        // v0^2 + a^2 + a = 8 and v0 - a = 1: 2 a^2 + 3 a - 7 = 0, a = (-3 -+ sqrt 65)/4.
        {SystemShape::V2A2A_VA,
         "1, 1, 1, 8, 1, -1, 1",
         {"Resolver el sistema:", "v!0¡2 + a¡2 + a = 8", "v!0 ;- a = 1", "v!0 = -1.766, a = -2.766",
          "o bien   v!0 = 2.266, a = 1.266"}},
        // The second equation has no v0: a = 2, v0^2 = 15 - 4 - 2.
        {SystemShape::V2A2A_VA,
         "1, 1, 1, 15, 0, 3, 6",
         {"Resolver el sistema:", "v!0¡2 + a¡2 + a = 15", "3 a = 6", "v!0 = #mame 3, a = 2"}},
        // v0^2 + a^2 = 13 and v0^2 - 2 a = 5: a^2 + 2 a - 8 = 0, a = -4 (v0^2 = -3) or 2 (v0^2 = 9).
        {SystemShape::V2A2A_V2A,
         "1, 1, 0, 13, 1, -2, 5",
         {"Resolver el sistema:", "v!0¡2 + a¡2 = 13", "v!0¡2 ;- 2 a = 5", "v!0 = #mame 3, a = 2"}},
        // v0^2 + a^2 = 13 and v0^2 + a = 11: a^2 - a - 2 = 0, a = 2 (v0^2 = 9) or -1 (v0^2 = 12).
        {SystemShape::V2A2A_V2A,
         "1, 1, 0, 13, 1, 1, 11",
         {"Resolver el sistema:", "v!0¡2 + a¡2 = 13", "v!0¡2 + a = 11", "v!0 = #mame 3, a = 2",
          "o bien   v!0 = #mame 3.464, a = -1"}},
        // A square of 0 has one root.
        {SystemShape::V2A2A_V2A,
         "1, 0, 1, 2, 1, 2, 4",
         {"Resolver el sistema:", "v!0¡2 + a = 2", "v!0¡2 + 2 a = 4", "v!0 = 0, a = 2"}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(LinesOf(ReportSystem(row.shape, row.typed, kDecimals)), row.lines) << row.typed;
}

TEST(EquationSystems, RefusesByName) {
    struct Row {
        SystemShape shape;
        const char* typed;
        std::string_view refusal;
    };
    for (const Row& row : {
             Row{SystemShape::VA_VA, "1, 2, x, 3, 4, 5", kNonNumericCoefficient},
             {SystemShape::VA_VA, "1, 2, , 3, 4, 5", kNonNumericCoefficient},
             {SystemShape::VA_VA, "1, 2, 3, 4, 5", kWrongCoefficientCount},
             {SystemShape::V2A_VA, "", kWrongCoefficientCount},
             {SystemShape::V2A_VA, "1, 2, 3, 4, 5, 6, 7", kWrongCoefficientCount},
             {SystemShape::V2A2A_VA, "1, 2, 3, 4, 5, 6", kWrongCoefficientCount},
             {SystemShape::V2A2A_V2A, "1, 2, 3, 4, 5, 6, 7, 8", kWrongCoefficientCount},
             {SystemShape::VA_VA, "1, 2, 3, 2, 4, 6", kZeroSystem},
             {SystemShape::VA_VA, "0.1, 0.3, 3, 0.2, 0.6, 7", kZeroSystem},
             // v0^2 + a = 1 and a = 2.
             {SystemShape::V2A_VA, "1, 1, 1, 0, 1, 2", kNoSystemSolution},
             {SystemShape::V2A2A_VA, "1, 1, 0, -1, 1, 1, 0", kNoSystemSolution},
             {SystemShape::V2A2A_VA, "1, 0, 1, 1, 0, 1, 2", kNoSystemSolution},
             {SystemShape::V2A2A_V2A, "1, 1, 0, -1, 1, 0, 1", kNoSystemSolution},
         }) {
        EXPECT_EQ(LinesOf(ReportSystem(row.shape, row.typed, kDecimals)),
                  Lines{"refused: " + std::string(row.refusal)})
            << row.typed;
    }
}

TEST(EquationSystems, AMissingUnknownFails) {
    const auto failure_of = [](SystemShape shape, const char* typed) {
        return FailureOf([=] { (void)ReportSystem(shape, typed, kDecimals); });
    };
    EXPECT_EQ(failure_of(SystemShape::V2A_VA, "1, 1, 1, 0, 0, 2"), FailureCode::DivisionByZero);
    EXPECT_EQ(failure_of(SystemShape::V2A2A_VA, "1, 1, 1, 1, 0, 0, 2"), FailureCode::DivisionByZero);
    EXPECT_EQ(failure_of(SystemShape::V2A2A_V2A, "1, 1, 1, 1, 0, 1, 2"), FailureCode::DivisionByZero);
    EXPECT_EQ(failure_of(SystemShape::VA_VA, "1E300, 1, 1, 1, 1E300, 2"), FailureCode::Overflow);
    EXPECT_EQ(FailureOf([] {
                  (void)SolveSystem(SystemShape::VA_VA, {1, 2, 3});
              }),
              FailureCode::SubscriptRange);
}

// Coefficients at random, the right sides from a chosen v0 and a: the answer is among the solutions.
TEST(EquationSystems, TheChosenSpeedAndAccelerationAreFound) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> coefficient(-10, 10);
    for (const SystemShape shape : kShapes) {
        const bool squared = shape != SystemShape::VA_VA, second_squared = shape == SystemShape::V2A2A_V2A;
        const bool with_a_squared = CoefficientCount(shape) == 7;
        for (int k = 0; k < 2000; ++k) {
            const double v = coefficient(random), a = coefficient(random);
            const double a11 = coefficient(random), a12 = coefficient(random), a13 = coefficient(random);
            const double a21 = coefficient(random), a22 = coefficient(random);
            const double first_v = squared ? v * v : v, second_v = second_squared ? v * v : v;
            std::vector<double> list = {a11, a12};
            if (with_a_squared) {
                list.push_back(a13);
                list.push_back(a11 * first_v + a12 * a * a + a13 * a);
            } else {
                list.push_back(a11 * first_v + a12 * a);
            }
            list.insert(list.end(), {a21, a22, a21 * second_v + a22 * a});
            const auto answer = SolveSystem(shape, list);
            ASSERT_TRUE(std::holds_alternative<Solutions>(answer));
            bool found = false;
            for (const SystemSolution& solution : std::get<Solutions>(answer)) {
                const double expected = solution.both_signs ? std::abs(v) : v;
                found = found || (std::abs(solution.v0 - expected) < 1e-4 && std::abs(solution.a - a) < 1e-4);
            }
            EXPECT_TRUE(found) << static_cast<int>(shape) << " v0 = " << v << ", a = " << a;
        }
    }
}

// Small whole coefficients, zeros among them: whatever is answered satisfies both equations.
TEST(EquationSystems, EverySolutionSatisfiesBothEquations) {
    std::mt19937 random(6);
    std::uniform_int_distribution<int> whole(-4, 4);
    int solutions = 0;
    for (const SystemShape shape : kShapes)
        for (int k = 0; k < 5000; ++k) {
            std::vector<double> c(CoefficientCount(shape));
            for (double& value : c)
                value = whole(random);
            std::variant<text::Refusal, Solutions> answer;
            try {
                answer = SolveSystem(shape, c);
            } catch (const numeric::RuntimeFailure&) {
                continue;
            }
            if (!std::holds_alternative<Solutions>(answer))
                continue;
            for (const SystemSolution& s : std::get<Solutions>(answer)) {
                ++solutions;
                const double v2 = s.v0 * s.v0;
                const std::size_t last = c.size() - 1;
                if (c.size() == 7)
                    EXPECT_NEAR(c[0] * v2 + c[1] * s.a * s.a + c[2] * s.a, c[3], 1e-8 * (1 + v2 + s.a * s.a));
                else
                    EXPECT_NEAR(c[0] * (shape == SystemShape::VA_VA ? s.v0 : v2) + c[1] * s.a, c[2],
                                1e-8 * (1 + v2 + s.a * s.a));
                EXPECT_NEAR(c[last - 2] * (shape == SystemShape::V2A2A_V2A ? v2 : s.v0) + c[last - 1] * s.a,
                            c[last], 1e-8 * (1 + v2 + std::abs(s.a)));
            }
        }
    EXPECT_GT(solutions, 5000);
}

TEST(QuadraticEquation, RealAndComplexRoots) {
    struct Row {
        const char* typed;
        const char* equation;
        const char* roots;
    };
    for (const Row& row : {
             Row{"1, -5, 6", "x¡2 ;- 5 x + 6 = 0", "x!1 = 3, x!2 = 2"},
             {"-4.9, 20, -15", ";- 4.9 x¡2 + 20 x ;- 15 = 0", "x!1 = 3.091, x!2 = 0.99"},
             {"1, 0, -2", "x¡2 ;- 2 = 0", "x!1 = 1.414, x!2 = -1.414"},
             {"1, -4, 4", "x¡2 ;- 4 x + 4 = 0", "x!1 = 2, x!2 = 2"},
             // 0.1 counted twice, though 0.2^2 - 4 * 0.01 is not quite 0.
             {"1, -0.2, 0.01", "x¡2 ;- 0.2 x + 0.01 = 0", "x!1 = 0.1, x!2 = 0.1"},
             {"1, -2, 5", "x¡2 ;- 2 x + 5 = 0", "x!1,!2 = 1 #mame 2 i"},
             {"-1, 2, -5", ";- x¡2 + 2 x ;- 5 = 0", "x!1,!2 = 1 #mame 2 i"},
             {"2, 0, 0", "2 x¡2 = 0", "x!1 = 0, x!2 = 0"},
         })
        EXPECT_EQ(LinesOf(ReportQuadratic(row.typed, kDecimals)),
                  (Lines{"Resolver la ecuación cuadrática:", row.equation, row.roots}))
            << row.typed;
}

TEST(QuadraticEquation, RefusesABadListAndFailsOnNoQuadratic) {
    EXPECT_EQ(LinesOf(ReportQuadratic("1, 2", kDecimals)),
              Lines{"refused: " + std::string(kWrongCoefficientCount)});
    EXPECT_EQ(LinesOf(ReportQuadratic("", kDecimals)),
              Lines{"refused: " + std::string(kWrongCoefficientCount)});
    EXPECT_EQ(LinesOf(ReportQuadratic("1, b, 3", kDecimals)),
              Lines{"refused: " + std::string(kNonNumericCoefficient)});
    EXPECT_EQ(FailureOf([] { (void)ReportQuadratic("0, 2, 3", kDecimals); }), FailureCode::DivisionByZero);
}

}  // namespace
}  // namespace tavrelo::mechanics::motion
