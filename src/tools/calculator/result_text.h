#pragma once

#include <cstddef>
#include <string>

#include "mechanics/forces/resultants.h"
#include "tools/calculator/routine_run.h"

namespace tavrelo::tools::calculator {

/// A name and its number as a subscript, in markup: every digit has a mark of its own.
std::string Subscripted(const std::string& name, std::size_t number);

/// "(x, y)", rounded.
std::string PointText(const RoutineRun& run, double x, double y);
std::string PointText(const RoutineRun& run, const mechanics::forces::PlaneVector& vector);
/// "(m ∠ a°)": the vector by its magnitude and direction.
std::string PolarText(const RoutineRun& run, const mechanics::forces::PlaneVector& vector);
/// Both forms of a vector with an "ó" between them.
std::string VectorText(const RoutineRun& run, const mechanics::forces::PlaneVector& vector);

}  // namespace tavrelo::tools::calculator
