// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "store/database.h"
#include "tally/groups/group_fold.h"

namespace rbt {

/// Adds every group of an Ulbon statement.
void FoldUlbonGroups(TallyTable& table, Database& site, std::string_view statement, bool count_hoop_welds);

/// Adds every group of a main statement, which has no closing clause yet.
void FoldGroups(TallyTable& table, Database& site, std::string_view main_statement, const GroupRules& rules);

/// Adds the cuts of 部位 5 and 2 of a cut statement, which has no closing clause yet. A cut of 部位 5 counts
/// at the thicker of the bar and the one that it is welded to, a cut of 部位 2 at the one that it is welded
/// to however thin. Faults: `subscript out of range` for cuts at no deformed diameter.
void FoldCuts(TallyTable& table, Database& site, std::string_view cut_statement);

}  // namespace rbt
