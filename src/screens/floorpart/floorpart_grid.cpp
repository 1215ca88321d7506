// SPDX-License-Identifier: MIT
#include "screens/floorpart/floorpart_grid.h"

#include <algorithm>

#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpressionValidator>

#include "data/parts.h"
#include "desktop/colour.h"

namespace rbt {

namespace {

/// A half-width character of the screens' font is 6 points wide.
constexpr int kTwipsPerCharacter = 120;

int CharactersOfWidth(int twips) { return (twips + kTwipsPerCharacter / 2) / kTwipsPerCharacter; }

bool TypesWeight(const QString& text) {
  return text == "," || (text.size() == 1 && text[0] >= QChar('0') && text[0] <= QChar('9'));
}

}  // namespace

/// Edits a cell in a box of digits and commas.
class FloorPartGrid::WeightEditing : public GridCellPainter {
 public:
  explicit WeightEditing(FloorPartGrid& grid) : GridCellPainter(&grid), grid_(grid) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                        const QModelIndex& /*index*/) const override {
    auto* box = new QLineEdit(parent);
    box->setFrame(false);
    box->setAlignment(Qt::AlignRight);
    box->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9,]*"), box));
    grid_.editor_ = box;
    return box;
  }

 private:
  FloorPartGrid& grid_;
};

FloorPartGrid::FloorPartGrid(QWidget* parent) : GridControl(parent) { SetPainter(new WeightEditing(*this)); }

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

void FloorPartGrid::SetOpen(bool open) {
  open_ = open;
  // What is being typed when the correction ends is not taken.
  if (!open_ && editor_ != nullptr) closeEditor(editor_, QAbstractItemDelegate::RevertModelCache);
}

void FloorPartGrid::GoToFirstRow(int column) {
  setCurrentIndex(model()->index(0, column));
  scrollToTop();
  setFocus();
}

QModelIndex FloorPartGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  const QModelIndex to = GridControl::moveCursor(action, modifiers);
  if (!open_ || !to.isValid()) return to;
  const int last_row = std::max(RowCount() - 2, 0);
  return model()->index(std::min(to.row(), last_row), std::min(to.column(), kOtherParts));
}

bool FloorPartGrid::TypesNoWeight(const QKeyEvent& event) const {
  const QString text = event.text();
  if (text.isEmpty() || !text[0].isPrint()) return false;
  const bool editable = currentIndex().isValid() && (currentIndex().flags() & Qt::ItemIsEditable);
  return !editable || !TypesWeight(text);
}

void FloorPartGrid::keyPressEvent(QKeyEvent* event) {
  if (open_ && TypesNoWeight(*event)) return event->accept();
  GridControl::keyPressEvent(event);
}

}  // namespace rbt
