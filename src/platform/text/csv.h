// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace rbt {

inline constexpr std::string_view kCsvRecordEnd = "\r\n";

/// A cell of a CSV record (RFC 4180): in double quotes, inner ones doubled, where it holds a comma, a quote
/// or a line break, else as it is.
std::string CsvCell(std::string_view text);

}  // namespace rbt
