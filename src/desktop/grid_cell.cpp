// SPDX-License-Identifier: MIT
#include "desktop/grid_cell.h"

#include <algorithm>

#include <QApplication>
#include <QPainter>
#include <QRegularExpression>

namespace rbt {

namespace {

/// Between the edge of a cell and its text, and between a number and its unit.
constexpr int kCellMargin = 6;
constexpr int kCellGap = 4;

QRegularExpressionMatch NumberIn(const QString& text) {
  static const QRegularExpression number(
      QStringLiteral("^\\s*(-?[0-9][0-9,]*(?:\\.[0-9]+)?)\\s*(kg|㎏|％|%)?\\s*$"));
  return number.match(text);
}

/// Above totals. A line of one pixel may fall between two pixels of a scaled screen, under the line of the
/// table.
constexpr int kRule = 2;

}  // namespace

CellParts PartsOfCell(const QString& text) {
  const QRegularExpressionMatch number = NumberIn(text);
  if (!number.hasMatch()) return {text.trimmed(), {}};
  return {number.captured(1), number.captured(2)};
}

QString TextForPaste(const QString& text) {
  const QRegularExpressionMatch number = NumberIn(text);
  if (!number.hasMatch()) return text.trimmed();
  return number.captured(1).remove(QLatin1Char(','));
}

bool GridCellPainter::IsTotal(int row) const {
  return std::binary_search(totals_.begin(), totals_.end(), row);
}

int GridCellPainter::DigitsEnd(const QRect& rect, int column) const {
  const auto at = static_cast<std::size_t>(column);
  const int room = at < unit_rooms_.size() && unit_rooms_[at] > 0 ? unit_rooms_[at] + kCellGap : 0;
  return rect.right() - kCellMargin - room;
}

void GridCellPainter::DrawParts(QPainter& painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
  const CellParts parts = PartsOfCell(index.data().toString());
  const QPalette::ColorGroup group =
      option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  painter.setFont(option.font);
  painter.setPen(option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
  const int end = DigitsEnd(option.rect, index.column());
  const QRect digits(option.rect.left(), option.rect.top(), end - option.rect.left(), option.rect.height());
  painter.drawText(digits, Qt::AlignRight | Qt::AlignVCenter, parts.number);
  const QRect unit(end + kCellGap, option.rect.top(), option.rect.right() - end - kCellGap,
                   option.rect.height());
  painter.drawText(unit, Qt::AlignLeft | Qt::AlignVCenter, parts.unit);
}

void GridCellPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const bool total = IsTotal(index.row());
  cell.font.setBold(total);
  const bool numbers = cell.displayAlignment.testFlag(Qt::AlignRight);
  if (numbers) cell.text.clear();
  const QStyle* style = cell.widget != nullptr ? cell.widget->style() : QApplication::style();
  painter->save();
  style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
  if (numbers) {
    // Clear of the rule: bold digits reach higher than the words beside them.
    if (total) cell.rect.adjust(0, kRule, 0, kRule);
    DrawParts(*painter, cell, index);
    cell.rect = option.rect;
  }
  if (total && !IsTotal(index.row() - 1)) {
    painter->fillRect(cell.rect.left(), cell.rect.top(), cell.rect.width(), kRule,
                      cell.palette.color(QPalette::Text));
  }
  painter->restore();
}

}  // namespace rbt
