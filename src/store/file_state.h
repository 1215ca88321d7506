// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace rbt {

/// How a database file stands. Equal states are those of one file that nobody has changed in between.
struct FileState {
  std::uint32_t changes = 0;  ///< the number in the file that every change raises
  std::uint64_t file = 0;     ///< the system's number of the file that the name leads to
  std::int64_t written = 0;   ///< nanoseconds

  bool operator==(const FileState&) const = default;
};

}  // namespace rbt
