#include "tools/rigid/force_look.h"

#include <gtest/gtest.h>

#include "../../mechanics/rigid/body_rows.h"
#include "mechanics/rigid/body_solver.h"

namespace tavrelo::tools::rigid {
namespace {

using mechanics::rigid::BodyForces;
using mechanics::rigid::kDecimals;
using mechanics::rigid::ReadForce;
using mechanics::rigid::RowAt;

ForceLook Typed(std::string_view text) {
    return LookOf(
        std::get<ReadForce>(mechanics::rigid::ReadBodyForce(1, {"P", 0, 0}, text, kDecimals)).written);
}

TEST(LookOf, IsThatOfTheTextAsTyped) {
    const ForceLook tie = Typed("s36.87y,2Ta:/30");
    EXPECT_EQ(tie.clock.value().hour, 11);
    EXPECT_EQ(tie.clock->angle, 36.87);
    EXPECT_FALSE(tie.leaves);
    EXPECT_FALSE(tie.by_components);
    EXPECT_EQ(tie.label, "2 T!a");
    EXPECT_FALSE(tie.asked_direction);
    const ForceLook pin = Typed("Ax, Ay");
    EXPECT_TRUE(pin.leaves);
    EXPECT_TRUE(pin.by_components);
    EXPECT_EQ(pin.x_text, "Ax");
    EXPECT_EQ(pin.y_text, "Ay");
    EXPECT_FALSE(pin.clock);
}

TEST(LookOf, IsEmptyForACoupleAlone) {
    const ForceLook couple = Typed("250");
    EXPECT_EQ(couple.x_text + couple.y_text + couple.label, "");
    EXPECT_FALSE(couple.clock);
}

TEST(SolvedLook, PointsWhereTheFoundComponentsTell) {
    const BodyForces forces =
        mechanics::rigid::WithResults({RowAt(0, 0, "F<q")}, {{"F", 10}, {"Q", -30, true}});
    ForceLook asked = Typed("F<q");
    asked.asked_direction = 45;
    const ForceLook look = SolvedLook(asked, forces[0], kDecimals);
    // 10 at -30 degrees: (8.660, -5), hour 4.
    EXPECT_EQ(look.x_text, "8.66");
    EXPECT_EQ(look.y_text, "-5");
    EXPECT_EQ(look.clock.value().hour, 4);
    EXPECT_NEAR(look.clock->angle, 30, 1e-9);
    EXPECT_FALSE(look.asked_direction);
}

TEST(SolvedLook, ShowsAGivenForceByItsComponentsToo) {
    const ForceLook look = SolvedLook(Typed("v-100"), RowAt(0, 0, "v-100"), kDecimals);
    EXPECT_EQ(Typed("v-100").y_text, "100");
    EXPECT_EQ(look.y_text, "-100");
    EXPECT_EQ(look.clock.value().hour, 6);
}

TEST(SolvedLook, KeepsWhatIsStillUnknown) {
    ForceLook asked = Typed("20<q");
    asked.asked_direction = 60;
    const ForceLook look = SolvedLook(asked, RowAt(0, 0, "20<q"), kDecimals);
    EXPECT_EQ(look.asked_direction, 60);
    EXPECT_EQ(look.x_text, asked.x_text);
    EXPECT_EQ(SolvedLook(Typed("250"), RowAt(0, 0, "250"), kDecimals).x_text, "");
}

TEST(NeedsDirection, AsksOnceForAnUnknownDirection) {
    ForceLook look = Typed("20<q");
    EXPECT_TRUE(NeedsDirection(RowAt(0, 0, "20<q"), look));
    look.asked_direction = 60;
    EXPECT_FALSE(NeedsDirection(RowAt(0, 0, "20<q"), look));
    EXPECT_FALSE(NeedsDirection(RowAt(0, 0, "250"), Typed("250")));
    EXPECT_FALSE(NeedsDirection(RowAt(0, 0, "hF"), Typed("hF")));
}

}  // namespace
}  // namespace tavrelo::tools::rigid
