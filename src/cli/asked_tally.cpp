// SPDX-License-Identifier: MIT
#include "cli/asked_tally.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "cli/command.h"
#include "cli/session.h"
#include "platform/fault.h"
#include "platform/system/message.h"
#include "platform/text/characters.h"
#include "session/names/name_work.h"
#include "session/result/range_rules.h"
#include "shell/context/site_context.h"
#include "shell/preparation/classified_schedule.h"
#include "tally/floorpart/floor_range.h"
#include "tally/kinds/tally_kinds.h"
#include "tally/names/name_list.h"
#include "tally/schedule_positions.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"

namespace rbt {

namespace {

/// The screen warns beside the grid of the last row without a stock length.
void ShowStockWarning(const TallyResult& result) {
  const auto* table = std::get_if<TallyTable>(&result.tables);
  if (table != nullptr && !table->StockWarningText.empty()) MsgBox(Trim(table->StockWarningText));
}

ShapeRange ShapesOf(const SelectionOptions& options) {
  return options.shapes.value_or(WholeShapeRange(*SiteContext.WorkDatabase));
}

/// The positions asked for; a bound that is not given is that of the schedule.
PositionRange PositionsOf(const SelectionOptions& options) {
  if (options.from && options.to) return {*options.from, *options.to};
  const PositionRange whole =
      WholePositionRange(*SiteContext.WorkDatabase, Selection.TallyKind).value_or(PositionRange());
  return {options.from.value_or(whole.first), options.to.value_or(whole.last)};
}

/// What the screen would not take is tallied as it stands all the same, but never without a word.
void TakeAskedPositions(const SelectionOptions& options) {
  const PositionRange positions = PositionsOf(options);
  TakePositions(Selection, positions);
  std::vector<PositionBox> asked;
  if (options.from) asked.insert(asked.end(), {PositionBox::start_page, PositionBox::start_line});
  if (options.to) asked.insert(asked.end(), {PositionBox::end_page, PositionBox::end_line});
  const auto refusal = PositionsRefusal(*SiteContext.WorkDatabase, positions, asked);
  if (refusal) MsgBox(refusal->text);
}

void TakeAskedNames(const SelectionOptions& options) {
  HoldMarks(*SiteContext.NameDatabase, options.names);
  if (MarkedNumbers(*SiteContext.NameDatabase).empty()) MsgBox(kNoNameChosen);
}

void TakeAskedFloors(const SelectionOptions& options) {
  if (!SiteContext.WorkDatabase->HasRows("SELECT * FROM 加工テーブル")) {
    throw Fault(FaultKind::database, "集計データがありません");
  }
  HoldScheduleWithFloors(Selection.StartMode);
  Database& site = *SiteContext.WorkDatabase;
  const std::optional<FloorExtent> found = ReadFloorExtent(site);
  if (!found && !options.floors) throw Fault(FaultKind::invalid_use_of_null, "加工テーブル 階");
  // Where no row has a floor, those asked for are as good as any, if only they stand in their order.
  const FloorExtent extent =
      found ? *found
            : FloorExtent{options.floors->start, std::max(options.floors->start, options.floors->end)};
  const FloorRange range = options.floors.value_or(AllFloors(extent));
  if (const auto refusal = RefusedRange(range, extent)) {
    throw UsageError("--floors: " + std::string(refusal->reason));
  }
  TakeFloors(Selection, range, SpecialMask(options.special), extent);
}

void TakeRange(TallyRange range, const SelectionOptions& options) {
  switch (range) {
    case TallyRange::shapes:
      return TakeShapes(Selection, ShapesOf(options));
    case TallyRange::positions:
      return TakeAskedPositions(options);
    case TallyRange::floors:
      return TakeAskedFloors(options);
    case TallyRange::names:
      return TakeAskedNames(options);
    case TallyRange::whole_site:
      return;
  }
}

template <typename Chosen>
std::vector<std::string> WordsOf(Chosen chosen) {
  std::vector<std::string> words;
  for (const TallyKindRow& row : TallyKinds()) {
    if (row.count != nullptr && chosen(row)) words.emplace_back(row.word);
  }
  return words;
}

}  // namespace

std::vector<std::string> TallyWords() {
  return WordsOf([](const TallyKindRow& /*row*/) { return true; });
}

std::vector<std::string> GridTallyWords() {
  return WordsOf([](const TallyKindRow& row) { return row.range != TallyRange::floors; });
}

TallyResult CountAskedTally(const std::string& word, const CommonOptions& common,
                            const SelectionOptions& options, const std::function<void()>& beside) {
  const TallyKindRow* row = FindTallyKind(word);
  if (row == nullptr) throw UsageError("unknown tally " + word);
  if (options.kinds == 0 && row->range != TallyRange::floors)
    throw UsageError("--kinds: 0 is for the floor and part tallies");
  OpenSite(common);
  Selection.TallyKind = row->kind;
  ApplySelection(options, Selection);
  std::optional<NameWork> work;
  if (row->range == TallyRange::names) work.emplace();
  TakeRange(row->range, options);
  TallyResult result = CountTally(row->kind);
  if (beside) beside();
  if (work) work->Close();
  SiteContext.WorkDatabase->LetGo();  // what else there is to do keeps nobody waiting
  ShowStockWarning(result);
  return result;
}

}  // namespace rbt
