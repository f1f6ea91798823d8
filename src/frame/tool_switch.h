#pragma once

#include <array>
#include <functional>
#include <vector>

#include "frame/menu_bar.h"
#include "window/form1.h"

namespace tavrelo::frame {

struct ToolSwitchControls {
    window::Form1& form;
    window::Window& ThisWindow = form.Get<window::Window>("Form1");
    window::Window& Form2 = form.Get<window::Window>("Form2");
    window::Picture& Image1 = form.Get<window::Picture>("Image1");
    window::Shape& linMarker = form.Get<window::Shape>("linMarker");
    // The panels of the tools.
    window::Picture& picBar = form.Get<window::Picture>("picBar");
    window::Picture& picArgs = form.Get<window::Picture>("picArgs");
    window::Picture& picArgs1 = form.Get<window::Picture>("picArgs1");
    window::Picture& picArgs2 = form.Get<window::Picture>("picArgs2");
    window::Frame& fraExpr = form.Get<window::Frame>("fraExpr");
    window::Frame& fraCalc = form.Get<window::Frame>("fraCalc");
    window::Frame& fraDirec = form.Get<window::Frame>("fraDirec");
    window::Frame& fraEstp = form.Get<window::Frame>("fraEstp");
    window::Frame& fraTable = form.Get<window::Frame>("fraTable");
    window::Frame& fraKinem = form.Get<window::Frame>("fraKinem");
    window::TabStrip& tabCalc = form.Get<window::TabStrip>("tabCalc");
    window::TabStrip& tabStat = form.Get<window::TabStrip>("tabStat");
    window::TabStrip& tabMrua = form.Get<window::TabStrip>("tabMrua");
    window::Frame& fraHelp = form.Get<window::Frame>("fraHelp");
    window::ControlArray<window::Button> cmdHelpCtrl = form.GetArray<window::Button>("cmdHelpCtrl");
    window::RichTextBox& rtbHelp = form.Get<window::RichTextBox>("rtbHelp");
    // What the tools show their results on.
    window::Picture& pic = form.Get<window::Picture>("pic");
    window::Picture& pic1 = form.Get<window::Picture>("pic1");
    window::RichTextBox& rtbHold = form.Get<window::RichTextBox>("rtbHold");
    window::RichTextBox& rtbCalc = form.Get<window::RichTextBox>("rtbCalc");
    window::RichTextBox& rtbSolve = form.Get<window::RichTextBox>("rtbSolve");
    window::RichTextBox& txtArgHelp = form.Get<window::RichTextBox>("txtArgHelp");
};

/// What a tool does when the shell brings it into use; every member may be empty.
struct ToolHooks {
    window::Event on_first_entry = {};  // once, before the first on_entry
    window::Event on_entry = {};        // prepares fields, draws the tool's picture, gives the focus
    bool uses_pic1 = false;
    /// How to begin, on a board on which nothing stands yet.
    std::string_view invitation = {};
};

/// The toolbar: which panels are in view, in what colour, and what stays over a change of tool.
class ToolSwitch {
  public:
    ToolSwitch(window::Form1& form, MenuBar& menu);

    void SetHooks(window::Tool tool, ToolHooks hooks);
    /// Fills the list of topics for a tool (argument: index + 1) and marks its first row; loads it when the
    /// panel is in view.
    std::function<void(int)> OnFillTopics;
    /// The help panel was opened with no tool in use.
    window::Event OnGeneralHelp;

    /// Paints the welcome page and parks what stands off the window.
    void Load();
    /// index: 0 to 8, see Tool.
    void SelectTool(int index);

    /// The picture of the tool in use: `pic`, or `pic1` when true. Remembered per tool.
    void ShowPic1(bool pic1);

  private:
    struct Pictures {
        window::Recording pic;
        window::Recording pic1;
        bool shows_pic1 = false;
        bool entered = false;
    };

    void ImageMouseDown(const window::MouseStroke& stroke);
    void ImageMouseMove(const window::MouseStroke& stroke);
    std::vector<window::PictureCell> ToolbarCells() const;
    void AddShortcuts();
    /// A button of the toolbar, from 1.
    void PressButton(int button);
    /// The short help of the panel in view.
    void PressQuestionMark();
    void MoveMarker(int button);
    void OpenHelp();
    void Enter(window::Tool tool);
    void ShowPanels(window::Tool tool);
    void KeepPictures();
    void BringPictures(window::Tool tool);

    window::Form1& m_form;
    ToolSwitchControls m_controls{m_form};
    MenuBar& m_menu;
    std::array<ToolHooks, window::kToolCount> m_hooks;
    std::array<Pictures, window::kToolCount> m_pictures;
};

}  // namespace tavrelo::frame
