// SPDX-License-Identifier: MIT
#include "screens/settings/setcolor.h"

#include <array>
#include <string>

#include "desktop/action.h"
#include "desktop/form.h"
#include "desktop/key_table.h"
#include "platform/system/colour_choice.h"
#include "shell/config/settings.h"
#include "ui_setcolor.h"

namespace rbt {

namespace {

constexpr std::array<KeyBinding<SETCOLOR>, 2> kKeyTable{{
    {Qt::Key_F1, &SETCOLOR::btnRejist_Click},
    {Qt::Key_Escape, &SETCOLOR::btnExit_Click},
}};

}  // namespace

SETCOLOR::SETCOLOR() : ui_(std::make_unique<Ui::SETCOLOR>()) {
  ui_->setupUi(this);
  PrepareForm(*this);
  const auto connect_click = [this](QPushButton* button, void (SETCOLOR::*handler)()) {
    connect(button, &QPushButton::clicked, this,
            [this, handler] { RunAction(*this, [this, handler] { (this->*handler)(); }); });
  };
  connect_click(ui_->picRowColor, &SETCOLOR::picRowColor_Click);
  connect_click(ui_->picForeColor, &SETCOLOR::picForeColor_Click);
  connect_click(ui_->btnRejist, &SETCOLOR::btnRejist_Click);
  connect_click(ui_->btnExit, &SETCOLOR::btnExit_Click);
  new KeyPreview(*this,
                 [this](const QKeyEvent& press) { return AnswerKey<SETCOLOR>(*this, kKeyTable, press); });
  ui_->picRowColor->SetRgb(ReadSteelIniColour(kGridRowBackColorKey));
  ui_->picForeColor->SetRgb(ReadSteelIniColour(kGridRowForeColorKey));
  ui_->picRowColor->setFocus();
}

SETCOLOR::~SETCOLOR() = default;

std::vector<int> SETCOLOR::Keys() { return KeysOf<SETCOLOR>(kKeyTable); }

void SETCOLOR::picRowColor_Click() { ChooseColour(*ui_->picRowColor); }
void SETCOLOR::picForeColor_Click() { ChooseColour(*ui_->picForeColor); }

void SETCOLOR::ChooseColour(ColourBox& box) {
  if (const auto chosen = rbt::ChooseColour("色選択", box.Rgb())) box.SetRgb(*chosen);
}

void SETCOLOR::btnRejist_Click() {
  WriteSteelIni(kGridRowBackColorKey, std::to_string(ui_->picRowColor->Rgb()));
  WriteSteelIni(kGridRowForeColorKey, std::to_string(ui_->picForeColor->Rgb()));
  hide();
}

void SETCOLOR::btnExit_Click() { hide(); }

}  // namespace rbt
