// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "data/start_mode.h"
#include "session/startup/menu_state.h"
#include "session/startup/start_mode.h"
#include "shell/live/live_database.h"

namespace rbt {

/// What the command line of a program decides about the start.
struct StartOptions {
  StartModeTraits start_mode = TraitsOfStartMode(kNoStartMode);
  /// False: nothing of the site is written. What a tally needs of its classification is worked out on a
  /// private copy.
  bool prepare = true;
  /// Schedule file in place of 選択ＤＢ名: its name in DATA, or a family path, `\RBK\...`; empty: as
  /// STEEL.INI says.
  std::string site;
  /// No menu follows: no sibling is asked for, hozon.MDB and the stored flag of the accumulation stay.
  bool command_line = false;
  /// What becomes of the real Jet files among the site's databases.
  JetChoice jet = JetChoice::read_in_place;
  /// A menu waits for this start: hozon.MDB and the stored flag of its accumulation stay.
  bool keep_accumulation = false;
};

/// What the load leaves to the form.
struct LoadResult {
  /// Program that reads this site's newer format: to be run to its end with the menu hidden, after which this
  /// program ends. The load stops there.
  std::optional<std::string> hand_over_to;
  bool shows_plate_sheet = false;  ///< `cmdPlateSheet` shows, until the first activation decides
};

/// Binds the program to the site and readies it: once, before the menu is shown. Settings, site, grades,
/// presence flags and the date and time of the load are in the global state afterwards, the master database
/// is open for the run, the site database closed; on the command line it stays open. Throws on whatever keeps
/// the site from being worked on: a missing STEEL.INI or site database is named.
LoadResult LoadSite(const StartOptions& options);

/// Binds the site that is selected now and leaves its database open. Another site than the bound one is
/// readied whole, as the load does: archive tables, classification, names, grades, presence flags. False for
/// one that a newer program reads.
bool FollowSelectedSite(const StartOptions& options);

/// The same, where nothing can be handed over: a site that a newer program reads is a `file` fault.
void FollowReadableSite(const StartOptions& options);

/// Every time the menu gets the focus: re-reads what may have changed, follows the selected site, refreshes
/// the schedule, resets the selection and leaves the site database open; on the command line also held,
/// classified for the start mode, so that all reads see one state of it (see `HoldClassifiedSchedule`).
/// Returns how the menu stands.
MenuState ActivateMenu(const StartOptions& options);

}  // namespace rbt
