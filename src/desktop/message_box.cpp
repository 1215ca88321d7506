// SPDX-License-Identifier: MIT
#include "desktop/message_box.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>

#include "desktop/wait_sign.h"

namespace rbt {

namespace {

constexpr std::string_view kProgramTitle = "重量集計";

struct Answer {
  MessageAnswer answer;
  QMessageBox::ButtonRole role;
  const char* caption;
};

constexpr Answer kOk{MessageAnswer::ok, QMessageBox::AcceptRole, "OK"};
constexpr Answer kCancel{MessageAnswer::cancel, QMessageBox::RejectRole, "キャンセル"};
constexpr Answer kYes{MessageAnswer::yes, QMessageBox::YesRole, "はい(&Y)"};
constexpr Answer kNo{MessageAnswer::no, QMessageBox::NoRole, "いいえ(&N)"};

constexpr Answer kImport{MessageAnswer::yes, QMessageBox::YesRole, "取り込む(&I)"};
constexpr Answer kRead{MessageAnswer::no, QMessageBox::NoRole, "そのまま読む(&R)"};

constexpr Answer kRetry{MessageAnswer::retry, QMessageBox::AcceptRole, "再試行(&R)"};
constexpr Answer kAbort{MessageAnswer::cancel, QMessageBox::RejectRole, "中止"};
constexpr Answer kExit{MessageAnswer::cancel, QMessageBox::RejectRole, "終了"};

constexpr std::array kOkOnly{kOk};
constexpr std::array kOkCancel{kOk, kCancel};
constexpr std::array kYesNo{kYes, kNo};
constexpr std::array kYesNoCancel{kYes, kNo, kCancel};
constexpr std::array kImportRead{kImport, kRead};
constexpr std::array kRetryAbort{kRetry, kAbort};
constexpr std::array kRetryExit{kRetry, kExit};

/// The last answer of each set is the cautious one.
std::span<const Answer> Answers(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::ok_cancel:
      return kOkCancel;
    case MessageButtons::yes_no:
    case MessageButtons::yes_no_default_no:
      return kYesNo;
    case MessageButtons::yes_no_cancel:
      return kYesNoCancel;
    case MessageButtons::import_or_read:
      return kImportRead;
    case MessageButtons::retry_abort:
      return kRetryAbort;
    case MessageButtons::retry_exit:
      return kRetryExit;
    case MessageButtons::ok:
    case MessageButtons::ok_to_warning:
      break;
  }
  return kOkOnly;
}

QMessageBox::Icon Sign(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::ok:
      return QMessageBox::Information;
    case MessageButtons::ok_to_warning:
    case MessageButtons::retry_abort:
    case MessageButtons::retry_exit:
      return QMessageBox::Warning;
    case MessageButtons::ok_cancel:
    case MessageButtons::yes_no:
    case MessageButtons::yes_no_default_no:
    case MessageButtons::yes_no_cancel:
    case MessageButtons::import_or_read:
      break;
  }
  return QMessageBox::Question;
}

/// The last answer is the default in place of the first.
bool CautionIsDefault(MessageButtons buttons) {
  return buttons == MessageButtons::yes_no_default_no || buttons == MessageButtons::import_or_read;
}

QString PlainText(std::string_view text) {
  QString plain = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  plain.replace("\r\n", "\n").replace('\r', '\n');
  return plain;
}

/// Lines are broken where the message says so; only one wider than most of the screen wraps.
void KeepLines(QMessageBox& box) {
  constexpr int kPercentOfScreen = 60;
  auto* label = box.findChild<QLabel*>("qt_msgbox_label");
  if (label == nullptr) return;
  const int widest = box.screen()->availableGeometry().width() * kPercentOfScreen / 100;
  const int text = label->fontMetrics().size(0, box.text()).width();
  label->setMinimumWidth(std::min(text, widest));
}

}  // namespace

MessageAnswer ShowMessage(std::string_view text, std::string_view title, MessageButtons buttons) {
  const QPointer<QWidget> below = QApplication::activeWindow();
  QMessageBox box(below);
  const std::span<const Answer> answers = Answers(buttons);
  box.setIcon(Sign(buttons));
  box.setTextFormat(Qt::PlainText);
  box.setText(PlainText(text));
  box.setWindowTitle(PlainText(title.empty() ? kProgramTitle : title));
  QAbstractButton* cautious = nullptr;
  for (const Answer& answer : answers) {
    QPushButton* button = box.addButton(QString::fromUtf8(answer.caption), answer.role);
    button->setObjectName(QString::fromUtf8(answer.caption));
    if (cautious == nullptr || CautionIsDefault(buttons)) box.setDefaultButton(button);
    cautious = button;
  }
  box.setEscapeButton(cautious);
  KeepLines(box);
  const WorkAtRest rest;
  box.exec();
  if (below) below->activateWindow();
  for (const Answer& answer : answers) {
    if (box.clickedButton()->objectName() == QString::fromUtf8(answer.caption)) return answer.answer;
  }
  return answers.back().answer;
}

bool MessageBoxOpen() { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) != nullptr; }

}  // namespace rbt
