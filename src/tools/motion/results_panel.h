#pragma once

#include <functional>

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

/// The panel `fraRes`: one or two found solutions, of which one is in view.
class ResultsPanel {
  public:
    explicit ResultsPanel(window::Form1& form);

    /// Opens the panel on a solution (0 or 1) of the results.
    void Show(const mechanics::motion::Results& results, std::size_t solution);
    void Close();
    /// Puts the panel back in view after another tool was in use, if it was open.
    void Restore();
    /// The solution in view, 0 or 1.
    std::size_t Shown() const { return m_shown; }

    /// A button asked for that solution (0 or 1).
    std::function<void(std::size_t)> OnSolution;
    /// The solution in view is wanted in the table.
    window::Event OnPass;

  private:
    void ShowPoint(int place, const mechanics::motion::FoundPoint* point, text::Color color);
    void Press(int button);

    window::Form1& m_form;
    ResultsControls m_controls{m_form};
    std::size_t m_shown = 0;
    bool m_open = false;
};

}  // namespace tavrelo::tools::motion
