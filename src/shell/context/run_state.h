// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

#include "shell/live/live_database.h"

namespace rbt {

/// What is held for the run beside the selection: presence flags, the accumulation, the report body, date and
/// time of the load, the actions that run and what holds them up.
struct RunStateData {
  bool HasAnchorPlateRows = false;  ///< the site, or the last tally's rows, hold an anchor-plate shape
  bool HasHoopRows = false;         ///< ... hold shape 87
  bool HasWeldCounter = false;      ///< \rbk\KAKOU\rbweldcnt.exe exists
  bool HasJoinCounter = false;      ///< \rbk\KAKOU\rbjoincnt.exe exists
  bool HasPlateCounter = false;     ///< \rbk\KAKOU\rbplatecnt.exe exists
  std::int32_t AccumulateFlag = 0;  ///< 1 while tallies of several sites are being added up
  std::int32_t ReportBody = 1;      ///< 1 totals with Ulbon, 0 deformed only
  std::string RunDate;              ///< "yyyymmdd" at load
  std::string RunTime;              ///< "hhnnss" at load
  std::int32_t RunningActions = 0;  ///< of forms, also while they wait in a message box or for a sibling
  bool IsEnding = false;            ///< a screen has ended the program: the menu comes back no more
  bool FaultEndsProgram = false;    ///< load or activation runs: its fault ends the program
  bool HasWaited = false;           ///< the running action has waited for a file that another program held
  bool GaveUpWaiting = false;       ///< ... and the user has given that up: what becomes of it is known
  std::chrono::steady_clock::time_point WorkBegan;  ///< since when the action works without asking the user
  bool WorkStopped = false;  ///< the user has stopped the action: what it still does to end, it does
  /// What was chosen in this run for the real Jet files of a folder.
  std::map<std::filesystem::path, JetChoice> JetChoices;
};

extern RunStateData RunState;

}  // namespace rbt
