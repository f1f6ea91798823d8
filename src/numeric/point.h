#pragma once

namespace tavrelo::numeric {

/// A point of the plane, y upward.
struct Point {
    double x = 0.0;
    double y = 0.0;

    friend bool operator==(const Point&, const Point&) = default;
};

}  // namespace tavrelo::numeric
