#include "numeric/dependence.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace tavrelo::numeric {

namespace {

void DivideColumnsByTheirLargest(SquareMatrix& a) {
    for (std::size_t column = 0; column < a.Order(); ++column) {
        double largest = 0.0;
        for (const double element : a.Column(column))
            largest = std::max(largest, std::abs(element));
        if (largest == 0.0)
            continue;
        for (double& element : a.Column(column))
            element /= largest;
    }
}

void DivideRowsByTheirLargest(SquareMatrix& a) {
    const std::vector<double> largest = LargestOfRows(a);
    for (std::size_t column = 0; column < a.Order(); ++column)
        for (std::size_t row = 0; row < a.Order(); ++row)
            if (largest[row] != 0.0)
                a(row, column) /= largest[row];
}

/// Brings the largest element from row and column `step` on to the diagonal, and returns it.
double TakeLargestPivot(SquareMatrix& a, std::size_t step) {
    std::size_t pivot_row = step, pivot_column = step;
    for (std::size_t column = step; column < a.Order(); ++column)
        for (std::size_t row = step; row < a.Order(); ++row)
            if (std::abs(a(row, column)) > std::abs(a(pivot_row, pivot_column))) {
                pivot_row = row;
                pivot_column = column;
            }
    std::ranges::swap_ranges(a.Column(step), a.Column(pivot_column));
    for (std::size_t column = step; column < a.Order(); ++column)
        std::swap(a(step, column), a(pivot_row, column));
    return a(step, step);
}

void Eliminate(SquareMatrix& a, std::size_t step) {
    for (std::size_t column = step + 1; column < a.Order(); ++column) {
        const double factor = a(step, column) / a(step, step);
        for (std::size_t row = step + 1; row < a.Order(); ++row)
            a(row, column) -= factor * a(row, step);
    }
}

}  // namespace

bool AreDependent(SquareMatrix a) {
    DivideColumnsByTheirLargest(a);
    DivideRowsByTheirLargest(a);
    for (std::size_t step = 0; step < a.Order(); ++step) {
        if (std::abs(TakeLargestPivot(a, step)) < kRoundingPivot)
            return true;
        Eliminate(a, step);
    }
    return false;
}

}  // namespace tavrelo::numeric
