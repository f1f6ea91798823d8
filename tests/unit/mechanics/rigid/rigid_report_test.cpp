#include "mechanics/rigid/rigid_report.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "body_rows.h"
#include "text/markup.h"

namespace tavrelo::mechanics::rigid {
namespace {

BodyEquations EquationsOf(const BodyForces& forces, const std::vector<ChosenBody>& bodies) {
    return std::get<BodyEquations>(BuildEquations(forces, bodies, ""));
}

std::vector<std::string> Joined(const ReportPortions& portions) {
    std::vector<std::string> lines;
    for (const auto& portion : portions)
        lines.insert(lines.end(), portion.begin(), portion.end());
    return lines;
}

/// A body with as many unknown vertical forces of two subscripts as asked for, at (1, 0).
BodyForces UprightForces(int body, int count) {
    BodyForces forces;
    for (int i = 0; i < count; ++i)
        forces.push_back(RowAt(1, 0, "vF" + std::to_string(10 + i), body));
    return forces;
}

TEST(EquilibriumReport, IsOnePortionWhileOneRenderingTakesIt) {
    const std::vector<ChosenBody> bodies = {{1, false, 0, 0}};
    const BodyForces forces = UprightForces(1, 3);
    const auto report = EquilibriumReport(bodies, EquationsOf(forces, bodies), {}, kDecimals);
    ASSERT_EQ(report.size(), 1u);
    EXPECT_EQ(report.front(),
              (std::vector<std::string>{"3 incógnitas, 3 ecuaciones.", "Incógnitas: F10, F11, F12",
                                        "Ecuaciones:", "\\0100Cuerpo 1:\\", "x: = 0",
                                        "y: F!1!0 + F!1!1 + F!1!2 = 0", "m: F!1!0 + F!1!1 + F!1!2 = 0"}));
}

TEST(EquilibriumReport, PartsALongBodyByItsLines) {
    const std::vector<ChosenBody> bodies = {{1, false, 0, 0}, {2, false, 0, 0}};
    BodyForces forces = UprightForces(1, 60);
    for (const BodyForce& force : UprightForces(2, 60))
        forces.push_back(force);
    const BodyEquations equations = EquationsOf(forces, bodies);
    const auto report = EquilibriumReport(bodies, equations, {{"F10", 2}}, kDecimals);
    EXPECT_GT(report.size(), 1u);
    for (const auto& portion : report) {
        std::size_t marks = 1;
        for (const std::string& line : portion)
            marks += text::CountMarks(line);
        EXPECT_LE(marks, static_cast<std::size_t>(text::kMarkLimit));
    }
    const std::vector<std::string> lines = Joined(report);
    ASSERT_EQ(lines.size(), 13u);
    EXPECT_EQ(lines[3], "\\0100Cuerpo 1:\\");
    EXPECT_EQ(lines[7], "\\0100Cuerpo 2:\\");
    EXPECT_EQ(lines[12], "F10 = 2");
}

TEST(EquilibriumReport, NamesABodyWhoseEquationsAreAllSuppressed) {
    const std::vector<ChosenBody> bodies = {{1, false, 0, 0}, {2, false, 0, 0}};
    BodyForces forces = UprightForces(1, 1);
    forces.push_back(UprightForces(2, 1).front());
    const auto equations = std::get<BodyEquations>(BuildEquations(forces, bodies, "2x, 2y, 2m"));
    const auto lines = Joined(EquilibriumReport(bodies, equations, {}, kDecimals));
    EXPECT_EQ(lines.back(), "\\0100Cuerpo 2:\\");
}

}  // namespace
}  // namespace tavrelo::mechanics::rigid
