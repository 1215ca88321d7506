// SPDX-License-Identifier: MIT
#include "desktop/grid_control.h"

#include <QClipboard>
#include <QHeaderView>
#include <QScrollBar>
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
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "D1\t10");
  grid.selectionModel()->select(QItemSelection(grid.model()->index(1, 0), grid.model()->index(2, 1)),
                                QItemSelectionModel::ClearAndSelect);
  EXPECT_EQ(grid.SelectedText(), "D1\t10\nD2\t20");
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

}  // namespace rbt::test
