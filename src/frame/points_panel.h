#pragma once

#include <span>
#include <string_view>

#include "frame/help_panel.h"
#include "frame/points_tool.h"
#include "window/cell_typing.h"
#include "window/form1.h"

namespace tavrelo::frame {

/// The controls that the tools with a table of points share.
struct PointsControls {
    window::Form1& form;
    window::TabStrip& tabMrua = form.Get<window::TabStrip>("tabMrua");
    window::ControlArray<window::Button> cmdTable = form.GetArray<window::Button>("cmdTable");
    window::ControlArray<window::Label> lblAs = form.GetArray<window::Label>("lblAs");
    window::ControlArray<window::Button> cmdHelpTable = form.GetArray<window::Button>("cmdHelpTable");
    window::Picture& imgProcs = form.Get<window::Picture>("imgProcs");
    window::Shape& shpMrua = form.Get<window::Shape>("shpMrua");
    window::ComboBox& cboProcs = form.Get<window::ComboBox>("cboProcs");
    window::TextBox& txtProcs = form.Get<window::TextBox>("txtProcs");
    window::Button& cmdProcs = form.Get<window::Button>("cmdProcs");
    window::Picture& picArgs1 = form.Get<window::Picture>("picArgs1");
    window::Picture& picArgs2 = form.Get<window::Picture>("picArgs2");
    window::Picture& picAccel = form.Get<window::Picture>("picAccel");
    window::ControlArray<window::TextBox> txtAccel = form.GetArray<window::TextBox>("txtAccel");
    window::Grid& Gd2 = form.Get<window::Grid>("Gd2");
    window::Button& cmdNewMruaProbl = form.Get<window::Button>("cmdNewMruaProbl");
    window::Button& cmdEraseTable = form.Get<window::Button>("cmdEraseTable");
    window::Button& cmdSeeEqns = form.Get<window::Button>("cmdSeeEqns");
    window::Button& cmdEraseEqns = form.Get<window::Button>("cmdEraseEqns");
    window::Frame& fraRes = form.Get<window::Frame>("fraRes");
};

/// The table of points with its strip, the choice of configurations and of procedures. It binds the events of
/// these controls once and hands them to the tool in use; each tool keeps its own problem and its own view of
/// them.
class PointsPanel {
  public:
    PointsPanel(window::Form1& form, HelpPanel& help);

    /// Brings a tool into use: everything shows its table, its choices and its strip as it left them.
    void Enter(PointsTool& tool);

    /// The cells as the tool's table has them.
    void ShowCells();
    /// Gives the grid the focus, in that column (from 1).
    void FocusColumn(int column);
    /// Gives the focus to the table, or, before it is configured, to the first configuration.
    void FocusTable(bool configured);

    /// Chooses a row of `imgProcs` (from 1) as a click on it does.
    void ChooseRow(int row);
    /// A choice of the list: how the entry is answered.
    void ShowAnswering(bool asks_data, bool has_accept);
    /// What a procedure needs, on the panel of the rows or of the list: up to two lines, or four in two
    /// columns.
    void ShowRowArguments(std::span<const std::string_view> lines);
    void ShowEntryArguments(std::span<const std::string_view> lines);

    /// No configuration is underlined any more, the first row is in use and no entry chosen.
    void ShowNewProblem();

  private:
    void BindTable();
    void BindStrip();
    void BindProcedures();
    void BindCommands();
    void Configure(int configuration);
    void ChooseEntry();
    void EraseTable();
    bool KeyPress(char32_t character);
    void HideCell();
    void MoveOn();
    void EnterCell();
    void ShowTable();
    void ShowConfigurations();
    void ShowProcedures();
    void FrameRow();
    std::vector<window::PictureCell> RowCells() const;
    void ShowArgumentPage();
    void ShowHelp(int button);

    window::Form1& m_form;
    HelpPanel& m_help;
    PointsControls m_controls{m_form};
    window::CellRules m_rules;
    PointsTool* m_tool = nullptr;
};

}  // namespace tavrelo::frame
