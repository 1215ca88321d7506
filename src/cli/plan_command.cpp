// SPDX-License-Identifier: MIT
#include <memory>
#include <string>

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
#include "platform/system/clock.h"
#include "platform/system/interrupt.h"
#include "platform/system/message.h"
#include "platform/system/printing.h"
#include "reports/frame/cut_figure_message.h"
#include "reports/frame/print_frame.h"
#include "reports/frame/report_head.h"
#include "reports/frame/report_site.h"
#include "reports/plan/purchase_sheet.h"
#include "reports/plan/shop_sheet.h"

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

/// What the sheets have at their head; a plan of a file has no site.
PlanSheetHead HeadOf(const PlanCommandOptions& options) {
  PlanSheetHead head;
  ReportDate date;
  if (options.pieces_file.empty()) {
    const ReportSite site = ReadReportSite();
    head.project = site.long_name.empty() ? site.short_name : site.long_name;
    head.client = site.client;
    date.western = site.western_dates;
  }
  const DateTexts today = DefaultDateTexts(Now());
  date = {date.western, today.year, today.month, today.day};
  head.date = DateText(date);
  return head;
}

void WriteSheet(const std::string& file, const std::function<void(PrinterSurface& Printer)>& sheet) {
  if (file.empty()) return;
  DivertedDeliveries diverted(Printers(), DivertedDeliveries::From::every_device);
  PrintReport(kPortrait, kPaperKindA4, sheet);
  WritePdf(diverted.Take(), file);
}

void WriteSheets(const PlanCommandOptions& options, const planning::Outcome& outcome) {
  const PlanSheetHead head = HeadOf(options);
  WriteSheet(options.shop_sheet, [&](PrinterSurface& Printer) { DrawShopSheet(Printer, head, outcome); });
  WriteSheet(options.purchase_sheet, [&](PrinterSurface& Printer) {
    const CutFigures cut = DrawPurchaseSheet(Printer, head, outcome);
    if (!cut.empty()) MsgBox(CutFigureMessage(cut));
  });
}

void RunPlan(const PlanCommandOptions& options) {
  InterruptWatch interrupt;
  RequireOutputs({{"--shop-sheet", {options.shop_sheet, OutputKind::pdf}},
                  {"--purchase-sheet", {options.purchase_sheet, OutputKind::pdf}}},
                 options.force);
  const PlanRequest request = PlanRequestOf(options);
  const planning::Problem problem = ProblemOf(options, request);
  const planning::StopSignal stop =
      planning::StopAfter(options.time_limit, [&interrupt] { return interrupt.Requested(); });
  const planning::Plan plan = planning::MakePlan(problem, stop, ListenerOf(problem, options.progress));
  const planning::Outcome outcome = planning::Describe(problem, plan);
  if (!options.shop_sheet.empty() || !options.purchase_sheet.empty()) WriteSheets(options, outcome);
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
