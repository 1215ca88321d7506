// SPDX-License-Identifier: MIT
#include "shell/preparation/classified_schedule.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "platform/system/message.h"
#include "shell/context/site_context.h"
#include "shell/preparation/classification_memory.h"
#include "shell/preparation/preparation.h"
#include "shell/preparation/statements.h"
#include "store/database.h"

namespace rbt {

namespace {

/// Asked while the schedule is held or locked for writing.
bool IsKnownAsClassified(const Database& schedule) {
  const auto state = schedule.State();
  return state && state == SiteContext.ClassifiedAt;
}

void NoteAsClassified(const Database& schedule) { SiteContext.ClassifiedAt = schedule.State(); }

bool MayBeWritten(const Database& schedule) { return !SiteContext.OnlyRead && schedule.MayBeWritten(); }

void TellOfCopy() {
  if (SiteContext.ToldOfCopy) return;
  SiteContext.ToldOfCopy = true;
  MsgBox(fmt::format("{} は読むだけにします。分類は写しの上で行い、元のファイルは書き換えません。",
                     SiteContext.SelectedDbName));
}

/// The copy is made of the state that is held.
void PutCopyInPlace(const std::vector<std::string>& statements) {
  auto copy = std::make_unique<Database>(Database::CopyOf(*SiteContext.WorkDatabase));
  copy->ExecuteTogether(statements);
  SiteContext.CopiedAt = SiteContext.WorkDatabase->State();
  SiteContext.WorkDatabase = std::move(copy);
  TellOfCopy();
}

/// Whether statements would change the schedule, which is held. All its rows are looked at unless it is
/// remembered of the file as it stands that they would not.
bool WouldChange(Database& schedule, const std::vector<std::string>& statements) {
  const ClassificationMemory memory(schedule, statements);
  if (memory.Holds()) return false;
  if (schedule.WouldChangeTogether(statements)) return true;
  memory.Note();
  return false;
}

/// Holds the schedule for the life of the object.
class Held {
 public:
  explicit Held(Database& schedule) : schedule_(schedule) { schedule.Hold(); }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;
  ~Held() { schedule_.LetGo(); }

 private:
  Database& schedule_;
};

/// A private copy stands as long as its original does.
bool IsCopyOfWhatStands() {
  if (!SiteContext.WorkDatabase->IsPrivateCopy()) return false;
  const auto state = Database::OpenReadOnly(SiteContext.WorkDatabase->File()).State();
  return state && state == SiteContext.CopiedAt;
}

}  // namespace

void ClassifyAtLoad(const StartModeTraits& start_mode) {
  Database& schedule = *SiteContext.WorkDatabase;
  // One that may only be read is classified when it is tallied.
  if (!MayBeWritten(schedule)) return;
  const Held held(schedule);
  // What the activation would write is written now: otherwise most rows of a fresh file are written twice,
  // and a slit bar of a threaded shape, which is classified to and fro, at each start.
  if (WouldChange(schedule, PreparationStatements(schedule, start_mode))) {
    Transaction transaction(schedule);
    // Another program may have given it other columns while the lock was waited for.
    schedule.ExecuteTogether(PreparationStatements(schedule, start_mode));
    transaction.CommitAndHold();
  }
  NoteAsClassified(schedule);
}

void RefreshAtActivation(const StartModeTraits& start_mode) {
  Database& schedule = *SiteContext.WorkDatabase;
  if (!MayBeWritten(schedule)) return;
  const Held held(schedule);
  if (IsKnownAsClassified(schedule)) return;
  if (!schedule.WouldChangeTogether(RefreshStatements(schedule, start_mode))) return;
  Transaction transaction(schedule);
  RefreshSchedule(schedule, start_mode);
  transaction.Commit();
}

void HoldClassifiedSchedule(const StartModeTraits& start_mode) {
  const bool stands = SiteStandsOpen();
  if (stands && IsCopyOfWhatStands()) return;
  if (!stands || SiteContext.WorkDatabase->IsPrivateCopy()) OpenWorkDatabase();
  Database& schedule = *SiteContext.WorkDatabase;
  schedule.Hold();
  if (IsKnownAsClassified(schedule)) return;
  const std::vector<std::string> all = PreparationStatements(schedule, start_mode);
  if (WouldChange(schedule, all)) {
    if (!MayBeWritten(schedule)) return PutCopyInPlace(all);
    Transaction transaction(schedule);
    // Another program may have given it other columns while the lock was waited for.
    schedule.ExecuteTogether(PreparationStatements(schedule, start_mode));
    transaction.CommitAndHold();
  }
  NoteAsClassified(schedule);
}

void HoldScheduleWithFloors(const StartModeTraits& start_mode) {
  HoldClassifiedSchedule(start_mode);
  Database& schedule = *SiteContext.WorkDatabase;
  const std::vector<std::string> fills = FillStatements();
  if (!WouldChange(schedule, fills)) return;
  if (schedule.IsPrivateCopy()) {
    FillFloorsAndParts(schedule);
    return;
  }
  if (!MayBeWritten(schedule)) return PutCopyInPlace(fills);
  WriteAndHoldClassified(schedule, start_mode, [&] { FillFloorsAndParts(schedule); });
}

void WriteAndHoldClassified(Database& schedule, const StartModeTraits& start_mode,
                            const std::function<void()>& write) {
  Transaction transaction(schedule);
  // The write let go of what was held: another start mode may have come in between.
  schedule.ExecuteTogether(PreparationStatements(schedule, start_mode));
  write();
  transaction.CommitAndHold();
  // What is known of a private copy is nothing of the site's file.
  if (!schedule.IsPrivateCopy()) NoteAsClassified(schedule);
}

void JoinDimensions() {
  Database& schedule = *SiteContext.WorkDatabase;
  if (!schedule.IsPrivateCopy() && IsKnownAsClassified(schedule)) return;
  schedule.Execute(kJoinDimensions);
}

ClassifiedSchedule::ClassifiedSchedule(const StartModeTraits& start_mode, FloorsAndParts lines) {
  if (lines == FloorsAndParts::filled) {
    HoldScheduleWithFloors(start_mode);
  } else {
    HoldClassifiedSchedule(start_mode);
  }
}

ClassifiedSchedule::Release::~Release() {
  if (SiteContext.WorkDatabase) SiteContext.WorkDatabase->LetGo();
}

}  // namespace rbt
