#include "frame/direction_clock.h"

#include <cmath>

#include "drawing/clock_face.h"
#include "drawing/words.h"
#include "expr/expression.h"
#include "notation/clock_direction.h"
#include "text/number_text.h"
#include "window/guarded.h"

namespace tavrelo::frame {
namespace {

constexpr std::string_view kTipPrefix = "Clic aquí pone ángulo = ";
constexpr double kStep = 5;         // degrees, as the caption of cmdInc says
constexpr double kAngleLimit = 90;  // degrees, which a stepped angle never reaches
constexpr text::Color kFaceColor = text::Rgb(245, 245, 245);
constexpr int kHourCell = 20;  // side of the square around a numeral, pixels

std::string NameOfHour(int hour) {
    std::string name = "Hora " + std::to_string(hour);
    switch (hour) {
        case notation::kHourRight:
            return name + ", eje x";
        case notation::kHourUp:
            return name + ", eje y";
        case notation::kHourLeft:
            return name + ", eje x negativo";
        case notation::kHourDown:
            return name + ", eje y negativo";
        default:
            return name;
    }
}

}  // namespace

DirectionClock::DirectionClock(window::Form1& form) : m_form(form), m_hour(notation::kHourRight) {
    m_controls.picClock.Canvas().BackColor = kFaceColor;
    window::On(form, m_controls.picClock.OnMouseDown,
               [this](const window::MouseStroke& stroke) { FaceMouseDown(stroke); });
    m_controls.picClock.ListCells = [this] { return HourCells(); };
    window::OnEnter(form, m_controls.txtVector, [this] { EnterVector(); });
    window::OnEnter(form, m_controls.txtAngle, [this] { EnterAngle(); });
    window::OnEnter(form, m_controls.txtAtan, [this] { EnterSlope(); });
    window::OnClick(form, m_controls.cmdInc, [this] { AddStep(); });
    window::OnClick(form, m_controls.lbltxtAngle, [this] { TakeTipAngle(); });
}

void DirectionClock::GiveVectorTo(window::Tool tool, window::Event taker) {
    m_takers[static_cast<std::size_t>(tool)] = std::move(taker);
}

void DirectionClock::EnterVector() {
    if (const window::Event& taker = m_takers[static_cast<std::size_t>(m_form.publics.CurrentTool)])
        taker();
}

void DirectionClock::TurnAxes(double degrees) {
    m_axes = degrees;
    m_controls.lbltxtAngle.SetTooltip(std::string(kTipPrefix) + text::NumberToText(degrees));
}

double DirectionClock::Rotation() const {
    return m_form.publics.CurrentTool == window::Tool::Particle ? m_axes : 0;
}

void DirectionClock::Reset() {
    m_hour = notation::kHourRight;
    m_controls.txtAngle.SetText("0");
    Draw();
}

void DirectionClock::Draw() {
    const std::string& typed = m_controls.txtAngle.Text();
    const double angle = text::IsNum(typed) ? text::ToNumber(typed) : 0;
    window::Recorder& face = m_controls.picClock.Canvas();
    drawing::DrawClockFace(face, m_hour, angle, Rotation());
    std::string words =
        "Dirección de la hora " + std::to_string(m_hour) + ": " +
        drawing::DirectionWords(notation::ClockDir(m_hour, angle, true), text::kDefaultDecimals);
    if (Rotation() != 0)
        words += ", con los ejes girados " + drawing::DegreesWords(Rotation(), text::kDefaultDecimals);
    face.Describe(words + ".");
}

std::vector<window::PictureCell> DirectionClock::HourCells() const {
    std::vector<window::PictureCell> cells;
    for (int hour = 1; hour <= notation::kHours; ++hour) {
        const window::Point middle = drawing::NumeralPlace(hour, Rotation());
        cells.push_back(
            {.name = NameOfHour(hour),
             .bounds = {static_cast<int>(std::lround(middle.x)) - kHourCell / 2,
                        static_cast<int>(std::lround(middle.y)) - kHourCell / 2, kHourCell, kHourCell},
             .role = window::CellRole::Choice,
             .checked = hour == m_hour});
    }
    return cells;
}

void DirectionClock::FaceMouseDown(const window::MouseStroke& stroke) {
    const auto hour = drawing::ClockHourAt(stroke.x, stroke.y, Rotation());
    if (!hour)
        return;
    m_hour = *hour;
    Draw();
    Offer(text::ToNumber(m_controls.txtAngle.Text()));
}

void DirectionClock::EnterAngle() { OfferWithAngle(text::ToNumber(m_controls.txtAngle.Text())); }

void DirectionClock::EnterSlope() {
    const std::string& text = m_controls.txtAtan.Text();
    expr::CExpression expression(m_form.publics.AngleFactor);
    try {
        expression.SetExpression(text);
        if (expression.ErrorCode() != 0) {
            m_form.boxes.Tell("Expresión " + text + " incorrecta.");
            return;
        }
        OfferWithAngle(numeric::ArcTanD(expression.Value({}).Number()));
    } catch (const numeric::RuntimeFailure&) {
        m_form.boxes.Tell("Error en la expresión.");
    }
}

void DirectionClock::AddStep() {
    double angle = text::ToNumber(m_controls.txtAngle.Text());
    if (angle + kStep < kAngleLimit) {
        angle += kStep;
        m_controls.txtAngle.SetText(text::NumberToText(angle));
    }
    Offer(angle);
}

void DirectionClock::TakeTipAngle() {
    m_controls.txtAngle.SetText(text::NumberToText(m_axes));
    Offer(m_axes);
}

void DirectionClock::OfferWithAngle(double angle) {
    if (notation::IsAxisHour(m_hour))
        m_form.boxes.Tell("Fija la hora correctamente.");
    else
        Offer(angle);
}

void DirectionClock::Offer(double angle) {
    Draw();
    m_controls.txtVector.SetText(notation::ClockText(m_hour, angle));
    m_form.SetFocus(m_controls.txtVector);
}

}  // namespace tavrelo::frame
