// SPDX-License-Identifier: MIT
#include "screens/accumulation/backup2.h"

#include <cstdlib>

#include <QMouseEvent>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/accumulation/site_choice_dialog.h"
#include "screens/archive/dialog_driver.h"
#include "screens/result/result_form_driver.h"
#include "session/accumulation/more_sites.h"

namespace rbt::test {

namespace {

using testing::StartsWith;

/// Sites 1, 2 and 3, of which site 1 is bound.
class Backup2Form : public testing::Test {
 protected:
  Backup2Form() {
    for (const int number : {2, 3}) AddSiteLikeTheFirst(site_, number);
    ResultSite::Load();
  }

  static DialogDriver<BACKUP2> Open() { return DialogDriver<BACKUP2>(std::make_unique<BACKUP2>()); }
  static int Row(const DialogDriver<BACKUP2>& form) {
    return form.dialog->findChild<QTableView*>("dbgKoj")->currentIndex().row();
  }

  static void ClickRow(const DialogDriver<BACKUP2>& form, int row) {
    const auto* grid = form.dialog->findChild<QTableView*>("dbgKoj");
    QWidget& shown = *grid->viewport();
    const QPointF place = grid->visualRect(grid->model()->index(row, 1)).center();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
      QMouseEvent click(type, place, shown.mapToGlobal(place), Qt::LeftButton, held, Qt::NoModifier);
      QApplication::sendEvent(&shown, &click);
    }
    Settle();
  }

  ResultSite site_;
};

/// The bulk screen with the real dialog behind F6.
class ChoiceOfResult : public ResultFormDriver {
 public:
  ChoiceOfResult() {
    for (const int number : {2, 3}) AddSiteLikeTheFirst(site, number);
    parts.choose_site = ChooseSite;
    parts.open_detail = [this](TallyResult result) {
      ++details;
      return result;
    };
    Open();
  }

  void InTheDialog(const std::function<void(BACKUP2&)>& work) {
    constexpr int kMilliseconds = 30;
    QTimer::singleShot(kMilliseconds, [this, &work] {
      auto* dialog = dynamic_cast<BACKUP2*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      EXPECT_FALSE(form->isVisible()) << "the dialog stands in its place";
      work(*dialog);
      if (dialog->isVisible()) Press(*dialog, Qt::Key_Escape);
    });
    Key(Qt::Key_F6);
  }

  int details = 0;  ///< how often the purchase list was opened
};

}  // namespace

TEST_F(Backup2Form, BearsItsCaptions) {
  const auto form = Open();
  EXPECT_EQ(form.dialog->windowTitle(), "集計を加算する現場");
  EXPECT_EQ(form.Label("SSPanel1"), "集計を加算する現場");
  EXPECT_THAT(form.Label("Label1"), StartsWith("工事名を選択して、F1キーを押して下さい。"));
  EXPECT_EQ(form.Label("lblKojNo"), "工事ＮＯ＝");
  EXPECT_EQ(form.Button("cmdBackUp")->text(), "実行(F1)");
  EXPECT_EQ(form.Button("cmdExit")->text(), "終了（ESC）");
  EXPECT_EQ(form.Focused(), "dbgKoj");
  EXPECT_EQ(form.Text("txtKojNo"), "1");
}

TEST_F(Backup2Form, TheArrowsGoFromSiteToSiteAndF1TakesOne) {
  auto form = Open();
  form.Key(Qt::Key_Down);
  EXPECT_EQ(form.Text("txtKojNo"), "2");
  form.Key(Qt::Key_F1);
  EXPECT_FALSE(form.dialog->isVisible());
  ASSERT_TRUE(Chosen(*form.dialog));
  EXPECT_EQ(Chosen(*form.dialog)->KasanDataPath, "GENBA002.MDB");
}

TEST_F(Backup2Form, ATypedNumberMovesTheGridAndTakesDigitsAndBlanksAlone) {
  auto form = Open();
  form.Box("txtKojNo")->setFocus();
  form.Box("txtKojNo")->selectAll();
  form.Type("x");
  EXPECT_EQ(form.Text("txtKojNo"), "");
  form.Type("３");
  EXPECT_EQ(form.Text("txtKojNo"), "3");
  EXPECT_EQ(Row(form), 2);
  EXPECT_EQ(form.Focused(), "txtKojNo");
  form.Key(Qt::Key_F1);
  ASSERT_TRUE(Chosen(*form.dialog));
  EXPECT_EQ(Chosen(*form.dialog)->number, 3);
}

