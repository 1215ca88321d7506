// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "data/shape_filter.h"
#include "platform/date_time.h"
#include "store/database.h"
#include "tally/tally_kind.h"

namespace rbt {

/// The moment of a save, which is the key of all its rows.
struct SavedKey {
  std::string date;  ///< "yyyymmdd"
  std::string time;  ///< "hhnnss"

  friend bool operator==(const SavedKey&, const SavedKey&) = default;
};
SavedKey SavedKeyOf(const DateTime& now);
/// "作成日='20261121' AND 作成時間='090000'"
std::string KeyCondition(const SavedKey& key);

/// メモ１ to メモ３; null is empty.
using SavedMemos = std::array<std::string, 3>;

/// What the site keeps of a saved tally beside its figures: a row of 重量集計名称.
struct SavedTally {
  SavedKey key;
  TallyKind kind = TallyKind::bulk;
  std::string name;  ///< trimmed, never empty
  SavedMemos memos;
  ShapeFilter hoops = ShapeFilter::with_others;  ///< 溶接閉鎖型
  bool corrected = false;                        ///< 合計値変更

  friend bool operator==(const SavedTally&, const SavedTally&) = default;
};

/// The saved tallies of a kind whose state of the 13.0 m column is this one, the newest first. Those from
/// before that field have no such column. A site without the table, as one that could not be brought up to
/// date, has none.
std::vector<SavedTally> SavedTallies(Database& site, TallyKind kind, bool with_13m);
/// Those of all kinds.
std::vector<SavedTally> AllSavedTallies(Database& site, bool with_13m);

/// True for names that differ in outer blanks and in the case of ASCII letters at most.
bool IsSameName(std::string_view a, std::string_view b);
/// The first of a list by its name; null when there is none.
const SavedTally* FindSaved(std::span<const SavedTally> list, std::string_view name);

}  // namespace rbt
