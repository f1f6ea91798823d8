#include "tools/rigid/rigid_dcl_tab.h"

#include <algorithm>
#include <array>
#include <span>

#include "numeric/checked.h"
#include "text/utf8.h"
#include "tools/rigid/rigid_grid.h"

namespace tavrelo::tools::rigid {
namespace {

// Indexes of txtBody: the body, its points, the force on the first point, and the values on the others.
constexpr int kBodyBox = 0;
constexpr int kPointsBox = 1;
constexpr int kForceBox = 2;
constexpr int kFirstValueBox = 3;
constexpr int kLastValueBox = 7;
constexpr std::size_t kMostPoints = 6;

// Indexes of cmdDCL.
enum Command { kRemoveLast = 0, kRemoveChosen = 1, kStart = 2, kDraw = 3 };

constexpr std::array<std::string_view, 4> kConfigurationWords = {"CON", "CONF", "CONFI", "CONFIG"};
constexpr std::array<std::string_view, 3> kEquationWords = {"RES", "RESO", "RESOL"};
constexpr std::string_view kForceLabel = "Fuerza[:][/Par] en";
constexpr const char* kNoPoint = "No existe el punto dado.";
constexpr const char* kNoSeries = "Serie de fuerzas sólo para formatos \"hCx\" o \"vCy\".";

bool IsOneOf(std::span<const std::string_view> words, std::string_view text) {
    return std::ranges::find(words, text) != words.end();
}

bool StartsSeries(std::string_view force) { return force.starts_with('h') || force.starts_with('v'); }

/// What is wrong with a chain of points as a text.
std::optional<text::Refusal> CheckLetters(std::string_view points) {
    if (text::CharacterCount(points) > kMostPoints)
        return text::Refusal{"Cadena de máximo 6 letras."};
    if (!std::ranges::all_of(points, [](char letter) { return letter >= 'A' && letter <= 'Z'; }))
        return text::Refusal{"Los puntos se denotan con letras."};
    if (mechanics::rigid::HasRepeated(points))
        return text::Refusal{"Hay un punto repetido."};
    return {};
}

}  // namespace

DclTab::DclTab(RigidBoard& board) : m_board(board), m_form(board.Form()), m_problem(board.Problem()) {
    Wire();
}

void DclTab::Wire() {
    m_form.txtBody[kBodyBox].OnKeyPress = m_board.OnEnter([this] { EnterBody(); });
    m_form.txtBody[kPointsBox].OnKeyPress = m_board.OnEnter([this] { EnterPoints(); });
    m_form.txtBody[kForceBox].OnKeyPress = m_board.OnEnter([this] { EnterForce(); });
    for (int index = kFirstValueBox; index <= kLastValueBox; ++index)
        m_form.txtBody[index].OnKeyPress = m_board.OnEnter([this, index] { EnterNextForce(index); });
    for (const auto& [index, option] : m_form.optDCL.Items())
        option->OnClick = m_board.Guarded([this, system = index + 1] { ChooseBody(system); });
    for (const auto& [index, button] : m_form.cmdDCL.Items())
        button->OnClick = m_board.Guarded([this, index = index] { RunCommand(index); });
    m_form.cmdOK1.OnClick = m_board.Guarded([this] { AddForces(); });
    m_form.cmdAddForce.OnClick = m_board.Guarded([this] { AddGlobalForces(); });
}

void DclTab::Enter() {
    for (const auto& [index, option] : m_form.optDCL.Items())
        option->SetEnabled(m_problem.IsDefined(index + 1));
}

/// The body whose number is typed; 0 for any other text.
int DclTab::Body() const {
    const std::string text = text::Trim(m_form.txtBody[kBodyBox].Text());
    const bool is_system = text.size() == 1 && text[0] >= '1' && text[0] <= '0' + mechanics::rigid::kSystems;
    return is_system ? text[0] - '0' : 0;
}

/// Whether the number of a body is typed; any other text is refused.
bool DclTab::HasBody() {
    if (Body() != 0)
        return true;
    window::TextBox& box = m_form.txtBody[kBodyBox];
    m_board.Refuse(mechanics::rigid::SystemNotDefined(text::Trim(box.Text())), box);
    return false;
}

std::string DclTab::PointsText() const {
    return text::ToUpper(text::Trim(m_form.txtBody[kPointsBox].Text()));
}

std::vector<std::string> DclTab::Points() const { return mechanics::rigid::LettersOf(PointsText()); }

bool DclTab::ShowBody(int system) {
    if (!m_problem.IsDefined(system))
        return false;
    m_form.txtBody[kBodyBox].SetText(std::to_string(system));
    m_form.optDCL[system - 1].Choose();
    m_problem.shown.fill(false);
    m_problem.Show(system, true);
    m_board.Redraw();
    return true;
}

void DclTab::ChooseBody(int system) {
    if (!ShowBody(system))
        m_form.boxes.Tell(mechanics::rigid::SystemNotDefined(std::to_string(system)).text);
}

void DclTab::EnterBody() {
    window::TextBox& box = m_form.txtBody[kBodyBox];
    if (!ShowBody(Body()))
        return m_board.Refuse(mechanics::rigid::SystemNotDefined(text::Trim(box.Text())), box);
    m_form.SetFocus(m_form.txtBody[kPointsBox]);
}

void DclTab::EnterPoints() {
    window::TextBox& box = m_form.txtBody[kPointsBox];
    const std::string text = PointsText();
    box.SetText(text);
    if (IsOneOf(kConfigurationWords, text))
        return OnConfigurationWanted();
    if (IsOneOf(kEquationWords, text))
        return OnEquationsWanted();
    if (text.empty() || !HasBody())
        return;
    if (const auto refusal = CheckLetters(text))
        return m_board.Refuse(*refusal, box);
    const std::vector<std::string> points = mechanics::rigid::LettersOf(text);
    for (const std::string& point : points)
        if (const auto refusal = CheckPoint(point))
            return m_board.Refuse(*refusal, box);
    OpenForceBoxes(points);
    m_form.SetFocus(m_form.txtBody[kForceBox]);
}

/// Why no force of the present body can act on the point.
std::optional<text::Refusal> DclTab::CheckPoint(const std::string& point) const {
    if (m_problem.LettersOfSystem(1).find(point) == std::string::npos)
        return text::Refusal{"El punto " + point + " no pertenece a ningún cuerpo."};
    if (m_problem.LettersOfSystem(Body()).find(point) == std::string::npos)
        return text::Refusal{"El punto " + point + " no pertenece al cuerpo " +
                             text::Trim(m_form.txtBody[kBodyBox].Text())};
    return {};
}

/// Names the boxes after the points: one for the first point, and one for each further point.
void DclTab::OpenForceBoxes(const std::vector<std::string>& points) {
    m_form.lblForceAt[0].SetCaption(std::string(kForceLabel) + (points.empty() ? "" : " " + points.front()));
    for (int index = kFirstValueBox; index <= kLastValueBox; ++index) {
        const std::size_t place = static_cast<std::size_t>(index - kForceBox);
        const bool opens = place < points.size();
        m_form.txtBody[index].SetEnabled(opens);
        m_form.lblForceAt[static_cast<int>(place)].SetCaption(opens ? "en " + points[place] : "");
    }
}

void DclTab::EnterForce() {
    window::TextBox& box = m_form.txtBody[kForceBox];
    const std::string text = text::Trim(box.Text());
    box.SetText(text);
    if (const auto reference = mechanics::rigid::ReadRowReference(text))
        return AddReference(reference->row, reference->negated);
    const std::vector<std::string> points = Points();
    if (points.size() > 1) {
        if (!StartsSeries(text))
            return m_board.Refuse({kNoSeries}, box);
        return m_form.SetFocus(m_form.txtBody[kFirstValueBox]);
    }
    if (points.size() == 1)
        if (const std::string support = mechanics::rigid::SupportText(text, points.front()); !support.empty())
            box.SetText(support);
    m_form.SetFocus(m_form.cmdOK1);
}

/// The force of a row of the table, or the opposite one, acts on the present point too.
void DclTab::AddReference(int row, bool negated) {
    window::TextBox& box = m_form.txtBody[kForceBox];
    if (row < 1 || row > static_cast<int>(m_problem.forces.size()))
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "row of forces");
    std::string text = m_problem.forces[static_cast<std::size_t>(row) - 1].text;
    if (negated) {
        auto opposite = mechanics::rigid::NegateForceText(text);
        if (const auto* refusal = std::get_if<text::Refusal>(&opposite))
            return m_board.Refuse(*refusal, box);
        text = std::get<std::string>(opposite);
    }
    box.SetText(text);
    AddForces();
}

