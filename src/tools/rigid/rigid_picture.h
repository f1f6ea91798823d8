#pragma once

#include "tools/rigid/diagram.h"
#include "tools/rigid/diagram_layout.h"
#include "tools/rigid/diagram_view.h"

namespace tavrelo::tools::rigid {

/// Colour of a system's lines, points and texts; counted from 1.
text::Color SystemColor(int system);

/// What the picture shows of a problem.
struct RigidScene {
    const mechanics::rigid::RigidProblem& problem;
    const DiagramView& view;
    int decimals;
};

/// The axes and points of the structure, one scale for both axes, the lines of the systems in view (of all
/// systems while none is) and the forces and couples of the bodies in view. Nothing without points.
Diagram DiagramOf(const RigidScene& scene, CanvasSize size);

/// Clears the picture and draws the diagram of the scene.
void RedrawAll(window::Surface& canvas, const RigidScene& scene);

/// Draws one line on top of the picture as it stands.
void DrawOver(window::Surface& canvas, const mechanics::rigid::PointTable& points,
              const mechanics::rigid::LineRow& line);

}  // namespace tavrelo::tools::rigid
