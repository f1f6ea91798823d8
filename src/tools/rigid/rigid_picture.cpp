#include "tools/rigid/rigid_picture.h"

#include <array>
#include <cstdint>

#include "tools/rigid/describe.h"
#include "tools/rigid/force_layout.h"
#include "tools/rigid/structure_layout.h"

namespace tavrelo::tools::rigid {
namespace {

constexpr std::array<std::uint32_t, mechanics::rigid::kSystems> kSystemColors = {8421504, 49344, 49152,
                                                                                 12632064, 12582912};

CanvasSize SizeOf(const window::Surface& canvas) { return {canvas.Width(), canvas.Height()}; }

}  // namespace

text::Color SystemColor(int system) {
    return text::FromBgr(kSystemColors[static_cast<std::size_t>(system) - 1]);
}

Diagram DiagramOf(const RigidScene& scene, CanvasSize size) {
    const mechanics::rigid::PointTable& points = scene.problem.structure.points;
    if (points.empty())
        return {};
    DiagramLayout layout(size);
    const PointPlaces places = PlacesOf(points, size);
    AddStructure(layout, scene, places);
    AddLines(layout, scene, places);
    AddForces(layout, scene, places);
    return layout.Finished();
}

void RedrawAll(window::Surface& canvas, const RigidScene& scene) {
    canvas.Cls();
    Draw(canvas, DiagramOf(scene, SizeOf(canvas)));
    canvas.Describe(DescribeScene(scene));
    if (scene.problem.structure.points.empty())
        canvas.Invite("Escribe una cadena de puntos y su vector de separación.");
}

void DrawOver(window::Surface& canvas, const mechanics::rigid::PointTable& points,
              const mechanics::rigid::LineRow& line) {
    DiagramLayout layout(SizeOf(canvas));
    AddChain(layout, PlacesOf(points, SizeOf(canvas)), line);
    Draw(canvas, layout.Finished());
    canvas.Describe(DescribeLine(line));
}

}  // namespace tavrelo::tools::rigid
