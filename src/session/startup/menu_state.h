// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/start_mode.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"

namespace rbt {

/// The status line of the menu as it is designed.
inline constexpr std::string_view kMenuStatusText =
    "F1 ～ F12 ・ 0　キーで選択して下さい（マウスクリックでも可）　　　　ESC：終了";
/// ... and while the caller restricts the menu.
inline constexpr std::string_view kRestrictedMenuStatusText =
    "F1 ～ F10　キーで選択して下さい（マウスクリックでも可）　　　　ESC：終了";

/// How the menu stands after an activation. Buttons that are not among the main ones (`cmdExit`, `Command1`)
/// always show; those inside the frame `FramCSV` show with it.
struct MenuState {
  std::vector<std::string_view> shown;     ///< main buttons and the frame, by control name, in menu order
  std::optional<std::string> status_text;  ///< new text of `JSMENUMS`; nothing leaves it as it stands
  bool minimised = false;                  ///< the menu is minimised
  std::optional<std::string> pass_on_to;   ///< companion to run to its end, after which the program ends
  /// Program that reads the newer format of the site that is selected now: as in `LoadResult`.
  std::optional<std::string> hand_over_to = {};
  std::string site = {};  ///< number and name of the bound site

  bool Shows(std::string_view control) const;
};

/// The main buttons and the frame, by control name.
std::vector<std::string_view> MenuControls();

/// What a start mode shows, narrowed by the siblings on disk, by the setting `出荷日` and, when
/// `weight_tally` (NEXTPRG.INI データ 重量集計) is "j", by the caller.
MenuState MenuStateOf(const StartModeTraits& start_mode, const RunStateData& run_state,
                      const SettingsData& settings, std::string_view weight_tally);

}  // namespace rbt
