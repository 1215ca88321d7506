// SPDX-License-Identifier: MIT
#include "app/all_forms.h"

#include "screens/screen_forms.h"
#include "shell/menu/menu_forms.h"

namespace rbt {

std::vector<FormEntry> AllForms() {
  std::vector<FormEntry> forms = MenuForms();
  for (FormEntry& form : ScreenForms()) forms.push_back(std::move(form));
  return forms;
}

}  // namespace rbt
