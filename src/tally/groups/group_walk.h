// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "store/shared_scan.h"
#include "tally/groups/group_fold.h"

namespace rbt {

/// Faults with `type mismatch` where a row holds a text that is no number in one of the columns, as far as
/// the schedule has them. The tallies row by row read columns that no group shows: a site that they refuse is
/// refused by the groups too. `rows`: a WHERE clause.
void RequireNumbers(Database& site, std::span<const std::string_view> columns, std::string_view rows);
/// The columns that only a row shows.
inline constexpr std::array<std::string_view, 5> kColumnsOfRows = {"頁", "行", "部位", "予備2", "切断"};

/// Whether nothing stands in these columns that `RequireNumbers` could fault at: one quick look instead of
/// several, which joins in a scan.
class PlainNumbers {
 public:
  PlainNumbers(Database& site, std::span<const std::string_view> columns, std::string_view rows);

  /// It must outlive the scan.
  void JoinIn(SharedScan& scan);
  /// After the scan.
  bool Stand() const { return stand_; }

 private:
  RowWalk walk_;
  std::vector<FieldHandle> fields_;
  bool stand_ = true;
};

/// Adds every group of an Ulbon statement.
void FoldUlbonGroups(TallyTable& table, SharedScan& scan, std::string_view statement, bool count_hoop_welds);

/// Adds every group of a closed main statement.
void FoldGroups(TallyTable& table, SharedScan& scan, std::string_view main_statement,
                const GroupRules& rules);

/// Adds the cuts of 部位 5 and 2 of a closed cut statement. A cut of 部位 5 counts at the thicker of the bar
/// and the one that it is welded to, a cut of 部位 2 at the one that it is welded to however thin. Faults:
/// `subscript out of range` for cuts at no deformed diameter.
void FoldCuts(TallyTable& table, SharedScan& scan, std::string_view cut_statement);

}  // namespace rbt
