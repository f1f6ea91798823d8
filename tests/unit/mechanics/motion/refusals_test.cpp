// Every refusal of the procedures on a point, with data that call for it; none changes the problem.
#include <gtest/gtest.h>

#include "motion_problem.h"

namespace tavrelo::mechanics::motion {
namespace {

using namespace testing;

struct RefusedClick {
    const char* text;
    Column base;
    const char* a;
    Column start;  // point 1
    Column given;  // point 3, clicked
};

void ExpectRefused(Procedure procedure, const std::vector<RefusedClick>& cases) {
    for (const RefusedClick& each : cases) {
        SCOPED_TRACE(std::string(each.text) + " | " + each.given.t + " | " + each.given.x + " | " +
                     each.given.v);
        Problem problem = PlantedOnOrigin(each.base, each.a);
        Fill(problem, 1, 1, each.start);
        Fill(problem, 1, 3, each.given);
        const Problem before = problem;
        const Step step = ClickPoint(problem, procedure, {1, 1, 3}, kDecimals);
        EXPECT_EQ(RefusalOf(step), each.text);
        EXPECT_EQ(problem, before);
    }
}

TEST(Refusals, OfAReference) {
    const Column base = {"0", "0", "0"};
    for (const Procedure procedure :
         {Procedure::Plant, Procedure::Substitute, Procedure::SubstituteWithParameters, Procedure::Graph,
          Procedure::Distance, Procedure::Link})
        ExpectRefused(procedure,
                      {{"Error en el dato t3+5-2", base, "2", {}, {"t3+5-2", "", ""}},
                       {"Error en el dato 2*x2/3", base, "2", {}, {"", "2*x2/3", ""}},
                       {"Error en el dato v2+3*2", base, "2", {}, {"", "", "v2+3*2"}},
                       {"Los puntos 5 y 3 no están ordenados.", base, "2", {}, {"t5+3", "", ""}},
                       {"Los puntos 4 y 3 no están ordenados.", base, "2", {}, {"1", "1", "-v4"}}});
    Problem problem = Divided(1, {3, 6});
    Fill(problem, 1, 3, {"t1+2", "", ""});
    EXPECT_EQ(RefusalOf(ClickPoint(problem, Procedure::Substitute, {1, 2, 3}, kDecimals)),
              "Los puntos 1 y 3 no pertenecen al mismo tramo.");
}

TEST(Refusals, OfMissingEquations) {
    const Problem problem = Divided(3, {7, 3, 5});
    const std::vector<std::pair<Procedure, const char*>> texts = {
        {Procedure::Substitute, "No tengo las ecuaciones sin parámetros del móvil 2, tramo 1"},
        {Procedure::SubstituteWithParameters, "No tengo las ecuaciones con parámetros del móvil 2, tramo1"}};
    for (const auto& [procedure, text] : texts)
        EXPECT_EQ(RefusalOf(ClickPoint(problem, procedure, {2, 1, 1}, kDecimals)), text);
    ExpectRefused(Procedure::Substitute, {{"No tengo las ecuaciones sin parámetros del móvil 1, tramo 1",
                                           {"0", "0", ""},
                                           "2",
                                           {},
                                           {"1", "", ""}}});
    ExpectRefused(Procedure::SubstituteWithParameters,
                  {{"No tengo las ecuaciones con parámetros del móvil 1, tramo1",
                    {"0", "0", "1"},
                    "2",
                    {},
                    {"1", "1", ""}}});
}

TEST(Refusals, OfSubstitution) {
    const Column rest = {"0", "0", "0"};
    const Column moving = {"0", "1", "3"};
    const char* no_solution = "No hay solución.";
    const char* factor_one = "El factor \"C\" no puede ser igual a 1. Correspondería a dt = 0 ó dx = 0.";
    const char* same_instant = "No podemos tener tf = ti. Correspondería a dx = 0 y dv = 0.";
    const char* uniform = "Datos no aplicables al movimiento uniforme.";
    const char* no_acceleration = "Esta rutina no se aplica cuando la aceleración es cero.";
    const char* cannot_change = "La velocidad no puede cambiar en el movimiento uniforme.";
    const char* known_start = "El punto inicial del intervalo debe ser completamente desconocido.";
    ExpectRefused(Procedure::Substitute,
                  {{"Dato no aplicable al movimiento uniforme.", moving, "0", {}, {"", "", "3"}},
                   {"El móvil no alcanza esta posición.", {"0", "0", "20"}, "-9.8", {}, {"", "25", ""}},
                   {"El móvil no alcanza esta posición.", rest, "0", {}, {"", "25", ""}},
                   {"La aceleración ya está dada.", moving, "2", {}, {"t1+2", "", "v1+3"}},
                   {"La aceleración ya está dada.", moving, "2", {}, {"t1+2", "x1+1", "v1+3"}},
                   {no_acceleration, moving, "0", {}, {"t1+2", "x1+1", ""}},
                   {no_acceleration, moving, "0", {}, {"", "x1+1", "v1+2"}},
                   {"Estás poniendo dt = 0.", moving, "2", {}, {"t1+0", "x1+1", ""}},
                   {"Estás poniendo dt = 0.", moving, "2", {}, {"t1", "x1+1", ""}},
                   {"Estás poniendo dv = 0.", moving, "2", {}, {"", "x1+1", "v1+0"}},
                   {no_solution, moving, "2", {}, {"t3+2", "x3+1", ""}},
                   {known_start, moving, "2", {}, {"t3+2", "2*x3", ""}},
                   {known_start, moving, "2", {"", "5", ""}, {"t1+2", "3*x1", ""}},
                   {known_start, moving, "2", {"5", "", ""}, {"t1+2", "", "3*v1"}},
                   {known_start, moving, "2", {"", "", "5"}, {"t1+2", "", "0*v1"}},
                   {"El factor \"C\" no puede ser 0.", moving, "2", {}, {"t1+2", "0*x1", ""}},
                   {same_instant, moving, "2", {}, {"t1+0", "2*x1", ""}},
                   {uniform, moving, "0", {}, {"t1+2", "", "2*v1"}},
                   {"La velocidad es constante, igual a la inicial.", moving, "2", {}, {"t1+2", "", "1*v1"}},
                   {factor_one, moving, "2", {}, {"1*t1", "x1+3", ""}},
                   {uniform, moving, "0", {}, {"", "x1+3", "2*v1"}},
                   {factor_one, moving, "2", {}, {"", "x1+3", "1*v1"}},
                   {no_solution, moving, "2", {}, {"", "x1+3", "-v1"}},
                   {no_solution, moving, "2", {}, {"", "x1-3", "2*v1"}},  // vi^2 = -4
                   {cannot_change, moving, "0", {}, {"2*t1", "", "v1+3"}},
                   {uniform, moving, "0", {}, {"2*t1", "", "v1+0"}},
                   {factor_one, moving, "2", {}, {"1*t1", "", "v1+3"}},
                   {cannot_change, moving, "0", {}, {"", "2*x1", "v1+3"}},
                   {uniform, moving, "0", {}, {"", "2*x1", "v1+0"}},
                   {same_instant, moving, "2", {}, {"", "2*x1", "v1+0"}},
                   // t^2 + 5 = x: (t + 1)^2 + 5 = 2 t^2 + 10 has no root; nor has 4 t^2 - t^2 = -3
                   {no_solution, {"0", "5", "0"}, "2", {}, {"t1+1", "2*x1", ""}},
                   {no_solution, rest, "2", {}, {"2*t1", "x1-3", ""}},
                   // v^2 = 4 x - 20: (v + 2)^2 + 20 = 2 v^2 + 40 has no root
                   {no_solution, {"0", "5", "0"}, "2", {}, {"", "2*x1", "v1+2"}}});
}

TEST(Refusals, OfAnUnknownSpeed) {
    const Column base = {"0", "3", ""};
    const Column late = {"1", "3", ""};
    const char* known = "No aplicable dado que se conoce la aceleración.";
    const char* same_times = "Los tiempos inicial y final son iguales";
    const char* factor_one = "No puedes tomar C = 1 en este procedimiento.";
    const char* none = "No hay solución para v0";
    const char* no_speed = "No hay solución para la velocidad.";
    const char* uniform = "Caso especial no aplicable al movimiento uniforme.";
    const char* unit_factor = "El factor C no puede ser +1 ni -1 en este caso.";
    const char* only_at_zero = "Sólo manejo este caso cuando t0 = 0.";
    ExpectRefused(
        Procedure::SubstituteWithParameters,
        {{"Estás sustituyendo el tiempo del punto base.", base, "2", {}, {"0", "7", ""}},
         {no_speed, base, "2", {}, {"", "15", "2"}},  // 4 - 48 < 0
         {no_speed, base, "0", {}, {"", "15", "0"}},  // at rest it never leaves 3
         {no_speed, base, "2", {}, {"", "", ""}},
         {no_speed, base, "2", {}, {"t1+2", "x1+2", ""}},
         {no_speed, base, "2", {"", "", ""}, {"3", "x1+5", ""}},  // no time at the start
         {no_speed, base, "2", {}, {"t3+2", "24", ""}},
         {same_times, base, "2", {"3", "", ""}, {"3", "x1+5", ""}},
         {same_times, base, "2", {"3", "", ""}, {"3", "2*x1", ""}},
         {same_times, base, "2", {"3", "", ""}, {"3", "", "2*v1"}},
         {"El intervalo considerado tiene duración cero.", base, "2", {"", "8", ""}, {"t1+0", "24", ""}},
         {none, base, "2", {"", "28", ""}, {"t1+2", "24", ""}},  // vi = -4, 16 - 100 < 0
         {known, base, "2", {"", "8", ""}, {"", "24", "v1+4"}},
         {known, base, "2", {"1", "", ""}, {"2", "", "v1+4"}},
         {known, base, "2", {}, {"t1+2", "", "v1+4"}},
         // t3 = 3 t1: 3 = 0.5 a 3 t1^2 has no root with a = -2, nor with a = 0
         {"No existe solución para  v0", base, "-2", {"1", "", ""}, {"3", "3*x1", ""}},
         {"No existe solución para  v0", base, "0", {"1", "", ""}, {"3", "3*x1", ""}},
         {"No existe solución para  v0", {"0", "0", ""}, "2", {"1", "", ""}, {"3", "3*x1", ""}},
         {"No existe solución para  v0", base, "2", {"1", "", ""}, {"3", "", "1*v1"}},
         {factor_one, base, "2", {"", "8", ""}, {"1*t1", "15", ""}},
         {factor_one, base, "2", {"", "8", ""}, {"", "15", "1*v1"}},
         {"El factor \"C\" no puede ser 0.", base, "2", {"", "8", ""}, {"0*t1", "15", ""}},
         {only_at_zero, late, "2", {"", "8", ""}, {"2*t1", "15", ""}},
         {none, base, "2", {"", "8", ""}, {"2*t1", "5", ""}},   // u^2 = 2 (2 - 10)/4 < 0
         {none, base, "0", {"", "8", ""}, {"2*t1", "15", ""}},  // uniform from x = 3: 12 is not twice 5
         {none, base, "2", {"", "8", ""}, {"", "7", "2*v1"}},   // 4 (4 - 20)/3 < 0
         {none, base, "2", {"", "8", ""}, {"", "15", "-v1"}},   // opposite speeds only at one place
         {uniform, base, "0", {"", "", "6"}, {"2*t1", "", "8"}},
         {uniform, base, "0", {"", "", "6"}, {"", "2*x1", "8"}},
         {unit_factor, base, "2", {"", "", "6"}, {"-t1", "", "8"}},
         {unit_factor, base, "2", {"", "", "6"}, {"1*t1", "", "8"}},
         {unit_factor, base, "2", {"", "", "6"}, {"", "1*x1", "8"}},
         {none, base, "-2", {"", "", "4"}, {"", "3*x1", "6"}}});  // -12 + (36 - 48)/(-2) = -6
}

TEST(Refusals, OfAnUnknownAcceleration) {
    const Column base = {"0", "5", "10"};
    const Column rest = {"0", "5", "0"};
    const char* factor_one = "No puedes tomar C = 1 en este procedimiento.";
    const char* same_times = "Estás igualando los tiempos inicial y final.";
    const char* none = "No hay solución para la aceleración.";
    const char* no_set = "No existe solución para la aceleración.";
    const char* inconsistent = "No existe solución. Datos inconsistentes.";
    const char* uniform = "Ninguna de estas subrutinas es aplicable al movimiento uniforme.";
    const char* base_time = "Estás sustituyendo el tiempo del punto base.";
    const std::string only_if = "Existe solución solamente si\n";
    const std::string arbitrary = "\nen cuyo caso la aceleración es arbitraria.";
    const std::string dx = only_if + "x3 - x1 = v0*(t3 - t1)" + arbitrary;
    const std::string times_x = only_if + "x0*(1 - C) = v0*(C*(t1 - t0) - (t3 - t0))" + arbitrary;
    const std::string times_v = only_if + "v0*(C - 1) = 0" + arbitrary;
    const std::string speeds_t = only_if + "v3 - v0 = C*(v1 - v0)" + arbitrary;
    const std::string speeds_x = only_if + "v3*v3 - v0*v0 = C*(v1*v1 - v0*v0)" + arbitrary;
    const std::string positions_t = only_if + "x3 - x0 = C*C*(x1 - x0)" + arbitrary;
    ExpectRefused(
        Procedure::SubstituteWithParameters,
        {{base_time, base, "", {}, {"0", "7", ""}},
         {base_time, base, "", {}, {"0", "", "7"}},
         {"Estás sustituyendo la posición del punto base.", base, "", {}, {"", "5", "12"}},
         {none, base, "", {}, {"", "9", "-10"}},  // equal squares: uniform, yet the other way
         {same_times, base, "", {"3", "", ""}, {"3", "x1+5", ""}},
         {same_times, base, "", {"3", "", ""}, {"3", "2*x1", ""}},
         {same_times, base, "", {"3", "", ""}, {"3", "", "2*v1"}},
         {"Estás poniendo el desplazamiento \"dx\" igual a cero.",
          base,
          "",
          {"1", "", ""},
          {"3", "x1+0", ""}},
         {"No existe valor de aceleración\nque cumpla las condiciones dadas.",
          base,
          "",
          {"-3", "", ""},
          {"3", "x1+5", ""}},
         {dx.c_str(), base, "", {"-3", "", ""}, {"3", "x1+60", ""}},
         {"Estás poniendo igual a cero la duración \"dt\" del intervalo.",
          base,
          "",
          {"", "30", ""},
          {"t1+0", "60", ""}},
         {none, rest, "", {"", "4", ""}, {"t1+2", "6", ""}},  // a^2 - 0 a + 1 = 0
         {uniform, base, "", {"", "30", ""}, {"", "60", "v1+0"}},
         {none, rest, "", {"", "4", ""}, {"", "6", "v1+2"}},  // a^2 + 1 = 0
         {no_set, base, "", {"1", "", ""}, {"3", "", "v1+5"}},
         {no_set, base, "", {}, {"t1+3", "", "v1+5"}},
         {no_set, base, "", {}, {"", "", ""}},
         {no_set, base, "", {}, {"3", "x1+5", ""}},
         // Df^2 = 4 Di^2 with C = 4: 5*3 + 10 (4*1 - 2) = 35; and with v = 0
         {inconsistent, base, "", {"1", "", ""}, {"2", "4*x1", ""}},
         {times_x.c_str(), {"0", "0", "0"}, "", {"1", "", ""}, {"2", "4*x1", ""}},
         {inconsistent, base, "", {"1", "", ""}, {"2", "", "2*v1"}},
         {times_v.c_str(), rest, "", {"1", "", ""}, {"2", "", "2*v1"}},
         {factor_one, base, "", {"", "30", ""}, {"1*t1", "60", ""}},
         {"El factor \"C\" no puede ser 0.", base, "", {"", "30", ""}, {"0*t1", "60", ""}},
         {"Sólo manejo este caso cuando t0 = 0.", {"1", "5", "10"}, "", {"", "30", ""}, {"2*t1", "60", ""}},
         {inconsistent, rest, "", {"", "6", ""}, {"2*t1", "8", ""}},
         {positions_t.c_str(), rest, "", {"", "6", ""}, {"2*t1", "9", ""}},
         {inconsistent, base, "", {"", "6", ""}, {"2*t1", "9", ""}},  // u = 0, yet x1 is not x0
         {factor_one, base, "", {"", "30", ""}, {"", "60", "1*v1"}},
         {inconsistent, base, "", {"", "6", ""}, {"", "9", "2*v1"}},
         {none, base, "", {"", "6", ""}, {"", "9", "-v1"}},
         {factor_one, base, "", {"", "", "6"}, {"1*t1", "", "8"}},
         {factor_one, base, "", {"", "", "6"}, {"", "1*x1", "8"}},
         {uniform, base, "", {"", "", "6"}, {"2*t1", "", "6"}},
         {uniform, base, "", {"", "", "6"}, {"", "2*x1", "6"}},
         {inconsistent, base, "", {"", "", "6"}, {"2*t1", "", "8"}},
         {speeds_t.c_str(), base, "", {"", "", "12"}, {"2*t1", "", "14"}},  // 14 - 10 = 2 (12 - 10)
         {inconsistent, {"0", "0", "10"}, "", {"", "", "6"}, {"", "2*x1", "8"}},
         // 100 - 4 = 8 (16 - 4)
         {speeds_x.c_str(), {"0", "0", "2"}, "", {"", "", "4"}, {"", "8*x1", "10"}}});
}

TEST(Refusals, OfBothUnknown) {
    const Column base = {"0", "3", ""};
    const char* base_data = "Estás sustituyendo datos del punto base.";
    const char* same_times = "Estás poniendo iguales los tiempos inicial y final.";
    const char* no_duration = "Estás poniendo dt = 0.";
    const char* factor_one = "No puedes tomar C = 1 en esta subrutina.";
    const char* none = "No existe solución.";
    ExpectRefused(
        Procedure::SubstituteWithParameters,
        {{base_data, base, "", {}, {"0", "7", ""}},
         {base_data, base, "", {}, {"0", "", "7"}},
         {base_data, base, "", {}, {"", "3", "7"}},
         {base_data, base, "", {}, {"0", "7", "7"}},
         {same_times, base, "", {"3", "", ""}, {"3", "x1+5", ""}},
         {same_times, base, "", {"3", "", ""}, {"3", "", "v1+5"}},
         {same_times, base, "", {"3", "", ""}, {"3", "2*x1", ""}},
         {same_times, base, "", {"3", "", ""}, {"3", "", "2*v1"}},
         {"Estás poniendo el desplazamiento igual a cero.", base, "", {"1", "", ""}, {"3", "x1+0", ""}},
         {no_duration, base, "", {"", "8", ""}, {"t1+0", "24", ""}},
         {no_duration, base, "", {}, {"t1+0", "", "v1+4"}},
         {factor_one, base, "", {"", "8", ""}, {"1*t1", "24", ""}},
         {factor_one, base, "", {"", "8", ""}, {"", "24", "1*v1"}},
         {factor_one, base, "", {"", "", "8"}, {"1*t1", "", "24"}},
         {factor_one, base, "", {"", "", "8"}, {"", "1*x1", "24"}},
         {"El factor \"C\" no puede ser 0.", base, "", {"", "8", ""}, {"0*t1", "24", ""}},
         {"Sólo manejo este caso cuando t0 = 0.", {"1", "3", ""}, "", {"", "8", ""}, {"2*t1", "24", ""}},
         {none, base, "", {"", "8", ""}, {"", "24", "-v1"}},
         {none, {"0", "0", ""}, "", {"", "", "4"}, {"", "2*x1", "8"}},  // -v^2 = 64 - 32
         {none, base, "", {}, {"", "", ""}},
         {none, base, "", {}, {"", "", "v1+3"}}});
}

}  // namespace
}  // namespace tavrelo::mechanics::motion
