// SPDX-License-Identifier: MIT
#include "cli/saved_lists.h"

#include <fmt/format.h>

#include "archive/store/site_file.h"
#include "cli/command.h"
#include "platform/fault.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"
#include "tally/kinds/tally_kinds.h"

namespace rbt {

std::vector<std::string> SavedWords() {
  std::vector<std::string> words;
  for (const TallyKindRow& row : TallyKinds()) {
    if (row.count != nullptr && row.kind <= TallyKind::part) words.emplace_back(row.word);
  }
  return words;
}

bool Has13m() { return Settings.Use13mColumn == 1; }

std::vector<SavedTally> ListOfKind(TallyKind kind) {
  const SiteFile site(ArchiveUse::reads);
  return SavedTallies(*site, kind, Has13m());
}

std::vector<SavedTally> ListOfWord(const std::string& word) {
  const TallyKindRow* row = FindTallyKind(word);
  if (row == nullptr) throw UsageError("unknown tally " + word);
  return ListOfKind(row->kind);
}

const SavedTally& RequireSaved(const std::vector<SavedTally>& list, const std::string& name) {
  const SavedTally* saved = FindSaved(list, name);
  if (saved == nullptr) throw Fault(FaultKind::database, fmt::format("no saved tally has the name {}", name));
  return *saved;
}

void RequireName(const std::optional<NameRefusal>& refusal) {
  if (refusal) throw Fault(FaultKind::database, refusal->text);
}

LoadedTally LoadNamed(const std::string& word, const std::string& name) {
  SiteContext.WorkDatabase->LetGo();  // what else there is to do keeps nobody waiting
  const std::vector<SavedTally> list = ListOfWord(word);
  const SavedTally& saved = RequireSaved(list, name);
  const SiteFile site(ArchiveUse::reads);
  LoadedTally loaded = LoadTally(*site, saved, Has13m());
  if (!loaded.has_rows) throw Fault(FaultKind::database, "データがありません");
  return loaded;
}

}  // namespace rbt
