// SPDX-License-Identifier: MIT
#include "bench_folder.h"

#include <cstdlib>
#include <stdexcept>
#include <string>
#include <system_error>

namespace rbt::bench {

namespace fs = std::filesystem;

namespace {

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (fs::temp_directory_path() / "rbtally-bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = pattern;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }

  const fs::path& Path() const { return path_; }

 private:
  fs::path path_;
};

}  // namespace

const fs::path& Folder() {
  static const TemporaryFolder folder;
  return folder.Path();
}

}  // namespace rbt::bench
