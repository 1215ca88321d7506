// SPDX-License-Identifier: MIT
#include "desktop/grid_control.h"

#include <algorithm>
#include <numeric>

#include <QAbstractTableModel>
#include <QClipboard>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

namespace rbt {

/// Texts and how they show. A row that is shorter than the columns has empty cells at its end.
class GridControl::Model : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
  }
  int columnCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
  }

  QVariant data(const QModelIndex& index, int role) const override {
    switch (role) {
      case Qt::DisplayRole:
      case Qt::EditRole:
        return QString::fromStdString(Text(index.row(), index.column()));
      case Qt::TextAlignmentRole:
        return QVariant::fromValue(ColumnAt(index.column()).alignment | Qt::AlignVCenter);
      case Qt::BackgroundRole:
        return Alternate(index.row()) && back_.isValid() ? QVariant(back_) : QVariant();
      case Qt::ForegroundRole:
        return Alternate(index.row()) && fore_.isValid() ? QVariant(fore_) : QVariant();
      default:
        return {};
    }
  }

  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole) return QString::fromStdString(ColumnAt(section).caption);
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
    return {};
  }

  Qt::ItemFlags flags(const QModelIndex& index) const override {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool open =
        !ColumnAt(index.column()).locked && (!before_edit || before_edit(index.row(), index.column()));
    return open ? flags | Qt::ItemIsEditable : flags;
  }

  bool setData(const QModelIndex& index, const QVariant& value, int role) override {
    if (role != Qt::EditRole) return false;
    std::string text = value.toString().toStdString();
    if (before_update && !before_update(index.row(), index.column(), text)) return false;
    SetText(index.row(), index.column(), std::move(text));
    if (after_edit) after_edit(index.row(), index.column());
    return true;
  }

  void SetColumns(std::vector<GridColumn> columns) {
    beginResetModel();
    columns_ = std::move(columns);
    endResetModel();
  }

  void SetCharacters(const std::vector<int>& characters) {
    for (std::size_t i = 0; i < columns_.size(); ++i) columns_[i].characters = characters.at(i);
  }

  void SetRows(std::vector<std::vector<std::string>> rows) {
    const int before = rowCount();
    const int after = static_cast<int>(rows.size());
    // Rows are added and taken at the end, so that the current cell and the scroll position stay.
    if (after < before) {
      beginRemoveRows({}, after, before - 1);
      rows_.resize(rows.size());
      endRemoveRows();
    } else if (after > before) {
      beginInsertRows({}, before, after - 1);
      rows_.resize(rows.size());
      endInsertRows();
    }
    rows_ = std::move(rows);
    Refresh();
  }

  std::string Text(int row, int column) const {
    const auto& cells = rows_.at(static_cast<std::size_t>(row));
    const auto at = static_cast<std::size_t>(column);
    return at < cells.size() ? cells[at] : std::string();
  }

  void SetText(int row, int column, std::string text) {
    auto& cells = rows_.at(static_cast<std::size_t>(row));
    const auto at = static_cast<std::size_t>(column);
    if (at >= cells.size()) cells.resize(at + 1);
    cells[at] = std::move(text);
    emit dataChanged(index(row, column), index(row, column));
  }

  void SetColours(const QColor& back, const QColor& fore) {
    back_ = back;
    fore_ = fore;
    Refresh();
  }

  const GridColumn& ColumnAt(int column) const { return columns_.at(static_cast<std::size_t>(column)); }

  BeforeEdit before_edit;
  BeforeUpdate before_update;
  AfterEdit after_edit;

 private:
  static bool Alternate(int row) { return row % 2 == 1; }
  void Refresh() {
    if (rowCount() > 0 && columnCount() > 0)
      emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
  }

  std::vector<GridColumn> columns_;
  std::vector<std::vector<std::string>> rows_;
  QColor back_;
  QColor fore_;
};

/// Lies on the lower edge of the rows. A click there leads to the last row.
class GridControl::Foot : public QWidget {
 public:
  explicit Foot(GridControl& grid) : QWidget(&grid), grid_(grid) { setObjectName("lastRow"); }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    grid_.PaintLastRow(painter, height());
  }
  void mousePressEvent(QMouseEvent* /*event*/) override { grid_.scrollToBottom(); }

 private:
  GridControl& grid_;
};

