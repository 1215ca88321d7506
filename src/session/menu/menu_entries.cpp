// SPDX-License-Identifier: MIT
#include "session/menu/menu_entries.h"

#include <algorithm>
#include <array>
#include <string>

#include "platform/fault.h"

namespace rbt {

namespace {

constexpr std::array<MenuEntry, 18> kEntries{{
    {"cmdShuukei", OpensTally{TallyKind::bulk, "JS"}},
    {"cmdAllSites", RunsSibling{kAllSites}},
    {"cmdPGShuukei", OpensTally{TallyKind::page, "PGJS"}},
    {"cmdWeldCount", RunsSibling{kWeldCounter}},
    {"cmdKeijoShuukei", OpensTally{TallyKind::shape, "KEIJOJS"}},
    {"cmdPlateCount", RunsSibling{kPlateCounter}},
    {"cmdKeijoPGShuukeia", OpensTally{TallyKind::page_shape, "PKEIJOJS"}},
    {"cmdKaiShuukei", OpensTally{TallyKind::floor, "KAIJS"}},
    {"cmdBuiShuukei", OpensTally{TallyKind::part, "BUIJS"}},
    {"cmdKaiBuiK", RunsSibling{kLedger}},
    {"cmdSiteSum", RunsSibling{kSiteSum}},
    {"cmdTouroS", RunsNameCompanion{}},
    {"cmdCouplerCount", RunsSibling{kCouplerCounter}},
    {"cmdCutCount", RunsSibling{kCutCounter}},
    {"cmdMeiEfu", RunsStockFitter{}},
    {"cmdPlateSheet", RunsSibling{kPlateSheet}},
    {"Command1", OpensSettings{}},
    {"cmdExit", Leaves{}},
}};

}  // namespace

std::span<const MenuEntry> MenuEntries() { return kEntries; }

const MenuEntry& FindMenuEntry(std::string_view control) {
  const auto* entry = std::find_if(kEntries.begin(), kEntries.end(),
                                   [&](const MenuEntry& each) { return each.control == control; });
  if (entry == kEntries.end()) {
    throw Fault(FaultKind::subscript_out_of_range, "menu entry " + std::string(control));
  }
  return *entry;
}

}  // namespace rbt
