// SPDX-License-Identifier: MIT
#include "screens/planning/plan_grid.h"

#include <algorithm>
#include <string>
#include <utility>

#include "desktop/colour.h"
#include "platform/text/characters.h"

namespace rbt {

namespace {

constexpr int kSteelCharacters = 12;
constexpr int kFigureCharacters = 4;
constexpr int kPadding = 8;

std::vector<int> LeastCharacters() {
  std::vector<int> characters(PlanCaptions().size(), kFigureCharacters);
  characters.front() = kSteelCharacters;
  return characters;
}

}  // namespace

PlanGrid::PlanGrid(QWidget* parent) : GridControl(parent), least_(LeastCharacters()), characters_(least_) {
  SetPadding(kPadding);
  std::vector<GridColumn> columns;
  for (const std::string& caption : PlanCaptions()) {
    GridColumn column{.caption = caption};
    column.characters = least_[columns.size()];
    if (columns.empty()) column.alignment = Qt::AlignLeft;
    columns.push_back(std::move(column));
  }
  SetColumns(std::move(columns));
  KeepLastRowInSight();
}

void PlanGrid::Show(const PlanScreenView& view) {
  FitColumns(view);
  SetRows(view.rows);
  SetTotals(view.totals);
  SetAlternateColours(view.colours ? ColourOfRgb(view.colours->back) : QColor(),
                      view.colours ? ColourOfRgb(view.colours->fore) : QColor());
}

void PlanGrid::resizeEvent(QResizeEvent* event) {
  GridControl::resizeEvent(event);
  if (currentIndex().isValid()) scrollTo(currentIndex());
}

void PlanGrid::FitColumns(const PlanScreenView& view) {
  std::vector<int> needed = view.improving ? characters_ : least_;
  for (const std::vector<std::string>& row : view.rows) {
    for (std::size_t column = 0; column < row.size(); ++column) {
      needed[column] = std::max(needed[column], static_cast<int>(DisplayWidth(row[column])));
    }
  }
  if (needed == characters_) return;
  characters_ = std::move(needed);
  SetCharacters(characters_);
}

}  // namespace rbt
