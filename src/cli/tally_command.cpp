// SPDX-License-Identifier: MIT
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "cli/asked_tally.h"
#include "cli/command_line.h"
#include "cli/options.h"
#include "cli/output.h"
#include "shell/context/reference_names.h"
#include "tally/views/grid_text.h"
#include "tally/views/result_views.h"

namespace rbt {

namespace {

struct TallyOptions {
  std::string kind;
  CommonOptions common;
  SelectionOptions selection;
  std::string format = "table";
};

/// The names that stand above the columns of parts. A site needs none for another result.
PartNames PartNamesFor(const TallyResult& result) {
  if (std::holds_alternative<TallyTable>(result.tables)) return {};
  return NamesOfParts();
}

/// The result in the asked form.
std::string TextOf(const TallyResult& result, const std::string& format) {
  if (format == "json") return ResultJson(result);
  const ResultView view{.grade_names = DiameterGradeNames(), .part_names = PartNamesFor(result)};
  const GridRows rows = ResultRows(result, view);
  const auto captions = ResultCaptions(result, view);
  return format == "csv" ? GridCsv(captions, rows) : GridTable(captions, rows);
}

void RunTally(const TallyOptions& options) {
  WriteResult(TextOf(CountAskedTally(options.kind, options.common, options.selection), options.format));
}

}  // namespace

Action DefineTally(CommandLine& line) {
  auto options = std::make_shared<TallyOptions>();
  line.WordArgument("KIND", options->kind, TallyWords(), "the kind of tally");
  AddCommonOptions(line, options->common);
  AddSelectionOptions(line, options->selection);
  AddFloorOptions(line, options->selection);
  AddFormatOption(line, options->format);
  return [options] { RunTally(*options); };
}

}  // namespace rbt
