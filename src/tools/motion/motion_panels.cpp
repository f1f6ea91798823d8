#include "tools/motion/motion_panels.h"

#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tavrelo::tools::motion {
namespace {

using text::Color;

constexpr int kLabelColumnWidth = 360;  // twips

constexpr std::string_view kMotionRows[] = {" t", " x", " v"};
constexpr std::string_view kProjectileRows[] = {" t", " x", " y", " v", " θ"};

constexpr double kColumnWidth = 64;  // of the strip, pixels
constexpr double kBandTop = 19;  // pixels from the bottom: the labels' band lies below, the grey one above
constexpr Color kBandColor = text::FromBgr(0xFFFFC0);
constexpr Color kGreyBand = text::Rgb(0xE0, 0xE0, 0xE0);
constexpr Color kEdgeColor = text::Rgb(0x80, 0x80, 0x80);

constexpr std::string_view kMotionVariants[] = {
    "   Un móvil, una aceleración  --  a",
    "   Un móvil, 2 ó 3 aceleraciones  --  a, a' [, a'']",
    "   Dos móviles, una aceleración cada uno  --  a, A",
    "   Dos móviles, el primero 2 ó 3 aceleraciones  -- a, a' [, a''], A",
};
constexpr std::string_view kProjectileVariants[] = {"   Un móvil", "   Dos móviles"};

constexpr std::string_view kMotionTip =
    "A lo más 2 clics en la tabla, en el espacio gris arriba de los encabezados";
constexpr std::string_view kProjectileTip =
    "Un clic en la tabla, en el espacio gris arriba de los encabezados";

constexpr std::string_view kMotionProcedures[] = {
    "Plantear las ecuaciones de movimiento",
    "Sustituir datos en las ecuaciones sin parámetros",
    "Sustituir datos en las ecuaciones con parámetros",
    "Graficar las ecuaciones x(t) y/o X(t)",
    "Calcular la distancia recorrida entre dos tiempos",
};
constexpr std::string_view kProjectileProcedures[] = {
    "Plantear las ecuaciones de movimiento",
    "Sustituir datos en las ecuaciones sin parámetros",
    "Sustituir datos, parámetros v0 y/o θ0",
    "Sustituir datos, parámetros v0x y/o v0y",
    "Calcular la distancia recorrida entre dos tiempos",
};
constexpr double kProcedureHeight = 36;  // pixels
constexpr double kProcedureSize = 8.25;  // points

constexpr std::string_view kMotionList[] = {
    "Obtener las ecs. de mov. dados 3 puntos (ti,xi) por los que pasa el móvil",
    "Aplicar las ecuaciones de intervalo",
    "Resolver la ecuación x(t) - X(t) = C",
    "Resolver la ecuación x(t) = C X(t)",
    "Resolver la ecuación v(t) - V(t) = C",
    "Resolver la ecuación v(t) = C V(t)",
    "Dados: x(t), 3 de {A,t0,X0,V0} y x=pX, v=qV en algún \"t\", calcular faltante. Dar p,q",
    "Ligar 2 tramos de movimiento de un mismo móvil",
    "Resolver un sistema de ecuaciones v,a - v,a",
    "Resolver un sistema de ecuaciones v2,a - v,a",
    "Resolver un sistema de ecuaciones v2,a2,a - v,a",
    "Resolver un sistema de ecuaciones v2,a2,a - v2,a",
    "Resolver la ecuación cuadrática Ax^2 + Bx + C = 0",
};
constexpr std::string_view kProjectileList[] = {
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

using Texts = std::span<const std::string_view>;

Texts ByTool(int tool, Texts motion, Texts projectile) {
    return tool == kProjectileHelpTool ? projectile : motion;
}

}  // namespace

void ArrangeGd2(window::Form1& form, int col_width, int tool) {
    const auto labels = ByTool(tool, kMotionRows, kProjectileRows);
    window::Grid& grid = form.Gd2;
    grid.Arrange(static_cast<int>(labels.size()), kPointColumns + 1, 0, 1);
    grid.SetColWidth(0, kLabelColumnWidth);
    for (int col = 1; col <= kPointColumns; ++col)
        grid.SetColWidth(col, col_width);
    // Whole pixels, so that all rows of either tool fit without scroll bars.
    const int row_pixels = form.Gd2.Bounds().height / grid.Rows();
    grid.SetRowHeight(row_pixels * window::kTwipsPerPixel);
    for (int row = 0; row < grid.Rows(); ++row)
        grid.SetCell(row, 0, std::string(labels[static_cast<std::size_t>(row)]));
}

void DrawTableStrip(window::Form1& form) {
    window::Recorder& strip = form.picAccel.Canvas();
    strip.Cls();
    const double band = strip.FromBottom(kBandTop);
    strip.Box(0, 0, strip.Width() - 1, band, kGreyBand, true);
    strip.Box(0, band, strip.Width() - 1, strip.Height() - 1, kBandColor, true);
    strip.CurrentFont = text::Font{std::string(text::kInterfaceFont), 9};
    for (int col = 0; col < kPointColumns; ++col) {
        const double left = col * kColumnWidth;
        strip.Box(left, band, left + kColumnWidth - 1, strip.Height() - 1, kEdgeColor, false);
        strip.CurrentX = left + kColumnWidth * 0.45 - 4;
        strip.CurrentY = band + 2;
        strip.Print(std::to_string(col));
    }
    strip.Box(0, 0, strip.Width() - 1, strip.Height() - 1, kEdgeColor, false);
    for (const auto& [index, box] : form.txtAccel.Items())
        box->SetVisible(false);
}

void AdaptCtrls(window::Form1& form, int tool) {
    const auto variants = ByTool(tool, kMotionVariants, kProjectileVariants);
    for (const auto& [index, label] : form.lblAs.Items()) {
        const bool offered = index < static_cast<int>(variants.size());
        label->SetVisible(offered);
        form.cmdTable[index].SetVisible(offered);
        if (offered)
            label->SetCaption(std::string(variants[static_cast<std::size_t>(index)]));
    }
    form.cmdTable[1].SetTooltip(std::string(tool == kProjectileHelpTool ? kProjectileTip : kMotionTip));
}

void DrawProcedureRows(window::Form1& form, int tool) {
    window::Recorder& surface = form.imgProcs.Canvas();
    surface.Cls();
    double top = 0;
    for (const std::string_view title : ByTool(tool, kMotionProcedures, kProjectileProcedures)) {
        surface.Box(0, top, surface.Width() - 1, top + kProcedureHeight - 1, kEdgeColor, false);
        surface.CurrentFont = text::Font{std::string(text::kInterfaceFont), kProcedureSize};
        surface.CurrentX = 10;
        surface.CurrentY = top + (kProcedureHeight - surface.TextHeight()) / 2;
        surface.Print(title);
        top += kProcedureHeight;
    }
}

int ProcedureRow(const window::Form1& form) {
    const int offset = form.shpMrua.Bounds().top - form.imgProcs.Bounds().top;
    return offset / form.shpMrua.Bounds().height + 1;
}

void ChooseProcedureRow(window::Form1& form, double y) {
    window::Rect frame = form.shpMrua.Bounds();
    const int row = y < 0 ? -1 : static_cast<int>(y / (frame.height * window::kTwipsPerPixel));
    if (row < 0 || row >= static_cast<int>(std::size(kMotionProcedures)))
        return;
    frame.top = form.imgProcs.Bounds().top + row * frame.height;
    form.shpMrua.SetBounds(frame);
}

void FillMruaCbo(window::Form1& form, int tool) {
    std::vector<std::string> items;
    for (const std::string_view entry : ByTool(tool, kMotionList, kProjectileList))
        items.emplace_back(entry);
    form.cboProcs.SetItems(std::move(items));
}

}  // namespace tavrelo::tools::motion
