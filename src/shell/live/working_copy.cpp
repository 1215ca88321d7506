// SPDX-License-Identifier: MIT
#include "shell/live/working_copy.h"

#include <system_error>

#include <fmt/format.h>

#include "platform/fault.h"
#include "platform/files/file_sync.h"
#include "platform/files/files.h"
#include "platform/files/sha256.h"
#include "platform/pass_over_faults.h"
#include "platform/system/paths.h"
#include "shell/live/saved_here.h"
#include "shell/live/source_note.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

fs::path CopyName(const fs::path& file) {
  fs::path name = file.filename();
  name += ".work";
  return name;
}

/// The whole path without links, so that a site is one however it is come to.
fs::path WholePath(const fs::path& file) {
  std::error_code error;
  fs::path whole = fs::weakly_canonical(file, error);
  return error ? fs::absolute(file) : whole;
}

CopyState StateOf(const std::optional<SourceNote>& note, const fs::path& jet_file) {
  if (!note) return CopyState::foreign;
  return note->Tells(StampOf(jet_file)) || note->TellsBytesOf(jet_file) ? CopyState::fresh : CopyState::stale;
}

}  // namespace

fs::path WorkingCopyBeside(const fs::path& file) { return FolderOf(file) / CopyName(file); }

fs::path WorkingCopyInCache(const fs::path& file) {
  constexpr std::size_t kEnoughDigits = 24;
  const std::string digest = Sha256Of(WholePath(file).string());
  return CacheFolder() / ("live-" + digest.substr(0, kEnoughDigits)) / CopyName(file);
}

fs::path ArchiveCopyOf(const fs::path& file) {
  return TakesFiles(FolderOf(file)) ? WorkingCopyBeside(file) : WorkingCopyInCache(file);
}

std::optional<Database> OpenIfCopy(const fs::path& copy, bool for_reading) {
  std::optional<Database> open;
  if (!IsTaken(copy)) return open;
  const auto is_not_held = [](const Fault& fault) { return fault.Kind() != FaultKind::locked; };
  const auto fault = PassOverFaultsIf(is_not_held, [&] {
    open = for_reading ? Database::OpenReadOnly(copy) : Database::Open(copy);
    if (!ReadSourceNote(*open)) open.reset();
  });
  if (fault) open.reset();
  return open;
}

CopyLook LookAtWorkingCopy(const fs::path& jet_file) {
  CopyLook look;
  look.copy = ArchiveCopyOf(jet_file);
  if (!IsTaken(look.copy)) return look;
  look.state = CopyState::foreign;
  std::optional<Database> open = OpenIfCopy(look.copy, true);
  if (!open) return look;
  const auto is_not_held = [](const Fault& fault) { return fault.Kind() != FaultKind::locked; };
  PassOverFaultsIf(is_not_held, [&] {
    const std::optional<SourceNote> note = ReadSourceNote(*open);
    look.saved_tallies = CountSavedHere(*open);
    look.refused_rows = note ? note->refused : 0;
    look.state = StateOf(note, jet_file);
  });
  return look;
}

}  // namespace rbt
