// SPDX-License-Identifier: MIT
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/asked_tally.h"
#include "cli/command_line.h"
#include "cli/options.h"
#include "cli/output_options.h"
#include "platform/files/files.h"
#include "platform/print/diverted_deliveries.h"
#include "platform/print/print_trace.h"
#include "platform/system/clock.h"
#include "platform/system/printing.h"
#include "reports/forms/report_forms.h"
#include "reports/frame/report_site.h"
#include "shell/context/run_state.h"

namespace rbt {

namespace {

struct ReportOptions {
  std::string name;
  CommonOptions common;
  SelectionOptions selection;
  std::string tally = "bulk";
  std::int32_t body = 1;
  std::int32_t percent = 0;
  std::string sub_project;
  std::string date;
  std::string pdf;
  std::string trace;
  bool force = false;
};

std::vector<std::string> ReportNames() {
  std::vector<std::string> names;
  for (const ReportForm& form : ReportForms()) names.emplace_back(form.word);
  return names;
}

/// The three texts between the slashes, as typed; nothing when no date was given.
std::optional<DateTexts> TypedDate(const std::string& date) {
  if (date.empty()) return std::nullopt;
  const std::size_t first = date.find('/');
  const std::size_t second = date.find('/', first + 1);
  if (first == std::string::npos || second == std::string::npos ||
      date.find('/', second + 1) != std::string::npos) {
    throw UsageError("--date: " + date + " is no YEAR/MONTH/DAY");
  }
  return DateTexts{date.substr(0, first), date.substr(first + 1, second - first - 1),
                   date.substr(second + 1)};
}

using Documents = std::vector<PrintedDocument>;

/// The documents that a report ends. This program knows no printers but the PDF device.
Documents DocumentsOf(const ReportForm& form, const ReportArguments& arguments, const TallyResult& result) {
  DivertedDeliveries diverted(Printers(), DivertedDeliveries::From::every_device);
  PrintForm(form, arguments, result);
  return diverted.Take();
}

/// All documents of a report stand in one file, one after the other.
void WriteDocuments(const Documents& documents, const ReportOptions& options) {
  if (documents.empty()) return;
  if (!options.trace.empty()) {
    std::string trace;
    for (const PrintedDocument& document : documents) trace += TraceText(document);
    WriteFileAtomically(options.trace, trace);
  }
  if (!options.pdf.empty()) WritePdf(documents, options.pdf);
}

void RequireFiles(const ReportOptions& options) {
  if (options.pdf.empty() && options.trace.empty()) throw UsageError("-o is required");
  RequireOutputs({{"-o", {options.pdf, OutputKind::pdf}}, {"--trace", {options.trace, OutputKind::trace}}},
                 options.force);
}

void RunReport(const ReportOptions& options) {
  const std::optional<DateTexts> typed = TypedDate(options.date);
  RequireFiles(options);
  const TallyResult result =
      WithUlbonRaised(CountAskedTally(options.tally, options.common, options.selection), options.percent);
  RunState.ReportBody = options.body;
  const DateTexts date = typed ? *typed : DefaultDateTexts(Now());
  const ReportArguments arguments{options.sub_project, date.year,           date.month, date.day,
                                  RunState.ReportBody, result.ulbon_percent};
  WriteDocuments(DocumentsOf(FindReportForm(options.name), arguments, result), options);
}

}  // namespace

Action DefineReport(CommandLine& line) {
  constexpr std::int64_t kHighestPercent = 999999;
  auto options = std::make_shared<ReportOptions>();
  line.WordArgument("NAME", options->name, ReportNames(), "the report form");
  AddCommonOptions(line, options->common);
  AddSelectionOptions(line, options->selection);
  line.WordOption("--tally", "KIND", options->tally, GridTallyWords(),
                  "the kind of tally that fills the report");
  line.NumberOption("--body", options->body, 0, 1, "1 with Ulbon and spirals, 0 deformed bars only");
  line.NumberOption("--percent", options->percent, 0, kHighestPercent, "uplift of the Ulbon weights");
  line.TextOption("--subproject", "TEXT", options->sub_project, "a line under the project's name");
  line.TextOption("--date", "YEAR/MONTH/DAY", options->date,
                  "the date as typed, the year of the era with era dates; default today");
  line.TextOption("-o", "FILE.pdf", options->pdf, "the PDF file to write");
  line.TextOption("--trace", "FILE", options->trace, "writes what the report drew, one operation a line");
  AddForceOption(line, options->force);
  return [options] { RunReport(*options); };
}

}  // namespace rbt
