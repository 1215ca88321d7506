// SPDX-License-Identifier: MIT
#include "showroom/detail_forms.h"

#include <QLineEdit>

#include "screens/detail/detail_form.h"
#include "screens/detail/detail_forms.h"
#include "screens/result/result_forms.h"
#include "session/result/result_screen.h"
#include "shell/config/settings.h"
#include "showroom/click.h"
#include "tally/kinds/tally_kinds.h"

namespace rbt {

namespace {

std::unique_ptr<QWidget> Make(bool with_weights) {
  Settings.DetailShowsWeight = with_weights ? 1 : 0;
  MakeResultForm(kBulkScreen);  // binds the site
  return MakeZAIMEI(CountTally(TallyKind::bulk));
}

std::vector<FormState> States(const std::string& layout) {
  return {{layout, [](QWidget&) {}},
          {layout + "-percent",
           [](QWidget& form) {
             Click(form, "cmdPercent");
             form.findChild<QLineEdit*>("txtPercent")->setText("12.5");
           }},
          {layout + "-editing", [](QWidget& form) { Click(form, "cmdHonsuu"); }},
          {layout + "-print-panel", [](QWidget& form) { Click(form, "cmdMeisaiPrint"); }}};
}

FormEntry Entry(bool with_weights, const std::string& layout) {
  return {.name = "ZAIMEI",
          .make = [with_weights] { return Make(with_weights); },
          .first_focus = "cmdPercent",
          .keys = DetailForm::Keys(),
          .states = States(layout)};
}

}  // namespace

std::vector<FormEntry> DetailForms() { return {Entry(true, "with-weights"), Entry(false, "counts")}; }

}  // namespace rbt
