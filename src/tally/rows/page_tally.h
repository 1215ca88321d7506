// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "tally/rows/row_fold.h"
#include "tally/schedule_positions.h"
#include "tally/selection.h"

namespace rbt {

/// How the page and line tally and the tally of registered names take a row in.
RowRules PageRowRules(const SelectionData& selection);

/// The rows of a range of lines of the selected forms and kinds, for the presence probes.
std::string PageStatementSoFar(const SelectionData& selection, LineRange lines);
/// The statement of the page and line tally. Both modes ask for their shapes only where the probes found
/// some.
std::string PageStatement(const SelectionData& selection, LineRange lines, bool has_hoop_rows,
                          bool has_anchor_plate_rows);

/// Tallies the lines between two positions, 頁 and 行, into `TallyGrid` as the schedule stores their stock,
/// and sets the presence flags. A position that does not exist counts as line number 0. A fault ends it and
/// leaves `TallyGrid` empty.
void PG_Jyuuryo_Syukei(std::int16_t startPage, std::int16_t startLine, std::int16_t endPage,
                       std::int16_t endLine);

}  // namespace rbt
