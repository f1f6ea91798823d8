#include "mechanics/projectile/launch.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "mechanics/projectile/launch_lines.h"

namespace tavrelo::mechanics::projectile {
namespace {

using Lines = std::vector<std::string>;
constexpr int kDecimals = 3;

Launch Polar(double t, double x, double y, std::optional<double> speed, std::optional<double> angle) {
    return {SpeedMode::Polar, Start{t, x, y}, speed, angle};
}
Launch Components(double t, double x, double y, std::optional<double> vx, std::optional<double> vy) {
    return {SpeedMode::Components, Start{t, x, y}, vx, vy};
}

Planted Plant(const Launch& launch, int mover = 1, int decimals = kDecimals) {
    return std::get<Planted>(PlantLaunch(mover, launch, decimals));
}
Lines BoardOf(const Planted& planted) {
    Lines lines;
    for (const EquationLine& line : planted.board)
        lines.push_back(ForPicture(line));
    return lines;
}

struct LinesCase {
    const char* name;
    Launch launch;
    LaunchKind kind;
    const char* header;
    Lines board;
    const char* reach;  // null where there is none
};

// vx = v0 cos q, vy = v0 sen q, K = 4.9 / vx^2; expanded: x - vx t0, vy + 9.8 t0, y0 - vy t0 - 4.9 t0^2.
const LinesCase kLines[] = {
    {"complete",
     Polar(0, 0, 10, 20, 30),
     LaunchKind::Complete,
     "En t = 0: x = 0, y = 10, v!0 = 20, ;q = 30°",
     {"x = 17.321 t", "y = ;- 4.9 t¡2 + 10 t + 10", "v!x = 17.321", "v!y = 10 ;- 9.8 t",
      "y = ;- 0.016 x¡2 + 0.577 x + 10"},
     "R =  35.348,   t!v =  2.041,  h = 5.102"},
    {"complete, late",
     Polar(2, 5, 10, 20, 30),
     LaunchKind::Complete,
     "En t = 2: x = 5, y = 10, v!0 = 20, ;q = 30°",
     {"x = 17.321 t ;- 29.641", "y = ;- 4.9 t¡2 + 29.6 t ;- 29.6", "v!x = 17.321", "v!y = 29.6 ;- 9.8 t",
      "y = ;- 0.016 x¡2 + 0.741 x + 6.705"},
     "R =  35.348,   t!v =  2.041,  h = 5.102"},
    {"components",
     Components(0, 0, 10, 12, -5),
     LaunchKind::Complete,
     "En t = 0: x = 0, y = 10, v!0!x = 12, v!0!y = ;-5",
     {"x = 12 t", "y = ;- 4.9 t¡2 ;- 5 t + 10", "v!x = 12", "v!y = ;- 5 ;- 9.8 t",
      "y = ;- 0.034 x¡2 ;- 0.417 x + 10"},
     nullptr},
    {"angle unknown",
     Polar(2, 5, 10, 20, {}),
     LaunchKind::UnknownAngle,
     "En t = 2: x = 5, y = 10, v!0 = 20",
     {"x = 5 + 20 cos ;q (t ;- 2)", "y = 10 + 20 sen ;q (t ;- 2) ;- 4.9 (t ;- 2)¡2", "v!x = 20 cos ;q",
      "v!y = 20 sen ;q ;- 9.8 (t ;- 2)", "y = 10 + tan ;q (x ;- 5) ;- (0.012/cos¡2 ;q) (x ;- 5)¡2"},
     nullptr},
    {"speed unknown",
     Polar(2, 5, 10, {}, 30),
     LaunchKind::UnknownSpeed,
     "En t = 2: x = 5, y = 10, ;q = 30°",
     {"x = 5 + 0.866 v!0 (t ;- 2)", "y = 10 + 0.5 v!0 (t ;- 2) ;- 4.9 (t ;- 2)¡2", "v!x = 0.866 v!0",
      "v!y = 0.5 v!0 ;- 9.8 (t ;- 2)", "y = 10 + 0.577 (x ;- 5) ;- (6.533/v!0¡2) (x ;- 5)¡2"},
     nullptr},
    {"both unknown",
     Polar(2, 5, 10, {}, {}),
     LaunchKind::UnknownSpeedAndAngle,
     "En t = 2: x = 5, y = 10",
     {"x = 5 + v!0 cos ;q (t ;- 2)", "y = 10 + v!0 sen ;q (t ;- 2) ;- 4.9 (t ;- 2)¡2", "v!x = v!0 cos ;q",
      "v!y = v!0 sen ;q ;- 9.8 (t ;- 2)", "y = 10 + tan ;q (x ;- 5) ;- (4.9/v!0¡2 cos¡2 ;q) (x ;- 5)¡2"},
     nullptr},
    {"v0y unknown",
     Components(2, 5, 10, 12, {}),
     LaunchKind::UnknownVy,
     "En t = 2: x = 5, y = 10, v!0!x = 12",
     {"x = 5 + 12 (t ;- 2)", "y = 10 + v!0!y (t ;- 2) ;- 4.9 (t ;- 2)¡2", "v!x = 12",
      "v!y = v!0!y ;- 9.8 (t ;- 2)", "y = 10 + (v!0!y/12) (x ;- 5) ;- 0.034 (x ;- 5)¡2"},
     nullptr},
    {"v0x unknown",
     Components(2, 5, 10, {}, 15),
     LaunchKind::UnknownVx,
     "En t = 2: x = 5, y = 10, v!0!y = 15",
     {"x = 5 + v!0!x (t ;- 2)", "y = 10 + 15 (t ;- 2) ;- 4.9 (t ;- 2)¡2", "v!x = v!0!x",
      "v!y = 15 ;- 9.8 (t ;- 2)", "y = 10 + (15/v!0!x) (x ;- 5) ;- (4.9/v!0!x¡2) (x ;- 5)¡2"},
     nullptr},
    // The top of an upright throw with 10: 10^2 / 19.6, and no range.
    {"upright",
     Polar(0, 3, 0, 10, 90),
     LaunchKind::Complete,
     "En t = 0: x = 3, y = 0, v!0 = 10, ;q = 90°",
     {"x = 3", "y = ;- 4.9 t¡2 + 10 t", "v!x = 0", "v!y = 10 ;- 9.8 t", "La trayectoria es la recta x = 3"},
     "R =  0,   t!v =  2.041,  h = 5.102"},
    {"upright, speed unknown, from the origin at a negative time",
     Polar(-2, 0, 0, {}, -90),
     LaunchKind::UnknownSpeed,
     "En t = ;-2: x = 0, y = 0, ;q = ;-90°",
     {"x = 0", "y = ;- v!0 (t + 2) ;- 4.9 (t + 2)¡2", "v!x = 0", "v!y = ;- v!0 ;- 9.8 (t + 2)",
      "La trayectoria es la recta x = 0"},
     nullptr},
    {"no horizontal component, v0y unknown",
     Components(0, 4, 1, 0, {}),
     LaunchKind::UnknownVy,
     "En t = 0: x = 4, y = 1, v!0!x = 0",
     {"x = 4", "y = 1 + v!0!y t ;- 4.9 t¡2", "v!x = 0", "v!y = v!0!y ;- 9.8 t",
      "La trayectoria es la recta x = 4"},
     nullptr},
    {"to the left, falling",
     Components(0, -4, 0, -2, 0),
     LaunchKind::Complete,
     "En t = 0: x = ;-4, y = 0, v!0!x = ;-2, v!0!y = 0",
     // K = 4.9/4 = 1.225; 2 K x0 = -9.8; K x0^2 = 19.6.
     {"x = ;- 2 t ;- 4", "y = ;- 4.9 t¡2", "v!x = ;- 2", "v!y = ;- 9.8 t",
      "y = ;- 1.225 x¡2 ;- 9.8 x ;- 19.6"},
     nullptr},
};

TEST(Launch, EveryKindHasItsLines) {
    for (const LinesCase& each : kLines) {
        SCOPED_TRACE(each.name);
        const Planted planted = Plant(each.launch);
        EXPECT_EQ(planted.equations.kind, each.kind);
        EXPECT_EQ(BoardOf(planted), each.board);
        ASSERT_GE(planted.report.size(), 7u);
        EXPECT_EQ(planted.report[0], "Ecuaciones de movimiento, móvil 1");
        EXPECT_EQ(planted.report[1], each.header);
        EXPECT_EQ(planted.report.size(), each.reach ? 8u : 7u);
        if (each.reach) {
            EXPECT_EQ(planted.report.back(), each.reach);
        }
    }
}

TEST(Launch, TheReportDoublesTheSlashesThatThePictureShows) {
    const Planted planted = Plant(Polar(2, 5, 10, 20, {}));
    EXPECT_EQ(planted.report[6], "y = 10 + tan ;q (x ;- 5) ;- (0.012//cos¡2 ;q) (x ;- 5)¡2");
}

TEST(Launch, MoverTwoHasCapitals) {
    const Planted planted = Plant(Polar(2, 5, 10, {}, {}), 2);
    EXPECT_EQ(planted.report[0], "Ecuaciones de movimiento, móvil 2");
    EXPECT_EQ(planted.report[1], "En t = 2: X = 5, Y = 10");
    EXPECT_EQ(BoardOf(planted),
              (Lines{"X = 5 + V!0 cos ;q (t ;- 2)", "Y = 10 + V!0 sen ;q (t ;- 2) ;- 4.9 (t ;- 2)¡2",
                     "V!x = V!0 cos ;q", "V!y = V!0 sen ;q ;- 9.8 (t ;- 2)",
                     "Y = 10 + tan ;q (X ;- 5) ;- (4.9/V!0¡2 cos¡2 ;q) (X ;- 5)¡2"}));
}

// 4.9 / (300 cos 40°)^2 = 0.00009278, which three decimals would lose; 4.9 / 30000^2 = 5.444E-09, six too.
TEST(Launch, AFlatParabolaNeverReadsAsAStraightLine) {
    EXPECT_EQ(BoardOf(Plant(Polar(0, 0, 0, 300, 40)))[4], "y = ;- 9.3E-05 x¡2 + 0.839 x");
    EXPECT_EQ(BoardOf(Plant(Components(0, 0, 0, 30000, 0)))[4], "y = ;- 5.44E-09 x¡2");
}

// The components are kept to six places, what is made of them is not rounded again: 25 at 30° has the range
// 2 * 21.650635 * 12.5 / 9.8 = 55.231.
TEST(Launch, KeepsSixPlacesAtTheLeast) {
    const Flight flight = Plant(Polar(0, 0, 0, 25, 30), 1, 1).equations.flight;
    EXPECT_EQ(flight.launch.x, 21.650635);
    EXPECT_EQ(flight.launch.y, 12.5);
    ASSERT_TRUE(flight.trajectory);
    EXPECT_NEAR(flight.trajectory->a, -4.9 / (21.650635 * 21.650635), 1e-15);
    EXPECT_NEAR(-flight.trajectory->b / flight.trajectory->a, 55.2312, 1e-4);
    EXPECT_EQ(Plant(Polar(0, 0, 0, 25, 30), 1, 8).equations.flight.launch.x, 21.65063509);
}

struct RefusalCase {
    Launch launch;
    const char* text;
};
const RefusalCase kRefusals[] = {
    {{SpeedMode::Polar, {}, 20, 30}, "Debes dar el tiempo t0 y la posición inicial (x0, y0)"},
    {{SpeedMode::Polar, {}, 0, 30}, "Debes dar el tiempo t0 y la posición inicial (x0, y0)"},
    {{SpeedMode::Components, {}, {}, {}}, "Debes dar el tiempo t0 y la posición inicial (x0, y0)"},
    {Polar(0, 0, 0, 0, {}), "La velocidad inicial no puede ser cero."},
    {Polar(0, 0, 0, 0, 30), "La velocidad inicial no puede ser cero."},
    {Polar(0, 0, 0, -5, 30), "Magnitud no válida (cero o negativa) para la velocidad de lanzamiento."},
    {Polar(0, 0, 0, -5, {}), "Magnitud no válida (cero o negativa) para la velocidad de lanzamiento."},
    {Components(0, 0, 0, {}, {}),
     "Trabaja con las ecuaciones en términos de la velocidad inicial y el ángulo de lanzamiento."},
};
TEST(Launch, RefusesWhatIsNoLaunch) {
    for (const RefusalCase& each : kRefusals) {
        const auto planted = PlantLaunch(1, each.launch, kDecimals);
        ASSERT_TRUE(std::holds_alternative<text::Refusal>(planted)) << each.text;
        EXPECT_EQ(std::get<text::Refusal>(planted).text, each.text);
    }
}

// 3-4-5: thrown with (3, 4) from (1, 2) at t = 1; after 4/4.9 it is as high again.
TEST(Flight, ComesBackToItsHeightOnTheOtherSide) {
    const State start = {1, 1, 2, {3, 4}};
    const State other = OtherSide(start);
    EXPECT_NEAR(other.t, 1 + 8 / 9.8, 1e-12);
    EXPECT_NEAR(other.x, 1 + 24 / 9.8, 1e-12);
    EXPECT_NEAR(other.y, 2, 1e-12);
    EXPECT_EQ(other.velocity, (Velocity{3, -4}));
    EXPECT_NEAR(OtherSide(other).t, start.t, 1e-12);
}

TEST(ShownCoefficient, KeepsDigitsOfWhatWouldVanish) {
    EXPECT_EQ(ShownCoefficient(0.01633, 3), 0.016);
    EXPECT_EQ(ShownCoefficient(-0.000234, 3), -0.000234);
    EXPECT_EQ(ShownCoefficient(1.23456e-9, 3), 1.23e-9);
    EXPECT_EQ(ShownCoefficient(1.23456e-9, 10), 1.2e-9);
    EXPECT_EQ(ShownCoefficient(0, 3), 0);
}

}  // namespace
}  // namespace tavrelo::mechanics::projectile
