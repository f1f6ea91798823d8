#pragma once

#include <string>
#include <vector>

#include "statics/typed_structure.h"

namespace tavrelo::physics {

/// The equations of bodies without unknown angles, by columns, reckoned from their forces at single values.
struct LinearColumns {
    std::vector<std::vector<double>> columns;  // of each unknown, in the order of their names
    std::vector<double> constant;
};
LinearColumns ColumnsOf(const TypedStructure& structure, const std::vector<AskedBody>& bodies);

/// How far a square system is from a dependent one: the smallest pivot of an elimination with full pivoting,
/// all columns and rows first brought to the size 1; 0 unless it is square.
double Independence(const LinearColumns& system);
/// The size of its determinant as it stands; 0 unless it is square.
double DeterminantSize(const LinearColumns& system);

}  // namespace tavrelo::physics
