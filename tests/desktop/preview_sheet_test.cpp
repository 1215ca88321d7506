// SPDX-License-Identifier: MIT
#include "desktop/preview_sheet.h"

#include <cmath>

#include <QImage>
#include <QScrollBar>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "support/desktop/key_press.h"

namespace rbt::test {

namespace {

using Fit = PreviewSheet::Fit;

const SheetSize kA4 = SheetOf(kPaperA4, kPortrait);
const SheetSize kB5Landscape = SheetOf(kPaperB5, kLandscape);

PrintedPage TestPage() {
  return {PrintedText{.x = 1440, .y = 2880, .text = "■■", .font_name = "ＭＳ ゴシック", .font_size = 20},
          PrintedRule{.x1 = 1440, .y1 = 720, .x2 = 7200, .y2 = 720, .draw_width = 8}};
}

/// A shown sheet of A4 in a window of 640 x 480.
class Sheet : public testing::Test {
 protected:
  Sheet() {
    sheet.resize(640, 480);
    sheet.ShowPage(page, kA4);
    sheet.show();
    sheet.activateWindow();
    Settle();
  }

  /// The viewport as it looks, one pixel to a pixel of the window.
  QImage Picture() {
    Settle();
    return sheet.viewport()->grab().toImage().scaled(sheet.viewport()->size());
  }
  /// The picture's colour at a place of the paper in twips.
  QColor At(const QImage& picture, double x, double y) const {
    const QPointF corner = sheet.SheetPlace().topLeft();
    return picture.pixelColor(static_cast<int>(std::floor(corner.x() + x * sheet.Scale())),
                              static_cast<int>(std::floor(corner.y() + y * sheet.Scale())));
  }
  bool SheetIsInside() const { return QRectF(sheet.viewport()->rect()).contains(sheet.SheetPlace()); }
  void Wheel(int degrees_by_8, Qt::KeyboardModifiers modifiers, QPoint at = {100, 100}) {
    QWheelEvent event(at, sheet.viewport()->mapToGlobal(at), {}, {0, degrees_by_8}, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(sheet.viewport(), &event);
  }

  PrintedPage page = TestPage();
  PreviewSheet sheet;
};

}  // namespace

TEST_F(Sheet, ShowsTextAndRuleWhereTheyStandOnPaper) {
  sheet.SetPercent(100);
  sheet.horizontalScrollBar()->setValue(0);
  sheet.verticalScrollBar()->setValue(0);
  const QImage picture = Picture();
  EXPECT_DOUBLE_EQ(sheet.Scale(), sheet.logicalDpiX() / 1440.0) << "100 % is the paper's own size";
  // The rule: half an inch from the top, from one inch to five, two pixels at 96 to the inch.
  EXPECT_LT(At(picture, 1450, 720).value(), 100);
  EXPECT_LT(At(picture, 7100, 720).value(), 100);
  EXPECT_EQ(At(picture, 1400, 720), QColor(Qt::white));
  EXPECT_EQ(At(picture, 4000, 690), QColor(Qt::white));
  EXPECT_EQ(At(picture, 4000, 750), QColor(Qt::white));
  // The text: two full-width characters of 400 twips, two inches from the top.
  EXPECT_LT(At(picture, 1440 + 200, 2880 + 200).value(), 100);
  EXPECT_LT(At(picture, 1440 + 600, 2880 + 200).value(), 100);
  EXPECT_EQ(At(picture, 1440 + 900, 2880 + 200), QColor(Qt::white));
  EXPECT_EQ(At(picture, 1440 + 200, 2880 - 100), QColor(Qt::white));
  EXPECT_EQ(At(picture, 1440 + 200, 2880 + 500), QColor(Qt::white));
}

TEST_F(Sheet, IsWhiteOnADarkerGroundWithAShadow) {
  const QImage picture = Picture();
  const QRectF place = sheet.SheetPlace();
  EXPECT_EQ(At(picture, 100, 100), QColor(Qt::white));
  const QColor ground = picture.pixelColor(2, 2);
  EXPECT_LT(ground.value(), 200);
  const QColor shadow = picture.pixelColor(qRound(place.right()) + 2, qRound(place.center().y()));
  EXPECT_LT(shadow.value(), ground.value());
}

TEST_F(Sheet, KeepsThePapersProportions) {
  EXPECT_NEAR(sheet.SheetPlace().height() / sheet.SheetPlace().width(), 297.0 / 210.0, 0.001);
  sheet.ShowPage(page, kB5Landscape);
  EXPECT_NEAR(sheet.SheetPlace().width() / sheet.SheetPlace().height(), 257.0 / 182.0, 0.001);
}

TEST_F(Sheet, ShownWholeFollowsTheWindow) {
  for (const QSize size : {QSize(640, 480), QSize(300, 900), QSize(1200, 300), QSize(250, 250)}) {
    sheet.resize(size);
    Settle();
    EXPECT_TRUE(SheetIsInside()) << size.width() << " x " << size.height();
    EXPECT_EQ(sheet.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(sheet.horizontalScrollBar()->maximum(), 0);
    const QSizeF free = QSizeF(sheet.viewport()->size()) - sheet.SheetPlace().size();
    EXPECT_NEAR(std::min(free.width(), free.height()), 2 * PreviewSheet::Margin(), 1.0)
        << "no smaller than need be";
  }
}

TEST_F(Sheet, ShownAsWideAsTheWindowFollowsItAndScrollsDownOnly) {
  sheet.SetFit(Fit::width);
  for (const QSize size : {QSize(640, 480), QSize(500, 480), QSize(900, 300)}) {
    sheet.resize(size);
    Settle();
    EXPECT_NEAR(sheet.SheetPlace().width(), sheet.viewport()->width() - 2 * PreviewSheet::Margin(), 1.0);
    EXPECT_EQ(sheet.horizontalScrollBar()->maximum(), 0);
    EXPECT_GT(sheet.verticalScrollBar()->maximum(), 0);
  }
  // A window that is high enough needs no bar, and the sheet takes its place.
  sheet.resize(300, 900);
  Settle();
  EXPECT_EQ(sheet.verticalScrollBar()->maximum(), 0);
  EXPECT_NEAR(sheet.SheetPlace().width(), sheet.maximumViewportSize().width() - 2 * PreviewSheet::Margin(),
              1.0);
}

TEST_F(Sheet, KeepsItsZoomWhenTheWindowChanges) {
  sheet.SetPercent(150);
  sheet.resize(900, 700);
  Settle();
  EXPECT_DOUBLE_EQ(sheet.Percent(), 150);
  EXPECT_EQ(sheet.FitMode(), Fit::none);
}

TEST_F(Sheet, ZoomsByStepsUpToTheLastOnes) {
  sheet.SetPercent(100);
  sheet.ZoomIn();
  EXPECT_DOUBLE_EQ(sheet.Percent(), 125);
  sheet.ZoomOut();
  EXPECT_DOUBLE_EQ(sheet.Percent(), 100);
  for (int i = 0; i < 20; ++i) sheet.ZoomIn();
  EXPECT_DOUBLE_EQ(sheet.Percent(), 400);
  for (int i = 0; i < 20; ++i) sheet.ZoomOut();
  EXPECT_DOUBLE_EQ(sheet.Percent(), 25);
}

TEST_F(Sheet, ZoomsFromWhatFitsToTheStepsAroundIt) {
  const double whole = sheet.Percent();
  ASSERT_GT(whole, 33.5);
  ASSERT_LT(whole, 49.5);
  sheet.ZoomIn();
  EXPECT_DOUBLE_EQ(sheet.Percent(), 50);
  sheet.SetFit(Fit::whole);
  sheet.ZoomOut();
  EXPECT_DOUBLE_EQ(sheet.Percent(), 33);
}

TEST_F(Sheet, ZoomingKeepsTheMiddleInTheMiddle) {
  sheet.SetPercent(100);
  sheet.verticalScrollBar()->setValue(sheet.verticalScrollBar()->maximum() / 2);
  sheet.horizontalScrollBar()->setValue(sheet.horizontalScrollBar()->maximum() / 2);
  const auto middle = [this] {
    return (QPointF(sheet.viewport()->rect().center()) - sheet.SheetPlace().topLeft()) / sheet.Scale();
  };
  const QPointF before = middle();
  sheet.ZoomIn();
  sheet.ZoomIn();
  EXPECT_NEAR(middle().x(), before.x(), 40);
  EXPECT_NEAR(middle().y(), before.y(), 40);
}

TEST_F(Sheet, CtrlAndWheelZoomAtThePointer) {
  sheet.SetPercent(100);
  const QPoint pointer(400, 120);
  const auto under = [&] { return (QPointF(pointer) - sheet.SheetPlace().topLeft()) / sheet.Scale(); };
  const QPointF before = under();
  Wheel(120, Qt::ControlModifier, pointer);
  EXPECT_DOUBLE_EQ(sheet.Percent(), 125);
  EXPECT_NEAR(under().x(), before.x(), 40);
  EXPECT_NEAR(under().y(), before.y(), 40);
  Wheel(-60, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(sheet.Percent(), 125) << "half a step is none";
  Wheel(-60, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(sheet.Percent(), 100);
}

TEST_F(Sheet, WheelScrollsAndTurnsPagesWhereThereIsNothingToScroll) {
  std::vector<int> turned;
  sheet.on_turn = [&](int pages) { turned.push_back(pages); };
  Wheel(-120, Qt::NoModifier);
  Wheel(120, Qt::NoModifier);
  EXPECT_EQ(turned, std::vector<int>({1, -1}));
  sheet.SetPercent(200);
  sheet.verticalScrollBar()->setValue(0);
  Wheel(-120, Qt::NoModifier);
  EXPECT_GT(sheet.verticalScrollBar()->value(), 0);
  EXPECT_EQ(turned.size(), 2U);
}

TEST_F(Sheet, ArrowKeysScroll) {
  sheet.SetPercent(200);
  sheet.verticalScrollBar()->setValue(0);
  sheet.horizontalScrollBar()->setValue(0);
  Press(sheet, Qt::Key_Down);
  EXPECT_GT(sheet.verticalScrollBar()->value(), 0);
  Press(sheet, Qt::Key_Up);
  EXPECT_EQ(sheet.verticalScrollBar()->value(), 0);
  Press(sheet, Qt::Key_Right);
  EXPECT_GT(sheet.horizontalScrollBar()->value(), 0);
}

TEST_F(Sheet, ANewPageStartsAtItsTop) {
  sheet.SetPercent(200);
  sheet.verticalScrollBar()->setValue(300);
  const PrintedPage next = TestPage();
  sheet.ShowPage(next, kA4);
  EXPECT_EQ(sheet.verticalScrollBar()->value(), 0);
  EXPECT_DOUBLE_EQ(sheet.Percent(), 200);
}

}  // namespace rbt::test
