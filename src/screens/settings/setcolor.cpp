// SPDX-License-Identifier: MIT
#include "screens/settings/setcolor.h"

#include "desktop/form.h"
#include "screens/panels/form_actions.h"
#include "ui_setcolor.h"

namespace rbt {

namespace {

constexpr int kSaveKey = Qt::Key_F1;
constexpr int kDoneKey = Qt::Key_Escape;

}  // namespace

SETCOLOR::SETCOLOR() : ui_(std::make_unique<Ui::SETCOLOR>()) {
  ui_->setupUi(this);
  PrepareForm(*this);
  const auto choose = [this](void (ColoursPresenter::*ask)()) {
    return [this, ask] {
      (presenter_.*ask)();
      Show();
    };
  };
  const auto save = [this] {
    presenter_.Save();
    hide();
  };
  new FormActions(*this,
                  {{"picRowColor", 0, choose(&ColoursPresenter::ChooseBack)},
                   {"picForeColor", 0, choose(&ColoursPresenter::ChooseFore)},
                   {"btnRejist", kSaveKey, save},
                   {"btnExit", kDoneKey, [this] { hide(); }}},
                  KeysAct::always);
  Show();
  ui_->picRowColor->setFocus();
}

SETCOLOR::~SETCOLOR() = default;

std::vector<int> SETCOLOR::Keys() { return {kSaveKey, kDoneKey}; }

void SETCOLOR::Show() {
  ui_->picRowColor->SetRgb(presenter_.Back());
  ui_->picForeColor->SetRgb(presenter_.Fore());
}

}  // namespace rbt
