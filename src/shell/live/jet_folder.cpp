// SPDX-License-Identifier: MIT
#include "shell/live/jet_folder.h"

#include <system_error>

#include "jet/jet_file.h"
#include "platform/fault.h"
#include "platform/files/sha256.h"
#include "platform/pass_over_faults.h"
#include "platform/profile/registry.h"
#include "platform/system/paths.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kApp = "rbtally";
constexpr std::string_view kFolders = "Jet フォルダ";
constexpr std::string_view kFiles = "Jet ファイル";
constexpr std::string_view kReadInPlace = "1";
constexpr std::string_view kImport = "2";
constexpr std::string_view kTold = "1";

/// A path may hold characters that no key may.
std::string FolderKey(const fs::path& path) {
  constexpr std::size_t kEnoughDigits = 24;
  std::error_code error;
  const fs::path whole = fs::weakly_canonical(path, error);
  return Sha256Of((error ? path : whole).string()).substr(0, kEnoughDigits);
}

std::string Noted(std::string_view section, const fs::path& path) {
  return RegistryText(kApp, section, FolderKey(path)).value_or("");
}

void Note(std::string_view section, const fs::path& path, std::string_view text) {
  PassOverFaults(FaultKind::file, [&] { SetRegistryText(kApp, section, FolderKey(path), text); });
}

}  // namespace

std::vector<fs::path> JetFilesAmong(std::initializer_list<std::string> family_paths) {
  std::vector<fs::path> files;
  files.reserve(family_paths.size());
  for (const std::string& path : family_paths) {
    fs::path file = MapPath(path);
    if (jet::IsJetFile(file)) files.push_back(std::move(file));
  }
  return files;
}

std::optional<JetChoice> RememberedJetChoice(const fs::path& folder) {
  const std::string noted = Noted(kFolders, folder);
  if (noted == kReadInPlace) return JetChoice::read_in_place;
  if (noted == kImport) return JetChoice::import;
  return std::nullopt;
}

void RememberJetChoice(const fs::path& folder, JetChoice choice) {
  Note(kFolders, folder, choice == JetChoice::import ? kImport : kReadInPlace);
}

bool WasToldOfReading(const fs::path& jet_file) { return Noted(kFiles, jet_file) == kTold; }

void NoteToldOfReading(const fs::path& jet_file) { Note(kFiles, jet_file, kTold); }

}  // namespace rbt
