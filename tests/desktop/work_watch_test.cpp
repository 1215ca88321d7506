// SPDX-License-Identifier: MIT
#include "desktop/work_watch.h"

#include <chrono>
#include <memory>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include "desktop/action.h"
#include "desktop/wait_sign.h"
#include "desktop/work_panel.h"
#include "shell/context/run_state.h"
#include "store/database.h"
#include "support/desktop/key_press.h"
#include "support/site_fixture.h"
#include "support/stopped_work.h"

namespace rbt::test {

namespace {

using std::chrono::milliseconds;

/// A window with a box, and work in it that its user may want to stop.
class WorkPanels : public testing::Test {
 protected:
  WorkPanels() {
    Services.OnWork = ShowWork();
    Services.PendingEvents = ProcessEventsOfWork;
    window_.resize(600, 400);
    (new QVBoxLayout(&window_))->addWidget(&box_);
    window_.show();
    window_.activateWindow();
    box_.setFocus();
    Settle();
  }

  /// As if the running action had worked for so long.
  static void Age(milliseconds time) { RunState.WorkBegan = std::chrono::steady_clock::now() - time; }
  /// One piece of news from work that has gone on for two seconds.
  static bool Tell(const WorkNews& news = {}) {
    Age(milliseconds(2000));
    return StopAsked(news);
  }
  static WorkPanel* Panel() {
    for (QWidget* widget : QApplication::allWidgets()) {
      if (auto* panel = dynamic_cast<WorkPanel*>(widget)) return panel;
    }
    return nullptr;
  }
  static QPushButton& Button() { return *Panel()->findChild<QPushButton*>("cmdStop"); }
  static std::string Text(const char* label) {
    return Panel()->findChild<QLabel*>(label)->text().toStdString();
  }
  void PostKey(int key, const QString& text = QString()) {
    QCoreApplication::postEvent(&box_, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, text));
  }
  bool Run(const std::function<void()>& action) { return RunAction(window_, action); }

  SiteFixture site_;
  QWidget window_;
  QLineEdit& box_ = *new QLineEdit;
};

}  // namespace

TEST_F(WorkPanels, ShowAfterASecondOfWorkAndGoWithIt) {
  EXPECT_TRUE(Run([] {
    EXPECT_FALSE(StopAsked());
    Age(milliseconds(900));
    EXPECT_FALSE(StopAsked());
    EXPECT_EQ(Panel(), nullptr) << "short work shows none";
    Age(milliseconds(3100));
    EXPECT_FALSE(StopAsked({.page = 12}));
    ASSERT_NE(Panel(), nullptr);
    EXPECT_TRUE(Panel()->isVisible());
    EXPECT_EQ(Text("lblTime"), "3 秒");
    EXPECT_EQ(Text("lblPage"), "12 頁");
  }));
  EXPECT_EQ(Panel(), nullptr);
}

TEST_F(WorkPanels, LieWholeInTheWindowAtWorkAndLeaveItTheFocus) {
  Run([this] {
    Tell();
    ASSERT_NE(Panel(), nullptr);
    EXPECT_EQ(Panel()->parentWidget(), &window_);
    EXPECT_TRUE(window_.rect().contains(Panel()->geometry()));
    EXPECT_EQ(QApplication::focusWidget(), &box_);
  });
}

TEST_F(WorkPanels, StandAloneWhereThereIsNoWindow) {
  window_.hide();
  RunState.FaultEndsProgram = true;
  RunAction("重量集計", [] {
    Tell();
    ASSERT_NE(Panel(), nullptr);
    EXPECT_TRUE(Panel()->isWindow());
    EXPECT_EQ(Button().text().toStdString(), "終了(Esc)") << "the program cannot go on without";
  });
  EXPECT_EQ(Panel(), nullptr);
}

TEST_F(WorkPanels, StopTheWorkByEscWithoutAnotherWord) {
  bool came_to_its_end = false;
  EXPECT_FALSE(Run([&] {
    Tell();
    PostKey(Qt::Key_Escape);
    Age(milliseconds(2000));
    for (int step = 0; step < 1000; ++step) NotePage(1);
    PostKey(Qt::Key_Escape);
    std::this_thread::sleep_for(milliseconds(60));
    NotePage(1);
    came_to_its_end = true;
  }));
  EXPECT_FALSE(came_to_its_end);
  EXPECT_TRUE(site_.Messages().empty());
  EXPECT_EQ(Panel(), nullptr);
}

