// SPDX-License-Identifier: MIT
#include <memory>
#include <string>

#include "cli/asked_tally.h"
#include "cli/command_line.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/result_text.h"

namespace rbt {

namespace {

struct TallyOptions {
  std::string kind;
  CommonOptions common;
  SelectionOptions selection;
  std::string format = "table";
};

void RunTally(const TallyOptions& options) {
  WriteResult(ResultText(CountAskedTally(options.kind, options.common, options.selection), options.format));
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
