// SPDX-License-Identifier: MIT
#include "desktop/grid_control.h"

#include <QClipboard>
#include <QHeaderView>
#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include "support/desktop/key_press.h"

namespace rbt::test {

namespace {

std::vector<std::vector<std::string>> Rows(int count) {
  std::vector<std::vector<std::string>> rows;
  for (int i = 0; i < count; ++i) rows.push_back({"D" + std::to_string(i), std::to_string(i * 10)});
  return rows;
}

struct Grid : GridControl {
  Grid() {
    SetColumns({{"太さ", 8, Qt::AlignLeft, true, true},
                {"本数", 8, Qt::AlignRight, true, false},
                {"隠", 4, Qt::AlignLeft, false, true}});
    SetRows(Rows(50));
    resize(300, 200);
    show();
    Settle();
  }
};

}  // namespace

TEST(GridControl, ShowsCaptionsCellsAndAlignments) {
  const Grid grid;
  EXPECT_EQ(grid.model()->headerData(0, Qt::Horizontal).toString(), "太さ");
  EXPECT_EQ(grid.Cell(2, 1), "20");
  EXPECT_EQ(grid.Cell(2, 2), "");  // a short row has empty cells
  EXPECT_TRUE(grid.isColumnHidden(2));
  EXPECT_TRUE(grid.model()->index(0, 1).data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignRight);
}

TEST(GridControl, KeepsScrollPositionAndCellWhenItsRowsAreReplaced) {
  Grid grid;
  grid.setCurrentIndex(grid.model()->index(30, 1));
  const int scrolled = grid.verticalScrollBar()->value();
  ASSERT_GT(scrolled, 0);
  grid.SetRows(Rows(49));
  EXPECT_EQ(grid.verticalScrollBar()->value(), scrolled);
  EXPECT_EQ(grid.currentIndex().row(), 30);
}

TEST(GridControl, OtherWidthsKeepCellsAndTheCurrentOne) {
  Grid grid;
  grid.setCurrentIndex(grid.model()->index(30, 1));
  const int narrow = grid.columnWidth(1);
  grid.SetCharacters({8, 30, 4});
  EXPECT_GT(grid.columnWidth(1), narrow);
  EXPECT_EQ(grid.currentIndex(), grid.model()->index(30, 1));
  EXPECT_EQ(grid.Cell(30, 1), "300");
}

TEST(GridControl, ColoursEverySecondRow) {
  Grid grid;
  grid.SetAlternateColours(QColor(1, 2, 3), QColor(4, 5, 6));
  EXPECT_FALSE(grid.model()->index(0, 0).data(Qt::BackgroundRole).isValid());
  EXPECT_EQ(grid.model()->index(1, 0).data(Qt::BackgroundRole).value<QColor>(), QColor(1, 2, 3));
  EXPECT_EQ(grid.model()->index(3, 1).data(Qt::ForegroundRole).value<QColor>(), QColor(4, 5, 6));
}

TEST(GridControl, CopiesTheSelectionOrTheCurrentRow) {
  Grid grid;
  grid.setCurrentIndex(grid.model()->index(1, 0));
  Press(grid, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "太さ\t本数\nD1\t10");
  grid.selectionModel()->select(QItemSelection(grid.model()->index(1, 0), grid.model()->index(2, 1)),
                                QItemSelectionModel::ClearAndSelect);
  EXPECT_EQ(grid.SelectedText(), "太さ\t本数\nD1\t10\nD2\t20");
  grid.selectionModel()->select(QItemSelection(grid.model()->index(3, 1), grid.model()->index(4, 1)),
                                QItemSelectionModel::ClearAndSelect);
  EXPECT_EQ(grid.SelectedText(), "本数\n30\n40") << "the heads of the columns that are taken";
}

TEST(GridControl, CopiesNumbersAsNumbers) {
  Grid grid;
  const std::pair<const char*, const char*> cells[] = {
      {"1,234,567 ", "1234567"}, {"434 kg", "434"}, {"-1,250 kg", "-1250"},
      {"3.25 ％", "3.25"},       {"D10", "D10"},    {"総　　合　　計", "総　　合　　計"},
      {" 6.0 m 3", "6.0 m 3"},   {"1階2", "1階2"},  {"", ""}};
  for (const auto& [text, pasted] : cells) EXPECT_EQ(TextForPaste(text).toStdString(), pasted);
}

TEST(GridControl, DigitsOfAColumnEndAtOnePlaceWhateverStandsBehindThem) {
  Grid grid;
  grid.SetRows({{"D10", "1,234 "}, {"計", "434 kg"}, {"率", "3.25 ％"}});
  const auto* painter = static_cast<GridCellPainter*>(grid.itemDelegate());
  const QRect cell(100, 0, 80, 20);
  const QFontMetrics metrics(grid.font());
  EXPECT_GE(cell.right() - painter->DigitsEnd(cell, 1), metrics.horizontalAdvance("kg"));
  EXPECT_EQ(PartsOfCell("434 kg").number, "434");
  EXPECT_EQ(PartsOfCell("434 kg").unit, "kg");
  EXPECT_EQ(PartsOfCell("1,234 ").number, "1,234");
  EXPECT_EQ(PartsOfCell("1,234 ").unit, "");
  EXPECT_EQ(PartsOfCell("D10").number, "D10");
  EXPECT_EQ(grid.Cell(1, 1), "434 kg") << "the text itself is as it was";
}

TEST(GridControl, ColumnsFillTheFrame) {
  Grid grid;
  grid.resize(700, 300);
  Settle();
  int width = 0;
  for (int column = 0; column < 3; ++column)
    width += grid.isColumnHidden(column) ? 0 : grid.columnWidth(column);
  EXPECT_EQ(width, grid.viewport()->width());
  const int natural = grid.sizeHint().width();
  grid.resize(60, 300);
  Settle();
  EXPECT_EQ(grid.sizeHint().width(), natural);
  EXPECT_GT(grid.columnWidth(0) + grid.columnWidth(1), grid.viewport()->width()) << "texts are not cut";
}

TEST(GridControl, KeepsItsLastRowInSightAndTheCurrentCellClearOfIt) {
  Grid grid;
  grid.KeepLastRowInSight();
  Settle();
  const QWidget& foot = *grid.findChild<QWidget*>("lastRow");
  const int below = grid.viewport()->geometry().top();
  int kept = 0;
  for (int row = 0; row < 49; ++row) {
    grid.setCurrentIndex(grid.model()->index(row, 1));
    const QRect cell = grid.visualRect(grid.currentIndex());
    EXPECT_GE(cell.top(), 0) << row;
    if (foot.isVisible()) ++kept;
    EXPECT_TRUE(!foot.isVisible() || cell.bottom() + below < foot.geometry().top()) << row;
  }
  EXPECT_GT(kept, 40);
  grid.setCurrentIndex(grid.model()->index(49, 1));
  EXPECT_FALSE(foot.isVisible()) << "the row itself can be seen";
  grid.verticalScrollBar()->setValue(0);
  EXPECT_TRUE(foot.isVisible());
}

TEST(GridControl, ShowsTheLastRowAsItIsWhereItStands) {
  Grid grid;
  grid.SetTotals({49});
  grid.KeepLastRowInSight();
  Settle();
  const QImage kept = grid.findChild<QWidget*>("lastRow")->grab().toImage();
  grid.scrollToBottom();
  Settle();
  const QRect row = grid.visualRect(grid.model()->index(49, 0)) | grid.visualRect(grid.model()->index(49, 1));
  const QImage itself = grid.viewport()->grab(row).toImage();
  EXPECT_EQ(kept.copy(0, 0, row.width(), row.height()), itself);
}

TEST(GridControl, ShowsWhetherItHasTheFocus) {
  QWidget form;
  QVBoxLayout layout(&form);
  GridControl grid;
  QPushButton button("終了");
  layout.addWidget(&grid);
  layout.addWidget(&button);
  form.resize(300, 200);
  form.show();
  form.activateWindow();
  button.setFocus();
  Settle();
  const QImage without = grid.grab().toImage();
  grid.setFocus();
  Settle();
  EXPECT_NE(grid.grab().toImage().pixelColor(1, 60), without.pixelColor(1, 60));
  layout.removeWidget(&grid);
  layout.removeWidget(&button);
  grid.setParent(nullptr);
  button.setParent(nullptr);
}

TEST(GridControl, EditsUnlockedCellsAndAsksBefore) {
  Grid grid;
  std::vector<int> edited;
  grid.OnBeforeEdit([](int row, int) { return row != 5; });
  grid.OnBeforeUpdate([](int, int, const std::string& text) { return text != "x"; });
  grid.OnAfterEdit([&](int row, int) { edited.push_back(row); });
  const auto set = [&](int row, int column, const char* text) {
    const QModelIndex cell = grid.model()->index(row, column);
    return (cell.flags() & Qt::ItemIsEditable) && grid.model()->setData(cell, QString(text));
  };
  EXPECT_FALSE(set(0, 0, "locked"));
  EXPECT_FALSE(set(5, 1, "7"));
  EXPECT_FALSE(set(1, 1, "x"));
  EXPECT_TRUE(set(1, 1, "7"));
  EXPECT_EQ(grid.Cell(1, 1), "7");
  EXPECT_EQ(edited, std::vector<int>{1});
}

TEST(GridControl, MovesByTheKeyboardAndLeavesByTab) {
  Grid grid;
  grid.setFocus();
  grid.setCurrentIndex(grid.model()->index(0, 0));
  Press(grid, Qt::Key_Down);
  EXPECT_EQ(grid.currentIndex().row(), 1);
  Press(grid, Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(grid.currentIndex().row(), 49);
}

TEST(Grid, TheRuleOfATotalShowsAtAnyScale) {
  GridControl grid;
  grid.SetColumns({{"a", 10}});
  grid.SetRows({{"1"}, {"2"}});
  auto* painter_of_cells = static_cast<GridCellPainter*>(grid.itemDelegate());
  painter_of_cells->SetTotals({1});
  constexpr double kScale = 1.5;
  for (int top = 20; top < 26; ++top) {
    QImage picture(180, 120, QImage::Format_RGB32);
    picture.setDevicePixelRatio(kScale);
    picture.fill(Qt::white);
    QStyleOptionViewItem cell;
    cell.rect = QRect(10, top, 80, 20);
    {
      QPainter painter(&picture);
      painter.setClipRect(cell.rect);
      painter_of_cells->paint(&painter, cell, grid.model()->index(1, 0));
      // The line between two rows, as the table draws it afterwards.
      painter.setClipping(false);
      painter.setPen(Qt::lightGray);
      painter.drawLine(10, top - 1, 90, top - 1);
    }
    int dark_rows = 0;
    for (int y = 0; y < picture.height(); ++y) {
      // Left of the digits nothing but the rule is dark.
      if (picture.pixelColor(30, y).lightness() < 100) ++dark_rows;
    }
    EXPECT_GE(dark_rows, 1) << top;
  }
}

}  // namespace rbt::test
