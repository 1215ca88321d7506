// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "jet/import/import_file.h"
#include "store/bulk_insert.h"
#include "store/database.h"

namespace rbt {

/// Notes where the rows of a working copy stand in the Jet file, while they are imported; see `JetPlaceOf`.
/// Must not outlive the database.
class OriginsWriter {
 public:
  explicit OriginsWriter(Database& working_copy);

  void Note(const jet::TakenRow& row);
  /// Makes what is noted quick to look up; nothing is noted behind it.
  void Finish();

 private:
  Database& working_copy_;
  BulkInsert tables_;
  BulkInsert rows_;
  std::string table_;
  std::int64_t number_ = 0;  ///< of that table
  std::vector<Value> values_;
};

}  // namespace rbt
