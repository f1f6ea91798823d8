#pragma once

#include <optional>
#include <string>
#include <variant>

#include "mechanics/projectile/problem.h"
#include "notation/cell_reference.h"

namespace tavrelo::mechanics::projectile {

/// The column of a clicked point: its numbers, and time and height where they refer to another point.
struct PointCells {
    SpeedMode mode = SpeedMode::Polar;
    std::optional<double> t, x, y, first, second;
    std::optional<notation::CellReference> time_reference, height_reference;

    int Count() const {
        int count = 0;
        for (const auto* each : {&t, &x, &y, &first, &second})
            count += each->has_value() ? 1 : 0;
        return count;
    }
    bool HasSpeedData() const { return first || second; }
};

/// Reads a column. A text in the time or the height that is neither a number nor a reference is refused.
std::variant<text::Refusal, PointCells> ReadPoint(const Problem& problem, int column);

/// What a click is about.
struct Click {
    const Problem& problem;
    Place place;
    int column;
    const PointCells& cells;
    int decimals;

    const Equations& TheEquations() const { return problem.EquationsOf(place.mover); }
    std::string MoverText() const { return std::to_string(place.mover); }
};

inline constexpr const char* kWrongData = "Datos incorrectos.";

}  // namespace tavrelo::mechanics::projectile
