#include "mechanics/rigid/force_steps.h"

#include <gtest/gtest.h>

#include "body_rows.h"
#include "numeric/checked.h"

namespace tavrelo::mechanics::rigid {
namespace {

using Texts = std::vector<std::string>;

// A beam ABC of 6 with D apart, without coordinates; body 2 is AB, body 3 is A alone.
RigidProblem Beam() {
    RigidProblem problem;
    problem.structure.points = {{"A", 0, 0}, {"B", 4, 0}, {"C", 6, 0}};
    problem.systems = {"ABCD", "AB", "A"};
    return problem;
}

RigidProblem With(const RigidProblem& problem, int body, const char* points, const char* force,
                  const Texts& values = {}) {
    return std::get<ForceStep>(WithForces(problem, {body, points, force, values}, kDecimals)).problem;
}

ForceRefusal RefusalOf(int body, const char* points, const char* force, const Texts& values = {}) {
    return std::get<ForceRefusal>(WithForces(Beam(), {body, points, force, values}, kDecimals));
}

Texts TextsOf(const BodyForces& forces) {
    Texts texts;
    for (const BodyForce& force : forces)
        texts.push_back(std::to_string(force.body) + force.point + " " + force.text);
    return texts;
}

TEST(WithForces, AddsOneForceAtItsPoint) {
    const RigidProblem problem = With(With(Beam(), 1, "B", "v-10"), 2, "A", "Ax, Ay/MA");
    EXPECT_EQ(TextsOf(problem.forces), (Texts{"1B v-10", "2A Ax, Ay/MA"}));
    EXPECT_EQ(problem.forces[0].x, 4);
}

TEST(WithForces, AddsASeriesAndNothingForAnEmptyValue) {
    const RigidProblem problem = With(Beam(), 1, "CBA", "v-10", {"", " -20 ", "not read"});
    EXPECT_EQ(TextsOf(problem.forces), (Texts{"1C v-10", "1A v-20"}));
    EXPECT_EQ(TextsOf(With(Beam(), 1, "AB", "h5", {"P"}).forces), (Texts{"1A h5", "1B hP"}));
    EXPECT_EQ(TextsOf(With(Beam(), 1, "AB", "h5").forces), (Texts{"1A h5"}));
    // Without a further value any force will do.
    EXPECT_EQ(TextsOf(With(Beam(), 1, "AB", "3,4", {""}).forces), (Texts{"1A 3,4"}));
}

TEST(WithForces, TellsHowEachNewForceWasWritten) {
    const auto step =
        std::get<ForceStep>(WithForces(With(Beam(), 1, "A", "v1"), {1, "BC", "h-5:", Texts{"F"}}, kDecimals));
    ASSERT_EQ(step.written.size(), 2u);
    EXPECT_FALSE(step.written[0]->leaves);
    EXPECT_EQ(step.written[1]->x_text, "F");
    const auto couple = std::get<ForceStep>(WithForces(Beam(), {1, "B", "250", {}}, kDecimals));
    ASSERT_EQ(couple.written.size(), 1u);
    EXPECT_FALSE(couple.written[0]);
}

TEST(WithForces, RefusesPointsThatAreNone) {
    struct Row {
        int body;
        const char* points;
        const char* text;
    };
    const Row rows[] = {
        {1, "", "No existe el punto dado."},
        {1, "Z", "No existe el punto dado."},
        {1, "D", "No existe el punto dado."},
        {1, "AZ", "No existe el punto dado."},
        {1, "A1", "No existe el punto dado."},
        {1, "ABCABCA", "Cadena de máximo 6 letras."},
        {1, "ABA", "Hay un punto repetido."},
        {2, "C", "El punto C no pertenece al cuerpo 2"},
        {5, "A", "El punto A no pertenece al cuerpo 5"},
    };
    for (const Row& row : rows) {
        const ForceRefusal refusal = RefusalOf(row.body, row.points, "v1");
        EXPECT_EQ(refusal.refusal.text, row.text) << row.points;
        EXPECT_FALSE(refusal.point) << row.points;
    }
}

TEST(WithForces, TellsWhichForceIsRefused) {
    EXPECT_EQ(RefusalOf(1, "A", "1,2;3").point, 0u);
    EXPECT_EQ(RefusalOf(1, "ABC", "v-1", {"-2", "1;2,3"}).point, 2u);
    const ForceRefusal series = RefusalOf(1, "AB", "3,4", {"5"});
    EXPECT_EQ(series.refusal.text, "Serie de fuerzas sólo para formatos \"hCx\" o \"vCy\".");
    EXPECT_EQ(series.point, 1u);
}

TEST(CheckForcePoints, TellsLettersOfNoBodyAtAll) {
    const auto text = [](int body, const char* points) {
        return CheckForcePoints(Beam(), body, points).value_or(text::Refusal{}).text;
    };
    EXPECT_EQ(text(1, "DCBA"), "");
    EXPECT_EQ(text(1, "AZ"), "El punto Z no pertenece a ningún cuerpo.");
    EXPECT_EQ(text(3, "AB"), "El punto B no pertenece al cuerpo 3");
    EXPECT_EQ(text(1, "a"), "Los puntos se denotan con letras.");
    EXPECT_EQ(text(1, "Ñ"), "Los puntos se denotan con letras.");
    EXPECT_EQ(text(1, "ABCDEFG"), "Cadena de máximo 6 letras.");
}

TEST(WithCopies, GivesABodyTheForcesOfTheWholeThatItLacks) {
    RigidProblem problem = With(With(With(Beam(), 1, "A", "v1"), 1, "C", "v2"), 1, "B", "v3");
    problem = With(With(problem, 2, "B", "v3"), 2, "A", "v9");
    const std::vector<std::size_t> rows = ForcesToCopy(problem, 2);
    EXPECT_EQ(rows, (std::vector<std::size_t>{0}));
    const RigidProblem copied = WithCopies(problem, rows, 2);
    EXPECT_EQ(TextsOf(copied.forces).back(), "2A v1");
    EXPECT_EQ(copied.forces.size(), problem.forces.size() + 1);
    EXPECT_TRUE(ForcesToCopy(copied, 2).empty());
    EXPECT_TRUE(ForcesToCopy(copied, 5).empty());
}

TEST(WithoutForce, ClosesTheRowsUp) {
    const RigidProblem problem = With(Beam(), 1, "ABC", "v1", {"2", "3"});
    EXPECT_EQ(TextsOf(WithoutForce(problem, 1).forces), (Texts{"1A v1", "1C v3"}));
    EXPECT_EQ(WithoutForce(problem, 3), problem);
}

TEST(ChooseBodies, FindsReferencePointsAndParticles) {
    const std::vector<BodyRequest> requests = {{2, "B"}, {3, "C"}};
    const auto bodies = std::get<std::vector<ChosenBody>>(ChooseBodies(Beam(), requests));
    ASSERT_EQ(bodies.size(), 2u);
    EXPECT_EQ(bodies[0].number, 2);
    EXPECT_EQ(bodies[0].x0, 4);
    EXPECT_FALSE(bodies[0].is_particle);
    EXPECT_EQ(bodies[1].x0, 6);
    EXPECT_TRUE(bodies[1].is_particle);
}

TEST(ChooseBodies, RefusesNoBodyAndAReferencePointThatDoesNotExist) {
    const auto refusal = [](const std::vector<BodyRequest>& requests) {
        return std::get<ReferenceRefusal>(ChooseBodies(Beam(), requests));
    };
    EXPECT_EQ(refusal({}).refusal.text, "No hay sistemas seleccionados en la lista.");
    EXPECT_EQ(refusal({}).body, 0);
    EXPECT_EQ(refusal({{1, "A"}, {2, "D"}}).refusal.text,
              "El punto de referencia D del sistema 2 no existe.");
    EXPECT_EQ(refusal({{1, "A"}, {2, "D"}}).body, 2);
}

TEST(Restored, BringsTheForcesOfTheBackupToThePlacesOfTheirPoints) {
    RigidProblem problem = WithBackup(With(Beam(), 1, "B", "v1"));
    problem = With(problem, 1, "A", "v2");
    problem.structure.points[1].x = 7;
    const RigidProblem restored = Restored(problem);
    EXPECT_EQ(TextsOf(restored.forces), (Texts{"1B v1"}));
    EXPECT_EQ(restored.forces[0].x, 7);
    EXPECT_EQ(restored.backup, problem.backup);
    const RigidProblem fresh = With(Beam(), 1, "B", "v1");
    EXPECT_EQ(Restored(fresh), fresh);
}

}  // namespace
}  // namespace tavrelo::mechanics::rigid
