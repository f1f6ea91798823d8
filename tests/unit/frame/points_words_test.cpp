#include "frame/points_words.h"

#include <gtest/gtest.h>

namespace tavrelo::frame {
namespace {

using mechanics::points::Configuration;

TEST(DescribeConfiguration, TellsMoversPointsAndStretches) {
    Configuration configuration;
    EXPECT_EQ(DescribeConfiguration(configuration), "");
    configuration.movers[0] = {9, {{0, 8}}};
    EXPECT_EQ(DescribeConfiguration(configuration), "Móvil 1: puntos 0 a 8.");
    configuration.movers[0] = {4, {{0, 2}, {2, 3}}};
    configuration.movers[1] = {1, {{0, 0}}};
    EXPECT_EQ(DescribeConfiguration(configuration),
              "Móvil 1: puntos 0 a 3, tramo 1 de 0 a 2, tramo 2 de 2 a 3. Móvil 2: punto 0.");
}

}  // namespace
}  // namespace tavrelo::frame
