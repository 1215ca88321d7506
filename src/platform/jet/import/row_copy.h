// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/jet/import/import_report.h"
#include "platform/jet/import/table_mapping.h"
#include "platform/store/database.h"

namespace rbt::jet {

/// Copies all rows of a table into the store's table of its mapping, which is there and empty: in the order
/// of the primary key, or as they lie when there is none. A row with a value that the store cannot hold is
/// refused and named. `warnings` gets why the rows were looked for otherwise than by the file's own maps, and
/// a row count that is off. Fewer rows than a cleanly closed file counts throw `Fault` of kind `file`.
ImportedTable CopyRows(JetFile& file, const TableMapping& mapping, Database& target,
                       std::vector<std::string>& warnings);

}  // namespace rbt::jet
