#include "mechanics/rigid/body_solver.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <optional>
#include <string>

#include "../../failure_code.h"
#include "body_rows.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::rigid {
namespace {

using tavrelo::testing::FailureOf;

constexpr double kTolerance = 1e-9;
constexpr double kResidual = 1e-6;

BodyOutcome Solved(const BodyForces& forces, const std::vector<ChosenBody>& bodies,
                   std::string_view suppressed = "") {
    return SolveEquations(std::get<BodyEquations>(BuildEquations(forces, bodies, suppressed)), bodies.size());
}

BodyOutcome SolvedBody1(const BodyForces& forces) { return Solved(forces, {ChosenBody{}}); }

std::string RefusalText(const BodyOutcome& outcome) {
    const auto* refusal = std::get_if<text::Refusal>(&outcome);
    return refusal ? refusal->text : "solved";
}

void ExpectResults(const BodyResults& found, const BodyResults& expected, double tolerance = kTolerance) {
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_EQ(found[i].name, expected[i].name);
        EXPECT_NEAR(found[i].value, expected[i].value, tolerance) << found[i].name;
        EXPECT_EQ(found[i].is_angle, expected[i].is_angle) << found[i].name;
    }
}

void ExpectChoice(const BodyOutcome& outcome, const BodyChoice& expected, double tolerance = kTolerance) {
    ASSERT_TRUE(std::holds_alternative<BodyChoice>(outcome)) << RefusalText(outcome);
    for (std::size_t i = 0; i < expected.size(); ++i)
        ExpectResults(std::get<BodyChoice>(outcome)[i], expected[i], tolerance);
}

// --- Linear systems

BodyForces Frame() {
    return {RowAt(0, 0, "AX,AY/M1", 2), RowAt(0, 2, "BX,BY", 2),  RowAt(0, 5, "c45x,T", 2),
            RowAt(0, 2, "-BX,-BY", 3),  RowAt(3, 2, "s45x,T", 3), RowAt(3, 2, "v-40", 3)};
}

struct LinearRow {
    const char* name;
    BodyForces forces;
    std::vector<ChosenBody> bodies;
    const char* suppressed;
    BodyResults results;
};

TEST(SolveEquations, FindsTheReactionsOfLinearProblems) {
    const double root3 = std::sqrt(3);
    const LinearRow rows[] = {
        // 4 B = 10 + 40 + 90
        {"beam with three loads",
         {RowAt(0, 0, "AX,AY"), RowAt(4, 0, "vB"), RowAt(1, 0, "v-10"), RowAt(2, 0, "v-20"),
          RowAt(3, 0, "v-30")},
         {{1}},
         "",
         {{"AX", 0}, {"AY", 25}, {"B", 35}}},
        // The same about its right end: -4 AY = -(30 + 40 + 30)
        {"beam about its other end",
         {RowAt(0, 0, "AX,AY"), RowAt(4, 0, "vB"), RowAt(1, 0, "v-10"), RowAt(2, 0, "v-20"),
          RowAt(3, 0, "v-30")},
         {{1, false, 4, 0}},
         "",
         {{"AX", 0}, {"AY", 25}, {"B", 35}}},
        // 6 R sin 120 = 300
        {"inclined roller",
         {RowAt(0, 0, "AX,AY"), RowAt(6, 0, "s30y,R"), RowAt(3, 0, "v-100")},
         {{1}},
         "",
         {{"AX", 50 / root3}, {"R", 100 / root3}, {"AY", 50}}},
        // M = -4 (-100 sin 60) - 50
        {"cantilever",
         {RowAt(0, 0, "AX,AY/MA"), RowAt(4, 0, "100<-60/50")},
         {{1}},
         "",
         {{"AX", -50}, {"AY", 50 * root3}, {"MA", 200 * root3 - 50}}},
        {"couple typed with a minus",
         {RowAt(0, 0, "AX,AY/-M1"), RowAt(4, 0, "v-100")},
         {{1}},
         "",
         {{"AX", 0}, {"AY", 100}, {"M1", -400}}},
        // Couple of the reactions: 2 A + 30 - 50 = 0 with B = -A
        {"couples alone",
         {RowAt(0, 0, "vB"), RowAt(2, 0, "vA"), RowAt(1, 0, "30"), RowAt(5, 5, "-50")},
         {{1}},
         "1x",
         {{"B", -10}, {"A", 10}}},
        // Arm: 3 T sin 45 = 120; post: M = 120
        {"frame",
         Frame(),
         {{2}, {3, false, 0, 2}},
         "",
         {{"AX", 0}, {"BX", -40}, {"T", 40 * std::sqrt(2)}, {"AY", 40}, {"BY", 0}, {"M1", 120}}},
        // F1 cos 30 = F2 cos 45, F1 sin 30 + F2 sin 45 = 100: F1 (sin 30 + cos 30) = 100
        {"particle",
         {RowAt(1, 1, "p30x,F1"), RowAt(1, 1, "s45x,F2"), RowAt(1, 1, "v-100/70")},
         {{1, true, 9, 9}},
         "",
         {{"F1", 200 / (1 + root3)}, {"F2", 100 * std::sqrt(6) / (1 + root3)}}},
        {"one unknown on two bodies",
         {RowAt(0, 0, "vT", 1), RowAt(0, 0, "v-80", 1), RowAt(0, 0, "v-2t", 2), RowAt(0, 0, "vN", 2)},
         {{1, true}, {2, true}},
         "1x,2x",
         {{"T", 80}, {"N", 160}}},
        {"factors",
         {RowAt(0, 0, "h2F"), RowAt(0, 0, "h-30"), RowAt(0, 0, "v-0.5G"), RowAt(0, 0, "v4")},
         {{1, true}},
         "",
         {{"F", 15}, {"G", 8}}},
    };
    for (const LinearRow& row : rows) {
        SCOPED_TRACE(row.name);
        const BodyOutcome outcome = Solved(row.forces, row.bodies, row.suppressed);
        ASSERT_TRUE(std::holds_alternative<BodyResults>(outcome)) << RefusalText(outcome);
        ExpectResults(std::get<BodyResults>(outcome), row.results);
    }
}

