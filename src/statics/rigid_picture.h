#pragma once

#include <array>

#include "shell/surface.h"
#include "statics/body_force.h"
#include "statics/structure.h"

namespace tavrelo::statics {

/// The systems whose diagrams are in view; index 0 is system 1.
using ShownDCL = std::array<bool, kSystems>;

/// Colour of a system's lines, points and texts; counted from 1.
shell::Color SystemColor(int system);

/// What the picture shows of a problem.
struct RigidScene {
    PointTable& points;  // their drawing places are set
    const LineTable& lines;
    const SystemPoints& systems;
    BodyForces& forces;  // their drawing places are set
    const ShownDCL& shown;
    int decimals;
};

/// Clears the picture and draws the axes and points of the structure, one scale for both axes, the lines
/// of the systems in view (of all systems while none is) and the forces and couples of the bodies in view.
void RedrawAll(shell::Surface& canvas, const RigidScene& scene);

/// Draws one line on top of the picture as it stands, at the drawing places of the points.
void DrawOver(shell::Surface& canvas, const PointTable& points, const LineRow& line);

/// Whether the user has to be asked in which direction to draw the force.
bool NeedsDrawDirection(const BodyForce& force);
/// Draws the force from now on in that direction (degrees).
void SetDrawDirection(BodyForce& force, double degrees);

}  // namespace tavrelo::statics
