#include "statics/rigid_picture.h"

#include <array>
#include <cstdint>

#include "statics/dcl_drawing.h"
#include "statics/structure_drawing.h"

namespace tavrelo::statics {
namespace {

constexpr std::array<std::uint32_t, kSystems> kSystemColors = {8421504, 49344, 49152, 12632064, 12582912};

}  // namespace

shell::Color SystemColor(int system) {
    return shell::FromBgr(kSystemColors[static_cast<std::size_t>(system) - 1]);
}

void RedrawAll(shell::Surface& canvas, RigidScene scene) {
    canvas.Cls();
    RigidSheet sheet(canvas);
    if (scene.points.empty())
        return;
    DrawConfig(sheet, scene);
    RefreshPlaces(scene.forces, scene.points);
    DrawLines(sheet, scene);
    sheet.DrawPoints();
    DrawDCL(sheet, scene);
    sheet.PlaceLabels();
}

void DrawOver(shell::Surface& canvas, const PointTable& points, const LineRow& line) {
    RigidSheet sheet(canvas);
    DrawChain(sheet, points, line);
}

}  // namespace tavrelo::statics
