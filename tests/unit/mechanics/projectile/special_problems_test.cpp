// The procedures of the list, worked out by hand.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "desk.h"
#include "numeric/checked.h"

namespace tavrelo::mechanics::projectile {
namespace {

using testing::Desk;
using Lines = std::vector<std::string>;
using Cells = std::vector<std::string>;

constexpr const char* kPlantIt = "¿Deseas plantear las ecuaciones con la solución obtenida?";

/// A desk with both movers planted; an empty launch leaves the mover without equations.
Desk WithMovers(const Cells& first, const Cells& second) {
    Desk desk(2, 5);
    desk.Column(1, first).Column(6, second);
    if (!first.empty())
        desk.Click(Procedure::Plant, 0, 1);
    if (!second.empty())
        desk.Click(Procedure::Plant, 0, 2);
    EXPECT_EQ(desk.Boxes(), Lines{});
    desk.Report();
    desk.Board();
    return desk;
}

// What is typed.

struct TypedCase {
    Special special;
    const char* typed;
    const char* text;
};
TEST(RunSpecial, RefusesWhatIsNoListOfItsNumbers) {
    const TypedCase kCases[] = {
        {Special::MixedPair, "1,2,3,4,5", "Número de coeficientes incorrecto."},
        {Special::MixedPair, "1,2,3,4,5,6,7", "Número de coeficientes incorrecto."},
        {Special::MixedPair, "1,2,a,4,5,6", "Hay algún coeficiente no numérico."},
        {Special::WithVertical, "", "Número de coeficientes incorrecto."},
        {Special::Incline, "1, 0", "Número de coeficientes incorrecto."},
        {Special::MixedPair, "1,2,3,4,5,1E400", "Hay algún coeficiente no numérico."},
        {Special::RangeRatio, "1", "Número de coeficientes incorrecto."},
        {Special::ThreePoints, "1, 0, 1", "Número de coeficientes incorrecto."},
    };
    for (const TypedCase& each : kCases)
        EXPECT_EQ(Desk().Run(each.special, each.typed).Boxes(), Lines{each.text}) << each.typed;
}

TEST(RunSpecial, FailsOnDataThatAreNotUnderstood) {
    const std::pair<Special, const char*> kCases[] = {
        {Special::ThreePoints, "1.5, 0, 1, 2"},
        {Special::ThreePoints, "2, 0, 1, 2"},
        {Special::ThreePoints, "1, 0, 1, 9"},
        {Special::FlightTimeAndRange, "3, 1, 1"},
        {Special::Interception, "u"},
        {Special::Interception, "w = 3"},
        {Special::Interception, "u = 3, u = 4"},
        {Special::Interception, "u = 1E400"},
        {Special::Collision, "u = 3"},
        {Special::Collision, "tc = x"},
        {Special::Collision, "3"},
    };
    for (const auto& [special, typed] : kCases) {
        Desk desk(2, 5);
        desk.Column(1, {"0", "0", "0", "20"}).Column(6, {"0", "", "0"});
        EXPECT_ANY_THROW(desk.Run(special, typed)) << typed;
    }
}

// Pairs of equations. The launch v0 = 20 at 45°: t = 1, c^2 = 200, c = 14.142.

struct PairCase {
    Special special;
    const char* typed;
    Lines report;
    const char* box;
};
TEST(TanSystems, AreSolved) {
    const PairCase kCases[] = {
        // x = 10 and x = 20: A = x, B = -4.9 x^2, C = x - 4.9 x^2 / 200 = 7.55 and 10.2.
        {Special::SquaredPair,
         "10, -490, 7.55, 20, -1960, 10.2",
         {"Solución del sistema:", "v!0 = 20", ";q!0 = 45°"},
         nullptr},
        {Special::SquaredPair, "1, 1, 1, 1, -1, 3", {}, "No hay solución."},
        {Special::SquaredPair, "1, 2, 3, 2, 4, 7", {}, "Falló la rutina."},
        {Special::SquaredPair, "0, 0, 3, 2, 4, 7", {}, "Falló la rutina."},
        // t + 14 w = 2 and t - 14 w = 0 give t = 1 and 1/c = 1/14: v0 = 14 sqrt 2. With the signs of w turned
        // over
        // the component is -14: the same speed in the opposite direction.
        {Special::PlainPair,
         "1, 14, 2, 1, -14, 0",
         {"Solución del sistema:", "v!0 = 19.799", ";q!0 = 45°"},
         nullptr},
        {Special::PlainPair,
         "1, -14, 2, 1, 14, 0",
         {"Solución del sistema:", "v!0 = 19.799", ";q!0 = ;-135°"},
         nullptr},
        {Special::PlainPair, "1, 1, 1, 2, 1, 2", {}, "No hay solución."},
        {Special::PlainPair, "1, 1, 1, 2, 2, 2", {}, "Falló la rutina."},
        // c = 10 and t = (6 - 400/100)/2 = 1; c = -10 likewise.
        {Special::WithHorizontal,
         "2, 400, 6, 10",
         {"Solución del sistema:", "v!0 = 14.142, ;q = 45°"},
         nullptr},
        {Special::WithHorizontal,
         "2, 400, 6, -10",
         {"Solución del sistema:", "v!0 = 14.142, ;q = ;-135°"},
         nullptr},
        {Special::WithHorizontal, "0, 400, 6, 10", {}, "Datos no válidos."},
        {Special::WithHorizontal, "2, 400, 6, 0", {}, "Datos no válidos."},
        // 1/c = t/10: -2 t^2 + 3 t - 1 = 0, t = 1 and 1/2: c = 10 and 20.
        {Special::WithVertical,
         "3, -200, 1, 10",
         {"Solución del sistema:", "v!0 = 14.142, ;q!0 = 45°", "o bien", "v!0 = 22.361, ;q!0 = 26.565°"},
         nullptr},
        // Thrown downward: v0 sin q = -10 with t = -1, c = 10.
        {Special::WithVertical,
         "3, 0, -3, -10",
         {"Solución del sistema:", "v!0 = 14.142, ;q!0 = ;-45°"},
         nullptr},
        {Special::WithVertical, "3, 0, 0, 10", {}, "No hay solución."},
        {Special::WithVertical, "1, 100, -1, 10", {}, "No hay solución."},
        {Special::WithVertical, "0, 1, 1, 10", {}, "Datos no válidos."},
        {Special::WithVertical, "1, 1, 1, 0", {}, "Datos no válidos."},
        // t + 200/c^2 = 3, 2 t - 10/c = 1: 1/c = (2 t - 1)/10, 8 t^2 - 7 t - 1 = 0, t = 1 (c = 10) and t =
        // -1/8
        // (c = -8: v0 = 8 / cos 7.125°, turned over).
        {Special::MixedPair,
         "1, 200, 3, 2, -10, 1",
         {"Solución del sistema:", "v!0 = 14.142, ;q!0 = 45°", "o bien", "v!0 = 8.062, ;q!0 = 172.875°"},
         nullptr},
        {Special::MixedPair, "15, -1102.5, 60, 1, -9.8, 0.1", {}, "No hay solución."},
        {Special::MixedPair, "1, 2, 3, 4, 0, 6", {}, "Datos no válidos."},
        // D = 0: the second equation alone gives 1/c = 1/10, the first t = 3 - 200/100.
        {Special::MixedPair,
         "1, 200, 3, 0, 10, 1",
         {"Solución del sistema:", "v!0 = 14.142, ;q!0 = 45°"},
         nullptr},
        // F - D t = 0 leaves no component: t = 1 from the first, and 1 - 1 = 0.
        {Special::MixedPair, "1, 0, 1, 1, 10, 1", {}, "No hay solución."},
    };
    for (const PairCase& each : kCases) {
        Desk desk;
        desk.Run(each.special, each.typed);
        EXPECT_EQ(desk.Report(), each.report) << each.typed;
        EXPECT_EQ(desk.Boxes(), each.box ? Lines{each.box} : Lines{}) << each.typed;
    }
}

// Launches that fit the whole flight.

// y = x - x^2/20 passes (0, 0), (5, 3.75) and (15, 3.75): tan q = 1, 4.9 / c^2 = 1/20, so c^2 = 98 and v0
// = 14.
TEST(ThreePoints, GiveTheLaunch) {
    Desk desk;
    desk.Column(1, {"1", "0", "0"}).Column(2, {"", "5", "3.75"}).Column(3, {"", "15", "3.75"});
    desk.Answers({true}).Run(Special::ThreePoints, "1, 0, 1, 2");
    const Lines report = desk.Report();
    EXPECT_EQ(report.front(), "v!0 = 14, ;q!0 = 45°");
    EXPECT_EQ(desk.Boxes(), Lines{kPlantIt});
    EXPECT_EQ(report[2], "En t = 1: x = 0, y = 0, v!0 = 14, ;q = 45°");
    // From the last point back to the first: slope 1 - 15/10 = -0.5 seen to the left, c = -9.899.
    desk.Column(3, {"0", "15", "3.75"}).Run(Special::ThreePoints, "1, 2, 1, 0");
    EXPECT_EQ(desk.Report().front(), "v!0 = 11.068, ;q!0 = 153.435°");
}

TEST(ThreePoints, RefuseWhatIsNoThrow) {
    Desk desk;
    desk.Column(1, {"0", "0", "0"}).Column(2, {"", "5", "-3"}).Column(3, {"", "10", "0"});
    EXPECT_EQ(desk.Run(Special::ThreePoints, "1, 0, 1, 2").Boxes(), Lines{"No hay solución."});
    desk.Column(2, {"", "5", "0"});
    EXPECT_EQ(desk.Run(Special::ThreePoints, "1, 0, 1, 2").Boxes(), Lines{"No hay solución."});
    desk.Column(2, {"", "10", "7"});
    EXPECT_EQ(desk.Run(Special::ThreePoints, "1, 0, 1, 2").Boxes(), Lines{"No hay solución."});
}

// R = 4 h / tan q: range equal to height means tan q = 4.
TEST(RangeRatio, GivesTheAngle) {
    Desk desk;
    desk.Column(1, {"0", "0", "0", "20"}).Answers({true}).Run(Special::RangeRatio, "1, 1");
    EXPECT_EQ(desk.Report().front(), "v!0 = 20, ;q!0 = 75.964°");
    const Velocity launch = desk.TheProblem().EquationsOf(1).flight.launch;
    EXPECT_NEAR(ReachOf(launch)->range, ReachOf(launch)->height, 1e-5);
    desk.Column(1, {"0", "0", "0"}).Answers({true}).Run(Special::RangeRatio, "1, 4");
    EXPECT_EQ(desk.Report().front(), ";q!0 = 45°");
    EXPECT_EQ(desk.TheProblem().EquationsOf(1).kind, LaunchKind::UnknownSpeed);
    // To the left: the range counts negative, the height does not.
    desk.Run(Special::RangeRatio, "1, -4");
    EXPECT_EQ(desk.Report().front(), ";q!0 = 135°");
    desk.Boxes();
    EXPECT_EQ(desk.Run(Special::RangeRatio, "1, 0").Boxes(), Lines{"Datos no válidos."});
    desk.Column(1, {"0", "0", "0", "-2"});
    EXPECT_EQ(desk.Run(Special::RangeRatio, "1, 2").Boxes(), Lines{"Datos no válidos."});
}

// 2 seconds over 19.6: vy = 9.8, vx = 9.8.
TEST(FlightTimeAndRange, GiveTheLaunch) {
    Desk desk;
    desk.Column(1, {"0", "0", "0"}).Answers({true}).Run(Special::FlightTimeAndRange, "1, 2, 19.6");
    const Lines report = desk.Report();
    EXPECT_EQ(report.front(), "v!0 = 13.859, ;q!0 = 45°");
    EXPECT_EQ(report.back(), "R =  19.6,   t!v =  2,  h = 4.9");
    EXPECT_EQ(desk.Boxes(), Lines{kPlantIt});
    EXPECT_EQ(desk.Run(Special::FlightTimeAndRange, "1, 0, 5").Boxes(), Lines{"Datos no válidos."});
}

// The range on a slope: R = 2 v^2 cos q sin(q - a) / (g cos^2 a). At 60° with 20 on 30°:
// 2*400*0.25/(9.8*0.75) = 27.211; there x = 23.565, y = 13.605, t = x / 10.
TEST(Incline, UpTheSlope) {
    Desk desk;
    desk.Column(1, {"0", "0", "0", "20", "60"}).Click(Procedure::Plant, 0).Report();
    desk.Run(Special::Incline, "1, 0, 30");
    EXPECT_EQ(desk.Report(), (Lines{"Solución 1:", "$r!c = (23.565, 13.605), t!c = 2.357",
                                    "Alcance sobre el plano inclinado: R!1 = 27.211", "Solución 2:",
                                    "$r!c = (0, 0), t!c = 0", "Alcance sobre el plano inclinado: R!2 = 0"}));
}

struct InclineCase {
    const char* typed;
    const char* text;
};
TEST(Incline, Refuses) {
    const InclineCase kCases[] = {
        {"1, 1, 20", "La trayectoria del móvil 1 no interseca la recta."},
        {"2, 1, 20", "La trayectoria del móvil 2 no interseca la recta."},
        {"1, 0, 90", "Resuelve el problema de otra manera."},
        {"1, 0, -90", "Resuelve el problema de otra manera."},
        {"1, 7, 20", "Resuelve el problema de otra manera."},
        {"1, 2, 20", "Resuelve el problema de otra manera."},
        {"3, 0, 20", "Resuelve el problema de otra manera."},
    };
    for (const InclineCase& each : kCases) {
        Desk desk = WithMovers({"0", "0", "0", "20", "45"}, {"0", "0", "0", "20", "60"});
        desk.Column(2, {"", "0", "60"}).Column(7, {"", "0", "90"});
        EXPECT_EQ(desk.Run(Special::Incline, each.typed).Boxes(), Lines{each.text}) << each.typed;
    }
    for (const Cells& launch : {Cells{}, Cells{"0", "0", "0", "20", "90"}, Cells{"0", "0", "0", "20", ""}}) {
        Desk desk = WithMovers(launch, {});
        desk.Column(1, {"0", "0", "0"});
        EXPECT_EQ(desk.Run(Special::Incline, "1, 0, 10").Boxes(),
                  Lines{"Resuelve el problema de otra manera."});
    }
}

// Both at 45° with 14: y = x - x^2/20 from the origin, mirrored from (16, 0); they meet at x = 8, 4.8 high,
// after 8 / 9.8995.
TEST(Crossing, TellsACollision) {
    Desk desk = WithMovers({"0", "0", "0", "14", "45"}, {"0", "16", "0", "14", "135"});
    desk.Run(Special::Crossing);
    EXPECT_EQ(desk.Report(),
              (Lines{"Los móviles chocan en el punto:", "(8, 4.8)", "por donde pasan en t = 0.808"}));
    desk.Column(6, {"1", "16", "0", "14", "135"}).Click(Procedure::Plant, 0, 2).Report();
    desk.Run(Special::Crossing);
    EXPECT_EQ(desk.Report(),
              (Lines{"Punto de intersección 1:", "(8, 4.8)",
                     "Los móviles 1 y 2 pasan respectivamente por allí en t = 0.808 y en t = 1.808"}));
}

// y = x - x^2/20 and a level throw from (0, 2) with 7: 4.9/49 = 1/10: x^2/20 + x - 2 = 0, x = -10 +- sqrt
// 140.
TEST(Crossing, TellsBothPoints) {
    Desk desk = WithMovers({"0", "0", "0", "14", "45"}, {"0", "0", "2", "7", "0"});
    desk.Run(Special::Crossing);
    EXPECT_EQ(desk.Report(),
              (Lines{"Punto de intersección 1:", "(;-21.832, ;-45.664)",
                     "Los móviles 1 y 2 pasan respectivamente por allí en t = ;-2.205 y en t = ;-3.119",
                     "Punto de intersección 2:", "(1.832, 1.664)",
                     "Los móviles 1 y 2 pasan respectivamente por allí en t = 0.185 y en t = 0.262"}));
}

TEST(Crossing, Refuses) {
    const Cells kThrow = {"0", "0", "0", "14", "45"};
    EXPECT_EQ(WithMovers(kThrow, {}).Run(Special::Crossing).Boxes(),
              Lines{"Me falta una de las ecuaciones de trayectoria."});
    EXPECT_EQ(WithMovers(kThrow, {"0", "0", "0", "14", ""}).Run(Special::Crossing).Boxes(),
              Lines{"Me falta una de las ecuaciones de trayectoria."});
    EXPECT_EQ(WithMovers(kThrow, {"0", "5", "0", "14", "90"}).Run(Special::Crossing).Boxes(),
              Lines{"Maneja este caso con otra rutina."});
    for (const Cells& second : {kThrow, Cells{"3", "0", "0", "14", "45"}, Cells{"0", "0", "5", "14", "45"}})
        EXPECT_EQ(WithMovers(kThrow, second).Run(Special::Crossing).Boxes(),
                  Lines{"Las trayectorias no se intersecan."});
    // Level with 14 from (0, 60): x^2/40 - x + 60 = 0 has no root.
    EXPECT_EQ(WithMovers(kThrow, {"0", "0", "60", "14", "0"}).Run(Special::Crossing).Boxes(),
              Lines{"Las trayectorias no se intersecan."});
}

// 25 at 60° and at 120° from different places: equal squares, one crossing halfway, although 25 cos 60° and
// -25 cos 120° differ in their last digit.
TEST(Crossing, TakesSquaresThatDifferByRoundingForEqual) {
    Desk desk = WithMovers({"0", "0", "0", "25", "60"}, {"0", "40", "0", "25", "120"});
    desk.Run(Special::Crossing);
    // y(20) = 20 tan 60° - 4.9 * 400 / 156.25 = 34.641 - 12.544.
    EXPECT_EQ(desk.Report(),
              (Lines{"Los móviles chocan en el punto:", "(20, 22.097)", "por donde pasan en t = 1.6"}));
}

// Two projectiles. Mover 1: (10, 20) from the origin, at t = 1 in (10, 15.1) with vy = 10.2, at t = 2 in
// (20, 20.4).

constexpr const char* kMover1Speed = "22.360679774997896";
constexpr const char* kMover1Angle = "63.43494882292201";
const Cells kFirst = {"0", "0", "0", kMover1Speed, kMover1Angle};

// Mover 2 from (30, 0) at t = 1, to be there at t = 2: vx = -10, vy = 20.4 + 4.9 = 25.3.
TEST(Collision, AtAGivenTime) {
    Desk desk = WithMovers(kFirst, {"1", "30", "0"});
    desk.Answers({true}).Run(Special::Collision, "tc = 2");
    const Lines report = desk.Report();
    EXPECT_EQ(Lines(report.begin(), report.begin() + 6),
              (Lines{"Móvil 2: T!0 = 1, X!0 = 30", "Y!0 = 0, t!c = 2",
                     "Se halló:", "V!0 = 27.205, ;q!2 = 111.567°", "Chocan en:", "x!c = 20, y!c = 20.4"}));
    EXPECT_EQ(desk.Boxes(), Lines{kPlantIt});
    desk.Run(Special::Crossing);
    EXPECT_EQ(desk.Report().front(), "Los móviles chocan en el punto:");
}

// The same mover 2 with its speed known, sqrt(740.09) = 27.204594: seen from mover 1 it starts 20 to the
// right and 15.1 below, (p, q) = (-20, 15.1), (u, w) = (10, 10.2): (204.04 - 740.09) D^2 + 2 (-200 + 154.02)
// D + 628.01 = 0, D = 1 and -1.17. One solution.
TEST(Collision, WithAKnownSpeed) {
    Desk desk = WithMovers(kFirst, {"1", "30", "0", "27.204595200076764"});
    desk.Run(Special::Collision);
    const Lines report = desk.Report();
    EXPECT_EQ(report[1], "Y!0 = 0, t!c = 2");
    EXPECT_EQ(report[3], "V!0 = 27.205, ;q!2 = 111.567°");
    EXPECT_EQ(desk.Boxes(), Lines{kPlantIt});
    EXPECT_EQ(desk.Run(Special::Collision, "tc = 2.0005").Boxes(), Lines{kPlantIt});
    EXPECT_EQ(desk.Run(Special::Collision, "tc = 2.01").Boxes(), Lines{"No existe solución."});
}

// A slow mover 2 that lies ahead of mover 1 can meet it early or late. Mover 1 level with 10 from (0, 0):
// mover 2 at (40, 0), V0 = 8: (p, q) = (-40, 0), (u, w) = (10, 0): 36 D^2 - 800 D + 1600 = 0: D = 2.222 and
// 20; vx = -40/D + 10 = -8 and 8.
TEST(Collision, AsksBetweenTwo) {
    for (const bool first : {true, false}) {
        Desk desk = WithMovers({"0", "0", "0", "10", "0"}, {"0", "40", "0", "8"});
        desk.Answers({first}).Run(Special::Collision);
        EXPECT_EQ(
            desk.Boxes(),
            (Lines{"Los móviles chocan cuando\ntc = 20 o cuando tc = 2.222,\nque corresponden a THETA = 0 y "
                   "THETA = 180\nPara plantear las ecuaciones con el primer ángulo oprime el botón \"Sí\". "
                   "Para con el segundo oprime \"No\"."}));
        EXPECT_EQ(*desk.TheProblem().EquationsOf(2).launch.second, first ? 0 : 180);
        desk.Run(Special::Crossing);
    }
}

// The angle of that launch known: D = (p s - q c)/(w c - u s).
TEST(Collision, WithAKnownAngle) {
    Desk desk = WithMovers(kFirst, {"1", "30", "0", "", "111.56675231571661"});
    desk.Answers({true}).Run(Special::Collision);
    EXPECT_EQ(desk.Report()[3], "V!0 = 27.205, ;q!2 = 111.567°");
    EXPECT_EQ(desk.Boxes(), Lines{kPlantIt});
}

struct CollisionRefusal {
    Cells first;
    Cells second;
    const char* typed;
    const char* text;
};
TEST(Collision, Refuses) {
    const Cells kUnknown = {"1", "30", "0"};
    const CollisionRefusal kCases[] = {
        {{}, kUnknown, "", "No tengo las ecs. de mov. del móvil 1."},
        {{"0", "0", "0", "5"}, kUnknown, "", "No tengo las ecs. de mov. del móvil 1."},
        {{"1", "0", "0", "5", "30"}, {}, "", "En esta rutina el tiempo inicial del primer móvil debe ser 0."},
        {kFirst,
         {"1", "30", "0", "5", "30"},
         "",
         "Las ecs. de mov. del móvil 2 deben tener al menos un parámetro V0 o Theta0."},
        {kFirst, {}, "", "Debes plantear las ecs. de mov. del móvil 2."},
        {kFirst, kUnknown, "tc = 1",
         "El tiempo del choque debe ser mayor que el tiempo inicial del móvil 2."},
        {kFirst, kUnknown, "", "Caso no aplicable."},
        // Too slow to catch up; away from the path; parallel.
        {kFirst, {"0", "-30", "0", "5"}, "", "No existe solución."},
        {kFirst, {"1", "30", "0", "", "0"}, "", "No hay solución."},
        {{"0", "0", "0", "10", "0"}, {"0", "-30", "-5", "", "0"}, "", "No hay solución."},
    };
    for (const CollisionRefusal& each : kCases) {
        Desk desk = WithMovers(each.first, each.second);
        EXPECT_EQ(desk.Run(Special::Collision, each.typed).Boxes(), Lines{each.text});
        EXPECT_EQ(desk.Report(), Lines{});
    }
    Desk desk(2, 5);
    desk.Column(6, {"0", "0", "0", "5"}).Components(6).Click(Procedure::Plant, 0, 2);
    EXPECT_EQ(desk.Run(Special::Collision).Boxes(), Lines{"El modo cs-md del móvil 2 debe ser \"md\"."});
}

// An object on the x axis.

// From (0, 19.6) at t = 0, u = 5, tc = 4: vx = 5, vy = (78.4 - 19.6)/4 = 14.7; they meet at x = 20.
TEST(Interception, OfAKnownObjectAtAKnownTime) {
    Desk desk;
    desk.Column(1, {"0", "0", "19.6"}).Answers({true}).Run(Special::Interception, "u = 5, tc = 4");
    const Lines report = desk.Report();
    EXPECT_EQ(Lines(report.begin(), report.begin() + 4),
              (Lines{"Datos: x!0 = 0, y!0 = 19.6", "t!0 = 0, u = 5, t!c = 4",
                     "Se halló v!0 = 15.527, ;q!0 = 71.215°",
                     "El proyectil encuentra al móvil en el punto x = 20, y = 0"}));
    EXPECT_EQ(desk.Boxes(), Lines{kPlantIt});
    EXPECT_TRUE(desk.TheProblem().EquationsOf(1).IsComplete());
}

// At 45° from (-10, 0): the object at 5 t. c = s: 4.9 D^2 - 5 D - 10 = 0, D = 2.0268 (the other is negative);
// v0 = 4.9 D / s = 14.047.
TEST(Interception, WithAKnownAngle) {
    Desk desk;
    desk.Column(1, {"0", "-10", "0", "", "45"}).Answers({true}).Run(Special::Interception, "u = 5");
    const Lines report = desk.Report();
    EXPECT_EQ(Lines(report.begin(), report.begin() + 4),
              (Lines{"Datos: x!0 = ;-10, y!0 = 0", "t!0 = 0, u = 5", "Solución: Alcance en t!c = 2.027",
                     "con v!0 = 14.047"}));
    EXPECT_EQ(desk.Boxes(), Lines{kPlantIt});
}

// From (0, 0) at t = 0 the object starts too: 24.01 D^2 = v0^2 - u^2 = 13^2 - 5^2 = 144, D = 12/4.9; vx = 5,
// vy = 12. (The other root of the square is 0.)
constexpr const char* kAsksLimit =
    "Dar límite superior del intervalo de búsqueda\nResulta una ecuación cuártica para el tiempo tc-t0\nSe "
    "buscará "
    "una solución para el tiempo tc-t0\nentre tc-t0 = 0 y el valor de tc-t0 que especifiques aquí.";
TEST(Interception, WithAKnownSpeed) {
    Desk desk;
    desk.Column(1, {"0", "0", "0", "13"}).Types("10").Answers({true}).Run(Special::Interception, "u = 5");
    EXPECT_EQ(desk.Boxes(), (Lines{kAsksLimit, kPlantIt}));
    const Lines report = desk.Report();
    EXPECT_EQ(Lines(report.begin(), report.begin() + 4),
              (Lines{"Datos: x!0 = 0, y!0 = 0", "t!0 = 0, u = 5", "Solución: Alcance en t!c = 2.449",
                     "con v!0 = 13, ;q!0 = 67.38°"}));
}

// From (-20, 0) with 20 after an object of 0 at the origin: sin 2q = 9.8 * 20 / 400 = 0.49: two times of
// flight, D = 20 / (20 cos q) for q = 14.67° and 75.33°: 1.034 and 3.949.
TEST(Interception, AsksBetweenTwo) {
    for (const bool first : {true, false}) {
        Desk desk;
        desk.Column(1, {"0", "-20", "0", "20"})
            .Types("10")
            .Answers({first})
            .Run(Special::Interception, "u = 0");
        EXPECT_EQ(desk.Boxes(),
                  (Lines{kAsksLimit,
                         "Para plantear las ecuaciones con la primera solución oprime\nel botón \"Sí\". "
                         "Para con la segunda oprime \"No\"."}));
        const Lines report = desk.Report();
        EXPECT_EQ(Lines(report.begin() + 2, report.begin() + 6),
                  (Lines{"Solución 1: Alcance en t!c = 1.034", "con v!0 = 20, ;q!0 = 14.67°",
                         "Solución 2: Alcance en t!c = 3.949", "con v!0 = 20, ;q!0 = 75.33°"}));
        EXPECT_NEAR(*desk.TheProblem().EquationsOf(1).launch.second, first ? 14.67 : 75.33, 1e-3);
    }
}

// From (0, 0) at 45° after 2: v0 = 4.9 * 2 / s = 13.859, x = 19.6, u = 9.8.
TEST(Interception, OfAnUnknownObjectWithAKnownAngle) {
    Desk desk;
    desk.Column(1, {"0", "0", "0", "", "45"}).Answers({false}).Run(Special::Interception, "tc = 2");
    EXPECT_EQ(desk.Report(), (Lines{"Datos: x!0 = 0, y!0 = 0", "t!0 = 0, t!c = 2", "Solución: u = 9.8",
                                    "El choque es en x = 19.6", "Solución: v!0 = 13.859, ;q = 45°"}));
    EXPECT_EQ(desk.Boxes(),
              (Lines{"Para plantear las ecuaciones de movimiento con el valor calculado de v0 oprime el "
                     "botón \"Aceptar\"."}));
    EXPECT_EQ(desk.TheProblem().EquationsOf(1).kind, LaunchKind::None);
}

// With 19.6 after 2: sin q = 9.8 / 19.6 = 1/2: 30° and 150°, x = +-33.948. With 9.8 the only angle is 90°.
TEST(Interception, OfAnUnknownObjectWithAKnownSpeed) {
    Desk desk;
    desk.Column(1, {"0", "0", "0", "19.6"}).Answers({false}).Run(Special::Interception, "tc = 2");
    const Lines report = desk.Report();
    EXPECT_EQ(Lines(report.begin() + 2, report.begin() + 8),
              (Lines{"Solución 1: u = 16.974", "El choque es en x = 33.948",
                     "Solución 1: v!0 = 19.6, ;q = 30°", "Solución 2: u = ;-16.974",
                     "El choque es en x = ;-33.948", "Solución 2: v!0 = 19.6, ;q = 150°"}));
    EXPECT_EQ(*desk.TheProblem().EquationsOf(1).launch.second, 150);
    Desk upright;
    upright.Column(1, {"0", "0", "0", "9.8"}).Run(Special::Interception, "tc = 2");
    EXPECT_EQ(upright.Boxes(),
              (Lines{"Para plantear las ecuaciones de movimiento con el valor calculado del ángulo "
                     "oprime el botón \"Aceptar\"."}));
}

// What is planted counts before what stands in the table.
TEST(Interception, TakesThePlantedLaunch) {
    Desk desk;
    desk.Column(1, {"0", "0", "0", "", "45"}).Click(Procedure::Plant, 0).Report();
    desk.Column(1, {}).Run(Special::Interception, "tc = 2");
    EXPECT_EQ(desk.Report()[2], "Solución: u = 9.8");
}

struct InterceptionRefusal {
    Cells cells;
    const char* typed;
    const char* limit;
    const char* text;
};
TEST(Interception, Refuses) {
    const InterceptionRefusal kCases[] = {
        {{"0", "0", "0", "13", "45"},
         "u = 5",
         "",
         "v0 o theta o ambas deben ser incógnitas en este procedimiento."},
        {{"0", "0", "", "13"}, "u = 5", "", "Debes dar el tiempo t0 y la posición inicial (x0, y0)"},
        {{"0", "0", "0"}, "u = 5", "", "Caso no aplicable."},
        {{"0", "0", "0"}, "tc = 5", "", "Caso no aplicable."},
        {{"0", "0", "0", "13"}, "", "", "Caso no aplicable."},
        {{"0", "0", "0", "13"}, "u = 5, tc = 3", "", "Caso no aplicable."},
        {{"2", "0", "0"}, "u = 5, tc = 2", "", "No hay solución."},
        {{"-2", "0", "0", "13"}, "tc = 0", "", "No hay solución."},
        {{"0", "0", "0", "1"}, "tc = 5", "", "No hay solución."},
        {{"0", "0", "0", "", "-45"}, "tc = 5", "", "No hay solución."},
        {{"0", "0", "0", "", "0"}, "tc = 5", "", "No hay solución."},
        {{"0", "0", "0", "", "135"}, "u = 5", "", "No hay solución."},
        {{"0", "0", "0", "-3"}, "tc = 5", "", "No hay solución."},
        {{"0", "-20", "0", "5"}, "u = 0", "10", "No hay solución."},
        {{"0", "-20", "0", "20"}, "u = 0", "1", "No hay solución."},
        {{"0", "-20", "0", "20"}, "u = 0", "0", "El límite superior debe ser mayor que t0."},
        {{"3", "-20", "0", "20"}, "u = 0", "2", "El límite superior debe ser mayor que t0."},
        {{"-3", "-20", "0", "20"}, "u = 0", "-1", "El límite superior debe ser mayor que t0."},
    };
    for (const InterceptionRefusal& each : kCases) {
        Desk desk;
        desk.Column(1, each.cells).Types(each.limit).Run(Special::Interception, each.typed);
        EXPECT_EQ(desk.Boxes().back(), each.text) << each.typed;
        EXPECT_EQ(desk.Report(), Lines{});
    }
    Desk complete;
    complete.Column(1, {"0", "0", "0", "13", "45"}).Click(Procedure::Plant, 0);
    complete.Column(1, {"0", "0", "0", "13"});
    EXPECT_EQ(complete.Run(Special::Interception, "u = 5").Boxes(),
              Lines{"v0 o theta o ambas deben ser incógnitas en este procedimiento."});
    Desk components;
    components.Column(1, {"0", "0", "0", "13"}).Components(1);
    EXPECT_EQ(components.Run(Special::Interception, "u = 5").Boxes(),
              Lines{"Cambia el modo de datos de velocidad a \"md\"."});
}

// 11 across and 29.3 up fall to -63.8 in 9.5. With F(w) = (w sqrt(121 + w^2) + 121 arsinh(w/11))/19.6,
// F(29.3) = (916.996 + 206.468)/19.6 = 57.320 and F(63.8) = (4130.497 + 297.461)/19.6 = 225.916: 283.236 in
// all. The first coarse sums agree at 283.232 by chance.
TEST(PathLength, DoesNotEndAtACoincidence) {
    Desk desk;
    desk.Column(1, {"1.5", "9.73139439106269", "3.5", "11", "-5"}).Components(1).Click(Procedure::Plant, 0);
    desk.Column(2, {"-2"}).Column(3, {"7.5"}).Report();
    EXPECT_EQ(desk.Interval({1, 1}, {1, 2}, false).Report().back(), "283.236");
}

/// Both fly level, at heights of 10 and 0, under one gravity: they never meet, with any speed.
TEST(Collision, NeverComesOfParallelWays) {
    Desk desk = WithMovers({"0", "0", "10", "10", "0"}, {"0", "-20", "0", "", "0"});
    EXPECT_EQ(desk.Run(Special::Collision).Boxes(), Lines{"No hay solución."});
    EXPECT_EQ(desk.Report(), Lines{});
}

/// The first one moves from (-10, -5) with (1, 0): the only place in which both lie on the line at 45 degrees
/// is reached after 5, at (-5, -5) but for the fall, behind the second one's back.
TEST(Collision, NeverComesBehindTheBack) {
    Desk desk = WithMovers({"0", "-10", "-5", "1", "0"}, {"0", "0", "0", "", "45"});
    EXPECT_EQ(desk.Run(Special::Collision).Boxes(), Lines{"No hay solución."});
    EXPECT_EQ(desk.Report(), Lines{});
}

/// Dropped at rest from 19.6 it takes 2, and the object passes below it then, 10 from its start: no launch is
/// needed.
TEST(Interception, NeedsALaunch) {
    Desk desk;
    desk.Column(1, {"0", "10", "19.6"}).Run(Special::Interception, "u = 5, tc = 2");
    EXPECT_EQ(desk.Boxes(), Lines{"No hay solución."});
    EXPECT_EQ(desk.Report(), Lines{});
}
}  // namespace
}  // namespace tavrelo::mechanics::projectile
