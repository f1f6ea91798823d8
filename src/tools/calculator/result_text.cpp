#include "tools/calculator/result_text.h"

namespace tavrelo::tools::calculator {

std::string Subscripted(const std::string& name, std::size_t number) {
    std::string text = name;
    for (const char digit : std::to_string(number))
        text.append("!").push_back(digit);
    return text;
}

std::string PointText(const RoutineRun& run, double x, double y) {
    return "(" + run.Bare(x) + ", " + run.Bare(y) + ")";
}

std::string PointText(const RoutineRun& run, const mechanics::forces::PlaneVector& vector) {
    return PointText(run, vector.x, vector.y);
}

std::string PolarText(const RoutineRun& run, const mechanics::forces::PlaneVector& vector) {
    return "(" + run.Bare(vector.magnitude) + " #angu " + run.Bare(vector.direction) + "°)";
}

std::string VectorText(const RoutineRun& run, const mechanics::forces::PlaneVector& vector) {
    return PointText(run, vector) + "   ó   " + PolarText(run, vector);
}

}  // namespace tavrelo::tools::calculator
