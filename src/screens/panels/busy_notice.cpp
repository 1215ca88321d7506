// SPDX-License-Identifier: MIT
#include "screens/panels/busy_notice.h"

#include "desktop/texts.h"
#include "ui_busy_notice.h"

namespace rbt {

BusyNotice::BusyNotice(QWidget* parent) : QFrame(parent), ui_(std::make_unique<Ui::BusyNotice>()) {
  ui_->setupUi(this);
}

BusyNotice::~BusyNotice() = default;

void BusyNotice::Tell(std::string_view words) { ui_->WaitMsgL->setText(Text(words)); }

}  // namespace rbt
