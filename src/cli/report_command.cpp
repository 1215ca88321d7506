// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/command_line.h"
#include "cli/options.h"
#include "cli/tally_kinds.h"
#include "platform/files/files.h"
#include "platform/print/diverted_deliveries.h"
#include "platform/print/print_trace.h"
#include "platform/system/clock.h"
#include "platform/system/printing.h"
#include "reports/comparison/taihi.h"
#include "reports/frame/print_frame.h"
#include "reports/frame/report_site.h"
#include "reports/ulbon/ulbon_report.h"
#include "shell/context/run_state.h"

namespace rbt {

namespace {

/// A report form by its word on the command line, with the paper that its print button sets.
struct ReportForm {
  std::string_view name;
  std::int32_t orientation;
  std::int32_t paper_kind;
  void (*draw)(PrinterSurface& Printer, const ReportArguments& arguments);
};

constexpr std::array kReportForms = {
    ReportForm{"taihi-a-a4t", kPortrait, kPaperKindA4, Taihi_A_A4T},
    ReportForm{"taihi-a-a4y", kLandscape, kPaperKindA4, Taihi_A_A4Y},
    ReportForm{"taihi-a-b5y", kLandscape, kPaperKindB5, Taihi_A_B5Y},
    ReportForm{"taihi-b-a4t", kPortrait, kPaperKindA4, Taihi_B_A4T},
    ReportForm{"taihi-b-a4y", kLandscape, kPaperKindA4, Taihi_B_A4Y},
    ReportForm{"taihi-b-b5y", kLandscape, kPaperKindB5, Taihi_B_B5Y},
    ReportForm{"taihi-c-a4t", kPortrait, kPaperKindA4, Taihi_C_A4T},
    ReportForm{"taihi-c-a4y", kLandscape, kPaperKindA4, Taihi_C_A4Y},
    ReportForm{"taihi-c-b5y", kLandscape, kPaperKindB5, Taihi_C_B5Y},
    ReportForm{"ulbon", kLandscape, kPaperKindA4, Ulbon_Report},
};

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
};

std::vector<std::string> ReportNames() {
  std::vector<std::string> names;
  names.reserve(kReportForms.size());
  for (const ReportForm& form : kReportForms) names.emplace_back(form.name);
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
Documents DocumentsOf(const ReportForm& form, const ReportArguments& arguments) {
  DivertedDeliveries diverted(Printers(), DivertedDeliveries::From::every_device);
  PrintReport(form.orientation, form.paper_kind,
              [&](PrinterSurface& Printer) { form.draw(Printer, arguments); });
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

/// The two files are told apart, however their names are written.
void RequireFiles(const ReportOptions& options) {
  namespace fs = std::filesystem;
  if (options.pdf.empty() && options.trace.empty()) throw UsageError("-o is required");
  if (options.pdf.empty() || options.trace.empty()) return;
  if (fs::absolute(options.pdf).lexically_normal() == fs::absolute(options.trace).lexically_normal()) {
    throw UsageError("-o and --trace name the same file " + options.pdf);
  }
}

void RunReport(const ReportOptions& options) {
  const std::optional<DateTexts> typed = TypedDate(options.date);
  RequireFiles(options);
  FillTallyGrid(options.tally, options.common, options.selection);
  RunState.ReportBody = options.body;
  const DateTexts date = typed ? *typed : DefaultDateTexts(Now());
  const ReportArguments arguments =
      Trimmed({options.sub_project, date.year, date.month, date.day, RunState.ReportBody, options.percent});
  const ReportForm& form = *std::find_if(kReportForms.begin(), kReportForms.end(),
                                         [&](const ReportForm& row) { return row.name == options.name; });
  WriteDocuments(DocumentsOf(form, arguments), options);
}

}  // namespace

Action DefineReport(CommandLine& line) {
  constexpr std::int64_t kHighestPercent = 999999;
  auto options = std::make_shared<ReportOptions>();
  line.WordArgument("NAME", options->name, ReportNames(), "the report form");
  AddCommonOptions(line, options->common);
  AddSelectionOptions(line, options->selection);
  line.WordOption("--tally", "KIND", options->tally, GridTallyNames(),
                  "the kind of tally that fills the report");
  line.NumberOption("--body", options->body, 0, 1, "1 with Ulbon and spirals, 0 deformed bars only");
  line.NumberOption("--percent", options->percent, 0, kHighestPercent, "uplift of the Ulbon weights");
  line.TextOption("--subproject", "TEXT", options->sub_project, "a line under the project's name");
  line.TextOption("--date", "YEAR/MONTH/DAY", options->date,
                  "the date as typed, the year of the era with era dates; default today");
  line.TextOption("-o", "FILE.pdf", options->pdf, "the PDF file to write");
  line.TextOption("--trace", "FILE", options->trace, "writes what the report drew, one operation a line");
  return [options] { RunReport(*options); };
}

}  // namespace rbt
