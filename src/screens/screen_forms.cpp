// SPDX-License-Identifier: MIT
#include "screens/screen_forms.h"

#include <QLineEdit>

#include "screens/result_form.h"
#include "tally/bulk_tally.h"
#include "tally/tally_grid.h"

namespace rbt {

namespace {

constexpr ResultScreen kBulkScreen{"JS", kBulkTitle, Jyuuryo_Syukei};

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

}  // namespace

std::unique_ptr<QWidget> MakeJS() { return std::make_unique<ResultForm>(kBulkScreen, ResultParts()); }

std::vector<FormEntry> ScreenForms() {
  return {{.name = "JS",
           .make = MakeJS,
           .first_focus = "dbgJS",
           .keys = ResultForm::Keys(),
           .states = BulkStates()}};
}

}  // namespace rbt
