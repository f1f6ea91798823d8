#include "mechanics/rigid/structure_steps.h"

#include <gtest/gtest.h>

#include "body_rows.h"
#include "numeric/checked.h"

namespace tavrelo::mechanics::rigid {
namespace {

RigidProblem With(const RigidProblem& problem, const char* chain, const char* vector,
                  const char* origin = "A") {
    return std::get<StructureStep>(WithVectors(problem, {chain, vector, "", {}}, origin, kDecimals)).problem;
}

// B is 4 to the right of A, C 3 above B; system 2 is BC with its line, a force acts on C.
RigidProblem Corner() {
    RigidProblem problem = With(With({}, "AB", "h4"), "BC", "v3");
    problem.systems[1] = "BC";
    problem.lines = {{"ABC", 1}, {"AB", 1}, {"BC", 2}};
    problem.forces = {RowAt(4, 3, "v-10", 2)};
    problem.forces[0].point = "C";
    problem.backup = problem.forces;
    return problem;
}

TEST(WithVectors, TakesTheFirstPointForTheOriginWhateverIsAskedFor) {
    const RigidProblem problem = With({}, "AB", "h4", "Z");
    EXPECT_EQ(problem.structure.origin, "A");
    EXPECT_EQ(problem.systems[0], "AB");
    EXPECT_EQ(FindPoint(problem.structure.points, "B")->x, 4);
}

TEST(WithVectors, ShowsTheStructureFromTheOriginAskedFor) {
    const RigidProblem problem = With(Corner(), "AD", "v-1", "C");
    EXPECT_EQ(problem.structure.origin, "C");
    EXPECT_EQ(FindPoint(problem.structure.points, "A")->x, -4);
    EXPECT_EQ(FindPoint(problem.structure.points, "D")->y, -4);
    EXPECT_EQ(problem.systems[0], "ABCD");
    EXPECT_EQ(problem.systems[1], "BC");
    // The force stays at its point, which is the origin now.
    EXPECT_EQ(problem.forces[0].x, 0);
    EXPECT_EQ(problem.forces[0].y, 0);
    EXPECT_EQ(problem.lines, Corner().lines);
}

TEST(WithVectors, KeepsTheOldOriginAndTellsWhenTheOneAskedForIsUnknown) {
    const auto step = std::get<StructureStep>(WithVectors(Corner(), {"AD", "v-1", "", {}}, "Q", kDecimals));
    EXPECT_EQ(step.unknown_origin, text::Refusal{"No conozco las coordenadas del punto Q"});
    EXPECT_EQ(step.problem.structure.origin, "A");
    EXPECT_EQ(FindPoint(step.problem.structure.points, "D")->y, -1);
}

TEST(WithVectors, RefusesAsTheChainDoes) {
    const auto refused = WithVectors(Corner(), {"AB", "h1", "", {}}, "A", kDecimals);
    EXPECT_EQ(std::get<ChainRefusal>(refused).field, ChainField::Chain);
}

TEST(WithoutLastVector, DropsDiagramsAndWhatHeldTheLostLetter) {
    const StructureStep step = WithoutLastVector(Corner(), "B");
    EXPECT_FALSE(step.unknown_origin);
    EXPECT_EQ(step.problem.structure.origin, "B");
    EXPECT_EQ(FindPoint(step.problem.structure.points, "A")->x, -4);
    EXPECT_EQ(step.problem.systems[0], "AB");
    EXPECT_EQ(step.problem.systems[1], "B");
    EXPECT_EQ(step.problem.lines, (LineTable{{"AB", 1}}));
    EXPECT_TRUE(step.problem.forces.empty());
    EXPECT_TRUE(step.problem.backup.empty());
}

TEST(WithoutLastVector, TakesTheFirstPointWhenTheOriginIsLost) {
    RigidProblem corner = std::get<RigidProblem>(WithOrigin(Corner(), "C"));
    const StructureStep step = WithoutLastVector(corner, "C");
    EXPECT_FALSE(step.unknown_origin);
    EXPECT_EQ(step.problem.structure.origin, "A");
    // One that is only typed is no loss, and is told.
    EXPECT_TRUE(WithoutLastVector(Corner(), "C").unknown_origin);
}

TEST(WithoutLastVector, EndsInAnEmptyProblem) {
    EXPECT_EQ(WithoutLastVector(With({}, "AB", "h4"), "A").problem, RigidProblem{});
    EXPECT_EQ(WithoutLastVector({}, "").problem, RigidProblem{});
}

TEST(WithOrigin, MovesPointsAndForces) {
    const auto moved = std::get<RigidProblem>(WithOrigin(Corner(), "B"));
    EXPECT_EQ(FindPoint(moved.structure.points, "A")->x, -4);
    EXPECT_EQ(moved.forces[0].x, 0);
    EXPECT_EQ(moved.forces[0].y, 3);
    EXPECT_EQ(std::get<text::Refusal>(WithOrigin(Corner(), "Z")).text,
              "No conozco las coordenadas del punto Z");
    EXPECT_EQ(std::get<RigidProblem>(WithOrigin(moved, "A")).structure, Corner().structure);
}

TEST(WithSystem, FailsBesideTheFiveSystems) {
    for (const int system : {0, 6})
        EXPECT_THROW((void)WithSystem(Corner(), system, "AC"), numeric::RuntimeFailure);
}

TEST(WithSystem, ChangesOneSystem) {
    const RigidProblem changed = WithSystem(Corner(), 3, "AC");
    EXPECT_EQ(changed.systems[2], "AC");
    EXPECT_EQ(WithSystem(changed, 3, ""), Corner());
}

TEST(WithLine, DrawsAndCancelsEveryLineOfThatChain) {
    using Action = LineCommand::Action;
    const RigidProblem corner = Corner();
    RigidProblem longer = WithLine(corner, {Action::Draw, {"CA", 1}});
    EXPECT_EQ(longer.lines.back(), (LineRow{"CA", 1}));
    longer = WithLine(longer, {Action::Draw, {"CA", 1}});
    EXPECT_EQ(WithLine(longer, {Action::Cancel, {"CA", 1}}), corner);
    EXPECT_EQ(WithLine(corner, {Action::Cancel, {"CB", 1}}), corner);
    EXPECT_EQ(WithLine(corner, {Action::None, {"CA", 1}}), corner);
}

}  // namespace
}  // namespace tavrelo::mechanics::rigid
