// SPDX-License-Identifier: MIT
#include "platform/files/new_name.h"

#include <atomic>
#include <string>
#include <unistd.h>

#include "platform/files/files.h"

namespace rbt {

namespace fs = std::filesystem;

fs::path NewNameIn(const fs::path& folder, std::string_view mark) {
  static std::atomic<unsigned> counter{0};
  for (;;) {
    fs::path name =
        folder / (std::string(mark) + std::to_string(::getpid()) + "-" + std::to_string(counter++));
    // A process that was killed may have had the same number.
    if (!IsTaken(name)) return name;
  }
}

}  // namespace rbt
