// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "store/database.h"
#include "tally/rows/row_fold.h"

namespace rbt {

/// Adds every row of a statement over 加工テーブル.
void FoldRows(TallyTable& table, Database& site, std::string_view statement, const RowRules& rules);

/// The setting 溶接フープの圧接数, read anew at the start of each tally.
bool ReadCountHoopWelds();

}  // namespace rbt
