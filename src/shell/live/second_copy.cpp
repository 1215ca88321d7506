// SPDX-License-Identifier: MIT
#include "shell/live/second_copy.h"

#include <optional>
#include <utility>

#include "jet/jet_file.h"
#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/pass_over_faults.h"
#include "shell/live/joined_saved.h"
#include "shell/live/working_copy.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

bool AnyFault(const Fault& /*fault*/) { return true; }

std::optional<SavedAndJoined> SavedInSecond(const fs::path& copy) {
  std::optional<SavedAndJoined> saved;
  const auto fault = PassOverFaultsIf(AnyFault, [&] {
    auto opened = OpenIfCopy(copy, true);
    if (opened) saved = ReadSavedAndJoined(opened->database);
  });
  return fault ? std::nullopt : std::move(saved);
}

/// All but `main`.
std::vector<SecondCopy> CopiesBut(const fs::path& main, const fs::path& file, Database* stands) {
  std::optional<SavedAndJoined> there;
  std::vector<SecondCopy> copies;
  for (const fs::path& copy : {WorkingCopyBeside(file), WorkingCopyInCache(file)}) {
    if (copy == main || !IsTaken(copy)) continue;
    if (!there) there = stands == nullptr ? SavedAndJoined{} : ReadSavedAndJoined(*stands);
    const std::optional<SavedAndJoined> saved = SavedInSecond(copy);
    const std::size_t lacking = saved ? LackingTallies(*there, *saved).size() : 0;
    copies.push_back({.copy = copy, .is_readable = saved.has_value(), .lacking = lacking});
  }
  return copies;
}

}  // namespace

std::vector<SecondCopy> SecondCopies(const fs::path& file, Database* stands) {
  return CopiesBut(stands == nullptr ? fs::path() : stands->File(), file, stands);
}

std::vector<SecondCopy> SecondCopies(const fs::path& file) {
  if (jet::IsJetFile(file)) {
    const fs::path main = ArchiveCopyOf(file);
    std::optional<OpenedCopy> opened = OpenIfCopy(main, true);
    return CopiesBut(main, file, opened ? &opened->database : nullptr);
  }
  std::optional<Database> store;
  PassOverFaultsIf(AnyFault, [&] { store = Database::OpenReadOnly(file); });
  return CopiesBut(file, file, store ? &*store : nullptr);
}

}  // namespace rbt
