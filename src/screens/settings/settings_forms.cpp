// SPDX-License-Identifier: MIT
#include "screens/settings/settings_forms.h"

#include "desktop/form.h"
#include "screens/settings/setjs.h"

namespace rbt {

std::unique_ptr<QWidget> MakeSETJS() { return std::make_unique<SETJS>(); }

void OpenSettings() {
  SETJS form;
  ShowModally(form);
}

}  // namespace rbt
