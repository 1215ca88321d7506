// SPDX-License-Identifier: MIT
#include "desktop/message_box.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QTimer>
#include <gtest/gtest.h>

#include "platform/system/message.h"
#include "support/desktop/key_press.h"

namespace rbt::test {

namespace {

/// What the box looked like while it was open, and what the key made of it.
struct Seen {
  QString text;
  QString title;
  QString focused;
  QString answers;
  QMessageBox::Icon sign = QMessageBox::NoIcon;
  bool open = false;
  MessageAnswer answer = MessageAnswer::ok;
};

Seen Show(std::string_view text, std::string_view title, MessageButtons buttons, int key) {
  Seen seen;
  QTimer::singleShot(0, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    seen.open = MessageBoxOpen();
    seen.text = box->text();
    seen.title = box->windowTitle();
    seen.sign = box->icon();
    for (const QAbstractButton* button : box->buttons()) seen.answers += button->text() + "|";
    if (const auto* button = qobject_cast<QAbstractButton*>(box->focusWidget()))
      seen.focused = button->text();
    Press(*box, key);
  });
  seen.answer = MsgBox(text, title, buttons);
  return seen;
}

}  // namespace

TEST(MessageBox, EnterTakesTheFirstAnswer) {
  EXPECT_EQ(Show("a", "t", MessageButtons::ok, Qt::Key_Return).answer, MessageAnswer::ok);
  EXPECT_EQ(Show("a", "t", MessageButtons::ok_cancel, Qt::Key_Return).answer, MessageAnswer::ok);
  EXPECT_EQ(Show("a", "t", MessageButtons::yes_no, Qt::Key_Enter).answer, MessageAnswer::yes);
  EXPECT_EQ(Show("a", "t", MessageButtons::yes_no_cancel, Qt::Key_Return).answer, MessageAnswer::yes);
  EXPECT_EQ(Show("a", "t", MessageButtons::yes_no_default_no, Qt::Key_Return).answer, MessageAnswer::no);
}

TEST(MessageBox, EscTakesTheCautiousAnswer) {
  EXPECT_EQ(Show("a", "t", MessageButtons::ok, Qt::Key_Escape).answer, MessageAnswer::ok);
  EXPECT_EQ(Show("a", "t", MessageButtons::ok_cancel, Qt::Key_Escape).answer, MessageAnswer::cancel);
  EXPECT_EQ(Show("a", "t", MessageButtons::yes_no, Qt::Key_Escape).answer, MessageAnswer::no);
  EXPECT_EQ(Show("a", "t", MessageButtons::yes_no_cancel, Qt::Key_Escape).answer, MessageAnswer::cancel);
}

TEST(MessageBox, OffersToTryAgainOrToGiveUpTheActionOrTheProgram) {
  const Seen retry = Show("a", "t", MessageButtons::retry_abort, Qt::Key_Return);
  EXPECT_EQ(retry.answer, MessageAnswer::retry);
  EXPECT_EQ(retry.answers, "再試行(&R)|中止|");
  EXPECT_EQ(Show("a", "t", MessageButtons::retry_abort, Qt::Key_Escape).answer, MessageAnswer::cancel);
  const Seen exit = Show("a", "t", MessageButtons::retry_exit, Qt::Key_Escape);
  EXPECT_EQ(exit.answer, MessageAnswer::cancel);
  EXPECT_EQ(exit.answers, "再試行(&R)|終了|");
}

TEST(MessageBox, OffersToTakeAFileOverOrToReadItAsItIsWhichIsTheDefault) {
  const Seen enter = Show("a", "t", MessageButtons::import_or_read, Qt::Key_Return);
  EXPECT_EQ(enter.answers, "取り込む(&I)|そのまま読む(&R)|");
  EXPECT_EQ(enter.focused, "そのまま読む(&R)");
  EXPECT_EQ(enter.sign, QMessageBox::Question);
  EXPECT_EQ(enter.answer, MessageAnswer::no);
  EXPECT_EQ(Show("a", "t", MessageButtons::import_or_read, Qt::Key_Escape).answer, MessageAnswer::no);
}

TEST(MessageBox, BearsASignForWhatItTells) {
  const std::pair<MessageButtons, QMessageBox::Icon> signs[] = {
      {MessageButtons::ok, QMessageBox::Information},
      {MessageButtons::ok_to_warning, QMessageBox::Warning},
      {MessageButtons::retry_abort, QMessageBox::Warning},
      {MessageButtons::retry_exit, QMessageBox::Warning},
      {MessageButtons::yes_no, QMessageBox::Question}};
  for (const auto& [buttons, sign] : signs) {
    EXPECT_EQ(Show("a", "t", buttons, Qt::Key_Return).sign, sign) << static_cast<int>(buttons);
  }
}

TEST(MessageBox, ShowsTextAndTitleAsTheyAre) {
  const Seen seen = Show("重量は修正出来ません。\r\n<b>本数</b>", "注意", MessageButtons::ok, Qt::Key_Return);
  EXPECT_EQ(seen.text, "重量は修正出来ません。\n<b>本数</b>");
  EXPECT_EQ(seen.title, "注意");
  EXPECT_EQ(seen.focused, "OK");
  EXPECT_TRUE(seen.open);
  EXPECT_FALSE(MessageBoxOpen());
}

TEST(MessageBox, WithoutATitleBearsTheProgramsName) {
  EXPECT_EQ(Show("a", "", MessageButtons::ok, Qt::Key_Return).title, "重量集計");
}

TEST(MessageBox, GivesTheFocusBackToTheControlThatHadIt) {
  QWidget form;
  auto* first = new QWidget(&form);
  auto* second = new QWidget(&form);
  for (QWidget* control : {first, second}) control->setFocusPolicy(Qt::StrongFocus);
  form.show();
  form.activateWindow();
  second->setFocus();
  Settle();
  Show("a", "t", MessageButtons::ok, Qt::Key_Return);
  Settle();
  EXPECT_EQ(QApplication::focusWidget(), second);
}

}  // namespace rbt::test
