#include "mechanics/particle/coefficient_tables.h"

#include <gtest/gtest.h>

#include <cmath>

#include "../forces/force_lists.h"

namespace tavrelo::mechanics::particle {
namespace {

constexpr double kTolerance = 1e-12;

forces::ForceSums SumsOf(const std::vector<std::string>& texts) {
    return std::get<forces::ForceSums>(forces::CollectSums(forces::Forces(texts)));
}

// Every row of the table of two magnitudes: the system that the forces write by themselves.
struct LinearRow {
    std::vector<std::string> forces;
    double a, b, d, e;
    const char* first;
    const char* second;
};

TEST(MagnitudeCoefficients, FollowTheNamesInBothSums) {
    const double c = std::sqrt(3.0) / 2;
    const LinearRow rows[] = {
        {{"2,0", "hP", "v-Q"}, 1, 0, 0, -1, "P", "Q"},
        {{"p30x,F", "s30x,Q"}, c, -c, 0.5, 0.5, "F", "Q"},
        {{"hF", "s30x,Q", "p30x,F"}, 1 + c, -c, 0.5, 0.5, "F", "Q"},  // y names them in the other order
        {{"p30x,F", "vQ"}, c, 0, 0.5, 1, "F", "Q"},
        {{"vQ", "p30x,F"}, c, 0, 0.5, 1, "F", "Q"},
        {{"p30x,F", "hQ"}, c, 1, 0.5, 0, "F", "Q"},
        {{"hQ", "p30x,F"}, 1, c, 0, 0.5, "Q", "F"},
        {{"hF", "vQ", "vR"}, 0, 0, 0, 0, "", ""},
        {{"hF", "hQ", "vR"}, 0, 0, 0, 0, "", ""},
        {{"hF", "hQ", "vR", "vS"}, 0, 0, 0, 0, "", ""},
    };
    for (const LinearRow& row : rows) {
        const TwoUnknowns got = MagnitudeCoefficients(SumsOf(row.forces));
        const std::string& label = row.forces.back();
        EXPECT_NEAR(got.a, row.a, kTolerance) << label;
        EXPECT_NEAR(got.b, row.b, kTolerance) << label;
        EXPECT_NEAR(got.d, row.d, kTolerance) << label;
        EXPECT_NEAR(got.e, row.e, kTolerance) << label;
        EXPECT_EQ(TextOf(got.first), row.first) << label;
        EXPECT_EQ(TextOf(got.second), row.second) << label;
    }
}

// Every row of the table of a magnitude and an angle, with short names and with names of three characters.
TEST(MagnitudeAndAngleCoefficients, PutTheMagnitudeFirst) {
    const double c = std::sqrt(3.0) / 2;
    const LinearRow rows[] = {
        {{"hF", "20<a"}, 1, 20, 0, 20, "F", "cos A"},
        {{"20<a", "hF"}, 1, 20, 0, 20, "F", "cos A"},
        {{"vF", "20<a"}, 0, 20, 1, 20, "F", "cos A"},
        {{"20<a", "vF"}, 0, 20, 1, 20, "F", "cos A"},
        {{"p30x,F", "20<a"}, c, 20, 0.5, 20, "F", "cos A"},
        {{"20<a", "p30x,F"}, c, 20, 0.5, 20, "F", "cos A"},
        {{"hF", "20<a", "p30x,F"}, 1 + c, 20, 0.5, 20, "F", "cos A"},
        {{"vF", "20<a", "p30x,F"}, c, 20, 1.5, 20, "F", "cos A"},
        {{"hF12", "20<a"}, 1, 20, 0, 20, "F12", "cos A"},
        {{"20<a", "hF12"}, 1, 20, 0, 20, "F12", "cos A"},
        {{"v-F12", "20<a"}, 0, 20, -1, 20, "F12", "cos A"},
        {{"20<a", "v-F12"}, 0, 20, -1, 20, "F12", "cos A"},
        {{"p30x,F12", "20<a"}, c, 20, 0.5, 20, "F12", "cos A"},
        {{"20<a", "p30x,F12"}, c, 20, 0.5, 20, "F12", "cos A"},
        {{"p30x,F", "F<a"}, c, 1, 0.5, 1, "F", "F cos A"},
        {{"2F<a", "vF"}, 0, 2, 1, 2, "F", "F cos A"},
    };
    for (const LinearRow& row : rows) {
        const TwoUnknowns got = MagnitudeAndAngleCoefficients(SumsOf(row.forces));
        const std::string label = row.forces.front() + " " + row.forces.back();
        EXPECT_NEAR(got.a, row.a, kTolerance) << label;
        EXPECT_NEAR(got.b, row.b, kTolerance) << label;
        EXPECT_NEAR(got.d, row.d, kTolerance) << label;
        EXPECT_NEAR(got.e, row.e, kTolerance) << label;
        EXPECT_EQ(TextOf(got.first), row.first) << label;
        EXPECT_EQ(TextOf(got.second), row.second) << label;
    }
}

}  // namespace
}  // namespace tavrelo::mechanics::particle
