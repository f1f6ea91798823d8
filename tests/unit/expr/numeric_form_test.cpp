// The numeric form of a formula against its program: the same value, bit for bit, or the same failure, point
// by point and by columns.

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "expr/expression.h"
#include "expr/numeric_program.h"
#include "expr/parser.h"
#include "expr/program.h"
#include "expr/variables.h"
#include "formula.h"
#include "numeric/checked.h"

namespace tavrelo::expr {
namespace {

/// What an evaluation came to: the bits of a number, or the whole text of a failure.
struct Outcome {
    std::uint64_t bits = 0;
    std::string failure;

    friend bool operator==(const Outcome&, const Outcome&) = default;
};

void PrintTo(const Outcome& outcome, std::ostream* out) {
    if (outcome.failure.empty()) {
        *out << std::bit_cast<double>(outcome.bits);
    } else {
        *out << outcome.failure;
    }
}

template <typename Evaluation>
Outcome OutcomeOf(Evaluation evaluate) {
    try {
        return {std::bit_cast<std::uint64_t>(static_cast<double>(evaluate())), {}};
    } catch (const numeric::RuntimeFailure& failure) {
        return {0, failure.what()};
    }
}

struct Point {
    double x;
    double y;
    double z;
};

/// A formula with X, Y and Z among its variables, evaluated in each way that there is.
class Roads {
  public:
    Roads(const std::string& formula, const double& angle_factor)
        : m_angle_factor(angle_factor), m_numeric(angle_factor) {
        for (const char* name : {"X", "Y", "Z"}) {
            m_variables.Create(name);
            m_numeric.Variable(name, true);
        }
        ParseExpression(formula, m_variables, true, m_program);
        m_numeric.SetExpression(formula);
        // The numeric form is made for the second value.
        OutcomeOf([&] { return m_numeric.EvaluateNumber(std::vector<double>{1.5, 2.5, 3.5}); });
    }

    bool IsAccepted() const { return m_program.complete; }
    /// By the program itself, which knows texts.
    Outcome ByProgram(const Point& at) {
        m_variables.Item(1).Value = at.x;
        m_variables.Item(2).Value = at.y;
        m_variables.Item(3).Value = at.z;
        return OutcomeOf([&] { return NumberOf(Run(m_program, m_angle_factor)); });
    }
    Outcome ByNumbers(const Point& at) {
        return OutcomeOf([&] { return m_numeric.EvaluateNumber(std::vector<double>{at.x, at.y, at.z}); });
    }
    /// The values before the first failure, and its text.
    std::vector<Outcome> ByColumns(const std::vector<Point>& points) {
        constexpr double kUnwritten = -12345.5;
        std::vector<double> xs, ys, zs;
        for (const Point& point : points) {
            xs.push_back(point.x);
            ys.push_back(point.y);
            zs.push_back(point.z);
        }
        const std::span<const double> columns[] = {xs, ys, zs};
        std::vector<double> values(points.size(), kUnwritten);
        std::vector<Outcome> outcomes;
        const Outcome whole = OutcomeOf([&] {
            m_numeric.EvaluateColumn(columns, values);
            return 0.0;
        });
        for (std::size_t k = 0; k < values.size() && (whole.failure.empty() || values[k] != kUnwritten);
             ++k) {
            outcomes.push_back({std::bit_cast<std::uint64_t>(values[k]), {}});
        }
        if (!whole.failure.empty()) {
            outcomes.push_back(whole);
        }
        return outcomes;
    }
    double Left(const char* name) { return m_numeric.Variable(name, false)->Value.Number(); }

