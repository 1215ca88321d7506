// SPDX-License-Identifier: MIT
#include "screens/planning/plan_grid.h"

#include <algorithm>
#include <string>
#include <utility>

#include "platform/text/characters.h"

namespace rbt {

namespace {

constexpr int kSteelCharacters = 12;
constexpr int kFigureCharacters = 5;
constexpr int kPadding = 8;

}  // namespace

PlanGrid::PlanGrid(QWidget* parent) : GridControl(parent) {
  SetPadding(kPadding);
  std::vector<GridColumn> columns;
  for (const std::string& caption : PlanCaptions()) {
    GridColumn column{.caption = caption};
    column.characters = columns.empty() ? kSteelCharacters : kFigureCharacters;
    if (columns.empty()) column.alignment = Qt::AlignLeft;
    characters_.push_back(column.characters);
    columns.push_back(std::move(column));
  }
  SetColumns(std::move(columns));
  KeepLastRowInSight();
}

void PlanGrid::Show(const PlanScreenView& view) {
  FitColumns(view.rows);
  SetRows(view.rows);
  SetTotals(view.totals);
}

void PlanGrid::resizeEvent(QResizeEvent* event) {
  GridControl::resizeEvent(event);
  if (currentIndex().isValid()) scrollTo(currentIndex());
}

void PlanGrid::FitColumns(const GridRows& rows) {
  std::vector<int> needed = characters_;
  for (const std::vector<std::string>& row : rows) {
    for (std::size_t column = 0; column < row.size(); ++column) {
      needed[column] = std::max(needed[column], static_cast<int>(DisplayWidth(row[column])));
    }
  }
  if (needed == characters_) return;
  characters_ = std::move(needed);
  SetCharacters(characters_);
}

}  // namespace rbt
