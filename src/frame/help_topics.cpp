#include "frame/help_topics.h"

namespace tavrelo::frame {
namespace {

constexpr std::string_view kCalc = "\\HelpCalc.txt";
constexpr std::string_view kStatPart = "\\StatPart.txt";
constexpr std::string_view kEstcr = "\\HelpEstcr.txt";
constexpr std::string_view kMrua = "\\HelpMrua.txt";
constexpr std::string_view kTP = "\\HelpTP.txt";
constexpr std::string_view kKinem = "\\HelpKinem.txt";

constexpr HelpTopic kCalculatorTopics[] = {
    {"Ayuda sobre la Calculadora científica.", kCalc, "MSG"},
    {"Generalidades sobre la herramienta Calculadora científica.", kCalc, "GRAL"},
    {"Evaluación de expresiones numéricas.", kCalc, "EXPR"},
    {"Especificación de un argumento vectorial.", kCalc, "VECFMT"},
    {"Manejo de la tabla de argumentos.", kCalc, "TABLE"},
    {"Botones de control de la tabla de argumentos.", kCalc, "CTRLS"},
    {"Uso del reloj orientador de vectores.", kCalc, "CLOCK"},
};
constexpr HelpTopic kParticleTopics[] = {
    {"Ayuda sobre Estática de la partícula.", kCalc, "MSG"},
    {"Uso de la herramienta Estática de la partícula.", kStatPart, "ESTP"},
    {"Evaluación de expresiones numéricas.", kCalc, "EXPR"},
    {"Especificación de un argumento vectorial.", kCalc, "VECFMT"},
    {"Uso del reloj director de vectores.", kCalc, "CLOCK"},
};
constexpr HelpTopic kRigidBodyTopics[] = {
    {"Estática del cuerpo rígido. Generalidades.", kEstcr, "GRAL"},
    {"Cómo establecer la configuración.", kEstcr, "CONFIG"},
    {"Cómo definir los (sub)sistemas a considerar.", kEstcr, "SYSTS"},
    {"Cómo trazar los diagramas de cuerpo libre.", kEstcr, "DCL"},
    {"Cómo resolver el problema de equilibrio.", kEstcr, "SOLVE"},
    {"Evaluación de expresiones numéricas.", kCalc, "EXPR"},
    {"Especificación de un argumento vectorial.", kCalc, "VECFMT"},
};
constexpr HelpTopic kMotionTopics[] = {
    {"Ayuda sobre Movimiento rectilíneo uniformemente acelerado.", kCalc, "MSG"},
    {"Generalidades sobre la herramienta Mov. Rectilíneo Unif. Acelerado.", kMrua, "GRALMRUA"},
    {"Configurar la tabla de cantidades cinemáticas.", kMrua, "CONFIGTABLE"},
    {"Plantear las ecuaciones de movimiento.", kMrua, "EQN"},
    {"Sustituir datos en las ecuaciones sin parámetros.", kMrua, "SUS"},
    {"Sustituir datos en las ecuaciones con parámetros.", kMrua, "SUSV0A"},
    {"Graficar las ecuaciones x(t) y/o X(t).", kMrua, "GRAF"},
    {"Calcular la distancia recorrida entre dos tiempos.", kMrua, "DIST"},
    {"Plantear las ecs. de mov. dados 3 puntos (ti,xi) del mismo.", kMrua, "EQN3"},
    {"Aplicar las ecuaciones de intervalo.", kMrua, "DELTAS"},
    {"Resolver relaciones del tipo x-X=C, x=C*X, v-V=C, v=C*V.", kMrua, "ALCANCE"},
    {"Obtener X(t) dados x(t) y condiciones x=p*X, v=q*V.", kMrua, "PXQV"},
    {"Ligar 2 tramos del movimiento de un sólo móvil.", kMrua, "LIGAR"},
    {"Resolver sistemas de ecuaciones.", kMrua, "ALG"},
};
constexpr HelpTopic kProjectileTopics[] = {
    {"Ayuda sobre Movimiento de tiro parabólico.", kCalc, "MSG"},
    {"Generalidades sobre la herramienta Mov. de Tiro Parabólico.", kTP, "GRALTP"},
    {"Configurar la tabla de cantidades cinemáticas.", kTP, "TABLA"},
    {"Plantear las ecuaciones de movimiento.", kTP, "PLANTEAR"},
    {"Sustituir datos en las ecuaciones sin parámetros.", kTP, "SUST"},
    {"Sustituir datos en las ecuaciones con parámetros.", kTP, "SUSTV0Q"},
    {"Graficar la trayectoria parabólica.", kTP, "GRAF"},
    {"Obtener las ecs. de mov. dados 3 puntos (xi,yi) por los que pasa el móvil", kTP, "3PTS"},
    {"Obtener las ecs. de mov. dado C de la relación Alcance = C*(Altura máxima)", kTP, "RCH"},
    {"Obtener las ecs. de mov. dados el Tiempo de vuelo tv y el Alcance R.", kTP, "TVR"},
    {"Calcular la distancia recorrida entre dos tiempos dados.", kTP, "DIST"},
    {"Calcular el Alcance sobre un plano inclinado.", kTP, "ALCPI"},
    {"Resolver las ecuaciones x = X, y = Y", kTP, "INT"},
    {"Choque parábola-parábola", kTP, "CHOQUE"},
    {"Choque parábola-recta", kTP, "BOMB"},
    {"Resolver sistemas de ecuaciones", kTP, "ALG"},
};
constexpr HelpTopic kKinematicsTopics[] = {
    {"Ayuda sobre Elementos de cinemática general.", kCalc, "MSG"},
    {"Generalidades sobre la herramienta Elementos de cinemática general.", kKinem, "GRALK"},
    {"Dada x(t), calcular x, v y a en algún tiempo particular.", kKinem, "XDET"},
    {"Dada v(t, x), calcular x y v en algún tiempo particular.", kKinem, "VDETX"},
    {"Dada a(t, x, v), calcular x, v y a en algún tiempo particular.", kKinem, "ADETXV"},
    {"Graficar x(t), v(t) y/o a(t).", kKinem, "GRAPHK"},
    {"Evaluación de expresiones numéricas.", kCalc, "EXPR"},
};

constexpr std::span<const HelpTopic> kTopics[] = {kCalculatorTopics, kParticleTopics,   kRigidBodyTopics,
                                                  kMotionTopics,     kProjectileTopics, kKinematicsTopics};

}  // namespace

std::span<const HelpTopic> HelpTopics(int help_tool) {
    if (help_tool < 1 || help_tool > static_cast<int>(std::size(kTopics)))
        return {};
    return kTopics[help_tool - 1];
}

}  // namespace tavrelo::frame
