#include "vectors/direction_clock.h"

#include "expr/expression.h"
#include "numeric/number_text.h"
#include "shell/guard.h"
#include "vectors/clock_direction.h"
#include "vectors/clock_face.h"

namespace tavrelo::vectors {
namespace {

constexpr std::string_view kRotationPrefix = "Q = ";
constexpr std::string_view kDegreeSign = "°";
constexpr std::string_view kTipPrefix = "Clic aquí pone ángulo = ";
constexpr double kAngleLimit = 90;  // degrees, which a stepped angle never reaches

/// Wires a text box so that Enter runs a handler under the guard.
void OnEnter(shell::Form1& form, shell::TextBox& box, std::function<void()> handler) {
    box.OnKeyPress = [&form, handler = std::move(handler)](char32_t character) {
        if (character != shell::kEnterCharacter)
            return false;
        shell::Guard(form.boxes, shell::kCommandFailed, handler);
        return true;
    };
}

}  // namespace

double GetRotAngle(const shell::Form1& form) {
    std::string_view caption = form.cmdRotangle.Caption();
    caption.remove_prefix(kRotationPrefix.size());
    caption.remove_suffix(kDegreeSign.size());
    return numeric::ToNumber(caption);
}

std::string RotationCaption(double degrees) {
    return std::string(kRotationPrefix) + numeric::NumberToText(degrees) + std::string(kDegreeSign);
}

std::string AngleTip(double degrees) { return std::string(kTipPrefix) + numeric::NumberToText(degrees); }

DirectionClock::DirectionClock(shell::Form1& form) : m_form(form), m_hour(kHourRight) {
    m_form.picClock.OnMouseDown = [this](const shell::MouseStroke& stroke) {
        shell::Guard(m_form.boxes, shell::kCommandFailed, [&] { FaceMouseDown(stroke); });
    };
    OnEnter(m_form, m_form.txtAngle, [this] { EnterAngle(); });
    OnEnter(m_form, m_form.txtAtan, [this] { EnterSlope(); });
    m_form.cmdInc.OnClick = [this] {
        shell::Guard(m_form.boxes, shell::kCommandFailed, [this] { AddStep(); });
    };
    m_form.lbltxtAngle.OnClick = [this] {
        shell::Guard(m_form.boxes, shell::kCommandFailed, [this] { TakeTipAngle(); });
    };
}

double DirectionClock::Rotation() const {
    return m_form.publics.CurrentTool == shell::Tool::Particle ? GetRotAngle(m_form) : 0;
}

void DirectionClock::Reset() {
    m_hour = kHourRight;
    m_form.txtAngle.SetText("0");
    Draw();
}

void DirectionClock::Draw() {
    const std::string& angle = m_form.txtAngle.Text();
    DrawClockFace(m_form.picClock.Canvas(), m_hour, numeric::IsNum(angle) ? numeric::ToNumber(angle) : 0,
                  Rotation());
}

void DirectionClock::FaceMouseDown(const shell::MouseStroke& stroke) {
    const auto hour = ClockHourAt(stroke.x, stroke.y, Rotation());
    if (!hour)
        return;
    m_hour = *hour;
    Draw();
    Offer(numeric::ToNumber(m_form.txtAngle.Text()));
}

void DirectionClock::EnterAngle() { OfferWithAngle(numeric::ToNumber(m_form.txtAngle.Text())); }

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
    const double step = numeric::ToNumber(m_form.cmdInc.Caption());
    double angle = numeric::ToNumber(m_form.txtAngle.Text());
    if (angle + step < kAngleLimit) {
        angle += step;
        m_form.txtAngle.SetText(numeric::NumberToText(angle));
    }
    Offer(angle);
}

void DirectionClock::TakeTipAngle() {
    const std::string angle = m_form.lbltxtAngle.Tooltip().substr(kTipPrefix.size());
    m_form.txtAngle.SetText(angle);
    Offer(numeric::ToNumber(angle));
}

void DirectionClock::OfferWithAngle(double angle) {
    if (IsAxisHour(m_hour))
        m_form.boxes.Tell("Fija la hora correctamente.");
    else
        Offer(angle);
}

void DirectionClock::Offer(double angle) {
    Draw();
    m_form.txtVector.SetText(ClockText(m_hour, angle));
    m_form.SetFocus(m_form.txtVector);
}

}  // namespace tavrelo::vectors
