// Random formulas against their own trees: each tree is computed with plain doubles and written with no more
// parentheses than precedence asks for, so a wrong precedence, associativity or operation shows as a
// difference.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "expr/expression.h"
#include "formula.h"
#include "numeric/checked.h"

namespace tavrelo::expr {
namespace {

constexpr std::array<double, 3> kVariableValues = {1.75, -2.5, 0.625};

/// A formula and its value; not finite where there is none.
struct Tree {
    std::string text;
    double value;
    int precedence;
};

constexpr int kAtom = 100;
constexpr int kMinus = 18;

std::string Bracketed(const Tree& tree, bool needed) { return needed ? "(" + tree.text + ")" : tree.text; }

class TreeMaker {
  public:
    explicit TreeMaker(unsigned seed) : m_random(seed) {}

    Tree Make(int depth) {
        if (depth == 0) {
            return Leaf();
        }
        switch (Pick(8)) {
            case 0:
                return Leaf();
            case 1:
                return Minus(Make(depth - 1));
            case 2:
                return Call(Make(depth - 1));
            case 3:
                return CallOfTwo(Make(depth - 1), Make(depth - 1));
            default:
                return Binary(Make(depth - 1), Make(depth - 1));
        }
    }

  private:
    int Pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(m_random); }

    Tree Leaf() {
        if (Pick(2) == 0) {
            const int name = Pick(3);
            return {std::string(1, static_cast<char>('X' + name)),
                    kVariableValues[static_cast<std::size_t>(name)], kAtom};
        }
        const int quarters = Pick(40);
        const std::string text =
            std::to_string(quarters / 4) +
            std::array<const char*, 4>{"", ".25", ".5", ".75"}[static_cast<std::size_t>(quarters % 4)];
        return {text, quarters / 4.0, kAtom};
    }

    /// Bracketed inside, since a minus right before a number belongs to the number.
    static Tree Minus(const Tree& inner) { return {"-(" + inner.text + ")", -inner.value, kMinus}; }

    Tree Call(const Tree& inner) {
        switch (Pick(4)) {
            case 0:
                return {"ABS(" + inner.text + ")", std::abs(inner.value), kAtom};
            case 1:
                return {"r( " + inner.text + " )", std::sqrt(inner.value), kAtom};
            case 2:
                return {"Sen(" + inner.text + ")", std::sin(inner.value * testing::kDegrees), kAtom};
            default:
                return {"ENT(" + inner.text + ")", std::floor(inner.value), kAtom};
        }
    }

    Tree CallOfTwo(const Tree& a, const Tree& b) {
        const std::string arguments = "(" + a.text + "," + b.text + ")";
        return Pick(2) == 0
                   ? Tree{"HIPO" + arguments, std::sqrt(a.value * a.value + b.value * b.value), kAtom}
                   : Tree{"COC" + arguments, a.value / b.value, kAtom};
    }

    Tree Binary(const Tree& a, const Tree& b) {
        struct Operator {
            const char* sign;
            int precedence;
            double (*compute)(double, double);
        };
        static constexpr std::array<Operator, 5> kOperators = {{
            {"+", 14, [](double x, double y) { return x + y; }},
            {" - ", 14, [](double x, double y) { return x - y; }},
            {"*", 17, [](double x, double y) { return x * y; }},
            {" /", 17, [](double x, double y) { return x / y; }},
            {"^", 20, [](double x, double y) { return std::pow(x, y); }},
        }};
        const Operator& op = kOperators[static_cast<std::size_t>(Pick(5))];
        return {Bracketed(a, a.precedence < op.precedence) + op.sign +
                    Bracketed(b, b.precedence <= op.precedence),
                op.compute(a.value, b.value), op.precedence};
    }

    std::mt19937 m_random;
};

TEST(RandomFormulas, AreWorthTheirTrees) {
    constexpr int kFormulas = 20000;
    constexpr int kDepth = 4;
    TreeMaker maker(20240);
    CExpression expression(testing::kDegrees);
    for (const char* name : {"X", "Y", "Z"}) {
        expression.Variable(name, true);
    }
    int finite = 0;
    for (int i = 0; i < kFormulas; ++i) {
        const Tree tree = maker.Make(kDepth);
        expression.SetExpression(tree.text);
        ASSERT_EQ(expression.ErrorCode(), 0) << tree.text;
        double value = std::nan("");
        try {
            value = expression.EvaluateNumber(kVariableValues);
        } catch (const numeric::RuntimeFailure&) {
            // A part may fail although the whole would be finite again, as in 1/(1/0).
            continue;
        }
        ++finite;
        ASSERT_TRUE(std::isfinite(tree.value)) << tree.text << " gave " << value;
        ASSERT_DOUBLE_EQ(value, tree.value) << tree.text;
    }
    EXPECT_GT(finite, kFormulas / 2);
}

}  // namespace
}  // namespace tavrelo::expr
