// SPDX-License-Identifier: MIT
#include "tally/groups/group_walk.h"

#include <algorithm>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "data/diameters.h"
#include "platform/pass_over_faults.h"
#include "store/row_walk.h"
#include "tally/count_cells.h"
#include "tally/groups/group_statements.h"

namespace rbt {
namespace {

template <typename FoldGroup>
void ForEachGroup(Database& site, std::string_view statement, FoldGroup fold_group) {
  GroupedRows groups(site, statement);
  const BarGroupReader reader(groups);
  for (; !groups.Eof(); groups.MoveNext()) fold_group(reader.Read(groups));
}

/// The diameter code that a cut counts at; that of the weld is not 0.
using CutDiameter = std::int32_t (*)(std::int32_t diameter_code, std::int32_t weld_diameter_code);

void FoldCutsOfPart(TallyTable& table, Database& site, const std::string& statement,
                    CutDiameter cut_diameter) {
  GroupedRows groups(site, statement);
  const FieldHandle diameter = groups.Field("太さ");
  const FieldHandle weld_diameter = groups.Field("圧接太さ");
  const FieldHandle cuts = groups.Field("合計切断数");
  for (; !groups.Eof(); groups.MoveNext()) {
    const std::int32_t own = groups.Int32(diameter).value_or(0);
    const std::int32_t weld = groups.Int32(weld_diameter).value_or(0);
    const int d = DiameterIndex(weld == 0 ? own : cut_diameter(own, weld));
    AddCount(table.CutCount, d, groups.Int32(cuts), "合計切断数");
  }
}

}  // namespace

bool MayHoldTexts(Database& site, std::span<const std::string_view> columns, std::string_view rows) {
  bool is_plain = false;
  // What faults here faults in `RequireNumbers` too, in its own words.
  PassOverFaults([&] {
    RowWalk walk(site, fmt::format("SELECT * FROM 加工テーブル {}", rows), columns);
    std::vector<FieldHandle> fields;
    fields.reserve(columns.size());
    for (const std::string_view column : columns) {
      if (const auto field = walk.FindField(column)) fields.push_back(*field);
    }
    bool all = true;
    walk.Run([&](const WalkedRow& row) {
      for (const FieldHandle field : fields) all = all && row.IsPlain(field);
    });
    is_plain = all;
  });
  return !is_plain;
}

void RequireNumbers(Database& site, std::span<const std::string_view> columns, std::string_view rows) {
  const auto schedule = site.FindTable("加工テーブル");
  std::string sums;
  for (const std::string_view column : columns) {
    if (schedule == nullptr || schedule->FindField(column) == nullptr) continue;
    sums += fmt::format("{}SUM({})", sums.empty() ? "" : ",", column);
  }
  if (!sums.empty()) site.HasRows(fmt::format("SELECT {} FROM 加工テーブル {}", sums, rows));
}

void FoldUlbonGroups(TallyTable& table, Database& site, std::string_view statement, bool count_hoop_welds) {
  ForEachGroup(site, statement,
               [&](const BarGroup& group) { FoldUlbonGroup(table, group, count_hoop_welds); });
}

void FoldGroups(TallyTable& table, Database& site, std::string_view main_statement, const GroupRules& rules) {
  GroupFold fold(table, rules);
  ForEachGroup(site, std::string(main_statement).append(kGroupByPieces),
               [&](const BarGroup& group) { fold.Add(group); });
  fold.Finish();
}

void FoldCuts(TallyTable& table, Database& site, std::string_view cut_statement) {
  const auto of_part = [&](std::string_view part) {
    return std::string(cut_statement).append(part).append(kGroupByWeld);
  };
  FoldCutsOfPart(table, site, of_part(kCutsOfPart5),
                 [](std::int32_t diameter_code, std::int32_t weld_diameter_code) {
                   return std::max(diameter_code, weld_diameter_code);
                 });
  FoldCutsOfPart(
      table, site, of_part(kCutsOfPart2),
      [](std::int32_t /*diameter_code*/, std::int32_t weld_diameter_code) { return weld_diameter_code; });
}

}  // namespace rbt
