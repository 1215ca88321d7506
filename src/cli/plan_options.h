// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "cli/options.h"
#include "session/planning/plan_request.h"

namespace rbt {

class CommandLine;

/// What the command line says of a plan.
struct PlanCommandOptions {
  CommonOptions common;
  SelectionOptions selection;
  std::string pieces_file;  ///< empty: the pieces are those of a site
  std::optional<std::vector<int>> lengths;
  std::string lengths_file;
  std::string rests_file;
  std::int32_t kerf = 0;
  std::int32_t trim = 0;
  std::optional<std::int32_t> plus;  ///< nothing: as the setting says
  std::int32_t mix = 0;
  std::int32_t max_lengths = 0;
  std::int32_t usable = 1000;
  std::string scope = "site";
  std::string welded = "plan";
  std::string aim = "steel";
  std::string effort = "full";
  std::int32_t advise = 0;
  double time_limit = 10.0;  ///< seconds
  bool progress = false;
  std::string shop_sheet;      ///< PDF file; empty: none
  std::string trace;           ///< file for what the sheets drew; empty: none
  std::string purchase_sheet;  ///< likewise
  bool force = false;
  std::string format = "table";
};

void AddPlanOptions(CommandLine& line, PlanCommandOptions& options);

/// What is asked for, the files of lengths and rest bars read. Throws `UsageError` for options that
/// contradict each other, `planning::Refusal` for a file that says what none can, `file`.
PlanRequest PlanRequestOf(const PlanCommandOptions& options);

}  // namespace rbt
