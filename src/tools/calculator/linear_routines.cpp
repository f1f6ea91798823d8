#include "tools/calculator/linear_routines.h"

#include "numeric/compare.h"
#include "numeric/dependence.h"
#include "numeric/linear_systems.h"
#include "tools/calculator/result_text.h"

namespace tavrelo::tools::calculator {
namespace {

using numeric::LinearOutcome;
using numeric::SquareMatrix;

std::string MatrixRow(const RoutineRun& run, const SquareMatrix& matrix, std::size_t row) {
    std::string line = "| ";
    for (std::size_t col = 0; col < matrix.Order(); ++col)
        line += run.Shown(matrix(row, col)) + " ";
    return line + "|";
}

std::string EquationRow(const RoutineRun& run, const SquareMatrix& matrix, std::size_t row,
                        double right_side) {
    std::string line;
    for (std::size_t col = 0; col < matrix.Order(); ++col)
        line += (col == 0 ? "" : " + ") + run.Shown(matrix(row, col)) + " " + Subscripted("x", col + 1);
    return line + " = " + run.Shown(right_side);
}

struct System {
    SquareMatrix matrix;
    std::vector<double> right_side;
};

System SystemOf(const Arguments& arguments) {
    const std::vector<double> cells = arguments.AllNumbers();
    const auto order = static_cast<std::size_t>(arguments.Rows());
    System system{SquareMatrix(order), std::vector<double>(order)};
    for (std::size_t row = 0; row < order; ++row) {
        const std::size_t start = row * (order + 1);
        for (std::size_t col = 0; col < order; ++col)
            system.matrix(row, col) = cells[start + col];
        system.right_side[row] = cells[start + order];
    }
    return system;
}

/// Leaves the solution in the right-hand side.
Outcome Solve(System& system) {
    numeric::Permutation exchanges;
    double determinant = 0;
    const bool are_dependent = numeric::AreDependent(system.matrix);
    const std::vector<double> largest = numeric::LargestOfRows(system.matrix);
    numeric::LUDec(system.matrix, exchanges, determinant);
    if (numeric::NearEq(determinant, 0, numeric::kZeroDeterminant) || are_dependent ||
        numeric::HasRoundingPivot(system.matrix, exchanges, largest))
        return text::Refusal{std::string(TextOf(LinearOutcome::DeterminantIsZero))};
    if (numeric::LUBack(system.matrix, system.right_side, exchanges) != LinearOutcome::Done)
        return text::Refusal{"Falló el cálculo."};
    return std::nullopt;
}

}  // namespace

Outcome Determinant(RoutineRun& run) {
    const SquareMatrix matrix(static_cast<std::size_t>(run.arguments.Rows()), run.arguments.AllNumbers());
    std::vector<std::string> lines;
    for (std::size_t row = 0; row < matrix.Order(); ++row)
        lines.push_back(MatrixRow(run, matrix, row));
    lines.push_back(";D = " + run.Shown(numeric::Determinant(matrix)));
    run.Report(lines);
    return std::nullopt;
}

Outcome LinearSystem(RoutineRun& run) {
    System system = SystemOf(run.arguments);
    std::vector<std::string> lines;
    for (std::size_t row = 0; row < system.right_side.size(); ++row)
        lines.push_back(EquationRow(run, system.matrix, row, system.right_side[row]));
    if (Outcome refusal = Solve(system))
        return refusal;
    for (std::size_t k = 0; k < system.right_side.size(); ++k)
        lines.push_back(Subscripted("x", k + 1) + " = " + run.Shown(system.right_side[k]));
    run.Report(lines);
    return std::nullopt;
}

}  // namespace tavrelo::tools::calculator
