// SPDX-License-Identifier: MIT
#include "session/names/name_work.h"

#include <memory>
#include <utility>

#include "session/startup/startup.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"
#include "shell/preparation/preparation.h"
#include "store/database.h"
#include "tally/names/name_summary.h"
#include "tally/selection.h"

namespace rbt {

namespace {

Database OpenNames() {
  Database companion = OpenCompanionDatabase();
  return companion.MayBeWritten() ? std::move(companion) : Database::CopyOf(companion);
}

/// Both files as the work needs them.
void Summarize(Database& schedule, Database& names) {
  Transaction transaction(schedule);
  AddNameWorkColumns(schedule, names);
  // The lock let go of what was held: another start mode may have come in between.
  schedule.ExecuteTogether(PreparationStatements(schedule, Selection.StartMode));
  SumNamesInWorkTables(schedule, {Settings.Use13mColumn == 1, Settings.CapInstalledWeight == 1});
  transaction.CommitAndHold();
  WriteNameWeights(schedule, names);
}

}  // namespace

void LoadSiteForNames(const StartModeTraits& start_mode) {
  StartOptions options;
  options.start_mode = start_mode;
  options.command_line = true;
  LoadSite(options);
}

void OpenNameWork() {
  SiteContext.NameDatabase.reset();
  auto names = std::make_unique<Database>(OpenNames());
  Database& schedule = *SiteContext.WorkDatabase;
  if (schedule.MayBeWritten()) {
    Summarize(schedule, *names);
  } else {
    Database copy = Database::CopyOf(schedule);
    Summarize(copy, *names);
  }
  SiteContext.NameDatabase = std::move(names);
}

void OpenNameWorkWithoutWeights() {
  auto names = std::make_unique<Database>(OpenNames());
  ClearNames(*names);
  SiteContext.NameDatabase = std::move(names);
}

void CloseNameWork() {
  if (!SiteContext.NameDatabase) return;
  SiteContext.NameDatabase.reset();
  if (!SiteContext.WorkDatabase || !SiteContext.WorkDatabase->MayBeWritten()) return;
  Transaction transaction(*SiteContext.WorkDatabase);
  DropNameWorkTables(*SiteContext.WorkDatabase);
  transaction.Commit();
}

}  // namespace rbt
