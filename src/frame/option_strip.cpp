#include "frame/option_strip.h"

#include <array>
#include <string>
#include <vector>

#include "expr/polynomial_text.h"
#include "frame/expression_box.h"
#include "window/guarded.h"

namespace tavrelo::frame {
namespace {

enum Cell { kPolynomial = 1, kQuickKeys, kNotation, kDegrees };
constexpr int kCells = 4;
constexpr double kCellWidth = 24;   // pixels
constexpr double kLabelSize = 7.5;  // points
constexpr double kRadiansFactor = 1.0;

constexpr text::Color kFaceColor = text::Rgb(240, 240, 240);
constexpr text::Color kActiveColor = text::Rgb(198, 226, 255);  // of a switch that is on
constexpr text::Color kEdgeColor = text::Rgb(128, 128, 128);

constexpr std::array<std::string_view, kCells> kTooltips = {
    "Insertar un polinomio de grado n en el cuadro de expresiones",
    "Habilitar/Deshabilitar opción de teclas rápidas",
    "Cambiar de Notación programática a Notación polaca inversa y viceversa",
    "Fijar la unidad de medida de ángulos en grados o radianes",
};

/// What a cell is when it is read aloud.
struct CellTexts {
    std::string_view name;
    window::CellRole role;
};
constexpr std::array<CellTexts, kCells> kTexts = {{
    {"Insertar polinomio", window::CellRole::Button},
    {"Teclas rápidas", window::CellRole::Switch},
    {"Notación programática", window::CellRole::Switch},
    {"Ángulos en grados", window::CellRole::Switch},
}};

/// The cell under a place, 1 to 4, or 0.
int CellAt(double x) { return window::CellAt(x, kCellWidth, kCells) + 1; }

void PaintCell(window::Surface& surface, int cell, std::string_view label, bool active) {
    const double left = (cell - 1) * kCellWidth;
    const double bottom = surface.Height() - 1;
    surface.Box(left, 0, left + kCellWidth, bottom, active ? kActiveColor : kFaceColor, true);
    surface.Box(left, 0, left + kCellWidth, bottom, kEdgeColor, false);
    surface.CurrentFont = text::Font{std::string(text::kInterfaceFont), kLabelSize};
    surface.CurrentX = left + (kCellWidth - surface.TextWidth(label)) / 2;
    surface.CurrentY = (surface.Height() - surface.TextHeight()) / 2;
    surface.Print(label);
}

std::vector<std::string> SplitAtCommas(const std::string& text) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (std::size_t end = text.find(','); end != std::string::npos; end = text.find(',', start)) {
        parts.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    parts.push_back(text.substr(start));
    return parts;
}

}  // namespace

OptionStrip::OptionStrip(window::Form1& form) : m_form(form) {
    window::On(
        form, m_controls.picOpt.OnMouseDown, [this](const window::MouseStroke& stroke) { MouseDown(stroke); },
        "Error.");
    window::On(form, m_controls.picOpt.OnMouseMove,
               [this](const window::MouseStroke& stroke) { MouseMove(stroke); });
    m_controls.picOpt.ListCells = [this] { return Cells(); };
}

std::vector<window::PictureCell> OptionStrip::Cells() const {
    const window::Publics& publics = m_form.publics;
    const std::array<bool, kCells> on = {false, publics.QuickKeys, publics.InfixNotation,
                                         publics.DegreesMode};
    constexpr int kWidth = static_cast<int>(kCellWidth);
    std::vector<window::PictureCell> cells;
    for (std::size_t cell = 0; cell < kCells; ++cell)
        cells.push_back(
            {.name = std::string(kTexts[cell].name),
             .bounds = {static_cast<int>(cell) * kWidth, 0, kWidth, m_controls.picOpt.Bounds().height},
             .role = kTexts[cell].role,
             .checked = on[cell],
             .tip = std::string(kTooltips[cell])});
    return cells;
}

void OptionStrip::FillTeclas() {
    window::Surface& surface = m_controls.picOpt.Canvas();
    const window::Publics& publics = m_form.publics;
    surface.Cls();
    PaintCell(surface, kPolynomial, "P", false);
    PaintCell(surface, kQuickKeys, "TR", publics.QuickKeys);
    PaintCell(surface, kNotation, "*/^", publics.InfixNotation);
    PaintCell(surface, kDegrees, publics.DegreesMode ? "grd" : "rad", false);
    m_controls.rtbExpr.SetHint(publics.QuickKeys ? QuickKeyWords() : std::string());
}

void OptionStrip::MouseDown(const window::MouseStroke& stroke) {
    switch (CellAt(stroke.x)) {
        case kPolynomial:
            InsertPolynomial();
            return;
        case kQuickKeys:
            m_form.publics.QuickKeys = !m_form.publics.QuickKeys;
            break;
        case kNotation:
            m_form.publics.InfixNotation = !m_form.publics.InfixNotation;
            break;
        case kDegrees:
            SwitchDegrees();
            break;
        default:
            return;
    }
    FillTeclas();
}

void OptionStrip::SwitchDegrees() {
    window::Publics& publics = m_form.publics;
    publics.DegreesMode = !publics.DegreesMode;
    publics.AngleFactor = publics.DegreesMode ? numeric::kRadiansPerDegree : kRadiansFactor;
}

void OptionStrip::InsertPolynomial() {
    const auto answer = m_form.boxes.AskText(
        "Escribe los coeficientes del polinomio separados por comas.\n"
        "Empieza por el coeficiente del término x^n y termina con el término numérico.",
        "Insertar polinomio de grado n");
    if (!answer || answer->empty())
        return;
    const auto polynomial = expr::GetPolynomial(SplitAtCommas(*answer));
    if (polynomial)
        m_controls.rtbExpr.Insert(*polynomial);
    else
        m_form.boxes.Tell(expr::kCoefficientNoNumber);
}

void OptionStrip::MouseMove(const window::MouseStroke& stroke) {
    const int cell = CellAt(stroke.x);
    m_controls.picOpt.SetTooltip(cell == 0 ? std::string()
                                           : std::string(kTooltips[static_cast<std::size_t>(cell - 1)]));
}

}  // namespace tavrelo::frame