TEST_F(Backup2Form, BlanksAroundANumberMayBeTypedAndAloneAreNone) {
  auto form = Open();
  form.Box("txtKojNo")->setFocus();
  form.Box("txtKojNo")->selectAll();
  form.Type("  ");
  EXPECT_EQ(form.Text("txtKojNo"), "  ");
  form.Key(Qt::Key_F1);
  EXPECT_TRUE(form.dialog->isVisible());
  EXPECT_EQ(site_.Messages().size(), 1U);
  form.Box("txtKojNo")->selectAll();
  form.Type(" 3　");
  EXPECT_EQ(form.Text("txtKojNo"), " 3 ");
  EXPECT_EQ(Row(form), 2);
  form.Key(Qt::Key_F1);
  ASSERT_TRUE(Chosen(*form.dialog));
  EXPECT_EQ(Chosen(*form.dialog)->number, 3);
}

TEST_F(Backup2Form, AClickOnTheRowThatIsCurrentTakesItsNumberAgain) {
  auto form = Open();
  form.Box("txtKojNo")->setFocus();
  form.Box("txtKojNo")->selectAll();
  form.Type("99");
  ASSERT_EQ(Row(form), 0);
  ClickRow(form, 0);
  EXPECT_EQ(form.Text("txtKojNo"), "1");
  ClickRow(form, 2);
  EXPECT_EQ(form.Text("txtKojNo"), "3");
}

TEST_F(Backup2Form, ANumberOfNoSiteLeadsBackToItsBox) {
  auto form = Open();
  form.Box("txtKojNo")->setFocus();
  form.Type("99");
  form.Key(Qt::Key_F1);
  EXPECT_TRUE(form.dialog->isVisible());
  EXPECT_EQ(form.Focused(), "txtKojNo");
  EXPECT_EQ(site_.Messages().size(), 1U);
}

TEST_F(Backup2Form, EscLeavesWithoutASite) {
  auto form = Open();
  form.Key(Qt::Key_Down);
  form.Key(Qt::Key_Escape);
  EXPECT_FALSE(form.dialog->isVisible());
  EXPECT_FALSE(Chosen(*form.dialog));
}

TEST(SitesOfResults, F6ChoosesASiteInPlaceOfTheScreenAndTheSumIsShown) {
  ChoiceOfResult js;
  js.InTheDialog([](BACKUP2& dialog) {
    Press(dialog, Qt::Key_Down);
    Press(dialog, Qt::Key_F1);
  });
  EXPECT_TRUE(js.form->isVisible());
  EXPECT_EQ(js.Focused(), "dbgJS");
  EXPECT_THAT(js.Row("D19"), StartsWith("270 |"));
  EXPECT_EQ(js.Label("lblNotice"), "加算した現場：002　工事2");
  for (const char* button : {"cmdPrint", "cmdPrint2", "cmdMeisai"}) EXPECT_FALSE(js.Shows(button)) << button;
  EXPECT_TRUE(js.Shows("Command6"));
  EXPECT_FALSE(js.Shows("hozon"));
  js.Key(Qt::Key_F1);
  EXPECT_FALSE(js.Shows("SSPanel3")) << "a sum is not printed";
  js.Key(Qt::Key_F5);
  EXPECT_EQ(js.details, 0);
  EXPECT_THAT(js.Row("D19"), StartsWith("270 |"));
  js.InTheDialog([](BACKUP2& dialog) {
    Press(dialog, Qt::Key_Down);
    Press(dialog, Qt::Key_Down);
    Press(dialog, Qt::Key_F1);
  });
  EXPECT_THAT(js.Row("D19"), StartsWith("405 |"));
}

TEST(SitesOfResults, EscInTheDialogShowsTheSiteAlone) {
  ChoiceOfResult js;
  js.InTheDialog([](BACKUP2& /*dialog*/) {});
  EXPECT_TRUE(js.form->isVisible());
  EXPECT_THAT(js.Row("D19"), StartsWith("135 |"));
  EXPECT_TRUE(js.Shows("cmdPrint"));
}

TEST(SitesOfResults, WithoutAnySiteDatabaseTheScreenIsLeftAndTheProgramEnds) {
  constexpr int kNotEnded = 99;
  constexpr int kPatienceMs = 5000;
  ChoiceOfResult js;
  js.site.PutProgram("DBTOOL/rbdbtool.exe");
  for (const char* file : {"GENBA001.MDB", "GENBA002.MDB", "GENBA003.MDB"}) {
    std::filesystem::remove(js.site.Data(file));
  }
  QTimer::singleShot(0, [&js] { js.Key(Qt::Key_F6); });
  QTimer patience;
  QObject::connect(&patience, &QTimer::timeout, [] { QApplication::exit(kNotEnded); });
  patience.start(kPatienceMs);
  EXPECT_EQ(QApplication::exec(), EXIT_SUCCESS);
  EXPECT_FALSE(js.form->isVisible());
  ASSERT_EQ(js.site.Messages().size(), 1U) << "that there is no site, and nothing else";
  EXPECT_EQ(js.site.Launches().size(), 1U);
}

}  // namespace rbt::test
