#include "tools/rigid/describe.h"

#include <gtest/gtest.h>

#include "seen_picture.h"

namespace tavrelo::tools::rigid {
namespace {

/// A beam on a pin A and a roller B with 60 downward at C, 40 at 60 degrees below the x axis and a couple at
/// D.
DrawnProblem Beam() {
    DrawnProblem beam;
    beam.At("A", 0, 0).At("C", 2, 0).At("D", 4, 0).At("B", 6, 0).Line(1, "ACDB");
    beam.problem.structure.origin = "A";
    beam.Force(1, "A", "Ax, Ay").Force(1, "C", "v-60").Force(1, "D", "c60x,40/-50").Force(1, "B", "vB");
    return beam;
}

TEST(DescribeScene, SaysThatThereIsNothingYet) {
    DrawnProblem nothing;
    nothing.Draw();
    EXPECT_EQ(nothing.picture.Words(), "Sin puntos.");
}

TEST(DescribeScene, TellsTheStructureWhileNoBodyIsInView) {
    DrawnProblem beam = Beam();
    beam.System(2, "AC").Draw();
    EXPECT_EQ(beam.picture.Words(),
              "Estructura de cuatro puntos, con origen en A: A en x 0, y 0; C en x 2, y 0; D en x 4, y 0; B "
              "en x 6, y 0. "
              "Sistema 2: A y C. Línea del sistema 1: A, C, D y B.");
}

TEST(DescribeScene, TellsTheForcesAndCouplesOfABodyInView) {
    DrawnProblem beam = Beam();
    beam.Show({1}).Draw();
    EXPECT_EQ(beam.picture.Words(),
              "Estructura de cuatro puntos, con origen en A: A en x 0, y 0; C en x 2, y 0; D en x 4, y 0; B "
              "en x 6, y 0. "
              "Línea del sistema 1: A, C, D y B. Diagrama de cuerpo libre del sistema 1. Cuatro fuerzas y un "
              "par: en "
              "A, componente x Ax, componente y Ay, desconocida; en C, 60 hacia abajo; en D, 40 a menos 60 "
              "grados, par "
              "50 en sentido horario; en B, B hacia arriba, desconocida.");
}

/// Only the lines of bodies in view are drawn, and so told.
TEST(DescribeScene, LeavesOutWhatIsNotInView) {
    DrawnProblem beam = Beam();
    beam.System(2, "AC").Show({2}).Draw();
    EXPECT_EQ(beam.picture.Words(),
              "Estructura de cuatro puntos, con origen en A: A en x 0, y 0; C en x 2, y 0; D en x 4, y 0; B "
              "en x 6, y 0. "
              "Sistema 2: A y C. Diagrama de cuerpo libre del sistema 2. Sin fuerzas.");
}

TEST(DescribeScene, ALineOnTopIsToldBehind) {
    DrawnProblem beam = Beam();
    beam.Draw();
    DrawOver(beam.picture, beam.problem.structure.points, {"AD", 3});
    EXPECT_TRUE(beam.picture.Words().ends_with(" Línea del sistema 3: A y D.")) << beam.picture.Words();
}

struct RowCase {
    const char* text;
    const char* words;
};

TEST(DescribeBodyForce, TellsEveryKindOfRow) {
    constexpr RowCase kRows[] = {
        {"v-60", "en B, 60 hacia abajo"},
        {"p30x,F1", "en B, F1 a 30 grados, desconocida"},
        {"/MB", "en B, par MB en sentido antihorario, desconocido"},
        {"/-MB", "en B, par MB en sentido horario, desconocido"},
        {"/25", "en B, par 25 en sentido antihorario"},
        {"80<A", "en B, 80 de ángulo desconocido A, dibujada a 45 grados"},
        {"h5:", "en B, 5 hacia la derecha, llega al punto"},
    };
    for (const RowCase& row : kRows) {
        DrawnProblem beam;
        beam.At("A", 0, 0).At("B", 6, 0).Force(1, "B", row.text);
        EXPECT_EQ(DescribeBodyForce(beam.Scene(), 0), row.words);
    }
}

/// Ax = -20, Ay = 43.214: 47.617 at 180 - atan(43.214/20) = 114.836 degrees.
TEST(DescribeBodyForce, TellsWhatWasFound) {
    DrawnProblem beam;
    beam.At("A", 0, 0).Force(1, "A", "Ax, Ay/MA");
    mechanics::rigid::BodyForce& row = beam.problem.forces[0];
    row.force->x.number = -20;
    row.force->y.number = 43.214;
    row.force->magnitude = 47.6177;
    row.force->direction = 114.8358;
    row.force->knowledge = notation::Knowledge::Found;
    row.couple->value = -400;
    beam.view.looks[0] = SolvedLook(beam.view.looks[0], row, 3);
    EXPECT_EQ(DescribeBodyForce(beam.Scene(), 0),
              "en A, AX, AY: 47.618 a 114.836 grados, hallada, par MA: 400 en sentido horario, hallado");
}

}  // namespace
}  // namespace tavrelo::tools::rigid
