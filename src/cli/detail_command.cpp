// SPDX-License-Identifier: MIT
#include <memory>
#include <string>

#include "cli/asked_tally.h"
#include "cli/command_line.h"
#include "cli/detail_changes.h"
#include "cli/options.h"
#include "cli/output.h"
#include "shell/config/settings.h"
#include "tally/detail/detail_grid.h"
#include "tally/views/grid_text.h"
#include "tally/views/result_views.h"

namespace rbt {

namespace {

struct DetailOptions {
  std::string kind;
  CommonOptions common;
  SelectionOptions selection;
  DetailChanges changes;
  std::string format = "table";
};

/// The result in the asked form: as the tally writes it, or as the grid of the screen.
std::string TextOf(const TallyResult& result, const std::string& format) {
  if (format == "json") return ResultJson(result);
  const DetailLayout layout = DetailLayoutOf(Settings);
  const auto captions = DetailCaptions(layout);
  const GridRows rows = DetailRows(result.Grid(), layout);
  return format == "csv" ? GridCsv(captions, rows) : GridTable(captions, rows);
}

void RunDetail(const DetailOptions& options) {
  RequireCells(options.changes);
  const TallyResult counted = CountAskedTally(options.kind, options.common, options.selection);
  WriteResult(TextOf(Changed(counted, options.changes), options.format));
}

}  // namespace

Action DefineDetail(CommandLine& line) {
  auto options = std::make_shared<DetailOptions>();
  line.WordArgument("KIND", options->kind, GridTallyWords(), "the kind of tally");
  AddCommonOptions(line, options->common);
  AddSelectionOptions(line, options->selection);
  AddChangeOptions(line, options->changes, "uplift of the bars, each cell on its own");
  AddFormatOption(line, options->format);
  return [options] { RunDetail(*options); };
}

}  // namespace rbt
