#pragma once

#include <array>
#include <functional>
#include <map>
#include <vector>

#include "shell/form1.h"
#include "shell/menu_bar.h"

namespace tavrelo::shell {

/// What a tool does when the shell brings it into use; every member may be empty.
struct ToolHooks {
    Event on_first_entry = {};  // once, before the first on_entry
    Event on_entry = {};        // prepares fields, draws the tool's picture, gives the focus
    bool uses_pic1 = false;
};

/// The toolbar: which panels are in view, in what colour, and what stays over a change of tool.
class ToolSwitch {
  public:
    ToolSwitch(Form1& form, MenuBar& menu);

    void SetHooks(Tool tool, ToolHooks hooks);
    /// Fills the list of topics for a tool (argument: index + 1) and marks its first row; loads it when the
    /// panel is in view.
    std::function<void(int)> OnFillTopics;
    /// The help panel was opened with no tool in use.
    Event OnGeneralHelp;

    /// Paints the welcome page and parks what stands off the window.
    void Load();
    /// index: 0 to 8, see Tool.
    void SelectTool(int index);

    /// The picture of the tool in use: `pic`, or `pic1` when true. Remembered per tool.
    void ShowPic1(bool pic1);

  private:
    struct Pictures {
        std::vector<DrawOp> pic;
        std::vector<DrawOp> pic1;
        bool shows_pic1 = false;
        bool entered = false;
    };

    void ImageMouseDown(const MouseStroke& stroke);
    void ImageMouseMove(const MouseStroke& stroke);
    void MoveMarker(int button);
    void OpenHelp();
    void Enter(Tool tool);
    void ShowPanels(Tool tool);
    void KeepPictures();
    void BringPictures(Tool tool);

    Form1& m_form;
    MenuBar& m_menu;
    std::array<ToolHooks, kToolCount> m_hooks;
    std::array<Pictures, kToolCount> m_pictures;
};

}  // namespace tavrelo::shell
