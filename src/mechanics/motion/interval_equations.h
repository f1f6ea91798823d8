#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "notation/interval_line.h"
#include "text/refusal.h"

namespace tavrelo::mechanics::motion {

/// Data that are too many, too few, or that follow from one another.
inline constexpr std::string_view kInconsistentInterval = "Datos de más, de menos, o inconsistentes";

/// A datum that was found.
struct IntervalResult {
    notation::IntervalDatum datum;
    double value;
};
/// What was found, in the order of the report.
using IntervalResults = std::vector<IntervalResult>;

/// Solves an interval of uniformly accelerated motion by
///     vf = vi + a dt,   dx = (vi + vf) dt / 2,   vf^2 = vi^2 + 2 a dx,   dv = vf - vi.
/// Solvable are three independent ones of {a, dt, dx, vi, vf, dv}, where dt may be given by ti and tf or dx
/// by xi and xf, or one single end may join them to place the interval: 18 sets of three data and 91 of four.
/// A speed that comes out of a square has the sign of the other speed; beside a speed of 0, the sign for
/// which dt is positive. Fails with RuntimeFailure where a formula has no value that no refusal names.
std::variant<text::Refusal, IntervalResults> SolveInterval(const notation::IntervalData& data);

/// The lines of the report, in rich-text markup: the data and what was found, rounded.
std::vector<std::string> IntervalReport(const notation::IntervalData& data, const IntervalResults& results,
                                        int decimals);

/// Reads the line typed for the procedure, solves and reports. Fails like ReadIntervalLine and SolveInterval.
std::variant<text::Refusal, std::vector<std::string>> ApplyIntervalEquations(std::string_view line,
                                                                             int decimals);

}  // namespace tavrelo::mechanics::motion
