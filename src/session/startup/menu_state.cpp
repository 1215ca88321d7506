// SPDX-License-Identifier: MIT
#include "session/startup/menu_state.h"

#include <algorithm>
#include <array>

namespace rbt {

namespace {

/// Siblings that count pieces, by the flag that tells whether they are on disk.
enum class Counter { none, weld, join, plate };

struct MenuControl {
  std::string_view name;
  bool in_reduced_menu;
  bool hidden_by_caller;  ///< hidden when the caller restricts the menu
  Counter counter = Counter::none;
};

constexpr std::array<MenuControl, 15> kMenuControls{{
    {"cmdShuukei", true, false},
    {"cmdPGShuukei", true, false},
    {"cmdKeijoShuukei", true, true},
    {"cmdKeijoPGShuukeia", true, true},
    {"cmdTouroS", true, true},
    {"cmdKaiShuukei", false, false},
    {"cmdBuiShuukei", false, false},
    {"cmdKaiBuiK", false, false},
    {"cmdWeldCount", false, false, Counter::weld},
    {"cmdPlateCount", false, true, Counter::plate},
    {"cmdCouplerCount", false, true, Counter::join},
    {"cmdCutCount", false, true},
    {"cmdMeiEfu", false, true},
    {"cmdPlateSheet", false, true},
    {"FramCSV", false, true},
}};

constexpr std::string_view kRestricted = "j";

bool ShownByStartMode(const MenuControl& control, MenuExtent menu) {
  return menu == MenuExtent::full || (menu == MenuExtent::reduced && control.in_reduced_menu);
}

/// The counters follow what is on disk, also in a start mode that shows nothing else.
bool ShownByCounter(Counter counter, bool shown, const StartModeTraits& start_mode,
                    const RunStateData& run_state) {
  switch (counter) {
    case Counter::weld:
      return run_state.HasWeldCounter;
    case Counter::join:
      return start_mode.offers_coupler_counter && run_state.HasJoinCounter;
    case Counter::plate:
      return start_mode.offers_plate_counter && run_state.HasPlateCounter;
    case Counter::none:
      break;
  }
  return shown;
}

}  // namespace

bool MenuState::Shows(std::string_view control) const {
  return std::find(shown.begin(), shown.end(), control) != shown.end();
}

std::vector<std::string_view> MenuControls() {
  std::vector<std::string_view> names;
  names.reserve(kMenuControls.size());
  for (const MenuControl& control : kMenuControls) names.push_back(control.name);
  return names;
}

MenuState MenuStateOf(const StartModeTraits& start_mode, const RunStateData& run_state,
                      const SettingsData& settings, std::string_view weight_tally) {
  const bool restricted = weight_tally == kRestricted;
  MenuState state;
  for (const MenuControl& control : kMenuControls) {
    bool shown = ShownByStartMode(control, start_mode.menu);
    shown = ShownByCounter(control.counter, shown, start_mode, run_state);
    if (control.name == "cmdKaiBuiK" && settings.ShippingDate == 0) shown = false;
    if (restricted && control.hidden_by_caller) shown = false;
    if (shown) state.shown.push_back(control.name);
  }
  if (restricted) state.status_text = kRestrictedMenuStatusText;
  state.minimised = start_mode.PassesOn();
  if (start_mode.PassesOn()) state.pass_on_to = start_mode.pass_on_to;
  return state;
}

}  // namespace rbt
