#pragma once

#include <functional>
#include <span>
#include <string>

#include "window/form1.h"

namespace tavrelo::frame {

/// One icon of the second row: the routine it selects and its help text.
struct RoutineIcon {
    int routine;
    int help_index;
};

/// A group of the calculator's menu.
struct RoutineGroup {
    std::string_view title;
    std::span<const RoutineIcon> icons;
};

inline constexpr int kMenuCellWidth = 31;   // pixels
inline constexpr int kMenuCellHeight = 30;  // pixels
inline constexpr int kMenuSecondRow = 33;   // y where the second row begins, pixels
inline constexpr int kFirstKinematicsWay = 11;

/// The groups of the calculator's menu, from 0.
std::span<const RoutineGroup> RoutineGroups();

/// The icon menu `picBar`: two rows for the calculator, one for the ways of the kinematics tool.
class MenuBar {
  public:
    explicit MenuBar(window::Form1& form);

    /// Shows the menu of the calculator with its first group, or the kinematics ways with the first one.
    void EnterCalculator();
    void EnterKinematics();

    std::function<void(int routine)> OnRoutine;            // 0: a group was chosen, nothing is selected
    std::function<void(int help_index)> OnHelp;            // a routine's help text is due
    std::function<std::string(int routine)> RoutineTitle;  // markup
    std::function<void(int way)> OnWay;

  private:
    void MouseDown(const window::MouseStroke& stroke);
    void MouseMove(const window::MouseStroke& stroke);
    void ChooseGroup(int group);
    void ChooseRoutine(int group, int column);
    void ChooseWay(int column);
    /// The direction clock shows while a routine takes vectors.
    void ShowClock(bool shown);
    std::string TooltipAt(int column, bool first_row) const;
    void Paint();

    window::Form1& m_form;
    int m_marked_column = -1;  // of the second row
};

}  // namespace tavrelo::frame
