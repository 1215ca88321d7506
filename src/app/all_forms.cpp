// SPDX-License-Identifier: MIT
#include "app/all_forms.h"

#include "shell/menu/menu_forms.h"

namespace rbt {

std::vector<FormEntry> AllForms() { return MenuForms(); }

}  // namespace rbt
