// SPDX-License-Identifier: MIT
#include "desktop/work_panel.h"

#include <cstdlib>

#include <QPainter>

#include "desktop/form.h"
#include "ui_work_panel.h"

namespace rbt {

namespace {

/// Where the moving bar's block begins, from 0 to 1 and back.
double PlaceOfBlock(std::chrono::milliseconds worked) {
  constexpr std::int64_t kThereAndBack = 2000;
  constexpr double kOneWay = kThereAndBack / 2.0;
  return 1.0 - std::abs(static_cast<double>(worked.count() % kThereAndBack) - kOneWay) / kOneWay;
}

}  // namespace

WorkPanel::WorkPanel(QWidget* window, bool ends_program)
    : QFrame(window), ui_(std::make_unique<Ui::WorkPanel>()) {
  ui_->setupUi(this);
  setAutoFillBackground(true);
  if (ends_program) {
    ui_->cmdStop->setText(QStringLiteral("終了(Esc)"));
    ui_->cmdStop->setToolTip(QStringLiteral("途中でやめて、このプログラムを終わります。"));
  }
  connect(ui_->cmdStop, &QPushButton::clicked, this, [this] { AskStop(); });
  if (window != nullptr) return;
  setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
}

WorkPanel::~WorkPanel() = default;

void WorkPanel::Tell(bool offers_stop, std::int64_t page, std::chrono::milliseconds worked) {
  worked_ = worked;
  ui_->cmdStop->setEnabled(offers_stop);
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(worked).count();
  ui_->lblTime->setText(QStringLiteral("%1 秒").arg(seconds));
  ui_->lblPage->setText(page > 0 ? QStringLiteral("%1 頁").arg(page) : QString());
}

void WorkPanel::Rise() {
  if (isVisible()) return;
  adjustSize();
  if (isWindow()) {
    Center_Form(*this);
  } else {
    move(parentWidget()->rect().center() - rect().center());
  }
  show();
  raise();
}

bool WorkPanel::OffersStop() const { return ui_->cmdStop->isEnabled(); }

void WorkPanel::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  QPainter painter(this);
  const QRectF bar = ui_->bar->geometry();
  painter.fillRect(bar, palette().base());
  QRectF block = bar;
  block.setWidth(bar.width() / 4);
  block.moveLeft(bar.left() + PlaceOfBlock(worked_) * (bar.width() - block.width()));
  painter.fillRect(block, palette().highlight());
}

}  // namespace rbt
