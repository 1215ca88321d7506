// SPDX-License-Identifier: MIT
#include <memory>
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "cli/listed_names.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/session.h"
#include "session/names/name_work.h"
#include "shell/context/site_context.h"
#include "tally/views/grid_text.h"
#include "tally/views/name_views.h"

namespace rbt {

namespace {

struct NamesOptions {
  CommonOptions common;
  std::string format = "table";
};

void RunNames(const NamesOptions& options) {
  const std::vector<RegisteredName> names = WeighedNames(options.common);
  if (options.format == "json") return WriteResult(NameListJson(names));
  WriteResult(options.format == "csv" ? NameCsv(names) : GridTable(kNameCaptions, NameRows(names)));
}

}  // namespace

std::vector<RegisteredName> WeighedNames(const CommonOptions& common, std::span<const std::int32_t> marked) {
  OpenSite(common);
  NameWork work;
  MarkNames(*SiteContext.NameDatabase, marked, true);
  std::vector<RegisteredName> names = ReadNames(*SiteContext.NameDatabase, NameOrder::by_number);
  work.Close();
  SiteContext.WorkDatabase->LetGo();  // what else there is to do keeps nobody waiting
  return names;
}

Action DefineNames(CommandLine& line) {
  auto options = std::make_shared<NamesOptions>();
  AddCommonOptions(line, options->common);
  AddFormatOption(line, options->format);
  return [options] { RunNames(*options); };
}

}  // namespace rbt