TEST(SolveEquations, SaysWhyALinearSystemHasNoResult) {
    struct Row {
        BodyForces forces;
        std::vector<ChosenBody> bodies;
        const char* text;
    };
    const char* kSingular = "El determinante del sistema es cero.";
    const Row rows[] = {
        {{RowAt(0, 0, "vA"), RowAt(4, 0, "vB")}, {{1}}, "Son 2 incógnitas y 3 ecuaciones."},
        {{RowAt(0, 0, "AX,AY"), RowAt(4, 0, "BX,BY")}, {{1}}, "Son 4 incógnitas y 3 ecuaciones."},
        {Frame(), {{2}}, "Son 6 incógnitas y 3 ecuaciones."},
        {{RowAt(0, 0, "hA")}, {{1}, {2}}, "Son 1 incógnitas y 6 ecuaciones."},
        // Two pins on one line along it; three forces through one point; a mechanism held by rollers.
        {{RowAt(0, 0, "AX,AY"), RowAt(4, 0, "hB"), RowAt(2, 0, "v-10")}, {{1}}, kSingular},
        {{RowAt(0, 0, "AX,AY"), RowAt(2, 2, "F<45"), RowAt(2, 0, "v-10")}, {{1}}, kSingular},
        {{RowAt(0, 0, "vA"), RowAt(2, 0, "vB"), RowAt(4, 0, "vC"), RowAt(0, 0, "h5")}, {{1}}, kSingular},
        // cos 90 leaves dust in x: the equations say 0 = 10.
        {{RowAt(0, 0, "p90x,R"), RowAt(0, 0, "h10"), RowAt(0, 0, "vB")}, {{1, true}}, kSingular},
    };
    for (const Row& row : rows)
        EXPECT_EQ(RefusalText(Solved(row.forces, row.bodies)), row.text);
}

// --- One unknown angle

constexpr const char* kNotApplicable = "La rutina es aplicable a un sólo cuerpo con 1 ángulo desconocido.";
constexpr const char* kNoSolution = "No hay solución.";

TEST(SolveEquations, OffersTheTwoAnglesOfAKnownForce) {
    // Moments about A: 400 sin q = 200.
    const double ax = 50 * std::sqrt(3);
    ExpectChoice(SolvedBody1({RowAt(0, 0, "AX,AY"), RowAt(4, 0, "100<q"), RowAt(2, 0, "v-100")}),
                 {{{{"AX", -ax}, {"AY", 50}, {"Q", 30, true}}, {{"AX", ax}, {"AY", 50}, {"Q", 150, true}}}});
}

