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
#include "shell/live/joined_saved.h"
#include "shell/live/renewal.h"
#include "shell/live/working_copy.h"
#include "store/database_file.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

Database OpenAs(const fs::path& file, bool for_reading) {
  return for_reading ? Database::OpenReadOnly(file) : Database::Open(file);
}

/// The working copy in the other place.
fs::path OtherCopyOf(const fs::path& file, const fs::path& copy) {
  fs::path beside = WorkingCopyBeside(file);
  return copy == beside ? WorkingCopyInCache(file) : beside;
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

/// Nothing where either cannot be read as a working copy.
struct TwoCopies {
  SavedAndJoined archive;
  SavedAndJoined other;
};
std::optional<TwoCopies> ReadBoth(const fs::path& archive, const fs::path& other) {
  std::optional<OpenedCopy> of_archive = OpenIfCopy(archive, true);
  std::optional<OpenedCopy> of_other = OpenIfCopy(other, true);
  if (!of_archive || !of_other) return std::nullopt;
  return TwoCopies{ReadSavedAndJoined(of_archive->database), ReadSavedAndJoined(of_other->database)};
}

/// One that goes on standing for the file as long as nobody writes: into the folder nothing is written. What
/// was saved in the cache while the folder could not be written is there alone until somebody may write.
Database OpenCopyOnlyReading(const fs::path& file, bool for_reading) {
  const fs::path archive = ArchiveCopyOf(file);
  const fs::path copy = WorkingCopyInCache(file);
  const std::optional<TwoCopies> both = copy == archive ? std::nullopt : ReadBoth(archive, copy);
  const bool holds_its_own = both && !LackingTallies(both->archive, both->other).empty();
  if (!holds_its_own) {
    auto open = OpenUpToDate(archive, file, for_reading, true);
    if (open && (copy != archive || HasJoined(*open, WorkingCopyBeside(file)))) return std::move(*open);
  }
  // All that it holds is from the archive, which holds something else by now.
  if (both && !holds_its_own && !HaveSameTallies(both->archive, both->other)) {
    std::error_code there_is_none;
    fs::remove(copy, there_is_none);
  }
  RenewWorkingCopy(file, copy, OtherCopyOf(file, copy));
  return OpenAs(copy, for_reading);
}

Database OpenCopy(const fs::path& file, bool for_reading) {
  const fs::path copy = ArchiveCopyOf(file);
  RenewWorkingCopy(file, copy, OtherCopyOf(file, copy));
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
    const fs::path copy = ArchiveCopyOf(file);
    auto open = OpenUpToDate(copy, file, for_reading, false);
    if (open && HasJoined(*open, OtherCopyOf(file, copy))) return std::move(*open);
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

bool HoldsBytesOf(Database& open, const fs::path& file) {
  if (open.File() == file) return true;
  const std::optional<SourceNote> note = ReadSourceNote(open);
  return note && note->TellsBytesOf(file);
}

std::string MarkOfCopy(Database& open, const fs::path& file) {
  if (open.File() == file) return {};
  const std::optional<SourceNote> note = ReadSourceNote(open);
  return note ? note->mark : "";
}

}  // namespace rbt
