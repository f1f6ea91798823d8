#include "tools/rigid/rigid_config_tab.h"

#include <algorithm>
#include <array>

#include "mechanics/rigid/rigid_lines.h"
#include "mechanics/rigid/structure_changes.h"
#include "notation/vector_format.h"
#include "text/number_text.h"
#include "text/utf8.h"

namespace tavrelo::tools::rigid {
namespace {

using window::Answer;

// Indexes of txtSegm: the chain, the vector of its first pair, and the magnitudes of the further pairs.
constexpr int kChainBox = 0;
constexpr int kVectorBox = 1;
constexpr int kFirstMagnitudeBox = 2;
constexpr int kLastMagnitudeBox = 6;

// Indexes of lblSegm.
constexpr int kFirstPairLabel = 1;
constexpr int kOtherPairsLabel = 2;

constexpr std::array<std::string_view, 5> kDiagramWords = {"DCL", "DIA", "DIAG", "DIAGR", "DCLS"};
constexpr std::string_view kPairGap = "         ";

std::string OtherPairs(std::string_view chain) {
    std::string pairs;
    for (std::size_t start = 1; start + 1 < chain.size(); ++start)
        pairs.append(pairs.empty() ? "" : kPairGap).append(chain.substr(start, 2));
    return pairs;
}

/// The letters of `letters` that are in `kept`, in their order.
std::string Remaining(std::string_view letters, const std::vector<std::string>& kept) {
    std::string remaining;
    for (const std::string& letter : mechanics::rigid::LettersOf(letters))
        if (std::ranges::find(kept, letter) != kept.end())
            remaining += letter;
    return remaining;
}

std::string Joined(const std::vector<std::string>& letters) {
    std::string text;
    for (const std::string& letter : letters)
        text += letter;
    return text;
}

bool IsDiagramWord(const std::string& chain) {
    return std::ranges::find(kDiagramWords, chain) != kDiagramWords.end();
}

}  // namespace

ConfigTab::ConfigTab(RigidBoard& board) : m_board(board), m_form(board.Form()), m_problem(board.Problem()) {
    for (const auto& [index, label] : m_form.lblPoints.Items())
        label->SetForeColor(SystemColor(index + 1));
    // Each pair stands over the box of its magnitude.
    m_form.lblSegm[kOtherPairsLabel].SetWordPitch(m_form.txtSegm[kFirstMagnitudeBox + 1].Bounds().left -
                                                  m_form.txtSegm[kFirstMagnitudeBox].Bounds().left);
    Wire();
}

void ConfigTab::Wire() {
    WireChain();
    m_form.txtSegm[kChainBox].OnKeyPress = m_board.OnEnter([this] { EnterChain(); });
    m_form.txtSegm[kChainBox].OnChange = m_board.Guarded([this] { CloseMagnitudes(); });
    m_form.txtSegm[kVectorBox].OnKeyPress = m_board.OnEnter([this] { EnterVector(); });
    m_form.txtRepeat.OnKeyPress = m_board.OnEnter([this] { EnterSeries(); });
    m_form.txtRepeat.OnLostFocus = [this] {
        m_form.txtRepeat.SetText(text::ToUpper(m_form.txtRepeat.Text()));
    };
    m_form.cmdOK.OnClick = m_board.Guarded([this] { AddVectors(); });
    m_form.cmdConfig[0].OnClick = m_board.Guarded([this] { CancelLastVector(); });
    m_form.cmdUpdate.OnClick = m_board.Guarded([this] { ChangeOrigin(); });
    m_form.txtOrigin.OnKeyPress = m_board.OnEnter([this] { ChangeOrigin(); });
    m_form.txtPoints.OnKeyPress = m_board.OnEnter([this] { EnterLine(); });
    m_form.lstSysts.OnClick = m_board.Guarded([this] { ChooseSystemPoints(); });
    m_form.spnColor.OnChange = m_board.Guarded([this] { ShowSystemChoice(); });
}

void ConfigTab::WireChain() {
    for (const auto& [index, box] : m_form.txtSegm.Items()) {
        box->OnKeyDown = [this, index = index](const window::KeyStroke& stroke) {
            return ArrowKey(index, stroke);
        };
        if (index >= kFirstMagnitudeBox)
            box->OnKeyPress = m_board.OnEnter([this, index = index] { EnterMagnitude(index); });
    }
}

/// The arrow keys at the ends of a box go to the box before or behind it.
bool ConfigTab::ArrowKey(int index, const window::KeyStroke& stroke) {
    const window::TextBox& box = m_form.txtSegm[index];
    if (box.Selection().length > 0)
        return false;
    if (stroke.key == window::Key::Left && box.Selection().start == 0 && index > kChainBox) {
        window::TextBox& previous = m_form.txtSegm[index - 1];
        m_form.SetFocus(previous);
        previous.PutCaretAtEnd();
        return true;
    }
    if (stroke.key == window::Key::Right && box.Selection().start == box.Length() &&
        index < kLastMagnitudeBox && m_form.txtSegm[index + 1].IsUsable()) {
        window::TextBox& next = m_form.txtSegm[index + 1];
        m_form.SetFocus(next);
        next.Select({0, 0});
        return true;
    }
    return false;
}

void ConfigTab::EnterChain() {
    window::TextBox& box = m_form.txtSegm[kChainBox];
    const std::string chain = text::ToUpper(text::Trim(box.Text()));
    box.SetText(chain);
    if (IsDiagramWord(chain))
        return OnDiagramsWanted();
    if (const auto refusal = mechanics::rigid::CheckChain(chain))
        return m_board.Refuse(*refusal, box);
    m_form.lblSegm[kFirstPairLabel].SetCaption(chain.substr(0, 2));
    m_form.lblSegm[kOtherPairsLabel].SetCaption(OtherPairs(chain));
    const int pairs = static_cast<int>(chain.size()) - 1;
    for (int index = kFirstMagnitudeBox; index <= kLastMagnitudeBox; ++index)
        m_form.txtSegm[index].SetEnabled(index <= pairs);
    m_form.SetFocus(m_form.txtSegm[kVectorBox]);
}

/// A chain that changes has no boxes for its further pairs until it is entered.
void ConfigTab::CloseMagnitudes() {
    for (const int label : {kFirstPairLabel, kOtherPairsLabel})
        m_form.lblSegm[label].SetCaption("");
    for (int index = kFirstMagnitudeBox; index <= kLastMagnitudeBox; ++index)
        m_form.txtSegm[index].SetEnabled(false);
}

void ConfigTab::EnterVector() {
    const notation::VectorFormat format = notation::VectorFormatOf(m_form.txtSegm[kVectorBox].Text());
    if (!format.msg.empty())
        return m_board.Refuse({format.msg}, m_form.txtSegm[kVectorBox]);
    const bool is_chain = text::CharacterCount(text::Trim(m_form.txtSegm[kChainBox].Text())) > 2;
    SetSeriesEnabled(!is_chain || mechanics::rigid::NeedsSeries(format.code));
    if (is_chain && mechanics::rigid::NeedsSeries(format.code))
        m_form.SetFocus(m_form.txtRepeat);
    else
        GoBehind(kVectorBox);
}

void ConfigTab::SetSeriesEnabled(bool enabled) {
    m_form.txtRepeat.SetEnabled(enabled);
    m_form.lblRepeat.SetEnabled(enabled);
}

void ConfigTab::EnterSeries() { GoBehind(kVectorBox); }

void ConfigTab::EnterMagnitude(int index) {
    window::TextBox& box = m_form.txtSegm[index];
    if (!text::IsNum(text::Trim(box.Text())))
        return m_board.Refuse({"El dato no es numérico."}, box);
    GoBehind(index);
}

/// The focus goes to the next box of a further pair, or to the button behind the last one.
void ConfigTab::GoBehind(int index) {
    if (index < kLastMagnitudeBox && m_form.txtSegm[index + 1].IsUsable())
        m_form.SetFocus(m_form.txtSegm[index + 1]);
    else
        m_form.SetFocus(m_form.cmdOK);
}

/// The values of the further pairs, as typed; none in a box that is closed.
std::vector<std::string> ConfigTab::Magnitudes() const {
    std::vector<std::string> texts;
    for (int index = kFirstMagnitudeBox; index <= kLastMagnitudeBox; ++index)
        texts.push_back(m_form.txtSegm[index].Enabled() ? text::Trim(m_form.txtSegm[index].Text()) : "");
    return texts;
}

void ConfigTab::AddVectors() {
    const std::string chain = text::ToUpper(text::Trim(m_form.txtSegm[kChainBox].Text()));
    const std::string vector = text::Trim(m_form.txtSegm[kVectorBox].Text());
    if (chain.empty() || vector.empty())
        return;
    if (IsDiagramWord(chain))
        return OnDiagramsWanted();
    const std::vector<std::string> magnitudes = Magnitudes();
    auto extended = mechanics::rigid::Extended(
        m_problem, {chain, vector, m_form.txtRepeat.Text(), magnitudes}, m_board.Decimals());
    if (const auto* refusal = std::get_if<mechanics::rigid::ChainRefusal>(&extended))
        return m_board.Refuse({refusal->text}, BoxOf(*refusal));
    if (m_problem.segments.empty())
        BeginAt(std::get<mechanics::rigid::Structure>(extended).origin);
    const auto unknown_origin = TakeStructure(std::get<mechanics::rigid::Structure>(std::move(extended)));
    m_board.Redraw();
    ShowSeps();
    RestoreConfigCtrls();
    m_form.SetFocus(m_form.txtSegm[kChainBox]);
    if (unknown_origin)
        m_board.Refuse(*unknown_origin, m_form.txtOrigin);
}

window::TextBox& ConfigTab::BoxOf(const mechanics::rigid::ChainRefusal& refusal) const {
    if (refusal.field == mechanics::rigid::ChainField::Series)
        return m_form.txtRepeat;
    if (refusal.field == mechanics::rigid::ChainField::Value)
        return m_form.txtSegm[kFirstMagnitudeBox + static_cast<int>(refusal.value)];
    return m_form.txtSegm[refusal.field == mechanics::rigid::ChainField::Chain ? kChainBox : kVectorBox];
}

/// The first point is the origin and the reference point of every system.
void ConfigTab::BeginAt(const std::string& point) {
    m_form.txtOrigin.SetText(point);
    for (const auto& [index, box] : m_form.txtRefPt.Items())
        box->SetText(point);
}

/// Puts a structure in the place of the problem's own, seen from the origin that is typed; when that has no
/// coordinates, as it comes, and tells so.
std::optional<text::Refusal> ConfigTab::TakeStructure(mechanics::rigid::Structure structure) {
    const std::string origin = text::ToUpper(text::Trim(m_form.txtOrigin.Text()));
    auto refusal = mechanics::rigid::MoveOrigin(structure.points, origin);
    if (!refusal) {
        structure.origin = origin;
        m_form.txtOrigin.SetText(origin);
    }
    static_cast<mechanics::rigid::Structure&>(m_problem) = std::move(structure);
    mechanics::rigid::RefreshPlaces(m_problem.forces, m_problem.points);
    ShowCoords();
    return refusal;
}

void ConfigTab::RestoreConfigCtrls() {
    CloseMagnitudes();
    for (const auto& [index, box] : m_form.txtSegm.Items())
        box->SetText("");
    m_form.txtRepeat.SetText("");
    SetSeriesEnabled(true);
}

void ConfigTab::CancelLastVector() {
    if (m_problem.segments.empty())
        return;
    mechanics::rigid::Structure shorter = mechanics::rigid::Shortened(m_problem);
    if (!m_problem.forces.empty() &&
        m_form.boxes.ShowMessage("Esta acción borrará los DCL's. ¿Deseas proseguir?", window::kProgramTitle,
                                 window::Buttons::YesNo) != Answer::Yes)
        return;
    if (shorter.segments.empty())
        return EraseStructure();
    if (shorter.origin != m_problem.origin)
        m_form.txtOrigin.SetText(shorter.origin);
    const auto unknown_origin = TakeStructure(std::move(shorter));
    m_board.DropDiagrams();
    ShowSeps();
    ForgetLostLetters();
    m_board.Draw();
    if (unknown_origin)
        m_board.Refuse(*unknown_origin, m_form.txtOrigin);
}

/// Letters that no vector holds any more leave the systems, and the lines through them go.
void ConfigTab::ForgetLostLetters() {
    const std::vector<std::string> letters = mechanics::rigid::LettersOf(m_problem.segments);
    for (int system = 2; system <= mechanics::rigid::kSystems; ++system)
        SetSystem(system, Remaining(m_problem.LettersOfSystem(system), letters));
    std::erase_if(m_problem.lines, [&](const mechanics::rigid::LineRow& line) {
        return Remaining(line.chain, letters) != line.chain;
    });
}

void ConfigTab::EraseStructure() {
    m_board.DropDiagrams();
    m_problem = {};
    Clear();
    m_board.Draw();
    OnErased();
}

void ConfigTab::Clear() {
    RestoreConfigCtrls();
    m_form.txtOrigin.SetText("");
    m_form.txtPoints.SetText("");
    for (const auto& [index, box] : m_form.txtRefPt.Items())
        box->SetText("");
    for (window::ListBox* list : {&m_form.lstCoords, &m_form.lstSeps, &m_form.lstSysts})
        list->Clear();
    for (const auto& [index, label] : m_form.lblPoints.Items())
        label->SetCaption("");
    m_form.spnColor.SetValue(1);
}

void ConfigTab::ChangeOrigin() {
    if (m_problem.segments.empty())
        return;
    if (const auto refusal = TakeStructure(m_problem))
        return m_board.Refuse(*refusal, m_form.txtOrigin);
    m_board.Redraw();
}

void ConfigTab::ShowCoords() {
    m_form.lstCoords.SetItems(
        mechanics::rigid::CoordLines(m_problem.segments, m_problem.points, m_board.Decimals()));
}

/// Fills the lists of vectors and of letters; system 1 is all letters. All of them show as chosen, which is
/// the program's choice: no other system changes.
void ConfigTab::ShowSeps() {
    const std::vector<std::string> letters = mechanics::rigid::LettersOf(m_problem.segments);
    m_form.lstSeps.SetItems(mechanics::rigid::SepLines(m_problem.segments, m_board.Decimals()));
    m_form.lstSysts.SetItems(letters);
    for (int row = 0; row < static_cast<int>(letters.size()); ++row)
        m_form.lstSysts.SetChosen(row, true);
    SetSystem(1, Joined(letters));
}

void ConfigTab::SetSystem(int system, std::string letters) {
    m_form.lblPoints[system - 1].SetCaption(letters);
    m_problem.systems[static_cast<std::size_t>(system) - 1] = std::move(letters);
}

void ConfigTab::ChooseSystemPoints() {
    std::string letters;
    const std::vector<std::string>& items = m_form.lstSysts.Items();
    for (std::size_t row = 0; row < items.size(); ++row)
        if (m_form.lstSysts.IsChosen(static_cast<int>(row)))
            letters += items[row];
    const int system = m_form.spnColor.Value();
    if (letters.empty())
        m_board.Hide(system);
    SetSystem(system, std::move(letters));
    m_board.Draw();
}

void ConfigTab::ShowSystemChoice() {
    const std::string_view letters = m_problem.LettersOfSystem(m_form.spnColor.Value());
    const std::vector<std::string>& items = m_form.lstSysts.Items();
    for (std::size_t row = 0; row < items.size(); ++row)
        m_form.lstSysts.SetChosen(static_cast<int>(row), letters.find(items[row]) != std::string::npos);
}

void ConfigTab::EnterLine() {
    auto read = mechanics::rigid::ReadLine(m_form.txtPoints.Text(), m_problem.systems, m_problem.points);
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return m_board.Refuse(*refusal, m_form.txtPoints);
    const auto& [action, line] = std::get<mechanics::rigid::LineCommand>(read);
    if (action == mechanics::rigid::LineCommand::Action::None)
        return;
    if (action == mechanics::rigid::LineCommand::Action::Draw) {
        m_problem.lines.push_back(line);
        m_board.DrawOver(line);
    } else {
        if (std::erase(m_problem.lines, line) == 0)
            return;
        m_board.Draw();
    }
    m_form.txtPoints.SetText("");
}

}  // namespace tavrelo::tools::rigid