void DclTab::EnterNextForce(int index) {
    if (index < kLastValueBox && m_form.txtBody[index + 1].IsUsable())
        m_form.SetFocus(m_form.txtBody[index + 1]);
    else
        m_form.SetFocus(m_form.cmdOK1);
}

void DclTab::AddForces() {
    if (ForceText(0).empty() || !HasBody())
        return;
    if (const auto refusal = CheckPoints())
        return m_board.Refuse(*refusal, m_form.txtBody[kPointsBox]);
    const std::vector<std::string> points = Points();
    mechanics::rigid::BodyForces added;
    for (std::size_t place = 0; place < points.size(); ++place) {
        const auto refusal = ReadForce(place, points[place], added);
        if (refusal)
            return m_board.Refuse(*refusal, m_form.txtBody[kForceBox + static_cast<int>(place)]);
    }
    for (mechanics::rigid::BodyForce& force : added)
        m_board.AddForce(std::move(force));
    m_board.Redraw();
    for (int index = kForceBox; index <= kLastValueBox; ++index)
        m_form.txtBody[index].SetText("");
    m_form.SetFocus(m_form.txtBody[kForceBox]);
}

/// Adds the force that is typed for a point to the list; an empty box gives its point no force.
std::optional<text::Refusal> DclTab::ReadForce(std::size_t place, const std::string& point,
                                               mechanics::rigid::BodyForces& added) const {
    const std::string text = ForceText(place);
    if (text.empty())
        return {};
    if (place > 0 && !StartsSeries(ForceText(0)))
        return text::Refusal{kNoSeries};
    auto read = mechanics::rigid::ReadBodyForce(Body(), *mechanics::rigid::FindPoint(m_problem.points, point),
                                                text, m_board.Decimals());
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    added.push_back(std::get<mechanics::rigid::BodyForce>(std::move(read)));
    return {};
}