  private:
    const double& m_angle_factor;
    VariableList m_variables;
    Program m_program;
    CExpression m_numeric;
};

const std::vector<Point>& ManyPoints() {
    static const std::vector<Point> points = [] {
        constexpr double kNumbers[] = {
            0.0,   -0.0,   1.0,    -1.0,   0.5,   -0.5,   2.0,   3.0,    30.0, 90.0, -45.0,
            180.0, 1e-7,   1e-160, 1e-320, 1e154, -1e154, 1e308, -1e308, 1e10, 2.5,  0.30000000000000004,
            709.0, 1000.0, 12.0,   10.0};
        std::mt19937 random(7);
        std::uniform_int_distribution<std::size_t> pick(0, std::size(kNumbers) - 1);
        std::vector<Point> all;
        for (const double x : kNumbers) {
            all.push_back({x, kNumbers[pick(random)], kNumbers[pick(random)]});
            all.push_back({x, x, x});
        }
        return all;
    }();
    return points;
}

/// Points at which few formulas fail, more of them than a block holds.
const std::vector<Point>& TamePoints() {
    static const std::vector<Point> points = [] {
        std::vector<Point> all;
        for (int k = 0; k < 300; ++k) {
            all.push_back({0.75 + 0.01 * k, 4.5 - 0.01 * k, 1.25 + 0.002 * k});
        }
        return all;
    }();
    return points;
}

std::vector<Outcome> UpToTheFirstFailure(Roads& roads, const std::vector<Point>& points) {
    std::vector<Outcome> outcomes;
    for (const Point& point : points) {
        outcomes.push_back(roads.ByProgram(point));
        if (!outcomes.back().failure.empty()) {
            break;
        }
    }
    return outcomes;
}

void ExpectAgreement(const std::string& formula, const double& angle_factor) {
    Roads roads(formula, angle_factor);
    ASSERT_TRUE(roads.IsAccepted()) << formula;
    for (const Point& at : ManyPoints()) {
        ASSERT_EQ(roads.ByNumbers(at), roads.ByProgram(at))
            << formula << " at " << at.x << ", " << at.y << ", " << at.z;
    }
    for (const std::vector<Point>* points : {&TamePoints(), &ManyPoints()}) {
        ASSERT_EQ(roads.ByColumns(*points), UpToTheFirstFailure(roads, *points)) << formula;
    }
}

// Every token of the language, every form of operand next to it, and what goes wrong in each.
const char* const kFormulas[] = {
    "X",
    "5.",
    "007",
    "1E5",
    "-007",
    "PI",
    "RADS*X",
    // operands fused with what is done to them
    "X+2",
    "2+X",
    "X-2",
    "2-X",
    "X*2",
    "2*X",
    "X/2",
    "2/X",
    "X+Y",
    "X-Y",
    "X*Y",
    "X/Y",
    "-X",
    "-X*3",
    "-X/7",
    "3*-X",
    "X^2+3*X-1",
    "2*X+3*Y-4*Z+0*X+0*Y+0*Z",
    "SEN(X)+2/X",
    "SEN(X)-X/2",
    "2/X-SEN(X)",
    "SEN(X)*(X+Y)",
    "SEN(X)/(X-Y)",
    "(X-Y)/SEN(X)",
    "SEN(X)/(2-X)",
    "(X+1)/(X+2)",
    "X*Y-Z",
    "Z-X*Y",
    "Z-(X+Y)",
    "X/Y/Z",
    "X/(Y/Z)",
    "(X+Y)*(Y+Z)-(X-Z)*(Y-X)",
    "((X+1)*(X+2)*(X+3)*(X+4))/(X^2+1)-LN(X+10)",
    "(X^3-2*X)/(1+X^2)",
    "R(X^2+Y^2)+ATAN(Y/(X+5))",
    "SEN(X)*EXP(-X/10)",
    "1/(1/X)",
    "1/(1/(X-2))",
    "0*(1/X)",
    "(1/X)*0",
    "X-X",
    "1/X-1/X",
    // powers
    "X^2",
    "X^3",
    "X^4",
    "X^5",
    "X^-1",
    "X^-2",
    "X^0",
    "X^0.5",
    "X^Y",
    "2^X",
    "(X+Y)^2",
    "(X+Y)^3",
    "(X*Y)^4",
    "(X/Y)^0",
    "2^(X/Y)",
    "X^(1/Y)",
    "1^(X/0.1)",
    "-X^2",
    "2^-X^2",
    "X^2^3",
    "(X^2)^(Y^2)",
    "R3(X)",
    "R3(X/Y)",
    // angles, whose factor is never folded
    "SEN(X)",
    "COS(X)",
    "TAN(X)",
    "COT(X)",
    "CSC(X)",
    "SEC(X)",
    "SEN(30)",
    "COS(60)*X",
    "TAN(X/Y)",
    "COT(0)",
    "SESE(X,Y)",
    "SECO(X,Y)",
    "COSE(X,30)",
    "COCO(30,Y)",
    "SEN(X)^2+COS(X)^2",
    "COS(2*X)",
    "SEN(X+30)",
    "ATAN(X)",
    "ATAN(1/X)",
    "ASEN(X)",
    "ACOS(X)",
    "ACOT(X)",
    "ACSC(X)",
    "ASEC(X)",
    "ATAN2(X,Y)",
    "ATAN(X/Y)",
    "ACOT(X*Y)",
    "ASEN(0.5)+X",
    // other functions
    "ABS(X-Y)",
    "GAR(X)",
    "RAG(X)",
    "ENT(X)",
    "FIX(X)",
    "SGN(X)",
    "SGN(X/Y)",
    "R(X)",
    "R(X-Y)",
    "R(X*Y)/X",
    "LN(X)",
    "LN(X/Y)",
    "LOG10(X)",
    "EXP(X)",
    "EXP(X*Y)",
    "EXP(-X/Y)",
    "EXP(-(X*1E300))",
    "SENH(X)",
    "COSH(X)",
    "COC(X,Y)",
    "COC(1,X+Y)",
    "HIPO(X,Y)",
    "CATE(X,Y)",
    "CATE(X+1,Y-1)",
    // integers
    "X\\Y",
    "X MOD Y",
    "X AND Y",
    "X OR Y",
    "X XOR Y",
    "NOT X",
    "(X*2)\\(Y+1)",
    "7 MOD X",
    "X\\0.4",
    "NOT(X/Y)",
    // comparisons, of numbers and of texts
    "X<Y",
    "X<=Y",
    "X>Y",
    "X>=Y",
    "X=Y",
    "X<>Y",
    "X<2",
    "2<X",
    "2>=X",
    "X=2",
    "X*Y<X+Y",
    "X<Y=(Z>1)",
    "10<9",
    "10.<9",
    "X+(10<9)",
    "2=02",
    "1E1=10",
    "IIF(10<9,X,Y)",
    "MIN(10,9)",
    "MAX(10,9)+X",
    "MIN(10,X)",
    "MAX(X,9)",
    "MIN(X,Y)",
    "MAX(X/Y,Z)",
    "MIN(1/X,1/Y)",
    "MIN(10,9)<8",
    "MIN(10,X)<9",
    "MIN(10,X)<9.",
    "MAX(2,10)<X",
    "IIF(X<2,X*3.5,7)",
    "IIF(X<2,10,9)<1",
    "IIF(X<2,10,9)<1.",
    "IIF(X,1/Y,1/Z)",
    "IIF(X/Y,1,2)",
    "IIF(X<9,1,2)",
    "MIN(MIN(10,9),8)",
    "MIN(MIN(X,9),8)",
    "MAX(X,MIN(10,9))",
    "IIF(1<2,10,9)=10",
    // steps
    "STP(2,X,1)",
    "STP(0,X,Y)",
    "STP(X,Y,Z)",
    "12.5*STP(1,X,0)-4*STP(2,X,1.5)",
    "STP(0,X/Y,Z)",
    "BAR(X,0,1)",
    "BAR(X,Y,Z)",
    "BAR(X/Y,0,Z)",
    "STP(0,0.3,X)",
    "STP1(0,X,3.)",
    "X*STP1(0,X,3.)",
    "STP1(7,2.,1.)+X",
    "5+STP1(X,2.,1.)",
    "STP1(1/X,Y,2)",
    "STP1(0,10,9)+X",
    "STP1(SEN(X),Y,2.)",
    "STP(0,1E308,X)",
    // what fails, and which of two failures comes first
    "1/0+X",
    "LN(X)+1/(X-X)",
    "1/(X-X)+LN(X)",
    "R(X)+ACOS(X)",
    "1/X+ACOS(X)",
    "ACOS(X)+1/X",
    "LN(-1)",
    "X^2*1E308",
    "(X*1E308)/(Y*1E308)",
    "EXP(X)-EXP(X)",

    "X+1E",
    "1E400+X",
    "1E400<X",
    "IIF(X<1E,1,2)",
    "X\\Y+1/X",
    "1/X+X\\Y",
    "ATAN(1/X)+LN(Y)",
    "SGN(1/X)",
    "2^(1/X)",
    "(1/X)^-1",
    "MIN(1/X,2)",
    "BAR(1/X,0,1)",
    "0/X",
    "X/X",
    "COC(X,X)",
    "1E",
    "LN(0)*X",
    "ENT(1/X)",
    "SEN(1/X)",
    "X+0*LN(Y)",
    "10^309*X",
};

TEST(NumericForm, AgreesWithTheProgram) {
    for (const char* const formula : kFormulas) {
        ExpectAgreement(formula, testing::kDegrees);
        ExpectAgreement(formula, testing::kRadians);
    }
}

/// Formulas of any shape, of which only the parentheses are in order.
class FormulaMaker {
  public:
    explicit FormulaMaker(unsigned seed) : m_random(seed) {}

