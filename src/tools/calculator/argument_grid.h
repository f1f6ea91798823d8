#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tools/calculator/calculator_controls.h"
#include "window/cell_typing.h"

namespace tavrelo::tools::calculator {

inline constexpr int kGridRows = 100;  // of arguments, headings not counted
inline constexpr int kGridCols = 21;   // twenty unknowns and their right-hand side

/// The table of arguments `gd` with its bar of eight buttons: typing, series, exchange, copy and move of
/// blocks, widths.
class ArgumentGrid {
  public:
    ArgumentGrid(window::Form1& form, const CalculatorControls& controls);

    /// The first layout: empty cells under numbered headings, four columns in view, the first cell current.
    void ArrangeGd();
    int GridColsShown() const { return m_cols_shown; }
    /// Ends a copy or move that waits for its destination, and takes the marks off its button.
    void EndCopyMode();
    /// After a refusal: the size of the selection stands out when that is a single cell of a row that holds
    /// more.
    void ShowSelectionSize();
    /// Writes a text into the current cell and moves one cell on, at the end of a row to the next one.
    void PutInCurrentCell(const std::string& text);

    /// F12 or Shift+Enter in the table.
    std::function<void()> OnCalculate;

  private:
    void PressButton(int index);
    void StartCopyMode(int index);
    void Paste(int row, int col);
    void InsertSeries();
    void Exchange();
    void ExchangeRows(const window::CellBlock& block);
    void ExchangeColumns(const window::CellBlock& block);
    void SetColsShown(int shown);
    void ShowColumns(int shown, int width);

    /// Puts a block of the clipboard into the cells from the selection's first one on.
    void PasteBlock();
    /// Gives the cells that the last paste has covered their texts again.
    void TakeBackPaste();

    bool Type(char32_t character);
    bool KeyDown(const window::KeyStroke& stroke);
    void InsertResult();
    void SelectionChanged();

    window::Form1& m_form;
    const CalculatorControls& m_controls;
    int m_cols_shown = 4;
    std::optional<int> m_copy_button;  // the button whose copy or move waits
    window::CellBlock m_copy_source;
    /// What the last paste has covered.
    struct Covered {
        window::CellBlock block;
        std::vector<std::vector<std::string>> texts;
    };
    std::optional<Covered> m_covered;
};

}  // namespace tavrelo::tools::calculator
