// SPDX-License-Identifier: MIT
#include "screens/accumulation/site_choice_dialog.h"

#include <cstdlib>
#include <variant>

#include <QApplication>

#include "desktop/form.h"
#include "screens/accumulation/backup2.h"

namespace rbt {

SiteChoice ChooseSite() {
  BACKUP2 dialog;
  if (std::holds_alternative<ProgramEnds>(dialog.Choice())) {
    QApplication::exit(EXIT_SUCCESS);
  } else {
    ShowInPlace(dialog);
  }
  return dialog.Choice();
}

}  // namespace rbt
