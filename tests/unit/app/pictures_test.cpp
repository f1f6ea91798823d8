// What a picture tells beside its drawing: words for those who do not see it, tips, and the icons of its
// buttons.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../window/test_host.h"
#include "app/program.h"

namespace tavrelo::app {
namespace {

class PicturesTest : public testing::Test {
  protected:
    template <class ControlType>
    ControlType& Get(const std::string& name) {
        return program.Window().Get<ControlType>(name);
    }
    void PressTool(int button) {
        constexpr double kButtonWidth = 555;  // twips
        Get<window::Picture>("Image1").UserMouseDown({.x = (button - 0.5) * kButtonWidth, .y = 100});
    }
    void Press(const std::string& name) { Get<window::Button>(name).UserClick(); }
    void Fill(const std::string& grid, int first_row, int first_col,
              const std::vector<std::vector<std::string>>& rows) {
        auto& table = Get<window::Grid>(grid);
        for (std::size_t row = 0; row < rows.size(); ++row)
            for (std::size_t col = 0; col < rows[row].size(); ++col)
                table.SetCell(first_row + static_cast<int>(row), first_col + static_cast<int>(col),
                              rows[row][col]);
    }
    /// The words of the calculator's picture after a routine.
    std::string Calculated(int routine, const std::string& formula, const std::vector<std::string>& cells) {
        PressTool(1);
        Get<window::RichTextBox>("rtbExpr").SetText(formula);
        Fill("gd", 1, 1, {cells});
        Get<window::Grid>("gd").Select({1, 1, 1, static_cast<int>(cells.size())});
        program.Window().publics.ProcNumber = routine;
        Press("cmdCalculate");
        return Get<window::Picture>("pic").Description();
    }

