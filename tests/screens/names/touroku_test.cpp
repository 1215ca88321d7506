// SPDX-License-Identifier: MIT
#include "screens/names/touroku.h"

#include <QMouseEvent>
#include <QTimer>
#include <gtest/gtest.h>

#include "screens/archive/dialog_driver.h"
#include "screens/names/names_forms.h"
#include "screens/names/names_grid.h"
#include "session/names/name_site.h"
#include "session/result/result_screen.h"
#include "shell/context/site_context.h"

namespace rbt::test {
namespace {

class TourokuForm : public testing::Test {
 protected:
  TourokuForm() {
    NameSite::Load();
    NamesParts parts;
    parts.open_tally = [this] { opened_ += "JS "; };
    parts.open_shapes = [this] { opened_ += "KEIJOJS "; };
    parts.save_csv = [this](const std::vector<RegisteredName>& names) {
      opened_ += "CSV of " + std::to_string(names.size()) + " ";
    };
    form_ = std::make_unique<DialogDriver<Touroku>>(std::make_unique<Touroku>(std::move(parts)));
  }
  std::string Marks() const {
    const auto* grid = form_->dialog->findChild<NamesGrid*>("tourokumei");
    std::string marks;
    for (int row = 0; row < grid->RowCount(); ++row) marks += grid->Cell(row, 0) + grid->Cell(row, 2) + " ";
    return marks;
  }
  void Click(int row, int column) {
    auto* grid = form_->dialog->findChild<NamesGrid*>("tourokumei");
    const QPoint at = grid->visualRect(grid->model()->index(row, column)).center();
    const QPointF place = at;
    const QPointF global = grid->viewport()->mapToGlobal(at);
    QMouseEvent press(QEvent::MouseButtonPress, place, global, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(grid->viewport(), &press);
    QMouseEvent release(QEvent::MouseButtonRelease, place, global, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QApplication::sendEvent(grid->viewport(), &release);
    Settle();
  }
  void Focus(const char* control) {
    form_->dialog->findChild<QWidget*>(control)->setFocus();
    Settle();
  }

  NameSite site_;
  std::string opened_;
  std::unique_ptr<DialogDriver<Touroku>> form_;
};

TEST_F(TourokuForm, ShowsBothWeightsWithoutScrolling) {
  const auto* grid = form_->dialog->findChild<NamesGrid*>("tourokumei");
  const int last = grid->model()->columnCount() - 1;
  EXPECT_LE(grid->columnViewportPosition(last) + grid->columnWidth(last), grid->viewport()->width());
}

TEST_F(TourokuForm, MarksTheLineOfTheGridByEnterAndListsIt) {
  EXPECT_EQ(form_->Focused(), "tourokumei");
  form_->Key(Qt::Key_Down);
  form_->Key(Qt::Key_Return);
  EXPECT_EQ(Marks(), "10 21 40 ");
  EXPECT_EQ(form_->Entries(), "2-あ|");
  form_->Key(Qt::Key_Down);
  form_->Key(Qt::Key_Return);
  EXPECT_EQ(Marks(), "10 21 41 ");
  form_->Key(Qt::Key_Return);
  EXPECT_EQ(Marks(), "10 21 40 ");
}

TEST_F(TourokuForm, MarksARangeByItsKeys) {
  Focus("DelSNo");
  EXPECT_EQ(form_->Label("MSGB"), "登録番号を範囲で選択する場合には、開始番号を入力して下さい");
  form_->Type("1a");
  form_->Key(Qt::Key_Return);
  EXPECT_EQ(form_->Focused(), "DelENo");
  EXPECT_EQ(form_->Label("MSGB"), "範囲の終了　登録名番号を入力し　Enter");
  form_->Key(Qt::Key_Up);
  EXPECT_EQ(form_->Focused(), "DelSNo");
  EXPECT_EQ(form_->Label("MSGB"), "範囲の開始・終了　登録名番号を確認し　Enter");
  form_->Key(Qt::Key_Return);
  form_->Type("2");
  form_->Key(Qt::Key_Return);
  EXPECT_EQ(Marks(), "11 21 40 ");
  EXPECT_EQ(form_->Label("MSGB"), "選択された登録名でよければ、集計(F1)を選択");
  EXPECT_EQ(form_->Focused(), "btnA4Y");
}

TEST_F(TourokuForm, KeysDoWhatTheirButtonsDo) {
  form_->Key(Qt::Key_F1);
  EXPECT_EQ(opened_, "");
  EXPECT_EQ(site_.Messages().back().title, "登録名未選択");
  form_->Key(Qt::Key_Return);
  form_->Key(Qt::Key_F1);
  form_->Key(Qt::Key_F3);
  EXPECT_EQ(opened_, "JS KEIJOJS ");
  form_->Key(Qt::Key_F2);
  EXPECT_EQ(opened_, "JS KEIJOJS CSV of 3 ");
  form_->Key(Qt::Key_Escape);
  EXPECT_FALSE(form_->dialog->isVisible());
}

TEST_F(TourokuForm, SortsByItsButtonAndGoesToTheFirstLine) {
  form_->Key(Qt::Key_Down);
  form_->Button("Command1")->click();
  EXPECT_EQ(Marks(), "20 10 40 ");
  Focus("tourokumei");
  form_->Key(Qt::Key_Return);
  EXPECT_EQ(Marks(), "21 10 40 ");
}

TEST_F(TourokuForm, MarksTheLineWhoseMarkIsClickedAndNoOther) {
  Click(1, 2);
  EXPECT_EQ(Marks(), "10 21 40 ");
  for (const int column : {0, 1, 3, 4}) Click(2, column);
  EXPECT_EQ(Marks(), "10 21 40 ");
  Click(1, 2);
  EXPECT_EQ(Marks(), "10 20 40 ");
}

TEST_F(TourokuForm, TakesDigitsOnlyForTheEndOfTheRangeAndTheItem) {
  Focus("DelENo");
  form_->Type("a1-2");
  EXPECT_EQ(form_->Text("DelENo"), "12");
  Focus("TaihiKmkT");
  form_->Box("TaihiKmkT")->clear();
  form_->Type("x3");
  EXPECT_EQ(form_->Text("TaihiKmkT"), "3");
}

/// The screen with the tally screens that it really opens.
TEST(TourokuWithItsTallyScreens, ComesBackFromEachWithItsMarks) {
  const NameSite site;
  NameSite::Load();
  DialogDriver<Touroku> touroku(MakeTouroku());
  touroku.Key(Qt::Key_Return);
  std::vector<std::string> titles;
  QTimer closer;
  QObject::connect(&closer, &QTimer::timeout, [&] {
    QWidget* form = QApplication::activeWindow();
    if (form == nullptr || form == touroku.dialog.get()) return;
    EXPECT_FALSE(touroku.dialog->isVisible());
    titles.push_back(form->windowTitle().toStdString());
    form->close();
  });
  closer.start(20);
  for (const int key : {Qt::Key_F1, Qt::Key_F3}) {
    touroku.Key(key);
    EXPECT_TRUE(touroku.dialog->isVisible());
    EXPECT_EQ(touroku.Entries(), "1-い|");
    EXPECT_FALSE(touroku.Shows("ACTMsg"));
    EXPECT_NE(SiteContext.WorkDatabase, nullptr);
  }
  EXPECT_EQ(titles,
            (std::vector<std::string>{std::string(kNameScreen.title), std::string(kShapeScreen.title)}));
  EXPECT_TRUE(site.Messages().empty());
}

TEST_F(TourokuForm, LeavesButtonsWithoutAnActionOutOfReach) {
  for (const char* button : {"Command2", "Command3", "Command4"}) {
    EXPECT_FALSE(form_->Button(button)->isEnabled()) << button;
  }
}

TEST_F(TourokuForm, TellsThatItIsLeft) {
  bool left = false;
  form_->dialog->OnLeft([&] { left = true; });
  form_->Key(Qt::Key_Escape);
  EXPECT_TRUE(left);
}

}  // namespace
}  // namespace rbt::test
