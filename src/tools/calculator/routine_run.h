#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "drawing/draw_engine.h"
#include "expr/formula_function.h"
#include "tools/calculator/arguments.h"
#include "tools/calculator/calculator_controls.h"

namespace tavrelo::tools::calculator {

/// What a routine answers: nothing when it has written its report or drawn its picture, or why it did
/// neither.
using Outcome = std::optional<text::Refusal>;

/// Solves the equilibrium of the particle under the forces of these texts, and shows it.
using ParticleSolver = std::function<void(std::span<const std::string>)>;

/// One press of "Calcular": the arguments, the formula and where the routine writes and draws.
struct RoutineRun {
    window::Form1& form;
    const CalculatorControls& controls;
    frame::SharedExpression& expression;
    drawing::DrawEng& engine;
    const ParticleSolver& solve_particle;
    int decimals;
    Arguments arguments = {};
    std::string typed_formula = {};  // as the user wrote it, without the blanks around
    std::string formula = {};        // the same with all brackets as parentheses

    /// Gives the shared expression another formula; one that the parser refuses is told as `typed`.
    Outcome Parse(const std::string& text, const std::string& typed);
    /// The present formula at the given values of X, Y, Z. Fails with a RuntimeFailure.
    double Evaluate(std::span<const double> at) { return expression.Get().EvaluateNumber(at); }
    double At(double x) { return Evaluate(std::span(&x, 1)); }
    /// The present formula as a function of X.
    expr::FormulaFunction Function() { return expr::FormulaFunction(expression.Get()); }

    window::Recorder& Picture() const { return controls.pic.Canvas(); }
    /// The box of an integration that was given up.
    void TellTooManySteps();
    /// Replaces the report.
    void Report(const std::vector<std::string>& lines);
    /// The typed formula for a report, its marks escaped.
    std::string ShownFormula() const;
    /// A number as most reports show it, with the typographic minus.
    std::string Shown(double number) const;
    /// A rounded number with a plain minus, as triangles and vectors show it.
    std::string Bare(double number) const;
};

}  // namespace tavrelo::tools::calculator
