#pragma once

#include <cmath>

#include "equations.h"

namespace tavrelo::physics {

/// A vector of the plane.
struct Vector {
    double x = 0;
    double y = 0;

    double Length() const { return std::hypot(x, y); }
};

inline Vector operator+(const Vector& a, const Vector& b) { return {a.x + b.x, a.y + b.y}; }
inline Vector operator-(const Vector& a) { return {-a.x, -a.y}; }
inline Vector operator*(double factor, const Vector& a) { return {factor * a.x, factor * a.y}; }
inline double Dot(const Vector& a, const Vector& b) { return a.x * b.x + a.y * b.y; }
/// The component of a x b along k.
inline double Cross(const Vector& a, const Vector& b) { return a.x * b.y - a.y * b.x; }
/// Of that length along a direction in degrees.
inline Vector Along(double direction, double length = 1) {
    return {length * CosDegrees(direction), length * SinDegrees(direction)};
}

}  // namespace tavrelo::physics
