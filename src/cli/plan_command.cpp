// SPDX-License-Identifier: MIT
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "cli/asked_tally.h"
#include "cli/command_line.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/output_options.h"
#include "cli/plan_options.h"
#include "planning/input/make_problem.h"
#include "planning/make_plan.h"
#include "planning/outcome/outcome.h"
#include "planning/outcome/plan_json.h"
#include "planning/outcome/plan_text.h"
#include "platform/files/files.h"
#include "platform/print/diverted_deliveries.h"
#include "platform/print/print_trace.h"
#include "platform/system/interrupt.h"
#include "platform/system/printing.h"
#include "session/planning/plan_sheets.h"

namespace rbt {

namespace {

planning::Problem ProblemOf(const PlanCommandOptions& options, const PlanRequest& request) {
  if (!options.pieces_file.empty()) {
    return planning::MakeProblem(planning::ParsePieces(ReadFileBytes(options.pieces_file)), request.offer,
                                 request.options);
  }
  planning::Problem problem;
  CountAskedTally("bulk", options.common, options.selection, [&] { problem = SiteProblem(request); });
  return problem;
}

std::string TextOf(const planning::Outcome& outcome, const std::string& format) {
  if (format == "json") return planning::PlanJson(outcome);
  return format == "csv" ? planning::PlanCsv(outcome) : planning::PlanTable(outcome);
}

planning::PlanListener ListenerOf(const planning::Problem& problem, bool progress) {
  if (!progress) return nullptr;
  return [&problem](const planning::Plan& plan, std::size_t done, std::size_t of) {
    ReportError(planning::ProgressText(problem, plan, done, of));
  };
}

/// Returns what the sheet drew.
std::string WriteSheet(const std::string& file, PlanSheet sheet, const PlanSheetHead& head,
                       const planning::Outcome& outcome) {
  DivertedDeliveries diverted(Printers(), DivertedDeliveries::From::every_device);
  PrintPlanSheet(sheet, head, outcome);
  const std::vector<PrintedDocument> documents = diverted.Take();
  WritePdf(documents, file);
  std::string trace;
  for (const PrintedDocument& document : documents) trace += TraceText(document);
  return trace;
}

bool HasSheets(const PlanCommandOptions& options) {
  return !options.shop_sheet.empty() || !options.purchase_sheet.empty();
}

void RequireFiles(const PlanCommandOptions& options) {
  if (!options.trace.empty() && !HasSheets(options)) {
    throw UsageError("--trace: --shop-sheet or --purchase-sheet says which sheet");
  }
  RequireOutputs({{"--shop-sheet", {options.shop_sheet, OutputKind::pdf}},
                  {"--purchase-sheet", {options.purchase_sheet, OutputKind::pdf}},
                  {"--trace", {options.trace, OutputKind::trace}}},
                 options.force);
}

void WriteSheets(const PlanCommandOptions& options, const planning::Outcome& outcome) {
  const PlanSheetHead head = options.pieces_file.empty() ? PlanHeadOfSite() : PlanHeadOfFile();
  std::string trace;
  for (const auto& [file, sheet] : {std::pair{options.shop_sheet, PlanSheet::shop},
                                    std::pair{options.purchase_sheet, PlanSheet::purchase}}) {
    if (!file.empty()) trace += WriteSheet(file, sheet, head, outcome);
  }
  if (!options.trace.empty()) WriteFileAtomically(options.trace, trace);
}

void RunPlan(const PlanCommandOptions& options) {
  InterruptWatch interrupt;
  RequireFiles(options);
  const PlanRequest request = PlanRequestOf(options);
  const planning::Problem problem = ProblemOf(options, request);
  const planning::StopSignal stop =
      planning::StopAfter(options.time_limit, [&interrupt] { return interrupt.Requested(); });
  const planning::Plan plan = planning::MakePlan(problem, stop, ListenerOf(problem, options.progress));
  const planning::Outcome outcome = planning::Describe(problem, plan);
  if (HasSheets(options)) WriteSheets(options, outcome);
  WriteResult(TextOf(outcome, options.format));
}

}  // namespace

Action DefinePlan(CommandLine& line) {
  auto options = std::make_shared<PlanCommandOptions>();
  AddCommonOptions(line, options->common);
  AddSelectionOptions(line, options->selection);
  AddPlanOptions(line, *options);
  AddFormatOption(line, options->format);
  return [options] { RunPlan(*options); };
}

}  // namespace rbt
