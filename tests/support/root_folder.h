// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <string>

#include "support/environment_variable.h"
#include "support/kept_services.h"
#include "support/temporary_folder.h"

namespace rbt::test {

/// A fresh root folder with a DATA folder, in force for the life of the object, with settings of its own
/// and a cache outside the root. Its end brings all services back.
class RootFolder {
 public:
  RootFolder()
      : settings_("RBK_SETTINGS", (settings_folder_ / "settings.ini").string()),
        cache_("XDG_CACHE_HOME", (settings_folder_ / "cache").string()) {
    std::filesystem::create_directories(folder_ / "DATA");
    Services.Root = folder_.Path();
    Services.FamilyDirectory.reset();
  }

  const std::filesystem::path& Path() const { return folder_.Path(); }
  std::filesystem::path operator/(const std::string& name) const { return folder_ / name; }
  std::filesystem::path Data(const std::string& name) const { return folder_ / "DATA" / name; }
  std::filesystem::path SettingsFile() const { return settings_folder_ / "settings.ini"; }

  /// Puts a file below the root, its folders made.
  std::filesystem::path Put(const std::string& name, const std::string& bytes) const {
    std::filesystem::path file = folder_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
    return file;
  }

 private:
  TemporaryFolder folder_;
  TemporaryFolder settings_folder_;
  EnvironmentVariable settings_;
  EnvironmentVariable cache_;
  KeptServices services_;
};

}  // namespace rbt::test
