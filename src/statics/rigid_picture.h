#pragma once

#include "shell/surface.h"
#include "statics/body_force.h"
#include "statics/structure.h"

namespace tavrelo::statics {

/// Colour of a system's lines, points and texts; counted from 1.
shell::Color SystemColor(int system);

/// What the picture shows of a problem, and whose drawing places it sets: those of the points and of the
/// forces.
struct RigidScene {
    PointTable& points;
    const LineTable& lines;
    const SystemPoints& systems;
    BodyForces& forces;
    const ShownDCL& shown;
    int decimals;
};

/// Clears the picture and draws the axes and points of the structure, one scale for both axes, the lines
/// of the systems in view (of all systems while none is) and the forces and couples of the bodies in view.
void RedrawAll(shell::Surface& canvas, RigidScene scene);

/// Draws one line on top of the picture as it stands, at the drawing places of the points.
void DrawOver(shell::Surface& canvas, const PointTable& points, const LineRow& line);

}  // namespace tavrelo::statics
