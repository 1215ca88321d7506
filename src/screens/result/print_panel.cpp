// SPDX-License-Identifier: MIT
#include "screens/result/print_panel.h"

#include <initializer_list>

#include <QCheckBox>
#include <QPushButton>

#include "ui_result_form.h"

namespace rbt {

PrintPanel::PrintPanel(Ui::ResultForm& ui)
    : ui_(ui), dates_(new DateBoxes(*ui.txtYear, *ui.txtMonth, *ui.txtDay)) {
  Close();
}

bool PrintPanel::IsOpen() const { return !ui_.SSPanel3->isHidden(); }

void PrintPanel::OfferPapers(Papers papers) {
  for (QPushButton* button : {ui_.btnA4Y, ui_.btnB5Y}) button->setVisible(papers != Papers::ulbon);
  for (QWidget* control :
       std::initializer_list<QWidget*>{ui_.btnA4Y, ui_.btnA4T, ui_.btnB5Y, ui_.chkPreview}) {
    control->setEnabled(papers != Papers::none);
  }
}

void PrintPanel::Open(Papers papers) {
  ui_.SSPanel2->hide();
  ui_.SSPanel3->show();
  ui_.lblSubKojNa->show();
  ui_.txtSubKojNa->show();
  OfferPapers(papers);
  dates_->SetEnabled(true);
  dates_->FillEmpty();
  QPushButton* paper = papers == Papers::ulbon ? ui_.btnA4T : ui_.btnA4Y;
  (papers == Papers::none ? ui_.btnSettei : paper)->setFocus();
}

void PrintPanel::Close() {
  ui_.SSPanel3->hide();
  ui_.SSPanel2->show();
  ui_.lblSubKojNa->hide();
  ui_.txtSubKojNa->hide();
  dates_->SetEnabled(false);
}

PrintOrder PrintPanel::Order(const TallyResult& result, ReportPaper paper, bool ulbon) const {
  return {.result = result,
          .paper = paper,
          .ulbon = ulbon,
          .date = dates_->Texts(),
          .sub_project = ui_.txtSubKojNa->text().toStdString(),
          .preview = ui_.chkPreview->isChecked()};
}

}  // namespace rbt
