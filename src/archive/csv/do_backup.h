// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace rbt {

/// Writes a CSV file (UTF-8) in code page 932, whole or not at all; one that stands there is replaced. What
/// the code page lacks becomes "?". Returns the characters that did, each once. Faults: `file`.
std::string Do_BackUP(const std::filesystem::path& file, std::string_view csv);

/// How they are told; empty when there are none.
std::string ReplacedCharactersNotice(std::string_view lacking);

}  // namespace rbt
