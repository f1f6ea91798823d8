#include "tools/motion/procedures.h"

#include <array>

#include "numeric/checked.h"

namespace tavrelo::tools::motion {
namespace {

using Lines = std::string_view[];

constexpr Lines kPlantNeeds = {
    "Clic en el rótulo coloreado del punto base \"n\". t!n y x!n deben conocerse.",
    "Puede darse uno, ambos o ninguno de los datos v!n y \"a\".",
};
constexpr Lines kSubstituteNeeds = {
    "{t!i},  {x!i},  {v!i},  {;Dt, ;Dx},  {;Dx, ;Dv}, {;Dt, C[x!i]}",
    "{;Dt, C[v!i]}, {;Dx, C[t!i]}, {;Dx, C[v!i]}, {;Dv, C[t!i]}, {;Dv, C[x!i]}",
};
constexpr Lines kParameterNeeds = {
    "{t!i, x!i},  {t!i, v!i},  {x!i, v!i},  {t!i, t!f, ;Dx},  {x!i, x!f, ;Dt}, {x!i, x!f, ;Dv}",
    "{t!i, t!f, C[x!i] ó C[v!i]}, {x!i, x!f, C[t!i] ó C[v!i]},  {v!i, v!f, C[t!i] ó C[x!i]}.",
};
constexpr Lines kGraphNeeds = {
    "Clic en el punto inicial, clic en el punto final",
    "del intervalo [t!i, t!f] a graficar.",
};
constexpr Lines kDistanceNeeds = {
    "Clic en los puntos inicial y final del intervalo [t!i, t!f] considerado",
};
constexpr Lines kThreePointsNeeds = {
    "Tabla: t!i, x!i, t!j, x!j, t!k, x!k   Casilla: Móv, Seg, i, j, k",
};
constexpr Lines kIntervalNeeds = {
    "3 ó 4 datos del conjunto {a, t!i , t!f , x!i , x!f , v!i , v!f , ;Dt, ;Dx, ;Dv}",
    "Ejemplo en la casilla: \"a = 3, xi = 12, xf = 23, dt = 6\".",
};
constexpr Lines kPositionNeeds = {"Se conocen x(t) y X(t). Dato en la casilla: C"};
constexpr Lines kSpeedNeeds = {"Se conocen v(t) y V(t). Dato en la casilla: C"};
constexpr Lines kBothRatiosNeeds = {
    "Punto 0 del móvil 2 y casilla A: 3 de {A, t!0, X!0, V!0}.",
    "(Casilla) datos en el orden: p, q",
};
constexpr Lines kLinkNeeds = {
    "Tabla: t!a, x!a, v!a, y 4 de {a!1, a!2, t!c, x!c, v!c}. Clic en \"a\" y \"c\".",
};
constexpr std::string_view kSystemOrder = "(Casilla) datos en el orden:";
constexpr std::string_view kSixCoefficients = "a!1!1, a!1!2, b!1, a!2!1, a!2!2, b!2";
constexpr std::string_view kSevenCoefficients = "a!1!1, a!1!2, a!1!3, b!1, a!2!1, a!2!2, b!2";
constexpr std::string_view kSecondLinear = "a!2!1 v!0 + a!2!2 a = b!2";
constexpr std::string_view kFirstBothSquared = "a!1!1 v!0¡2 + a!1!2 a¡2 + a!1!3 a = b!1";
constexpr Lines kLinearNeeds = {"a!1!1 v!0 + a!1!2 a = b!1", kSecondLinear, kSystemOrder, kSixCoefficients};
constexpr Lines kSpeedSquaredNeeds = {"a!1!1 v!0¡2 + a!1!2 a = b!1", kSecondLinear, kSystemOrder,
                                      kSixCoefficients};
constexpr Lines kBothSquaredNeeds = {kFirstBothSquared, kSecondLinear, kSystemOrder, kSevenCoefficients};
constexpr Lines kBothSquaredTwiceNeeds = {kFirstBothSquared, "a!2!1 v!0¡2 + a!2!2 a = b!2", kSystemOrder,
                                          kSevenCoefficients};
constexpr Lines kQuadraticNeeds = {"(Casilla) Coeficientes A, B, C de la ecuación Ax¡2 + Bx + C = 0"};

constexpr ProcedureEntry kRows[] = {
    {Procedure::Plant, "Plantear las ecuaciones de movimiento", kPlantNeeds, "EQN"},
    {Procedure::Substitute, "Sustituir datos en las ecuaciones sin parámetros", kSubstituteNeeds, "SUS"},
    {Procedure::SubstituteWithParameters, "Sustituir datos en las ecuaciones con parámetros", kParameterNeeds,
     "SUSV0A"},
    {Procedure::Graph, "Graficar las ecuaciones x(t) y/o X(t)", kGraphNeeds, "GRAF"},
    {Procedure::Distance, "Calcular la distancia recorrida entre dos tiempos", kDistanceNeeds, "DIST"},
};

constexpr ProcedureEntry kList[] = {
    {Procedure::ThreePoints, "Obtener las ecs. de mov. dados 3 puntos (ti,xi) por los que pasa el móvil",
     kThreePointsNeeds, "EQN3"},
    {Procedure::Interval, "Aplicar las ecuaciones de intervalo", kIntervalNeeds, "DELTAS"},
    {Procedure::PositionDifference, "Resolver la ecuación x(t) - X(t) = C", kPositionNeeds, "ALCANCE"},
    {Procedure::PositionRatio, "Resolver la ecuación x(t) = C X(t)", kPositionNeeds, "ALCANCE"},
    {Procedure::SpeedDifference, "Resolver la ecuación v(t) - V(t) = C", kSpeedNeeds, "ALCANCE"},
    {Procedure::SpeedRatio, "Resolver la ecuación v(t) = C V(t)", kSpeedNeeds, "ALCANCE"},
    {Procedure::PositionAndSpeedRatio,
     "Dados: x(t), 3 de {A,t0,X0,V0} y x=pX, v=qV en algún \"t\", calcular faltante. Dar p,q",
     kBothRatiosNeeds, "PXQV"},
    {Procedure::Link, "Ligar 2 tramos de movimiento de un mismo móvil", kLinkNeeds, "LIGAR"},
    {Procedure::SystemVA, "Resolver un sistema de ecuaciones v,a - v,a", kLinearNeeds, "ALG"},
    {Procedure::SystemV2A, "Resolver un sistema de ecuaciones v2,a - v,a", kSpeedSquaredNeeds, "ALG"},
    {Procedure::SystemV2A2A, "Resolver un sistema de ecuaciones v2,a2,a - v,a", kBothSquaredNeeds, "ALG"},
    {Procedure::SystemV2A2AV2A, "Resolver un sistema de ecuaciones v2,a2,a - v2,a", kBothSquaredTwiceNeeds,
     "ALG"},
    {Procedure::Quadratic, "Resolver la ecuación cuadrática Ax^2 + Bx + C = 0", kQuadraticNeeds, "ALG"},
};

template <std::size_t kCount>
constexpr std::array<std::string_view, kCount> TitlesOf(const ProcedureEntry (&entries)[kCount]) {
    std::array<std::string_view, kCount> titles;
    for (std::size_t k = 0; k < kCount; ++k)
        titles[k] = entries[k].title;
    return titles;
}

constexpr auto kRowTitles = TitlesOf(kRows);
constexpr auto kListTitles = TitlesOf(kList);

constexpr Lines kRowLabels = {" t", " x", " v"};
constexpr Lines kConfigurations = {
    "   Un móvil, una aceleración  --  a",
    "   Un móvil, 2 ó 3 aceleraciones  --  a, a' [, a'']",
    "   Dos móviles, una aceleración cada uno  --  a, A",
    "   Dos móviles, el primero 2 ó 3 aceleraciones  -- a, a' [, a''], A",
};
constexpr frame::PointsTexts kTexts = {
    kRowLabels, kConfigurations, "A lo más 2 clics en la tabla, en el espacio gris arriba de los encabezados",
    kRowTitles, kListTitles};

constexpr std::string_view kConfigurationFile = "\\socorro.txt";
constexpr std::string_view kProcedureFile = "\\ayudaprocs.txt";

const ProcedureEntry& At(std::span<const ProcedureEntry> entries, int index) {
    if (index < 0 || index >= static_cast<int>(entries.size()))
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "procedure");
    return entries[static_cast<std::size_t>(index)];
}

}  // namespace

const ProcedureEntry& ProcedureOfRow(int row) { return At(kRows, row - 1); }

const ProcedureEntry& ProcedureOfEntry(int entry) { return At(kList, entry); }

const frame::PointsTexts& MotionTexts() { return kTexts; }

std::optional<frame::TopicPlace> MotionTopic(frame::PointsHelp button, int row, int entry) {
    if (button == frame::PointsHelp::Configuration)
        return frame::TopicPlace{kConfigurationFile, "CONFIGTABLE"};
    if (button == frame::PointsHelp::Row)
        return frame::TopicPlace{kProcedureFile, ProcedureOfRow(row).help_tag};
    if (entry < 0)
        return std::nullopt;
    return frame::TopicPlace{kProcedureFile, ProcedureOfEntry(entry).help_tag};
}

}  // namespace tavrelo::tools::motion
