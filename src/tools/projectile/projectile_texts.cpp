#include "tools/projectile/projectile_texts.h"

namespace tavrelo::tools::projectile {
namespace {

constexpr std::string_view kRowLabels[] = {" t", " x", " y", " v", " θ"};
constexpr std::string_view kConfigurations[] = {"   Un móvil", "   Dos móviles"};
constexpr std::string_view kSplitTip = "Un clic en la tabla, en el espacio gris arriba de los encabezados";

constexpr std::string_view kRows[] = {
    "Plantear las ecuaciones de movimiento",
    "Sustituir datos en las ecuaciones sin parámetros",
    "Sustituir datos, parámetros v0 y/o θ0",
    "Sustituir datos, parámetros v0x y/o v0y",
    "Calcular la distancia recorrida entre dos tiempos",
};
constexpr std::string_view kList[] = {
    "Obtener las ecs. de mov. dados 3 puntos (xi,yi) por los que pasa el móvil",
    "Obtener las ecs. de mov. dado C de la relación Alcance = C*(Altura máxima)",
    "Obtener las ecs. de mov. dados el Tiempo de vuelo tv y el Alcance R.",
    "Calcular la distancia recorrida entre dos tiempos dados.",
    "Calcular el Alcance sobre un plano inclinado.",
    "Resolver las ecuaciones x = X, y = Y",
    "Choque parábola-parábola",
    "Choque parábola-recta",
    "Resolver simultáneamente dos del tipo A tan q0 + B(v0^2 cos^2 q0) = C",
    "Resolver A tan q0 + B/(v0^2 cos^2 q0) = C   y   D tan q0 + E/(v0 cos q0) = F",
    "Resolver A tan q0 + B/(v0^2 cos^2 q0) = C   y   v0 cos q0 = D",
    "Resolver A tan q0 + B/(v0^2 cos^2 q0) = C   y   v0 sen q0 = D",
    "Resolver dos del tipo A tan q0 + B/(v0 cos q0) = C",
};
constexpr frame::PointsTexts kTexts = {kRowLabels, kConfigurations, kSplitTip, kRows, kList};

constexpr std::string_view kHelpFile = "\\HelpTP.txt";
// By the row, and by the entry of the list.
constexpr std::string_view kRowTags[] = {"PLANTEAR", "SUST", "SUSTV0Q", "SUSTV0Q", "DIST"};
constexpr std::string_view kListTags[] = {"3PTS", "RCH", "TVR", "DIST", "ALCPI", "INT", "CHOQUE",
                                          "BOMB", "ALG", "ALG", "ALG",  "ALG",   "ALG"};

std::optional<frame::TopicPlace> At(std::span<const std::string_view> tags, int index) {
    if (index < 0 || index >= static_cast<int>(tags.size()))
        return std::nullopt;
    return frame::TopicPlace{kHelpFile, tags[static_cast<std::size_t>(index)]};
}

}  // namespace

const frame::PointsTexts& ProjectileTexts() { return kTexts; }

std::optional<frame::TopicPlace> ProjectileTopic(frame::PointsHelp button, int row, int entry) {
    switch (button) {
        case frame::PointsHelp::Configuration:
            return frame::TopicPlace{kHelpFile, "TABLA"};
        case frame::PointsHelp::Row:
            return At(kRowTags, row - 1);
        case frame::PointsHelp::Entry:
            return At(kListTags, entry);
    }
    return std::nullopt;
}

}  // namespace tavrelo::tools::projectile
