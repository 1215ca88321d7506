// SPDX-License-Identifier: MIT
#include "platform/system/paths.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <optional>
#include <vector>

#include "platform/fault.h"
#include "platform/files/system_error.h"
#include "platform/system/services.h"

namespace rbt {

namespace {

namespace fs = std::filesystem;

/// Start-up directories must not shift a folder that was given relative to them.
fs::path Absolute(fs::path path) {
  if (path.empty()) return path;
  path = fs::absolute(path).lexically_normal();
  return path.has_filename() ? path : path.parent_path();
}

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool EqualComponents(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return Lower(x) == Lower(y); });
}

std::vector<std::string_view> Components(std::string_view path) {
  const bool drive =
      path.size() >= 2 && path[1] == ':' && std::isalpha(static_cast<unsigned char>(path[0])) != 0;
  if (drive) path.remove_prefix(2);
  std::vector<std::string_view> components;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find_first_of("\\/"), path.size());
    if (end > 0) components.push_back(path.substr(0, end));
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  if (!components.empty() && EqualComponents(components.front(), "rbk")) components.erase(components.begin());
  return components;
}

/// The components below the root, "." and ".." worked out.
std::vector<std::string_view> Normalised(std::string_view family_path) {
  std::vector<std::string_view> kept;
  for (const std::string_view component : Components(family_path)) {
    if (component == ".") continue;
    if (component != "..") {
      kept.push_back(component);
    } else if (!kept.empty()) {
      kept.pop_back();
    } else {
      throw Fault(FaultKind::file, std::string(family_path) + ": leaves the root folder");
    }
  }
  return kept;
}

/// The entry of a folder that a component names: its own spelling first, else the first in byte order that
/// differs in letter case alone, else as it was spelled.
fs::path Entry(const fs::path& folder, std::string_view component) {
  fs::path exact = folder / component;
  std::error_code error;
  if (fs::symlink_status(exact, error).type() != fs::file_type::not_found) return exact;
  std::optional<std::string> found;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    std::string name = entry->path().filename().string();
    if (EqualComponents(name, component) && (!found || name < *found)) found = std::move(name);
  }
  return found ? folder / *found : exact;
}

}  // namespace

fs::path Root() { return Absolute(Services.Root); }

fs::path RootOfEnvironment() {
  const char* root = std::getenv("RBK_ROOT");
  return root == nullptr ? fs::path() : fs::path(root);
}

fs::path MapPath(std::string_view family_path) {
  fs::path mapped = Root();
  if (mapped.empty()) {
    throw Fault(FaultKind::file, std::string(family_path) + ": no root folder is set (RBK_ROOT, --root)");
  }
  if (family_path.find('\0') != std::string_view::npos) {
    throw Fault(FaultKind::file, std::string(family_path.substr(0, family_path.find('\0'))) +
                                     ": a path cannot hold a NUL character");
  }
  for (const std::string_view component : Normalised(family_path)) mapped = Entry(mapped, component);
  return mapped;
}

bool FamilyFileExists(std::string_view family_path) {
  const fs::path file = MapPath(family_path);
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (status.type() == fs::file_type::none) throw FileFault(file, "cannot be found", error.value());
  return fs::is_regular_file(status);
}

std::optional<fs::path> OwnProgram(std::string_view name) {
  if (Services.ProgramFolder.empty()) return std::nullopt;
  fs::path program = Services.ProgramFolder / name;
  std::error_code not_there;
  if (!fs::is_regular_file(program, not_there)) return std::nullopt;
  return program;
}

void ChangeFamilyDirectory(std::string_view family_path) {
  fs::path directory = MapPath(family_path);
  std::error_code error;
  if (!fs::is_directory(directory, error)) {
    throw FileFault(directory, "cannot become the working directory", error ? error.value() : ENOENT);
  }
  Services.FamilyDirectory = std::move(directory);
}

const std::optional<fs::path>& FamilyDirectory() { return Services.FamilyDirectory; }

}  // namespace rbt
