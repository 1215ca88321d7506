// SPDX-License-Identifier: MIT
#include "showroom/floorpart_forms.h"

#include <QLineEdit>

#include "screens/floorpart/floorpart_form.h"
#include "screens/floorpart/floorpart_forms.h"
#include "showroom/click.h"

namespace rbt {

namespace {

/// Questions are answered by their default: yes.
void RunAllFloors(QWidget& form) {
  Click(form, "ALLKAIB");
  Click(form, form.objectName() == "KAIJS" ? "cmdKaiJS" : "cmdBuiJS");
}

void AskForUplift(QWidget& form) {
  RunAllFloors(form);
  Click(form, "cmdJShuusei");
  form.findChild<QLineEdit*>("Text1")->setText("10");
}

void CorrectByHand(QWidget& form) {
  RunAllFloors(form);
  static_cast<FloorPartForm&>(form).CorrectByHand();
}

std::vector<FormState> States() {
  return {{"input", [](QWidget&) {}},
          {"all-floors", [](QWidget& form) { Click(form, "ALLKAIB"); }},
          {"result", RunAllFloors},
          {"print-panel",
           [](QWidget& form) {
             RunAllFloors(form);
             Click(form, "cmdMeisaiSakusei");
           }},
          {"uplift", AskForUplift},
          {"raised",
           [](QWidget& form) {
             AskForUplift(form);
             Click(form, "Command2");
           }},
          {"correction", CorrectByHand},
          {"hoops-left-out", [](QWidget& form) {
             RunAllFloors(form);
             Click(form, "cmdHoop");
           }}};
}

FormEntry Entry(const FloorPartScreen& screen, std::unique_ptr<QWidget> (*make)()) {
  return {.name = std::string(screen.name),
          .make = make,
          .first_focus = "txtStartKai",
          .keys = FloorPartForm::Keys(screen),
          .states = States()};
}

}  // namespace

std::vector<FormEntry> FloorPartForms() {
  return {Entry(kFloorScreen, MakeKAIJS), Entry(kPartScreen, MakeBUIJS)};
}

}  // namespace rbt
