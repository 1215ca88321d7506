// SPDX-License-Identifier: MIT
#include "tally/groups/group_walk.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "data/diameters.h"
#include "data/parts.h"
#include "tally/count_cells.h"

namespace rbt {
namespace {

template <typename FoldGroup>
void ForEachGroup(SharedScan& scan, std::string_view statement, FoldGroup fold_group) {
  GroupedRows groups = scan.Groups(statement);
  const BarGroupReader reader(groups);
  for (; !groups.Eof(); groups.MoveNext()) fold_group(reader.Read(groups));
}

/// The cuts of one 部位 at one diameter and weld diameter; null codes are 0.
struct CutGroup {
  std::int32_t part = 0;
  std::int32_t diameter_code = 0;
  std::int32_t weld_diameter_code = 0;
  std::optional<std::int32_t> cuts;
};

std::vector<CutGroup> ReadCuts(SharedScan& scan, std::string_view statement) {
  GroupedRows groups = scan.Groups(statement);
  const FieldHandle part = groups.Field("部位");
  const FieldHandle diameter = groups.Field("太さ");
  const FieldHandle weld_diameter = groups.Field("圧接太さ");
  const FieldHandle cuts = groups.Field("合計切断数");
  std::vector<CutGroup> found;
  for (; !groups.Eof(); groups.MoveNext()) {
    found.push_back({groups.Int32(part).value_or(0), groups.Int32(diameter).value_or(0),
                     groups.Int32(weld_diameter).value_or(0), groups.Int32(cuts)});
  }
  return found;
}

/// The diameter code that a cut counts at.
std::int32_t CutDiameter(const CutGroup& group) {
  if (group.weld_diameter_code == 0) return group.diameter_code;
  return group.part == kThickerCutPart ? std::max(group.diameter_code, group.weld_diameter_code)
                                       : group.weld_diameter_code;
}

}  // namespace

PlainNumbers::PlainNumbers(Database& site, std::span<const std::string_view> columns, std::string_view rows)
    : walk_(site, fmt::format("SELECT * FROM 加工テーブル {}", rows), columns) {
  fields_.reserve(columns.size());
  for (const std::string_view column : columns) {
    if (const auto field = walk_.FindField(column)) fields_.push_back(*field);
  }
}

void PlainNumbers::JoinIn(SharedScan& scan) {
  scan.AddWalk(walk_, [this](const WalkedRow& row) {
    for (const FieldHandle field : fields_) stand_ = stand_ && row.IsPlain(field);
  });
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

void FoldUlbonGroups(TallyTable& table, SharedScan& scan, std::string_view statement, bool count_hoop_welds) {
  ForEachGroup(scan, statement,
               [&](const BarGroup& group) { FoldUlbonGroup(table, group, count_hoop_welds); });
}

void FoldGroups(TallyTable& table, SharedScan& scan, std::string_view main_statement,
                const GroupRules& rules) {
  GroupFold fold(table, rules);
  ForEachGroup(scan, main_statement, [&](const BarGroup& group) { fold.Add(group); });
  fold.Finish();
}

void FoldCuts(TallyTable& table, SharedScan& scan, std::string_view cut_statement) {
  const auto groups = ReadCuts(scan, cut_statement);
  const auto fold_part = [&](bool thicker) {
    for (const CutGroup& group : groups) {
      if ((group.part == kThickerCutPart) != thicker) continue;
      AddCount(table.CutCount, DiameterIndex(CutDiameter(group)), group.cuts, "合計切断数");
    }
  };
  fold_part(true);
  fold_part(false);
}

}  // namespace rbt
