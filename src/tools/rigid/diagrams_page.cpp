#include "tools/rigid/diagrams_page.h"

#include <algorithm>
#include <array>
#include <span>

#include "numeric/checked.h"
#include "text/utf8.h"
#include "window/guarded.h"

namespace tavrelo::tools::rigid {
namespace {

// Indexes of txtBody: the body, its points, the force on the first point, and the values on the others.
constexpr int kBodyBox = 0;
constexpr int kPointsBox = 1;
constexpr int kForceBox = 2;
constexpr int kFirstValueBox = 3;
constexpr int kLastValueBox = 7;

constexpr int kWhole = 1;  // the system of all points

// Indexes of cmdDCL.
enum Command { kRemoveLast = 0, kRemoveChosen = 1, kStart = 2, kDraw = 3 };

constexpr std::array<std::string_view, 4> kConfigurationWords = {"CON", "CONF", "CONFI", "CONFIG"};
constexpr std::array<std::string_view, 3> kEquationWords = {"RES", "RESO", "RESOL"};
constexpr std::string_view kForceLabel = "Fuerza[:][/Par] en";
bool IsOneOf(std::span<const std::string_view> words, std::string_view text) {
    return std::ranges::find(words, text) != words.end();
}

std::string TypedIn(const window::TextBox& box) { return text::Trim(box.Text()); }

}  // namespace

DiagramsPage::DiagramsPage(ProblemInView& view) : m_view(view), m_form(view.Form()), m_controls(m_form) {
    Wire();
}

void DiagramsPage::Wire() {
    auto& c = m_controls;
    OnEnter(m_form, c.txtBody[kBodyBox], [this] { EnterBody(); });
    OnEnter(m_form, c.txtBody[kPointsBox], [this] { EnterPoints(); });
    OnEnter(m_form, c.txtBody[kForceBox], [this] { EnterForce(); });
    for (int index = kFirstValueBox; index <= kLastValueBox; ++index)
        OnEnter(m_form, c.txtBody[index], [this, index] { EnterNextForce(index); });
    OnClick(m_form, m_view.Controls().optDCL, [this](int index) { ChooseBody(index + 1); });
    OnClick(m_form, c.cmdDCL, [this](int index) { RunCommand(index); });
    OnClick(m_form, c.cmdOK1, [this] { AddForces(); });
    OnClick(m_form, c.cmdAddForce, [this] { CopyForcesOfTheWhole(); });
}

void DiagramsPage::Enter() {
    for (const auto& [index, option] : m_view.Controls().optDCL.Items())
        option->SetEnabled(Problem().IsDefined(index + 1));
}

void DiagramsPage::FocusAndSelect() {
    m_form.SetFocus(m_controls.txtBody[kPointsBox]);
    m_controls.txtBody[kPointsBox].SelectAll();
}

/// The body whose number is typed; 0 for any other text.
int DiagramsPage::Body() const {
    const std::string text = TypedIn(m_controls.txtBody[kBodyBox]);
    const bool is_system = text.size() == 1 && text[0] >= '1' && text[0] <= '0' + mechanics::rigid::kSystems;
    return is_system ? text[0] - '0' : 0;
}

/// Whether the number of a body is typed; any other text is refused.
bool DiagramsPage::HasBody() {
    if (Body() != 0)
        return true;
    m_view.Refuse(BodyNotDefined(), m_controls.txtBody[kBodyBox]);
    return false;
}

text::Refusal DiagramsPage::BodyNotDefined() const {
    return mechanics::rigid::SystemNotDefined(TypedIn(m_controls.txtBody[kBodyBox]));
}

std::string DiagramsPage::PointsText() const {
    return text::ToUpper(TypedIn(m_controls.txtBody[kPointsBox]));
}

std::vector<std::string> DiagramsPage::Points() const { return mechanics::rigid::LettersOf(PointsText()); }

bool DiagramsPage::ShowBody(int system) {
    if (!Problem().IsDefined(system))
        return false;
    m_controls.txtBody[kBodyBox].SetText(std::to_string(system));
    m_view.ShowAlone(system);
    m_view.Redraw();
    return true;
}

void DiagramsPage::ChooseBody(int system) {
    if (!ShowBody(system))
        m_form.boxes.Tell(mechanics::rigid::SystemNotDefined(std::to_string(system)).text);
}

void DiagramsPage::EnterBody() {
    if (!ShowBody(Body()))
        return m_view.Refuse(BodyNotDefined(), m_controls.txtBody[kBodyBox]);
    m_form.SetFocus(m_controls.txtBody[kPointsBox]);
}

void DiagramsPage::EnterPoints() {
    window::TextBox& box = m_controls.txtBody[kPointsBox];
    const std::string text = PointsText();
    box.SetText(text);
    if (IsOneOf(kConfigurationWords, text))
        return OnConfigurationWanted();
    if (IsOneOf(kEquationWords, text))
        return OnEquationsWanted();
    if (text.empty() || !HasBody())
        return;
    if (const auto refusal = mechanics::rigid::CheckForcePoints(Problem(), Body(), text))
        return m_view.Refuse(*refusal, box);
    OpenForceBoxes(Points());
    m_form.SetFocus(m_controls.txtBody[kForceBox]);
}

/// Names the boxes after the points: one for the first point, and one for each further point.
void DiagramsPage::OpenForceBoxes(const std::vector<std::string>& points) {
    m_controls.lblForceAt[0].SetCaption(std::string(kForceLabel) +
                                        (points.empty() ? "" : " " + points.front()));
    for (int index = kFirstValueBox; index <= kLastValueBox; ++index) {
        const std::size_t place = static_cast<std::size_t>(index - kForceBox);
        const bool opens = place < points.size();
        m_controls.txtBody[index].SetEnabled(opens);
        m_controls.lblForceAt[static_cast<int>(place)].SetCaption(opens ? "en " + points[place] : "");
    }
}

void DiagramsPage::EnterForce() {
    window::TextBox& box = m_controls.txtBody[kForceBox];
    const std::string text = TypedIn(box);
    box.SetText(text);
    if (const auto reference = mechanics::rigid::ReadRowReference(text))
        return AddReference(reference->row, reference->negated);
    const std::vector<std::string> points = Points();
    if (points.size() > 1) {
        if (const auto refusal = mechanics::rigid::CheckSeries(text))
            return m_view.Refuse(*refusal, box);
        return m_form.SetFocus(m_controls.txtBody[kFirstValueBox]);
    }
    if (points.size() == 1)
        if (const std::string support = mechanics::rigid::SupportText(text, points.front()); !support.empty())
            box.SetText(support);
    m_form.SetFocus(m_controls.cmdOK1);
}

/// The force of a row of the table, or the opposite one, acts on the present point too.
void DiagramsPage::AddReference(int row, bool negated) {
    window::TextBox& box = m_controls.txtBody[kForceBox];
    if (row < 1 || row > static_cast<int>(Problem().forces.size()))
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "row of forces");
    std::string text = Problem().forces[static_cast<std::size_t>(row) - 1].text;
    if (negated) {
        auto opposite = mechanics::rigid::NegateForceText(text);
        if (const auto* refusal = std::get_if<text::Refusal>(&opposite))
            return m_view.Refuse(*refusal, box);
        text = std::get<std::string>(opposite);
    }
    box.SetText(text);
    AddForces();
}

