#pragma once

#include <array>
#include <string>
#include <string_view>

#include "text/value.h"

/// What the tools of uniformly accelerated motion and of projectiles share: a table of at most nine points by
/// quantity, how its columns are divided among movers and stretches, references from one cell to another, and
/// the names of quantities. Everything here is a value or a pure function.
namespace tavrelo::mechanics::points {

/// Columns of the table. Columns count from 1, rows from 0.
inline constexpr int kMostPoints = 9;
inline constexpr int kMostRows = 5;

/// Rows of the table of a motion along a line.
enum MotionRow { kTimeRow = 0, kPositionRow = 1, kSpeedRow = 2 };
inline constexpr int kMotionRows = 3;

/// Rows of the table of a projectile; the last two hold magnitude and direction, or components.
enum ProjectileRow {
    kLaunchTimeRow = 0,
    kAcrossRow = 1,
    kHeightRow = 2,
    kMagnitudeRow = 3,
    kDirectionRow = 4,
};
inline constexpr int kProjectileRows = 5;

/// A cell: what it is worth and what it shows. They differ where a number is shown rounded, or is hidden;
/// every computation takes the stored one.
struct Cell {
    text::Value stored;
    std::string shown;

    friend bool operator==(const Cell&, const Cell&) = default;
};

/// A cell with a computed number: all digits stored, rounded to `decimals` in view.
Cell NumberCell(double number, int decimals);

/// A cell as its text was typed; an empty text stores nothing.
Cell TextCell(std::string_view text);
/// A cell with a pasted content: a number is stored as it was written and shown rounded. Fails with Overflow
/// past the range of a double.
Cell PastedCell(std::string_view content, int decimals);

/// The cells of a table, all empty at first. An index out of range fails with SubscriptRange.
class Table {
  public:
    explicit Table(int rows) : m_rows(rows) {}

    int Rows() const { return m_rows; }
    const Cell& At(int row, int column) const;
    Cell& At(int row, int column);
    const text::Value& Stored(int row, int column) const { return At(row, column).stored; }

    void SetNumber(int row, int column, double number, int decimals);
    void Clear();
    void ClearColumn(int column);
    /// All rows of a column into another one; the source is kept or emptied. Nothing when they are the same.
    void CopyColumn(int from, int to);
    void MoveColumn(int from, int to);
    /// Whether no cell of the column stores anything.
    bool IsEmptyColumn(int column) const;

    friend bool operator==(const Table&, const Table&) = default;

  private:
    int m_rows;
    std::array<std::array<Cell, kMostPoints>, kMostRows> m_cells;
};

}  // namespace tavrelo::mechanics::points
