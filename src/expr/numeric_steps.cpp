#include "expr/numeric_steps.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "expr/kernels.h"

// Each step is written once, as the mathematics of one point, and made into its two forms by the templates
// below. The form for one value goes on to the next step by a call in the last place, which the compiler
// turns into a jump: the result stays in a register from step to step, and the processor predicts each jump
// by itself. (Without optimisation the calls nest, at most as deep as a formula is long.) The form for a
// block of points is a plain loop.

namespace tavrelo::expr {

namespace {

constexpr double kTrue = -1.0;
constexpr double kFalse = 0.0;
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

/// 0 for a number, not a number for all else. Taken from a result it changes nothing, not even the sign of
/// zero, and keeps a failure from vanishing, as in 1 / infinity.
double Poison(double x) { return x - x; }

// --- Operands
// ------------------------------------------------------------------------------------------------

struct Variable {
    static double Of(double a, double, double) { return a; }
};
struct Constant {
    static double Of(double, double, double c) { return c; }
};
struct VariablePlusConstant {
    static double Of(double a, double, double c) { return a + c; }
};
struct VariableTimesConstant {
    static double Of(double a, double, double c) { return a * c; }
};
struct VariableByConstant {
    static double Of(double a, double, double c) { return a / c; }
};
struct ConstantMinusVariable {
    static double Of(double a, double, double c) { return c - a; }
};
struct ConstantByVariable {
    static double Of(double a, double, double c) { return c / a; }
};
struct VariablePlusVariable {
    static double Of(double a, double b, double) { return a + b; }
};
struct VariableMinusVariable {
    static double Of(double a, double b, double) { return a - b; }
};
struct VariableTimesVariable {
    static double Of(double a, double b, double) { return a * b; }
};
struct VariableByVariable {
    static double Of(double a, double b, double) { return a / b; }
};

// --- Operations of two numbers
// -----------------------------------------------------------------------------------------

struct Sum {
    static double Of(double a, double b) { return a + b; }
};
struct Difference {
    static double Of(double a, double b) { return a - b; }
};
struct Product {
    static double Of(double a, double b) { return a * b; }
};
struct Quotient {
    static double Of(double a, double b) { return a / b - Poison(b); }
};
struct PowerOf {
    static double Of(double a, double b) { return Power(a, b) - (Poison(a) + Poison(b)); }
};
struct Equal {
    static double Of(double a, double b) { return (a == b ? kTrue : kFalse) - (Poison(a) + Poison(b)); }
};
struct NotEqual {
    static double Of(double a, double b) { return (a != b ? kTrue : kFalse) - (Poison(a) + Poison(b)); }
};
struct Less {
    static double Of(double a, double b) { return (a < b ? kTrue : kFalse) - (Poison(a) + Poison(b)); }
};
struct LessOrEqual {
    static double Of(double a, double b) { return (a <= b ? kTrue : kFalse) - (Poison(a) + Poison(b)); }
};
struct Smaller {
    static double Of(double a, double b) { return (a < b ? a : b) - (Poison(a) + Poison(b)); }
};
struct Larger {
    static double Of(double a, double b) { return (a > b ? a : b) - (Poison(a) + Poison(b)); }
};

/// The same with the operands exchanged.
template <typename Operation>
struct Reversed {
    static double Of(double a, double b) { return Operation::Of(b, a); }
};

// --- Functions of one number
// -------------------------------------------------------------------------------------------

struct Minus {
    static double Of(double x, double) { return -x; }
};
struct Abs {
    static double Of(double x, double) { return std::abs(x); }
};
struct Square {
    static double Of(double x, double) { return Power(x, 2.0); }
};
struct Cube {
    static double Of(double x, double) { return Power(x, 3.0); }
};
struct Fourth {
    static double Of(double x, double) { return Power(x, 4.0); }
};
struct Root {
    static double Of(double x, double) { return std::sqrt(x); }
};
struct Log {
    static double Of(double x, double) { return std::log(x); }
};
struct Exp {
    static double Of(double x, double) { return std::exp(x) - Poison(x); }
};
struct Sine {
    static double Of(double x, double factor) { return SineOf(x, factor); }
};
struct Cosine {
    static double Of(double x, double factor) { return CosineOf(x, factor); }
};
struct Tangent {
    static double Of(double x, double factor) { return TangentOf(x, factor); }
};
struct ArcTangent {
    static double Of(double x, double) { return ArcTangentOf(x) - Poison(x); }
};

// --- Operations of three numbers
// ---------------------------------------------------------------------------------------

struct Choice {
    static double Of(double a, double b, double c) {
        return (a != 0.0 ? b : c) - (Poison(a) + (Poison(b) + Poison(c)));
    }
};
struct StepPower {
    static double Of(double n, double x, double a) {
        return std::isfinite(n + (x - a)) ? StepPowerOf(n, x, a) : kNoNumber;
    }
};
struct Within {
    static double Of(double x, double low, double high) {
        if (!std::isfinite(x + low + high)) {
            return kNoNumber;
        }
        return IsAtLeast(x, low) && IsAtLeast(high, x) ? 1.0 : 0.0;
    }
};

// --- The two forms
// -----------------------------------------------------------------------------------------------------

inline double GoOn(const NumericStep* step, const double* variables, NumericFrame& frame, double result) {
    const NumericStep* next = step + 1;
    return next->functions.value(next, variables, frame, result);
}

double ValueOfEnd(const NumericStep*, const double*, NumericFrame&, double result) { return result; }
void ColumnOfEnd(const NumericStep&, ColumnFrame&) {}

/// The operand of a step at point k of a block.
template <typename Operand>
class BlockOperand {
  public:
    BlockOperand(const NumericStep& step, const ColumnFrame& frame)
        : m_first(frame.variables[step.first]),
          m_second(frame.variables[step.second]),
          m_constant(step.constant) {}
    double operator[](std::size_t k) const { return Operand::Of(m_first[k], m_second[k], m_constant); }

