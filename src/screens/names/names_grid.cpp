// SPDX-License-Identifier: MIT
#include "screens/names/names_grid.h"

#include <array>
#include <utility>

#include <QKeyEvent>

#include "desktop/colour.h"
#include "tally/views/name_views.h"

namespace rbt {

namespace {

/// Half-width characters that a column shows.
constexpr std::array<int, kNameCaptions.size()> kColumnCharacters{6, 30, 6, 12, 12};
constexpr std::size_t kNameColumn = 1;

}  // namespace

NamesGrid::NamesGrid(QWidget* parent) : GridControl(parent) {
  std::vector<GridColumn> columns;
  columns.reserve(kNameCaptions.size());
  for (std::size_t i = 0; i < kNameCaptions.size(); ++i) {
    columns.push_back({.caption = std::string(kNameCaptions[i]),
                       .characters = kColumnCharacters[i],
                       .alignment = i == kNameColumn ? Qt::AlignLeft : Qt::AlignRight});
  }
  SetColumns(std::move(columns));
  connect(this, &QTableView::clicked, this, [this](const QModelIndex& cell) {
    if (cell.column() == kNameMarkColumn) Flip(cell.row());
  });
}

void NamesGrid::OnMark(std::function<void(std::size_t row)> flip) { flip_ = std::move(flip); }

void NamesGrid::Flip(int row) const {
  if (flip_ && row >= 0) flip_(static_cast<std::size_t>(row));
}

void NamesGrid::Show(const NamesView& view) {
  SetRows(view.rows);
  SetAlternateColours(view.colours ? ColourOfRgb(view.colours->back) : QColor(),
                      view.colours ? ColourOfRgb(view.colours->fore) : QColor());
  if (view.to_first_row && !view.rows.empty()) {
    setCurrentIndex(model()->index(0, kNameMarkColumn));
    scrollToTop();
  }
}

void NamesGrid::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter) return GridControl::keyPressEvent(event);
  if (!event->isAutoRepeat()) Flip(currentIndex().row());
}

}  // namespace rbt
