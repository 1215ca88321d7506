// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <filesystem>
#include <string_view>

namespace rbt {

/// Asks whether what stands under a name may be replaced. True without a word where nothing does.
bool MayReplaceFile(const std::filesystem::path& file, std::string_view title);

/// Tells that a file could not be written, and why.
void TellNotSaved(const std::filesystem::path& file, const std::exception& fault, std::string_view title);

}  // namespace rbt
