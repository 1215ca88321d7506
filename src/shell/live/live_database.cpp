// SPDX-License-Identifier: MIT
#include "shell/live/live_database.h"

#include <optional>
#include <system_error>
#include <utility>

#include <fmt/format.h>

#include "jet/import/import_file.h"
#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/system/message.h"
#include "shell/live/import_saved.h"
#include "shell/live/renewal.h"
#include "shell/live/working_copy.h"
#include "store/database_file.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

Database OpenAs(const fs::path& file, bool for_reading) {
  return for_reading ? Database::OpenReadOnly(file) : Database::Open(file);
}

/// Nothing where it is not up to date. `by_bytes`: a file whose bytes are the noted ones stands, whatever the
/// system notes of it.
std::optional<Database> OpenUpToDate(const fs::path& copy, const fs::path& file, bool for_reading,
                                     bool by_bytes) {
  std::optional<OpenedCopy> opened = OpenIfCopy(copy, for_reading);
  if (!opened) return std::nullopt;
  const SourceNote& note = opened->note;
  if (!note.StandsFor(file) && !(by_bytes && note.TellsBytesOf(file))) return std::nullopt;
  return std::move(opened->database);
}

/// Something may have been saved in the one since the other was made.
bool IsYounger(const fs::path& a, const fs::path& b) {
  std::error_code error;
  const auto time_of_a = fs::last_write_time(a, error);
  if (error) return false;
  const auto time_of_b = fs::last_write_time(b, error);
  return error || time_of_a > time_of_b;
}

/// One that goes on standing for the file as long as nobody writes: into the folder nothing is written.
Database OpenCopyOnlyReading(const fs::path& file, bool for_reading) {
  const fs::path archive = ArchiveCopyOf(file);
  if (auto open = OpenUpToDate(archive, file, for_reading, true)) return std::move(*open);
  const fs::path copy = WorkingCopyInCache(file);
  if (copy != archive && !IsYounger(archive, copy)) {
    if (auto open = OpenUpToDate(copy, file, for_reading, true)) return std::move(*open);
  }
  // What the archive holds by now is in none that was made before.
  if (copy != archive && IsYounger(archive, copy)) {
    std::error_code there_is_none;
    fs::remove(copy, there_is_none);
  }
  RenewWorkingCopy(file, copy, copy == archive ? WorkingCopyBeside(file) : archive);
  return OpenAs(copy, for_reading);
}

Database OpenCopy(const fs::path& file, bool for_reading) {
  const fs::path copy = ArchiveCopyOf(file);
  const fs::path beside = WorkingCopyBeside(file);
  RenewWorkingCopy(file, copy, copy == beside ? WorkingCopyInCache(file) : beside);
  return OpenAs(copy, for_reading);
}

void ImportInPlace(const fs::path& file) {
  const jet::ImportReport report = ImportInPlaceWithSaved(file);
  if (report.Refused() == 0 && report.warnings.empty()) return;
  MsgBox(fmt::format("{}：取り込めなかった行 {} 行、注意 {} 件\n\n詳しくは {} を見て下さい。",
                     report.target.filename().string(), report.Refused(), report.warnings.size(),
                     jet::ReportFile(report.target).string()),
         "データベースの取り込み");
}

/// What cannot be written is the copy, of which the user need not know.
Database OpenInPlace(const fs::path& file, bool only_read, bool for_reading) {
  try {
    return only_read ? OpenCopyOnlyReading(file, for_reading) : OpenCopy(file, for_reading);
  } catch (const jet::TargetFault& fault) {
    throw Fault(fault.Kind(), fmt::format("{}: the working copy of {}", fault.Where(), file.string()));
  }
}

/// What kind of file it is the store looks at itself: to open beside it a file that it has open would lose
/// its locks.
Database Open(const fs::path& file, const LiveUse& use, bool for_reading) {
  if (use.jet == JetChoice::read_in_place) {
    // A copy that tells how the file stands tells that it is a Jet file, too.
    if (auto open = OpenUpToDate(ArchiveCopyOf(file), file, for_reading, false)) return std::move(*open);
  }
  try {
    Database store = OpenAs(file, for_reading);
    TellOfSavedElsewhere(store, file);
    return store;
  } catch (const JetFileFault&) {
    if (use.jet == JetChoice::refuse || (use.jet == JetChoice::import && use.only_read)) throw;
  }
  if (use.jet == JetChoice::read_in_place) return OpenInPlace(file, use.only_read, for_reading);
  ImportInPlace(file);
  return OpenAs(file, for_reading);
}

}  // namespace

Database OpenLive(const fs::path& file, const LiveUse& use) { return Open(file, use, use.only_read); }

Database OpenLiveForReading(const fs::path& file, const LiveUse& use) { return Open(file, use, true); }

bool StandsFor(Database& open, const fs::path& file) {
  if (!open.IsPrivateCopy() && open.HasMoved()) return false;
  if (open.File() == file) return true;
  const std::optional<SourceNote> note = ReadSourceNote(open);
  return note && note->StandsFor(file);
}

std::string MarkOfCopy(Database& open, const fs::path& file) {
  if (open.File() == file) return {};
  const std::optional<SourceNote> note = ReadSourceNote(open);
  return note ? note->mark : "";
}

}  // namespace rbt
