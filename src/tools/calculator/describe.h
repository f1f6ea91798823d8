#pragma once

#include <string>
#include <string_view>

#include "drawing/curve_words.h"
#include "tools/calculator/arrow_drawing.h"
#include "tools/calculator/figure_drawing.h"

// The drawings of the routines in words.

namespace tavrelo::tools::calculator {

/// "Triángulo. ... Lados de 3, 4 y 5."; the vertices where the drawing names them, else the angles.
std::string DescribeFigure(const Figure& figure, int decimals);

/// One vector: "V1 de 5 a 30 grados", below it its components.
std::string DescribeVector(const DrawnVector& vector, int decimals);

/// One force along z: "F1 de 10 hacia arriba".
std::string DescribeVerticalForce(const DrawnVector& force, int decimals);

/// Vectors from the origin: "Dos vectores desde el origen: V1 de 5 a 30 grados; ...".
std::string DescribeFromCenter(const std::vector<DrawnVector>& vectors, const AxesTurn& turn, int decimals);

/// Arrows with the points that they leave.
std::string DescribeAtPoints(const std::vector<DrawnVector>& vectors, int decimals);

/// Forces along z at points of the plane xy.
std::string DescribeVerticalForces(const std::vector<DrawnVector>& forces, int decimals);

/// The graph of a function of x; `formula` as typed.
std::string DescribeGraph(std::string_view formula, const drawing::ToldCurve& curve, int decimals);

/// A curve of polar coordinates or of a parameter.
std::string DescribePath(std::string_view formula, const drawing::ToldCurve& path, int decimals);

/// A fit: its points, and the curve.
std::string DescribeFit(std::span<const double> xs, std::span<const double> ys,
                        const drawing::ToldCurve& curve, int decimals);

}  // namespace tavrelo::tools::calculator
