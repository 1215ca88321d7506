// SPDX-License-Identifier: MIT
#include "screens/panels/filter_panel.h"

#include <initializer_list>

#include "desktop/action.h"
#include "desktop/texts.h"
#include "screens/panels/boxes.h"
#include "screens/panels/digit_box.h"
#include "ui_filter_panel.h"

namespace rbt {

namespace {

constexpr int kPercentDigits = 6;

/// The widest texts that come to stand where a press changes them.
constexpr const char* kWidestKinds = "異形・高強度・ネジ・スリット";
constexpr const char* kWidestForms = "生･生加･切加";
constexpr const char* kWidestHoopsNote = "(形状No87)を";
constexpr const char* kWidestMode = "含まず";

template <typename Control>
void KeepRoomFor(Control& control, const char* widest) {
  const QString text = control.text();
  control.setText(QString::fromUtf8(widest));
  control.setMinimumWidth(control.sizeHint().width());
  control.setText(text);
}

}  // namespace

FilterPanel::FilterPanel(QWidget* parent) : QFrame(parent), ui_(std::make_unique<Ui::FilterPanel>()) {
  ui_->setupUi(this);
  TakeDigitsOnly(*ui_->txtPercent, kPercentDigits);
  HoldStill();
}

/// Whatever a press changes or hides, everything else stays where it is.
void FilterPanel::HoldStill() {
  KeepRoomFor(*ui_->Label8, kWidestKinds);
  KeepRoomFor(*ui_->Label9, kWidestForms);
  KeepRoomFor(*ui_->Label4, kWidestHoopsNote);
  KeepRoomFor(*ui_->cmdHoop, kWidestMode);
  KeepRoomFor(*ui_->cmdTei, kWidestMode);
  for (QWidget* control :
       std::initializer_list<QWidget*>{ui_->Command3, ui_->Command2, ui_->cmdHoop, ui_->cmdTei, ui_->lblUper,
                                       ui_->txtPercent, ui_->Lwarning}) {
    KeepRoomOf(*control);
  }
}

FilterPanel::~FilterPanel() = default;

void FilterPanel::OnUplift(std::function<void(std::string text)> typed, std::function<void()> taken) {
  connect(ui_->txtPercent, &QLineEdit::textChanged, this,
          [this, typed = std::move(typed)] { typed(ui_->txtPercent->text().toStdString()); });
  connect(ui_->txtPercent, &QLineEdit::returnPressed, this,
          [this, taken = std::move(taken)] { RunAction(*this, taken); });
}

void FilterPanel::Show(const FilterView& view) {
  ui_->Label8->setText(Text(view.kinds));
  ui_->Label9->setText(Text(view.forms));
  ShowButton(*ui_->Command3, view.choose_kinds);
  ShowButton(*ui_->Command2, view.choose_forms);
  ShowButton(*ui_->Command1, view.recalculate);
  ui_->Label4->setText(Text(view.hoops_note));
  ui_->Label3->setVisible(view.tells_hoops);
  ui_->Label4->setVisible(view.tells_hoops);
  ShowButton(*ui_->cmdHoop, view.cycle_hoops);
  ui_->Label5->setVisible(view.tells_plates);
  ShowButton(*ui_->cmdTei, view.cycle_plates);
  ShowText(*ui_->txtPercent, view.uplift.text);
  ui_->txtPercent->setEnabled(view.uplift.enabled);
  ui_->txtPercent->setVisible(view.uplift.shown);
  ui_->lblUper->setVisible(view.uplift.shown);
  ui_->lblRange->setText(Text(view.range));
  ui_->lblRange->setVisible(!view.range.empty());
  ui_->hozon->setVisible(view.accumulating);
  ui_->Lwarning->setText(Text(view.warning));
  ui_->Lwarning->setVisible(!view.warning.empty());
}

void FilterPanel::FocusUplift() {
  ui_->txtPercent->setFocus();
  ui_->txtPercent->selectAll();
}

QWidget* FilterPanel::LastControl() const { return ui_->cmdTei; }

}  // namespace rbt