    window::TestHost world;
    Program program{world.host};
};

struct RoutineWords {
    int routine;
    const char* formula;
    std::vector<std::string> cells;
    const char* words;
};

TEST_F(PicturesTest, EveryRoutineTellsItsDrawing) {
    const RoutineWords rows[] = {
        {11,
         "",
         {"0", "0", "4", "0", "0", "3"},
         "Triángulo. Vértices: x 4, y 0; x 0, y 3; x 0, y 0. Lados de 5, 3 y 4. Ángulos de 36.87, 53.13 y 90 "
         "grados."},
        {20,
         "x^2-4",
         {"-2", "4"},
         "Gráfica de x al cuadrado menos 4: y frente a x, de x menos 2 a x 4. Mínimo menos 4 en x 0; máximo "
         "12 en x 4. Cero en x menos 2 y x 2. Baja de x menos 2 a x 0 y sube de x 0 a x 4."},
        {21,
         "2",
         {"0", "90"},
         "Gráfica de r igual a 2. Empieza en x 2, y 0 y termina en x 0, y 2. Abarca x de 0 a 2, y de 0 a 2."},
        {22,
         "x & 2*x",
         {"0", "3"},
         "Gráfica de x igual a x, y igual a 2 por x. Empieza en x 0, y 0 y termina en x 3, y 6. Abarca x de "
         "0 a 3, y de 0 a 6."},
        {23,
         "",
         {"0", "1", "2", "5", "4", "9"},
         "Ajuste a tres puntos: x 0, y 1; x 2, y 5; x 4, y 9. Curva: y frente a x, de x 0 a x 4. Mínimo 1 en "
         "x 0; máximo 9 en x 4. Sin ceros. Sube de x 0 a x 4."},
        {30, "", {"2,0", "0,3"}, "Una fuerza: F1 de 3 hacia arriba en x 2, y 0."},
        {31,
         "",
         {"3,4", "30", "\"e\""},
         "Un vector desde el origen: V de 5 a 53.13 grados. Ejes X prima, Y prima girados 30 grados."},
        {34,
         "",
         {"1", "10", "4", "-4"},
         "Tres fuerzas: F1 de 10 hacia arriba en x 1, y 0; F2 de 4 hacia abajo en x 4, y 0; R de 6 hacia "
         "arriba en x menos 1, y 0, resultado."},
        {35,
         "",
         {"0,0", "40", "6,0", "60"},
         "Tres fuerzas paralelas al eje z: F1 de 40 hacia arriba en x 0, y 0; F2 de 60 hacia arriba en x 6, "
         "y 0; R de 100 hacia arriba en x 3.6, y 0, resultado."},
        {36,
         "",
         {"2,0", "v-10"},
         "Dos fuerzas: F1 de 10 hacia abajo en x 2, y 0; R de 10 hacia abajo en x 2, y 0, resultado."},
        {37,
         "6",
         {"0", "4"},
         "Gráfica de 6: y frente a x, de x 0 a x 4. y constante: 6. Resultante R de la carga, hacia arriba, "
         "en x 2."},
        {37,
         "-6",
         {"0", "4"},
         "Gráfica de menos 6: y frente a x, de x 0 a x 4. y constante: menos 6. Resultante R de la carga, "
         "hacia abajo, en x 2."},
    };
    for (const RoutineWords& row : rows)
        EXPECT_EQ(Calculated(row.routine, row.formula, row.cells), row.words) << row.routine;
    EXPECT_EQ(world.messages, 0) << world.last_message;
}

/// A weight of 100 on two cables, as the particle's solution tells it.
TEST_F(PicturesTest, TheParticleTellsItsForces) {
    constexpr int kParticleRoutine = 38;
    Calculated(kParticleRoutine, "", {"p30x,F1", "s45x,F2", "v-100"});
    PressTool(2);
    EXPECT_EQ(Get<window::Picture>("pic1").Description(),
              "Fuerzas sobre un punto, con ejes x, y. Tres fuerzas: F1: 73.205 a 30 grados, hallada; F2: "
              "89.658 a 135 grados, hallada; 100 hacia abajo.");
}

/// 50 sen A = 30: A = 36.87 with F = -40, or 143.13 with F = 40.
TEST_F(PicturesTest, TheParticleTellsAFoundAngle) {
    constexpr int kParticleRoutine = 38;
    world.answer = window::Answer::Yes;
    Calculated(kParticleRoutine, "", {"50<A", "hF", "v-30"});
    PressTool(2);
    EXPECT_EQ(Get<window::Picture>("pic1").Description(),
              "Fuerzas sobre un punto, con ejes x, y. Tres fuerzas: 50 a 143.13 grados, hallada; F: 40 hacia "
              "la derecha, hallada; 30 hacia abajo.");
}

/// x = t^2 - 1 from -2 to 2.
TEST_F(PicturesTest, TheGraphOfAMotionTellsItsCurve) {
    PressTool(6);
    Get<window::TextBox>("txtKinem(0)").SetText("t^2-1");
    Get<window::TextBox>("txtKinemt1(0)").SetText("-2");
    Get<window::TextBox>("txtKinemt1(1)").SetText("2");
    Get<window::CheckBox>("chkGraph(0)").UserClick();
    Press("cmdGraph");
    EXPECT_EQ(Get<window::Picture>("pic1").Description(),
              "Gráfica con una curva. Curva de x frente a t, de t menos 2 a t 2. Mínimo menos 1 en t 0; "
              "máximo 3 en t menos 2. Cero en t menos 1 y t 1. Baja de t menos 2 a t 0 y sube de t 0 a t 2.");
    // x from -1 to 3 over the frame's height: its middle is 1, at t = 0.
    EXPECT_EQ(Get<window::Picture>("pic1").Canvas().TipAt({245.5, 151.5}), "t = 0, x = 1");
}

/// Each button of the tables shows its own piece of the drawing that all share.
TEST_F(PicturesTest, EveryButtonOfATableHasItsIcon) {
    const auto icons = program.Window().GetArray<window::Button>("cmdGrid");
    ASSERT_GT(icons.Count(), 5);
    for (const auto& [index, button] : icons.Items()) {
        EXPECT_EQ(button->Picture().bitmap, "grid_buttons") << index;
        EXPECT_EQ(button->Picture().source.left, index * button->Picture().source.width) << index;
    }
    PressTool(4);
    const auto& first = Get<window::Button>("cmdTable(0)").Picture();
    const auto& second = Get<window::Button>("cmdTable(1)").Picture();
    EXPECT_EQ(first.bitmap, "table_buttons");
    EXPECT_EQ(second.source.left - first.source.left, first.source.width);
}
/// The pointer is told the arrow below it and, elsewhere in a graph, the values of its place. The vectors (3,
/// 4) and (4, -3) are drawn from (199, 193), 18.6 pixels for each unit; the graph's frame goes from (96, 2)
/// to (395, 301).
TEST_F(PicturesTest, TellWhatIsBelowThePointer) {
    const auto tip = [&](const char* picture, double x, double y) {
        return Get<window::Picture>(picture).Canvas().TipAt({x, y});
    };
    Calculated(27, "", {"3,4", "4,-3"});
    EXPECT_EQ(tip("pic", 227, 156), "V1 de 5 a 53.13 grados\nComponentes x 3, y 4");
    EXPECT_EQ(tip("pic", 236, 221), "V2 de 5 a menos 36.87 grados\nComponentes x 4, y menos 3");
    EXPECT_EQ(tip("pic", 20, 20), "");
    Calculated(20, "x^2-4", {"-2", "4"});
    EXPECT_EQ(tip("pic", 245.5, 151.5), "x = 1, y = 4");
    EXPECT_EQ(tip("pic", 96, 301), "x = -2, y = -4");
    EXPECT_EQ(tip("pic", 90, 301), "");
    EXPECT_EQ(tip("pic", 245.5, 310), "");
    Calculated(38, "", {"p30x,F1", "s45x,F2", "v-100"});
    PressTool(2);
    EXPECT_EQ(tip("pic1", 198, 250), "100 hacia abajo\nComponentes x 0, y menos 100");
}
}  // namespace
}  // namespace tavrelo::app
