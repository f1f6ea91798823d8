#include "tools/calculator/argument_grid.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "text/number_text.h"
#include "text/utf8.h"
#include "window/guarded.h"
#include "window/pasted_block.h"

namespace tavrelo::tools::calculator {
namespace {

using window::CellBlock;
using window::Key;

// Indexes of cmdGrid.
enum GridButton { kRestore, kExchange, kWiden, kCopy, kSmallCells, kNarrow, kMove, kSeries };

constexpr int kFirstColsShown = 4;
constexpr int kLeastColsShown = 1;
constexpr int kSmallColsShown = 12;
constexpr int kSmallWidth = 420;         // twips
constexpr int kHeaderColumnWidth = 330;  // twips
constexpr int kBorderWidth = 45;         // twips
constexpr int kScrollBarWidth = 280;     // twips
constexpr int kLeastSeriesRows = 3;

constexpr std::string_view kBlockTooLarge = "El bloque no cabe en la tabla desde la celda elegida.";

constexpr text::Color kButtonColor = text::Rgb(192, 192, 192);
constexpr text::Color kMarkedColor = text::Rgb(255, 224, 192);
constexpr window::Rect kIconSize{0, 0, 26, 24};

std::string Heading(int number) { return "#" + std::to_string(number); }

std::vector<std::vector<std::string>> TextsOf(const window::Grid& grid, const CellBlock& block) {
    std::vector<std::vector<std::string>> texts;
    for (int row = block.first_row; row <= block.last_row; ++row) {
        texts.emplace_back();
        for (int col = block.first_col; col <= block.last_col; ++col)
            texts.back().push_back(grid.Cell(row, col));
    }
    return texts;
}

void PutTexts(window::Grid& grid, int row, int col, const std::vector<std::vector<std::string>>& texts) {
    const window::ChangeBatch batch(grid);
    for (std::size_t r = 0; r < texts.size(); ++r)
        for (std::size_t c = 0; c < texts[r].size(); ++c)
            grid.SetCell(row + static_cast<int>(r), col + static_cast<int>(c), texts[r][c]);
}

/// The block that texts fill from a cell on.
CellBlock BlockOf(int row, int col, const std::vector<std::vector<std::string>>& texts) {
    std::size_t cols = 0;
    for (const auto& cells : texts)
        cols = std::max(cols, cells.size());
    return {row, col, row + static_cast<int>(texts.size()) - 1, col + static_cast<int>(cols) - 1};
}

void SwapCells(window::Grid& grid, int row1, int col1, int row2, int col2) {
    std::string kept = grid.Cell(row1, col1);
    grid.SetCell(row1, col1, grid.Cell(row2, col2));
    grid.SetCell(row2, col2, std::move(kept));
}

}  // namespace

ArgumentGrid::ArgumentGrid(window::Form1& form, const CalculatorControls& controls)
    : m_form(form), m_controls(controls) {
    for (const auto& [index, button] : m_controls.cmdGrid.Items()) {
        window::Rect source = kIconSize;
        source.left = index * kIconSize.width;
        button->SetPicture({"grid_buttons", source});
        button->SetBackColor(kButtonColor);
    }
    window::Grid& grid = m_controls.gd;
    window::OnClick(form, m_controls.cmdGrid, [this](int index) { PressButton(index); });
    window::On(form, grid.OnMouseDown, [this](int row, int col) { Paste(row, col); });
    window::On(form, grid.OnSelChange, [this] { SelectionChanged(); });
    window::On(form, grid.OnKeyDown, [this](const window::KeyStroke& stroke) { return KeyDown(stroke); });
    window::On(form, grid.OnKeyPress, [this](char32_t character) { return Type(character); });
    ArrangeGd();
}

void ArgumentGrid::ArrangeGd() {
    window::Grid& grid = m_controls.gd;
    const window::ChangeBatch batch(grid);
    grid.Arrange(kGridRows + 1, kGridCols + 1, 1, 1);
    m_covered.reset();
    for (int row = 1; row <= kGridRows; ++row)
        grid.SetCell(row, 0, Heading(row));
    for (int col = 1; col <= kGridCols; ++col)
        grid.SetCell(0, col, Heading(col));
    grid.SetColWidth(0, kHeaderColumnWidth);
    SetColsShown(kFirstColsShown);
    grid.SetCurrent(1, 1);
    SelectionChanged();
}

void ArgumentGrid::PressButton(int index) {
    switch (index) {
        case kRestore:
            return ArrangeGd();
        case kExchange:
            return Exchange();
        case kWiden:
            if (m_cols_shown != kLeastColsShown && m_cols_shown != kSmallColsShown)
                SetColsShown(m_cols_shown - 1);
            return;
        case kNarrow:
            if (m_cols_shown != kSmallColsShown)
                SetColsShown(m_cols_shown + 1);
            return;
        case kSmallCells:
            return ShowColumns(kSmallColsShown, kSmallWidth);
        case kSeries:
            return InsertSeries();
        default:
            return StartCopyMode(index);
    }
}

void ArgumentGrid::SetColsShown(int shown) {
    const int grid_width = m_controls.gd.Bounds().width * window::kTwipsPerPixel;
    const int usable = (grid_width - kBorderWidth - kHeaderColumnWidth - kScrollBarWidth) /
                       window::kTwipsPerPixel * window::kTwipsPerPixel;
    ShowColumns(shown, usable / shown);
}

void ArgumentGrid::ShowColumns(int shown, int width) {
    m_cols_shown = shown;
    for (int col = 1; col <= kGridCols; ++col)
        m_controls.gd.SetColWidth(col, width);
}

void ArgumentGrid::StartCopyMode(int index) {
    EndCopyMode();
    m_copy_button = index;
    m_copy_source = m_controls.gd.Selection();
    m_form.publics.GridCopyMode = true;
    m_controls.cmdGrid[index].SetBackColor(kMarkedColor);
    m_form.SetPointer(window::kPointerUpArrow);
}

void ArgumentGrid::EndCopyMode() {
    if (!m_copy_button)
        return;
    m_controls.cmdGrid[*m_copy_button].SetBackColor(kButtonColor);
    m_copy_button.reset();
    m_form.publics.GridCopyMode = false;
    m_form.SetPointer(window::kPointerDefault);
}

/// Carries a waiting copy or move out on the clicked cell; the destination becomes the selection.
void ArgumentGrid::Paste(int row, int col) {
    if (!m_copy_button)
        return;
    const bool moves = *m_copy_button == kMove;
    EndCopyMode();
    window::Grid& grid = m_controls.gd;
    const CellBlock target{row, col, row + m_copy_source.Rows() - 1, col + m_copy_source.Cols() - 1};
    if (!grid.HasCell(target.last_row, target.last_col))
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "block past the edge");
    const auto texts = TextsOf(grid, m_copy_source);
    const window::ChangeBatch batch(grid);
    if (moves)
        window::EmptyCells(grid, m_copy_source);
    PutTexts(grid, row, col, texts);
    grid.Select(target);
    SelectionChanged();
}

