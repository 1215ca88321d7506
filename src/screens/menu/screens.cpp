// SPDX-License-Identifier: MIT
#include "screens/menu/screens.h"

#include <vector>

#include <QWidget>

#include "screens/floorpart/floorpart_forms.h"
#include "screens/result/result_forms.h"
#include "screens/settings/settings_forms.h"
#include "session/result/result_screen.h"

namespace rbt {

namespace {

std::vector<MenuScreen> ReadyScreens() {
  std::vector<MenuScreen> screens{{"KAIJS", MakeKAIJS}, {"BUIJS", MakeBUIJS}, {"SETJS", MakeSETJS}};
  for (const ResultScreen* const screen : ResultScreens()) {
    screens.push_back({screen->name, [screen] { return MakeResultForm(*screen); }});
  }
  return screens;
}

}  // namespace

std::span<const MenuScreen> MenuScreens() {
  static const std::vector<MenuScreen> screens = ReadyScreens();
  return screens;
}

}  // namespace rbt
