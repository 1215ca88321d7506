// SPDX-License-Identifier: MIT
#include "showroom/menu_forms.h"

#include <cstdint>
#include <string_view>

#include "screens/menu/jsmenu.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"

namespace rbt {

namespace {

MenuState FullyEquipped(std::int32_t start_mode, std::string_view weight_tally) {
  RunStateData run_state = RunState;
  run_state.HasWeldCounter = run_state.HasJoinCounter = run_state.HasPlateCounter = true;
  SettingsData settings = Settings;
  settings.ShippingDate = 1;
  return MenuStateOf(TraitsOfStartMode(start_mode), run_state, settings, weight_tally);
}

FormState StateOf(std::string name, std::int32_t start_mode, std::string_view weight_tally) {
  return {std::move(name), [start_mode, weight_tally](QWidget& form) {
            static_cast<JSMENU&>(form).ShowState(FullyEquipped(start_mode, weight_tally));
          }};
}

std::unique_ptr<QWidget> MakeMenu() {
  auto menu = std::make_unique<JSMENU>(
      MenuParts{.load = [] { return LoadResult{.hand_over_to = {}, .shows_plate_sheet = true}; },
                .activate = [] { return FullyEquipped(-1, ""); },
                .write_accumulated = [] {},
                .end_program = [](int) {}},
      MenuScreens());
  menu->Open();
  return menu;
}

}  // namespace

std::vector<FormEntry> MenuForms() {
  return {{.name = "JSMENU",
           .make = MakeMenu,
           .first_focus = "cmdShuukei",
           .keys = JSMENU::Keys(),
           .states = {StateOf("full", -1, ""), StateOf("start-mode-0", 0, ""), StateOf("start-mode-1", 1, ""),
                      StateOf("start-mode-4", 4, ""), StateOf("restricted", -1, "j")}}};
}

}  // namespace rbt