TEST(SolveEquations, FindsTheAngleWhenTheOtherUnknownsAreParallel) {
    // Two vertical reactions: 100 cos q = 50; 4 B + 200 sin q - 300 cos q + 50 = 0, A + B + 100 sin q = 0.
    const double s = 50 * std::sqrt(3);
    const double b = (100 - 2 * s) / 4;
    const double b2 = (100 + 2 * s) / 4;
    ExpectChoice(
        SolvedBody1({RowAt(0, 0, "vA"), RowAt(4, 0, "vB"), RowAt(2, 3, "100<q"), RowAt(0, 1, "h-50")}),
        {{{{"A", s - b2}, {"B", b2}, {"Q", -60, true}}, {{"A", -s - b}, {"B", b}, {"Q", 60, true}}}});
    // A couple and a horizontal reaction: 100 sin q = 100, the tangent case; M + 400 sin q - 200 = 0.
    ExpectChoice(SolvedBody1({RowAt(0, 0, "hA/M"), RowAt(4, 0, "100<q"), RowAt(2, 0, "v-100")}),
                 {{{{"A", 0}, {"M", -200}, {"Q", 90, true}}, {{"A", 0}, {"M", -200}, {"Q", 90, true}}}});
}

TEST(SolveEquations, KeepsTheOrderOfTheRootsWhenAnotherUnknownTurns) {
    // The same beam, its reactions in the other order and one of them turned: first 30, then 150 degrees.
    const double ax = 50 * std::sqrt(3);
    ExpectChoice(
        SolvedBody1({RowAt(4, 0, "100<q"), RowAt(0, 0, "vA"), RowAt(0, 0, "hB"), RowAt(2, 0, "v-100")}),
        {{{{"B", -ax}, {"A", 50}, {"Q", 30, true}}, {{"B", ax}, {"A", 50}, {"Q", 150, true}}}});
    ExpectChoice(
        SolvedBody1({RowAt(4, 0, "100<q"), RowAt(0, 0, "vA"), RowAt(0, 0, "h-B"), RowAt(2, 0, "v-100")}),
        {{{{"B", ax}, {"A", 50}, {"Q", 30, true}}, {{"B", -ax}, {"A", 50}, {"Q", 150, true}}}});
}

TEST(SolveEquations, FindsAForceUnknownInMagnitudeAndDirectionAtOnce) {
    // F cos q = 50, 4 B = 200, F sin q = 100 - B.
    const BodyOutcome outcome =
        SolvedBody1({RowAt(0, 0, "F<q"), RowAt(4, 0, "vB"), RowAt(2, 0, "v-100"), RowAt(0, 0, "h-50")});
    ASSERT_TRUE(std::holds_alternative<BodyResults>(outcome)) << RefusalText(outcome);
    ExpectResults(std::get<BodyResults>(outcome), {{"F", 50 * std::sqrt(2)}, {"B", 50}, {"Q", 45, true}});
    // The other unknown first, the force with a factor: 2 F cos q = 40 - H, 2 F sin q = 40, H = 10.
    const BodyOutcome second = SolvedBody1({RowAt(0, 1, "hH"), RowAt(2, 0, "2F1<a"), RowAt(2, 0, "v-40"),
                                            RowAt(0, 0, "h-40"), RowAt(0, 0, "10")});
    ASSERT_TRUE(std::holds_alternative<BodyResults>(second)) << RefusalText(second);
    ExpectResults(std::get<BodyResults>(second),
                  {{"H", 10}, {"F1", 25}, {"A", std::atan(4.0 / 3) * 180 / std::numbers::pi, true}});
}

TEST(SolveEquations, FindsTheForceOfARopeOverAPulley) {
    // F (1 + 4 sin q) = 200 and F (1 + sin q) = 100: sin q = 1/2, F = 200/3, A = -F cos q.
    const double f = 200.0 / 3;
    const double a = f * std::sqrt(3) / 2;
    ExpectChoice(
        SolvedBody1({RowAt(0, 0, "hA"), RowAt(1, 0, "vF"), RowAt(4, 0, "F<q"), RowAt(2, 0, "v-100")}),
        {{{{"A", -a}, {"F", f}, {"Q", 30, true}}, {{"A", a}, {"F", f}, {"Q", 150, true}}}});
}

