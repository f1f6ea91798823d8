#include "frame/menu_bar.h"

#include "text/picture_markup.h"
#include "window/guarded.h"

namespace tavrelo::frame {
namespace {

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

/// The column of a place among `count` of them, or -1.
int ColumnOf(double x, int count) { return window::CellAt(x, kMenuCellWidth, count); }

template <class Range>
int CountOf(const Range& range) {
    return static_cast<int>(std::size(range));
}

window::PictureCell ChoiceCell(std::string_view name, int column, int top, bool checked) {
    return {.name = std::string(name),
            .bounds = {column * kMenuCellWidth, top, kMenuCellWidth, kMenuCellHeight},
            .role = window::CellRole::Choice,
            .checked = checked};
}

std::string PlainText(std::string_view markup) {
    return window::TextOp{0, 0, text::LayOutMarkup(markup, text::Font{}, text::kBlack)}.PlainText();
}

}  // namespace

MenuBar::MenuBar(window::Form1& form, std::vector<RoutineGroup> groups)
    : m_form(form), m_groups(std::move(groups)) {
    window::On(form, m_controls.picBar.OnMouseDown,
               [this](const window::MouseStroke& stroke) { MouseDown(stroke); });
    window::On(form, m_controls.picBar.OnMouseMove,
               [this](const window::MouseStroke& stroke) { MouseMove(stroke); });
    m_controls.picBar.ListCells = [this] {
        return m_form.publics.CurrentTool == window::Tool::Kinematics ? WayCells() : RoutineCells();
    };
}

void MenuBar::EnterCalculator() { ChooseGroup(0); }

void MenuBar::EnterKinematics() { ChooseWay(0); }

std::span<const RoutineIcon> MenuBar::Icons() const {
    const int group = m_form.publics.ProcCategory - 1;
    if (group < 0 || group >= CountOf(m_groups))
        return {};
    return m_groups[static_cast<std::size_t>(group)].icons;
}

void MenuBar::MouseDown(const window::MouseStroke& stroke) {
    const bool first_row = stroke.y < kMenuSecondRow;
    if (m_form.publics.CurrentTool == window::Tool::Kinematics) {
        if (const int way = ColumnOf(stroke.x, kWayCount); first_row && way >= 0)
            ChooseWay(way);
    } else if (first_row) {
        if (const int group = ColumnOf(stroke.x, CountOf(m_groups)); group >= 0)
            ChooseGroup(group);
    } else if (const int column = ColumnOf(stroke.x, CountOf(Icons())); column >= 0) {
        ChooseRoutine(column);
    }
}

void MenuBar::ChooseGroup(int group) {
    m_form.publics.ProcCategory = group + 1;
    m_form.publics.ProcNumber = 0;
    m_marked_column = -1;
    ShowClock(false);
    Paint();
    if (OnRoutine)
        OnRoutine(0);
}

void MenuBar::ChooseRoutine(int column) {
    const RoutineIcon& icon = Icons()[static_cast<std::size_t>(column)];
    m_form.publics.ProcNumber = icon.routine;
    m_marked_column = column;
    ShowClock(icon.need == RoutineNeed::Clock);
    Paint();
    if (OnRoutine)
        OnRoutine(icon.routine);
    if (OnHelp)
        OnHelp(icon.help_index);
    if (icon.need == RoutineNeed::Formula)
        m_form.SetFocus(m_controls.rtbExpr);
}

void MenuBar::ChooseWay(int column) {
    m_form.publics.ProcCategory = kFirstKinematicsWay + column;
    m_form.publics.ProcNumber = 0;
    Paint();
    if (OnWay)
        OnWay(m_form.publics.ProcCategory);
}

void MenuBar::ShowClock(bool shown) {
    m_controls.fraDirec.SetVisible(shown);
    m_form.Arrange(shown ? window::Arrangement::CalculatorWithClock : window::Arrangement::Calculator);
}

void MenuBar::MouseMove(const window::MouseStroke& stroke) {
    m_controls.picBar.SetTooltip(TooltipAt(stroke.x, stroke.y < kMenuSecondRow));
}

std::string MenuBar::TooltipAt(double x, bool first_row) const {
    if (m_form.publics.CurrentTool == window::Tool::Kinematics) {
        const int way = ColumnOf(x, kWayCount);
        return first_row && way >= 0 ? std::string(kWayTitles[way]) : std::string();
    }
    if (const int group = ColumnOf(x, CountOf(m_groups)); first_row && group >= 0)
        return std::string(m_groups[static_cast<std::size_t>(group)].title);
    if (const int column = ColumnOf(x, CountOf(Icons())); !first_row && column >= 0)
        return PlainText(Icons()[static_cast<std::size_t>(column)].title);
    return {};
}

std::vector<window::PictureCell> MenuBar::WayCells() const {
    std::vector<window::PictureCell> cells;
    for (int column = 0; column < kWayCount; ++column)
        cells.push_back(ChoiceCell(kWayTitles[column], column, 0,
                                   m_form.publics.ProcCategory == kFirstKinematicsWay + column));
    return cells;
}

std::vector<window::PictureCell> MenuBar::RoutineCells() const {
    std::vector<window::PictureCell> cells;
    for (int column = 0; column < CountOf(m_groups); ++column)
        cells.push_back(ChoiceCell(m_groups[static_cast<std::size_t>(column)].title, column, 0,
                                   m_form.publics.ProcCategory == column + 1));
    for (int column = 0; column < CountOf(Icons()); ++column)
        cells.push_back(ChoiceCell(PlainText(Icons()[static_cast<std::size_t>(column)].title), column,
                                   kMenuSecondRow, column == m_marked_column));
    return cells;
}

void MenuBar::Paint() {
    m_controls.picBar.Canvas().Cls();
    if (m_form.publics.CurrentTool == window::Tool::Kinematics)
        PaintWays();
    else
        PaintGroups();
}

void MenuBar::PaintWays() {
    window::Recorder& surface = m_controls.picBar.Canvas();
    for (int column = 0; column < kWayCount; ++column)
        PaintCell(surface, kWaysStripRow, kWaysStripColumn + column, column, 0);
    PaintMark(surface, m_form.publics.ProcCategory - kFirstKinematicsWay, 0);
}

void MenuBar::PaintGroups() {
    window::Recorder& surface = m_controls.picBar.Canvas();
    const int group = m_form.publics.ProcCategory;
    for (int column = 0; column < CountOf(m_groups); ++column)
        PaintCell(surface, 0, column, column, 0);
    PaintMark(surface, group - 1, 0);
    for (int column = 0; column < CountOf(Icons()); ++column)
        PaintCell(surface, StripRowOfGroup(group), column, column, kMenuSecondRow);
    if (m_marked_column >= 0)
        PaintMark(surface, m_marked_column, kMenuSecondRow);
}

}  // namespace tavrelo::frame
