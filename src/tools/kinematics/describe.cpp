#include "tools/kinematics/describe.h"

#include <vector>

#include "drawing/curve_words.h"
#include "drawing/words.h"

namespace tavrelo::tools::kinematics {

std::string DescribeCurves(const mechanics::kinematics::LineCurves& curves, int decimals) {
    constexpr drawing::Noun kCurves{"curva", "curvas", true};
    const struct {
        std::string_view letter;
        const std::vector<double>& values;
    } kAll[] = {{"x", curves.x}, {"v", curves.v}, {"a", curves.a}};
    std::string told;
    std::size_t count = 0;
    for (const auto& [letter, values] : kAll) {
        if (values.empty())
            continue;
        ++count;
        told += " Curva de " + drawing::CurveWords({"t", letter, curves.t, values}, decimals);
    }
    return "Gráfica con " + drawing::Counted(count, kCurves) +
           (count > 1 ? ", cada una en su escala." : ".") + told;
}

std::string DescribeTrajectory(const mechanics::kinematics::Trajectory& path, int decimals) {
    return "Trayectoria en el plano. " +
           drawing::AsSentence(drawing::PathWords({"x", "y", path.x, path.y}, decimals));
}

}  // namespace tavrelo::tools::kinematics
