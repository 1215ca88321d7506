// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>

#include "archive/csv/csv_subject.h"
#include "archive/store/load_tally.h"
#include "screens/archive/save_files.h"
#include "tally/tally_result.h"

namespace rbt {

/// `SaveFiles` on a result and the memos of its form.
std::unique_ptr<SaveFiles> MakeSaveFiles(const TallyResult& result, const SavedMemos& memos);
/// Shows it over the active form, and returns when it is gone.
void SaveWithDialog(const TallyResult& result, const SavedMemos& memos);
/// Shows `LoadFiles` on the saved tallies of a kind. Nothing when none was loaded.
std::optional<LoadedTally> LoadWithDialog(TallyKind kind);

/// Shows `FrmBackUp`, which writes a subject to a CSV file, and returns when it is gone.
void ExportWithDialog(CsvSubject subject);

}  // namespace rbt