void ArgumentGrid::PasteBlock() {
    window::Grid& grid = m_controls.gd;
    const auto texts = window::CellsOfBlock(m_form.clipboard.Text());
    const int row = grid.Selection().first_row;
    const int col = grid.Selection().first_col;
    if (texts.empty() || row < grid.FixedRows() || col < grid.FixedCols())
        return;
    const CellBlock target = BlockOf(row, col, texts);
    if (!grid.HasCell(target.last_row, target.last_col))
        return m_form.boxes.Tell(kBlockTooLarge);
    m_controls.pic.Canvas().Invite({});
    m_covered = Covered{target, TextsOf(grid, target)};
    PutTexts(grid, row, col, texts);
    grid.Select(target);
    SelectionChanged();
}

void ArgumentGrid::TakeBackPaste() {
    if (!m_covered)
        return;
    const auto [block, texts] = *std::exchange(m_covered, std::nullopt);
    PutTexts(m_controls.gd, block.first_row, block.first_col, texts);
    m_controls.gd.Select(block);
    SelectionChanged();
}

void ArgumentGrid::InsertSeries() {
    window::Grid& grid = m_controls.gd;
    const CellBlock block = grid.Selection();
    if (block.Cols() != 1 || block.Rows() < kLeastSeriesRows)
        return;
    const int col = block.first_col;
    const double first = text::ToNumber(grid.Cell(block.first_row, col));
    const double step = numeric::CheckedSubtract(text::ToNumber(grid.Cell(block.first_row + 1, col)), first);
    const window::ChangeBatch batch(grid);
    // The last value is the farthest: when it exists, all do, and nothing is half written.
    numeric::CheckedAdd(first, numeric::CheckedMultiply(block.Rows() - 1, step));
    for (int k = 2; k < block.Rows(); ++k)
        grid.SetCell(block.first_row + k, col, text::NumberToText(first + k * step));
    grid.Select(block);
    m_form.SetFocus(grid);
}

