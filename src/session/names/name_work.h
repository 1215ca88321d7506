// SPDX-License-Identifier: MIT
#pragma once

#include "data/start_mode.h"

namespace rbt {

/// What the program does before its first form where it was started for registered names: the load of the
/// menu, but an accumulation of the menu that waits for it goes on, and no other program takes over.
void LoadSiteForNames(const StartModeTraits& start_mode);

/// Begins the work with registered names on the bound site: opens `SiteContext.NameDatabase`, adds the
/// columns that the work needs, takes all marks away and writes to each name the weights of its rows. The
/// schedule, open in `SiteContext`, is classified for the start mode of the selection and held afterwards,
/// see `Database::Hold`. Where a file may not be written a private copy takes what would be.
void OpenNameWork();

/// The same where the weights cannot be worked out: marks are taken away, weights are 0, the schedule is left
/// alone. Throws what the companion file throws.
void OpenNameWorkWithoutWeights();

/// Ends it: drops what the summary leaves behind in the schedule's file and closes the database of the names.
/// The marks stay until the next work begins. Nothing where none is under way.
void CloseNameWork();

}  // namespace rbt
