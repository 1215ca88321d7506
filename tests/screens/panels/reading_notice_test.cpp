// SPDX-License-Identifier: MIT
#include "screens/panels/reading_notice.h"

#include <QApplication>
#include <QLabel>
#include <gtest/gtest.h>

#include "screens/panels/busy_notice.h"
#include "support/desktop/key_press.h"

namespace rbt::test {
namespace {

/// The words of the notice in a window; empty without one.
std::string NoticeIn(const QWidget& window) {
  const auto notices = window.findChildren<QLabel*>("WaitMsgL");
  return notices.empty() || !notices.front()->isVisible() ? "" : notices.front()->text().toStdString();
}

constexpr const char* kWords = "「GENBA001.MDB」を読み込んでいます。しばらくお待ち下さい。";

TEST(ReadingNotice, NamesTheFileInTheWindowInFrontUntilTheActionHasEnded) {
  QWidget window;
  window.resize(800, 600);
  window.show();
  Settle();
  const LongReadingHook tell = ShowLongReadings();
  tell("/rbk/DATA/GENBA001.MDB");
  EXPECT_EQ(NoticeIn(window), kWords);
  const auto* notice = window.findChild<BusyNotice*>();
  ASSERT_NE(notice, nullptr);
  EXPECT_TRUE(window.rect().contains(notice->geometry()));
  // A step of the same action.
  QApplication::processEvents();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(NoticeIn(window), "");
}

TEST(ReadingNotice, TellsInTheNoticeOfAStartBeforeAnyWindowShows) {
  const StartNotice start;
  ShowLongReadings()("/rbk/DATA/GENBA001.MDB");
  std::string told;
  for (const QWidget* window : QApplication::topLevelWidgets()) told += NoticeIn(*window);
  EXPECT_EQ(told, kWords);
}

TEST(ReadingNotice, WithoutAWindowSaysNothing) {
  EXPECT_NO_THROW(ShowLongReadings()("/rbk/DATA/GENBA001.MDB"));
}

}  // namespace
}  // namespace rbt::test
