#pragma once

#include <QAbstractTableModel>

#include "window/controls.h"

namespace tavrelo::qt {

/// The cells of a grid for a table view: the fixed rows and columns are the headings, all others the body.
class GridTable : public QAbstractTableModel {
  public:
    explicit GridTable(const window::Grid& grid) : m_grid(grid) {}

    /// Cells have changed, or their number.
    void Renew();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    /// Plain cells take the colours of a dark look; all others stay as the program fills them.
    bool HasLookColors(int row, int col) const;

    const window::Grid& m_grid;
    int m_rows = 0;
    int m_cols = 0;
};

}  // namespace tavrelo::qt
