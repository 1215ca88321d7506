// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <vector>

#include "jet/table_definition.h"
#include "platform/numbers/value.h"

namespace rbt::jet {

/// The fields of a row, parallel to `table.columns`. Currency and doubles come bit for bit; booleans are 0 or
/// -1, dates the day number as a double, numerics their decimal text, GUIDs their text in braces, OLE and
/// binary bytes. A text or memo that is no text in the file's encoding comes as its bytes. A column that the
/// row is too old to have is null. Damage throws `Fault` of kind `file`.
std::vector<Value> DecodeRow(JetFile& file, const TableDefinition& table, const PageView& row);

}  // namespace rbt::jet
