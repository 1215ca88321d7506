// SPDX-License-Identifier: MIT
#include "screens/detail/detail_grid.h"

#include <algorithm>
#include <initializer_list>
#include <string>
#include <utility>

#include <QFontMetrics>
#include <QHeaderView>

#include "desktop/colour.h"
#include "platform/text/characters.h"

namespace rbt {

namespace {

/// Columns of what a line is and holds.
constexpr std::size_t kNameColumns = 2;
constexpr int kFewestCharacters = 4;

/// Between many columns there is little room.
constexpr int kPadding = 10;

constexpr double kSmallestPoints = 9;
constexpr double kPointStep = 0.5;

/// What each column needs for its texts.
std::vector<int> ColumnCharacters(const DetailView& view) {
  std::vector<int> characters(view.captions.size(), kFewestCharacters);
  for (const std::vector<std::string>& row : view.rows) {
    for (std::size_t column = 0; column < row.size(); ++column) {
      characters[column] = std::max(characters[column], static_cast<int>(DisplayWidth(row[column])));
    }
  }
  return characters;
}

int Sign(int number) { return (number > 0) - (number < 0); }

}  // namespace

DetailGrid::DetailGrid(QWidget* parent) : NumberGrid(parent) { SetPadding(kPadding); }

void DetailGrid::Show(const DetailView& view) {
  const bool opens = !IsOpen() && view.mode == DetailMode::editing;
  SetOpen(view.mode == DetailMode::editing);
  LayOut(view);
  SetRows(view.rows);
  SetTotals(view.totals);
  SetAlternateColours(view.colours ? ColourOfRgb(view.colours->back) : QColor(),
                      view.colours ? ColourOfRgb(view.colours->fore) : QColor());
  if (opens && !IsEditable(currentIndex())) setCurrentIndex(Editable(model()->index(0, 0), 0, 1));
}

void DetailGrid::LayOut(const DetailView& view) {
  if (captions_ != view.captions) {
    captions_ = view.captions;
    std::vector<GridColumn> columns;
    columns.reserve(captions_.size());
    for (std::size_t i = 0; i < captions_.size(); ++i) {
      columns.push_back({.caption = std::string(captions_[i]),
                         .alignment = i < kNameColumns ? Qt::AlignLeft : Qt::AlignRight,
                         .locked = false});
    }
    SetColumns(std::move(columns));
    characters_.clear();
  }
  std::vector<int> characters = ColumnCharacters(view);
  if (characters == characters_) return;
  characters_ = std::move(characters);
  SetCharacters(characters_);
  FitLetters();
}

void DetailGrid::TakeLetters(const QFont& letters) {
  verticalHeader()->setMinimumSectionSize(QFontMetrics(letters).height());
  // Under a style sheet letters do not pass from a frame to what it shows.
  QHeaderView* captions = horizontalHeader();
  for (QWidget* shows : std::initializer_list<QWidget*>{captions, captions->viewport(), viewport()}) {
    shows->setFont(letters);
  }
  setFont(letters);
}

void DetailGrid::FitLetters() {
  QFont letters = parentWidget()->font();
  TakeLetters(letters);
  while (sizeHint().width() > width() && letters.pointSizeF() - kPointStep >= kSmallestPoints) {
    letters.setPointSizeF(letters.pointSizeF() - kPointStep);
    TakeLetters(letters);
  }
}

void DetailGrid::resizeEvent(QResizeEvent* event) {
  NumberGrid::resizeEvent(event);
  // Scroll bars come and go with the letters; what they leave does not count.
  if (std::exchange(fitted_width_, width()) != width()) FitLetters();
}

QModelIndex DetailGrid::Editable(QModelIndex cell, int rows, int columns) const {
  while (cell.isValid() && !IsEditable(cell)) {
    if (rows == 0 && columns == 0) return {};
    cell = model()->index(cell.row() + rows, cell.column() + columns);
  }
  return cell;
}

QModelIndex DetailGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  const QModelIndex to = NumberGrid::moveCursor(action, modifiers);
  const QModelIndex from = currentIndex();
  if (!IsOpen() || !to.isValid() || !from.isValid()) return to;
  int rows = Sign(to.row() - from.row());
  int columns = Sign(to.column() - from.column());
  if (action == MoveNext || action == MovePrevious) {  // they go on in another row
    rows = 0;
    columns = action == MoveNext ? 1 : -1;
  }
  if (const QModelIndex ahead = Editable(to, rows, columns); ahead.isValid()) return ahead;
  const QModelIndex back = Editable(to, -rows, -columns);
  return back.isValid() ? back : from;
}

}  // namespace rbt
