// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace rbt {

/// How a database file stands. Equal states are those of one file that nobody has changed in between.
struct FileState {
  std::uint32_t changes = 0;  ///< the number in the file that every change raises
  std::uint64_t device = 0;   ///< the system's number of where the file lies
  std::uint64_t file = 0;     ///< and of the file itself, which the name leads to
  std::int64_t size = 0;      ///< bytes
  std::int64_t written = 0;   ///< nanoseconds since 1970
  std::int64_t touched = 0;   ///< the same of the last change of the file or of what the system knows of it,
                              ///< which no program sets back

  bool operator==(const FileState&) const = default;
};

}  // namespace rbt
