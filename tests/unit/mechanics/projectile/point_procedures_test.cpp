// Clicks on labels: launches, the completion of points, and the search for parameters.

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "desk.h"

namespace tavrelo::mechanics::projectile {
namespace {

using testing::Desk;
using Lines = std::vector<std::string>;
using Cells = std::vector<std::string>;

Desk WithLaunch(const Cells& cells) {
    Desk desk;
    desk.Column(1, cells).Click(Procedure::Plant, 0);
    desk.Report();
    desk.Board();
    EXPECT_EQ(desk.Boxes(), Lines{});
    return desk;
}

TEST(Plant, WritesTheBoardAndTheReport) {
    Desk desk(2, 5);
    desk.Column(6, {"0", "0", "10", "12", "-5"}).Components(6).Click(Procedure::Plant, 0, 2);
    EXPECT_EQ(desk.Board(), (Lines{"clear 6", "clear 7", "clear 8", "clear 9", "clear 10", "show",
                                   "6: X = 12 t", "7: Y = ;- 4.9 t¡2 ;- 5 t + 10", "8: V!x = 12",
                                   "9: V!y = ;- 5 ;- 9.8 t", "10: Y = ;- 0.034 X¡2 ;- 0.417 X + 10"}));
    EXPECT_EQ(desk.Report().size(), 7u);
    EXPECT_TRUE(desk.TheProblem().EquationsOf(2).IsComplete());
    EXPECT_EQ(desk.TheProblem().EquationsOf(1).kind, LaunchKind::None);
}

TEST(Plant, LosesTheEarlierEquationsOfTheMoverWhenItFails) {
    Desk desk(2, 5);
    desk.Column(1, {"0", "0", "0", "20", "30"}).Column(6, {"0", "0", "0", "20", "60"});
    desk.Click(Procedure::Plant, 0).Click(Procedure::Plant, 0, 2);
    desk.Board();
    desk.Column(1, {"0", "0", "0", "-5", "30"});
    const Problem before = desk.TheProblem();
    desk.Click(Procedure::Plant, 0);
    EXPECT_EQ(desk.Boxes(),
              (Lines{"Magnitud no válida (cero o negativa) para la velocidad de lanzamiento."}));
    EXPECT_EQ(desk.Board(), Lines{});
    EXPECT_EQ(desk.TheProblem().EquationsOf(1), Equations{});
    EXPECT_EQ(desk.TheProblem().EquationsOf(2), before.EquationsOf(2));
    EXPECT_EQ(desk.TheProblem().table, before.table);
}

struct PlantRefusal {
    Cells cells;
    int point;
    const char* text;
};
TEST(Plant, Refuses) {
    const PlantRefusal kCases[] = {
        {{"0", "0", "0", "20", "30"}, 1, "Debes basar las ecuaciones siempre en el punto 0."},
        {{"0", "", "0", "20", "30"}, 0, "Debes dar el tiempo t0 y la posición inicial (x0, y0)"},
        {{"t1+2", "0", "0", "20", "30"}, 0, "Debes dar el tiempo t0 y la posición inicial (x0, y0)"},
        {{"t", "0", "0", "20", "30"}, 0, "Error en el dato t"},
        {{"0", "0", "y1+", "20", "30"}, 0, "Error en el dato y1+"},
        {{"0", "x1", "0", "20", "30"}, 0, "Debes dar el tiempo t0 y la posición inicial (x0, y0)"},
        {{"0", "0", "0", "0", ""}, 0, "La velocidad inicial no puede ser cero."},
    };
    for (const PlantRefusal& each : kCases) {
        Desk desk;
        desk.Column(1, each.cells).Click(Procedure::Plant, each.point);
        EXPECT_EQ(desk.Boxes(), Lines{each.text});
    }
}

TEST(Plant, TakesATextInTheSpeedDataForAnUnknown) {
    const Desk desk = WithLaunch({"0", "0", "0", "v", "30"});
    EXPECT_EQ(desk.TheProblem().EquationsOf(1).kind, LaunchKind::UnknownSpeed);
}

TEST(ClickPoint, NeedsAConfiguredTable) {
    for (const Procedure procedure : {Procedure::Plant, Procedure::Substitute}) {
        const Step step = ClickPoint(Problem{}, procedure, {1, 0}, 3);
        EXPECT_EQ(std::get<text::Refusal>(step).text,
                  "Configura la tabla primero\n(Clic en el espacio gris arriba de los rótulos numéricos).");
    }
}

// A cliff of 80, thrown level with 15: x = 15 t, y = 80 - 4.9 t^2, vy = -9.8 t. At t = 2: 30, 60.4, vy =
// -19.6, so v = 24.681 and the direction -52.573°.
TEST(Substitute, CompletesAPointFromItsTime) {
    Desk desk = WithLaunch({"0", "0", "80", "15", "0"});
    desk.Column(2, {"2"}).Click(Procedure::Substitute, 1);
    EXPECT_EQ(desk.Report(), (Lines{"Sustituir en las ecuaciones del móvil 1", "t!1 = 2, x!1 = 30",
                                    "y!1 = 60.4,    v!1 = 24.681,   ;q!1 = ;-52.573°"}));
    EXPECT_EQ(desk.Shown(2), (Cells{"2", "30", "60.4", "24.681", "-52.573"}));
    desk.Column(2, {"", "30"}).Components(2).Click(Procedure::Substitute, 1);
    EXPECT_EQ(desk.Report(), (Lines{"Sustituir en las ecuaciones del móvil 1", "t!1 = 2, x!1 = 30",
                                    "y!1 = 60.4,    v!x!1 = 15,   v!y!1 = ;-19.6"}));
    EXPECT_EQ(desk.Shown(2), (Cells{"2", "30", "60.4", "15", "-19.6"}));
}

TEST(Substitute, KeepsAllDigits) {
    Desk desk = WithLaunch({"0", "0", "80", "15", "0"});
    desk.Column(2, {"1"}).Click(Procedure::Substitute, 1);
    EXPECT_NEAR(desk.TheProblem().NumberAt(points::kMagnitudeRow, 2).value(), std::hypot(15, 9.8), 1e-13);
}

// With v0 = (15, 20) the height 15 is passed at t^2 - (20/4.9) t + 15/4.9 = 0: t = 2.0408 +- 1.0503. The
// later time comes first.
TEST(Substitute, AsksBetweenTwoTimes) {
    for (const bool first : {true, false}) {
        Desk desk;
        desk.Column(1, {"0", "0", "0", "15", "20"}).Components(1).Click(Procedure::Plant, 0);
        desk.Report();
        desk.Column(2, {"", "", "15"}).Answers({first}).Click(Procedure::Substitute, 1);
        EXPECT_EQ(desk.Report(),
                  (Lines{"Sustituir en las ecuaciones del móvil 1", "t!1 = 3.091, x!1 = 46.371",
                         "y!1 = 15,    v!1 = 18.193,   ;q!1 = ;-34.465°", "o bien",
                         "t!1 = 0.99, x!1 = 14.854", "y!1 = 15,    v!1 = 18.193,   ;q!1 = 34.465°"}));
        EXPECT_EQ(desk.Boxes(),
                  (Lines{"En  t =  3.091  y  t =  0.99\nPara pasar la primera solución a la tabla "
                         "oprime el botón \"Sí\".\nPara pasar la solución alternativa oprime "
                         "\"No\"."}));
        EXPECT_EQ(desk.Shown(2).front(), first ? "3.091" : "0.99");
    }
}

// y(t + 1.5) - y(t) = 4 with vy0 = 25 sen 60° = 21.651: t = (21.651 * 1.5 - 4) / (9.8 * 1.5) - 0.75 = 1.187.
TEST(Substitute, FindsAnIntervalByItsIncrements) {
    Desk desk = WithLaunch({"0", "0", "0", "25", "60"});
    desk.Column(3, {"t1+1.5", "", "y1+4"}).Click(Procedure::Substitute, 2);
    EXPECT_EQ(desk.Boxes(), Lines{});
    EXPECT_EQ(desk.Report().front(), "Sustituir en las ecuaciones del móvil 1: ;Dt = 1.5 y ;Dy = 4.");
    EXPECT_EQ(desk.Shown(3), (Cells{"2.687", "33.589", "22.797", "13.349", "-20.539"}));
    EXPECT_EQ(desk.Shown(2).front(), "1.187");
    EXPECT_EQ(desk.Shown(2)[2], "18.797");
}

struct SubstituteCase {
    Cells launch;
    Cells point;
    bool components;  // of the point
    const char* text;
};
TEST(Substitute, Refuses) {
    const Cells kLaunch = {"0", "0", "0", "15", "30"};
    const Cells kUpright = {"0", "0", "0", "15", "90"};
    const SubstituteCase kCases[] = {
        {{"0", "0", "0", "15", ""}, {"2"}, false, "No tengo las ecuaciones del móvil 1"},
        {kLaunch, {}, false, "Datos incorrectos."},
        {kLaunch, {"t1+2"}, false, "Datos incorrectos."},
        {kLaunch, {"t1+2", "", "y0+2"}, false, "Datos incorrectos."},
        {kLaunch, {"2*t1", "", "y1+2"}, false, "Datos incorrectos."},
        {kLaunch, {"t1", "", "y1+2"}, false, "No hay solución."},
        {kLaunch, {"t1+", "5"}, false, "Error en el dato t1+"},
        {kUpright, {"", "5"}, false, "No hay solución."},
        // 7.5^2 / 19.6 = 2.87 is the top.
        {kLaunch, {"", "", "3"}, false, "No hay solución. Verifica los datos."},
        {kLaunch, {"", "", "", "-3"}, false, "Magnitud negativa."},
        // The speed is never below 15 cos 30° = 12.99.
        {kLaunch, {"", "", "", "12.9"}, false, "No hay solución. Verifica los datos."},
        {kLaunch, {"", "", "", "", "90"}, false, "No hay solución."},
        {kUpright, {"", "", "", "", "20"}, false, "No hay solución."},
        // A horizontal component says nothing.
        {kLaunch, {"", "", "", "12"}, true, "Datos incorrectos."},
    };
    for (const SubstituteCase& each : kCases) {
        Desk desk = WithLaunch(each.launch);
        desk.Column(2, each.point);
        if (each.components)
            desk.Components(2);
        desk.Click(Procedure::Substitute, 1);
        EXPECT_EQ(desk.Boxes(), Lines{each.text});
        EXPECT_EQ(desk.Report(), Lines{});
    }
}

// Thrown at 45° with 10 sqrt 2 from the origin: v = (10, 10).
struct DatumCase {
    const char* name;
    Cells point;
    bool components;
    Cells found;  // of the first solution
};
TEST(Substitute, TakesTheFirstDatumThatCounts) {
    const DatumCase kCases[] = {
        {"t before x", {"1", "99"}, false, {"1", "10", "5.1", "10.002", "1.146"}},
        {"x before y", {"", "5", "99"}, false, {"0.5", "5", "3.775", "11.225", "27.022"}},
        {"vy", {"", "", "", "7", "-10"}, true, {"2.041", "20.408", "0", "10", "-10"}},
        {"angle", {"", "", "", "", "0"}, false, {"1.02", "10.204", "5.102", "10", "0"}},
        // The tangent of 135° is that of -45°.
        {"angle, its tangent", {"", "", "", "", "135"}, false, {"2.041", "20.408", "0", "14.142", "-45"}},
    };
    for (const DatumCase& each : kCases) {
        SCOPED_TRACE(each.name);
        Desk desk;
        desk.Column(1, {"0", "0", "0", "10", "10"}).Components(1).Click(Procedure::Plant, 0);
        desk.Column(2, each.point);
        if (each.components)
            desk.Components(2);
        desk.Answers({true}).Click(Procedure::Substitute, 1);
        EXPECT_EQ(desk.Shown(2), each.found);
    }
}

// The speed at a height: v^2 = 200 - 19.6 y, so 10.198 is met at y = 4.898, twice: vy = +-2.
TEST(Substitute, MeetsASpeedTwice) {
    Desk desk;
    desk.Column(1, {"0", "0", "0", "10", "10"}).Components(1).Click(Procedure::Plant, 0);
    desk.Column(2, {"", "", "", "10.198"}).Answers({false}).Click(Procedure::Substitute, 1);
    EXPECT_EQ(desk.Shown(2), (Cells{"0.816", "8.163", "4.898", "10.198", "11.309"}));
}

constexpr const char* kOneSpeed =
    "¿Deseas replantear las ecuaciones de movimiento con este valor calculado de v0?";
constexpr const char* kTwoSpeeds =
    "¿Deseas replantear las ecuaciones de movimiento con alguno de los 2 valores calculados de v0?. Si "
    "escoges el "
    "primero oprime el botón \"Sí\". Para el segundo oprime \"No\".";
constexpr const char* kOneAngle =
    "¿Deseas replantear las ecuaciones de movimiento con este valor calculado de theta0?";

TEST(SubstituteInPolar, FindsTheSpeed) {
    Desk desk = WithLaunch({"0", "0", "0", "", "30"});
    const Problem before = desk.TheProblem();
    desk.Column(2, {"1", "17.320508"}).Answers({false}).Click(Procedure::SubstituteInPolar, 1);
    EXPECT_EQ(desk.Report(),
              (Lines{"Calcular la v!0 del móvil 1, con los datos:", "t!1 = 1, x!1 = 17.321", "v!0 = 20"}));
    EXPECT_EQ(desk.Boxes(), Lines{kOneSpeed});
    EXPECT_EQ(desk.TheProblem().equations, before.equations);
    desk.Answers({true}).Click(Procedure::SubstituteInPolar, 1);
    EXPECT_TRUE(desk.TheProblem().EquationsOf(1).IsComplete());
    EXPECT_NEAR(*desk.TheProblem().EquationsOf(1).launch.first, 20, 1e-6);
    EXPECT_EQ(desk.Shown(1)[3], "");  // the found value is not written into the table
}

// At 30° the speed after 1 second: v0^2 - 9.8 v0 + 96.04 = v^2. With v = 9, v0 = 4.9 +- sqrt(24.01 - 15.04).
TEST(SubstituteInPolar, AsksBetweenTwoSpeeds) {
    for (const bool first : {true, false}) {
        Desk desk = WithLaunch({"0", "0", "0", "", "30"});
        desk.Column(2, {"1", "", "", "9"}).Answers({first}).Click(Procedure::SubstituteInPolar, 1);
        EXPECT_EQ(desk.Boxes(), Lines{kTwoSpeeds});
        EXPECT_EQ(desk.Report()[2], "v!0 = 7.895  o  1.905");
        EXPECT_NEAR(*desk.TheProblem().EquationsOf(1).launch.first, first ? 7.895 : 1.905, 1e-3);
    }
}

// To hit (30, 0) with 20: sin 2q = 9.8 * 30 / 400 = 0.735, 2q = 47.308° or 132.692°.
TEST(SubstituteInPolar, FindsBothAnglesToATarget) {
    Desk desk = WithLaunch({"0", "0", "0", "20", ""});
    desk.Column(2, {"", "30", "0"}).Answers({false}).Click(Procedure::SubstituteInPolar, 1);
    EXPECT_EQ(desk.Report()[2], ";q!0!1 = 66.346°, ;q!0!2 = 23.654°");
    EXPECT_EQ(desk.Boxes(),
              (Lines{"¿Deseas replantear las ecuaciones de movimiento con alguno de estos valores del "
                     "ángulo?\ntheta1 = 66.346°,  theta2 = 23.654\nSi deseas tomar el primer valor "
                     "oprime el botón \"Sí\". Para el segundo valor oprime el botón \"No\"."}));
    EXPECT_NEAR(*desk.TheProblem().EquationsOf(1).launch.second, 23.654, 1e-3);
}

// cos q = 40 / (20 * 2) = 1: the arccosine of exactly 1 is 0 here.
TEST(SubstituteInPolar, FindsALevelAngle) {
    Desk desk = WithLaunch({"0", "0", "50", "20", ""});
    desk.Column(2, {"2", "40"}).Answers({true}).Click(Procedure::SubstituteInPolar, 1);
    EXPECT_EQ(
        desk.Report(),
        (Lines{"Calcular el ángulo de lanzamiento del móvil 1, con los datos:", "t!1 = 2, x!1 = 40",
               ";q!0 = 0°", "Ecuaciones de movimiento, móvil 1", "En t = 0: x = 0, y = 50, v!0 = 20, ;q = 0°",
               "x = 20 t", "y = ;- 4.9 t¡2 + 50", "v!x = 20", "v!y = ;- 9.8 t", "y = ;- 0.012 x¡2 + 50"}));
    EXPECT_EQ(desk.Boxes(), Lines{kOneAngle});
}

struct RelationCase {
    Cells point;
    Lines report;
};
TEST(SubstituteInPolar, StatesTheRelationOfAPointWhenBothAreUnknown) {
    const RelationCase kCases[] = {
        {{"2", "30"}, {"Datos: en t = 2, x = 30", "v!0 cos ;q!0 = 15, v!0!x = 15"}},
        // (60.4 + 4.9 * 4) / 2 = 40.
        {{"2", "", "60.4"}, {"Datos: en t = 2, y = 60.4", "v!0 sen ;q!0 = 40, v!0!y = 40"}},
        {{"", "30", "60.4"}, {"Datos: x = 30, y = 60.4", "30 tan ;q!0 ;- 4410//(v!0¡2 cos¡2 ;q!0) = 60.4"}},
        {{"2", "", "", "", "45"}, {"Datos: en t = 2, ;a = 45°", "tan ;q!0 ;- 19.6//(v!0 cos ;q!0) = 1"}},
        {{"", "-10", "", "", "-45"},
         {"Datos: x = ;-10, ;a = ;-45°", "tan ;q!0 + 98//(v!0¡2 cos¡2 ;q!0) = ;- 1"}},
    };
    for (const RelationCase& each : kCases) {
        Desk desk = WithLaunch({"0", "0", "0"});
        desk.Column(2, each.point).Click(Procedure::SubstituteInPolar, 1);
        EXPECT_EQ(desk.Report(), each.report);
        EXPECT_EQ(desk.Boxes(), Lines{});
    }
}

struct ParameterRefusal {
    Cells launch;
    Cells point;
    const char* text;
    bool components = false;  // of the point
};
constexpr const char* kExactlyTwo =
    "Para aplicar este procedimiento deben ser exactamente 2 datos.\nSi tienes 3 datos descompónlos en dos "
    "parejas "
    "de 2 datos y\nobtén un sistema de 2 ecuaciones con 2 incógnitas.";
const Cells kAt30 = {"0", "0", "0", "", "30"};
const Cells kUpright = {"0", "0", "0", "", "90"};
const Cells kLevel = {"0", "0", "0", "", "0"};
const Cells kWith20 = {"0", "0", "0", "20", ""};
const Cells kBoth = {"0", "0", "0"};
const ParameterRefusal kPolarRefusals[] = {
    {{"0", "0", "0", "20", "30"}, {"1", "2"}, "No tengo las ecuaciones con parámetros V0 y/o Theta."},
    {kAt30, {"1"}, kExactlyTwo},
    {kAt30, {"1", "2", "3"}, kExactlyTwo},
    {kAt30, {"t0+1", "2"}, kExactlyTwo},
    {kAt30, {"1", "", "", "5"}, "Cambia el modo de datos de velocidad a \"md\".", true},
    {kAt30, {"", "", "", "5", "20"}, "Datos incorrectos."},
    // The speed.
    {kAt30, {"1", "", "", "", "30"}, "Estás poniendo el ángulo igual al ángulo de lanzamiento."},
    {kAt30, {"0", "", "", "", "30"}, "Estás poniendo el ángulo igual al ángulo de lanzamiento."},
    {kAt30, {"0", "5"}, "Estás poniendo el tiempo igual al tiempo inicial."},
    {kAt30, {"0", "", "5"}, "Estás poniendo el tiempo igual al tiempo inicial."},
    {kAt30, {"0", "", "", "5"}, "Estás poniendo el tiempo igual al tiempo inicial."},
    {kAt30, {"1", "0"}, "Estás poniendo x igual a la del punto inicial."},
    {kAt30, {"", "0", "5"}, "Estás poniendo x igual a la del punto inicial."},
    {kAt30, {"", "0", "", "", "5"}, "Estás poniendo la coordenada x igual a la del punto inicial."},
    {kAt30, {"", "0", "", "5"}, "Estás poniendo la coordenada x igual a la del punto inicial."},
    {kAt30, {"1", "", "", "", "90"}, "El ángulo alfa no puede ser 90° ni -90°."},
    {kAt30, {"", "5", "", "", "-90"}, "El ángulo alfa no puede ser 90° ni -90°."},
    {kUpright, {"", "", "5", "", "20"}, "El ángulo alfa no puede ser 90° ni -90°."},
    {kUpright, {"1", "5"}, "No hay solución para v0."},
    {kUpright, {"", "5", "5"}, "No hay solución para v0."},
    {kLevel, {"1", "", "5"}, "No hay solución para v0."},
    // Backwards; above the line of the launch; rising more steeply than at the launch.
    {kAt30, {"1", "-5"}, "No hay solución para v0."},
    {kAt30, {"", "5", "5"}, "No hay solución para v0."},
    {kAt30, {"1", "", "", "", "45"}, "No hay solución para v0."},
    {kAt30, {"", "5", "", "", "45"}, "No hay solución."},
    {kAt30, {"", "", "-5", "", "20"}, "No hay solución."},
    // v is never below 9.8 cos 30° D in the fall; 1 after 1 second is too slow.
    {kAt30, {"1", "", "", "1"}, "Error en los datos."},
    {kAt30, {"", "50", "", "1"}, "Error en los datos."},
    {kAt30, {"", "", "-50", "1"}, "Error en los datos."},
    // v0^2 = 25 + 98: the speed 11.09 at 30° rises to 1.57 only, never to 5.
    {kAt30, {"", "", "5", "5"}, "Error en los datos."},
    {kAt30, {"1", "", "", "-9"}, "Error en los datos."},
    // The angle.
    {kWith20, {"0", "5"}, "Estás poniendo el tiempo igual al tiempo inicial."},
    {kWith20, {"", "0", "5"}, "Estás poniendo x igual a la del punto inicial."},
    {kWith20, {"", "0", "", "5"}, "Estás poniendo la coordenada x igual a la del punto inicial."},
    {kWith20, {"1", "", "", "", "90"}, "El ángulo alfa no puede ser 90° ni -90°."},
    {kWith20, {"1", "21"}, "No hay solución."},
    {kWith20, {"1", "", "21"}, "No hay solución."},
    {kWith20, {"", "41", "0"}, "No hay solución."},
    {kWith20, {"5", "", "", "", "30"}, "No hay solución."},
    {kWith20, {"", "30", "", "", "60"}, "No hay solución."},
    // To the right the velocity cannot point to the left.
    {kWith20, {"", "30", "", "", "179"}, "No hay solución."},
    {kWith20, {"", "", "21", "", "30"}, "No hay solución."},
    {kWith20, {"1", "", "", "50"}, "No hay solución."},
    {kWith20, {"1", "", "", "-15"}, "No hay solución."},
    {kWith20, {"", "30", "", "1"}, "No hay solución."},
    {kWith20,
     {"", "", "5", "15"},
     "Juego de datos no válido, en vista de la relación vi^2 - v0^2 = -2g(yi - y0)"},
    // Both.
    {kBoth, {"0", "5"}, "Estás poniendo t igual al tiempo inicial."},
    {kBoth, {"", "0", "5"}, "Estás poniendo x igual a la del punto inicial."},
    {kBoth, {"1", "", "", "", "90"}, "No hay solución posible con estos datos."},
    {kBoth,
     {"", "", "5", "", "20"},
     "La ecuación a la que dan lugar estos datos es\ncomplicada y de poca utilidad."},
    {kBoth,
     {"1", "", "", "5"},
     "La ecuación a la que dan lugar estos datos es\ncomplicada y de poca utilidad."},
};
TEST(SubstituteInPolar, Refuses) {
    for (const ParameterRefusal& each : kPolarRefusals) {
        Desk desk = WithLaunch(each.launch);
        desk.Column(2, each.point);
        if (each.components)
            desk.Components(2);
        desk.Click(Procedure::SubstituteInPolar, 1);
        EXPECT_EQ(desk.Boxes(), Lines{each.text})
            << ::testing::PrintToString(each.launch) << ::testing::PrintToString(each.point);
        EXPECT_EQ(desk.Report(), Lines{});
    }
}

Desk WithComponents(const Cells& cells, int mover = 1) {
    Desk desk(2, 5);
    const int column = mover == 1 ? 1 : 6;
    desk.Column(column, cells).Components(column).Click(Procedure::Plant, 0, mover);
    desk.Report();
    desk.Board();
    EXPECT_EQ(desk.Boxes(), Lines{});
    return desk;
}

// v0y = 15: the height 10 is passed after d = (15 +- sqrt(225 - 196)) / 9.8 = 2.080 and 0.981; X = 20.
TEST(SubstituteInComponents, FindsTheHorizontalComponent) {
    for (const bool first : {true, false}) {
        Desk desk = WithComponents({"0", "0", "0", "", "15"}, 2);
        desk.Column(7, {"", "20", "10"}).Answers({first}).Click(Procedure::SubstituteInComponents, 1, 2);
        const Lines report = desk.Report();
        ASSERT_GE(report.size(), 7u);
        EXPECT_EQ(Lines(report.begin(), report.begin() + 7),
                  (Lines{"Calcular la V!0!x del móvil 2, con los datos:", "X!1 = 20, Y!1 = 10",
                         "V!0!x = 9.615", "V!0 =  17.817 y ;q = 57.341°", "o bien", "V!0!x = 20.385",
                         "V!0 =  25.309 y ;q = 36.347°"}));
        EXPECT_EQ(
            desk.Boxes(),
            (Lines{"¿Deseas replantear las ecuaciones de movimiento con alguno de los dos valores calculados "
                   "de V0x?\nPara escoger el primero oprime el botón \"Sí\". Para el segundo oprime el "
                   "botón \"No\"."}));
        const Equations& planted = desk.TheProblem().EquationsOf(2);
        EXPECT_EQ(planted.launch.mode, SpeedMode::Components);
        EXPECT_NEAR(*planted.launch.first, first ? 9.615 : 20.385, 1e-3);
        EXPECT_EQ(*planted.launch.second, 15);
    }
}

// w = 12, D = 30 / 12 = 2.5: v0y = (20 + 4.9 * 6.25) / 2.5 = 20.25.
TEST(SubstituteInComponents, FindsTheVerticalComponent) {
    Desk desk = WithComponents({"0", "0", "0", "12", ""});
    desk.Column(2, {"", "30", "20"}).Answers({false}).Click(Procedure::SubstituteInComponents, 1);
    EXPECT_EQ(desk.Report(), (Lines{"Calcular la v!0!y del móvil 1, con los datos:", "x!1 = 30, y!1 = 20",
                                    "v!0!y = 20.25", "v!0 =  23.539 y ;q = 59.349°"}));
    EXPECT_EQ(desk.Boxes(),
              (Lines{"¿Deseas replantear las ecuaciones de movimiento con este valor calculado de v0y?"}));
}

// The speed at t = 2 is the horizontal component but for the last digits that are typed: there it flies
// level, and v0y = 9.8 * 2.
TEST(SubstituteInComponents, TakesASpeedBelowTheComponentByRoundingAsEqual) {
    Desk desk = WithComponents({"0", "0", "0", "3000", ""});
    desk.Column(2, {"2", "", "", "2999.999999999"})
        .Answers({true})
        .Click(Procedure::SubstituteInComponents, 1);
    EXPECT_EQ(desk.Report()[2], "v!0!y = 19.6");
    EXPECT_NEAR(*desk.TheProblem().EquationsOf(1).launch.second, 19.6, 1e-9);
}

const Cells kVy15 = {"0", "0", "0", "", "15"};
const Cells kVx12 = {"2", "5", "-3", "12", ""};
const ParameterRefusal kComponentRefusals[] = {
    {{"0", "0", "0", "3", "4"}, {"1", "2"}, "No tengo las ecuaciones con parámetros V0x y/o V0y."},
    {kVy15, {"1"}, "Datos incorrectos."},
    {kVy15, {"1", "2", "3"}, "Datos incorrectos."},
    {kVy15, {"", "", "", "5", "20"}, "Datos incorrectos."},
    {kVy15, {"1", "", "", "5"}, "Cambia el modo de datos de velocidad a \"md\".", true},
    {kVy15, {"0", "5"}, "Estás poniendo el tiempo igual al tiempo inicial."},
    {kVy15,
     {"1", "", "5"},
     "Estos datos no son aplicables en vista de la relación\ny - 0 = 15 (t - 0) - 4.9 (t - 0)^2"},
    // The top is 225 / 19.6 = 11.48, after 15 / 9.8 = 1.531.
    {kVy15, {"", "10", "30"}, "No hay solución para v0x."},
    {kVy15,
     {"1", "", "", "", "0"},
     "El punto de máxima altura ocurre cuando t = 1.531\nLuego, esta pareja de datos no es consistente si el "
     "ángulo es 0."},
    {kVy15,
     {"", "", "5", "", "180"},
     "El punto de máxima altura está en y = 11.48\nLuego, esta pareja de datos no es consistente si el "
     "ángulo es "
     "0."},
    {{"0", "0", "0", "", "9.8"}, {"1", "", "", "", "0"}, "Esta rutina no es aplicable para alfa = 0."},
    {{"0", "0", "0", "", "9.8"}, {"", "", "4.9", "", "0"}, "Esta rutina no es aplicable para alfa = 0."},
    {kVy15, {"1", "", "", "", "90"}, "El ángulo alfa no puede ser 90° ni -90°."},
    // 15^2 < 4 * 9.8 X tan al.
    {kVy15, {"", "10", "", "", "45"}, "No hay solución para v0x."},
    {kVy15, {"", "", "12", "", "45"}, "No hay solución para v0x."},
    {kVy15, {"1", "", "", "5"}, "No hay solución para v0x."},
    {kVy15, {"", "", "5", "10"}, "No hay solución para v0x."},
    // The speed 30 never comes with a height that is not reached.
    {kVy15, {"", "", "30", "30"}, "No hay solución para v0x."},
    {kVy15, {"", "0", "", "30"}, "Estás poniendo la coordenada x igual a la del punto inicial."},
    {kVy15, {"", "10", "", "-30"}, "No hay solución para v0x."},
    // A speed is never negative: its square alone would do, w = sqrt(900 - 5.2^2).
    {kVy15, {"1", "", "", "-30"}, "No hay solución para v0x."},
    {kVx12, {"3", "", "", "-30"}, "No hay solución."},
    {{"0", "0", "0", "0", ""}, {"1", "", "3"}, "v0x no puede ser cero."},
    {kVx12, {"1", "2"}, "Estos datos no son aplicables en vista de la relación\nx - 5 = 12 (t - 2)"},
    {{"-2", "-5", "0", "12", ""},
     {"1", "2"},
     "Estos datos no son aplicables en vista de la relación\nx + 5 = 12 (t + 2)"},
    {kVx12, {"2", "", "4"}, "Estás poniendo el tiempo igual al tiempo inicial."},
    {kVx12, {"", "5", "4"}, "Estás poniendo x igual a la del punto inicial."},
    {kVx12, {"", "5", "", "30"}, "Estás poniendo la coordenada x igual a la del punto inicial."},
    {kVx12, {"", "9", "", "", "90"}, "El ángulo alfa no puede ser 90° ni -90°."},
    // The speed is never below the horizontal component; 12 tan 20° = 4.37 is too little after a fall of 10.
    {kVx12, {"3", "", "", "11"}, "No hay solución."},
    {kVx12, {"", "", "10", "11"}, "No hay solución."},
    {kVx12, {"", "", "-13", "", "20"}, "No hay solución."},
};
TEST(SubstituteInComponents, Refuses) {
    for (const ParameterRefusal& each : kComponentRefusals) {
        Desk desk = WithComponents(each.launch);
        desk.Column(2, each.point);
        if (each.components)
            desk.Components(2);
        desk.Click(Procedure::SubstituteInComponents, 1);
        EXPECT_EQ(desk.Boxes(), Lines{each.text})
            << ::testing::PrintToString(each.launch) << ::testing::PrintToString(each.point);
        EXPECT_EQ(desk.Report(), Lines{});
    }
}

// v0y = 15, X = 30, v = 25: 625 w^2 = w^4 + (15 w - 294)^2, that is w^4 - 400 w^2 - 8820 w + 86436 = 0.
constexpr const char* kAsksLimit =
    "Dar límite superior del intervalo de búsqueda\nResulta una ecuación cuártica para v0x.\nSe buscará una "
    "solución para la velocidad v0x\ncomprendida entre 0 y el valor que especifiques aquí.";
TEST(QuarticSearch, FindsBothComponents) {
    Desk desk = WithComponents(kVy15);
    desk.Column(2, {"", "30", "", "25"})
        .Types("40")
        .Answers({false})
        .Click(Procedure::SubstituteInComponents, 1);
    const Lines boxes = desk.Boxes();
    ASSERT_EQ(boxes.size(), 3u);
    EXPECT_EQ(boxes[0], kAsksLimit);
    EXPECT_EQ(boxes[1],
              "Se insertó el polinomio en la casilla de la calculadora por si deseas buscar otras raíces.");
    EXPECT_TRUE(boxes[2].starts_with(
        "¿Deseas replantear las ecuaciones de movimiento con alguno de los dos valores calculados de v0x?"));
    EXPECT_EQ(desk.Formulas(), (Lines{"X^4-400*X^2-8820*X+86436"}));
    const Lines report = desk.Report();
    ASSERT_GE(report.size(), 9u);
    EXPECT_EQ(report[2], "El problema planteado da lugar a la siguiente ecuación para v!0!x:");
    EXPECT_EQ(report[3], "v!0!x¡4 ;- 400 v!0!x¡2 ;- 8820 v!0!x + 86436 = 0");
    EXPECT_EQ(report[4], "Se hallaron estas raíces:");
    EXPECT_EQ(report[6], "El polinomio en v!0!x vale 0 allí.");
    const double w = *desk.TheProblem().EquationsOf(1).launch.first;
    EXPECT_NEAR(w * w + std::pow(15 - 9.8 * 30 / w, 2), 625, 1e-9);
    EXPECT_GT(w, 20);
}

TEST(QuarticSearch, TellsWhenThereIsNone) {
    Desk desk = WithComponents(kVy15);
    desk.Column(2, {"", "30", "", "25"}).Types("2").Click(Procedure::SubstituteInComponents, 1);
    const Lines boxes = desk.Boxes();
    ASSERT_EQ(boxes.size(), 2u);
    EXPECT_EQ(
        boxes[1],
        "No encontré raíces en el intervalo dado. Si deseas modificar el intervalo de búsqueda, usa la "
        "rutina "
        "\"Calcular raíces\" de la calculadora .\nYa se insertó el polinomio en el cuadro de expresiones.");
    EXPECT_EQ(desk.Formulas(), (Lines{"X^4-400*X^2-8820*X+86436"}));
    EXPECT_EQ(desk.Report(), Lines{});
}

TEST(QuarticSearch, RefusesALimitThatIsNone) {
    for (const auto& [typed, text] : {std::pair{"0", "El límite superior debe ser mayor que 0."},
                                      {"-3", "El límite superior debe ser mayor que 0."},
                                      {"mucho", "Error en la rutina."},
                                      {"1,5", "Error en la rutina."}}) {
        Desk desk = WithComponents(kVy15);
        desk.Column(2, {"", "30", "", "25"}).Types(typed).Click(Procedure::SubstituteInComponents, 1);
        EXPECT_EQ(desk.Boxes(), (Lines{kAsksLimit, text}));
        EXPECT_EQ(desk.Formulas(), Lines{});
    }
}

}  // namespace
}  // namespace tavrelo::mechanics::projectile
