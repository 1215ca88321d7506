// SPDX-License-Identifier: MIT
#include "showroom/result_forms.h"

#include <QLineEdit>

#include "screens/result/result_form.h"
#include "screens/result/result_forms.h"

namespace rbt {

namespace {

ResultForm& ResultFormOf(QWidget& form) { return static_cast<ResultForm&>(form); }

std::vector<FormState> BulkStates() {
  return {{"normal", [](QWidget&) {}},
          {"print-panel", [](QWidget& form) { ResultFormOf(form).cmdPrint_Click(); }},
          {"ulbon-view", [](QWidget& form) { ResultFormOf(form).cmdUSum_Click(); }},
          {"ulbon-print-panel",
           [](QWidget& form) {
             ResultFormOf(form).cmdUSum_Click();
             ResultFormOf(form).cmdPrint_Click();
           }},
          {"uplift",
           [](QWidget& form) {
             ResultFormOf(form).cmdurubon_Click();
             form.findChild<QLineEdit*>("txtPercent")->setText("10");
           }},
          {"hoops-left-out", [](QWidget& form) { ResultFormOf(form).cmdHoop_Click(); }}};
}

void RunTheRange(QWidget& form) { ResultFormOf(form).TakeRange(); }

std::vector<FormState> ScopedStates() {
  return {{"input", [](QWidget&) {}},
          {"input-print-panel", [](QWidget& form) { ResultFormOf(form).cmdPrint_Click(); }},
          {"result", RunTheRange},
          {"print-panel",
           [](QWidget& form) {
             RunTheRange(form);
             ResultFormOf(form).cmdPrint_Click();
           }},
          {"hoops-left-out", [](QWidget& form) {
             RunTheRange(form);
             ResultFormOf(form).cmdHoop_Click();
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
