// SPDX-License-Identifier: MIT
#include "showroom/settings_forms.h"

#include <QLineEdit>
#include <QRadioButton>

#include "screens/settings/setcolor.h"
#include "screens/settings/setjs.h"
#include "screens/settings/settings_forms.h"

namespace rbt {

namespace {

/// Ticks an option without a click: nothing is saved.
void Tick(QWidget& form, const char* option) { form.findChild<QRadioButton*>(option)->setChecked(true); }

std::vector<FormState> SetjsStates() {
  return {{"stored", [](QWidget&) {}},
          {"own-title",
           [](QWidget& form) {
             Tick(form, "OptTitleC");
             auto* title = form.findChild<QLineEdit*>("title");
             title->setText("躯体工事鉄筋数量明細");
             title->setFocus();
           }},
          {"no-colours", [](QWidget& form) { Tick(form, "OptChangeColor_1"); }}};
}

}  // namespace

std::vector<FormEntry> SettingsForms() {
  return {{.name = "SETJS",
           .make = MakeSETJS,
           .first_focus = "optAD",
           .keys = SETJS::Keys(),
           .states = SetjsStates()},
          {.name = "SETCOLOR",
           .make = [] { return std::make_unique<SETCOLOR>(); },
           .first_focus = "picRowColor",
           .keys = SETCOLOR::Keys(),
           .states = {{"stored", [](QWidget&) {}}}}};
}

}  // namespace rbt