  private:
    const double* m_first;
    const double* m_second;
    double m_constant;
};

template <typename Operand>
double OperandOf(const NumericStep* step, const double* variables) {
    return Operand::Of(variables[step->first], variables[step->second], step->constant);
}

struct Itself {
    static double Of(double x, double) { return x; }
};

template <typename Function, typename Operand, bool kLayAside>
struct LoadForm {
    static double Value(const NumericStep* step, const double* variables, NumericFrame& frame,
                        double result) {
        if constexpr (kLayAside) {
            frame.aside[step->aside] = result;
        }
        const double operand = OperandOf<Operand>(step, variables);
        return GoOn(step, variables, frame, Function::Of(operand, frame.angle_factor));
    }
    static void Column(const NumericStep& step, ColumnFrame& frame) {
        if constexpr (kLayAside) {
            std::swap(frame.result, frame.aside[step.aside]);
        }
        const BlockOperand<Operand> operand(step, frame);
        const double factor = frame.angle_factor;
        double* result = frame.result;
        for (std::size_t k = 0; k < frame.count; ++k) {
            result[k] = Function::Of(operand[k], factor);
        }
    }
};

template <typename Function>
struct ApplyForm {
    static double Value(const NumericStep* step, const double* variables, NumericFrame& frame,
                        double result) {
        return GoOn(step, variables, frame, Function::Of(result, frame.angle_factor));
    }
    static void Column(const NumericStep&, ColumnFrame& frame) {
        const double factor = frame.angle_factor;
        double* result = frame.result;
        for (std::size_t k = 0; k < frame.count; ++k) {
            result[k] = Function::Of(result[k], factor);
        }
    }
};

template <typename Operation, typename Operand>
struct CombineForm {
    static double Value(const NumericStep* step, const double* variables, NumericFrame& frame,
                        double result) {
        return GoOn(step, variables, frame, Operation::Of(result, OperandOf<Operand>(step, variables)));
    }
    static void Column(const NumericStep& step, ColumnFrame& frame) {
        const BlockOperand<Operand> operand(step, frame);
        double* result = frame.result;
        for (std::size_t k = 0; k < frame.count; ++k) {
            result[k] = Operation::Of(result[k], operand[k]);
        }
    }
};

template <typename Operation>
struct JoinForm {
    static double Value(const NumericStep* step, const double* variables, NumericFrame& frame,
                        double result) {
        return GoOn(step, variables, frame, Operation::Of(frame.aside[step->aside], result));
    }
    static void Column(const NumericStep& step, ColumnFrame& frame) {
        const double* left = frame.aside[step.aside];
        double* result = frame.result;
        for (std::size_t k = 0; k < frame.count; ++k) {
            result[k] = Operation::Of(left[k], result[k]);
        }
    }
};

template <typename Operation>
struct TernaryForm {
    static double Value(const NumericStep* step, const double* variables, NumericFrame& frame,
                        double result) {
        const double* left = frame.aside + step->aside;
        return GoOn(step, variables, frame, Operation::Of(left[0], left[1], result));
    }
    static void Column(const NumericStep& step, ColumnFrame& frame) {
        const double* first = frame.aside[step.aside];
        const double* second = frame.aside[step.aside + 1];
        double* result = frame.result;
        for (std::size_t k = 0; k < frame.count; ++k) {
            result[k] = Operation::Of(first[k], second[k], result[k]);
        }
    }
};

double CallUnary(const NumericStep& step, double x, double factor) {
    return std::isfinite(x) ? step.operation->unary(x, factor) : kNoNumber;
}
double CallBinary(const NumericStep& step, double a, double b, double factor) {
    return std::isfinite(a) && std::isfinite(b) ? step.operation->binary(a, b, factor) : kNoNumber;
}

double ValueOfCallUnary(const NumericStep* step, const double* variables, NumericFrame& frame,
                        double result) {
    return GoOn(step, variables, frame, CallUnary(*step, result, frame.angle_factor));
}
void ColumnOfCallUnary(const NumericStep& step, ColumnFrame& frame) {
    for (std::size_t k = 0; k < frame.count; ++k) {
        frame.result[k] = CallUnary(step, frame.result[k], frame.angle_factor);
    }
}

double ValueOfCallBinary(const NumericStep* step, const double* variables, NumericFrame& frame,
                         double result) {
    return GoOn(step, variables, frame,
                CallBinary(*step, frame.aside[step->aside], result, frame.angle_factor));
}
void ColumnOfCallBinary(const NumericStep& step, ColumnFrame& frame) {
    const double* left = frame.aside[step.aside];
    for (std::size_t k = 0; k < frame.count; ++k) {
        frame.result[k] = CallBinary(step, left[k], frame.result[k], frame.angle_factor);
    }
}

// --- The tables
// --------------------------------------------------------------------------------------------------------

template <typename Form>
constexpr StepFunctions FunctionsOf() {
    return {Form::Value, Form::Column};
}

using SourceTable = std::array<StepFunctions, kSources>;

/// A row for each source, of a form that takes the operand's type.
template <template <typename> typename Form>
constexpr SourceTable kAllSources = {
    FunctionsOf<Form<Variable>>(),
    FunctionsOf<Form<Constant>>(),
    FunctionsOf<Form<VariablePlusConstant>>(),
    FunctionsOf<Form<VariableTimesConstant>>(),
    FunctionsOf<Form<VariableByConstant>>(),
    FunctionsOf<Form<ConstantMinusVariable>>(),
    FunctionsOf<Form<ConstantByVariable>>(),
    FunctionsOf<Form<VariablePlusVariable>>(),
    FunctionsOf<Form<VariableMinusVariable>>(),
    FunctionsOf<Form<VariableTimesVariable>>(),
    FunctionsOf<Form<VariableByVariable>>(),
};
template <template <typename> typename Form>
constexpr SourceTable kSingleSources = {FunctionsOf<Form<Variable>>(), FunctionsOf<Form<Constant>>()};
template <template <typename> typename Form>
constexpr SourceTable kCommonSources = {
    FunctionsOf<Form<Variable>>(),
    {},
    FunctionsOf<Form<VariablePlusConstant>>(),
    FunctionsOf<Form<VariableTimesConstant>>(),
    FunctionsOf<Form<VariableByConstant>>(),
};

template <typename Operand>
using Load = LoadForm<Itself, Operand, false>;
template <typename Operand>
using LoadAside = LoadForm<Itself, Operand, true>;

template <typename Function>
struct FunctionForms {
    template <typename Operand>
    using Plain = LoadForm<Function, Operand, false>;
    template <typename Operand>
    using Aside = LoadForm<Function, Operand, true>;
};

template <typename Operation>
struct OperatorForms {
    template <typename Operand>
    using Plain = CombineForm<Operation, Operand>;
    template <typename Operand>
    using Turned = CombineForm<Reversed<Operation>, Operand>;
};

struct NativeRow {
    StepFunctions apply;
    SourceTable load;
    SourceTable load_aside;
};

template <typename Function>
constexpr NativeRow NativeRowOf() {
    return {FunctionsOf<ApplyForm<Function>>(), kCommonSources<FunctionForms<Function>::template Plain>,
            kCommonSources<FunctionForms<Function>::template Aside>};
}

constexpr std::array<NativeRow, kNatives> kNativeRows = {
    NativeRowOf<Minus>(),  NativeRowOf<Abs>(),    NativeRowOf<Square>(),  NativeRowOf<Cube>(),
    NativeRowOf<Fourth>(), NativeRowOf<Root>(),   NativeRowOf<Log>(),     NativeRowOf<Exp>(),
    NativeRowOf<Sine>(),   NativeRowOf<Cosine>(), NativeRowOf<Tangent>(), NativeRowOf<ArcTangent>(),
};

struct OperatorRow {
    Token token = Token::None;
    StepFunctions join;
    SourceTable combine;
    SourceTable combine_reversed;
};

/// Operators whose steps take every source; of a sum or a product the sides may be exchanged.
template <typename Operation>
constexpr OperatorRow ArithmeticRow(Token token) {
    return {token, FunctionsOf<JoinForm<Operation>>(), kAllSources<OperatorForms<Operation>::template Plain>,
            kAllSources<OperatorForms<Operation>::template Turned>};
}
template <typename Operation>
constexpr OperatorRow CommutativeRow(Token token) {
    return {token, FunctionsOf<JoinForm<Operation>>(), kAllSources<OperatorForms<Operation>::template Plain>,
            kAllSources<OperatorForms<Operation>::template Plain>};
}
template <typename Operation>
constexpr OperatorRow OtherRow(Token token) {
    return {token, FunctionsOf<JoinForm<Operation>>(),
            kSingleSources<OperatorForms<Operation>::template Plain>,
            kSingleSources<OperatorForms<Operation>::template Turned>};
}

constexpr OperatorRow kOperatorRows[] = {
    CommutativeRow<Sum>(Token::Sum),
    ArithmeticRow<Difference>(Token::Difference),
    CommutativeRow<Product>(Token::Product),
    ArithmeticRow<Quotient>(Token::Quotient),
    OtherRow<Quotient>(Token::Coc),
    OtherRow<PowerOf>(Token::Power),
    OtherRow<Equal>(Token::Equal),
    OtherRow<NotEqual>(Token::NotEqual),
    OtherRow<Less>(Token::Less),
    OtherRow<LessOrEqual>(Token::LessOrEqual),
    OtherRow<Reversed<Less>>(Token::Greater),
    OtherRow<Reversed<LessOrEqual>>(Token::GreaterOrEqual),
    OtherRow<Smaller>(Token::Min),
    OtherRow<Larger>(Token::Max),
};

const OperatorRow* FindOperatorRow(Token token) {
    const auto row = std::find_if(std::begin(kOperatorRows), std::end(kOperatorRows),
                                  [token](const OperatorRow& candidate) { return candidate.token == token; });
    return row != std::end(kOperatorRows) ? row : nullptr;
}

constexpr std::size_t IndexOf(Source source) { return static_cast<std::size_t>(source); }
constexpr std::size_t IndexOf(Native function) { return static_cast<std::size_t>(function); }

}  // namespace

StepFunctions EndOfProgram() { return {ValueOfEnd, ColumnOfEnd}; }

StepFunctions LoadOf(Source source, bool lay_aside) {
    return lay_aside ? kAllSources<LoadAside>[IndexOf(source)] : kAllSources<Load>[IndexOf(source)];
}

StepFunctions LoadOf(Native function, Source source, bool lay_aside) {
    const NativeRow& row = kNativeRows[IndexOf(function)];
    return (lay_aside ? row.load_aside : row.load)[IndexOf(source)];
}

StepFunctions ApplyOf(Native function) { return kNativeRows[IndexOf(function)].apply; }

StepFunctions CombineOf(Token token, Source source, bool reversed) {
    const OperatorRow* row = FindOperatorRow(token);
    return row ? (reversed ? row->combine_reversed : row->combine)[IndexOf(source)] : StepFunctions{};
}

StepFunctions JoinOf(Token token) {
    const OperatorRow* row = FindOperatorRow(token);
    return row ? row->join : StepFunctions{};
}

StepFunctions TernaryOf(Token token) {
    switch (token) {
        case Token::Iif:
            return FunctionsOf<TernaryForm<Choice>>();
        case Token::Stp:
            return FunctionsOf<TernaryForm<StepPower>>();
        case Token::Bar:
            return FunctionsOf<TernaryForm<Within>>();
        default:
            return {};
    }
}

StepFunctions CallOfUnary() { return {ValueOfCallUnary, ColumnOfCallUnary}; }
StepFunctions CallOfBinary() { return {ValueOfCallBinary, ColumnOfCallBinary}; }

}  // namespace tavrelo::expr
