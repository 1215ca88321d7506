// SPDX-License-Identifier: MIT
#include "session/startup/menu_state.h"

#include <algorithm>
#include <array>

#include "session/startup/start_mode.h"

namespace rbt {

namespace {

/// Siblings that count pieces, by the flag that tells whether they are on disk.
enum class Counter { none, weld, join, plate };

struct MenuControl {
  std::string_view name;
  bool in_reduced_menu;   ///< shown in the start modes 1, 3 and 4
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

bool ShownByStartMode(const MenuControl& control, std::int32_t start_mode) {
  switch (start_mode) {
    case -1:
      return true;
    case 1:
    case 3:
    case 4:
      return control.in_reduced_menu;
    default:
      return false;
  }
}

/// The weld counter follows its flag in every start mode, also in one that shows nothing else; the others
/// keep out of the modes 1 and 3, and the plate counter does not come back in mode 4.
bool ShownByCounter(Counter counter, bool shown, std::int32_t start_mode, const RunStateData& run_state) {
  const bool own_menu = start_mode == 1 || start_mode == 3;
  switch (counter) {
    case Counter::weld:
      return run_state.HasWeldCounter;
    case Counter::join:
      return own_menu ? shown : run_state.HasJoinCounter;
    case Counter::plate:
      if (own_menu) return shown;
      return run_state.HasPlateCounter && (shown || start_mode != 4);
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

MenuState MenuStateOf(std::int32_t start_mode, const RunStateData& run_state, const SettingsData& settings,
                      std::string_view weight_tally) {
  const bool restricted = weight_tally == kRestricted;
  MenuState state;
  for (const MenuControl& control : kMenuControls) {
    bool shown = ShownByStartMode(control, start_mode);
    shown = ShownByCounter(control.counter, shown, start_mode, run_state);
    if (control.name == "cmdKaiBuiK" && settings.ShippingDate == 0) shown = false;
    if (restricted && control.hidden_by_caller) shown = false;
    if (shown) state.shown.push_back(control.name);
  }
  if (restricted) state.status_text = kRestrictedMenuStatusText;
  state.minimised = IsPassThrough(start_mode);
  if (state.minimised) state.pass_on_to = "\\rbk\\rbtally2.exe " + std::to_string(start_mode);
  return state;
}

}  // namespace rbt
