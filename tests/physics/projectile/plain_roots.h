#pragma once

#include <optional>
#include <vector>

namespace tavrelo::physics {

/// The roots of a x^2 + b x + c that are plainly there; nothing when it is not plain whether there are any.
std::optional<std::vector<double>> PlainRoots(double a, double b, double c);

/// Whether a list has a value, but for what a report leaves of it beside a scale.
bool Contains(const std::vector<double>& list, double value, double scale);

}  // namespace tavrelo::physics
