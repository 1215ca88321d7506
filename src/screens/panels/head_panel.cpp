// SPDX-License-Identifier: MIT
#include "screens/panels/head_panel.h"

#include "desktop/texts.h"
#include "screens/panels/boxes.h"
#include "ui_head_panel.h"

namespace rbt {

HeadPanel::HeadPanel(QWidget* parent) : QFrame(parent), ui_(std::make_unique<Ui::HeadPanel>()) {
  ui_->setupUi(this);
}

HeadPanel::~HeadPanel() = default;

void HeadPanel::Bind(PrintPanelPresenter& print_panel) {
  ui_->dateBoxes->Bind(print_panel.Date());
  connect(ui_->txtSubKojNa, &QLineEdit::textChanged, this,
          [&print_panel](const QString& text) { print_panel.TypeMemo(text.toStdString()); });
}

void HeadPanel::Show(const HeadView& head, const PrintPanelView& print_panel) {
  ui_->lblKojNo->setText(Text(head.site_number));
  ui_->lblKojNa->setText(Text(head.site_name));
  ui_->lblKykCd->setText(Text(head.client_code));
  ui_->lblKykNa->setText(Text(head.client_name));
  ui_->LabelCD->setText(Text(head.load_date));
  ui_->LabelCT->setText(Text(head.load_time));
  ShowText(*ui_->txtSubKojNa, print_panel.memo);
  const bool asks_memo = print_panel.open && print_panel.has_memo;
  ui_->lblSubKojNa->setVisible(asks_memo);
  ui_->txtSubKojNa->setVisible(asks_memo);
  ui_->dateBoxes->Show(print_panel.date, print_panel.open);
}

DateBoxes& HeadPanel::Dates() { return *ui_->dateBoxes; }

}  // namespace rbt
