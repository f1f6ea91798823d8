#include "tools/projectile/describe.h"

#include <algorithm>
#include <vector>

#include "drawing/curve_words.h"
#include "drawing/words.h"

namespace tavrelo::tools::projectile {
namespace {

using mechanics::projectile::Graph;
using mechanics::projectile::GraphCurve;

constexpr drawing::Noun kTrajectories{"trayectoria", "trayectorias", true};

std::string CurveWords(const GraphCurve& curve, int decimals) {
    std::vector<double> xs, ys;
    for (const numeric::Point& point : curve.points) {
        xs.push_back(point.x);
        ys.push_back(point.y);
    }
    const numeric::Point& highest = *std::ranges::max_element(curve.points, {}, &numeric::Point::y);
    return " Móvil " + std::to_string(curve.mover) + " " + drawing::PathWords({"x", "y", xs, ys}, decimals) +
           " Punto más alto: " + drawing::PlaceWords(highest.x, highest.y, decimals) + ".";
}

}  // namespace

std::string DescribeTrajectories(const Graph& graph, int decimals) {
    std::string words = "Gráfica de y contra x, " + drawing::Counted(graph.curves.size(), kTrajectories) +
                        ". x de " + drawing::NumberWords(graph.x.low, decimals) + " a " +
                        drawing::NumberWords(graph.x.high, decimals) + ", y de " +
                        drawing::NumberWords(graph.y.low, decimals) + " a " +
                        drawing::NumberWords(graph.y.high, decimals) + ".";
    for (const GraphCurve& curve : graph.curves)
        if (!curve.points.empty())
            words += CurveWords(curve, decimals);
    return words;
}

}  // namespace tavrelo::tools::projectile