/// Why the points that are typed take no force.
std::optional<text::Refusal> DclTab::CheckPoints() const {
    const std::vector<std::string> points = Points();
    if (points.empty())
        return text::Refusal{kNoPoint};
    for (const std::string& point : points)
        if (mechanics::rigid::PointIndex(m_problem.points, point) == 0)
            return text::Refusal{kNoPoint};
    if (auto refusal = CheckLetters(PointsText()))
        return refusal;
    for (const std::string& point : points)
        if (auto refusal = CheckPoint(point))
            return refusal;
    return {};
}

/// The text of the force on a point: as typed on the first one, a further value of the series on the others.
std::string DclTab::ForceText(std::size_t place) const {
    std::string first = text::Trim(m_form.txtBody[kForceBox].Text());
    if (place == 0)
        return first;
    const std::string value = text::Trim(m_form.txtBody[kForceBox + static_cast<int>(place)].Text());
    return value.empty() ? "" : mechanics::rigid::SeriesText(first, value);
}

/// Copies the forces of the whole on points of the present body that it does not have yet.
void DclTab::AddGlobalForces() {
    const int body = Body();
    const auto is_new = [&](const mechanics::rigid::BodyForce& force) {
        return force.body == 1 && m_problem.LettersOfSystem(body).find(force.point) != std::string::npos &&
               std::ranges::none_of(m_problem.forces, [&](const mechanics::rigid::BodyForce& own) {
                   return own.body == body && own.point == force.point && own.text == force.text;
               });
    };
    if (!HasBody() || body == 1)
        return;
    mechanics::rigid::BodyForces added;
    std::ranges::copy_if(m_problem.forces, std::back_inserter(added), is_new);
    for (mechanics::rigid::BodyForce& force : added) {
        force.body = body;
        m_board.AddForce(std::move(force));
    }
    m_board.Redraw();
}

void DclTab::RunCommand(int index) {
    if (m_problem.forces.empty())
        return;
    switch (index) {
        case kRemoveLast:
            m_board.RemoveForce(m_problem.forces.size());
            return m_board.Draw();
        case kRemoveChosen:
            m_board.RemoveForce(static_cast<std::size_t>(std::max(1, m_form.gd1.Row())));
            return m_board.Draw();
        case kStart:
            RestoreDCLCtrls();
            return m_form.SetFocus(m_form.txtBody[kBodyBox]);
        case kDraw:
            return m_board.Redraw();
        default:
            return;
    }
}

void DclTab::RestoreDCLCtrls() {
    m_form.txtBody[kBodyBox].SetText("1");
    for (const auto& [index, option] : m_form.optDCL.Items())
        option->Uncheck();
    for (int index = kPointsBox; index <= kLastValueBox; ++index)
        m_form.txtBody[index].SetText("");
    OpenForceBoxes({});
}

}  // namespace tavrelo::tools::rigid
