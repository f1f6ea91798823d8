#pragma once

#include "mechanics/rigid/body_force.h"
#include "mechanics/rigid/structure.h"
#include "window/surface.h"

namespace tavrelo::tools::rigid {

/// Colour of a system's lines, points and texts; counted from 1.
text::Color SystemColor(int system);

/// What the picture shows of a problem, and whose drawing places it sets: those of the points and of the
/// forces.
struct RigidScene {
    mechanics::rigid::PointTable& points;
    const mechanics::rigid::LineTable& lines;
    const mechanics::rigid::SystemPoints& systems;
    mechanics::rigid::BodyForces& forces;
    const mechanics::rigid::ShownDCL& shown;
    int decimals;
};

/// Clears the picture and draws the axes and points of the structure, one scale for both axes, the lines
/// of the systems in view (of all systems while none is) and the forces and couples of the bodies in view.
void RedrawAll(window::Surface& canvas, RigidScene scene);

/// Draws one line on top of the picture as it stands, at the drawing places of the points.
void DrawOver(window::Surface& canvas, const mechanics::rigid::PointTable& points,
              const mechanics::rigid::LineRow& line);

}  // namespace tavrelo::tools::rigid
