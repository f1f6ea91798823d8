#include "tools/calculator/report.h"

namespace tavrelo::tools::calculator {

std::string Subscripted(const std::string& name, std::size_t number) {
    std::string text = name;
    for (const char digit : std::to_string(number))
        text.append("!").push_back(digit);
    return text;
}

std::string PointText(const Task& task, double x, double y) {
    return "(" + task.Bare(x) + ", " + task.Bare(y) + ")";
}

std::string PointText(const Task& task, const mechanics::forces::PlaneVector& vector) {
    return PointText(task, vector.x, vector.y);
}

std::string PolarText(const Task& task, const mechanics::forces::PlaneVector& vector) {
    return "(" + task.Bare(vector.magnitude) + " #angu " + task.Bare(vector.direction) + "°)";
}

std::string VectorText(const Task& task, const mechanics::forces::PlaneVector& vector) {
    return PointText(task, vector) + "   ó   " + PolarText(task, vector);
}

}  // namespace tavrelo::tools::calculator
