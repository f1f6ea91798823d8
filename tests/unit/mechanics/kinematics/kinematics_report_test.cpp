#include "mechanics/kinematics/kinematics_report.h"

#include <gtest/gtest.h>

namespace tavrelo::mechanics::kinematics {
namespace {

using Lines = std::vector<std::string>;

TEST(KinematicsReport, TellsEachWayInItsLines) {
    EXPECT_EQ(ReportOf({2, 11, 21, 24}, 3), (Lines{"En t = 2:", "x = 11, v = 21", "a = 24"}));
    EXPECT_EQ(ReportOf({-2, 1.23456, -0.0004, std::nullopt}, 3), (Lines{"En t = ;-2:", "x = 1.235, v = 0"}));
    const PlaneState state = {1, {3, -0.9}, {3, -5.8}, {0, -9.8}};
    EXPECT_EQ(ReportOf(state, Way::Plane, 3),
              (Lines{"En t = 1:", "x = 3, y = ;-0.9", "v!x = 3, v!y = ;-5.8", "a!x = 0, a!y = ;-9.8"}));
    EXPECT_EQ(ReportOf(state, Way::Polar, 0),
              (Lines{"En t = 1:", "r = 3, ;q = ;-1", "v!r = 3, v!t = ;-6", "a!r = 0, a!t = ;-10"}));
}

}  // namespace
}  // namespace tavrelo::mechanics::kinematics
