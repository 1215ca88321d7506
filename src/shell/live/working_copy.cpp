// SPDX-License-Identifier: MIT
#include "shell/live/working_copy.h"

#include <system_error>
#include <utility>

#include "platform/fault.h"
#include "platform/files/file_sync.h"
#include "platform/files/files.h"
#include "platform/files/sha256.h"
#include "platform/pass_over_faults.h"
#include "platform/system/paths.h"
#include "platform/text/characters.h"
#include "shell/live/saved_here.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kEnding = ".work";

/// Another file of that name beside this one: not this one itself where letter case makes no other name.
bool IsAnotherBeside(const fs::path& file, const fs::path& name) {
  const fs::path other = FolderOf(file) / name;
  std::error_code error;
  return IsTaken(other) && !fs::equivalent(other, file, error);
}

/// A copy whose name differs in letter case alone was made when the file was spelled so, unless it is that of
/// another file. The first of several in byte order.
fs::path CopyIn(const fs::path& folder, const fs::path& file) {
  const std::string name = file.filename().string() + std::string(kEnding);
  fs::path exact = folder / name;
  if (IsTaken(exact)) return exact;
  std::optional<std::string> found;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    const fs::path there = entry->path().filename();
    if (!EqualIgnoringCase(there.string(), name) || IsAnotherBeside(file, there.stem())) continue;
    if (!found || there.string() < *found) found = there.string();
  }
  return found ? folder / *found : exact;
}

/// The whole path without links and with the name as it is compared, so that a site is one however it is
/// come to.
fs::path WholePath(const fs::path& file) {
  std::error_code error;
  fs::path whole = fs::weakly_canonical(file, error);
  if (error) whole = fs::absolute(file);
  return whole.replace_filename(FoldIdentifier(whole.filename().string()));
}

CopyState StateOf(const SourceNote& note, const fs::path& jet_file) {
  if (!note.IsOfThisVersion()) return CopyState::outdated;
  return note.StandsFor(jet_file) || note.TellsBytesOf(jet_file) ? CopyState::fresh : CopyState::stale;
}

bool IsNotHeld(const Fault& fault) { return fault.Kind() != FaultKind::locked; }

}  // namespace

fs::path WorkingCopyBeside(const fs::path& file) { return CopyIn(FolderOf(file), file); }

fs::path WorkingCopyInCache(const fs::path& file) {
  constexpr std::size_t kEnoughDigits = 24;
  const std::string digest = Sha256Of(WholePath(file).string());
  return CopyIn(CacheFolder() / ("live-" + digest.substr(0, kEnoughDigits)), file);
}

fs::path ArchiveCopyOf(const fs::path& file) {
  return TakesFiles(FolderOf(file)) ? WorkingCopyBeside(file) : WorkingCopyInCache(file);
}

std::optional<OpenedCopy> OpenIfCopy(const fs::path& copy, bool for_reading) {
  std::optional<OpenedCopy> opened;
  if (!IsTaken(copy)) return opened;
  PassOverFaultsIf(IsNotHeld, [&] {
    Database database = for_reading ? Database::OpenReadOnly(copy) : Database::Open(copy);
    std::optional<SourceNote> note = ReadSourceNote(database);
    if (note) opened = OpenedCopy{std::move(database), std::move(*note)};
  });
  return opened;
}

CopyLook LookAtWorkingCopy(const fs::path& jet_file) {
  CopyLook look;
  look.copy = ArchiveCopyOf(jet_file);
  if (!IsTaken(look.copy)) return look;
  look.state = CopyState::foreign;
  std::optional<OpenedCopy> opened = OpenIfCopy(look.copy, true);
  if (!opened) return look;
  PassOverFaultsIf(IsNotHeld, [&] {
    look.saved_tallies = CountSavedHere(opened->database);
    look.refused_rows = opened->note.refused;
    look.state = StateOf(opened->note, jet_file);
  });
  return look;
}

}  // namespace rbt
