// SPDX-License-Identifier: MIT
#include "screens/result/result_grid.h"

#include <array>

#include "desktop/colour.h"

namespace rbt {

namespace {

/// Half-width characters that a column shows; the first holds the grade name and the diameter.
constexpr std::array<int, 6> kColumnCharacters{26, 18, 18, 16, 14, 14};

}  // namespace

ResultGrid::ResultGrid(QWidget* parent) : GridControl(parent) { LayOut(); }

void ResultGrid::LayOut() {
  std::vector<GridColumn> columns;
  columns.reserve(kResultCaptions.size());
  for (std::size_t i = 0; i < kResultCaptions.size(); ++i) {
    columns.push_back({std::string(kResultCaptions[i]), kColumnCharacters[i],
                       i == 0 ? Qt::AlignLeft : Qt::AlignRight, true, true});
  }
  SetColumns(std::move(columns));
}

void ResultGrid::Show(const ResultScreenView& view) {
  // Other rows in place of these: none of them is the current one any more.
  if (view.ulbon_view != ulbon_view_) LayOut();
  ulbon_view_ = view.ulbon_view;
  SetRows(view.rows);
  SetTotals(view.totals);
  SetAlternateColours(view.colours ? ColourOfRgb(view.colours->back) : QColor(),
                      view.colours ? ColourOfRgb(view.colours->fore) : QColor());
}

}  // namespace rbt
