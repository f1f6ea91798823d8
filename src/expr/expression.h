#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "expr/numeric_program.h"
#include "expr/parser.h"
#include "expr/program.h"
#include "expr/variables.h"
#include "text/value.h"

namespace tavrelo::expr {

/// A formula typed by the user: parsed once, evaluated as often as needed with the present values of its
/// variables. The language is described by the token table (tokens.cpp); the only variables a formula may use
/// are X, Y and Z.
///
/// Variables live as long as the object: assigning another formula keeps them and their values, and also the
/// variable that a mistyped name left behind, which shifts the order of the arguments. So make a new object
/// for each piece of work rather than reusing one after an error.
class CExpression {
  public:
    /// `angle_factor` is the radians in one unit of angle, read at each evaluation; it must outlive the
    /// object.
    explicit CExpression(const double& angle_factor) : m_angle_factor(&angle_factor) {}
    explicit CExpression(const double&&) = delete;
    CExpression(const CExpression&) = delete;
    CExpression& operator=(const CExpression&) = delete;
    CExpression(CExpression&&) = default;
    CExpression& operator=(CExpression&&) = default;

    /// Free for the owner; nothing here reads it.
    text::Value DefaultValue;
    /// When false, `Value` gives the empty text where an evaluation fails, instead of failing.
    bool RaiseErrors = true;
    /// When false, the parser refuses a variable that does not exist yet.
    bool AutoCreateVariables = true;

    const std::string& Expression() const { return m_expression; }
    /// Parses at once and forgets the old formula and its roots; a formula that is refused is told by
    /// ErrorCode. Fails with a RuntimeFailure when the formula is too long or too deep (100 tokens in reverse
    /// Polish, 30 open operators) or holds a number with a point that is past the range of a double; nothing
    /// is evaluable then.
    void SetExpression(std::string new_value);

    /// 0: none, 1: syntax, 2: unknown name, 3: unknown operator, 4: wrong number of arguments.
    int ErrorCode() const { return static_cast<int>(m_error.code); }
    /// The message for the user; empty without an error.
    const std::string& ErrorDescription() const { return m_error.description; }
    /// 1-based, in characters, of the token that was refused; 0 without an error.
    int ErrorPos() const { return m_error.position; }
    /// Forgets the error; the formula stays as unfit for evaluation as it was.
    void ClearError() { m_error = {}; }

    /// The variable of that name in any case, or at that 1-based position when the name is a number; null
    /// when there is none. A missing name is made when `create_if_needed`, spelled as given.
    VariablePtr Variable(const text::Value& var_name, bool create_if_needed);
    /// Puts a variable (not null) in its place by name, instead of one of the same name; its 1-based
    /// position.
    int AddVariable(VariablePtr new_var);
    int VariablesCount() const { return m_variables.Count(); }

    int RootsCount() const { return static_cast<int>(m_roots.size()); }
    /// 1-based; 0 outside 1 to RootsCount.
    double Root(int index) const;

    /// Gives `vars` to the variables in the order of their names (what is left over on either side stays
    /// unused) and evaluates. Nothing when the formula is empty or in error. A formula that is one literal
    /// without a point is the text of the literal; numbers are finite. Fails with a RuntimeFailure unless
    /// RaiseErrors is off.
    text::Value Value(std::span<const text::Value> vars = {});

    /// `Value` as a number, for samplers: nothing counts as 0 and a text is converted. Fails with a
    /// RuntimeFailure whatever RaiseErrors says. Allocates nothing.
    double EvaluateNumber(std::span<const double> vars = {});

    /// EvaluateNumber at many points, in their order: `columns` holds a column of numbers for each of the
    /// first variables by name, all as long as `values`. Faster than point by point where the points are
    /// known beforehand. When a point fails, so does the call, as that point; the values before it are
    /// written then.
    void EvaluateColumn(std::span<const std::span<const double>> columns, std::span<double> values);
    /// The same with a column for the first variable only.
    void EvaluateColumn(std::span<const double> column, std::span<double> values) {
        EvaluateColumn(std::span(&column, 1), values);
    }

    /// Assigns the formula and evaluates it.
    text::Value Evaluate(std::string expr, std::span<const text::Value> vars);

    /// The formula in reverse Polish order, a blank before each token: " 2 3 +". Empty when in error.
    std::string RPNExpression() const;

    /// Fills the roots by the scan of ScanRoots over the variable `var_name` (the first one when empty); its
    /// value is restored. No roots are found, and the old ones stay, when the formula is empty, in error or
    /// without variables, or has no variable of that name.
    void FindRoots(double low_limit, double high_limit, double interval, std::string_view var_name,
                   double tolerance);

  private:
    bool IsEvaluable() const { return m_program.complete && ErrorCode() == 0; }
    Operand RunProgram() const { return Run(m_program, *m_angle_factor); }
    void AssignVariables(std::span<const text::Value> vars);

    using Columns = std::span<const std::span<const double>>;
    void ForgetNumeric();
    void PrepareNumeric();
    double RunNumber();
    bool TakeNumbers(std::size_t first, std::span<double> numbers) const;
    bool EvaluateBlock(Columns columns, std::span<const double> held, std::size_t first,
                       std::span<double> values);
    void EvaluatePoints(Columns columns, std::size_t first, std::span<double> values);
    void AssignPoint(Columns columns, std::size_t point);

    const double* m_angle_factor;
    std::string m_expression;
    ParseError m_error;
    VariableList m_variables;
    std::vector<double> m_roots;
    Program m_program;

    /// How far the numeric form of the formula has come. It is made for the second value only, so that what
    /// is asked once does not pay for it.
    enum class NumericState : unsigned char { Unused, UsedOnce, Tried };
    NumericProgram m_numeric;
    NumericState m_numeric_state = NumericState::Unused;
};

}  // namespace tavrelo::expr
