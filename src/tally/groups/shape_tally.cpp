// SPDX-License-Identifier: MIT
#include "tally/groups/shape_tally.h"

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "data/bar_tables.h"
#include "data/shapes.h"
#include "platform/pass_over_faults.h"
#include "platform/system/process.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "shell/preparation/classified_schedule.h"
#include "tally/closing_sums.h"
#include "tally/count_cells.h"
#include "tally/groups/group_statements.h"
#include "tally/groups/group_walk.h"
#include "tally/groups/stock_chooser.h"
#include "tally/rows/row_walk.h"
#include "tally/schedule_positions.h"
#include "tally/selection.h"

namespace rbt {
namespace {

/// The screen counts the high-strength rows of its range before it asks for the tally.
TallyTable ClearedTable() {
  const std::int32_t high_strength_rows = TallyGrid.HighStrengthRowCount;
  TallyGrid = TallyTable();
  TallyGrid.HighStrengthRowCount = high_strength_rows;
  RunState.HasHoopRows = false;
  RunState.HasAnchorPlateRows = false;
  return TallyGrid;
}

GroupRules RulesOfTally(double (*bar_weight)(int d, int l)) {
  GroupRules rules;
  rules.count_hoop_welds = ReadCountHoopWelds();
  rules.keep_schedule_stock = Settings.StockCheck != 0;
  rules.choose_stock = StockChooser(rules.keep_schedule_stock);
  rules.bar_weight = bar_weight;
  return rules;
}

struct Presence {
  bool hoops = false;
  bool anchor_plates = false;
};

/// What tells the two tallies by groups apart.
struct GroupTally {
  std::span<const std::string_view> numbers;  ///< columns of `rows` that must hold none but numbers
  std::string rows;                           ///< a WHERE clause
  std::function<void()> require_numbers;      ///< faults where they hold others
  std::string ulbon;
  std::function<Presence()> probe;
  std::function<GroupStatements(const Presence&)> statements;  ///< closed
  GroupRules rules;
};

GroupStatements Closed(GroupStatements statements) {
  statements.main += kGroupByPieces;
  statements.cuts += kGroupByPartAndWeld;
  return statements;
}

/// What a tally reads, in one scan of the schedule. What faults here faults again when its turn comes, in its
/// own words.
struct EarlyLook {
  explicit EarlyLook(Database& site, const GroupTally& tally) : scan(site) {
    PassOverFaults([&] {
      const Presence found = tally.probe();
      PlainNumbers numbers(site, tally.numbers, tally.rows);
      numbers.JoinIn(scan);
      const GroupStatements statements = tally.statements(found);
      for (const std::string& statement : {tally.ulbon, statements.main, statements.cuts}) {
        scan.AddGroups(statement);
      }
      const bool was_read = scan.Run();
      presence = found;
      are_plain = was_read && numbers.Stand();
    });
  }

  SharedScan scan;
  std::optional<Presence> presence;  ///< nothing where it could not be told
  bool are_plain = false;            ///< none but numbers, for certain
};

void RunTally(TallyTable& table, Database& site, const GroupTally& tally) {
  EarlyLook look(site, tally);
  if (!look.are_plain) tally.require_numbers();
  FoldUlbonGroups(table, look.scan, tally.ulbon, tally.rules.count_hoop_welds);
  RunPendingEvents();
  const Presence presence = look.presence ? *look.presence : tally.probe();
  RunState.HasHoopRows = presence.hoops;
  RunState.HasAnchorPlateRows = presence.anchor_plates;
  RunPendingEvents();
  const GroupStatements statements = tally.statements(presence);
  FoldGroups(table, look.scan, statements.main, tally.rules);
  RunPendingEvents();
  FoldCuts(table, look.scan, statements.cuts);
  RunPendingEvents();
  CloseSums(table, {});
  TallyGrid = std::move(table);
}

Presence ProbeShapes(Database& site) {
  if (!Selection.StartMode.probes_presence) return {};
  const std::string probe = ShapeProbeStatement(Selection);
  return {site.HasRows(probe + std::string(kShapeHoopProbe)),
          site.HasRows(probe + std::string(kAnchorPlateClause))};
}

Presence ProbePageShapes(Database& site, const LineRange& lines) {
  if (!Selection.StartMode.probes_presence) return {};
  const std::string probe = PageShapeStatementsSoFar(Selection, lines).main;
  const auto has_rows = [&](std::string_view clause) {
    return site.HasRows(std::string(probe).append(clause).append(kGroupByPieces));
  };
  return {has_rows(kPageShapeHoopProbe), has_rows(kPageShapePlateProbe)};
}

double WeightFromPageTable(int d, int l) {
  return Get_BarWeightTbl(static_cast<std::int16_t>(d), static_cast<std::int16_t>(l));
}

}  // namespace

void Keijou_Jyuuryo_Syukei() {
  TallyTable table = ClearedTable();
  Database& site = *SiteContext.WorkDatabase;
  GroupRules rules = RulesOfTally(BarWeight);
  if (site.HasRows("SELECT * FROM 加工テーブル WHERE 予備2=3")) ++table.HighStrengthRowCount;
  GetStockLengthLimits();  // a limit that is no stock length faults here, even when the schedule's stock is
                           // kept
  JoinDimensions();
  RunPendingEvents();
  static constexpr std::string_view kRows = "WHERE 太さ > 0 AND 合計 > 0";
  static constexpr std::array<std::string_view, 6> kNumbers = {"形状No",          kColumnsOfRows[0],
                                                               kColumnsOfRows[1], kColumnsOfRows[2],
                                                               kColumnsOfRows[3], kColumnsOfRows[4]};
  const auto require_numbers = [&] {
    // A text lies in no range of shapes.
    RequireNumbers(site, std::span(kNumbers).first(1), kRows);
    RequireNumbers(site, kColumnsOfRows, ShapeRows(Selection));
  };
  const auto statements = [](const Presence& found) {
    return Closed(ShapeStatements(Selection, found.hoops, found.anchor_plates));
  };
  RunTally(table, site,
           {kNumbers, std::string(kRows), require_numbers, ShapeUlbonStatement(Selection),
            [&] { return ProbeShapes(site); }, statements, std::move(rules)});
}

void PKeijou_Jyuuryo_Syukei(std::int32_t startPage, std::int32_t startLine, std::int32_t endPage,
                            std::int32_t endLine) {
  TallyTable table = ClearedTable();
  Database& site = *SiteContext.WorkDatabase;
  ReadPlus();
  GroupRules rules = RulesOfTally(WeightFromPageTable);
  const LineRange lines = LinesBetween(site, {{startPage, startLine}, {endPage, endLine}});
  const std::string rows = PageShapeRows(lines);
  const auto statements = [&](const Presence&) { return Closed(PageShapeStatements(Selection, lines)); };
  RunTally(table, site,
           {kColumnsOfRows, rows, [&] { RequireNumbers(site, kColumnsOfRows, rows); },
            PageShapeUlbonStatement(Selection, lines), [&] { return ProbePageShapes(site, lines); },
            statements, std::move(rules)});
}

}  // namespace rbt
