// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <QString>
#include <QStyledItemDelegate>

namespace rbt {

/// A cell's text as number and unit: "1,234 kg" is "1,234" and "kg". A text that does not start with a number
/// has no unit, all of it stands in `number`.
struct CellParts {
  QString number;
  QString unit;
};
CellParts PartsOfCell(const QString& text);

/// The text as another program takes it in: a number without its thousands commas and its unit, any other
/// text without the blanks around it.
QString TextForPaste(const QString& text);

/// Draws the cells of a grid. In a column that is aligned to the right the digits of all rows end at one
/// place, units stand behind them; a total has a rule above it and bold letters.
class GridCellPainter : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  /// Rows that are totals, in rising order.
  void SetTotals(std::vector<int> totals) { totals_ = std::move(totals); }
  bool IsTotal(int row) const;
  /// Room behind the digits of each column, in pixels.
  void SetUnitRooms(std::vector<int> rooms) { unit_rooms_ = std::move(rooms); }

  /// Where the digits of a cell end, when the cell lies in `rect`.
  int DigitsEnd(const QRect& rect, int column) const;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  void DrawParts(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;

  std::vector<int> totals_;
  std::vector<int> unit_rooms_;
};

}  // namespace rbt
