// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "platform/profile/ini_text.h"

namespace rbt {

/// Registry settings by application, section and key, the store that the programs of the family share for
/// each user. Elsewhere than on Windows they are one UTF-8 INI file, `$RBK_SETTINGS` or else
/// `$XDG_CONFIG_HOME/rbtally/settings.ini` (`~/.config` when that is not set), with sections
/// `[application\section]`. Look-ups ignore letter case; a new key keeps the spelling it was written with.
std::optional<std::string> RegistryText(std::string_view app, std::string_view section, std::string_view key);

/// All settings as they stood at one moment, for whoever reads several.
class RegistryReading {
 public:
  /// Reads the file. Throws `file` where it cannot be read, or is written in code page 932.
  RegistryReading();

  std::optional<std::string> Text(std::string_view app, std::string_view section, std::string_view key) const;

 private:
  std::optional<IniText> text_;
};

/// Stored at once; the file is replaced atomically and its folder made when missing. Texts with line breaks,
/// and blanks at the ends, come back as they were written (they are quoted and escaped). A file in code page
/// 932 throws `file` and stays.
void SetRegistryText(std::string_view app, std::string_view section, std::string_view key,
                     std::string_view value);

/// The settings file in force.
std::filesystem::path RegistryFile();

}  // namespace rbt
