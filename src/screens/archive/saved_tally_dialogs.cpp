// SPDX-License-Identifier: MIT
#include "screens/archive/saved_tally_dialogs.h"

#include "desktop/form.h"
#include "screens/archive/load_files.h"
#include "screens/archive/save_files.h"

namespace rbt {

void SaveWithDialog(const TallyResult& result, const SavedMemos& memos) {
  SaveFiles dialog(result, memos, {});
  ShowModally(dialog);
}

std::optional<LoadedTally> LoadWithDialog(TallyKind kind) {
  LoadFiles dialog(kind);
  ShowModally(dialog);
  return dialog.TakeLoaded();
}

}  // namespace rbt
