#include <algorithm>
#include <cmath>
#include <utility>

#include "equations.h"
#include "independence.h"
#include "numeric/linear_systems.h"
#include "numeric/numeric_kinds.h"
#include "typed.h"

namespace tavrelo::physics {
namespace {

constexpr double kClearlyIndependent = 1e-4;
constexpr double kClearDeterminant = 1e-6;
// What rounding leaves of an equation of a system that is clearly regular.
constexpr double kRounding = 1e-9;
constexpr std::size_t kMostUnknowns = 10;

// A row as typed: the coefficients, then the right side.
using Row = std::vector<double>;

// Coefficients of one size in a system, some of them 0.
Row AnyRow(Chance& chance, std::size_t order, double size) {
    Row row;
    for (std::size_t column = 0; column <= order; ++column)
        row.push_back(chance.OneIn(6) ? 0 : Rounded(chance.Between(-size, size), 2).value);
    return row;
}

void Type(Problem& problem, const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        std::string text;
        for (const double number : row)
            text += Digits(number) + " ";
        problem.Type(text);
    }
}

struct Solved {
    numeric::LinearOutcome outcome;
    std::vector<double> solution;
};

Solved SolvedSystem(const std::vector<Row>& rows) {
    numeric::SquareMatrix matrix(rows.size());
    std::vector<double> solution;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t column = 0; column < rows.size(); ++column)
            matrix(row, column) = rows[row][column];
        solution.push_back(rows[row].back());
    }
    const numeric::LinearOutcome outcome = numeric::SolveIndependent(matrix, solution);
    return {outcome, solution};
}

Columns ColumnsOf(const std::vector<Row>& rows) {
    Columns columns(rows.size());
    for (const Row& row : rows)
        for (std::size_t column = 0; column < rows.size(); ++column)
            columns[column].push_back(row[column]);
    return columns;
}

}  // namespace

Verdict PlaySystem(Problem& problem) {
    Chance& chance = problem.chance;
    const std::size_t order = 1 + chance.Below(kMostUnknowns);
    const double size = chance.Size(1, 1000);
    std::vector<Row> rows;
    for (std::size_t row = 0; row < order; ++row)
        rows.push_back(AnyRow(chance, order, size));
    Type(problem, rows);
    const auto [outcome, solution] = SolvedSystem(rows);
    const Columns columns = ColumnsOf(rows);
    const bool is_regular =
        Independence(columns) > kClearlyIndependent && DeterminantSize(columns) > kClearDeterminant;
    if (outcome != numeric::LinearOutcome::Done) {
        const std::string message(numeric::TextOf(outcome));
        return is_regular ? Wrong("refused although regular: " + message) : Refused(message);
    }
    std::vector<Sum> sums(order);
    double largest = 0;
    for (std::size_t row = 0; row < order; ++row) {
        for (std::size_t column = 0; column < order; ++column)
            sums[row].Add(rows[row][column] * solution[column]);
        sums[row].Add(-rows[row].back());
        largest = std::max(largest, sums[row].Largest());
    }
    for (const Sum& sum : sums)
        if (is_regular ? std::abs(sum.Value()) > kRounding * largest : !sum.VanishesBeside(largest))
            return Wrong("an equation leaves " + sum.Told());
    return Right();
}

Verdict PlayDependentSystem(Problem& problem) {
    Chance& chance = problem.chance;
    const std::size_t order = 2 + chance.Below(5);
    const double size = chance.Size(1, 1000);
    std::vector<Row> rows;
    for (std::size_t row = 0; row + 1 < order; ++row)
        rows.push_back(AnyRow(chance, order, size));
    // The last one is made of the others by factors that leave its decimals few.
    Row last(order + 1);
    for (const Row& row : rows) {
        const double factor = chance.Between(-3, 3);
        for (std::size_t column = 0; column < order; ++column)
            last[column] = Rounded(last[column] + factor * row[column], 2).value;
    }
    last.back() = Rounded(chance.Between(-size, size), 2).value;
    rows.push_back(last);
    std::swap(rows.back(), rows[chance.Below(order)]);
    Type(problem, rows);
    const auto [outcome, solution] = SolvedSystem(rows);
    if (outcome == numeric::LinearOutcome::Done)
        return Wrong("solved with x1 = " + Digits(solution[0]) + " although dependent");
    return Refused(numeric::TextOf(outcome));
}

}  // namespace tavrelo::physics
