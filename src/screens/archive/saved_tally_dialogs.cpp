// SPDX-License-Identifier: MIT
#include "screens/archive/saved_tally_dialogs.h"

#include <utility>

#include "desktop/form.h"
#include "screens/archive/frm_back_up.h"
#include "screens/archive/load_files.h"
#include "screens/archive/mounted_volumes.h"

namespace rbt {

std::unique_ptr<SaveFiles> MakeSaveFiles(const TallyResult& result, const SavedMemos& memos) {
  return std::make_unique<SaveFiles>(result, memos, SaveParts{.export_csv = ExportWithDialog});
}

void SaveWithDialog(const TallyResult& result, const SavedMemos& memos) {
  ShowModally(*MakeSaveFiles(result, memos));
}

std::optional<LoadedTally> LoadWithDialog(TallyKind kind) {
  LoadFiles dialog(kind);
  ShowModally(dialog);
  return dialog.TakeLoaded();
}

void ExportWithDialog(CsvSubject subject) {
  FrmBackUp dialog(std::move(subject), {.volumes = MountedVolumes(), .choose_folder = AskBackUpFolder});
  ShowModally(dialog);
}

}  // namespace rbt