void ArgumentGrid::Exchange() {
    const CellBlock block = m_controls.gd.Selection();
    constexpr int kPair = 2;
    if (block.Rows() != kPair)
        return ExchangeColumns(block);
    if (block.Cols() != kPair)
        return ExchangeRows(block);
    const window::Answer answer = m_form.boxes.ShowMessage(
        "Si deseas intercambiar los valores de fila oprime el\nbotón \"Sí\". Para intercambiar columnas "
        "oprime \"No\".",
        "Nó se si intercambiar filas o columnas", window::Buttons::YesNo);
    if (answer == window::Answer::Yes)
        ExchangeRows(block);
    else
        ExchangeColumns(block);
}

void ArgumentGrid::ExchangeRows(const CellBlock& block) {
    const window::ChangeBatch batch(m_controls.gd);
    for (int col = block.first_col; col <= block.last_col; ++col)
        SwapCells(m_controls.gd, block.first_row, col, block.last_row, col);
}

void ArgumentGrid::ExchangeColumns(const CellBlock& block) {
    const window::ChangeBatch batch(m_controls.gd);
    for (int row = block.first_row; row <= block.last_row; ++row)
        SwapCells(m_controls.gd, row, block.first_col, row, block.last_col);
}

bool ArgumentGrid::Type(char32_t character) {
    m_controls.pic.Canvas().Invite({});
    return window::TypeIntoCell(m_controls.gd, {}, character);
}

bool ArgumentGrid::KeyDown(const window::KeyStroke& stroke) {
    const bool calculates = stroke.key == Key::F12 || (stroke.key == Key::Enter && stroke.shift);
    if (calculates && OnCalculate)
        OnCalculate();
    else if (stroke.key == Key::Delete)
        window::EmptyCells(m_controls.gd, m_controls.gd.Selection());
    else if (stroke.key == Key::Insert)
        InsertResult();
    else if (window::CtrlLetter(stroke) == U'v')
        PasteBlock();
    else if (window::CtrlLetter(stroke) == U'z')
        TakeBackPaste();
    else
        return false;
    return true;
}

void ArgumentGrid::InsertResult() {
    window::Grid& grid = m_controls.gd;
    const std::string& result = m_controls.txtExpr.Text();
    grid.SetCell(
        grid.Row(), grid.Col(),
        text::IsNum(result) ? text::RoundedText(text::ToNumber(result), m_form.publics.Decimals) : result);
}

/// A block must be dragged from its upper left to its lower right cell.
void ArgumentGrid::SelectionChanged() {
    window::Grid& grid = m_controls.gd;
    const CellBlock dragged = grid.DraggedBlock();
    if (dragged.last_row < dragged.first_row || dragged.last_col < dragged.first_col) {
        grid.SetCurrent(dragged.first_row, dragged.first_col);
        m_form.boxes.Tell("Debes seleccionar de arriba abajo y de derecha a izquierda.");
    }
    const CellBlock& block = grid.Selection();
    m_controls.lblRC.CallAttention(false);
    m_controls.lblRC.SetCaption(std::to_string(block.Rows()) + " x " + std::to_string(block.Cols()));
}

void ArgumentGrid::ShowSelectionSize() {
    const window::Grid& grid = m_controls.gd;
    const CellBlock& block = grid.Selection();
    if (block.Rows() != 1 || block.Cols() != 1)
        return;
    bool holds_more = false;
    for (int col = grid.FixedCols(); col < grid.Cols(); ++col)
        holds_more = holds_more || (col != block.first_col && !grid.Cell(block.first_row, col).empty());
    m_controls.lblRC.CallAttention(holds_more);
}

void ArgumentGrid::PutInCurrentCell(const std::string& text) {
    m_controls.pic.Canvas().Invite({});
    window::Grid& grid = m_controls.gd;
    grid.SetCell(grid.Row(), grid.Col(), text);
    if (grid.Col() < kGridCols)
        grid.SetCurrent(grid.Row(), grid.Col() + 1);
    else if (grid.Row() < kGridRows)
        grid.SetCurrent(grid.Row() + 1, 1);
    SelectionChanged();
}

}  // namespace tavrelo::tools::calculator
