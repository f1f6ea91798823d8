#include "mechanics/points/configuration.h"

#include <gtest/gtest.h>

#include <vector>

#include "mechanics/points/names.h"
#include "numeric/checked.h"

namespace tavrelo::mechanics::points {
namespace {

constexpr double kMiddle = 0.5;

/// A click in the middle of a column, from 1.
ConfigurationStep Click(const Configuration& configuration, int column) {
    return ClickBand(configuration, column - 1 + kMiddle);
}

Configuration AfterClicks(int variant, const std::vector<int>& columns) {
    Configuration configuration = Begin(kMotionVariants[static_cast<std::size_t>(variant)]);
    for (const int column : columns)
        configuration = Click(configuration, column).configuration;
    return configuration;
}

TEST(Configuration, OneButtonConfiguresAnUndividedMoverAtOnce) {
    const Configuration configuration = AfterClicks(0, {});
    EXPECT_TRUE(configuration.IsConfigured());
    EXPECT_EQ(configuration.MoverCount(), 1);
    EXPECT_EQ(configuration.StretchAt(1, 1), (Stretch{0, 8}));
}

TEST(Configuration, WaitsForItsClickInEveryOtherVariant) {
    for (int variant = 1; variant < 4; ++variant) {
        const Configuration configuration = AfterClicks(variant, {});
        EXPECT_EQ(configuration.stage, Stage::Pending);
        EXPECT_EQ(configuration.MoverCount(), 0);
    }
}

struct ClickCase {
    const char* name;
    int variant;
    std::vector<int> columns;
    Stage stage;
    std::vector<Stretch> stretches;
    int second_points;
};

TEST(Configuration, ClicksDivideTheColumns) {
    const std::vector<ClickCase> cases = {
        {"two limits, third stretch by itself", 1, {3, 6}, Stage::Configured, {{0, 2}, {2, 5}, {5, 8}}, 0},
        {"first limit before the last column", 1, {8}, Stage::Configured, {{0, 7}, {7, 8}}, 0},
        {"first limit on the last column", 1, {9}, Stage::Configured, {{0, 8}}, 0},
        {"second limit on the last column", 1, {4, 9}, Stage::Configured, {{0, 3}, {3, 8}}, 0},
        {"one limit leaves the choice of another", 1, {4}, Stage::Limits, {{0, 3}}, 0},
        {"two movers", 2, {4}, Stage::Configured, {{0, 3}}, 5},
        {"fewest of the first", 2, {2}, Stage::Configured, {{0, 1}}, 7},
        {"fewest of the second", 2, {7}, Stage::Configured, {{0, 6}}, 2},
        {"the split of variant 3 only splits", 3, {7}, Stage::Limits, {}, 2},
        {"two movers and three stretches", 3, {7, 3, 5}, Stage::Configured, {{0, 2}, {2, 4}, {4, 6}}, 2},
        {"two movers of which the first has two points", 3, {2, 2}, Stage::Configured, {{0, 1}}, 7},
        {"a click beyond mover 1 sets no limit", 3, {5, 8}, Stage::Limits, {}, 4},
    };
    for (const ClickCase& each : cases) {
        SCOPED_TRACE(each.name);
        const Configuration configuration = AfterClicks(each.variant, each.columns);
        EXPECT_EQ(configuration.stage, each.stage);
        EXPECT_EQ(configuration.movers[0].stretches, each.stretches);
        EXPECT_EQ(configuration.movers[1].points, each.second_points);
        if (each.second_points > 0) {
            EXPECT_EQ(configuration.StretchAt(2, 1), (Stretch{0, each.second_points - 1}));
        }
    }
}

TEST(Configuration, RefusesClicksThatLeaveTooFewPoints) {
    struct RefusedClick {
        int variant;
        std::vector<int> before;
        int column;
        const char* text;
    };
    const std::vector<RefusedClick> cases = {
        {2, {}, 1, "Mínimo 2 puntos para cada móvil."},
        {2, {}, 8, "Mínimo 2 puntos para cada móvil."},
        {3, {}, 9, "Mínimo 2 puntos para cada móvil."},
        {1, {4}, 1, "Cada tramo debe tener al mínimo 2 puntos."},
        {1, {4}, 4, "Punto inválido."},
        {1, {4}, 2, "Punto inválido."},
        {3, {6}, 1, "Cada tramo debe tener al mínimo 2 puntos."},
    };
    for (const RefusedClick& each : cases) {
        const Configuration before = AfterClicks(each.variant, each.before);
        const ConfigurationStep step = Click(before, each.column);
        ASSERT_TRUE(step.refusal);
        EXPECT_EQ(step.refusal->text, each.text);
        EXPECT_EQ(step.configuration, before);
    }
}

TEST(Configuration, AFirstClickInTheFirstColumnSetsTheMoverButNoLimit) {
    const ConfigurationStep step = Click(Begin(kMotionVariants[1]), 1);
    ASSERT_TRUE(step.refusal);
    EXPECT_EQ(step.configuration.stage, Stage::Limits);
    EXPECT_EQ(step.configuration.MoverCount(), 1);
    EXPECT_TRUE(step.configuration.movers[0].stretches.empty());
}

TEST(Configuration, IgnoresClicksOutsideTheColumnsAndOnceConfigured) {
    for (const double position : {-0.1, 9.0, 12.0}) {
        const Configuration before = AfterClicks(2, {});
        EXPECT_EQ(ClickBand(before, position).configuration, before);
    }
    const Configuration configured = AfterClicks(2, {4});
    EXPECT_EQ(Click(configured, 6).configuration, configured);
}

TEST(Configuration, LocatesAPointOfTheStretchOnWhoseHalfTheClickFalls) {
    const Configuration configuration =
        AfterClicks(3, {7, 3, 5});  // limits at points 2 and 4; movers of 7 and 2
    struct Place {
        double position;
        PointPlace place;
    };
    const std::vector<Place> cases = {
        {0.0, {1, 1, 0}}, {2.2, {1, 1, 2}},  {2.5, {1, 1, 2}}, {2.6, {1, 2, 2}}, {3.9, {1, 2, 3}},
        {4.5, {1, 2, 4}}, {4.51, {1, 3, 4}}, {6.9, {1, 3, 6}}, {7.0, {2, 1, 0}}, {8.9, {2, 1, 1}},
    };
    for (const Place& each : cases) {
        SCOPED_TRACE(each.position);
        const auto place = Locate(configuration, each.position);
        ASSERT_TRUE(place);
        EXPECT_EQ(*place, each.place);
        EXPECT_EQ(ColumnOfPoint(configuration, *place), static_cast<int>(each.position) + 1);
    }
    EXPECT_FALSE(Locate(configuration, 9.0));
    EXPECT_FALSE(Locate(configuration, -0.5));
    EXPECT_FALSE(Locate(Configuration{}, 3.0));
}

TEST(Configuration, ChecksThatAPointRefersToAnEarlierOneOfItsStretch) {
    const Configuration configuration = AfterClicks(1, {3, 6});  // stretch 2 from point 2 to point 5
    const auto text = [&](int referred, int point) {
        const auto refusal = CheckPointPair(configuration, 1, 2, referred, point);
        return refusal ? refusal->text : std::string();
    };
    EXPECT_EQ(text(2, 5), "");
    EXPECT_EQ(text(4, 4), "");
    EXPECT_EQ(text(1, 4), "Los puntos 1 y 4 no pertenecen al mismo tramo.");
    EXPECT_EQ(text(3, 6), "Los puntos 3 y 6 no pertenecen al mismo tramo.");
    EXPECT_EQ(text(5, 4), "Los puntos 5 y 4 no están ordenados.");
}

TEST(Names, TellMoverAndStretch) {
    EXPECT_EQ(NamesOf(1, 1).position, "x");
    EXPECT_EQ(NamesOf(1, 2).speed, "v'");
    EXPECT_EQ(NamesOf(1, 3).acceleration, "a''");
    EXPECT_EQ(NamesOf(2, 1).acceleration, "A");
    EXPECT_EQ(ProjectileNamesOf(1).speed_x, "v!x");
    EXPECT_EQ(ProjectileNamesOf(2).y, "Y");
    EXPECT_EQ(AtPoint("x'", 3), "x'!3");
    EXPECT_EQ(PlainAtPoint("V", 0), "V0");
    EXPECT_THROW(NamesOf(2, 2), numeric::RuntimeFailure);
    EXPECT_THROW(NamesOf(1, 4), numeric::RuntimeFailure);
    EXPECT_THROW(ProjectileNamesOf(3), numeric::RuntimeFailure);
}

TEST(Configuration, FailsOnMoversAndStretchesThatItDoesNotHave) {
    const Configuration configuration = AfterClicks(0, {});
    EXPECT_EQ(configuration.MoverAt(1).points, 9);
    for (const int mover : {0, kMostMovers + 1}) {
        EXPECT_THROW((void)configuration.MoverAt(mover), numeric::RuntimeFailure);
        EXPECT_FALSE(configuration.HasStretch(mover, 1));
    }
    EXPECT_TRUE(configuration.HasStretch(1, 1));
    for (const int stretch : {0, 2}) {
        EXPECT_FALSE(configuration.HasStretch(1, stretch));
        EXPECT_THROW((void)configuration.StretchAt(1, stretch), numeric::RuntimeFailure);
    }
}
}  // namespace
}  // namespace tavrelo::mechanics::points
