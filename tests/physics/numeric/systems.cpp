#include "equations.h"
#include "numeric/linear_systems.h"
#include "numeric/numeric_kinds.h"
#include "typed.h"

namespace tavrelo::physics {
namespace {

// Rows as they were typed: the coefficients, then the right side.
using Row = std::vector<double>;

// A system whose diagonal outweighs the rest of its rows, so that it is regular whatever chance says.
std::vector<Row> RegularRows(Problem& problem, std::size_t order) {
    std::vector<Row> rows(order);
    for (std::size_t row = 0; row < order; ++row) {
        std::string text;
        double rest = 0;
        for (std::size_t column = 0; column <= order; ++column) {
            Typed number = Rounded(problem.chance.Between(-10.0, 10.0), 2);
            if (column != row && column < order)
                rest += std::abs(number.value);
            rows[row].push_back(number.value);
        }
        rows[row][row] = Rounded(problem.chance.Sign() * (rest + problem.chance.Between(0.5, 5.0)), 2).value;
        for (const double number : rows[row])
            text += Digits(number) + " ";
        problem.Type(text);
    }
    return rows;
}

}  // namespace

Verdict PlayRegularSystem(Problem& problem) {
    const std::size_t order = 1 + problem.chance.Below(8);
    const std::vector<Row> rows = RegularRows(problem, order);
    numeric::SquareMatrix matrix(order);
    std::vector<double> solution;
    for (std::size_t row = 0; row < order; ++row) {
        for (std::size_t column = 0; column < order; ++column)
            matrix(row, column) = rows[row][column];
        solution.push_back(rows[row].back());
    }
    const numeric::LinearOutcome outcome = numeric::SolveIndependent(matrix, solution);
    if (outcome != numeric::LinearOutcome::Done)
        return Wrong("a regular system is refused: " + std::string(numeric::TextOf(outcome)));
    for (const Row& row : rows) {
        Sum sum;
        for (std::size_t column = 0; column < order; ++column)
            sum.Add(row[column] * solution[column]);
        sum.Add(-row.back());
        if (!sum.VanishesWithin(1e-11))
            return Wrong("an equation leaves " + sum.Told());
    }
    return Right();
}

}  // namespace tavrelo::physics