TEST_F(WorkPanels, StopTheWorkByTheirButton) {
  Run([] {
    Tell();
    ASSERT_NE(Panel(), nullptr);
    Button().click();
    std::this_thread::sleep_for(milliseconds(60));
    EXPECT_TRUE(Tell());
    std::this_thread::sleep_for(milliseconds(60));
    EXPECT_FALSE(Tell()) << "what ends the work comes to its end";
    EXPECT_FALSE(Button().isEnabled());
  });
}

TEST_F(WorkPanels, OfferNoStopWhileWorkMustFinish) {
  Run([this] {
    Tell();
    EXPECT_TRUE(Button().isEnabled());
    {
      const MustFinish finish;
      ASSERT_NE(Panel(), nullptr);
      EXPECT_FALSE(Button().isEnabled()) << "told at once";
      PostKey(Qt::Key_Escape);
      std::this_thread::sleep_for(milliseconds(60));
      EXPECT_FALSE(Tell());
    }
    std::this_thread::sleep_for(milliseconds(60));
    EXPECT_FALSE(Tell()) << "asked for too late";
    EXPECT_TRUE(Button().isEnabled());
  });
}

TEST_F(WorkPanels, DropWhatElseIsTypedAndClickedMeanwhile) {
  QPushButton other("other", &window_);
  other.show();
  int clicks = 0;
  QObject::connect(&other, &QPushButton::clicked, &other, [&] { ++clicks; });
  Run([&] {
    PostKey(Qt::Key_7, "7");
    QCoreApplication::postEvent(
        &other, new QMouseEvent(QEvent::MouseButtonPress, QPointF(2, 2), other.mapToGlobal(QPointF(2, 2)),
                                Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
    QCoreApplication::postEvent(
        &other, new QMouseEvent(QEvent::MouseButtonRelease, QPointF(2, 2), other.mapToGlobal(QPointF(2, 2)),
                                Qt::LeftButton, Qt::NoButton, Qt::NoModifier));
    Tell();
    PostKey(Qt::Key_8, "8");
    RunPendingEvents();
    PostKey(Qt::Key_9, "9");
  });
  Settle();
  EXPECT_EQ(box_.text(), "");
  EXPECT_EQ(clicks, 0);
}

TEST_F(WorkPanels, BeginNothingThatFallsDue) {
  bool fell_due = false;
  Run([&] {
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] { fell_due = true; });
    timer.start(0);
    Tell();
    EXPECT_FALSE(fell_due);
    timer.stop();
  });
  Settle();
  EXPECT_FALSE(fell_due);
}

TEST_F(WorkPanels, AreReachedByEventsBetweenTheStatements) {
  Run([this] {
    Tell();
    PostKey(Qt::Key_Escape);
    RunPendingEvents();
    std::this_thread::sleep_for(milliseconds(60));
    EXPECT_TRUE(Tell());
  });
}

TEST_F(WorkPanels, CountNotTheTimeThatTheUserTook) {
  Run([] {
    Tell();
    ASSERT_NE(Panel(), nullptr);
    Age(milliseconds(5000));
    { const WorkAtRest asking; }
    EXPECT_EQ(Panel(), nullptr);
    EXPECT_FALSE(StopAsked());
    EXPECT_EQ(Panel(), nullptr);
  });
}

TEST_F(WorkPanels, AreForActionsAlone) {
  EXPECT_FALSE(Tell());
  EXPECT_EQ(Panel(), nullptr);
}

TEST_F(WorkPanels, StopAStatementAndItsTransactionIsRolledBack) {
  Services.WorkPace = 100;
  for (int i = 0; i < 50; ++i) site_.AddRow({{"太さ", std::int64_t{19}}});
  const std::string bytes = BytesOf(site_.Data(kScheduleFile));
  EXPECT_FALSE(Run([this] {
    Database site = Database::Open(site_.Data(kScheduleFile));
    Transaction together(site);
    Age(milliseconds(2000));
    PostKey(Qt::Key_Escape);
    site.Execute("UPDATE 加工テーブル SET 行No = 行No + 1");
    ADD_FAILURE() << "the statement came to its end";
    together.Commit();
  }));
  EXPECT_TRUE(BytesOf(site_.Data(kScheduleFile)) == bytes);
  EXPECT_TRUE(site_.Messages().empty());
}

}  // namespace rbt::test
