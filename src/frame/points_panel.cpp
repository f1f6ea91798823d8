#include "frame/points_panel.h"

#include <string>
#include <vector>

#include "drawing/print_markup.h"
#include "frame/points_strip.h"
#include "window/guarded.h"

namespace tavrelo::frame {
namespace {

using text::Color;
using window::MouseStroke;

constexpr std::string_view kInstructionFailed = "No pude ejecutar la instrucción.";

constexpr int kLabelColumnWidth = 360;  // twips
constexpr int kPointColumnWidth = 960;
constexpr std::u32string_view kCellCharacters = U"0123456789.+-txyv*/ ";

constexpr Color kEdgeColor = text::Rgb(0x80, 0x80, 0x80);
constexpr Color kPlainRow = text::Rgb(0xFA, 0xFA, 0xF5);
constexpr double kRowTextLeft = 10;    // pixels
constexpr double kRowTextSize = 8.25;  // points

// The lines of what a procedure needs.
constexpr double kArgumentSize = 8;  // points
constexpr double kArgumentLeft = 4;  // pixels
constexpr double kArgumentTops[] = {38, 20};
constexpr std::size_t kLinesOfColumn = std::size(kArgumentTops);

constexpr int kListTab = 2;  // of `tabMrua`

constexpr int kNoEntry = -1;
constexpr int kNoConfiguration = -1;

void ShowArguments(window::Picture& panel, std::span<const std::string_view> lines) {
    window::Recorder& surface = panel.Canvas();
    surface.Cls();
    surface.DescribeByTexts();
    surface.ForeColor = text::kBlack;
    for (std::size_t k = 0; k < lines.size(); ++k) {
        const auto column = static_cast<int>(k / kLinesOfColumn);
        const double left = kArgumentLeft + column * surface.Width() / 2;
        drawing::PrintMarkup(surface, lines[k], left, kArgumentTops[k % kLinesOfColumn], text::kTextFont,
                             kArgumentSize);
    }
}

/// A cell of the bitmap of configurations.
window::Icon IconAt(int cell) {
    constexpr int kIconWidth = 30;  // pixels
    constexpr int kIconHeight = 26;
    return {"table_buttons", {cell * kIconWidth, 0, kIconWidth, kIconHeight}};
}

}  // namespace

PointsPanel::PointsPanel(window::Form1& form, HelpPanel& help) : m_form(form), m_help(help) {
    PaintEmptyStrip(m_controls.picAccel.Canvas());
    BindTable();
    BindStrip();
    BindProcedures();
    BindCommands();
}

void PointsPanel::BindTable() {
    window::Grid& grid = m_controls.Gd2;
    grid.NameColumn = [this](int column) {
        return m_tool ? "punto " + m_tool->PointName(column) : std::string();
    };
    m_rules.allowed = kCellCharacters;
    m_rules.on_content = [this](window::CellPlace place, const std::string& content) {
        mechanics::points::Cell& cell = m_tool->Table().At(place.row, place.col);
        cell = mechanics::points::TextCell(content);
        cell.shown = m_controls.Gd2.Cell(place.row, place.col);
    };
    m_rules.content_of = [this](window::CellPlace place) {
        return m_tool->Table().Stored(place.row, place.col).Text();
    };
    m_rules.shown = [this](const std::string& content) {
        return mechanics::points::PastedCell(content, m_form.publics.Decimals).shown;
    };
    On(m_form, grid.OnKeyPress, [this](char32_t character) { return KeyPress(character); });
    On(m_form, grid.OnKeyDown, [this](const window::KeyStroke& stroke) {
        return m_tool && window::EditCell(m_controls.Gd2, m_rules, m_form.clipboard, stroke);
    });
    On(m_form, grid.OnEnterCell, [this] { EnterCell(); });
    On(m_form, grid.OnDblClick, [this] { HideCell(); });
}

void PointsPanel::BindStrip() {
    const auto bind = [this](window::Handler<void(const MouseStroke&)>& event,
                             void (PointsTool::*action)(const MouseStroke&)) {
        On(
            m_form, event,
            [this, action](const MouseStroke& stroke) {
                if (m_tool)
                    (m_tool->*action)(stroke);
            },
            kInstructionFailed);
    };
    bind(m_controls.picAccel.OnMouseDown, &PointsTool::PressStrip);
    bind(m_controls.picAccel.OnMouseUp, &PointsTool::ReleaseStrip);
    m_controls.picAccel.ListCells = [this] {
        return m_tool ? m_tool->StripCells() : std::vector<window::PictureCell>();
    };
}

void PointsPanel::BindProcedures() {
    On(m_form, m_controls.imgProcs.OnMouseDown, [this](const MouseStroke& stroke) {
        const int height = m_controls.shpMrua.Bounds().height * window::kTwipsPerPixel;
        const int rows = m_tool ? static_cast<int>(m_tool->Texts().procedure_rows.size()) : 0;
        ChooseRow(window::CellAt(stroke.y, height, rows) + 1);
    });
    m_controls.imgProcs.ListCells = [this] { return RowCells(); };
    OnClick(m_form, m_controls.cboProcs, [this] { ChooseEntry(); });
    On(m_form, m_controls.txtProcs.OnChange, [this] {
        if (m_tool)
            m_tool->view.data = m_controls.txtProcs.Text();
    });
    On(m_form, m_controls.tabMrua.OnClick, [this](int) { ShowArgumentPage(); });
    const auto run = [this] {
        if (m_tool)
            m_tool->RunEntry();
    };
    OnClick(m_form, m_controls.cmdProcs, run, kInstructionFailed);
    OnEnter(m_form, m_controls.txtProcs, run, kInstructionFailed);
    OnClick(m_form, m_controls.cmdHelpTable, [this](int button) { ShowHelp(button); });
}

void PointsPanel::BindCommands() {
    const auto bind = [this](window::Button& button, void (PointsTool::*action)()) {
        OnClick(m_form, button, [this, action] {
            if (m_tool)
                (m_tool->*action)();
        });
    };
    bind(m_controls.cmdNewMruaProbl, &PointsTool::NewProblem);
    bind(m_controls.cmdSeeEqns, &PointsTool::SwapPictures);
    bind(m_controls.cmdEraseEqns, &PointsTool::EraseEquations);
    OnClick(m_form, m_controls.cmdEraseTable, [this] { EraseTable(); });
    OnClick(m_form, m_controls.cmdTable, [this](int configuration) { Configure(configuration); });
}

void PointsPanel::Enter(PointsTool& tool) {
    if (m_tool)
        m_tool->view.strip = m_controls.picAccel.Canvas().Kept();
    m_tool = &tool;
    if (tool.view.strip.operations.empty())
        PaintEmptyStrip(m_controls.picAccel.Canvas());
    else
        m_controls.picAccel.Canvas().Restore(tool.view.strip);
    // A tool shows what of these it uses.
    m_controls.fraRes.SetVisible(false);
    for (const auto& [index, box] : m_controls.txtAccel.Items())
        box->SetVisible(false);
    m_controls.picAccel.SetPointerShape(window::kPointerDefault);
    ShowTable();
    ShowConfigurations();
    ShowProcedures();
}

void PointsPanel::ShowTable() {
    window::Grid& grid = m_controls.Gd2;
    const auto labels = m_tool->Texts().row_labels;
    grid.Arrange(static_cast<int>(labels.size()), kPointColumns + 1, 0, 1);
    grid.SetColWidth(0, kLabelColumnWidth);
    for (int col = 1; col <= kPointColumns; ++col)
        grid.SetColWidth(col, kPointColumnWidth);
    // Whole pixels, so that all rows fit without scroll bars.
    grid.SetRowHeight(grid.Bounds().height / grid.Rows() * window::kTwipsPerPixel);
    for (int row = 0; row < grid.Rows(); ++row)
        grid.SetCell(row, 0, std::string(labels[static_cast<std::size_t>(row)]));
    ShowCells();
    grid.SetCurrent(m_tool->view.row, m_tool->view.column);
}

void PointsPanel::ShowCells() {
    window::Grid& grid = m_controls.Gd2;
    const window::ChangeBatch batch(grid);
    for (int row = 0; row < grid.Rows(); ++row)
        for (int col = 1; col <= kPointColumns; ++col)
            grid.SetCell(row, col, m_tool->Table().At(row, col).shown);
}

void PointsPanel::ShowConfigurations() {
    const PointsTexts& texts = m_tool->Texts();
    for (const auto& [index, label] : m_controls.lblAs.Items()) {
        const bool offered = index < static_cast<int>(texts.configurations.size());
        label->SetVisible(offered);
        m_controls.cmdTable[index].SetVisible(offered);
        m_controls.cmdTable[index].SetPicture(IconAt(texts.first_icon + index));
        if (offered)
            label->SetCaption(std::string(texts.configurations[static_cast<std::size_t>(index)]));
        label->SetUnderlined(index == m_tool->view.configuration);
    }
    m_controls.cmdTable[1].SetTooltip(std::string(texts.split_tip));
}

void PointsPanel::ShowProcedures() {
    window::Recorder& rows = m_controls.imgProcs.Canvas();
    const int height = m_controls.shpMrua.Bounds().height;
    rows.Cls();
    rows.CurrentFont = text::Font{std::string(text::kInterfaceFont), kRowTextSize};
    double top = 0;
    for (const std::string_view title : m_tool->Texts().procedure_rows) {
        rows.Box(0, top, rows.Width() - 1, top + height - 1, kPlainRow, true);
        rows.Box(0, top, rows.Width() - 1, top + height - 1, kEdgeColor, false);
        rows.CurrentX = kRowTextLeft;
        rows.CurrentY = top + (height - rows.TextHeight()) / 2;
        rows.Print(title);
        top += height;
    }
    FrameRow();
    const auto list = m_tool->Texts().procedure_list;
    m_controls.cboProcs.SetItems(std::vector<std::string>(list.begin(), list.end()));
    m_controls.cboProcs.SetIndex(m_tool->view.procedure_entry);
    m_controls.txtProcs.SetText(m_tool->view.data);
    ShowAnswering(m_tool->view.asks_data, m_tool->view.has_accept);
    ShowArgumentPage();
}

void PointsPanel::FrameRow() {
    window::Rect frame = m_controls.shpMrua.Bounds();
    frame.top = m_controls.imgProcs.Bounds().top + (m_tool->view.procedure_row - 1) * frame.height;
    m_controls.shpMrua.SetBounds(frame);
}

std::vector<window::PictureCell> PointsPanel::RowCells() const {
    std::vector<window::PictureCell> cells;
    if (!m_tool)
        return cells;
    const int height = m_controls.shpMrua.Bounds().height;
    int row = 0;
    for (const std::string_view title : m_tool->Texts().procedure_rows) {
        cells.push_back({.name = std::string(title),
                         .bounds = {0, row * height, m_controls.imgProcs.Bounds().width, height},
                         .role = window::CellRole::Choice,
                         .checked = row + 1 == m_tool->view.procedure_row});
        ++row;
    }
    return cells;
}

/// The panel of the rows stands under the first two tabs, that of the list under the third.
void PointsPanel::ShowArgumentPage() {
    const bool shows_list = m_controls.tabMrua.Current() == kListTab;
    m_controls.picArgs1.SetVisible(!shows_list);
    m_controls.picArgs2.SetVisible(shows_list);
}

void PointsPanel::ShowAnswering(bool asks_data, bool has_accept) {
    m_tool->view.asks_data = asks_data;
    m_tool->view.has_accept = has_accept;
    m_controls.txtProcs.SetVisible(asks_data);
    m_controls.cmdProcs.SetVisible(has_accept);
}

void PointsPanel::ShowRowArguments(std::span<const std::string_view> lines) {
    ShowArguments(m_controls.picArgs1, lines);
}

void PointsPanel::ShowEntryArguments(std::span<const std::string_view> lines) {
    ShowArguments(m_controls.picArgs2, lines);
}

void PointsPanel::ShowNewProblem() {
    PaintEmptyStrip(m_controls.picAccel.Canvas());
    m_tool->view.configuration = kNoConfiguration;
    m_tool->view.procedure_entry = kNoEntry;
    m_controls.cboProcs.SetIndex(kNoEntry);
    ShowAnswering(true, true);
    ShowConfigurations();
    ShowCells();
    ShowEntryArguments({});
    ChooseRow(1);
}

void PointsPanel::Configure(int configuration) {
    if (!m_tool)
        return;
    m_tool->view.configuration = configuration;
    ShowConfigurations();
    PaintEmptyStrip(m_controls.picAccel.Canvas());
    m_tool->Configure(configuration);
}

void PointsPanel::ChooseRow(int row) {
    if (!m_tool || row < 1 || row > static_cast<int>(m_tool->Texts().procedure_rows.size()))
        return;
    m_tool->view.procedure_row = row;
    FrameRow();
    m_tool->ChooseRow(row);
}

void PointsPanel::ChooseEntry() {
    const int entry = m_controls.cboProcs.Index();
    if (!m_tool || entry < 0)
        return;
    m_tool->view.procedure_entry = entry;
    m_tool->ChooseEntry(entry);
}

void PointsPanel::EraseTable() {
    if (!m_tool)
        return;
    m_tool->EraseTable();
    ShowCells();
}

bool PointsPanel::KeyPress(char32_t character) {
    if (!m_tool)
        return false;
    if (character == window::kEnterCharacter) {
        MoveOn();
        return true;
    }
    return window::TypeIntoCell(m_controls.Gd2, m_rules, character);
}

/// A double click empties the view of the cell alone: what it holds still counts.
void PointsPanel::HideCell() {
    window::Grid& grid = m_controls.Gd2;
    m_tool->Table().At(grid.Row(), grid.Col()).shown.clear();
    grid.SetCell(grid.Row(), grid.Col(), "");
}

/// The key Enter: down the column, then to the next one; it stays in the last cell.
void PointsPanel::MoveOn() {
    window::Grid& grid = m_controls.Gd2;
    if (grid.Row() + 1 < grid.Rows())
        grid.SetCurrent(grid.Row() + 1, grid.Col());
    else if (grid.Col() + 1 < grid.Cols())
        grid.SetCurrent(0, grid.Col() + 1);
    EnterCell();
}

void PointsPanel::EnterCell() {
    if (!m_tool)
        return;
    m_tool->view.row = m_controls.Gd2.Row();
    m_tool->view.column = m_controls.Gd2.Col();
    m_tool->EnterCell();
}

void PointsPanel::FocusColumn(int column) {
    m_controls.Gd2.SetCurrent(m_tool->view.row, column);
    m_form.SetFocus(m_controls.Gd2);
    EnterCell();
}

void PointsPanel::FocusTable(bool configured) {
    window::Button& first = m_controls.cmdTable[0];
    if (!configured && first.IsUsable())
        m_form.SetFocus(first);
    else
        m_form.SetFocus(m_controls.Gd2);
}

void PointsPanel::ShowHelp(int button) {
    const auto topic = m_tool ? m_tool->HelpTopic(static_cast<PointsHelp>(button)) : std::nullopt;
    if (topic)
        m_help.ShowShortTopic(topic->file, topic->tag);
}

}  // namespace tavrelo::frame
