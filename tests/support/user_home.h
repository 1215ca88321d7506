// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

#include "support/environment_variable.h"
#include "support/temporary_folder.h"

namespace rbt::test {

/// The home folder of a user of its own for the life of the object, with a desktop and a documents folder and
/// without a configuration: what is saved there never meets the real one.
class UserHome {
 public:
  UserHome() {
    for (const char* folder : {"Desktop", "Documents"}) std::filesystem::create_directories(folder_ / folder);
  }

  const std::filesystem::path& Path() const { return folder_.Path(); }
  std::filesystem::path operator/(const std::string& name) const { return folder_ / name; }

 private:
  TemporaryFolder folder_;
  EnvironmentVariable home_{"HOME", folder_.Path().string()};
  EnvironmentVariable configuration_{"XDG_CONFIG_HOME", (folder_ / "none").string()};
};

}  // namespace rbt::test