    std::string Make(int depth) {
        switch (depth == 0 ? 0 : Pick(9)) {
            case 0:
                return Leaf();
            case 1:
                return "-" + Make(depth - 1);
            case 2:
                return One() + "(" + Make(depth - 1) + ")";
            case 3:
                return Two() + "(" + Make(depth - 1) + "," + Make(depth - 1) + ")";
            case 4:
                return Three() + "(" + Make(depth - 1) + "," + Make(depth - 1) + "," + Make(depth - 1) + ")";
            case 5:
                return "(" + Make(depth - 1) + ")";
            default:
                return Make(depth - 1) + Operator() + Make(depth - 1);
        }
    }

  private:
    template <std::size_t kCount>
    std::string OneOf(const char* const (&texts)[kCount]) {
        return texts[Pick(static_cast<int>(kCount))];
    }
    int Pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(m_random); }

    std::string Leaf() {
        static constexpr const char* kLeaves[] = {"X",  "Y",  "Z", "X",   "2",  "0.5", "10", "9",
                                                  "02", "3.", "0", "1E1", "PI", "1.5", "4"};
        return OneOf(kLeaves);
    }
    std::string One() {
        static constexpr const char* kNames[] = {"ABS",  "GAR",  "RAG",   "ENT",  "FIX",  "SGN",  "R",
                                                 "R3",   "LN",   "LOG10", "EXP",  "SEN",  "COS",  "TAN",
                                                 "COT",  "CSC",  "SEC",   "ATAN", "ASEN", "ACOS", "ACOT",
                                                 "ACSC", "ASEC", "SENH",  "COSH", "NOT "};
        return OneOf(kNames);
    }
    std::string Two() {
        static constexpr const char* kNames[] = {"MIN",  "MAX",   "SESE", "SECO", "COSE",
                                                 "COCO", "ATAN2", "COC",  "HIPO", "CATE"};
        return OneOf(kNames);
    }
    std::string Three() {
        static constexpr const char* kNames[] = {"STP1", "IIF", "STP", "BAR"};
        return OneOf(kNames);
    }
    std::string Operator() {
        static constexpr const char* kOperators[] = {
            "+", "-",  "*", "/",  "^", "+",  "-",     "*",     "/",    "\\",
            "=", "<>", "<", "<=", ">", ">=", " MOD ", " AND ", " OR ", " XOR "};
        return OneOf(kOperators);
    }

