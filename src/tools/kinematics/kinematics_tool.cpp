#include "tools/kinematics/kinematics_tool.h"

#include "frame/writer.h"
#include "mechanics/kinematics/kinematics_report.h"
#include "numeric/ode.h"
#include "text/number_text.h"
#include "tools/kinematics/kinematics_graph.h"
#include "window/guarded.h"

namespace tavrelo::tools::kinematics {
namespace {

using mechanics::kinematics::Way;

enum StartIndex { kStartTime, kStartPlace, kStartSpeed };
enum TimeIndex { kTime, kLastTime };
enum CurveIndex { kCurveX, kCurveV, kCurveA };

/// What a formula, a start value or a time is typed with, besides letters and digits.
constexpr std::u32string_view kFormulaSigns = U".,()[]{}+-*/^ ";

bool IsFormulaCharacter(char32_t character) {
    const auto in = [character](char32_t first, char32_t last) {
        return character >= first && character <= last;
    };
    return in(U'0', U'9') || in(U'a', U'z') || in(U'A', U'Z') || character == window::kBackspaceCharacter ||
           kFormulaSigns.find(character) != std::u32string_view::npos;
}

}  // namespace

KinematicsTool::KinematicsTool(window::Form1& form)
    : m_form(form), m_controls(form), m_panel(&PanelOf(static_cast<int>(Way::Position))) {
    window::OnClick(form, m_controls.calculate, [this] { Calculate(); });
    window::OnClick(form, m_controls.draw, [this] { Draw(); });
    for (const auto* boxes : {&m_controls.formulas, &m_controls.starts, &m_controls.times})
        for (const auto& [index, box] : boxes->Items())
            window::On(form, box->OnKeyPress, [this](char32_t character) { return !Takes(character); });
}

bool KinematicsTool::Takes(char32_t character) {
    const bool takes = IsFormulaCharacter(character);
    if (takes)
        m_controls.picture.Canvas().Invite({});
    return takes;
}

frame::ToolHooks KinematicsTool::Hooks() {
    return {.on_entry = [this] { m_form.SetFocus(m_controls.formulas[0]); },
            .uses_pic1 = true,
            .invitation = "Escribe la función del movimiento y oprime \"Calcular\" o \"Graficar\"."};
}

void KinematicsTool::ShowWay(int way) {
    m_panel = &PanelOf(way);
    m_controls.line_labels[0].SetCaption(std::string(m_panel->first_line));
    m_controls.line_labels[1].SetCaption(std::string(m_panel->second_line));
    m_controls.line_labels[1].SetVisible(InPlane());
    m_controls.formulas[1].SetVisible(InPlane());
    for (const auto& [index, label] : m_controls.start_labels.Items()) {
        label->SetVisible(index < m_panel->start_values);
        m_controls.starts[index].SetVisible(index < m_panel->start_values);
    }
    for (const auto& [index, box] : m_controls.curves.Items())
        box->SetVisible(!InPlane());
}

double KinematicsTool::StartValue(int index) const {
    return index < m_panel->start_values ? text::ToNumber(m_controls.starts[index].Text()) : 0;
}

mechanics::kinematics::LineMotion KinematicsTool::TypedLine() const {
    return {m_panel->way,
            m_controls.formulas[0].Text(),
            {StartValue(kStartTime), StartValue(kStartPlace), StartValue(kStartSpeed)}};
}

mechanics::kinematics::PlaneMotion KinematicsTool::TypedPlane() const {
    return {m_panel->way, m_controls.formulas[0].Text(), m_controls.formulas[1].Text()};
}

void KinematicsTool::TellTooManySteps() {
    m_form.boxes.ShowMessage(numeric::kTooManySteps, numeric::kTooManyStepsTitle, window::Buttons::Ok);
}

void KinematicsTool::Calculate() {
    const std::string time = m_controls.times[kTime].Text();
    if (!text::IsNum(time)) {
        m_form.boxes.Tell("Valor no numérico para el tiempo.");
        return;
    }
    const double t = text::ToNumber(time);
    if (InPlane())
        CalculatePlane(t);
    else
        CalculateLine(t);
}

void KinematicsTool::CalculatePlane(double t) {
    const auto state = mechanics::kinematics::PlaneAt(TypedPlane(), t, m_form.publics.AngleFactor);
    frame::WriteLines(m_form, m_controls.report,
                      mechanics::kinematics::ReportOf(state, m_panel->way, m_form.publics.Decimals));
}

void KinematicsTool::CalculateLine(double t) {
    const auto outcome = mechanics::kinematics::LineAt(TypedLine(), t, m_form.publics.AngleFactor);
    if (const auto* state = std::get_if<mechanics::kinematics::LineState>(&outcome))
        frame::WriteLines(m_form, m_controls.report,
                          mechanics::kinematics::ReportOf(*state, m_form.publics.Decimals));
    else
        TellTooManySteps();
}

void KinematicsTool::Draw() {
    const std::string first = m_controls.times[kTime].Text();
    const std::string last = m_controls.times[kLastTime].Text();
    if (!text::IsNum(first) || !text::IsNum(last)) {
        m_form.boxes.Tell("Valor no numérico para uno de los tiempos.");
        return;
    }
    const double t0 = text::ToNumber(first);
    const double t1 = text::ToNumber(last);
    if (InPlane())
        DrawPlane(t0, t1);
    else
        DrawLine(t0, t1);
}

void KinematicsTool::DrawPlane(double t0, double t1) {
    const auto path = mechanics::kinematics::SamplePlane(TypedPlane(), t0, t1, m_form.publics.AngleFactor);
    DrawTrajectory(m_controls.picture.Canvas(), path, m_form.publics.Decimals);
}

void KinematicsTool::DrawLine(double t0, double t1) {
    const auto& curves = m_controls.curves;
    const auto choice = [&curves] {
        return mechanics::kinematics::CurveChoice{curves[kCurveX].Checked(), curves[kCurveV].Checked(),
                                                  curves[kCurveA].Checked()};
    };
    if (choice().None()) {
        m_form.boxes.Tell("Se graficará x(t).");
        curves[kCurveX].SetChecked(true);
    }
    const auto outcome =
        mechanics::kinematics::SampleLine(TypedLine(), t0, t1, choice(), m_form.publics.AngleFactor);
    if (const auto* sampled = std::get_if<mechanics::kinematics::LineCurves>(&outcome))
        DrawCurves(m_controls.picture.Canvas(), *sampled, m_form.publics.Decimals);
    else
        TellTooManySteps();
}

}  // namespace tavrelo::tools::kinematics
