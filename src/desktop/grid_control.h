// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include <QColor>
#include <QTableView>

#include "desktop/grid_cell.h"

namespace rbt {

/// How a column of a grid shows.
struct GridColumn {
  std::string caption;
  int characters = 10;                       ///< width in half-width characters
  Qt::Alignment alignment = Qt::AlignRight;  ///< of the cells; captions stand in the middle
  bool visible = true;
  bool locked = true;  ///< cells cannot be edited
};

/// A grid of texts: the form writes rows, the user walks them with the keys and copies them (Ctrl+C,
/// tab-separated). Columns fill the frame. Cells of unlocked columns are edited in place.
class GridControl : public QTableView {
 public:
  /// Asked before a cell is edited and before an edited text is taken; false refuses.
  using BeforeEdit = std::function<bool(int row, int column)>;
  using BeforeUpdate = std::function<bool(int row, int column, const std::string& text)>;
  using AfterEdit = std::function<void(int row, int column)>;

  explicit GridControl(QWidget* parent = nullptr);
  ~GridControl() override;

  void SetColumns(std::vector<GridColumn> columns);
  /// Other widths for the columns, in half-width characters; current cell and open box stay.
  void SetCharacters(const std::vector<int>& characters);
  /// Replaces all rows; the scroll position and, where it is still there, the current cell stay.
  void SetRows(std::vector<std::vector<std::string>> rows);

  int RowCount() const;
  std::string Cell(int row, int column) const;
  void SetCell(int row, int column, std::string text);

  /// Rows that are sums of others, in rising order: set off by a rule and by bold letters.
  void SetTotals(const std::vector<std::size_t>& rows);

  /// The last row, which is their sum, shows at the lower edge as long as it is scrolled out of sight.
  void KeepLastRowInSight();

  /// Every second row in these colours; two invalid colours turn it off.
  void SetAlternateColours(const QColor& back, const QColor& fore);

  void OnBeforeEdit(BeforeEdit handler);
  void OnBeforeUpdate(BeforeUpdate handler);
  void OnAfterEdit(AfterEdit handler);

  /// The captions, then the selected cells, or the current row, as lines of tab-separated texts; numbers
  /// without commas and units, as a calculation sheet takes them in.
  QString SelectedText() const;

  QSize sizeHint() const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  /// What a column is wider than its texts, in pixels; before the columns are set.
  void SetPadding(int padding) { padding_ = padding; }

  /// Draws the cells with another painter, which the grid owns; before there are rows.
  void SetPainter(GridCellPainter* painter);

 private:
  class Model;
  class Foot;
  void LayOutColumns();
  void FillFrame();
  void MeasureUnits();
  void PlaceFoot();
  void PaintLastRow(QPainter& painter, int height);

  Model* model_;
  GridCellPainter* painter_;
  Foot* foot_ = nullptr;             ///< the last row, where it is kept in sight
  std::vector<int> natural_widths_;  ///< of the columns that are seen; 0 of the others
  int padding_ = 14;
};

}  // namespace rbt
