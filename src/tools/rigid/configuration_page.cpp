#include "tools/rigid/configuration_page.h"

#include <algorithm>
#include <array>

#include "drawing/words.h"
#include "notation/number_product.h"
#include "notation/vector_format.h"
#include "text/utf8.h"
#include "tools/rigid/rigid_picture.h"
#include "window/guarded.h"
#include "window/questions.h"

namespace tavrelo::tools::rigid {
namespace {

using mechanics::rigid::ChainField;
using mechanics::rigid::ChainRefusal;
using mechanics::rigid::LineCommand;
using mechanics::rigid::RigidProblem;
using mechanics::rigid::StructureStep;

// Indexes of txtSegm: the chain, the vector of its first pair, and the magnitudes of the further pairs.
constexpr int kChainBox = 0;
constexpr int kVectorBox = 1;
constexpr int kFirstMagnitudeBox = 2;
constexpr int kLastMagnitudeBox = 6;

// Indexes of lblSegm.
constexpr int kFirstPairLabel = 1;
constexpr int kOtherPairsLabel = 2;

constexpr int kCancelLast = 0;  // index of cmdConfig

constexpr std::array<std::string_view, 5> kDiagramWords = {"DCL", "DIA", "DIAG", "DIAGR", "DCLS"};
constexpr std::string_view kPairGap = "         ";

/// The first pair of a chain of letters, and the others with gaps between them.
std::string FirstPair(std::string_view chain) { return std::string(chain.substr(0, 2)); }
std::string OtherPairs(std::string_view chain) {
    std::string pairs;
    for (std::size_t start = 1; start + 1 < chain.size(); ++start)
        pairs.append(pairs.empty() ? "" : kPairGap).append(chain.substr(start, 2));
    return pairs;
}

bool IsDiagramWord(const std::string& chain) {
    return std::ranges::find(kDiagramWords, chain) != kDiagramWords.end();
}

std::string TypedIn(const window::TextBox& box) { return text::Trim(box.Text()); }
std::string CapitalsIn(const window::TextBox& box) { return text::ToUpper(TypedIn(box)); }

}  // namespace

ConfigurationPage::ConfigurationPage(ProblemInView& view)
    : m_view(view), m_form(view.Form()), m_controls(m_form) {
    m_controls.spnColor.SetRange(1, mechanics::rigid::kSystems);
    for (const auto& [index, label] : m_controls.lblPoints.Items())
        label->SetForeColor(SystemColor(index + 1));
    // Each pair stands over the box of its magnitude.
    m_controls.lblSegm[kOtherPairsLabel].SetWordPitch(
        m_controls.txtSegm[kFirstMagnitudeBox + 1].Bounds().left -
        m_controls.txtSegm[kFirstMagnitudeBox].Bounds().left);
    Wire();
}

void ConfigurationPage::Wire() {
    auto& c = m_controls;
    for (const auto& [index, box] : c.txtSegm.Items())
        On(m_form, box->OnKeyDown,
           [this, index = index](const window::KeyStroke& stroke) { return ArrowKey(index, stroke); });
    OnEnter(m_form, c.txtSegm[kChainBox], [this] { EnterChain(); });
    On(m_form, c.txtSegm[kChainBox].OnChange, [this] { CloseMagnitudes(); });
    OnEnter(m_form, c.txtSegm[kVectorBox], [this] { EnterVector(); });
    for (int index = kFirstMagnitudeBox; index <= kLastMagnitudeBox; ++index)
        OnEnter(m_form, c.txtSegm[index], [this, index] { EnterMagnitude(index); });
    OnEnter(m_form, c.txtRepeat, [this] { GoBehind(kVectorBox); });
    On(m_form, c.txtRepeat.OnLostFocus,
       [this] { m_controls.txtRepeat.SetText(text::ToUpper(m_controls.txtRepeat.Text())); });
    OnClick(m_form, c.cmdOK, [this] { AddVectors(); });
    OnClick(m_form, c.cmdConfig[kCancelLast], [this] { CancelLastVector(); });
    OnClick(m_form, c.cmdUpdate, [this] { ChangeOrigin(); });
    OnEnter(m_form, c.txtOrigin, [this] { ChangeOrigin(); });
    OnEnter(m_form, c.txtPoints, [this] { EnterLine(); });
    OnClick(m_form, c.lstSysts, [this] { ChooseSystemPoints(); });
    On(m_form, c.spnColor.OnChange, [this] { ShowSystemChoice(); });
}

void ConfigurationPage::Focus() { m_form.SetFocus(m_controls.txtSegm[kChainBox]); }

void ConfigurationPage::FocusAndSelect() {
    Focus();
    m_controls.txtSegm[kChainBox].SelectAll();
}

/// The arrow keys at the ends of a box go to the box before or behind it.
bool ConfigurationPage::ArrowKey(int index, const window::KeyStroke& stroke) {
    const window::TextBox& box = m_controls.txtSegm[index];
    if (box.Selection().length > 0)
        return false;
    if (stroke.key == window::Key::Left && box.Selection().start == 0 && index > kChainBox) {
        window::TextBox& previous = m_controls.txtSegm[index - 1];
        m_form.SetFocus(previous);
        previous.PutCaretAtEnd();
        return true;
    }
    if (stroke.key == window::Key::Right && box.Selection().start == box.Length() &&
        index < kLastMagnitudeBox && m_controls.txtSegm[index + 1].IsUsable()) {
        window::TextBox& next = m_controls.txtSegm[index + 1];
        m_form.SetFocus(next);
        next.Select({0, 0});
        return true;
    }
    return false;
}

void ConfigurationPage::EnterChain() {
    window::TextBox& box = m_controls.txtSegm[kChainBox];
    const std::string chain = CapitalsIn(box);
    box.SetText(chain);
    if (IsDiagramWord(chain))
        return OnDiagramsWanted();
    if (const auto refusal = mechanics::rigid::CheckChain(chain))
        return m_view.Refuse(*refusal, box);
    m_controls.lblSegm[kFirstPairLabel].SetCaption(FirstPair(chain));
    m_controls.lblSegm[kOtherPairsLabel].SetCaption(OtherPairs(chain));
    const int pairs = static_cast<int>(chain.size()) - 1;
    for (int index = kFirstMagnitudeBox; index <= kLastMagnitudeBox; ++index)
        m_controls.txtSegm[index].SetEnabled(index <= pairs);
    m_form.SetFocus(m_controls.txtSegm[kVectorBox]);
}

/// A chain that changes has no boxes for its further pairs until it is entered.
void ConfigurationPage::CloseMagnitudes() {
    for (const int label : {kFirstPairLabel, kOtherPairsLabel})
        m_controls.lblSegm[label].SetCaption("");
    for (int index = kFirstMagnitudeBox; index <= kLastMagnitudeBox; ++index)
        m_controls.txtSegm[index].SetEnabled(false);
}

void ConfigurationPage::EnterVector() {
    const notation::VectorFormat format = notation::VectorFormatOf(m_controls.txtSegm[kVectorBox].Text());
    if (!format.msg.empty())
        return m_view.Refuse({format.msg}, m_controls.txtSegm[kVectorBox]);
    const bool is_chain = text::CharacterCount(text::Trim(m_controls.txtSegm[kChainBox].Text())) > 2;
    SetSeriesEnabled(!is_chain || mechanics::rigid::NeedsSeries(format.code));
    if (is_chain && mechanics::rigid::NeedsSeries(format.code))
        m_form.SetFocus(m_controls.txtRepeat);
    else
        GoBehind(kVectorBox);
}

void ConfigurationPage::SetSeriesEnabled(bool enabled) {
    m_controls.txtRepeat.SetEnabled(enabled);
    m_controls.lblRepeat.SetEnabled(enabled);
}

void ConfigurationPage::EnterMagnitude(int index) {
    window::TextBox& box = m_controls.txtSegm[index];
    if (!notation::ReadNumberProduct(TypedIn(box)))
        return m_view.Refuse({"El dato no es numérico."}, box);
    GoBehind(index);
}

/// The focus goes to the next box of a further pair, or to the button behind the last one.
void ConfigurationPage::GoBehind(int index) {
    if (index < kLastMagnitudeBox && m_controls.txtSegm[index + 1].IsUsable())
        m_form.SetFocus(m_controls.txtSegm[index + 1]);
    else
        m_form.SetFocus(m_controls.cmdOK);
}

/// The values of the further pairs, as typed; none in a box that is closed.
std::vector<std::string> ConfigurationPage::Magnitudes() const {
    std::vector<std::string> texts;
    for (int index = kFirstMagnitudeBox; index <= kLastMagnitudeBox; ++index)
        texts.push_back(m_controls.txtSegm[index].Enabled() ? text::Trim(m_controls.txtSegm[index].Text())
                                                            : "");
    return texts;
}

void ConfigurationPage::AddVectors() {
    const std::string chain = CapitalsIn(m_controls.txtSegm[kChainBox]);
    const std::string vector = TypedIn(m_controls.txtSegm[kVectorBox]);
    if (chain.empty() || vector.empty())
        return;
    if (IsDiagramWord(chain))
        return OnDiagramsWanted();
    const std::vector<std::string> magnitudes = Magnitudes();
    auto outcome = mechanics::rigid::WithVectors(
        Problem(), {chain, vector, m_controls.txtRepeat.Text(), magnitudes}, Origin(), m_view.Decimals());
    if (const auto* refusal = std::get_if<ChainRefusal>(&outcome))
        return Refuse(*refusal);
    auto& step = std::get<StructureStep>(outcome);
    if (Problem().structure.segments.empty())
        BeginAt(step.problem.structure.origin);
    const auto unknown_origin = step.unknown_origin;
    const mechanics::rigid::PointTable before = Problem().structure.points;
    TakeStructure(std::move(step));
    m_view.Redraw();
    AnnouncePoints(before);
    ShowSeps();
    RestoreConfigCtrls();
    m_form.SetFocus(m_controls.txtSegm[kChainBox]);
    if (unknown_origin)
        m_view.Refuse(*unknown_origin, m_controls.txtOrigin);
}

void ConfigurationPage::AnnouncePoints(const mechanics::rigid::PointTable& before) const {
    std::vector<std::string> added;
    for (const auto& [name, x, y] : Problem().structure.points)
        if (!mechanics::rigid::FindPoint(before, name))
            added.push_back(name + " en " + drawing::PlaceWords(x, y, m_view.Decimals()));
    if (!added.empty())
        m_form.Announce((added.size() == 1 ? "Punto añadido: " : "Puntos añadidos: ") +
                        drawing::ListedAtLength(added) + ".");
}

void ConfigurationPage::Refuse(const ChainRefusal& refusal) {
    m_view.Refuse(refusal.refusal.value_or(text::Refusal{std::string(text::kCommandFailed)}), BoxOf(refusal));
}

window::TextBox& ConfigurationPage::BoxOf(const ChainRefusal& refusal) const {
    if (refusal.field == ChainField::Series)
        return m_controls.txtRepeat;
    if (refusal.field == ChainField::Value)
        return m_controls.txtSegm[kFirstMagnitudeBox + static_cast<int>(refusal.value)];
    return m_controls.txtSegm[refusal.field == ChainField::Chain ? kChainBox : kVectorBox];
}

/// The first point is the origin and the reference point of every system.
void ConfigurationPage::BeginAt(const std::string& point) {
    m_controls.txtOrigin.SetText(point);
    for (const auto& [index, box] : m_controls.txtRefPt.Items())
        box->SetText(point);
}

std::string ConfigurationPage::Origin() const { return CapitalsIn(m_controls.txtOrigin); }

/// An origin that was refused stays as typed.
void ConfigurationPage::TakeStructure(StructureStep step) {
    if (!step.unknown_origin)
        m_controls.txtOrigin.SetText(step.problem.structure.origin);
    m_view.Take(std::move(step.problem));
    ShowCoords();
}

void ConfigurationPage::RestoreConfigCtrls() {
    CloseMagnitudes();
    for (const auto& [index, box] : m_controls.txtSegm.Items())
        box->SetText("");
    m_controls.txtRepeat.SetText("");
    SetSeriesEnabled(true);
}

void ConfigurationPage::CancelLastVector() {
    if (Problem().structure.segments.empty())
        return;
    StructureStep step = mechanics::rigid::WithoutLastVector(Problem(), Origin());
    if (!Problem().forces.empty() &&
        !window::Confirm(m_form.boxes, "Esta acción borrará los DCL's. ¿Deseas proseguir?"))
        return;
    m_view.HideAll();
    if (step.problem.structure.segments.empty())
        return EraseStructure();
    const auto unknown_origin = step.unknown_origin;
    TakeStructure(std::move(step));
    ShowSeps();
    m_view.Draw();
    if (unknown_origin)
        m_view.Refuse(*unknown_origin, m_controls.txtOrigin);
}

void ConfigurationPage::EraseStructure() {
    m_view.Take(mechanics::rigid::RigidProblem{});
    Clear();
    m_view.Draw();
    OnErased();
}

void ConfigurationPage::Clear() {
    RestoreConfigCtrls();
    m_controls.txtOrigin.SetText("");
    m_controls.txtPoints.SetText("");
    for (const auto& [index, box] : m_controls.txtRefPt.Items())
        box->SetText("");
    for (window::ListBox* list : {&m_controls.lstCoords, &m_controls.lstSeps, &m_controls.lstSysts})
        list->Clear();
    for (const auto& [index, label] : m_controls.lblPoints.Items())
        label->SetCaption("");
    m_controls.spnColor.SetValue(1);
}

void ConfigurationPage::ChangeOrigin() {
    if (Problem().structure.segments.empty())
        return;
    auto moved = mechanics::rigid::WithOrigin(Problem(), Origin());
    if (const auto* refusal = std::get_if<text::Refusal>(&moved))
        return m_view.Refuse(*refusal, m_controls.txtOrigin);
    TakeStructure({std::get<RigidProblem>(std::move(moved)), {}});
    m_view.Redraw();
}

void ConfigurationPage::ShowCoords() {
    const auto& [segments, points, origin] = Problem().structure;
    m_controls.lstCoords.SetItems(mechanics::rigid::CoordLines(segments, points, m_view.Decimals()));
}

/// Fills the lists of vectors and of letters. All letters show as chosen, which is the program's choice: no
/// system changes.
void ConfigurationPage::ShowSeps() {
    const mechanics::rigid::SegTable& segments = Problem().structure.segments;
    const std::vector<std::string> letters = mechanics::rigid::LettersOf(segments);
    m_controls.lstSeps.SetItems(mechanics::rigid::SepLines(segments, m_view.Decimals()));
    m_controls.lstSysts.SetItems(letters);
    for (int row = 0; row < static_cast<int>(letters.size()); ++row)
        m_controls.lstSysts.SetChosen(row, true);
    ShowSystems();
}

void ConfigurationPage::ShowSystems() {
    for (const auto& [index, label] : m_controls.lblPoints.Items())
        label->SetCaption(std::string(Problem().LettersOfSystem(index + 1)));
}

void ConfigurationPage::ChooseSystemPoints() {
    std::string letters;
    const std::vector<std::string>& items = m_controls.lstSysts.Items();
    for (std::size_t row = 0; row < items.size(); ++row)
        if (m_controls.lstSysts.IsChosen(static_cast<int>(row)))
            letters += items[row];
    const int system = m_controls.spnColor.Value();
    if (letters.empty())
        m_view.Hide(system);
    m_view.Take(mechanics::rigid::WithSystem(Problem(), system, letters));
    ShowSystems();
    m_view.Draw();
}

void ConfigurationPage::ShowSystemChoice() {
    const std::string_view letters = Problem().LettersOfSystem(m_controls.spnColor.Value());
    const std::vector<std::string>& items = m_controls.lstSysts.Items();
    for (std::size_t row = 0; row < items.size(); ++row)
        m_controls.lstSysts.SetChosen(static_cast<int>(row), letters.find(items[row]) != std::string::npos);
}

void ConfigurationPage::EnterLine() {
    const auto read = mechanics::rigid::ReadLine(m_controls.txtPoints.Text(), Problem().systems,
                                                 Problem().structure.points);
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return m_view.Refuse(*refusal, m_controls.txtPoints);
    const auto& command = std::get<LineCommand>(read);
    const std::size_t before = Problem().lines.size();
    m_view.Take(mechanics::rigid::WithLine(Problem(), command));
    if (Problem().lines.size() == before)
        return;
    if (command.action == LineCommand::Action::Draw)
        m_view.DrawOver(command.line);
    else
        m_view.Draw();
    m_controls.txtPoints.SetText("");
}

}  // namespace tavrelo::tools::rigid
