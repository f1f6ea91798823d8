#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "window/form1.h"

namespace tavrelo::frame {

/// What a routine needs beside the table of arguments.
enum class RoutineNeed {
    Nothing,
    Clock,    // takes vectors: the direction clock comes into view
    Formula,  // takes a function: the focus goes to the formula box
};

/// One icon of the menu's second row: the routine it selects.
struct RoutineIcon {
    int routine;
    std::string_view title;  // picture markup
    int help_index;
    RoutineNeed need;
};

/// A group of the calculator's menu: an icon of its first row, and those of its second row.
struct RoutineGroup {
    std::string_view title;
    std::vector<RoutineIcon> icons;
};

inline constexpr int kMenuCellWidth = 31;   // pixels
inline constexpr int kMenuCellHeight = 30;  // pixels
inline constexpr int kMenuSecondRow = 33;   // y where the second row begins, pixels
inline constexpr int kFirstKinematicsWay = 11;

struct MenuBarControls {
    window::Form1& form;
    window::Picture& picBar = form.Get<window::Picture>("picBar");
    window::Frame& fraDirec = form.Get<window::Frame>("fraDirec");
    window::RichTextBox& rtbExpr = form.Get<window::RichTextBox>("rtbExpr");
};

/// The icon menu `picBar`: two rows for the calculator, one for the ways of the kinematics tool.
class MenuBar {
  public:
    MenuBar(window::Form1& form, std::vector<RoutineGroup> groups);

    /// Shows the menu of the calculator with its first group, or the kinematics ways with the first one.
    void EnterCalculator();
    void EnterKinematics();

    std::function<void(int routine)> OnRoutine;  // 0: a group was chosen, nothing is selected
    std::function<void(int help_index)> OnHelp;  // a routine's help text is due
    std::function<void(int way)> OnWay;

  private:
    void MouseDown(const window::MouseStroke& stroke);
    void MouseMove(const window::MouseStroke& stroke);
    void ChooseGroup(int group);
    void ChooseRoutine(int column);
    void ChooseWay(int column);
    /// The direction clock shows while a routine takes vectors.
    void ShowClock(bool shown);
    std::string TooltipAt(double x, bool first_row) const;
    std::vector<window::PictureCell> WayCells() const;
    std::vector<window::PictureCell> RoutineCells() const;
    void Paint();
    void PaintGroups();
    void PaintWays();
    /// The icons of the group in use; none while a way of the kinematics tool is.
    std::span<const RoutineIcon> Icons() const;

    window::Form1& m_form;
    MenuBarControls m_controls{m_form};
    std::vector<RoutineGroup> m_groups;
    int m_marked_column = -1;  // of the second row
};

}  // namespace tavrelo::frame
