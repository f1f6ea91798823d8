#include "tools/motion/describe.h"

#include <vector>

#include "drawing/curve_words.h"
#include "drawing/words.h"

namespace tavrelo::tools::motion {
namespace {

using mechanics::motion::GraphCurve;
using mechanics::motion::MotionGraph;

constexpr int kMovers = 2;
constexpr drawing::Noun kCurves{"curva", "curvas", true};
constexpr drawing::Noun kStretches{"tramo", "tramos"};

/// All stretches of a mover as one curve.
struct MoverCurve {
    std::size_t stretches = 0;
    std::vector<double> times;
    std::vector<double> positions;
};
MoverCurve CurveOf(const MotionGraph& graph, int mover) {
    MoverCurve whole;
    for (const GraphCurve& curve : graph.curves) {
        if (curve.mover != mover)
            continue;
        ++whole.stretches;
        // A stretch begins where the one before it ends.
        const bool is_joint =
            !whole.times.empty() && !curve.times.empty() && whole.times.back() == curve.times.front();
        const std::ptrdiff_t skipped = is_joint ? 1 : 0;
        whole.times.insert(whole.times.end(), curve.times.begin() + skipped, curve.times.end());
        whole.positions.insert(whole.positions.end(), curve.positions.begin() + skipped,
                               curve.positions.end());
    }
    return whole;
}

}  // namespace

std::string DescribeMotionGraph(const MotionGraph& graph, int decimals) {
    std::vector<std::string> told;
    for (int mover = 1; mover <= kMovers; ++mover) {
        const MoverCurve curve = CurveOf(graph, mover);
        if (curve.times.empty())
            continue;
        std::string words = "Móvil " + std::to_string(mover);
        if (curve.stretches > 1)
            words += ", " + drawing::Counted(curve.stretches, kStretches);
        const char* name = mover == 1 ? "x" : "X mayúscula";
        told.push_back(words + ": " +
                       drawing::CurveWords({"t", name, curve.times, curve.positions}, decimals));
    }
    std::string words = "Gráfica de posición contra tiempo, " + drawing::Counted(told.size(), kCurves) +
                        ". t de " + drawing::NumberWords(graph.first_time, decimals) + " a " +
                        drawing::NumberWords(graph.last_time, decimals) + ", posición de " +
                        drawing::NumberWords(graph.least_position, decimals) + " a " +
                        drawing::NumberWords(graph.greatest_position, decimals) + ".";
    for (const std::string& mover : told)
        words += " " + mover;
    return words;
}

}  // namespace tavrelo::tools::motion
