// SPDX-License-Identifier: MIT
#include "screens/panels/print_panel.h"

#include <initializer_list>

#include "desktop/texts.h"
#include "ui_print_panel.h"

namespace rbt {

PrintPanel::PrintPanel(QWidget* parent) : QFrame(parent), ui_(std::make_unique<Ui::PrintPanel>()) {
  ui_->setupUi(this);
}

PrintPanel::~PrintPanel() = default;

void PrintPanel::Bind(PrintPanelPresenter& print_panel) {
  connect(ui_->chkPreview, &QCheckBox::toggled, this,
          [&print_panel](bool ticked) { print_panel.SetPreview(ticked); });
}

void PrintPanel::Show(const PrintPanelView& view) {
  ui_->btnA4Y->setVisible(view.papers != Papers::ulbon);
  ui_->btnB5Y->setVisible(view.papers != Papers::ulbon && view.papers != Papers::a4);
  for (QWidget* control :
       std::initializer_list<QWidget*>{ui_->btnA4Y, ui_->btnA4T, ui_->btnB5Y, ui_->chkPreview}) {
    control->setEnabled(view.papers != Papers::none);
  }
  ui_->chkPreview->setChecked(view.preview);
  ui_->lblPrinter->setText(Text(view.printer_notice));
  ui_->lblPrinter->setVisible(!view.printer_notice.empty());
  ui_->btnPrinter->setVisible(view.offers_printers);
}

void PrintPanel::Focus(FocusTarget target) {
  switch (target) {
    case FocusTarget::a4_landscape:
      return ui_->btnA4Y->setFocus();
    case FocusTarget::a4_portrait:
      return ui_->btnA4T->setFocus();
    case FocusTarget::settings:
      return ui_->btnSettei->setFocus();
    default:
      return;
  }
}

}  // namespace rbt
