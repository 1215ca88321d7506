// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "platform/fault.h"
#include "shell/config/setting_keys.h"

namespace rbt {

/// An option of the settings and what choosing it saves.
struct SettingOption {
  std::string_view control;
  const NumberKey& key;
  std::int32_t value;
};
std::span<const SettingOption> SettingOptions();
/// Faults: `subscript out of range` for a control that is no option.
const SettingOption& FindSettingOption(std::string_view control);

/// True for a fault of a stored setting that the settings form shows and can mend.
bool IsOfShownSetting(const Fault& fault);

/// What the settings tell of a control.
struct SettingHint {
  std::string_view control;
  std::string_view hint;
};
std::span<const SettingHint> SettingHints();

}  // namespace rbt
