#pragma once

#include <optional>
#include <string>
#include <vector>

#include "window/form1.h"

namespace tavrelo::frame {

inline constexpr double kShortHelpFontSize = 10;  // of topics in `txtArgHelp`, points

struct HelpControls {
    window::Form1& form;
    window::Frame& fraHelp = form.Get<window::Frame>("fraHelp");
    window::ComboBox& cboHelp = form.Get<window::ComboBox>("cboHelp");
    window::ControlArray<window::Button> cmdHelpCtrl = form.GetArray<window::Button>("cmdHelpCtrl");
    window::RichTextBox& rtbHelp = form.Get<window::RichTextBox>("rtbHelp");
    window::RichTextBox& txtArgHelp = form.Get<window::RichTextBox>("txtArgHelp");
    window::TabStrip& tabCalc = form.Get<window::TabStrip>("tabCalc");
};

/// The help panel `fraHelp` with its list and buttons, and the short help in `txtArgHelp`.
class HelpPanel {
  public:
    explicit HelpPanel(window::Form1& form);

    /// Fills the list for a tool (index + 1) and marks its first row, which is loaded when the panel is in
    /// view.
    void FillHelpCbo(int help_tool);
    /// The page for every tool, "GRAL0".
    void ShowGeneralPage();

    /// Reads the texts on the calculator's routines; a missing file leaves none.
    void LoadCalcHelp();
    /// The text on a routine, by its help index, into `txtArgHelp`; nothing when there is none.
    void ShowArgHelp(int index);
    /// A topic into `txtArgHelp`, its tab brought to the front.
    void ShowShortTopic(std::string_view file, std::string_view tag);

  private:
    struct Page {
        std::string file;
        std::string tag;
    };

    void PickTopic();
    void Press(int index);
    void ToggleFontSize();
    void ToggleHeight();
    void Show(const Page& page);

    window::Form1& m_form;
    HelpControls m_controls{m_form};
    int m_help_tool = 0;
    bool m_is_large_print = false;
    bool m_is_high = false;
    std::optional<Page> m_page;  // the one on view
    std::vector<std::string> m_arg_help;
};

}  // namespace tavrelo::frame
