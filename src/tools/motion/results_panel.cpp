#include "tools/motion/results_panel.h"

#include "frame/points_colors.h"
#include "text/number_text.h"
#include "window/guarded.h"

namespace tavrelo::tools::motion {
namespace {

using mechanics::motion::FoundPoint;

/// The rows of labels; the first label of a row belongs to the first point.
enum LabelRow { kPointRow, kTimeRow, kPositionRow, kSpeedRow };
constexpr int kLabelsOfRow = 2;

enum PassButton { kFirstSolution, kSecondSolution, kPassToTable };

}  // namespace

ResultsPanel::ResultsPanel(window::Form1& form) : m_form(form) {
    OnClick(form, m_controls.cmdPass, [this](int button) { Press(button); });
    OnClick(form, m_controls.cmdCloseFrares, [this] { Close(); });
}

void ResultsPanel::Open(const mechanics::motion::Results& results) {
    m_results = results;
    m_open = true;
    m_controls.fraRes.SetVisible(true);
    m_controls.cmdPass[kSecondSolution].SetEnabled(results.HasSecond());
    Show(0);
}

void ResultsPanel::Show(std::size_t solution) {
    if (solution >= m_results.solutions.size())
        return;
    const mechanics::motion::FoundSolution& found = m_results.solutions[solution];
    const text::Color color = frame::ResultColor(m_results.mover, m_results.stretch);
    ShowPoint(0, &found.first, color);
    ShowPoint(1, found.second ? &*found.second : nullptr, color);
    m_shown = solution;
    m_controls.cmdPass[kFirstSolution].SetUnderlined(solution == 0);
    m_controls.cmdPass[kSecondSolution].SetUnderlined(solution == 1);
}

void ResultsPanel::ShowPoint(int place, const FoundPoint* point, text::Color color) {
    const auto show = [&](LabelRow row, const std::string& text) {
        m_controls.lblRes[row * kLabelsOfRow + place].SetCaption(text);
    };
    const auto number = [&](double value) {
        return point ? text::RoundedText(value, m_form.publics.Decimals) : std::string();
    };
    show(kPointRow, point ? std::to_string(point->point) : std::string());
    m_controls.lblRes[kPointRow * kLabelsOfRow + place].SetForeColor(color);
    const FoundPoint values = point ? *point : FoundPoint{};
    show(kTimeRow, number(values.t));
    show(kPositionRow, number(values.x));
    show(kSpeedRow, number(values.v));
}

void ResultsPanel::Close() {
    m_open = false;
    m_controls.fraRes.SetVisible(false);
}

void ResultsPanel::Reset() {
    Close();
    m_results = {};
    m_controls.cmdPass[kFirstSolution].SetEnabled(true);
    m_controls.cmdPass[kSecondSolution].SetEnabled(true);
}

void ResultsPanel::Restore() { m_controls.fraRes.SetVisible(m_open); }

void ResultsPanel::Press(int button) {
    if (button != kPassToTable)
        Show(static_cast<std::size_t>(button));
    else if (OnPass)
        OnPass();
}

}  // namespace tavrelo::tools::motion
