#include "independence.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tavrelo::physics {
namespace {

double LargestOf(const std::vector<double>& line) {
    double largest = 0;
    for (const double element : line)
        largest = std::max(largest, std::abs(element));
    return largest;
}

// Each column, then each row, divided by its largest element; nothing divides by 0.
void BringToSizeOne(Columns& columns) {
    for (std::vector<double>& column : columns)
        if (const double largest = LargestOf(column); largest > 0)
            for (double& element : column)
                element /= largest;
    for (std::size_t row = 0; row < columns.size(); ++row) {
        double largest = 0;
        for (const std::vector<double>& column : columns)
            largest = std::max(largest, std::abs(column[row]));
        if (largest > 0)
            for (std::vector<double>& column : columns)
                column[row] /= largest;
    }
}

// Brings the largest element of what is left to the diagonal.
void Pivot(Columns& columns, std::size_t step) {
    std::size_t best_column = step, best_row = step;
    for (std::size_t c = step; c < columns.size(); ++c)
        for (std::size_t r = step; r < columns.size(); ++r)
            if (std::abs(columns[c][r]) > std::abs(columns[best_column][best_row])) {
                best_column = c;
                best_row = r;
            }
    std::swap(columns[step], columns[best_column]);
    for (std::vector<double>& column : columns)
        std::swap(column[step], column[best_row]);
}

// The pivots of a square matrix, by size.
std::vector<double> PivotsOf(Columns columns) {
    std::vector<double> pivots;
    for (std::size_t step = 0; step < columns.size(); ++step) {
        Pivot(columns, step);
        const double pivot = columns[step][step];
        pivots.push_back(std::abs(pivot));
        if (pivot == 0)
            break;
        for (std::size_t c = step + 1; c < columns.size(); ++c) {
            const double factor = columns[c][step] / pivot;
            for (std::size_t r = step; r < columns.size(); ++r)
                columns[c][r] -= factor * columns[step][r];
        }
    }
    return pivots;
}

}  // namespace

double Independence(Columns columns) {
    BringToSizeOne(columns);
    const std::vector<double> pivots = PivotsOf(std::move(columns));
    return pivots.empty() ? 0 : *std::ranges::min_element(pivots);
}

double DeterminantSize(const Columns& columns) {
    double product = 1;
    for (const double pivot : PivotsOf(columns))
        product *= pivot;
    return product;
}

}  // namespace tavrelo::physics
