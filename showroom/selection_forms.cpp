// SPDX-License-Identifier: MIT
#include "showroom/selection_forms.h"

#include <QCheckBox>
#include <QRadioButton>

#include "screens/selection/set_zai.h"
#include "screens/selection/set_zai_kai_bui.h"
#include "screens/selection/set_zairyou.h"

namespace rbt {

namespace {

template <typename Dialog>
std::unique_ptr<QWidget> Make() {
  return std::make_unique<Dialog>();
}

void Untick(QWidget& dialog, const char* box) { dialog.findChild<QCheckBox*>(box)->setChecked(false); }

void ChooseUlbon(QWidget& dialog) {
  auto* option = dialog.findChild<QRadioButton*>("Option1_0");
  option->setFocus();
  option->click();
}

FormState AsSelected() {
  return {"as-selected", [](QWidget&) {}};
}

}  // namespace

std::vector<FormEntry> SelectionForms() {
  return {{.name = "setZai",
           .make = Make<setZai>,
           .first_focus = "Check1_0",
           .keys = {Qt::Key_Escape},
           .states = {AsSelected(), {"without-ulbon", [](QWidget& dialog) { Untick(dialog, "ChkU"); }}}},
          {.name = "setZaiKaiBui",
           .make = Make<setZaiKaiBui>,
           .first_focus = "Option1_1",
           .keys = {Qt::Key_Escape},
           .states = {AsSelected(), {"ulbon", [](QWidget& dialog) { ChooseUlbon(dialog); }}}},
          {.name = "setZairyou",
           .make = Make<setZairyou>,
           .first_focus = "Chk_0",
           .keys = {Qt::Key_Escape},
           .states = {AsSelected(), {"without-raw", [](QWidget& dialog) { Untick(dialog, "Chk_0"); }}}}};
}

}  // namespace rbt
