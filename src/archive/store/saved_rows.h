// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "archive/store/saved_cells.h"
#include "archive/store/saved_tallies.h"
#include "tally/tally_result.h"

namespace rbt {

/// All tables of saved tallies but that of the names.
inline constexpr std::array<std::string_view, 5> kRowTables{"重量集計", "階部位重量集計", "階別重量集計",
                                                            "部位別重量集計", "部位別本重集計"};

/// What the rows of a tally get beside its figures.
struct RowOrder {
  SavedKey key;
  BarOrigins supply;
  bool with_13m = false;  ///< the 13.0 m column is in use, and kept
};

/// The statements that write a tally's rows, one after the other; none for a tally without figures. Those of
/// the bulk, shape and page tallies: a row of 重量集計 for each deformed diameter with figures.
std::vector<std::string> GridStatements(const TallyResult& result, const RowOrder& order);
/// Of the floor tally: a row of 階部位重量集計 for each floor, part and diameter with figures, then one of
/// 階別重量集計 for each listed floor.
std::vector<std::string> FloorStatements(const TallyResult& result, const RowOrder& order);
/// Of the part tally: a row of 部位別本重集計 for each part and diameter with figures, then one of
/// 部位別重量集計 for each diameter with weight.
std::vector<std::string> PartStatements(const TallyResult& result, const RowOrder& order);

/// Reads the rows of a key back: masks and floors into the selection of `result`, figures into its tables, of
/// the floor and part tallies cells and fittings alone. False when there are none, or not all that belong
/// together.
bool ReadGridRows(Database& site, const SavedKey& key, bool with_13m, TallyResult& result);
bool ReadFloorRows(Database& site, const SavedKey& key, bool with_13m, TallyResult& result);
bool ReadPartRows(Database& site, const SavedKey& key, bool with_13m, TallyResult& result);

/// The masks of a selection as rows hold them, and back.
RowMasks MasksOf(const SelectionData& selection);
void TakeMasks(SelectionData& selection, const RowMasks& masks);

}  // namespace rbt
