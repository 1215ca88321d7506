// SPDX-License-Identifier: MIT
#include "screens/accumulation/site_grid.h"

#include <utility>

namespace rbt {

SiteGrid::SiteGrid(QWidget* parent) : GridControl(parent) {
  constexpr int kNumberCharacters = 8;
  constexpr int kNameCharacters = 60;
  SetColumns({{"No", kNumberCharacters, Qt::AlignRight, true, true},
              {"工事名", kNameCharacters, Qt::AlignLeft, true, true}});
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::SingleSelection);
  // Another number may stand in its box: a click takes the row that is current already, too.
  connect(this, &QAbstractItemView::clicked, this, [this](const QModelIndex& cell) { GoneTo(cell); });
}

void SiteGrid::Show(const SiteChoiceView& view) {
  silent_ = true;
  if (RowCount() != static_cast<int>(view.rows.size())) SetRows(view.rows);
  if (view.current && currentIndex().row() != static_cast<int>(*view.current)) {
    setCurrentIndex(model()->index(static_cast<int>(*view.current), 0));
  }
  silent_ = false;
}

void SiteGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  GridControl::currentChanged(current, previous);
  if (!silent_ && current.row() != previous.row()) GoneTo(current);
}

void SiteGrid::GoneTo(const QModelIndex& cell) const {
  if (gone_to_ && cell.isValid()) gone_to_(static_cast<std::size_t>(cell.row()));
}

}  // namespace rbt
