// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace rbt::test {

/// A table as the packaged C tools print it: texts, numbers in decimal, null as nothing.
struct PrintedTable {
  std::vector<std::string> columns;
  std::vector<std::vector<std::optional<std::string>>> rows;
};

/// `jet3_charset` is the encoding of a Jet 3 file's texts. A tool that is missing or fails throws
/// `std::runtime_error` with its message.
std::vector<std::string> TablesByCTools(const std::filesystem::path& file, const std::string& jet3_charset);
PrintedTable TableByCTools(const std::filesystem::path& file, const std::string& table,
                           const std::string& jet3_charset);

/// All user tables by the npm reader, as dump.mjs tells. It takes the texts of Jet 3 files as code page 1252,
/// see `IsLatinReadingOf`. Installs the reader first where that has not been done.
nlohmann::json TablesByNpmReader(const std::filesystem::path& file);
/// True when `latin` is what the npm reader makes of the bytes of a text in code page 932. Bytes without a
/// character in code page 1252 are lost to it (U+FFFD): any of the five may have stood there.
bool IsLatinReadingOf(const std::string& text, const std::string& latin);

}  // namespace rbt::test
