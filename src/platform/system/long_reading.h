// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>

namespace rbt {

/// Told once of a file whose reading takes longer than a user takes for granted, while it is still read.
using LongReadingHook = std::function<void(const std::filesystem::path& file)>;
/// That of the command line: one line on standard error.
void TellLongReadingOnStandardError(const std::filesystem::path& file);

/// Tells of such a file.
void TellOfLongReading(const std::filesystem::path& file);

}  // namespace rbt