GridControl::GridControl(QWidget* parent) : QTableView(parent), model_(new Model(this)), painter_(nullptr) {
  setModel(model_);
  SetPainter(new GridCellPainter(this));
  setSelectionMode(QAbstractItemView::ContiguousSelection);
  setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                  QAbstractItemView::AnyKeyPressed);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  verticalHeader()->hide();
  horizontalHeader()->setSectionsClickable(false);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setStretchLastSection(false);
}

GridControl::~GridControl() = default;

void GridControl::SetPainter(GridCellPainter* painter) {
  delete painter_;
  painter_ = painter;
  setItemDelegate(painter_);
}

void GridControl::SetColumns(std::vector<GridColumn> columns) {
  model_->SetColumns(std::move(columns));
  LayOutColumns();
}

void GridControl::SetCharacters(const std::vector<int>& characters) {
  model_->SetCharacters(characters);
  LayOutColumns();
}

void GridControl::LayOutColumns() {
  QFont bold = font();
  bold.setBold(true);
  const QFontMetrics metrics(bold);  // totals need the most room
  const int half_width = metrics.horizontalAdvance(QLatin1Char('0'));
  natural_widths_.assign(static_cast<std::size_t>(model_->columnCount()), 0);
  for (int column = 0; column < model_->columnCount(); ++column) {
    const GridColumn& description = model_->ColumnAt(column);
    const int caption = metrics.horizontalAdvance(QString::fromStdString(description.caption));
    setColumnHidden(column, !description.visible);
    if (!description.visible) continue;
    natural_widths_[static_cast<std::size_t>(column)] =
        std::max(description.characters * half_width, caption) + padding_;
  }
  verticalHeader()->setDefaultSectionSize(metrics.height() + 4);
  FillFrame();
}

/// Room to spare goes to the columns by their widths; for want of room they keep theirs and scroll.
void GridControl::FillFrame() {
  int needed = std::accumulate(natural_widths_.begin(), natural_widths_.end(), 0);
  int spare = std::max(0, viewport()->width() - needed);
  for (int column = 0; column < model_->columnCount(); ++column) {
    const int natural = natural_widths_[static_cast<std::size_t>(column)];
    if (natural == 0) continue;
    const int share = spare * natural / needed;
    setColumnWidth(column, natural + share);
    spare -= share;
    needed -= natural;
  }
  PlaceFoot();
}

void GridControl::MeasureUnits() {
  QFont bold = font();
  bold.setBold(true);
  const QFontMetrics metrics(bold);
  std::vector<int> rooms(static_cast<std::size_t>(model_->columnCount()), 0);
  for (int row = 0; row < model_->rowCount(); ++row) {
    for (int column = 0; column < model_->columnCount(); ++column) {
      const CellParts parts = PartsOfCell(QString::fromStdString(model_->Text(row, column)));
      int& room = rooms[static_cast<std::size_t>(column)];
      room = std::max(room, metrics.horizontalAdvance(parts.unit));
    }
  }
  painter_->SetUnitRooms(std::move(rooms));
}

void GridControl::SetRows(std::vector<std::vector<std::string>> rows) {
  const int scrolled = verticalScrollBar()->value();
  model_->SetRows(std::move(rows));
  MeasureUnits();
  if (!currentIndex().isValid() && model_->rowCount() > 0) setCurrentIndex(model_->index(0, 0));
  verticalScrollBar()->setValue(scrolled);
  PlaceFoot();
}

int GridControl::RowCount() const { return model_->rowCount(); }

std::string GridControl::Cell(int row, int column) const { return model_->Text(row, column); }

void GridControl::SetCell(int row, int column, std::string text) {
  model_->SetText(row, column, std::move(text));
}

void GridControl::SetTotals(const std::vector<std::size_t>& rows) {
  painter_->SetTotals({rows.begin(), rows.end()});
  viewport()->update();
}

void GridControl::KeepLastRowInSight() {
  if (foot_ == nullptr) foot_ = new Foot(*this);
  PlaceFoot();
}