    std::mt19937 m_random;
};

TEST(NumericForm, AgreesWithTheProgramOnRandomFormulas) {
    constexpr int kFormulas = 1500;
    constexpr int kDepth = 4;
    FormulaMaker maker(20250);
    int tried = 0;
    for (int i = 0; i < kFormulas; ++i) {
        const std::string formula = maker.Make(kDepth);
        CExpression expression(testing::kDegrees);
        try {
            expression.SetExpression(formula);
        } catch (const numeric::RuntimeFailure&) {
            continue;  // too long
        }
        if (expression.ErrorCode() == 0) {
            ++tried;
            ExpectAgreement(formula, testing::kDegrees);
            if (HasFatalFailure()) {
                return;
            }
        }
    }
    EXPECT_GT(tried, kFormulas / 2);
}

/// Whether the second value of a formula is computed by its numeric form.
bool HasNumericForm(const std::string& formula) {
    VariableList variables;
    Program program;
    EXPECT_EQ(static_cast<int>(ParseExpression(formula, variables, true, program).code), 0) << formula;
    NumericProgram numeric;
    return numeric.Compile(program, variables);
}

TEST(NumericForm, IsThereUnlessTextsOrFailuresNeedTheProgram) {
    for (const char* const formula :
         {"X", "7", "X+7", "10<9", "MIN(10,9)", "MIN(10,X)", "IIF(X<9,1,2)", "IIF(X<2,10,9)<1.",
          "STP1(0,X,3.)", "5+STP1(7,2.,X)", "SEN(30)", "STP(1,X,0)", "X MOD 2", "ATAN2(X,Y)"}) {
        EXPECT_TRUE(HasNumericForm(formula)) << formula;
    }
    for (const char* const formula :
         {"1E", "X+1E", "1E400", "1/0", "LN(-1)*X", "IIF(X<2,10,9)<1", "MIN(10,X)<9", "STP1(1/X,Y,2.)"}) {
        EXPECT_FALSE(HasNumericForm(formula)) << formula;
    }
}

TEST(NumericForm, ReadsTheAngleFactorAtEachValue) {
    double factor = testing::kDegrees;
    CExpression expression(factor);
    expression.SetExpression("SEN(30)+X");
    std::vector<double> values(3);
    for (const double unit : {testing::kDegrees, testing::kRadians, testing::kDegrees}) {
        factor = unit;
        const double expected = std::sin(30 * unit) + 1;
        EXPECT_DOUBLE_EQ(expression.EvaluateNumber(std::vector<double>{1}), expected);
        EXPECT_DOUBLE_EQ(expression.EvaluateNumber(std::vector<double>{1}), expected);
        expression.EvaluateColumn(std::vector<double>{1, 1, 1}, values);
        EXPECT_DOUBLE_EQ(values[2], expected);
    }
}

TEST(NumericForm, FollowsTheVariables) {
    CExpression expression(testing::kDegrees);
    expression.SetExpression("10*Y+X");
    EXPECT_EQ(expression.EvaluateNumber(std::vector<double>{1, 2}), 21);
    EXPECT_EQ(expression.EvaluateNumber(std::vector<double>{3, 4}), 43);
    EXPECT_EQ(expression.Variable("Y", false)->Value, text::Value(4));
    // Not given: what the variable holds.
    EXPECT_EQ(expression.EvaluateNumber(std::vector<double>{5}), 45);
    expression.Variable("Y", false)->Value = "6";
    EXPECT_EQ(expression.EvaluateNumber(std::vector<double>{5}), 65);
    expression.Variable("Y", false)->Value = {};
    EXPECT_EQ(expression.EvaluateNumber(std::vector<double>{5}), 5);
    // A new name in front moves the others.
    expression.Variable("A", true);
    EXPECT_EQ(expression.EvaluateNumber(std::vector<double>{7, 8, 9}), 98);
    EXPECT_EQ(expression.EvaluateNumber(std::vector<double>{7, 8, 9}), 98);
    // The formula keeps the object that it was parsed with.
    auto other = std::make_shared<CVariable>();
    other->Name = "X";
    expression.AddVariable(other);
    EXPECT_EQ(expression.EvaluateNumber(std::vector<double>{1, 2, 3}), 38);
    EXPECT_EQ(expression.EvaluateNumber(std::vector<double>{1, 2, 3}), 38);
    EXPECT_EQ(other->Value, text::Value(2));
}

TEST(NumericForm, FollowsTheFormula) {
    CExpression expression(testing::kDegrees);
    for (int round = 0; round < 3; ++round) {
        expression.SetExpression("X+1");
        EXPECT_EQ(expression.EvaluateNumber(std::vector<double>{1}), 2);
        EXPECT_EQ(expression.EvaluateNumber(std::vector<double>{1}), 2);
        expression.SetExpression("X+");
        EXPECT_EQ(expression.EvaluateNumber(std::vector<double>{1}), 0);
        expression.ClearError();
        EXPECT_EQ(expression.EvaluateNumber(std::vector<double>{1}), 0);
    }
    expression.SetExpression("2*X");
    EXPECT_EQ(expression.EvaluateNumber(std::vector<double>{3}), 6);
    EXPECT_EQ(expression.EvaluateNumber(std::vector<double>{4}), 8);
    CExpression moved = std::move(expression);
    EXPECT_EQ(moved.EvaluateNumber(std::vector<double>{5}), 10);
}

TEST(Columns, LeaveTheVariablesAsPointByPoint) {
    Roads roads("1/(X-Y)", testing::kDegrees);
    EXPECT_EQ(roads.ByColumns({{1, 0, 5}, {4, 2, 6}, {9, 3, 7}}).size(), 3U);
    EXPECT_EQ(roads.Left("X"), 9);
    EXPECT_EQ(roads.Left("Z"), 7);
    // One value, then the failure of the second point; the third is not looked at.
    EXPECT_EQ(roads.ByColumns({{1, 0, 5}, {2, 2, 6}, {9, 3, 7}}).size(), 2U);
    EXPECT_EQ(roads.Left("X"), 2);
    EXPECT_EQ(roads.Left("Z"), 6);
}

TEST(Columns, MayBeFewerThanTheVariables) {
    CExpression expression(testing::kDegrees);
    expression.SetExpression("100*Y+X");
    std::vector<double> values(200, -1.0);
    std::vector<double> xs(values.size());
    for (std::size_t k = 0; k < xs.size(); ++k) {
        xs[k] = static_cast<double>(k);
    }
    expression.EvaluateColumn(xs, values);  // Y is nothing yet
    EXPECT_EQ(values[199], 199);
    expression.Variable("Y", false)->Value = 2;
    expression.EvaluateColumn(xs, values);
    EXPECT_EQ(values[0], 200);
    EXPECT_EQ(values[199], 399);
    expression.EvaluateColumn(std::span<const std::span<const double>>(), values);
    EXPECT_EQ(values[0], 399);
    expression.EvaluateColumn(xs, std::span(values).first(0));
    expression.SetExpression("X+");
    expression.EvaluateColumn(xs, values);
    EXPECT_EQ(values[199], 0);
}

}  // namespace
}  // namespace tavrelo::expr
