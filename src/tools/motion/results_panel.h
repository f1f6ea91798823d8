#pragma once

#include "mechanics/motion/problem.h"
#include "window/form1.h"

namespace tavrelo::tools::motion {

struct ResultsControls {
    window::Form1& form;
    window::Frame& fraRes = form.Get<window::Frame>("fraRes");
    window::ControlArray<window::Label> lblRes = form.GetArray<window::Label>("lblRes");  // two columns
    window::ControlArray<window::Button> cmdPass = form.GetArray<window::Button>("cmdPass");
    window::Button& cmdCloseFrares = form.Get<window::Button>("cmdCloseFrares");
};

/// The panel `fraRes`: one or two found solutions, of which one is in view. They stay until others are shown,
/// whatever is calculated meanwhile.
class ResultsPanel {
  public:
    explicit ResultsPanel(window::Form1& form);

    /// Opens the panel on the first solution.
    void Open(const mechanics::motion::Results& results);
    void Close();
    /// Closes it on nothing, as before the first results.
    void Reset();
    /// Puts the panel back in view after another tool was in use, if it was open.
    void Restore();
    const mechanics::motion::Results& Results() const { return m_results; }
    /// The solution in view, from 0.
    std::size_t Shown() const { return m_shown; }

    /// The solution in view is wanted in the table.
    window::Event OnPass;

  private:
    void Show(std::size_t solution);
    void ShowPoint(int place, const mechanics::motion::FoundPoint* point, text::Color color);
    void Press(int button);

    window::Form1& m_form;
    ResultsControls m_controls{m_form};
    mechanics::motion::Results m_results;
    std::size_t m_shown = 0;
    bool m_open = false;
};

}  // namespace tavrelo::tools::motion
