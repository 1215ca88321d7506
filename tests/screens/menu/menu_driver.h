// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include <QPushButton>

#include "platform/profile/ini_file.h"
#include "platform/system/paths.h"
#include "screens/menu/jsmenu.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "support/desktop/key_press.h"
#include "support/root_folder.h"
#include "support/site_fixture.h"
#include "tally/selection.h"

namespace rbt::test {

/// A sibling's start as the menu made it.
struct MenuLaunch {
  Launch launch;
  std::optional<std::filesystem::path> directory;
  bool menu_visible = false;

  friend bool operator==(const MenuLaunch& a, const MenuLaunch& b) {
    return a.launch.command_line == b.launch.command_line && a.launch.style == b.launch.style &&
           a.launch.polling == b.launch.polling && a.directory == b.directory &&
           a.menu_visible == b.menu_visible;
  }
};

/// A menu over a root folder, its load and activation scripted, its messages, starts of programs and its end
/// kept instead of shown and made. All siblings are on disk and no setting hides a button.
class MenuDriver {
 public:
  MenuDriver(const RootFolder& root, std::int32_t start_mode, const std::string& weight_tally) : root_(root) {
    SiteFixture::ResetGlobalState();
    Selection.StartMode = TraitsOfStartMode(start_mode);
    RunState.HasWeldCounter = RunState.HasJoinCounter = RunState.HasPlateCounter = true;
    Settings.ShippingDate = 1;
    for (const char* program : {"rballsites.exe", "rbsitesum.exe", "rbtally2.exe", "rbshopTM/rbledger1.exe",
                                "KAKOU/rbweldcnt.exe", "KAKOU/rbplatecnt.exe", "KAKOU/rbjoincnt.exe",
                                "KAKOU/rbcutcnt.exe", "KAKOU/rbplateprt.exe", "KAKOU/rbstockfit.exe"}) {
      root.Put(program, "");
    }
    parts.load = [] { return LoadResult{}; };
    parts.activate = [this, start_mode, weight_tally] {
      ++activations;
      return MenuStateOf(TraitsOfStartMode(start_mode), RunState, Settings, weight_tally);
    };
    parts.write_accumulated = [this] { ++accumulations_written; };
    parts.end_program = [this](int status) { end_status = status; };
    Services.Messages = [this](auto text, auto title, MessageButtons buttons) {
      messages.push_back({std::string(text), std::string(title), buttons});
      return MessageAnswer::ok;
    };
    Services.Launch = [this](std::string_view command_line, WindowStyle style, bool polling) {
      const bool visible = menu != nullptr && menu->isVisible();
      launches.push_back({{std::string(command_line), style, polling}, FamilyDirectory(), visible});
      if (on_launch) on_launch();
    };
  }
  MenuDriver(const MenuDriver&) = delete;
  MenuDriver& operator=(const MenuDriver&) = delete;
  ~MenuDriver() {
    menu.reset();
    SiteFixture::ResetGlobalState();
  }

  JSMENU& Open() {
    menu = std::make_unique<JSMENU>(parts, screens);
    menu->Open();
    Settle();
    return *menu;
  }

  const RootFolder& Root() const { return root_; }
  QWidget& Control(const char* name) const { return *menu->findChild<QWidget*>(name); }
  void Click(const char* name) const { menu->findChild<QPushButton*>(name)->click(); }
  std::string HandOver(std::string_view key) const {
    return GetProfileText(MapPath(kNextPrgIni), "データ", key, "(none)");
  }
  /// Whether a control would be seen.
  bool Shows(const char* name) const { return Control(name).isVisibleTo(menu.get()); }

  MenuParts parts;
  std::span<const MenuScreen> screens;  ///< none of them can be used
  std::unique_ptr<JSMENU> menu;
  std::vector<ShownMessage> messages;
  std::vector<MenuLaunch> launches;
  std::function<void()> on_launch;
  int activations = 0;
  int accumulations_written = 0;
  std::optional<int> end_status;

 private:
  const RootFolder& root_;
  KeptServices services_;
};

struct OwnRoot {
  RootFolder own_root;
};

/// A menu over a root folder without a site.
class ScriptedMenu : private OwnRoot, public MenuDriver {
 public:
  explicit ScriptedMenu(std::int32_t start_mode = -1, const std::string& weight_tally = "")
      : MenuDriver(own_root, start_mode, weight_tally) {}
};

}  // namespace rbt::test
