// SPDX-License-Identifier: MIT
#include "cli/asked_tally.h"

#include "cli/command.h"
#include "cli/session.h"
#include "platform/system/message.h"
#include "platform/text/characters.h"
#include "shell/context/site_context.h"
#include "tally/kinds/tally_kinds.h"
#include "tally/schedule_positions.h"
#include "tally/selection.h"

namespace rbt {

namespace {

/// The screen warns beside the grid of the last row without a stock length.
void ShowStockWarning(const TallyTable& table) {
  if (!table.StockWarningText.empty()) MsgBox(Trim(table.StockWarningText));
}

void TakeShapes(const SelectionOptions& options) {
  const ShapeRange shapes = options.shapes.value_or(WholeShapeRange(*SiteContext.WorkDatabase));
  Selection.ShapeStart = shapes.first;
  Selection.ShapeEnd = shapes.last;
}

/// The positions asked for; a bound that is not given is that of the schedule.
PositionRange PositionsOf(const SelectionOptions& options) {
  // Two bounds ask for no default: a first or last row without a position then stands in nobody's way.
  if (options.from && options.to) return {*options.from, *options.to};
  const PositionRange whole = WholePositionRange(*SiteContext.WorkDatabase).value_or(PositionRange());
  return {options.from.value_or(whole.first), options.to.value_or(whole.last)};
}

void TakePositions(const SelectionOptions& options) {
  const PositionRange range = PositionsOf(options);
  Selection.StartPage = range.first.page;
  Selection.StartLine = range.first.line;
  Selection.EndPage = range.last.page;
  Selection.EndLine = range.last.line;
}

void TakeRange(TallyRange range, const SelectionOptions& options) {
  switch (range) {
    case TallyRange::shapes:
      return TakeShapes(options);
    case TallyRange::positions:
      return TakePositions(options);
    case TallyRange::whole_site:
    case TallyRange::floors:
      return;
  }
}

}  // namespace

std::vector<std::string> TallyWords() {
  std::vector<std::string> words;
  for (const TallyKindRow& row : TallyKinds()) {
    if (row.count != nullptr) words.emplace_back(row.word);
  }
  return words;
}

TallyResult CountAskedTally(const std::string& word, const CommonOptions& common,
                            const SelectionOptions& options) {
  const TallyKindRow* row = FindTallyKind(word);
  if (row == nullptr) throw UsageError("unknown tally " + word);
  if (options.kinds == 0) throw UsageError("--kinds: 0 is for the floor and part tallies");
  OpenSite(common);
  Selection.TallyKind = row->kind;
  ApplySelection(options, Selection);
  TakeRange(row->range, options);
  TallyResult result = CountTally(row->kind);
  SiteContext.WorkDatabase->LetGo();  // what else there is to do keeps nobody waiting
  ShowStockWarning(result.Grid());
  return result;
}

}  // namespace rbt
