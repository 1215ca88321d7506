// SPDX-License-Identifier: MIT
#include "screens/floorpart/floor_input_panel.h"

#include <QKeyEvent>

#include "desktop/action.h"
#include "desktop/texts.h"
#include "screens/panels/boxes.h"
#include "screens/panels/digit_box.h"
#include "ui_floor_input_panel.h"

namespace rbt {

namespace {

constexpr int kMostCharacters = 6;

bool IsShiftedMinus(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const auto& press = static_cast<const QKeyEvent&>(event);
  return press.key() == Qt::Key_Minus && (press.modifiers() & Qt::ShiftModifier);
}

}  // namespace

FloorInputPanel::FloorInputPanel(QWidget* parent)
    : RangePanel(parent), ui_(std::make_unique<Ui::FloorInputPanel>()) {
  ui_->setupUi(this);
  for (QLineEdit* box : {ui_->txtStartKai, ui_->txtEndKai}) {
    TakeNumberOnly(*box, kMostCharacters);
    SelectAtFocus(*box);
  }
  SetBoxes({ui_->txtStartKai, ui_->txtEndKai});
}

FloorInputPanel::~FloorInputPanel() = default;

void FloorInputPanel::OnWeight(std::function<void(bool installed)> chosen) {
  for (QRadioButton* option : {ui_->Opt1_0, ui_->Opt1_1}) {
    const bool installed = option == ui_->Opt1_1;
    connect(option, &QRadioButton::clicked, this,
            [this, installed, chosen] { RunAction(*this, [&] { chosen(installed); }); });
  }
}

void FloorInputPanel::ShowInput(const FloorInputView& view) {
  ui_->lblHanni->setText(Text(view.notice));
  for (std::size_t box = 0; box < Boxes().size(); ++box) ShowText(*Boxes()[box], view.boxes.at(box));
  (view.installed ? ui_->Opt1_1 : ui_->Opt1_0)->setChecked(true);
  setEnabled(view.enabled);
}

void FloorInputPanel::FocusRun() { ui_->cmdKaiJS->setFocus(); }

bool FloorInputPanel::eventFilter(QObject* receiver, QEvent* event) {
  if (IsShiftedMinus(*event)) return true;
  return RangePanel::eventFilter(receiver, event);
}

}  // namespace rbt
