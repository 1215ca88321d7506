// SPDX-License-Identifier: MIT
#include "cli/plan_options.h"

#include <string_view>

#include "cli/command_line.h"
#include "cli/output_options.h"
#include "planning/input/plan_files.h"
#include "planning/input/scopes.h"
#include "platform/files/files.h"
#include "platform/numbers/decimal_text.h"

namespace rbt {

namespace {

constexpr double kLongestTime = 86'400.0;
constexpr std::int32_t kMostLengths = 1000;

/// "6000,12000".
bool TakeLengths(std::string_view text, std::optional<std::vector<int>>& lengths) {
  lengths = WholeNumbersIn(text, 1, planning::kLongestMm);
  return lengths.has_value();
}

bool TakeMm(std::string_view text, std::optional<std::int32_t>& mm) {
  mm = WholeNumberIn(text, 0, planning::kLongestMm);
  return mm.has_value();
}

bool TakeSeconds(std::string_view text, double& seconds) {
  const std::optional<double> taken = DecimalIn(text, 0.0, kLongestTime);
  if (taken) seconds = *taken;
  return taken.has_value();
}

void AddBarOptions(CommandLine& line, PlanCommandOptions& options) {
  line.FormOption(
      "--lengths", "MM,..",
      [&options](const std::string& text) { return TakeLengths(text, options.lengths); },
      "lengths that may be bought; default those of STEEL.INI and those that the site's rows use");
  line.FileOption("--lengths-file", "FILE.csv", options.lengths_file,
                  "diameter,length,price,min_kg of the lengths that may be bought, JPY a tonne");
  line.FileOption("--rests", "FILE.csv", options.rests_file, "diameter,kind,length,count of rest bars, free");
  line.NumberOption("--max-lengths", options.max_lengths, 0, kMostLengths,
                    "at most so many bought lengths of a diameter, kind and hoop; 0 any number");
  line.NumberOption("--mix", options.mix, 0, kMostLengths,
                    "at most so many cut lengths on a bar; 0 any number");
  line.NumberOption("--kerf", options.kerf, 0, planning::kLongestMm, "mm lost between two pieces");
  line.NumberOption("--trim", options.trim, 0, planning::kLongestMm, "mm cut off the end of a bar first");
  line.FormOption(
      "--plus", "MM", [&options](const std::string& text) { return TakeMm(text, options.plus); },
      "mm by which a bar is longer than its length; default the setting");
  line.NumberOption("--usable", options.usable, 0, planning::kLongestMm,
                    "mm from which on what is left of a bar is of use");
}

void AddWayOptions(CommandLine& line, PlanCommandOptions& options) {
  const auto take_scope = [&options](const std::string& text) {
    options.scope = text;
    return planning::Scopes::Of(text).has_value();
  };
  line.FormOption("--scope", "site|floor|A..B/C..D", take_scope,
                  "which floors share bars: all, each its own, or ranges of floor codes; default site");
  line.WordOption("--welded", "", options.welded, {"keep", "plan"},
                  "keep: rows with welds stay as scheduled");
  line.WordOption("--aim", "", options.aim, {"steel", "money"}, "what is made least");
  line.WordOption("--effort", "", options.effort, {"greedy", "full"}, "how much is tried");
  line.FormOption(
      "--time-limit", "S",
      [&options](const std::string& text) { return TakeSeconds(text, options.time_limit); },
      "seconds after which the best so far is the plan; default 10");
  line.NumberOption("--advise", options.advise, 0, kMostLengths,
                    "what the best 1 to so many lengths would lose");
  line.FileOption("--shop-sheet", "FILE.pdf", options.shop_sheet, "writes what the shop cuts from each bar");
  line.FileOption("--purchase-sheet", "FILE.pdf", options.purchase_sheet, "writes all bars to order");
  line.FileOption("--trace", "FILE", options.trace, "writes what the sheets drew, one operation a line");
  AddForceOption(line, options.force);
  line.Flag("--progress", options.progress, "tell on standard error how far the plan is");
}

}  // namespace

void AddPlanOptions(CommandLine& line, PlanCommandOptions& options) {
  line.FileOption("--pieces", "FILE.csv", options.pieces_file,
                  "length,count[,diameter[,kind[,mark]]] in place of a site");
  AddBarOptions(line, options);
  AddWayOptions(line, options);
}

PlanRequest PlanRequestOf(const PlanCommandOptions& options) {
  const bool of_site = options.pieces_file.empty();
  if (!of_site && !options.lengths && options.lengths_file.empty()) {
    throw UsageError("--pieces: --lengths or --lengths-file says which bars there are");
  }
  if (!of_site && options.scope != "site") throw UsageError("--scope: pieces of a file have no floor");
  PlanRequest request;
  request.offer.lengths = options.lengths;
  if (!options.lengths_file.empty()) {
    request.offer.length_lines = planning::ParseLengths(ReadFileBytes(options.lengths_file));
  }
  if (!options.rests_file.empty()) {
    request.offer.rests = planning::ParseRests(ReadFileBytes(options.rests_file));
  }
  request.options.bar = {options.kerf, options.trim, options.plus ? *options.plus : DefaultPlus()};
  request.options.mix = options.mix;
  request.options.max_lengths = options.max_lengths;
  request.options.usable = options.usable;
  request.options.scope = options.scope;
  request.options.keep_welded = options.welded == "keep";
  request.options.aim = options.aim == "money" ? planning::Aim::money : planning::Aim::steel;
  request.options.effort = options.effort == "greedy" ? planning::Effort::greedy : planning::Effort::full;
  request.options.advise = options.advise;
  return request;
}

}  // namespace rbt
