// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "data/start_mode.h"

namespace rbt {

/// Told where a tally of names finds none marked.
inline constexpr std::string_view kNoNameChosen = "登録名を選択して下さい";

/// What the program does before its first form where it was started for registered names: the load of the
/// menu, but an accumulation of the menu that waits for it goes on. False for a site that a newer program
/// reads: that has run to its end, and nothing is left to do.
bool LoadSiteForNames(const StartModeTraits& start_mode);

/// Begins the work with registered names on the bound site: opens `SiteContext.NameDatabase`, adds the
/// columns that the work needs, takes all marks away and writes to each name the weights of its rows. The
/// schedule, open in `SiteContext`, is classified for the start mode of the selection and held afterwards,
/// see `Database::Hold`. Where a file may not be written a private copy takes what would be. A fault leaves
/// no work under way and no work table in the schedule's file.
void OpenNameWork();

/// The same where the weights cannot be worked out: marks are taken away, weights are 0, the schedule is left
/// alone. Throws what the companion file throws.
void OpenNameWorkWithoutWeights();

/// Ends it: drops what the summary leaves behind in the schedule's file and closes the database of the names.
/// A schedule that has been closed meanwhile is opened for it, and stays open. The marks stay until the next
/// work begins. Nothing where none is under way.
void CloseNameWork();

/// The work with registered names for the life of the object. It ends with `Close`, which may throw, or,
/// where a fault comes before that, with the object.
class NameWork {
 public:
  NameWork() { OpenNameWork(); }
  NameWork(const NameWork&) = delete;
  NameWork& operator=(const NameWork&) = delete;
  ~NameWork();

  void Close() { CloseNameWork(); }
};

}  // namespace rbt
