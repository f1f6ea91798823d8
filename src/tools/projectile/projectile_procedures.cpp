#include "tools/projectile/projectile_procedures.h"

#include <array>

#include "numeric/checked.h"

namespace tavrelo::tools::projectile {
namespace {

using mechanics::projectile::Procedure;
using mechanics::projectile::Special;

using Lines = std::string_view[];

constexpr Lines kPlantNeeds = {
    "Tabla: t!0, x!0, y!0 y 0,1 o 2 de {v!0, ;q!0} o bien 1 de {v!0!x, v!0!y}",
    "Haz clic en el rótulo coloreado del punto 0 del móvil considerado.",
};
constexpr Lines kSubstituteNeeds = {
    "{t!i},  {x!i},  {y!i}, {v!y!i}, {;q}, {;Dt, ;Dy}. Para \"v!y!i\" Modo = \"cs\".",
    "Para el último tipo de dato haz clic en el punto final del intervalo.",
};
constexpr Lines kPolarNeeds = {
    "{t!i, x!i},  {t!i, y!i}, {x!i, y!i}, {t!i, ;q!i},  {x!i, ;q!i}   (9o. dato no si $r(;q!0))",
    "{y!i, ;q!i}, {t!i, v!i}, {x!i, v!i}, {y!i, v!i}       (8o. y 9o. datos no si $r(v!0,;q!0))",
};
constexpr Lines kComponentNeeds = {
    "{t!i, x!i},  {t!i, y!i}, {x!i, y!i}, {t!i, ;q!i},  {x!i, ;q!i}   (2o. dato no si $r(v!0!x))",
    "{y!i, ;q!i}, {t!i, v!i}, {x!i, v!i}, {y!i, v!i}                 (1er. dato no si $r(v!0!y))",
};
constexpr Lines kPathNeeds = {
    "Clic en los puntos inicial y final del intervalo [t!i, t!f] considerado.",
};

constexpr Lines kThreePointsNeeds = {
    "Tabla: x!i, y!i, x!j, y!j, x!k, y!k y t!i",
    "(Casilla) datos en el orden: móvil, i, j, k",
};
constexpr Lines kRangeRatioNeeds = {
    "Tabla: t!0, x!0, y!0 [, v!0] del punto 0",
    "(Casilla) datos en el orden: móvil, C",
};
constexpr Lines kFlightNeeds = {
    "Tabla: t!0, x!0, y!0 del punto 0",
    "(Casilla) datos en el orden: móvil, t!v, R",
};
constexpr Lines kInclineNeeds = {
    "Se conocen las ecuaciones del móvil. El plano pasa por el punto.",
    "(Casilla) datos en el orden: móvil, punto, ángulo del plano",
};
constexpr Lines kCrossingNeeds = {"Se conocen las ecuaciones de los dos móviles."};
constexpr Lines kCollisionNeeds = {
    "Móvil 1: ecuaciones sin parámetros. Móvil 2: con parámetros V!0 y/o ;q.",
    "(Casilla) nada, o bien tc = n",
};
constexpr Lines kInterceptionNeeds = {
    "Tabla: t!0, x!0, y!0 [v!0 ó ;q!0] del móvil 1. Blanco: x = u t, y = 0",
    "(Casilla) u = n, tc = n, o los dos",
};
constexpr std::string_view kSystemOrder = "(Casilla) datos en el orden:";
constexpr Lines kPairNeeds = {kSystemOrder, "A!1, B!1, C!1, A!2, B!2, C!2"};
constexpr Lines kMixedNeeds = {kSystemOrder, "A, B, C, D, E, F"};
constexpr Lines kComponentPairNeeds = {kSystemOrder, "A, B, C, D"};

constexpr ProcedureRow kRows[] = {
    {Procedure::Plant, "Plantear las ecuaciones de movimiento", kPlantNeeds, "PLANTEAR"},
    {Procedure::Substitute, "Sustituir datos en las ecuaciones sin parámetros", kSubstituteNeeds, "SUST"},
    {Procedure::SubstituteInPolar, "Sustituir datos, parámetros v0 y/o θ0", kPolarNeeds, "SUSTV0Q"},
    {Procedure::SubstituteInComponents, "Sustituir datos, parámetros v0x y/o v0y", kComponentNeeds,
     "SUSTV0Q"},
    {Procedure::PathAndGraph, "Calcular la distancia recorrida entre dos tiempos", kPathNeeds, "DIST"},
};

constexpr SpecialEntry kList[] = {
    {Special::ThreePoints, "Obtener las ecs. de mov. dados 3 puntos (xi,yi) por los que pasa el móvil",
     kThreePointsNeeds, "3PTS"},
    {Special::RangeRatio, "Obtener las ecs. de mov. dado C de la relación Alcance = C*(Altura máxima)",
     kRangeRatioNeeds, "RCH"},
    {Special::FlightTimeAndRange, "Obtener las ecs. de mov. dados el Tiempo de vuelo tv y el Alcance R.",
     kFlightNeeds, "TVR"},
    {Special::Path, "Calcular la distancia recorrida entre dos tiempos dados.", kPathNeeds, "DIST"},
    {Special::Incline, "Calcular el Alcance sobre un plano inclinado.", kInclineNeeds, "ALCPI"},
    {Special::Crossing, "Resolver las ecuaciones x = X, y = Y", kCrossingNeeds, "INT"},
    {Special::Collision, "Choque parábola-parábola", kCollisionNeeds, "CHOQUE"},
    {Special::Interception, "Choque parábola-recta", kInterceptionNeeds, "BOMB"},
    {Special::SquaredPair, "Resolver simultáneamente dos del tipo A tan q0 + B(v0^2 cos^2 q0) = C",
     kPairNeeds, "ALG"},
    {Special::MixedPair, "Resolver A tan q0 + B/(v0^2 cos^2 q0) = C   y   D tan q0 + E/(v0 cos q0) = F",
     kMixedNeeds, "ALG"},
    {Special::WithHorizontal, "Resolver A tan q0 + B/(v0^2 cos^2 q0) = C   y   v0 cos q0 = D",
     kComponentPairNeeds, "ALG"},
    {Special::WithVertical, "Resolver A tan q0 + B/(v0^2 cos^2 q0) = C   y   v0 sen q0 = D",
     kComponentPairNeeds, "ALG"},
    {Special::PlainPair, "Resolver dos del tipo A tan q0 + B/(v0 cos q0) = C", kPairNeeds, "ALG"},
};

template <class Entry, std::size_t kCount>
constexpr std::array<std::string_view, kCount> TitlesOf(const Entry (&entries)[kCount]) {
    std::array<std::string_view, kCount> titles;
    for (std::size_t k = 0; k < kCount; ++k)
        titles[k] = entries[k].title;
    return titles;
}

constexpr auto kRowTitles = TitlesOf(kRows);
constexpr auto kListTitles = TitlesOf(kList);

constexpr std::string_view kRowLabels[] = {" t", " x", " y", " v", " θ"};
constexpr std::string_view kConfigurations[] = {"   Un móvil", "   Dos móviles"};
constexpr int kFirstIcon = 4;  // behind those of motion along a line
constexpr frame::PointsTexts kTexts = {
    kRowLabels, kConfigurations, "Un clic en la tabla, en el espacio gris arriba de los encabezados",
    kRowTitles, kListTitles,     kFirstIcon};

constexpr std::string_view kHelpFile = "\\HelpTP.txt";

template <class Entry>
const Entry& At(std::span<const Entry> entries, int index) {
    if (index < 0 || index >= static_cast<int>(entries.size()))
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "procedure");
    return entries[static_cast<std::size_t>(index)];
}

}  // namespace

const ProcedureRow& ProcedureOfRow(int row) { return At<ProcedureRow>(kRows, row - 1); }

const SpecialEntry& SpecialOfEntry(int entry) { return At<SpecialEntry>(kList, entry); }

const frame::PointsTexts& ProjectileTexts() { return kTexts; }

std::optional<frame::TopicPlace> ProjectileTopic(frame::PointsHelp button, int row, int entry) {
    if (button == frame::PointsHelp::Configuration)
        return frame::TopicPlace{kHelpFile, "TABLA"};
    if (button == frame::PointsHelp::Row)
        return frame::TopicPlace{kHelpFile, ProcedureOfRow(row).help_tag};
    if (entry < 0)
        return std::nullopt;
    return frame::TopicPlace{kHelpFile, SpecialOfEntry(entry).help_tag};
}

}  // namespace tavrelo::tools::projectile
