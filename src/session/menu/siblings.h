// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "data/start_mode.h"
#include "platform/system/process.h"
#include "session/startup/sibling_programs.h"

namespace rbt {

/// How a sibling program is started from the menu.
struct Sibling {
  std::string_view directory;     ///< working directory, a family path; empty: it stays as it is
  std::string_view command_line;  ///< program, a family path, and its arguments
  WindowStyle style;
  bool polling;     ///< the menu stays painted while the sibling runs
  bool hides_menu;  ///< the menu is hidden while the sibling runs
};

inline constexpr Sibling kAllSites{"\\rbk", "\\rbk\\rballsites.exe", WindowStyle::normal, false, false};
inline constexpr Sibling kSiteSum{"\\rbk", "\\rbk\\rbsitesum.exe", WindowStyle::normal, false, false};
inline constexpr Sibling kLedger{"", "\\rbk\\rbshopTM\\rbledger1.exe 4", WindowStyle::normal, true, false};
inline constexpr Sibling kWeldCounter{"\\rbk\\kakou", kWeldCounterProgram, WindowStyle::maximised, false,
                                      true};
inline constexpr Sibling kPlateCounter{"\\rbk\\kakou", kPlateCounterProgram, WindowStyle::maximised, true,
                                       true};
inline constexpr Sibling kCouplerCounter{"\\rbk\\kakou", kJoinCounterProgram, WindowStyle::maximised, true,
                                         true};
inline constexpr Sibling kCutCounter{"\\rbk\\kakou", "\\rbk\\kakou\\rbcutcnt.exe", WindowStyle::maximised,
                                     true, true};
inline constexpr Sibling kPlateSheet{"\\rbk\\kakou", kPlateSheetProgram, WindowStyle::maximised, true, true};
inline constexpr Sibling kStockFit{"\\rbk\\", "\\rbk\\KAKOU\\rbstockfit.exe", WindowStyle::hidden, false,
                                   true};

/// The companion that works with registered names; what it is told depends on the start mode.
Sibling NameCompanion(const StartModeTraits& start_mode);

/// False, after a message that names the program, when it is not there. The companion of registered names is
/// this program under another name: where the root has none, the one beside this program stands in for it.
bool RequireSibling(std::string_view command_line);
/// Changes to the sibling's directory, starts it, or what stands in for it, and returns when it has ended.
void RunSibling(const Sibling& sibling);

}  // namespace rbt
