#pragma once

#include <variant>
#include <vector>

#include "mechanics/rigid/body_force.h"

namespace tavrelo::bench {

inline constexpr int kDecimals = 3;

struct TypedForce {
    int body;
    const char* point;
    double x, y;
    const char* text;
};

// The legs ABC and CDE of an A and its bar BD with 60 in the middle: nine unknowns.
inline constexpr TypedForce kFrame[] = {
    {2, "A", 0, 0, "Ax, Ay"},   {2, "B", 1, 2, "-Bx, -By"}, {2, "C", 2, 4, "Cx, Cy"},
    {3, "C", 2, 4, "-Cx, -Cy"}, {3, "D", 3, 2, "-Dx, -Dy"}, {3, "E", 4, 0, "vE"},
    {4, "B", 1, 2, "Bx, By"},   {4, "D", 3, 2, "Dx, Dy"},   {4, "F", 2, 2, "v-60"},
};

inline std::vector<mechanics::rigid::ReadForce> FrameForces() {
    std::vector<mechanics::rigid::ReadForce> forces;
    for (const auto& [body, point, x, y, text] : kFrame)
        forces.push_back(std::get<mechanics::rigid::ReadForce>(
            mechanics::rigid::ReadBodyForce(body, {point, x, y}, text, kDecimals)));
    return forces;
}

}  // namespace tavrelo::bench
