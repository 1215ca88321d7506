// SPDX-License-Identifier: MIT
#include "screens/panels/number_grid.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpressionValidator>

#include "desktop/grid_cell.h"

namespace rbt {

namespace {

bool TypesNumber(const QString& text) {
  return text == "," || (text.size() == 1 && text[0] >= QChar('0') && text[0] <= QChar('9'));
}

}  // namespace

/// Edits a cell in a box of digits and commas.
class NumberGrid::Editing : public GridCellPainter {
 public:
  explicit Editing(NumberGrid& grid) : GridCellPainter(&grid), grid_(grid) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                        const QModelIndex& /*index*/) const override {
    auto* box = new QLineEdit(parent);
    box->setFrame(false);
    box->setFont(grid_.font());
    box->setAlignment(Qt::AlignRight);
    box->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9,]*"), box));
    grid_.editor_ = box;
    return box;
  }

 private:
  NumberGrid& grid_;
};

NumberGrid::NumberGrid(QWidget* parent) : GridControl(parent) { SetPainter(new Editing(*this)); }

void NumberGrid::SetOpen(bool open) {
  open_ = open;
  if (!open_ && editor_ != nullptr) closeEditor(editor_, QAbstractItemDelegate::RevertModelCache);
}

bool NumberGrid::IsEditable(const QModelIndex& cell) const {
  return cell.isValid() && (cell.flags() & Qt::ItemIsEditable);
}

bool NumberGrid::TypesNoNumber(const QKeyEvent& event) const {
  const QString text = event.text();
  if (text.isEmpty() || !text[0].isPrint()) return false;
  return !IsEditable(currentIndex()) || !TypesNumber(text);
}

void NumberGrid::keyPressEvent(QKeyEvent* event) {
  if (open_ && TypesNoNumber(*event)) return event->accept();
  GridControl::keyPressEvent(event);
}

}  // namespace rbt
