// SPDX-License-Identifier: MIT
#include "screens/screen_forms.h"

#include <QLineEdit>

#include "platform/desktop/preview_form.h"
#include "screens/result_form.h"
#include "screens/selection_dialogs.h"
#include "shell/settings_forms/settings_forms.h"

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

std::unique_ptr<QWidget> Make(const ResultScreen& screen) {
  ResultParts parts;
  parts.choose_kinds = ChooseKinds;
  parts.choose_forms = ChooseForms;
  parts.open_settings = OpenSettings;
  parts.print = [](const PrintOrder& order) { CarryOut(order, ShowPreview); };
  return std::make_unique<ResultForm>(screen, std::move(parts));
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

std::unique_ptr<QWidget> MakeJS() { return Make(kBulkScreen); }
std::unique_ptr<QWidget> MakePGJS() { return Make(kPageScreen); }
std::unique_ptr<QWidget> MakeKEIJOJS() { return Make(kShapeScreen); }
std::unique_ptr<QWidget> MakePKEIJOJS() { return Make(kPageShapeScreen); }

std::vector<FormEntry> ScreenForms() {
  return {Entry(kBulkScreen, MakeJS, "dbgJS", BulkStates()),
          Entry(kPageScreen, MakePGJS, "txtStartPage", ScopedStates()),
          Entry(kShapeScreen, MakeKEIJOJS, "txtStartKeijouNo", ScopedStates()),
          Entry(kPageShapeScreen, MakePKEIJOJS, "txtStartPage", ScopedStates())};
}

}  // namespace rbt
