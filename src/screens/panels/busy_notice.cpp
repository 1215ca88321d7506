// SPDX-License-Identifier: MIT
#include "screens/panels/busy_notice.h"

#include <QApplication>
#include <QLayout>
#include <QThread>
#include <QWindow>

#include "desktop/form.h"
#include "desktop/texts.h"
#include "ui_busy_notice.h"

namespace rbt {

BusyNotice::BusyNotice(QWidget* parent) : QFrame(parent), ui_(std::make_unique<Ui::BusyNotice>()) {
  ui_->setupUi(this);
}

BusyNotice::~BusyNotice() = default;

void BusyNotice::Tell(std::string_view words) { ui_->WaitMsgL->setText(Text(words)); }

void BusyNotice::Float(QLayout& layout) {
  layout.removeWidget(this);
  setAutoFillBackground(true);
  hide();
}

void BusyNotice::ShowOver(const QRect& place, bool shown) {
  if (shown) {
    adjustSize();
    move(place.center() - rect().center());
    raise();
  }
  setVisible(shown);
}

StartNotice::StartNotice() {
  notice_.setWindowFlag(Qt::SplashScreen);
  notice_.setObjectName("startNotice");
  notice_.adjustSize();
  Center_Form(notice_);
  notice_.show();
  // It is painted once the window system has put it up, which takes a few turns.
  constexpr int kTurns = 20;
  constexpr unsigned long kMilliseconds = 5;
  for (int turn = 0; turn < kTurns && !notice_.windowHandle()->isExposed(); ++turn) {
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    QThread::msleep(kMilliseconds);
  }
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace rbt
