// SPDX-License-Identifier: MIT
#include "screens/floorpart/print_dlg.h"

#include <QApplication>

#include "desktop/form.h"
#include "ui_print_dlg.h"

namespace rbt {

PrintDlg::PrintDlg() : ui_(std::make_unique<Ui::PrintDlg>()) {
  ui_->setupUi(this);
  setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
}

PrintDlg::~PrintDlg() = default;

void PrintDlg::ShowPage(int page) {
  ui_->lblPage->setText(QString::number(page));
  adjustSize();
  Center_Form(*this);
  show();
  // Nothing else is drawn before the sheet is printed, and no key may come in between.
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace rbt
