// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace rbt::bench {

/// A folder that goes with the program.
const std::filesystem::path& Folder();

}  // namespace rbt::bench
