// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

#include "store/database.h"

namespace rbt {

/// A working copy beside what stands for its file.
struct SecondCopy {
  std::filesystem::path copy;
  bool is_readable = false;  ///< as a working copy
  std::size_t lacking = 0;   ///< saved tallies that what stands for the file neither has nor had
};
/// The working copies of a file other than `stands`, which may be null: nothing stands for it yet. Changes
/// nothing.
std::vector<SecondCopy> SecondCopies(const std::filesystem::path& file, Database* stands);
/// The same; what stands for the file is itself, or the working copy that a session would take for a Jet
/// file. Where that cannot be read nothing does.
std::vector<SecondCopy> SecondCopies(const std::filesystem::path& file);

}  // namespace rbt
