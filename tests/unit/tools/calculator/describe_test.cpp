#include "tools/calculator/describe.h"

#include <gtest/gtest.h>

#include "../../window/test_host.h"
#include "tools/calculator/calculator_tool.h"

namespace tavrelo::tools::calculator {
namespace {

constexpr int kDecimals = 3;

/// The right triangle of 3, 4 and 5 with its angles of 90, 36.87 and 53.13 degrees.
TEST(DescribeFigure, TellsSidesAndAnglesOfATriangle) {
    Figure triangle{{{0, 0}, {4, 0}, {0, 3}}, {text::kBlack}};
    EXPECT_EQ(DescribeFigure(triangle, kDecimals),
              "Triángulo. Lados de 4, 5 y 3. Ángulos de 90, 36.87 y 53.13 grados.");
    triangle.vertex_labels = {"a", "b", "c"};
    EXPECT_EQ(DescribeFigure(triangle, 0),
              "Triángulo. Vértices: x 0, y 0; x 4, y 0; x 0, y 3. Lados de 4, 5 y 3. Ángulos de 90, 37 y 53 "
              "grados.");
}

TEST(DescribeFigure, TellsTheAnglesOfASmallTriangle) {
    const Figure triangle{{{0, 0}, {4e-4, 0}, {0, 3e-4}}, {text::kBlack}};
    EXPECT_EQ(DescribeFigure(triangle, 4),
              "Triángulo. Lados de 0.0004, 0.0005 y 0.0003. Ángulos de 90, 36.8699 y 53.1301 grados.");
}

TEST(DescribeFigure, TellsAPolygon) {
    const Figure square{{{0, 0}, {2, 0}, {2, 2}, {0, 2}}, {text::kBlack}, {"1", "2", "3", "4"}};
    EXPECT_EQ(
        DescribeFigure(square, kDecimals),
        "Polígono de 4 vértices. Vértices: x 0, y 0; x 2, y 0; x 2, y 2; x 0, y 2. Lados de 2, 2, 2 y 2.");
}

TEST(DescribeVectors, TellSizesDirectionsAndTheResult) {
    const std::vector<DrawnVector> vectors = {{3, 0, "V!1"}, {0, -4, "V!2"}, {3, -4, "S", kResultColor}};
    EXPECT_EQ(
        DescribeFromCenter(vectors, {}, kDecimals),
        "Tres vectores desde el origen: V1 de 3 hacia la derecha; V2 de 4 hacia abajo; S de 5 a menos 53.13 "
        "grados, resultado.");
    EXPECT_EQ(DescribeFromCenter({{0, 0, "V"}}, {30, true}, kDecimals),
              "Un vector desde el origen: V nulo. Ejes X prima, Y prima girados 30 grados.");
}

TEST(DescribeVectors, TellThePointsThatTheyLeave) {
    const std::vector<DrawnVector> forces = {{0, -10, "F!1", kGivenColor, {2, 0}},
                                             {0, 10, "R", kResultColor, {-1.5, 3}}};
    EXPECT_EQ(DescribeAtPoints(forces, kDecimals),
              "Dos fuerzas: F1 de 10 hacia abajo en x 2, y 0; R de 10 hacia arriba en x menos 1.5, y 3, "
              "resultado.");
    EXPECT_EQ(DescribeVerticalForces(forces, kDecimals),
              "Dos fuerzas paralelas al eje z: F1 de 10 hacia abajo en x 2, y 0; R de 10 hacia arriba en x "
              "menos 1.5, y "
              "3, resultado.");
}

TEST(DescribeVectors, SayThatThereAreNone) { EXPECT_EQ(DescribeAtPoints({}, kDecimals), "Ninguna fuerza."); }

TEST(DescribeGraph, TellsItsFormulaAndItsCourse) {
    const std::vector<double> xs = {0, 1, 2, 3}, ys = {-3, -2, 1, 6};
    EXPECT_EQ(DescribeGraph("x^2-3", {"x", "y", xs, ys}, kDecimals),
              "Gráfica de x al cuadrado menos 3: y frente a x, de x 0 a x 3. Mínimo menos 3 en x 0; máximo 6 "
              "en x 3. Cero en "
              "x 1.667. Sube de x 0 a x 3.");
    EXPECT_EQ(DescribePath("r = 2", {"x", "y", xs, ys}, kDecimals),
              "Gráfica de r igual a 2. Empieza en x 0, y menos 3 y termina en x 3, y 6. Abarca x de 0 a 3, y "
              "de menos 3 a 6.");
}

TEST(DescribeFit, TellsThePoints) {
    const std::vector<double> xs = {1, 2}, ys = {2, 4};
    EXPECT_EQ(DescribeFit(xs, ys, {"x", "y", xs, ys}, kDecimals),
              "Ajuste a dos puntos: x 1, y 2; x 2, y 4. Curva: y frente a x, de x 1 a x 2. Mínimo 2 en x 1; "
              "máximo 4 en x "
              "2. Sin ceros. Sube de x 1 a x 2.");
}

/// Numbers near the end of their range have lengths that are past it: words for a picture never fail.
TEST(DescribeFigure, NeverFails) {
    const Figure huge{{{-1e308, 0}, {1e308, 0}, {0, 1e308}}, {text::kBlack}};
    EXPECT_NE(DescribeFigure(huge, kDecimals).find("fuera de alcance"), std::string::npos);
}

/// The words of a routine's picture go with it when another one draws.
TEST(CalculatorPicture, ChangesItsWordsWithItsDrawing) {
    constexpr int kVectorSumRoutine = 28;
    window::TestHost world;
    window::Form1 form{world.host};
    frame::SharedExpression expression{form.publics.AngleFactor};
    frame::DirectionClock clock{form};
    const CalculatorTool calculator{form, expression, clock};
    auto& gd = form.Get<window::Grid>("gd");
    const auto run = [&](const char* first, const char* second) {
        gd.SetCell(1, 1, first);
        gd.SetCell(1, 2, second);
        gd.Select({1, 1, 1, 2});
        form.publics.ProcNumber = kVectorSumRoutine;
        form.Get<window::Button>("cmdCalculate").UserClick();
        return form.Get<window::Picture>("pic").Description();
    };
    EXPECT_EQ(run("3,0", "0,4"),
              "Tres vectores desde el origen: F1 de 3 hacia la derecha; F2 de 4 hacia arriba; S de 5 a 53.13 "
              "grados, "
              "resultado.");
    EXPECT_EQ(
        run("1,0", "1,0"),
        "Tres vectores desde el origen: F1 de 1 hacia la derecha; F2 de 1 hacia la derecha; S de 2 hacia la "
        "derecha, resultado.");
}

}  // namespace
}  // namespace tavrelo::tools::calculator
