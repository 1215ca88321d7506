// SPDX-License-Identifier: MIT
#include "desktop/lock_question.h"

#include <fstream>
#include <sys/file.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include "desktop/action.h"
#include "platform/fault.h"
#include "platform/files/file_descriptor.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "store/database.h"
#include "support/desktop/key_press.h"
#include "support/site_fixture.h"

namespace rbt::test {

namespace {

class LockQuestion : public testing::Test {
 protected:
  LockQuestion() {
    Services.LockPatience = std::chrono::milliseconds(1);
    Services.WaitOn = AskToWaitOn;
    Services.OnWait = NoteWaits();
  }
  /// An action that has to wait for the schedule, which another connection is writing.
  bool Work() {
    return RunAction("重量集計",
                     [this] { site_.Execute(kScheduleFile, "UPDATE 加工テーブル SET 行No = 行No + 1"); });
  }

  SiteFixture site_;
};

/// Types into a box when the loop turns.
void PostKey(QWidget& box) {
  QCoreApplication::postEvent(&box, new QKeyEvent(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, "7"));
}

}  // namespace

TEST_F(LockQuestion, OffersToTryAgainUntilTheFileIsFree) {
  site_.AddRow({{"太さ", std::int64_t{19}}});
  Database theirs = Database::Open(site_.Data(kScheduleFile));
  std::optional<Transaction> writing(theirs);
  std::vector<ShownMessage> shown;
  Services.Messages = [&](std::string_view text, std::string_view title, MessageButtons buttons) {
    shown.push_back({std::string(text), std::string(title), buttons});
    if (shown.size() == 2) writing.reset();
    return MessageAnswer::retry;
  };
  EXPECT_TRUE(Work());
  ASSERT_EQ(shown.size(), 2U);
  EXPECT_EQ(shown[0].text,
            "「GENBA001.MDB」は、ほかのプログラムが使用しています。\n使用が終わるのを待つときは「再試行」、"
            "この操作をやめるときは「中止」を押して下さい。");
  EXPECT_EQ(shown[0].buttons, MessageButtons::retry_abort);
  EXPECT_EQ(site_.Column("行No")[0], "2");
}

TEST_F(LockQuestion, ThatIsAnsweredByGivingUpEndsTheActionWithoutAnotherWord) {
  site_.AddRow({{"太さ", std::int64_t{19}}});
  Database theirs = Database::Open(site_.Data(kScheduleFile));
  const Transaction writing(theirs);
  site_.Answer(MessageAnswer::cancel);
  EXPECT_FALSE(Work());
  EXPECT_EQ(site_.Messages().size(), 1U);
  EXPECT_FALSE(RunAction("t", [] { throw Fault(FaultKind::locked, "another one"); }));
  EXPECT_EQ(site_.Messages().size(), 2U) << "of a later action it is told";
}

TEST_F(LockQuestion, WhereTheProgramCannotGoOnWithoutOffersItsEnd) {
  RunState.FaultEndsProgram = true;
  site_.Answer(MessageAnswer::cancel);
  EXPECT_FALSE(AskToWaitOn("/rbk/DATA/SORANO.MDB"));
  EXPECT_EQ(site_.Messages()[0].buttons, MessageButtons::retry_exit);
  EXPECT_NE(site_.Messages()[0].text.find("「終了」"), std::string::npos);
}

TEST_F(LockQuestion, NamesTheFileThatAWorkingCopyStandsFor) {
  site_.Answer(MessageAnswer::cancel);
  EXPECT_FALSE(AskToWaitOn("/rbk/DATA/GENBA001.MDB.work"));
  EXPECT_NE(site_.Messages()[0].text.find("「GENBA001.MDB」は"), std::string::npos);
}

TEST_F(LockQuestion, DropsTheKeysThatWerePressedDuringTheWait) {
  QLineEdit box;
  box.show();
  box.activateWindow();
  box.setFocus();
  Settle();
  RunAction(box, [&] { PostKey(box); });
  Settle();
  EXPECT_EQ(box.text(), "7") << "without a wait they count";
  RunAction(box, [&] {
    PostKey(box);
    Services.OnWait();
  });
  Settle();
  EXPECT_EQ(box.text(), "7");
  PostKey(box);
  Settle();
  EXPECT_EQ(box.text(), "77") << "afterwards they count again";
}

TEST_F(LockQuestion, KeepsTheWindowsPaintedDuringTheWaitWithoutLookingAtTheirKeys) {
  class Painted : public QLineEdit {
   public:
    int times = 0;

   protected:
    void paintEvent(QPaintEvent* event) override {
      ++times;
      QLineEdit::paintEvent(event);
    }
  };
  QWidget window;
  auto* box = new Painted;
  (new QVBoxLayout(&window))->addWidget(box);
  window.show();
  Settle();
  box->times = 0;
  box->setText("changed");
  PostKey(*box);
  Services.OnWait();
  EXPECT_GT(box->times, 0);
  EXPECT_EQ(box->text(), "changed");
}

TEST_F(LockQuestion, WhatFallsDueWhileKeysAreDroppedKnowsThatTheActionStillRuns) {
  const QWidget form;
  bool running = false;
  RunAction(form, [&] {
    QTimer::singleShot(0, [&] { running = ActionRunning(); });
    Services.OnWait();
  });
  EXPECT_TRUE(running);
  EXPECT_FALSE(ActionRunning());
}

}  // namespace rbt::test
