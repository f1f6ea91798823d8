#include "tools/projectile/describe.h"

#include <gtest/gtest.h>

namespace tavrelo::tools::projectile {
namespace {

TEST(DescribeTrajectories, TellsBeginningEndAndTop) {
    mechanics::projectile::Graph graph;
    graph.x = {0, 20};
    graph.y = {0, 15};
    graph.curves = {{1, "y", {{0, 10}, {10, 15}, {20, 0}}}};
    EXPECT_EQ(DescribeTrajectories(graph, 3),
              "Gráfica de y contra x, una trayectoria. x de 0 a 20, y de 0 a 15. Móvil 1 empieza en x 0, y "
              "10 y termina en x "
              "20, y 0. Abarca x de 0 a 20, y de 0 a 15. Punto más alto: x 10, y 15.");
}

TEST(DescribeTrajectories, PassesOverACurveWithoutPoints) {
    mechanics::projectile::Graph graph;
    graph.curves = {{2, "Y", {}}};
    EXPECT_EQ(DescribeTrajectories(graph, 3),
              "Gráfica de y contra x, una trayectoria. x de 0 a 0, y de 0 a 0.");
}

}  // namespace
}  // namespace tavrelo::tools::projectile
