// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>

namespace rbt {

/// A name in a folder that nothing stands under and that this process has not given before: the mark, the
/// process and a number.
std::filesystem::path NewNameIn(const std::filesystem::path& folder, std::string_view mark);

}  // namespace rbt
