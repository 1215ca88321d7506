// SPDX-License-Identifier: MIT
#include "showroom/accumulation_forms.h"

#include "screens/accumulation/backup2.h"
#include "session/panels/site_head.h"

namespace rbt {

std::vector<FormEntry> AccumulationForms() {
  return {{.name = "BACKUP2",
           .make =
               [] {
                 BindChosenSite();
                 return std::make_unique<BACKUP2>();
               },
           .first_focus = "dbgKoj",
           .keys = BACKUP2::Keys(),
           .states = {{"sites", [](QWidget&) {}}}}};
}

}  // namespace rbt
