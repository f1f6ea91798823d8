#include "tools/rigid/equilibrium_report.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../../mechanics/rigid/body_rows.h"

namespace tavrelo::tools::rigid {
namespace {

using mechanics::rigid::BodyChoice;
using mechanics::rigid::BodyEquation;
using mechanics::rigid::BodyEquations;
using mechanics::rigid::BodyForces;
using mechanics::rigid::BodySum;
using mechanics::rigid::ChosenBody;
using mechanics::rigid::kDecimals;
using mechanics::rigid::RowAt;
using notation::AngleFunction;
using notation::UnknownTerm;
using Texts = std::vector<std::string>;

UnknownTerm Plain(const char* name) { return {name, AngleFunction::None, {}}; }
UnknownTerm Cos(const char* angle, const char* magnitude = "") {
    return {magnitude, AngleFunction::Cos, angle};
}
UnknownTerm Sen(const char* angle, const char* magnitude = "") {
    return {magnitude, AngleFunction::Sen, angle};
}

TEST(EquationLine, KeepsOneBlankBehindTheColon) {
    struct Row {
        BodyEquation equation;
        int decimals;
        const char* line;
    };
    const Row rows[] = {
        {{1, BodySum::X, {}, 0}, 3, "x: = 0"},
        {{1, BodySum::X, {}, 25}, 3, "x: 25 = 0"},
        {{1, BodySum::Y, {}, -25}, 3, "y: ;- 25 = 0"},
        {{1, BodySum::X, {{1, Plain("AX")}}, 0}, 3, "x: A!X = 0"},
        {{1, BodySum::M, {{-1, Plain("M1")}}, -400}, 3, "m: ;- M!1 ;- 400 = 0"},
        {{1, BodySum::X, {{0.0004, Plain("AX")}, {2, Plain("B")}}, 0}, 3, "x: 2 B = 0"},
        {{1, BodySum::X, {{0.0004, Plain("AX")}, {-2, Plain("B")}}, 0}, 3, "x: ;- 2 B = 0"},
        {{1, BodySum::M, {{0.866, Plain("R")}}, -12.34}, 1, "m: 0.9 R ;- 12.3 = 0"},
        {{1, BodySum::X, {{1, Plain("AX")}, {100, Cos("Q")}}, 0}, 3, "x: A!X + 100 cos Q = 0"},
        {{1, BodySum::Y, {{-100, Sen("a1")}}, 0}, 3, "y: ;- 100 sen A!1 = 0"},
        {{1, BodySum::Y, {{2, Sen("q", "F1")}}, 0}, 3, "y: 2 F!1 sen Q = 0"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(EquationLine(row.equation, row.decimals), row.line);
}

TEST(EquationLine, WritesNamesAsTheDiagramsDo) {
    struct Row {
        UnknownTerm unknown;
        const char* name;
    };
    const Row rows[] = {
        {Plain("Ax"), "A!X"}, {Plain("MA"), "M!a"},   {Plain("Ta"), "T!a"}, {Plain("F12"), "F!1!2"},
        {Plain("fb"), "f!b"}, {Plain("R"), "R"},      {Plain("F!"), "F!!"}, {Plain("F/2"), "F//2"},
        {Plain("F$"), "F$$"}, {Cos("q!"), "cos q!!"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(EquationLine({1, BodySum::X, {{1, row.unknown}}, 0}, kDecimals),
                  std::string("x: ") + row.name + " = 0");
}

BodyEquations EquationsOf(const BodyForces& forces, const std::vector<ChosenBody>& bodies,
                          std::string_view suppressed = "") {
    return std::get<BodyEquations>(mechanics::rigid::BuildEquations(forces, bodies, suppressed));
}

/// As many unknown vertical forces of two subscripts as asked for, at (1, 0) of a body.
BodyForces UprightForces(int body, int count) {
    BodyForces forces;
    for (int i = 0; i < count; ++i)
        forces.push_back(RowAt(1, 0, "vF" + std::to_string(10 + i), body));
    return forces;
}

TEST(EquilibriumReport, HasAParagraphForTheCountsForEachBodyAndForTheResults) {
    const std::vector<ChosenBody> bodies = {{1, false, 0, 0}, {2, true, 0, 0}};
    BodyForces forces = UprightForces(1, 3);
    forces.push_back(RowAt(1, 0, "hF", 2));
    const BodyEquations equations = EquationsOf(forces, bodies);
    const std::vector<Texts> report = {
        {"4 incógnitas, 5 ecuaciones.", "Incógnitas: F, F10, F11, F12", "Ecuaciones:"},
        {"\\0100Cuerpo 1:\\", "x: = 0", "y: F!1!0 + F!1!1 + F!1!2 = 0", "m: F!1!0 + F!1!1 + F!1!2 = 0"},
        {"\\0100Cuerpo 2:\\", "x: F = 0", "y: = 0"},
    };
    EXPECT_EQ(EquilibriumReport(bodies, equations, {}, kDecimals), report);
    const auto solved = EquilibriumReport(bodies, equations, {{"F10", 2}, {"F", -0.5}}, kDecimals);
    ASSERT_EQ(solved.size(), 4u);
    EXPECT_EQ(solved.back(), (Texts{"\\0100Soluciones:\\", "F10 = 2", "F = ;-0.5"}));
}

TEST(EquilibriumReport, NamesABodyWhoseEquationsAreAllSuppressed) {
    const std::vector<ChosenBody> bodies = {{1, false, 0, 0}, {2, false, 0, 0}};
    BodyForces forces = UprightForces(1, 1);
    forces.push_back(UprightForces(2, 1).front());
    const auto report = EquilibriumReport(bodies, EquationsOf(forces, bodies, "2x, 2y, 2m"), {}, kDecimals);
    EXPECT_EQ(report.back(), (Texts{"\\0100Cuerpo 2:\\"}));
}

TEST(QuestionBetween, TellsBothResultsInBareNumbers) {
    const BodyChoice choice = {{{{"AX", -86.602540}, {"AY", 50}, {"Q", 30, true}},
                                {{"AX", 86.602540}, {"AY", -1e-15}, {"Q", 150, true}}}};
    EXPECT_EQ(QuestionBetween(choice, 3),
              "Solución 1:\n"
              "AX = -86.603, AY = 50, Q = 30\n"
              "Solución 2:\n"
              "AX = 86.603, AY = 0, Q = 150\n"
              "Para escoger la primera solución oprime \"Sí\", para la segunda oprime \"No\".");
    EXPECT_EQ(QuestionBetween(choice, 0),
              "Solución 1:\n"
              "AX = -87, AY = 50, Q = 30\n"
              "Solución 2:\n"
              "AX = 87, AY = 0, Q = 150\n"
              "Para escoger la primera solución oprime \"Sí\", para la segunda oprime \"No\".");
}

}  // namespace
}  // namespace tavrelo::tools::rigid
