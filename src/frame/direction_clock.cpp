#include "frame/direction_clock.h"

#include "drawing/clock_face.h"
#include "expr/expression.h"
#include "notation/clock_direction.h"
#include "text/number_text.h"
#include "window/guard.h"

namespace tavrelo::frame {
namespace {

constexpr std::string_view kRotationPrefix = "Q = ";
constexpr std::string_view kDegreeSign = "°";
constexpr std::string_view kTipPrefix = "Clic aquí pone ángulo = ";
constexpr double kAngleLimit = 90;  // degrees, which a stepped angle never reaches

/// Wires a text box so that Enter runs a handler under the guard.
void OnEnter(window::Form1& form, window::TextBox& box, std::function<void()> handler) {
    box.OnKeyPress = [&form, handler = std::move(handler)](char32_t character) {
        if (character != window::kEnterCharacter)
            return false;
        window::Guard(form.boxes, text::kCommandFailed, handler);
        return true;
    };
}

}  // namespace

double GetRotAngle(const window::Form1& form) {
    std::string_view caption = form.cmdRotangle.Caption();
    caption.remove_prefix(kRotationPrefix.size());
    caption.remove_suffix(kDegreeSign.size());
    return text::ToNumber(caption);
}

std::string RotationCaption(double degrees) {
    return std::string(kRotationPrefix) + text::NumberToText(degrees) + std::string(kDegreeSign);
}

std::string AngleTip(double degrees) { return std::string(kTipPrefix) + text::NumberToText(degrees); }

DirectionClock::DirectionClock(window::Form1& form) : m_form(form), m_hour(notation::kHourRight) {
    m_form.picClock.OnMouseDown = [this](const window::MouseStroke& stroke) {
        window::Guard(m_form.boxes, text::kCommandFailed, [&] { FaceMouseDown(stroke); });
    };
    OnEnter(m_form, m_form.txtAngle, [this] { EnterAngle(); });
    OnEnter(m_form, m_form.txtAtan, [this] { EnterSlope(); });
    m_form.cmdInc.OnClick = [this] {
        window::Guard(m_form.boxes, text::kCommandFailed, [this] { AddStep(); });
    };
    m_form.lbltxtAngle.OnClick = [this] {
        window::Guard(m_form.boxes, text::kCommandFailed, [this] { TakeTipAngle(); });
    };
}

double DirectionClock::Rotation() const {
    return m_form.publics.CurrentTool == window::Tool::Particle ? GetRotAngle(m_form) : 0;
}

void DirectionClock::Reset() {
    m_hour = notation::kHourRight;
    m_form.txtAngle.SetText("0");
    Draw();
}

void DirectionClock::Draw() {
    const std::string& angle = m_form.txtAngle.Text();
    drawing::DrawClockFace(m_form.picClock.Canvas(), m_hour, text::IsNum(angle) ? text::ToNumber(angle) : 0,
                           Rotation());
}

void DirectionClock::FaceMouseDown(const window::MouseStroke& stroke) {
    const auto hour = drawing::ClockHourAt(stroke.x, stroke.y, Rotation());
    if (!hour)
        return;
    m_hour = *hour;
    Draw();
    Offer(text::ToNumber(m_form.txtAngle.Text()));
}

void DirectionClock::EnterAngle() { OfferWithAngle(text::ToNumber(m_form.txtAngle.Text())); }

void DirectionClock::EnterSlope() {
    const std::string& text = m_form.txtAtan.Text();
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
    const double step = text::ToNumber(m_form.cmdInc.Caption());
    double angle = text::ToNumber(m_form.txtAngle.Text());
    if (angle + step < kAngleLimit) {
        angle += step;
        m_form.txtAngle.SetText(text::NumberToText(angle));
    }
    Offer(angle);
}

void DirectionClock::TakeTipAngle() {
    const std::string angle = m_form.lbltxtAngle.Tooltip().substr(kTipPrefix.size());
    m_form.txtAngle.SetText(angle);
    Offer(text::ToNumber(angle));
}

void DirectionClock::OfferWithAngle(double angle) {
    if (notation::IsAxisHour(m_hour))
        m_form.boxes.Tell("Fija la hora correctamente.");
    else
        Offer(angle);
}

void DirectionClock::Offer(double angle) {
    Draw();
    m_form.txtVector.SetText(notation::ClockText(m_hour, angle));
    m_form.SetFocus(m_form.txtVector);
}

}  // namespace tavrelo::frame
