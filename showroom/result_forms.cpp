// SPDX-License-Identifier: MIT
#include "showroom/result_forms.h"

#include <QLineEdit>

#include "screens/result/result_form.h"
#include "screens/result/result_forms.h"
#include "showroom/click.h"

namespace rbt {

namespace {

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

std::string FirstFocus(const ResultScreen& screen) {
  if (!screen.IsScoped()) return "dbgJS";
  return screen.Range() == TallyRange::shapes ? "txtStartKeijouNo" : "txtStartPage";
}

FormEntry Entry(const ResultScreen& screen) {
  return {.name = std::string(screen.name),
          .make = [&screen] { return MakeResultForm(screen); },
          .first_focus = FirstFocus(screen),
          .keys = ResultForm::Keys(screen),
          .states = screen.IsScoped() ? ScopedStates() : BulkStates()};
}

}  // namespace

std::vector<FormEntry> ResultForms() {
  std::vector<FormEntry> entries;
  entries.reserve(ResultScreens().size());
  for (const ResultScreen* const screen : ResultScreens()) entries.push_back(Entry(*screen));
  return entries;
}

}  // namespace rbt
