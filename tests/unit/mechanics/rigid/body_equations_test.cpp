#include "mechanics/rigid/body_equations.h"

#include <gtest/gtest.h>

#include <cmath>

#include "../../failure_code.h"
#include "body_rows.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::rigid {
namespace {

using tavrelo::testing::FailureOf;
using Texts = std::vector<std::string>;

BodyEquations Built(const BodyForces& forces, const std::vector<ChosenBody>& bodies,
                    std::string_view suppressed = "") {
    return std::get<BodyEquations>(BuildEquations(forces, bodies, suppressed));
}

BodyEquations BuiltOfBody1(const BodyForces& forces, std::string_view suppressed = "") {
    return Built(forces, {ChosenBody{}}, suppressed);
}

// "cos Q", "2 F", "- F cos Q": a sign only where the term is negative.
std::string TermOf(double coef, const notation::UnknownTerm& unknown) {
    const char* function = unknown.function == notation::AngleFunction::Cos ? "cos" : "sen";
    std::string text = text::RoundedText(std::abs(coef), kDecimals);
    if (text == "1")
        text.clear();
    for (const std::string& part : std::initializer_list<std::string>{
             unknown.magnitude, unknown.HasAngle() ? function : "", unknown.angle})
        if (!part.empty())
            text.append(text.empty() ? "" : " ").append(part);
    return (coef < 0 ? "- " : "") + text;
}

// "1 m: 3 F - 20": the number of the body, the sum, its terms, its constant unless that is 0.
std::string LineOf(const BodyEquation& equation) {
    std::string line = std::to_string(equation.body) + " " + std::string(LetterOf(equation.sum)) + ":";
    bool is_first = true;
    const auto add = [&](const std::string& term) {
        line.append(is_first || term.starts_with('-') ? " " : " + ").append(term);
        is_first = false;
    };
    for (const BodyTerm& term : equation.terms)
        if (text::RoundedText(term.coef, kDecimals) != "0")
            add(TermOf(term.coef, term.unknown));
    if (const std::string constant = text::RoundedText(std::abs(equation.constant), kDecimals);
        constant != "0")
        add((equation.constant < 0 ? "- " : "") + constant);
    return line;
}

Texts LinesOf(const BodyEquations& equations) {
    Texts lines;
    for (const BodyEquation& equation : equations.equations)
        lines.push_back(LineOf(equation));
    return lines;
}

// A beam of 6 with its weight in the middle and a roller at 30 degrees from the vertical.
BodyForces Beam() { return {RowAt(0, 0, "AX,AY"), RowAt(6, 0, "s30y,R"), RowAt(3, 0, "v-100")}; }

// A post 2 built into the ground holds a horizontal arm 3 at (0, 2) and its tie at (0, 5); the arm
// carries 40.
BodyForces Frame() {
    return {RowAt(0, 0, "AX,AY/M1", 2), RowAt(0, 2, "BX,BY", 2),  RowAt(0, 5, "c45x,T", 2),
            RowAt(0, 2, "-BX,-BY", 3),  RowAt(3, 2, "s45x,T", 3), RowAt(3, 2, "v-40", 3)};
}

TEST(BuildEquations, SumsComponentsAndMomentsAboutTheReferencePoint) {
    // About (1, 2) the lever of (4, 6) is (3, 4): the moment is 3 Fy - 4 Fx.
    struct Row {
        const char* text;
        Texts lines;
    };
    const Row rows[] = {
        {"5,7", {"1 x: 5", "1 y: 7", "1 m: 1"}},
        {"5,F", {"1 x: 5", "1 y: F", "1 m: 3 F - 20"}},
        {"2F,7", {"1 x: 2 F", "1 y: 7", "1 m: - 8 F + 21"}},
        {"-F,3G", {"1 x: - F", "1 y: 3 G", "1 m: 4 F + 9 G"}},
        {"F,2F", {"1 x: F", "1 y: 2 F", "1 m: 2 F"}},
        {"100<q", {"1 x: 100 cos Q", "1 y: 100 sen Q", "1 m: - 400 cos Q + 300 sen Q"}},
        {"F<q", {"1 x: F cos Q", "1 y: F sen Q", "1 m: - 4 F cos Q + 3 F sen Q"}},
        {"5,7/-30", {"1 x: 5", "1 y: 7", "1 m: - 29"}},
        {"5,7/M", {"1 x: 5", "1 y: 7", "1 m: M + 1"}},
        {"250", {"1 x:", "1 y:", "1 m: 250"}},
    };
    for (const Row& row : rows) {
        // The unknown of body 2 keeps the table from having none.
        Texts lines = LinesOf(Built({RowAt(4, 6, row.text), RowAt(0, 0, "hH", 2)}, {{1, false, 1, 2}, {2}}));
        lines.resize(3);
        EXPECT_EQ(lines, row.lines) << row.text;
    }
}

TEST(BuildEquations, WritesTheEquationsOfBodyAfterBody) {
    // sin 60 = 0.866, 6 sin 60 = 5.196; the arm of the tie about the foot of the post is 5 cos 45 = 3.536,
    // and that of the tie on the arm 3 sin 45 + 2 cos 45 = 3.536.
    EXPECT_EQ(LinesOf(BuiltOfBody1(Beam())),
              (Texts{"1 x: AX - 0.5 R", "1 y: AY + 0.866 R - 100", "1 m: 5.196 R - 300"}));
    EXPECT_EQ(LinesOf(Built(Frame(), {{2}, {3}})),
              (Texts{"2 x: AX + BX + 0.707 T", "2 y: AY + BY - 0.707 T", "2 m: M1 - 2 BX - 3.536 T",
                     "3 x: - BX - 0.707 T", "3 y: - BY + 0.707 T - 40", "3 m: 2 BX + 3.536 T - 120"}));
    EXPECT_EQ(LinesOf(Built(Frame(), {{3}, {2}})).front(), "3 x: - BX - 0.707 T");
}

TEST(BuildEquations, ListsTheUnknownsOfAllXThenYThenM) {
    struct Row {
        BodyForces forces;
        std::vector<ChosenBody> bodies;
        Texts unknowns;
    };
    const Row rows[] = {
        {Beam(), {{1}}, {"AX", "R", "AY"}},
        {Frame(), {{2}, {3}}, {"AX", "BX", "T", "AY", "BY", "M1"}},
        {Frame(), {{3}, {2}}, {"BX", "T", "AX", "BY", "AY", "M1"}},
        {Frame(), {{3}}, {"BX", "T", "BY"}},
        {{RowAt(0, 0, "AX,AY"), RowAt(4, 0, "100<Q")}, {{1}}, {"AX", "Q", "AY"}},
        {{RowAt(0, 0, "vA"), RowAt(4, 0, "F<Q")}, {{1}}, {"F", "Q", "A"}},
        {{RowAt(0, 0, "vA"), RowAt(4, 0, "uQ"), RowAt(0, 0, "MA")}, {{1}}, {"Q", "A", "MA"}},
        {{RowAt(0, 0, "hA"), RowAt(4, 0, "100<A")}, {{1}}, {"A", "A"}},  // a force and an angle
    };
    for (const Row& row : rows)
        EXPECT_EQ(Built(row.forces, row.bodies).unknowns, row.unknowns);
}

TEST(BuildEquations, PartsAnglesFromTheOtherUnknowns) {
    const BodyForces forces = {RowAt(0, 0, "F<Q"), RowAt(1, 0, "10<r1"), RowAt(2, 0, "5<q"),
                               RowAt(3, 0, "vB/MB")};
    const BodyEquations equations = BuiltOfBody1(forces);
    EXPECT_EQ(equations.magnitudes, (Texts{"F", "B", "MB"}));
    EXPECT_EQ(equations.angles, (Texts{"Q", "R1"}));
}

TEST(BuildEquations, TakesOneUnknownHoweverItIsWrittenButNotFriction) {
    // A line format raises the letters of its symbol, the others keep them.
    const BodyEquations equations =
        BuiltOfBody1({RowAt(0, 0, "p60x,Ta"), RowAt(1, 0, "hTA"), RowAt(2, 0, "h-f"), RowAt(2, 0, "hF")});
    EXPECT_EQ(equations.unknowns, (Texts{"Ta", "f", "F"}));
    EXPECT_EQ(LinesOf(equations)[0], "1 x: 1.5 Ta - f + F");
    const BodyEquations of_couple = BuiltOfBody1({RowAt(0, 0, "vTa"), RowAt(1, 0, "ta")}, "1x, 1y");
    EXPECT_EQ(of_couple.unknowns, (Texts{"TA"}));
}

TEST(BuildEquations, DropsATermThatIsExactlyZeroOnly) {
    // The lever of the first force is 0, the second pair cancels out; cos 90 leaves dust, which prints
    // nothing and yet is an unknown of x.
    const BodyEquations none = BuiltOfBody1({RowAt(0, 0, "vA"), RowAt(3, 0, "hB"), RowAt(5, 0, "h-B")});
    EXPECT_EQ(none.unknowns, (Texts{"A"}));
    EXPECT_EQ(LinesOf(none), (Texts{"1 x:", "1 y: A", "1 m:"}));
    const BodyEquations dust = BuiltOfBody1({RowAt(0, 0, "p90x,R"), RowAt(0, 0, "AX,AY")});
    EXPECT_EQ(dust.unknowns, (Texts{"R", "AX", "AY"}));
    EXPECT_EQ(LinesOf(dust), (Texts{"1 x: AX", "1 y: R + AY", "1 m:"}));
}

TEST(BuildEquations, AddsCouplesByTheirSign) {
    EXPECT_EQ(LinesOf(BuiltOfBody1({RowAt(0, 0, "-M1"), RowAt(4, 0, "v-100")})),
              (Texts{"1 x:", "1 y: - 100", "1 m: - M1 - 400"}));
    // A negative one of the same name takes the first away.
    EXPECT_EQ(LinesOf(BuiltOfBody1({RowAt(0, 0, "M"), RowAt(4, 0, "-20"), RowAt(0, 0, "hF/-m")}))[2],
              "1 m: - 20");
    // A couple has no lever.
    EXPECT_EQ(LinesOf(Built({RowAt(9, 9, "1,1/ma")}, {{1, false, 9, 7}}))[2], "1 m: MA - 2");
}

TEST(BuildEquations, GivesAParticleTwoEquationsWithoutItsCouples) {
    const BodyForces forces = {RowAt(1, 2, "p30x,F1", 2), RowAt(1, 2, "s45x,F2/M", 2),
                               RowAt(1, 2, "v-100", 2), RowAt(1, 2, "30", 2)};
    const BodyEquations equations = Built(forces, {{2, true, 9, 9}});
    EXPECT_EQ(LinesOf(equations), (Texts{"2 x: 0.866 F1 - 0.707 F2", "2 y: 0.5 F1 + 0.707 F2 - 100"}));
    EXPECT_EQ(equations.unknowns, (Texts{"F1", "F2"}));
    // Nothing has a lever, be it ever so far away.
    EXPECT_EQ(LinesOf(Built({RowAt(1e200, 0, "v1E+200"), RowAt(1e200, 0, "hF")}, {{1, true}}))[0], "1 x: F");
}

TEST(BuildEquations, LeavesOutTheSuppressedEquationsAndTheirUnknowns) {
    struct Row {
        const char* suppressed;
        const char* letters;
        Texts unknowns;
    };
    const Row rows[] = {
        {"", "xym", {"AX", "R", "AY"}},
        {"1x", "ym", {"AY", "R"}},
        {" 1Y ,1x", "m", {"R"}},
        {"2x, 1z, x1, 1, x, ,1xy, 1 m", "xym", {"AX", "R", "AY"}},
        {"1m,1m,", "xy", {"AX", "R", "AY"}},
    };
    for (const Row& row : rows) {
        const BodyEquations equations = BuiltOfBody1(Beam(), row.suppressed);
        std::string letters;
        for (const BodyEquation& equation : equations.equations)
            letters += LetterOf(equation.sum);
        EXPECT_EQ(letters, row.letters) << row.suppressed;
        EXPECT_EQ(equations.unknowns, row.unknowns) << row.suppressed;
    }
}

TEST(BuildEquations, IsRefusedWithoutUnknowns) {
    struct Row {
        BodyForces forces;
        std::vector<ChosenBody> bodies;
        const char* suppressed;
    };
    const Row rows[] = {
        {{}, {{1}}, ""},
        {Beam(), {}, ""},
        {Beam(), {{2}}, ""},
        {Beam(), {{1}}, "1x, 1y, 1m"},
        {{RowAt(0, 0, "3,4/20")}, {{1}}, ""},
        {{RowAt(0, 0, "3,4/M")}, {{1, true}}, ""},
        {{RowAt(0, 0, "hF"), RowAt(4, 0, "h-F")}, {{1}}, ""},
    };
    for (const Row& row : rows) {
        const auto result = BuildEquations(row.forces, row.bodies, row.suppressed);
        ASSERT_TRUE(std::holds_alternative<text::Refusal>(result));
        EXPECT_EQ(std::get<text::Refusal>(result).text, "No hay incógnitas.");
    }
}

TEST(BuildEquations, FailsOnSumsPastTheRangeOfNumbers) {
    const BodyForces twice = {RowAt(0, 0, "h1E+308"), RowAt(0, 0, "h1E+308"), RowAt(0, 0, "hF")};
    EXPECT_EQ(FailureOf([&] { BuiltOfBody1(twice); }), numeric::FailureCode::Overflow);
    const BodyForces far_away = {RowAt(1e200, 0, "v1E+200"), RowAt(0, 0, "hF")};
    EXPECT_EQ(FailureOf([&] { BuiltOfBody1(far_away); }), numeric::FailureCode::Overflow);
}

TEST(CheckAngles, TellsWhatIsNotForThisProgram) {
    const BodyForces forces = {RowAt(0, 0, "100<Q"),  RowAt(1, 0, "50<q"),  RowAt(0, 0, "10<R", 2),
                               RowAt(1, 0, "F<S", 2), RowAt(0, 0, "vB", 3), RowAt(0, 0, "uQ", 4)};
    constexpr const char* kAngles = "El programa resuelve un sólo cuerpo con un ángulo desconocido.";
    constexpr const char* kBodies = "Con ángulo desconocido la rutina es aplicable a un sólo cuerpo.";
    struct Row {
        std::vector<ChosenBody> bodies;
        const char* text;  // null: nothing to tell
    };
    const Row rows[] = {
        {{{1}}, nullptr},      {{{2}}, kAngles},      {{{3}}, nullptr},      {{{1}, {3}}, kBodies},
        {{{3}, {1}}, kBodies}, {{{1}, {4}}, kBodies}, {{{1}, {2}}, kAngles}, {{{3}, {5}}, nullptr},
    };
    for (const Row& row : rows) {
        const auto refusal = CheckAngles(Built(forces, row.bodies), row.bodies.size());
        ASSERT_EQ(refusal.has_value(), row.text != nullptr);
        EXPECT_EQ(refusal.value_or(text::Refusal{}).text, row.text ? row.text : "");
    }
}

}  // namespace
}  // namespace tavrelo::mechanics::rigid
