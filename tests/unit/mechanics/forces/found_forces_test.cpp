#include "mechanics/forces/found_forces.h"

#include <gtest/gtest.h>

#include <cmath>

#include "../../failure_code.h"
#include "force_lists.h"

namespace tavrelo::mechanics::forces {
namespace {

using notation::Force;
using notation::Knowledge;
using notation::UnknownTerm;

constexpr double kTolerance = 1e-12;

Force OnlyForce(const char* text) { return Forces({text}).front(); }

TEST(PutFoundValues, MultipliesTheCoefficients) {
    Force force = OnlyForce("-2Ax,Ay");
    PutFoundValues(force, [](const UnknownTerm& unknown) { return unknown.magnitude == "Ax" ? 3.0 : 4.0; });
    EXPECT_EQ(force.x.number, -6);
    EXPECT_EQ(force.y.number, 4);
    EXPECT_EQ(TextOf(force.x.unknown), "Ax");  // still told
}

TEST(PutFoundValues, LeavesWhatItIsNotTold) {
    Force force = OnlyForce("-2Ax,Ay");
    PutFoundValues(force, [](const UnknownTerm& unknown) -> std::optional<double> {
        if (unknown.magnitude == "Ay")
            return 4;
        return {};
    });
    EXPECT_FALSE(force.x.number);
    EXPECT_EQ(force.y.number, 4);
    Force known = OnlyForce("3,4");
    PutFoundValues(known, [](const UnknownTerm&) { return 1.0; });
    EXPECT_EQ(known, OnlyForce("3,4"));
}

TEST(PutFoundValues, FailsPastTheRangeOfNumbers) {
    Force force = OnlyForce("20<a");
    EXPECT_EQ(
        tavrelo::testing::FailureOf([&] { PutFoundValues(force, [](const UnknownTerm&) { return 1e308; }); }),
        numeric::FailureCode::Overflow);
}

TEST(CompleteFoundForce, ReckonsMagnitudeAndDirectionFromTheComponents) {
    Force force = OnlyForce("20<a");
    force.x.number = -3;
    force.y.number = 4;
    CompleteFoundForce(force);
    EXPECT_NEAR(force.magnitude.value_or(0), 5, kTolerance);
    EXPECT_NEAR(force.direction.value_or(0), 180 - std::atan2(4, 3) * 180 / M_PI, 1e-9);
    EXPECT_TRUE(force.x.unknown.IsNone());
    EXPECT_TRUE(force.y.unknown.IsNone());
    EXPECT_EQ(force.knowledge, Knowledge::Found);
}

TEST(CompleteFoundForce, LeavesAForceThatIsStillUnknown) {
    Force force = OnlyForce("F,Q");
    force.x.number = 3;
    const Force before = force;
    CompleteFoundForce(force);
    EXPECT_EQ(force, before);
}

TEST(CompleteFoundForce, KeepsAGivenForceGiven) {
    Force force = OnlyForce("p90x,5");
    CompleteFoundForce(force);
    EXPECT_EQ(force.knowledge, Knowledge::Given);
    EXPECT_NEAR(force.direction.value_or(0), 90, kTolerance);
}

}  // namespace
}  // namespace tavrelo::mechanics::forces
