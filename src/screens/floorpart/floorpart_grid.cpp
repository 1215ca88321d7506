// SPDX-License-Identifier: MIT
#include "screens/floorpart/floorpart_grid.h"

#include <algorithm>

#include "data/parts.h"
#include "desktop/colour.h"

namespace rbt {

namespace {

/// A half-width character of the screens' font is 6 points wide.
constexpr int kTwipsPerCharacter = 120;

int CharactersOfWidth(int twips) { return (twips + kTwipsPerCharacter / 2) / kTwipsPerCharacter; }

}  // namespace

void FloorPartGrid::Show(const FloorPartGridView& view) {
  SetOpen(view.open);
  if (columns_ != view.columns) {
    columns_ = view.columns;
    std::vector<GridColumn> columns;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      const FloorPartColumn& column = columns_[i];
      const bool holds_part = i >= 1 && i <= static_cast<std::size_t>(kOtherParts);
      columns.push_back({column.caption, CharactersOfWidth(column.width),
                         column.centred ? Qt::AlignCenter : Qt::AlignRight, column.shown, !holds_part});
    }
    SetColumns(std::move(columns));
  }
  SetRows(view.rows);
  if (!view.rows.empty()) SetTotals({view.rows.size() - 1});
  SetAlternateColours(view.colours ? ColourOfRgb(view.colours->back) : QColor(),
                      view.colours ? ColourOfRgb(view.colours->fore) : QColor());
}

void FloorPartGrid::GoToFirstRow(int column) {
  setCurrentIndex(model()->index(0, column));
  scrollToTop();
  setFocus();
}

QModelIndex FloorPartGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  const QModelIndex to = NumberGrid::moveCursor(action, modifiers);
  if (!IsOpen() || !to.isValid()) return to;
  const int last_row = std::max(RowCount() - 2, 0);
  return model()->index(std::min(to.row(), last_row), std::min(to.column(), kOtherParts));
}

}  // namespace rbt
