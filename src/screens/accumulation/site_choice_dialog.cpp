// SPDX-License-Identifier: MIT
#include "screens/accumulation/site_choice_dialog.h"

#include <cstdlib>

#include <QApplication>

#include "desktop/form.h"
#include "screens/accumulation/backup2.h"

namespace rbt {

std::optional<AddedSite> ChooseSite() {
  BACKUP2 dialog;
  if (dialog.EndsProgram()) {
    QApplication::exit(EXIT_SUCCESS);
    return std::nullopt;
  }
  ShowInPlace(dialog);
  return dialog.Chosen();
}

}  // namespace rbt
