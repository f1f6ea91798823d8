#include "frame/welcome.h"

#include <string_view>

namespace tavrelo::frame {
namespace {

struct WelcomeLine {
    std::string_view text;
    double top;   // pixels
    double size;  // points
    bool bold;
    text::Color color;
};

constexpr text::Color kTitleColor = text::Rgb(0, 0, 128);
constexpr text::Color kNameColor = text::Rgb(128, 0, 0);
constexpr text::Color kHeadingColor = text::Rgb(0, 96, 0);

constexpr WelcomeLine kLines[] = {
    {"BIENVENIDO AL PROGRAMA", 26, 14, true, kTitleColor},
    {"TAVRELO", 54, 22, true, kNameColor},
    {"Barra de herramientas", 106, 12, true, kHeadingColor},
    {"Calculadora científica", 136, 11, false, text::kBlack},
    {"Equilibrio de la partícula", 159, 11, false, text::kBlack},
    {"Equilibrio del cuerpo rígido", 182, 11, false, text::kBlack},
    {"Movimiento rectilíneo uniformemente acelerado", 205, 11, false, text::kBlack},
    {"Movimiento de tiro parabólico", 228, 11, false, text::kBlack},
    {"Elementos de Cinemática plana general", 251, 11, false, text::kBlack},
    {"-----------------------", 274, 11, false, text::kBlack},
    {"Preferencias e Impresión", 297, 11, false, text::kBlack},
    {"Ayuda contextual", 320, 11, false, text::kBlack},
    {"Salir del programa", 343, 11, false, text::kBlack},
};

}  // namespace

void ShowWelcome(window::Surface& surface) {
    surface.Cls();
    const text::Font kept_font = surface.CurrentFont;
    const text::Color kept_color = surface.ForeColor;
    for (const WelcomeLine& line : kLines) {
        surface.CurrentFont = text::Font{std::string(text::kTextFont), line.size, line.bold};
        surface.ForeColor = line.color;
        surface.CurrentX = (surface.Width() - surface.TextWidth(line.text)) / 2;
        surface.CurrentY = line.top;
        surface.Print(line.text);
    }
    surface.DescribeByTexts();
    surface.CurrentFont = kept_font;
    surface.ForeColor = kept_color;
}

}  // namespace tavrelo::frame
