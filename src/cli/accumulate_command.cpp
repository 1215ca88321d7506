// SPDX-License-Identifier: MIT
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "cli/asked_tally.h"
#include "cli/command_line.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/result_text.h"
#include "data/reference.h"
#include "shell/context/site_context.h"
#include "tally/rows/bulk_tally.h"
#include "tally/site_sum.h"

namespace rbt {

namespace {

constexpr const char* kBulk = "bulk";

struct AccumulateOptions {
  std::vector<std::string> sites;
  CommonOptions common;
  SelectionOptions selection;
  std::string format = "table";
};

/// Before any of them is prepared.
void RequireKnown(const std::vector<std::string>& sites) {
  for (const std::string& site : sites) ReadSiteHead(*SiteContext.MasterDatabase, site);
}

void RunAccumulate(const AccumulateOptions& options) {
  TallyResult sum = CountAskedTally(kBulk, options.common, options.selection);
  const std::string first_site = SiteContext.SelectedDbName;
  RequireKnown(options.sites);
  CommonOptions common = options.common;
  for (const std::string& site : options.sites) {
    common.site = site;
    TallyResult counted = CountAskedTally(kBulk, common, options.selection);
    sum = SumOfSites(KeptForSum(sum.Grid()), std::move(counted), BulkClosingRules());
  }
  // The grades beside the diameters are those of the site that the sum began with.
  SelectSite(first_site);
  WriteResult(ResultText(sum, options.format));
}

}  // namespace

Action DefineAccumulate(CommandLine& line) {
  auto options = std::make_shared<AccumulateOptions>();
  line.FileArguments("SITE", options->sites,
                     "schedule files of the sites that are added, one after the other");
  AddCommonOptions(line, options->common);
  AddSelectionOptions(line, options->selection);
  AddFormatOption(line, options->format);
  return [options] { RunAccumulate(*options); };
}

}  // namespace rbt
