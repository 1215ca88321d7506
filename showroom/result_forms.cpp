// SPDX-License-Identifier: MIT
#include "showroom/result_forms.h"

#include <QLineEdit>
#include <QPushButton>

#include "screens/result/result_form.h"
#include "screens/result/result_forms.h"

namespace rbt {

namespace {

void Click(QWidget& form, const char* button) { form.findChild<QPushButton*>(button)->click(); }

std::vector<FormState> BulkStates() {
  return {{"normal", [](QWidget&) {}},
          {"print-panel", [](QWidget& form) { Click(form, "cmdPrint"); }},
          {"ulbon-view", [](QWidget& form) { Click(form, "cmdUSum"); }},
          {"ulbon-print-panel",
           [](QWidget& form) {
             Click(form, "cmdUSum");
             Click(form, "cmdPrint");
           }},
          {"uplift",
           [](QWidget& form) {
             Click(form, "cmdurubon");
             form.findChild<QLineEdit*>("txtPercent")->setText("10");
           }},
          {"hoops-left-out", [](QWidget& form) { Click(form, "cmdHoop"); }}};
}

void RunTheRange(QWidget& form) { static_cast<ResultForm&>(form).TakeRange(); }

std::vector<FormState> ScopedStates() {
  return {{"input", [](QWidget&) {}},
          {"input-print-panel", [](QWidget& form) { Click(form, "cmdPrint"); }},
          {"result", RunTheRange},
          {"print-panel",
           [](QWidget& form) {
             RunTheRange(form);
             Click(form, "cmdPrint");
           }},
          {"hoops-left-out", [](QWidget& form) {
             RunTheRange(form);
             Click(form, "cmdHoop");
           }}};
}

FormEntry Entry(const ResultScreen& screen, std::unique_ptr<QWidget> (*make)(), std::string first_focus,
                std::vector<FormState> states) {
  return {.name = std::string(screen.name),
          .make = make,
          .first_focus = std::move(first_focus),
          .keys = ResultForm::Keys(screen),
          .states = std::move(states)};
}

}  // namespace

std::vector<FormEntry> ResultForms() {
  return {Entry(kBulkScreen, MakeJS, "dbgJS", BulkStates()),
          Entry(kPageScreen, MakePGJS, "txtStartPage", ScopedStates()),
          Entry(kShapeScreen, MakeKEIJOJS, "txtStartKeijouNo", ScopedStates()),
          Entry(kPageShapeScreen, MakePKEIJOJS, "txtStartPage", ScopedStates())};
}

}  // namespace rbt
