// SPDX-License-Identifier: MIT
#include "session/settings/colours_presenter.h"

#include <string>

#include "platform/system/colour_choice.h"
#include "shell/config/settings.h"

namespace rbt {

namespace {

void Choose(std::int32_t& colour) {
  if (const auto chosen = ChooseColour("色選択", colour)) colour = *chosen;
}

/// One that cannot be read was told of at the load.
std::int32_t ColourNow(const IniKey& key) {
  UnreadableSettings told_at_load;
  return ReadSteelIniColour(key, told_at_load);
}

}  // namespace

ColoursPresenter::ColoursPresenter()
    : back_(ColourNow(kGridRowBackColorKey)), fore_(ColourNow(kGridRowForeColorKey)) {}

void ColoursPresenter::ChooseBack() { Choose(back_); }
void ColoursPresenter::ChooseFore() { Choose(fore_); }

void ColoursPresenter::Save() const {
  WriteSteelIni(kGridRowBackColorKey, std::to_string(back_));
  WriteSteelIni(kGridRowForeColorKey, std::to_string(fore_));
}

}  // namespace rbt
