// SPDX-License-Identifier: MIT
// The user's own folders: settings, cache, desktop, documents.
#include <cstdlib>
#include <fstream>

#include "platform/system/paths.h"

namespace rbt {

namespace {

namespace fs = std::filesystem;

fs::path Environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? fs::path() : fs::path(value);
}

fs::path Home() {
  const fs::path home = Environment("HOME");
  return home.empty() ? fs::path("/") : home;
}

/// A relative `$XDG_CONFIG_HOME` is to be ignored.
fs::path ConfigFolder() {
  const fs::path configured = Environment("XDG_CONFIG_HOME");
  return configured.is_absolute() ? configured : Home() / ".config";
}

/// The value between the quotes of `XDG_DESKTOP_DIR="$HOME/..."`; empty when it is neither absolute nor below
/// the home folder.
fs::path UserDirectory(std::string_view quoted) {
  std::string text;
  for (std::size_t i = 0; i < quoted.size(); ++i) {
    if (quoted[i] == '\\' && i + 1 < quoted.size()) ++i;
    text += quoted[i];
  }
  constexpr std::string_view kHome = "$HOME/";
  if (text == "$HOME") return Home();
  if (text.starts_with(kHome)) return Home() / text.substr(kHome.size());
  return text.starts_with('/') ? fs::path(text) : fs::path();
}

fs::path ConfiguredUserDirectory(std::string_view name) {
  std::ifstream file(ConfigFolder() / "user-dirs.dirs");
  const std::string head = std::string(name) + "=\"";
  fs::path found;
  for (std::string line; std::getline(file, line);) {
    const std::size_t end = line.rfind('"');
    if (line.starts_with(head) && end >= head.size()) {
      found = UserDirectory(std::string_view(line).substr(head.size(), end - head.size()));
    }
  }
  return found;
}

/// The configured folder, else the usual one below the home folder.
std::optional<fs::path> UserFolder(std::string_view name, const char* usual) {
  std::error_code error;
  for (const fs::path& folder : {ConfiguredUserDirectory(name), Home() / usual}) {
    if (!folder.empty() && fs::is_directory(folder, error)) return folder;
  }
  return std::nullopt;
}

}  // namespace

std::optional<fs::path> DesktopFolder() { return UserFolder("XDG_DESKTOP_DIR", "Desktop"); }

std::optional<fs::path> DocumentsFolder() { return UserFolder("XDG_DOCUMENTS_DIR", "Documents"); }

fs::path OfferedFolder() { return DocumentsFolder().value_or(Home()); }

fs::path CacheFolder() {
  const fs::path configured = Environment("XDG_CACHE_HOME");
  return (configured.is_absolute() ? configured : Home() / ".cache") / "rbtally";
}

fs::path SettingsFile() {
  const fs::path configured = Environment("RBK_SETTINGS");
  return configured.empty() ? ConfigFolder() / "rbtally" / "settings.ini" : fs::absolute(configured);
}

}  // namespace rbt
