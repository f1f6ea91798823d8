#include "tools/motion/describe.h"

#include <gtest/gtest.h>

namespace tavrelo::tools::motion {
namespace {

/// A car of 20 and a patrol car of 2 t^2 that is level with it again after 10, at 200.
TEST(DescribeMotionGraph, TellsBothMovers) {
    mechanics::motion::MotionGraph graph;
    graph.last_time = 10;
    graph.greatest_position = 200;
    graph.curves = {{1, 1, {0, 5, 10}, {0, 50, 200}}, {2, 1, {0, 10}, {0, 200}}};
    EXPECT_EQ(
        DescribeMotionGraph(graph, 3),
        "Gráfica de posición contra tiempo, dos curvas. t de 0 a 10, posición de 0 a 200. Móvil 1: x frente "
        "a t, de t "
        "0 a t 10. Mínimo 0 en t 0; máximo 200 en t 10. Cero en t 0. Sube de t 0 a t 10. Móvil 2: X "
        "mayúscula "
        "frente a t, de t 0 a t 10. Mínimo 0 en t 0; máximo 200 en t 10. Cero en t 0. Sube de t 0 a t 10.");
}

TEST(DescribeMotionGraph, JoinsTheStretchesOfAMover) {
    mechanics::motion::MotionGraph graph;
    graph.last_time = 3;
    graph.greatest_position = 4;
    graph.curves = {{1, 1, {0, 2}, {0, 4}}, {1, 2, {2, 3}, {4, 1}}};
    EXPECT_EQ(DescribeMotionGraph(graph, 3),
              "Gráfica de posición contra tiempo, una curva. t de 0 a 3, posición de 0 a 4. Móvil 1, dos "
              "tramos: x frente a "
              "t, de t 0 a t 3. Mínimo 0 en t 0; máximo 4 en t 2. Cero en t 0. Sube de t 0 a t 2 y baja de t "
              "2 a t 3.");
}

}  // namespace
}  // namespace tavrelo::tools::motion
