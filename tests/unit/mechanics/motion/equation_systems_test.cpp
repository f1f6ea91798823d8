// Systems for v0 and a, and the quadratic equation: each is built from a known answer.

#include "mechanics/motion/equation_systems.h"

#include <gtest/gtest.h>

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
