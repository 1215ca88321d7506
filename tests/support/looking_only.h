// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <stdexcept>
#include <unistd.h>
#include <vector>

namespace rbt::test {

/// Takes the right to write folders and all that lies in them, as long as it lives. The superuser may write
/// everything: under him the test goes on as another user meanwhile.
class LookingOnly {
 public:
  LookingOnly(std::initializer_list<std::filesystem::path> folders) : folders_(folders) {
    Permit(std::filesystem::perms{0555}, std::filesystem::perms{0444});
    constexpr uid_t kNobody = 65534;
    if (superuser_ && ::seteuid(kNobody) != 0) throw std::runtime_error("cannot act as another user");
  }
  LookingOnly(const LookingOnly&) = delete;
  LookingOnly& operator=(const LookingOnly&) = delete;
  ~LookingOnly() {
    if (superuser_ && ::seteuid(0) != 0) std::abort();
    Permit(std::filesystem::perms{0755}, std::filesystem::perms{0644});
  }

 private:
  void Permit(std::filesystem::perms of_folders, std::filesystem::perms of_files) const {
    for (const std::filesystem::path& top : folders_) {
      // The way down has to be open while it is walked.
      std::filesystem::permissions(top, std::filesystem::perms{0755});
      for (const auto& entry : std::filesystem::recursive_directory_iterator(top)) {
        std::filesystem::permissions(entry.path(), entry.is_directory() ? of_folders : of_files);
      }
      std::filesystem::permissions(top, of_folders);
    }
  }

  std::vector<std::filesystem::path> folders_;
  bool superuser_ = ::geteuid() == 0;
};

}  // namespace rbt::test
