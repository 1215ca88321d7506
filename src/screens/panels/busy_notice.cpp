// SPDX-License-Identifier: MIT
#include "screens/panels/busy_notice.h"

#include "ui_busy_notice.h"

namespace rbt {

BusyNotice::BusyNotice(QWidget* parent) : QFrame(parent), ui_(std::make_unique<Ui::BusyNotice>()) {
  ui_->setupUi(this);
}

BusyNotice::~BusyNotice() = default;

}  // namespace rbt
