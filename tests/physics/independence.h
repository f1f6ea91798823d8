#pragma once

#include <vector>

namespace tavrelo::physics {

/// A matrix, column after column.
using Columns = std::vector<std::vector<double>>;

/// How far a square matrix is from a dependent one: the smallest pivot of an elimination with full pivoting,
/// all columns and rows first brought to the size 1.
double Independence(Columns columns);
/// The size of its determinant.
double DeterminantSize(const Columns& columns);

}  // namespace tavrelo::physics
