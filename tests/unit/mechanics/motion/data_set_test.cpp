// Whether a motion fulfils what is told of it.

#include "mechanics/motion/data_set.h"

#include <gtest/gtest.h>

namespace tavrelo::mechanics::motion {
namespace {

struct FulfilCase {
    const char* name;
    DataSet set;
    SetValues values;  // tn, xn, i, f, relation
    bool with_other_speed;
};

// x = 3 + 4 t + t^2 and v = 4 + 2 t, so
//   t   0   1   2   3   4   5
//   x   3   8  15  24  35  48
//   v   4   6   8  10  12  14
const FulfilCase kCases[] = {
    {"t, x", DataSet::TimePosition, {0, 3, 0, 3, 24}, false},
    {"t, v", DataSet::TimeSpeed, {0, 3, 0, 3, 10}, false},
    {"x, v", DataSet::PositionSpeed, {0, 3, 0, 24, 10}, false},
    {"ti, tf, Dx", DataSet::TimesDx, {0, 3, 1, 3, 16}, false},
    {"xi, xf, Dt", DataSet::PositionsDt, {0, 3, 8, 24, 2}, false},
    {"xi, xf, Dv", DataSet::PositionsDv, {0, 3, 8, 24, 4}, false},
    {"ti, tf, Dv", DataSet::TimesDv, {0, 3, 1, 3, 4}, true},  // of the acceleration alone
    {"Dt, Dv", DataSet::DtDv, {0, 3, 0, 2, 4}, true},
    {"ti, tf, C[x]", DataSet::TimesXFactor, {0, 3, 1, 5, 6}, false},
    {"ti, tf, C[v]", DataSet::TimesVFactor, {0, 3, 1, 4, 2}, false},
    {"xi, xf, C[t]", DataSet::PositionsTFactor, {0, 3, 8, 24, 3}, false},
    {"xi, xf, C[v]", DataSet::PositionsVFactor, {0, 3, 8, 35, 2}, false},
    {"vi, vf, C[x]", DataSet::SpeedsXFactor, {0, 3, 6, 10, 3}, false},
};

TEST(Fulfils, TheMotionOfTheDataAndNoOther) {
    for (const FulfilCase& each : kCases) {
        EXPECT_TRUE(Fulfils(each.set, each.values, 4, 2)) << each.name;
        EXPECT_FALSE(Fulfils(each.set, each.values, 4, 3)) << each.name;
        EXPECT_EQ(Fulfils(each.set, each.values, 5, 2), each.with_other_speed) << each.name;
        SetValues other = each.values;
        other.relation += 0.5;
        EXPECT_FALSE(Fulfils(each.set, other, 4, 2)) << each.name;
    }
}

/// The same motion from t = 1, x = 8, v = 6: 8 at 2 and 12 at 4.
TEST(Fulfils, ATimeFactorCountsFromZeroAndNotFromTheBase) {
    const SetValues values = {1, 8, 8, 12, 2};
    EXPECT_TRUE(Fulfils(DataSet::SpeedsTFactor, values, 6, 2));
    EXPECT_FALSE(Fulfils(DataSet::SpeedsTFactor, values, 6, 3));  // 1.667 and 3
    EXPECT_FALSE(Fulfils(DataSet::SpeedsTFactor, values, 7, 2));  // 1.5 and 3.5
    EXPECT_TRUE(Fulfils(DataSet::TimesDx, {1, 8, 2, 4, 20}, 6, 2));
    EXPECT_TRUE(Fulfils(DataSet::TimesXFactor, {1, 8, 1, 3, 3}, 6, 2));
    EXPECT_TRUE(Fulfils(DataSet::TimesVFactor, {1, 8, 1, 4, 2}, 6, 2));
    EXPECT_FALSE(Fulfils(DataSet::TimesVFactor, {1, 8, 1, 4, 3}, 6, 2));
}

struct UniformCase {
    const char* name;
    DataSet set;
    SetValues values;
    double v;
    bool fulfils;
};

// Without acceleration every place has the one speed.
const UniformCase kUniform[] = {
    {"its own speed at a place", DataSet::PositionSpeed, {0, 3, 0, 7, 4}, 4, true},
    {"another speed", DataSet::PositionSpeed, {0, 3, 0, 7, 5}, 4, false},
    {"at rest where it is", DataSet::PositionSpeed, {0, 3, 0, 3, 0}, 0, true},
    {"at rest elsewhere", DataSet::PositionSpeed, {0, 3, 0, 4, 0}, 0, false},
    {"a change of speed", DataSet::PositionsDv, {0, 3, 8, 24, 4}, 4, false},
    {"a factor of the speed", DataSet::PositionsVFactor, {0, 3, 7, 11, 2}, 4, false},
    {"a factor of no speed", DataSet::PositionsVFactor, {0, 3, 3, 3, 2}, 0, true},
    {"a factor of no speed elsewhere", DataSet::PositionsVFactor, {0, 3, 3, 4, 2}, 0, false},
    {"a factor of time", DataSet::SpeedsTFactor, {0, 3, 4, 4, 2}, 4, true},
    {"a factor of time, other start", DataSet::SpeedsTFactor, {0, 3, 5, 4, 2}, 4, false},
    {"a factor of time, other end", DataSet::SpeedsTFactor, {0, 3, 4, 5, 2}, 4, false},
    {"a factor of place", DataSet::SpeedsXFactor, {0, 3, 4, 4, 2}, 4, true},
    {"a factor of place, other start", DataSet::SpeedsXFactor, {0, 3, 5, 4, 2}, 4, false},
    {"a factor of place, other end", DataSet::SpeedsXFactor, {0, 3, 4, 5, 2}, 4, false},
};

TEST(Fulfils, AUniformMotionOnlyWithItsOneSpeed) {
    for (const UniformCase& each : kUniform)
        EXPECT_EQ(Fulfils(each.set, each.values, each.v, 0), each.fulfils) << each.name;
}

/// From rest under 2 the places below the start are never reached, however their speeds are related.
TEST(Fulfils, NotWithPlacesThatAreNeverReached) {
    EXPECT_TRUE(Fulfils(DataSet::PositionsVFactor, {0, 0, 1, 4, 2}, 0, 2));
    EXPECT_FALSE(Fulfils(DataSet::PositionsVFactor, {0, 0, -1, -4, 2}, 0, 2));
}

}  // namespace
}  // namespace tavrelo::mechanics::motion
