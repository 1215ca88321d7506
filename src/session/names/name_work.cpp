// SPDX-License-Identifier: MIT
#include "session/names/name_work.h"

#include <exception>
#include <memory>
#include <utility>

#include "platform/failure_log.h"
#include "platform/pass_over_faults.h"
#include "platform/system/process.h"
#include "platform/system/work.h"
#include "session/startup/startup.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"
#include "shell/preparation/classified_schedule.h"
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

void DropWhatTheSummaryLeaves(Database& schedule) {
  const MustFinish finish;  // nobody comes back to what it would leave behind
  Transaction transaction(schedule);
  DropNameWorkTables(schedule);
  transaction.Commit();
}

/// Both files as the work needs them.
void Summarize(Database& schedule, Database& names) {
  WriteAndHoldClassified(schedule, Selection.StartMode, [&] {
    AddNameWorkColumns(schedule, names);
    SumNamesInWorkTables(schedule, {Settings.Use13mColumn == 1, Settings.CapInstalledWeight == 1});
  });
  try {
    WriteNameWeights(schedule, names);
  } catch (const Fault&) {
    // Should they not go either, it is the first fault that is told.
    if (const auto second = PassOverFaults([&] { DropWhatTheSummaryLeaves(schedule); })) {
      LogFailure(second->what());
    }
    throw;
  }
}

}  // namespace

bool LoadSiteForNames(const StartModeTraits& start_mode) {
  StartOptions options;
  options.start_mode = start_mode;
  options.keep_accumulation = true;
  const LoadResult loaded = LoadSite(options);
  if (!loaded.hand_over_to) return true;
  RunAndWait(*loaded.hand_over_to, WindowStyle::normal);
  return false;
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
  if (!SiteContext.WorkDatabase) OpenWorkDatabase();
  if (SiteContext.WorkDatabase->MayBeWritten()) DropWhatTheSummaryLeaves(*SiteContext.WorkDatabase);
}

NameWork::~NameWork() {
  try {
    CloseNameWork();
  } catch (const std::exception& failure) {
    LogFailure(failure.what());
  }
}

}  // namespace rbt
