// SPDX-License-Identifier: MIT
#include "screens/result/result_forms.h"

#include "desktop/preview_form.h"
#include "desktop/printer_choice.h"
#include "screens/accumulation/site_choice_dialog.h"
#include "screens/detail/detail_forms.h"
#include "screens/planning/plan_forms.h"
#include "screens/result/result_form.h"
#include "screens/selection/selection_dialogs.h"
#include "screens/settings/settings_forms.h"

namespace rbt {

std::unique_ptr<QWidget> MakeResultForm(const ResultScreen& screen) {
  ResultParts parts;
  parts.choose_kinds = ChooseKinds;
  parts.choose_forms = ChooseForms;
  parts.open_settings = OpenSettings;
  parts.open_detail = OpenZAIMEI;
  parts.choose_site = ChooseSite;
  parts.open_plan = OpenPlan;
  parts.print = [](const PrintOrder& order) { return CarryOut(order, ShowPreview); };
  parts.choose_printer = ChoosePrinter;
  return std::make_unique<ResultForm>(screen, std::move(parts));
}

}  // namespace rbt
