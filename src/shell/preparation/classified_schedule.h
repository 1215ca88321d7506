// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "data/start_mode.h"
#include "store/database.h"

namespace rbt {

/// Classifies the bound site, load and activation together, see `PreparationStatements`: each row that
/// changes is written once.
void ClassifyAtLoad(const StartModeTraits& start_mode);
/// The activation's part, see `RefreshSchedule`; nothing for a file that nobody has changed since it was
/// classified.
void RefreshAtActivation(const StartModeTraits& start_mode);

/// Sees to it that the bound site's schedule, which is open in `SiteContext`, is classified for a start mode,
/// load and activation together, and holds it so: what is read from then on is one state of the file, and no
/// other program's start mode comes in between. Nothing is done for a file that nobody has changed since it
/// was classified. Where the site may only be read and another classification stands in it, a private copy
/// takes its place in `SiteContext`, and the user is told, once for each site. Let go, or the first write,
/// ends the hold.
void HoldClassifiedSchedule(const StartModeTraits& start_mode);

/// The same with a floor and a part for every line, see `FillFloorsAndParts`: for the floor and part tallies.
void HoldScheduleWithFloors(const StartModeTraits& start_mode);

/// Runs what writes a schedule as one, on rows that are classified for a start mode, and holds the schedule
/// so afterwards. What was held before is let go by the lock for writing: should another program have brought
/// its classes in meanwhile, these are put back first.
void WriteAndHoldClassified(Database& schedule, const StartModeTraits& start_mode,
                            const std::function<void()>& write);

/// Brings the dimension text of the schedule, which must be held where others may change it, up to date;
/// nothing where it is known to be classified, which has it in it.
void JoinDimensions();

/// What a hold sees to beside the classes.
enum class FloorsAndParts { as_they_are, filled };

/// `HoldClassifiedSchedule`, or `HoldScheduleWithFloors`, for the life of the object: one tally of a window.
/// The database of the site may be another object from then on.
class ClassifiedSchedule {
 public:
  explicit ClassifiedSchedule(const StartModeTraits& start_mode,
                              FloorsAndParts lines = FloorsAndParts::as_they_are);

 private:
  /// Lets go, also where the hold has come to a fault.
  struct Release {
    Release() = default;
    Release(const Release&) = delete;
    Release& operator=(const Release&) = delete;
    ~Release();
  };
  Release release_;
};

}  // namespace rbt
