#include "tools/rigid/rigid_picture.h"

#include <array>
#include <cstdint>

#include "tools/rigid/dcl_drawing.h"
#include "tools/rigid/structure_drawing.h"

namespace tavrelo::tools::rigid {
namespace {

constexpr std::array<std::uint32_t, mechanics::rigid::kSystems> kSystemColors = {8421504, 49344, 49152,
                                                                                 12632064, 12582912};

}  // namespace

text::Color SystemColor(int system) {
    return text::FromBgr(kSystemColors[static_cast<std::size_t>(system) - 1]);
}

void RedrawAll(window::Surface& canvas, RigidScene scene) {
    canvas.Cls();
    RigidSheet sheet(canvas);
    if (scene.points.empty())
        return;
    DrawConfig(sheet, scene);
    mechanics::rigid::RefreshPlaces(scene.forces, scene.points);
    DrawLines(sheet, scene);
    sheet.DrawPoints();
    DrawDCL(sheet, scene);
    sheet.PlaceLabels();
}

void DrawOver(window::Surface& canvas, const mechanics::rigid::PointTable& points,
              const mechanics::rigid::LineRow& line) {
    RigidSheet sheet(canvas);
    DrawChain(sheet, points, line);
}

}  // namespace tavrelo::tools::rigid
