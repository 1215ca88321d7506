// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "archive/csv/csv_subject.h"
#include "archive/store/load_tally.h"
#include "tally/tally_result.h"

namespace rbt {

/// Shows `SaveFiles` over the active form, on a result and the memos of the form, and returns when it is
/// gone.
void SaveWithDialog(const TallyResult& result, const SavedMemos& memos);
/// Shows `LoadFiles` on the saved tallies of a kind. Nothing when none was loaded.
std::optional<LoadedTally> LoadWithDialog(TallyKind kind);

/// Shows `FrmBackUp`, which writes a subject to a CSV file, and returns when it is gone.
void ExportWithDialog(CsvSubject subject);

}  // namespace rbt
