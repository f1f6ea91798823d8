#include "frame/menu_bar.h"

#include <algorithm>
#include <array>

#include "text/picture_markup.h"

namespace tavrelo::frame {
namespace {

constexpr RoutineIcon kLinear[] = {{1, 1}, {2, 2}};
constexpr RoutineIcon kRoots[] = {{5, 3}, {6, 4}, {7, 5}, {8, 6}, {9, 7}};
constexpr RoutineIcon kTriangles[] = {{10, 8}, {11, 9}, {12, 10}};
constexpr RoutineIcon kFunctions[] = {{13, 11}, {14, 12}, {15, 13}, {16, 14}, {17, 15},
                                      {18, 16}, {19, 17}, {9, 7},   {20, 18}};
constexpr RoutineIcon kGraphs[] = {{20, 18}, {21, 19}, {22, 20}};
constexpr RoutineIcon kFits[] = {{23, 21}, {24, 22}, {25, 23}, {26, 24}};
constexpr RoutineIcon kVectors[] = {{27, 25}, {28, 26}, {29, 27}, {30, 28}, {31, 29}, {32, 30}, {33, 31}};
constexpr RoutineIcon kForces[] = {{34, 32}, {35, 33}, {36, 34}, {37, 35}};

constexpr RoutineGroup kGroups[] = {
    {"Ecuaciones lineales", kLinear},
    {"Raíces", kRoots},
    {"Triángulos y polígonos", kTriangles},
    {"Funciones", kFunctions},
    {"Gráficas", kGraphs},
    {"Ajuste de curvas", kFits},
    {"Vectores", kVectors},
    {"Sistemas de fuerzas", kForces},
};
constexpr int kGroupCount = static_cast<int>(std::size(kGroups));
constexpr int kRootsGroup = 2;
constexpr int kFunctionsGroup = 4;
constexpr int kGraphsGroup = 5;
constexpr int kVectorsGroup = 7;
constexpr int kRootSearchRoutine = 9;
constexpr int kCoplanarForcesRoutine = 36;

constexpr std::string_view kWayTitles[] = {"x(t)", "v(t,x)", "a(t,x,v)", "x(t), y(t)", "r(t), theta(t)"};
constexpr int kWayCount = static_cast<int>(std::size(kWayTitles));

// Where the icons stand in the strip, in cells: the groups in row 0, the icons of each group in a row of its
// own, the kinematics ways in row 4 from column 4 on.
constexpr std::string_view kStrip = "picruts";
constexpr int kWaysStripRow = 4;
constexpr int kWaysStripColumn = 4;
constexpr int StripRowOfGroup(int group) { return group < kWaysStripRow ? group : group + 1; }

constexpr text::Color kMarkColor = text::Rgb(0, 128, 0);
constexpr double kMarkWidth = 2;

void PaintCell(window::Surface& surface, int strip_row, int strip_column, int column, double top) {
    surface.Image(kStrip, strip_column * kMenuCellWidth, strip_row * kMenuCellHeight, kMenuCellWidth,
                  kMenuCellHeight, column * kMenuCellWidth, top);
}

void PaintMark(window::Surface& surface, int column, double top) {
    surface.DrawWidth = kMarkWidth;
    const double left = column * kMenuCellWidth;
    surface.Box(left + 1, top + 1, left + kMenuCellWidth - 1, top + kMenuCellHeight - 1, kMarkColor, false);
    surface.DrawWidth = 1;
}

/// The column of a place, or -1 left of the first one.
int ColumnOf(double x) { return x < 0 ? -1 : static_cast<int>(x / kMenuCellWidth); }

const RoutineGroup& GroupOf(int number) { return kGroups[number - 1]; }

bool TakesFunction(int group, int routine) {
    return (group == kRootsGroup && routine == kRootSearchRoutine) || group == kFunctionsGroup ||
           group == kGraphsGroup;
}

}  // namespace

std::span<const RoutineGroup> RoutineGroups() { return kGroups; }

MenuBar::MenuBar(window::Form1& form) : m_form(form) {
    m_form.picBar.OnMouseDown = [this](const window::MouseStroke& stroke) { MouseDown(stroke); };
    m_form.picBar.OnMouseMove = [this](const window::MouseStroke& stroke) { MouseMove(stroke); };
}

void MenuBar::EnterCalculator() { ChooseGroup(1); }

void MenuBar::EnterKinematics() { ChooseWay(0); }

void MenuBar::MouseDown(const window::MouseStroke& stroke) {
    const int column = ColumnOf(stroke.x);
    const bool first_row = stroke.y < kMenuSecondRow;
    if (m_form.publics.CurrentTool == window::Tool::Kinematics) {
        if (first_row && column >= 0 && column < kWayCount)
            ChooseWay(column);
        return;
    }
    if (first_row && column >= 0 && column < kGroupCount)
        ChooseGroup(column + 1);
    if (!first_row)
        ChooseRoutine(m_form.publics.ProcCategory, column);
}

void MenuBar::ChooseGroup(int group) {
    m_form.publics.ProcCategory = group;
    m_form.publics.ProcNumber = 0;
    m_marked_column = -1;
    ShowClock(false);
    Paint();
    if (OnRoutine)
        OnRoutine(0);
}

void MenuBar::ChooseRoutine(int group, int column) {
    const auto icons = GroupOf(group).icons;
    if (column < 0 || column >= static_cast<int>(icons.size()))
        return;
    const RoutineIcon& icon = icons[static_cast<std::size_t>(column)];
    m_form.publics.ProcNumber = icon.routine;
    m_marked_column = column;
    ShowClock(group == kVectorsGroup || icon.routine == kCoplanarForcesRoutine);
    Paint();
    if (OnRoutine)
        OnRoutine(icon.routine);
    if (OnHelp)
        OnHelp(icon.help_index);
    if (TakesFunction(group, icon.routine))
        m_form.SetFocus(m_form.rtbExpr);
}

void MenuBar::ChooseWay(int column) {
    m_form.publics.ProcCategory = kFirstKinematicsWay + column;
    m_form.publics.ProcNumber = 0;
    Paint();
    if (OnWay)
        OnWay(m_form.publics.ProcCategory);
}

void MenuBar::ShowClock(bool shown) {
    m_form.fraDirec.SetVisible(shown);
    m_form.Arrange(shown ? window::Arrangement::CalculatorWithClock : window::Arrangement::Calculator);
}

void MenuBar::MouseMove(const window::MouseStroke& stroke) {
    m_form.picBar.SetTooltip(TooltipAt(ColumnOf(stroke.x), stroke.y < kMenuSecondRow));
}

std::string MenuBar::TooltipAt(int column, bool first_row) const {
    const auto index = static_cast<std::size_t>(column);
    if (column < 0)
        return {};
    if (m_form.publics.CurrentTool == window::Tool::Kinematics)
        return first_row && column < kWayCount ? std::string(kWayTitles[index]) : std::string();
    if (first_row)
        return column < kGroupCount ? std::string(kGroups[index].title) : std::string();
    const auto icons = GroupOf(m_form.publics.ProcCategory).icons;
    if (index >= icons.size() || !RoutineTitle)
        return {};
    return window::TextOp{0, 0,
                          text::LayOutMarkup(RoutineTitle(icons[index].routine), text::Font{}, text::kBlack)}
        .PlainText();
}

void MenuBar::Paint() {
    window::Recorder& surface = m_form.picBar.Canvas();
    surface.Cls();
    if (m_form.publics.CurrentTool == window::Tool::Kinematics) {
        for (int column = 0; column < kWayCount; ++column)
            PaintCell(surface, kWaysStripRow, kWaysStripColumn + column, column, 0);
        PaintMark(surface, m_form.publics.ProcCategory - kFirstKinematicsWay, 0);
        return;
    }
    const int group = m_form.publics.ProcCategory;
    for (int column = 0; column < kGroupCount; ++column)
        PaintCell(surface, 0, column, column, 0);
    PaintMark(surface, group - 1, 0);
    for (int column = 0; column < static_cast<int>(GroupOf(group).icons.size()); ++column)
        PaintCell(surface, StripRowOfGroup(group), column, column, kMenuSecondRow);
    if (m_marked_column >= 0)
        PaintMark(surface, m_marked_column, kMenuSecondRow);
}

}  // namespace tavrelo::frame
