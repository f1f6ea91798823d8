#include "tools/kinematics/describe.h"

#include <gtest/gtest.h>

namespace tavrelo::tools::kinematics {
namespace {

/// x = t^2 - 1 and its velocity 2 t.
TEST(DescribeCurves, TellsEachCurveOverItsOwnExtent) {
    mechanics::kinematics::LineCurves curves;
    curves.t = {0, 1, 2};
    curves.x = {-1, 0, 3};
    EXPECT_EQ(DescribeCurves(curves, 3),
              "Gráfica con una curva. Curva de x frente a t, de t 0 a t 2. Mínimo menos 1 en t 0; máximo 3 "
              "en t 2. Cero en t "
              "1. Sube de t 0 a t 2.");
    curves.v = {0, 2, 4};
    EXPECT_EQ(DescribeCurves(curves, 3),
              "Gráfica con dos curvas, cada una en su escala. Curva de x frente a t, de t 0 a t 2. Mínimo "
              "menos 1 en t 0; "
              "máximo 3 en t 2. Cero en t 1. Sube de t 0 a t 2. Curva de v frente a t, de t 0 a t 2. Mínimo "
              "0 en t 0; "
              "máximo 4 en t 2. Cero en t 0. Sube de t 0 a t 2.");
}

TEST(DescribeTrajectory, TellsBothEndsAndTheExtent) {
    EXPECT_EQ(DescribeTrajectory({{1, 0, -1}, {0, 1, 0}}, 3),
              "Trayectoria en el plano. Empieza en x 1, y 0 y termina en x menos 1, y 0. Abarca x de menos 1 "
              "a 1, y de 0 a "
              "1.");
}

}  // namespace
}  // namespace tavrelo::tools::kinematics
