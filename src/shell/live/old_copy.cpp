// SPDX-License-Identifier: MIT
#include "shell/live/old_copy.h"

#include "platform/fault.h"
#include "platform/pass_over_faults.h"

namespace rbt {

std::optional<SavedAndJoined> OldCopy::TakeFrom(const std::filesystem::path& copy) {
  const auto may_pass = [](const Fault& fault) { return fault.Kind() != FaultKind::locked; };
  std::optional<SavedAndJoined> saved;
  const auto fault = PassOverFaultsIf(may_pass, [&] {
    open_ = OpenIfCopy(copy, false);
    if (!open_) return;
    KeepFromWriting(open_->database);
    saved = ReadSavedAndJoined(open_->database);
  });
  if (!fault && saved) return saved;
  nobody_writes_.reset();
  open_.reset();
  return std::nullopt;
}

void OldCopy::KeepFromWriting(Database& database) {
  if (database.MayBeWritten()) {
    nobody_writes_.emplace(database);
  } else {
    database.Hold();
  }
}

}  // namespace rbt
