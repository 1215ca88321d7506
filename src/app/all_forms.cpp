// SPDX-License-Identifier: MIT
#include "app/all_forms.h"

#include <iterator>

#include "app/preview_forms.h"
#include "screens/screen_forms.h"
#include "screens/selection_dialogs.h"
#include "shell/menu/menu_forms.h"
#include "shell/settings_forms/settings_forms.h"

namespace rbt {

std::vector<FormEntry> AllForms() {
  std::vector<FormEntry> all;
  for (std::vector<FormEntry> forms :
       {MenuForms(), SettingsForms(), ScreenForms(), SelectionDialogs(), PreviewForms()}) {
    std::move(forms.begin(), forms.end(), std::back_inserter(all));
  }
  return all;
}

}  // namespace rbt