TEST(SolveEquations, DropsRootsOfThePulleyThatAreNoForce) {
    struct Row {
        const char* name;
        BodyForces forces;
        BodyResults results;
    };
    const Row rows[] = {
        // The other root, q = -81.4 with F = -122.8, pushes. By a search over q for x and y solved, m left
        // over.
        {"negative magnitude",
         {RowAt(0, 0, "hA"), RowAt(1, 1, "p30x,F"), RowAt(0, 3, "F<q"), RowAt(3, 2, "-40,-60")},
         {{"A", 34.491989}, {"F", 52.20492}, {"Q", 139.509876, true}}},
        // Both ends at one point: F (cos q - 1) = -30, F sin q = 50, tan(q/2) = 3/5; q = 0 has no force at
        // all.
        {"ends that cancel each other",
         {RowAt(0, 0, "M"), RowAt(1, 0, "h-F"), RowAt(1, 0, "F<q"), RowAt(0, 0, "30,-50")},
         {{"F", 170.0 / 3}, {"M", -50}, {"Q", 2 * std::atan(0.6) * 180 / std::numbers::pi, true}}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const BodyOutcome outcome = SolvedBody1(row.forces);
        ASSERT_TRUE(std::holds_alternative<BodyResults>(outcome)) << RefusalText(outcome);
        ExpectResults(std::get<BodyResults>(outcome), row.results, kResidual);
    }
}

TEST(SolveEquations, SaysWhyAnAngleIsNotFound) {
    struct Row {
        const char* name;
        BodyForces forces;
        std::vector<ChosenBody> bodies;
        const char* suppressed;
        const char* text;
    };
    const BodyForce q = RowAt(4, 0, "100<q");
    const BodyForce pin = RowAt(0, 0, "AX,AY");
    const BodyForce on_body_2 = RowAt(0, 0, "h5", 2);
    const Row rows[] = {
        {"one other unknown", {q, RowAt(0, 0, "vA")}, {{1}}, "", kNotApplicable},
        {"three other unknowns", {q, pin, RowAt(0, 0, "M")}, {{1}}, "", kNotApplicable},
        {"two equations", {q, pin}, {{1}}, "1m", kNotApplicable},
        {"particle", {q, RowAt(0, 0, "vA")}, {{1, true}}, "", kNotApplicable},
        {"a known and an unknown force",
         {q, RowAt(0, 0, "F<q"), RowAt(1, 0, "vA")},
         {{1}},
         "",
         kNotApplicable},
        {"two unknown forces", {RowAt(0, 0, "F<q"), RowAt(1, 0, "G<q")}, {{1}}, "", kNotApplicable},
        {"two angles",
         {q, RowAt(0, 0, "50<r"), RowAt(1, 0, "vA")},
         {{1}},
         "",
         "El programa resuelve un sólo cuerpo con un ángulo desconocido."},
        {"two bodies",
         {q, pin, on_body_2},
         {{1}, {2}},
         "",
         "Con ángulo desconocido la rutina es aplicable a un sólo cuerpo."},
        // 400 sin q = 600
        {"too heavy", {q, pin, RowAt(2, 0, "v-300")}, {{1}}, "", kNoSolution},
        // The force acts on the pin: no lever, any angle or none.
        {"without a lever", {RowAt(0, 0, "100<q"), pin}, {{1}}, "", kNoSolution},
        {"others on one line",
         {q, RowAt(0, 0, "hA"), RowAt(1, 0, "hB")},
         {{1}},
         "",
         "El determinante del sistema es cero."},
        // The free force meets the line of the other unknown.
        {"free force on a line",
         {RowAt(0, 0, "F<q"), RowAt(2, 0, "hB"), RowAt(1, 0, "v-5")},
         {{1}},
         "",
         "El determinante del sistema es cero."},
        // F (1 + sin q) = 100, F (1 + 3 sin q) = 200 ask for F = 50 and sin q = 1: tangent, yet in x and y
        // only.
        {"pulley without a load",
         {RowAt(0, 0, "hA"), RowAt(1, 0, "vF"), RowAt(3, 0, "F<q")},
         {{1}},
         "",
         kNoSolution},
        // F (1 + sin q) = 100, F (1 + 2 sin q) = 400 ask for sin q = -3/2.
        {"pulley too heavy",
         {RowAt(0, 0, "hA"), RowAt(1, 0, "vF"), RowAt(2, 0, "F<q"), RowAt(4, 0, "v-100")},
         {{1}},
         "",
         kNoSolution},
        // F (1 + sin q) = -100, F (1 + 4 sin q) = -200: both roots push.
        {"pulley that would push",
         {RowAt(0, 0, "hA"), RowAt(1, 0, "vF"), RowAt(4, 0, "F<q"), RowAt(2, 0, "v100")},
         {{1}},
         "",
         kNoSolution},
    };
    for (const Row& row : rows)
        EXPECT_EQ(RefusalText(Solved(row.forces, row.bodies, row.suppressed)), row.text) << row.name;
}

// --- Never a false answer

// A beam of 4 with 100 at its middle, hinged at 0 and held by a known force at its end.
BodyForces HeldBeam(const char* holding) {
    return {RowAt(0, 0, "AX,AY"), RowAt(2, 0, "v-100"), RowAt(4, 0, holding)};
}

TEST(SolveEquations, TakesNearlyEqualRootsForTheTangentWhileThatHolds) {
    // 4 · 50.0001 = 200.0004: a sum of 0.0004 counts as equilibrium.
    for (const char* holding : {"50<q", "50.0001<q", "49.9999<q"}) {
        const BodyOutcome outcome = SolvedBody1(HeldBeam(holding));
        ASSERT_TRUE(std::holds_alternative<BodyChoice>(outcome)) << holding;
        for (const BodyResults& results : std::get<BodyChoice>(outcome))
            EXPECT_EQ(results[2].value, 90) << holding;
    }
}

TEST(SolveEquations, RefinesATangentThatDoesNotHold) {
    // 4 · 50.004 sin q = 200, so AY = 50 and AX = ∓ sqrt(50.004² - 50²).
    const double horizontal = std::sqrt(50.004 * 50.004 - 2500);
    const double off_upright = std::acos(50 / 50.004) * 180 / std::numbers::pi;
    ExpectChoice(SolvedBody1(HeldBeam("50.004<q")),
                 {{{{"AX", -horizontal}, {"AY", 50}, {"Q", 90 - off_upright, true}},
                   {{"AX", horizontal}, {"AY", 50}, {"Q", 90 + off_upright, true}}}},
                 1e-7);
}

TEST(SolveEquations, RefusesATangentThatNothingBalances) {
    EXPECT_EQ(RefusalText(SolvedBody1(HeldBeam("49.996<q"))), kNoSolution);
}

TEST(SolveEquations, TakesEquationsForDependentThatOnlyRoundingParts) {
    // The lines of three rollers meet in one point: a load beside it turns the body.
    BodyForces forces = {RowAt(0, 0, "v-100")};
    for (const auto& [name, degrees] : {std::pair{"A", 10.0}, {"B", 50.0}, {"C", 120.0}}) {
        const double radians = degrees * std::numbers::pi / 180;
        forces.push_back(RowAt(700.3 - 311.7 * std::cos(radians), 411.7 - 311.7 * std::sin(radians),
                               std::string("300") + name + "<" + text::NumberToText(degrees)));
    }
    EXPECT_EQ(RefusalText(SolvedBody1(forces)), "El determinante del sistema es cero.");
}

TEST(SolveEquations, FailsOnResultsPastTheRangeOfNumbers) {
    const BodyForces pinned = {RowAt(0, 0, "AX,AY"), RowAt(4, 0, "1E+200<q"), RowAt(2, 0, "v-1E+200")};
    EXPECT_EQ(FailureOf([&] { SolvedBody1(pinned); }), numeric::FailureCode::Overflow);
    const BodyForces free = {RowAt(0, 0, "F<q"), RowAt(4, 0, "vB"), RowAt(2, 0, "h1E+300"),
                             RowAt(2, 0, "v1E+300")};
    EXPECT_EQ(FailureOf([&] { SolvedBody1(free); }), numeric::FailureCode::Overflow);
    EXPECT_EQ(
        RefusalText(Solved({RowAt(0, 0, "h0.000001F"), RowAt(0, 0, "h1E+305"), RowAt(0, 0, "v1000000G")},
                           {{1, true}})),
        "No pude resolver el sistema.");
}

// --- What the results change

TEST(WithResults, CompletesAForceThatBecomesKnown) {
    const BodyForces forces = WithResults({RowAt(4, 0, "s30x,2F")}, {{"f", 7}, {"F", -10}});
    const notation::Force& force = forces[0].force.value();
    // 20 at 150 degrees, pushed: 20 at -30.
    EXPECT_NEAR(force.x.number.value(), 10 * std::sqrt(3), kTolerance);
    EXPECT_NEAR(force.y.number.value(), -10, kTolerance);
    EXPECT_NEAR(force.magnitude.value(), 20, kTolerance);
    EXPECT_NEAR(force.direction.value(), -30, kTolerance);
    EXPECT_TRUE(force.x.unknown.IsNone());
    EXPECT_TRUE(force.y.unknown.IsNone());
    EXPECT_EQ(force.knowledge, notation::Knowledge::Found);
    EXPECT_EQ(forces[0].text, "s30x,2F");
}

TEST(WithResults, PutsValuesWhereverTheirSymbolsStand) {
    struct Row {
        const char* text;
        double x, y;
    };
    const Row rows[] = {
        {"hF", 30, 0},  {"v-2f1", 0, -40}, {"F,-F1", 30, -20}, {"5,f1", 5, 20},
        {"10<Q", 8, 6}, {"uQ", 0.8, 0.6},  {"2F<q", 48, 36},   {"3,4", 3, 4},
    };
    const double q = std::asin(0.6) * 180 / std::numbers::pi;
    for (const Row& row : rows) {
        const BodyForce typed = RowAt(0, 0, row.text, 3);
        const bool was_given = typed.force->knowledge == notation::Knowledge::Given;
        const BodyForces forces =
            WithResults({typed}, {{"F", 30}, {"f1", 20}, {"F1", 20}, {"Q", q, true}, {"Q", 999}});
        EXPECT_NEAR(forces[0].force->x.number.value(), row.x, kTolerance) << row.text;
        EXPECT_NEAR(forces[0].force->y.number.value(), row.y, kTolerance) << row.text;
        EXPECT_EQ(forces[0].force->knowledge,
                  was_given ? notation::Knowledge::Given : notation::Knowledge::Found)
            << row.text;
    }
}

TEST(WithResults, KeepsWhatIsStillUnknown) {
    const BodyForces forces = WithResults(
        {RowAt(0, 0, "F,G"), RowAt(0, 0, "F<A"), RowAt(0, 0, "hf"), RowAt(0, 0, "20<F")}, {{"F", 30}});
    EXPECT_EQ(forces[0].force->x.number, 30);
    EXPECT_FALSE(forces[0].force->y.number);
    for (const BodyForce& row : forces)
        EXPECT_EQ(row.force->knowledge, notation::Knowledge::Unknown) << row.text;
    for (std::size_t i = 1; i < forces.size(); ++i)
        EXPECT_FALSE(forces[i].force->x.number) << forces[i].text;
}

TEST(WithResults, GivesACoupleItsValue) {
    struct Row {
        const char* text;
        std::optional<double> value;
    };
    const Row rows[] = {
        {"ma", 250}, {"-MA", -250}, {"AX,AY/-ma", -250}, {"MB", {}}, {"40", 40}, {"Q", {}},
    };
    for (const Row& row : rows) {
        BodyForces forces = {RowAt(0, 0, row.text)};
        const std::optional<notation::Force> force = forces[0].force;
        const Couple typed = forces[0].couple.value();
        forces = WithResults(forces, {{"MA", 250}, {"Q", 30, true}});
        EXPECT_EQ(forces[0].couple->value, row.value) << row.text;
        EXPECT_EQ(forces[0].couple->text, typed.text) << row.text;
        EXPECT_EQ(forces[0].couple->symbol, typed.symbol) << row.text;
        EXPECT_EQ(forces[0].force, force) << row.text;  // a couple alone never becomes a force
    }
}

TEST(WithResults, FailsPastTheRangeOfNumbers) {
    EXPECT_EQ(FailureOf([&] {
                  WithResults({RowAt(0, 0, "hA"), RowAt(0, 0, "vB")}, {{"A", 5}, {"B", 1e300}});
              }),
              numeric::FailureCode::Overflow);
}

}  // namespace
}  // namespace tavrelo::mechanics::rigid
