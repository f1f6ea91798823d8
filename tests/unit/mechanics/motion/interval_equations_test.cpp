// One interval of uniformly accelerated motion: problems worked out by hand, every refusal by its name, and
// motions taken at random whose data are hidden and found again.

#include "mechanics/motion/interval_equations.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "../../failure_code.h"

namespace tavrelo::mechanics::motion {
namespace {

using notation::IntervalData;
using notation::IntervalDatum;
using notation::kIntervalData;
using numeric::FailureCode;
using testing::FailureOf;

constexpr int kDecimals = 3;

struct Report {
    const char* line;
    const char* data;
    const char* results;
};

void ExpectReport(const Report& row) {
    SCOPED_TRACE(row.line);
    const auto answer = ApplyIntervalEquations(row.line, kDecimals);
    const auto* lines = std::get_if<std::vector<std::string>>(&answer);
    ASSERT_NE(lines, nullptr) << std::get<text::Refusal>(answer).text;
    EXPECT_EQ(*lines, (std::vector<std::string>{"Sust. en las ecs. de intervalo:",
                                                std::string("Datos: ") + row.data, row.results}));
}

TEST(IntervalEquations, EverySetReportsItsUnknownsInItsOrder) {
    for (const Report& row : {
             // 11 = 6 vi + 54, so vi = -43/6; vf = vi + 18.
             Report{"a = 3, xi = 12, xf = 23, dt = 6", "a = 3, ;Dt = 6, x!i = 12, x!f = 23",
                    "v!i = -7.167, v!f = 10.833"},
             // From 4 to 10 in 3: a = 2, mean speed 7.
             {"ti = 1, tf = 4, vi = 4, vf = 10", "t!i = 1, t!f = 4, v!i = 4, v!f = 10", "a = 2, ;Dx = 21"},
             {"vi = 4, vf = 10, dt = 3", ";Dt = 3, v!i = 4, v!f = 10", "a = 2, ;Dx = 21"},
             {"vi = 4, vf = 10, a = 2", "a = 2, v!i = 4, v!f = 10", ";Dt = 3, ;Dx = 21"},
             {"vi = 4, vf = 10, dx = 21", ";Dx = 21, v!i = 4, v!f = 10", "a = 2, ;Dt = 3"},
             {"vi = 4, vf = 10, xi = -1, xf = 20", "x!i = -1, x!f = 20, v!i = 4, v!f = 10", "a = 2, ;Dt = 3"},
             {"ti = 1, tf = 4, dx = 21, a = 2", "a = 2, t!i = 1, t!f = 4, ;Dx = 21", "v!i = 4, v!f = 10"},
             {"ti = 1, tf = 4, dx = 21, vi = 4", "t!i = 1, t!f = 4, ;Dx = 21, v!i = 4", "a = 2, v!f = 10"},
             {"ti = 1, tf = 4, dx = 21, vf = 10", "t!i = 1, t!f = 4, ;Dx = 21, v!f = 10", "a = 2, v!i = 4"},
             {"dt = 3, dx = 21, a = 2", "a = 2, ;Dt = 3, ;Dx = 21", "v!i = 4, v!f = 10"},
             {"dt = 3, dx = 21, vi = 4", ";Dt = 3, ;Dx = 21, v!i = 4", "a = 2, v!f = 10"},
             {"dt = 3, xi = 0, xf = 21, vf = 10", ";Dt = 3, x!i = 0, x!f = 21, v!f = 10", "a = 2, v!i = 4"},
             {"dx = 21, a = 2, vf = 10", "a = 2, ;Dx = 21, v!f = 10", "v!i = 4, ;Dt = 3"},
             {"xi = 2, xf = 23, a = 2, vf = 10", "a = 2, x!i = 2, x!f = 23, v!f = 10", "v!i = 4, ;Dt = 3"},
             {"dx = 21, a = 2, vi = 4", "a = 2, ;Dx = 21, v!i = 4", "v!f = 10, ;Dt = 3"},
             {"xi = 2, xf = 23, a = 2, vi = 4", "a = 2, x!i = 2, x!f = 23, v!i = 4", "v!f = 10, ;Dt = 3"},
             {"dt = 3, a = 2, vi = 4", "a = 2, ;Dt = 3, v!i = 4", "v!f = 10, ;Dx = 21"},
             {"ti = 2, tf = 5, a = 2, vf = 10", "a = 2, t!i = 2, t!f = 5, v!f = 10", "v!i = 4, ;Dx = 21"},
             {"dt = 3, vi = 4, dv = 6", ";Dt = 3, v!i = 4, ;Dv = 6", "v!f = 10, a = 2, ;Dx = 21"},
             {"dt = 3, vf = 10, dv = 6", ";Dt = 3, v!f = 10, ;Dv = 6", "v!i = 4, a = 2, ;Dx = 21"},
             {"a = 2, vi = 4, dv = 6", "a = 2, v!i = 4, ;Dv = 6", "v!f = 10, ;Dt = 3, ;Dx = 21"},
             {"a = 2, vf = 10, dv = 6", "a = 2, v!f = 10, ;Dv = 6", "v!i = 4, ;Dt = 3, ;Dx = 21"},
             {"dx = 21, vi = 4, dv = 6", ";Dx = 21, v!i = 4, ;Dv = 6", "v!f = 10, a = 2, ;Dt = 3"},
             {"dx = 21, vf = 10, dv = 6", ";Dx = 21, v!f = 10, ;Dv = 6", "v!i = 4, a = 2, ;Dt = 3"},
             {"dt = 3, dx = 21, dv = 6", ";Dt = 3, ;Dx = 21, ;Dv = 6", "v!i = 4, v!f = 10, a = 2"},
             {"a = 2, dx = 21, dv = 6", "a = 2, ;Dx = 21, ;Dv = 6", "v!i = 4, v!f = 10, ;Dt = 3"},
         })
        ExpectReport(row);
}

TEST(IntervalEquations, ALoneEndPlacesTheIntervalAndBringsTheOtherEnd) {
    for (const Report& row : {
             Report{"dt = 3, a = 2, vi = 4, ti = 1", "a = 2, t!i = 1, ;Dt = 3, v!i = 4",
                    "t!f = 4, v!f = 10, ;Dx = 21"},
             {"dt = 3, a = 2, vi = 4, xf = 100", "a = 2, ;Dt = 3, x!f = 100, v!i = 4",
              "x!i = 79, v!f = 10, ;Dx = 21"},
             {"dx = 21, a = 2, vi = 4, xi = 5", "a = 2, x!i = 5, ;Dx = 21, v!i = 4",
              "x!f = 26, v!f = 10, ;Dt = 3"},
             {"dx = 21, vi = 4, vf = 10, tf = 8", "t!f = 8, ;Dx = 21, v!i = 4, v!f = 10",
              "t!i = 5, a = 2, ;Dt = 3"},
             // Between two given speeds and with the acceleration, only duration and distance.
             {"vi = 4, vf = 10, a = 2, xi = 5", "a = 2, x!i = 5, v!i = 4, v!f = 10", ";Dt = 3, ;Dx = 21"},
             // A uniform motion has equal speeds and a distance.
             {"dx = 21, vi = 7, vf = 7, ti = 1", "t!i = 1, ;Dx = 21, v!i = 7, v!f = 7",
              "t!f = 4, a = 0, ;Dt = 3"},
         })
        ExpectReport(row);
}

TEST(IntervalEquations, TheSignOfASpeedThatComesFromItsSquare) {
    for (const Report& row : {
             // A car brakes from 20 to a stop over 40.
             Report{"a = -5, dx = 40, vi = 20", "a = -5, ;Dx = 40, v!i = 20", "v!f = 0, ;Dt = 4"},
             // From rest downwards and upwards.
             {"a = -9.8, dx = -4.9, vi = 0", "a = -9.8, ;Dx = -4.9, v!i = 0", "v!f = -9.8, ;Dt = 1"},
             {"a = 9.8, dx = 4.9, vi = 0", "a = 9.8, ;Dx = 4.9, v!i = 0", "v!f = 9.8, ;Dt = 1"},
             // To rest: the speed before is against the acceleration.
             {"a = -9.8, dx = 4.9, vf = 0", "a = -9.8, ;Dx = 4.9, v!f = 0", "v!i = 9.8, ;Dt = 1"},
             // Thrown up with 10 and 15 below: of the speeds 20 and -20 that of the first sign, in the past:
             // (20 - 10)/(-10) = -1.
             {"a = -10, dx = -15, vi = 10", "a = -10, ;Dx = -15, v!i = 10", "v!f = 20, ;Dt = -1"},
             // Uniform: 12 at 4.
             {"a = 0, dx = 12, vi = 4", "a = 0, ;Dx = 12, v!i = 4", "v!f = 4, ;Dt = 3"},
             {"a = 0, dx = 12, vf = 4", "a = 0, ;Dx = 12, v!f = 4", "v!i = 4, ;Dt = 3"},
             {"a = 0, xi = 0, xf = -12, vi = -4", "a = 0, x!i = 0, x!f = -12, v!i = -4", "v!f = -4, ;Dt = 3"},
             // The top of a throw, where rounding alone would make the square negative: 1.4^2 = 2 * 9.8 *
             // 0.1.
             {"a = -9.8, dx = 0.1, vi = 1.4", "a = -9.8, ;Dx = 0.1, v!i = 1.4", "v!f = 0, ;Dt = 0.143"},
         })
        ExpectReport(row);
}

TEST(IntervalEquations, ALineIsReadWithBlanksRepeatedNamesAndUnknownOnes) {
    ExpectReport({"  a=2 ,vi =4,  dt= 3", "a = 2, ;Dt = 3, v!i = 4", "v!f = 10, ;Dx = 21"});
    ExpectReport({"a = 9, a = 2, vi = 4, dt = 3", "a = 2, ;Dt = 3, v!i = 4", "v!f = 10, ;Dx = 21"});
    ExpectReport({"a = 2, vi = 4, dt = 3, y = 8", "a = 2, ;Dt = 3, v!i = 4", "v!f = 10, ;Dx = 21"});
    ExpectReport({"a = 2, vi = 4, dt = 3, nada", "a = 2, ;Dt = 3, v!i = 4", "v!f = 10, ;Dx = 21"});
    // What is shown is rounded, what is computed is not: 3 vi = 10 - 0.0004 * 4.5.
    ExpectReport({"a = 0.0004, dx = 10, dt = 3", "a = 0, ;Dt = 3, ;Dx = 10", "v!i = 3.333, v!f = 3.334"});
}

TEST(IntervalEquations, EveryRefusalByItsName) {
    struct Row {
        const char* line;
        const char* refusal;
    };
    for (const Row& row : {
             Row{"", "El número de datos debe ser 3 ó 4."},
             {"a = 3, vi = 2", "El número de datos debe ser 3 ó 4."},
             {"a = 3, vi = 2, dt = 1, xi = 0, xf = 9", "El número de datos debe ser 3 ó 4."},
             {"ti = 2, tf = 2, vi = 1, vf = 3", "ti no debe ser igual a tf."},
             {"ti = 2, tf = 2, dx = 5, a = 3", "ti no debe ser igual a tf."},
             {"ti = 2, tf = 2, dx = 5, vi = 3", "ti no debe ser igual a tf."},
             {"ti = 4, tf = 4, dx = 5, vf = 3", "ti no debe ser igual a tf."},
             {"vi = 2, vf = 5, a = 0", "Valor 0 de la aceleración no permitido."},
             {"vi = 2, vf = 5, a = 0, xi = 3", "Valor 0 de la aceleración no permitido."},
             {"vi = 2, vf = 5, dt = 0", "Valor 0 de dt no permitido."},
             {"dx = 2, a = 5, dt = 0", "Valor 0 de dt no permitido."},
             {"xi = 2, xf = 5, a = 1, dt = 0", "Valor 0 de dt no permitido."},
             {"xi = 2, xf = 5, vi = 1, dt = 0", "Valor 0 de dt no permitido."},
             {"dx = 2, vf = 1, dt = 0", "Valor 0 de dt no permitido."},
             {"dx = 0, vi = 2, vf = 5", "Valor 0 de dx no permitido."},
             {"dx = 0, vi = 2, vf = 2", "Valor 0 de dx no permitido."},
             {"vi = 1, vf = 1, dx = 5", "Si vi = vf entonces dx = 0."},
             {"xi = 3, xf = 3, vi = 2, vf = 5", "Si xi = xf entonces vi = -vf. Datos insuficientes."},
             {"xi = 3, xf = 8, vi = -5, vf = 5", "Si vi = -vf entonces xi = xf. Datos insuficientes."},
             {"xi = 3, xf = 8, vf = 5, a = 0", "No puede ser a = 0 ni xi = xf."},
             {"xi = 3, xf = 3, vf = 5, a = 2", "No puede ser a = 0 ni xi = xf."},
             {"xi = 0, xf = 100, vf = 5, a = 2", "No hay solución para vi"},
             {"dx = 100, vf = 5, a = 2", "No hay solución para vi."},
             {"xi = 0, xf = 100, vi = 10, a = -5", "No hay solución para vf."},
             {"dx = 100, vi = 10, a = -5", "No hay solución para vf."},
             {"dx = 100, vi = 10, a = -5, ti = 0", "No hay solución para vi o dt"},
             {"dx = 100, vf = 5, a = 2, xi = 0", "No hay solución para vi o dt"},
             {"dt = 0, a = 2, vi = 4", "Valor 0 no permitido"},
             {"ti = 3, tf = 3, a = 2, vf = 4", "Valor 0 no permitido"},
             {"dt = 0, vi = 2, vf = 5, ti = 1", "Valor 0 no permitido"},
             {"dx = 0, vi = 2, vf = 5, ti = 1", "Valor 0 no permitido"},
             {"dx = 7, vi = -5, vf = 5, xi = 1", "Valor 0 no permitido"},
             {"dx = 7, vi = 0, a = 0, xi = 1", "Valor 0 no permitido"},
             {"dx = 7, vf = 0, a = 0, ti = 1", "Valor 0 no permitido"},
             {"dt = 0, vi = 4, dv = 6", "Valor 0 no permitido"},
             {"a = 0, vi = 4, dv = 6", "Valor 0 no permitido"},
             {"dx = 0, vi = 4, dv = 6", "Valor 0 no permitido"},
             {"dx = 9, vi = -3, dv = 6", "Valor 0 no permitido"},
             {"dt = 0, dx = 21, dv = 6", "Valor 0 no permitido"},
             {"a = 0, dx = 21, dv = 6", "Valor 0 no permitido"},
             {"a = 2, dx = 21, dv = 0", "Valor 0 no permitido"},
             {"ti = 1, tf = 2, dt = 1", "Datos de más, de menos, o inconsistentes"},
             {"ti = 1, tf = 2, dt = 1, a = 3", "Datos de más, de menos, o inconsistentes"},
             {"vi = 1, vf = 2, dv = 1", "Datos de más, de menos, o inconsistentes"},
             {"a = 2, dt = 3, dv = 6", "Datos de más, de menos, o inconsistentes"},
             {"a = 2, dt = 3, vi = 4, vf = 10", "Datos de más, de menos, o inconsistentes"},
             {"ti = 1, tf = 2, xi = 1, xf = 3", "Datos de más, de menos, o inconsistentes"},
             {"a = 1, vi = 2, ti = 0, xi = 0", "Datos de más, de menos, o inconsistentes"},
             {"a = 2, vi = 4, y = 3", "Datos de más, de menos, o inconsistentes"},
             {"a = 2, vi = 4, t = 3", "Datos de más, de menos, o inconsistentes"},
             {"a 2, vi = 4, dt = 3", "Datos de más, de menos, o inconsistentes"},
         }) {
        SCOPED_TRACE(row.line);
        const auto answer = ApplyIntervalEquations(row.line, kDecimals);
        const auto* refusal = std::get_if<text::Refusal>(&answer);
        ASSERT_NE(refusal, nullptr);
        EXPECT_EQ(refusal->text, row.refusal);
    }
}

// A typed line never has so many; whoever fills the data in by program may.
TEST(IntervalEquations, EndsInBothGroupsAreTooMuch) {
    IntervalData data;
    data[IntervalDatum::ti] = 1;
    data[IntervalDatum::tf] = 4;
    data[IntervalDatum::xi] = 0;
    data[IntervalDatum::xf] = 21;
    data[IntervalDatum::a] = 2;
    EXPECT_EQ(std::get<text::Refusal>(SolveInterval(data)).text, kInconsistentInterval);
}

TEST(IntervalEquations, WhatNoRefusalNamesFails) {
    const auto failure_of = [](const char* line) {
        return FailureOf([line] { (void)ApplyIntervalEquations(line, kDecimals); });
    };
    EXPECT_EQ(failure_of("a = , vi = 4, dt = 3"), FailureCode::TypeMismatch);
    EXPECT_EQ(failure_of("a = g, vi = 4, dt = 3"), FailureCode::TypeMismatch);
    EXPECT_EQ(failure_of("a = 2 = 3, vi = 4, dt = 3"), FailureCode::TypeMismatch);
    EXPECT_EQ(failure_of("vi = -5, vf = 5, dx = 3"), FailureCode::DivisionByZero);
    EXPECT_EQ(failure_of("a = 0, vi = 0, dx = 3"), FailureCode::DivisionByZero);
    EXPECT_EQ(failure_of("a = 1E300, vi = 1E300, dt = 1E300"), FailureCode::Overflow);
}

// ---- Motions at random.

constexpr std::array kAllData = {IntervalDatum::a,  IntervalDatum::ti, IntervalDatum::tf, IntervalDatum::dt,
                                 IntervalDatum::xi, IntervalDatum::xf, IntervalDatum::dx, IntervalDatum::vi,
                                 IntervalDatum::vf, IntervalDatum::dv};

std::array<double, kIntervalData> MotionOf(double a, double ti, double dt, double xi, double vi) {
    const double dx = vi * dt + a * dt * dt / 2;
    return {a, ti, ti + dt, dt, xi, xi + dx, dx, vi, vi + a * dt, a * dt};
}

IntervalData Hide(const std::array<double, kIntervalData>& motion, unsigned given) {
    IntervalData data;
    for (const IntervalDatum datum : kAllData)
        if ((given >> static_cast<unsigned>(datum) & 1U) != 0)
            data[datum] = motion[static_cast<std::size_t>(datum)];
    return data;
}

template <typename Action>
void ForEachChoice(Action action) {
    for (unsigned given = 0; given < 1U << kIntervalData; ++given)
        if (std::popcount(given) == 3 || std::popcount(given) == 4)
            action(given);
}

// A mover that keeps its direction, so that the sign of each speed is that of the other.
std::array<double, kIntervalData> RandomMotion(std::mt19937& random) {
    std::uniform_real_distribution<double> size(0.5, 30);
    std::uniform_real_distribution<double> place(-100, 100);
    const double sign = random() % 2 == 0 ? 1 : -1;
    const double vi = sign * size(random), dt = size(random);
    double vf = sign * size(random);
    if (std::abs(vf - vi) < 0.1)
        vf += sign;
    return MotionOf((vf - vi) / dt, place(random), dt, place(random), vi);
}

TEST(IntervalEquations, EverySolvableChoiceOfDataRecoversTheMotionAndEveryOtherIsRefused) {
    std::mt19937 random(7);
    constexpr int kMotions = 40;
    int solvable_of_three = 0, solvable_of_four = 0;
    ForEachChoice([&](unsigned given) {
        bool solved = false;
        for (int k = 0; k < kMotions; ++k) {
            const auto motion = RandomMotion(random);
            const auto answer = SolveInterval(Hide(motion, given));
            if (const auto* refusal = std::get_if<text::Refusal>(&answer)) {
                ASSERT_EQ(refusal->text, kInconsistentInterval) << given;
                ASSERT_FALSE(solved);
                continue;
            }
            solved = true;
            for (const IntervalResult& result : std::get<IntervalResults>(answer)) {
                const auto index = static_cast<std::size_t>(result.datum);
                EXPECT_EQ(given >> index & 1U, 0U) << "a datum is reported as found";
                EXPECT_NEAR(result.value, motion[index], 1e-7 * (1 + std::abs(motion[index])))
                    << given << " " << index;
            }
        }
        (std::popcount(given) == 3 ? solvable_of_three : solvable_of_four) += solved ? 1 : 0;
    });
    EXPECT_EQ(solvable_of_three, 18);
    EXPECT_EQ(solvable_of_four, 91);
}

}  // namespace
}  // namespace tavrelo::mechanics::motion
