#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "mechanics/projectile/flight.h"
#include "numeric/point.h"

namespace tavrelo::mechanics::projectile {

/// The trajectory of one mover, sampled in time.
struct GraphCurve {
    int mover = 1;
    std::string name;  // "y" or "Y"
    std::vector<numeric::Point> points;
};

struct GraphRange {
    double low = 0.0;
    double high = 0.0;

    double Extent() const { return high / 2.0 - low / 2.0; }  // half of it, so that it stays finite
};

/// A graph to be drawn, x across and y up: what lies at the edges of the frame, how large the frame is, the
/// curves and the texts. One scale holds for both directions, the frame taking the shape of the curves,
/// unless it would become too thin.
struct Graph {
    GraphRange x;
    GraphRange y;
    /// Sides of the frame as parts of the largest square, above 0 to 1.
    double width = 1.0;
    double height = 1.0;
    std::vector<GraphCurve> curves;
    std::string x_name = "x";
    std::string y_name = "y";
    /// The extremes, rounded: left, right, bottom, top.
    std::array<std::string, 4> labels;

    /// The place of a point in the frame: 0 to 1 from the left, 0 to 1 from the bottom. No extent is the
    /// middle.
    numeric::Point Placed(const numeric::Point& point) const;
};

/// What is drawn of a mover: its flight between two times.
struct GraphPart {
    int mover = 1;
    const Flight* flight = nullptr;
    double first_time = 0.0;
    double last_time = 0.0;
};
/// The parts come in the order in which they are drawn. Fails with Overflow.
Graph GraphOf(const std::vector<GraphPart>& parts, int decimals);

}  // namespace tavrelo::mechanics::projectile
