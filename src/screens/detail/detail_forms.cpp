// SPDX-License-Identifier: MIT
#include "screens/detail/detail_forms.h"

#include <utility>

#include "desktop/form.h"
#include "desktop/preview_form.h"
#include "desktop/printer_choice.h"
#include "screens/detail/detail_form.h"
#include "screens/settings/settings_forms.h"

namespace rbt {

std::unique_ptr<DetailForm> MakeZAIMEI(TallyResult result) {
  DetailParts parts;
  parts.open_settings = OpenSettings;
  parts.print = [](const DetailOrder& order) { return CarryOut(order, ShowPreview); };
  parts.choose_printer = ChoosePrinter;
  return std::make_unique<DetailForm>(std::move(result), std::move(parts));
}

TallyResult OpenZAIMEI(TallyResult result) {
  const std::unique_ptr<DetailForm> form = MakeZAIMEI(std::move(result));
  ShowInPlace(*form);
  return form->Result();
}

}  // namespace rbt