void DiagramsPage::EnterNextForce(int index) {
    if (index < kLastValueBox && m_controls.txtBody[index + 1].IsUsable())
        m_form.SetFocus(m_controls.txtBody[index + 1]);
    else
        m_form.SetFocus(m_controls.cmdOK1);
}

void DiagramsPage::AddForces() {
    const std::string force = TypedIn(m_controls.txtBody[kForceBox]);
    if (force.empty() || !HasBody())
        return;
    const std::vector<std::string> values = Values();
    auto outcome =
        mechanics::rigid::WithForces(Problem(), {Body(), PointsText(), force, values}, m_view.Decimals());
    if (const auto* refused = std::get_if<mechanics::rigid::ForceRefusal>(&outcome)) {
        const int box = refused->point ? kForceBox + static_cast<int>(*refused->point) : kPointsBox;
        return m_view.Refuse(refused->refusal, m_controls.txtBody[box]);
    }
    m_view.Take(std::get<mechanics::rigid::ForceStep>(std::move(outcome)));
    m_view.Redraw();
    for (int index = kForceBox; index <= kLastValueBox; ++index)
        m_controls.txtBody[index].SetText("");
    m_form.SetFocus(m_controls.txtBody[kForceBox]);
}

/// The further values of a series, as typed.
std::vector<std::string> DiagramsPage::Values() const {
    std::vector<std::string> values;
    for (int index = kFirstValueBox; index <= kLastValueBox; ++index)
        values.push_back(m_controls.txtBody[index].Text());
    return values;
}

/// Copies the forces of the whole on points of the present body that it does not have yet.
void DiagramsPage::CopyForcesOfTheWhole() {
    if (!HasBody() || Body() == kWhole)
        return;
    m_view.CopyForces(mechanics::rigid::ForcesToCopy(Problem(), Body()), Body());
    m_view.Redraw();
}

void DiagramsPage::RunCommand(int index) {
    if (Problem().forces.empty())
        return;
    switch (index) {
        case kRemoveLast:
            m_view.RemoveForce(Problem().forces.size() - 1);
            return m_view.Draw();
        case kRemoveChosen:
            m_view.RemoveForce(static_cast<std::size_t>(std::max(1, m_view.Controls().gd1.Row())) - 1);
            return m_view.Draw();
        case kStart:
            RestoreDCLCtrls();
            return m_form.SetFocus(m_controls.txtBody[kBodyBox]);
        case kDraw:
            return m_view.Redraw();
        default:
            return;
    }
}

void DiagramsPage::RestoreDCLCtrls() {
    m_controls.txtBody[kBodyBox].SetText("1");
    for (const auto& [index, option] : m_view.Controls().optDCL.Items())
        option->Uncheck();
    for (int index = kPointsBox; index <= kLastValueBox; ++index)
        m_controls.txtBody[index].SetText("");
    OpenForceBoxes({});
}

}  // namespace tavrelo::tools::rigid