void GridControl::PlaceFoot() {
  if (foot_ == nullptr) return;
  const int last = model_->rowCount() - 1;
  const QRect rows = viewport()->geometry();
  const int height = last < 0 ? 0 : rowHeight(last);
  foot_->setVisible(last >= 0 && rowViewportPosition(last) + height > rows.height());
  foot_->setGeometry(rows.left(), rows.bottom() + 1 - height, rows.width(), height);
  foot_->update();
}

void GridControl::PaintLastRow(QPainter& painter, int height) {
  painter.fillRect(0, 0, width(), height, palette().color(QPalette::Base));
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  option.state.setFlag(QStyle::State_Selected, false);
  option.state.setFlag(QStyle::State_HasFocus, false);
  const QColor line =
      QColor::fromRgba(static_cast<QRgb>(style()->styleHint(QStyle::SH_Table_GridLineColor, &option, this)));
  for (int column = 0; column < model_->columnCount(); ++column) {
    if (isColumnHidden(column)) continue;
    option.rect = QRect(columnViewportPosition(column), 0, columnWidth(column) - 1, height - 1);
    painter_->paint(&painter, option, model_->index(model_->rowCount() - 1, column));
    painter.setPen(line);
    painter.drawLine(option.rect.right() + 1, 0, option.rect.right() + 1, height - 1);
  }
  painter.drawLine(0, height - 1, width(), height - 1);
}

/// The current cell does not stay under the last row.
void GridControl::scrollTo(const QModelIndex& index, ScrollHint hint) {
  QTableView::scrollTo(index, hint);
  if (foot_ == nullptr || !foot_->isVisible()) return;
  const int top = foot_->geometry().top() - viewport()->geometry().top();
  if (visualRect(index).bottom() >= top) verticalScrollBar()->setValue(verticalScrollBar()->value() + 1);
}

void GridControl::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  PlaceFoot();
}

void GridControl::SetAlternateColours(const QColor& back, const QColor& fore) {
  model_->SetColours(back, fore);
}

void GridControl::OnBeforeEdit(BeforeEdit handler) { model_->before_edit = std::move(handler); }

void GridControl::OnBeforeUpdate(BeforeUpdate handler) { model_->before_update = std::move(handler); }

void GridControl::OnAfterEdit(AfterEdit handler) { model_->after_edit = std::move(handler); }

QString GridControl::SelectedText() const {
  QModelIndexList cells = selectionModel()->selectedIndexes();
  // One cell stands for its row: a row is what people paste into a letter.
  if (cells.size() <= 1 && currentIndex().isValid()) {
    cells.clear();
    for (int column = 0; column < model_->columnCount(); ++column) {
      if (!isColumnHidden(column)) cells.append(model_->index(currentIndex().row(), column));
    }
  }
  if (cells.isEmpty()) return {};
  std::sort(cells.begin(), cells.end());
  QStringList heads;
  QStringList lines;
  int row = -1;
  for (const QModelIndex& cell : cells) {
    const QString text = TextForPaste(cell.data().toString());
    if (cell.row() == cells.front().row()) {
      heads += model_->headerData(cell.column(), Qt::Horizontal, Qt::DisplayRole).toString();
    }
    if (cell.row() == row) {
      lines.back() += QLatin1Char('\t') + text;
    } else {
      lines += text;
    }
    row = cell.row();
  }
  lines.prepend(heads.join(QLatin1Char('\t')));
  return lines.join(QLatin1Char('\n'));
}

QSize GridControl::sizeHint() const {
  const int width = 2 * frameWidth() + verticalScrollBar()->sizeHint().width() +
                    std::accumulate(natural_widths_.begin(), natural_widths_.end(), 0);
  const int rows = 26;
  const int height = 2 * frameWidth() + horizontalHeader()->sizeHint().height() +
                     rows * verticalHeader()->defaultSectionSize();
  return {width, height};
}

void GridControl::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    QGuiApplication::clipboard()->setText(SelectedText());
    event->accept();
    return;
  }
  QTableView::keyPressEvent(event);
}

void GridControl::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange) LayOutColumns();
}

void GridControl::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  FillFrame();
}

}  // namespace rbt
