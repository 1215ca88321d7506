// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

#include "jet/table.h"

namespace rbt::jet {

/// Takes the pieces of a text one after the other.
using TextSink = std::function<void(std::string_view)>;

/// The user tables as CSV (RFC 4180, UTF-8): name, rows, columns.
void DumpTables(JetFile& file, const TextSink& sink);

/// The rows of a table as CSV with a header line, in page order. Null is nothing and the empty text `""`;
/// booleans are -1 and 0, dates `2026-11-21` or `2026-11-21 09:00:00`, bytes hexadecimal digits behind 0x, as
/// is a text that is none in the file's encoding. Returns the warning of the scan, see `ScanReport`.
std::string DumpRows(JetFile& file, std::string_view table, const TextSink& sink);

}  // namespace rbt::jet
