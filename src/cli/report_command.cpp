// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <numeric>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/asked_tally.h"
#include "cli/command_line.h"
#include "cli/detail_changes.h"
#include "cli/options.h"
#include "cli/output_options.h"
#include "platform/files/files.h"
#include "platform/numbers/decimal_text.h"
#include "platform/print/diverted_deliveries.h"
#include "platform/print/print_trace.h"
#include "platform/system/clock.h"
#include "platform/system/printing.h"
#include "reports/floorpart/floor_reports.h"
#include "reports/forms/report_forms.h"
#include "reports/frame/report_site.h"
#include "shell/config/settings.h"
#include "tally/detail/detail_entry.h"
#include "tally/list_row.h"

namespace rbt {

namespace {

struct ReportOptions {
  std::string name;
  CommonOptions common;
  SelectionOptions selection;
  std::string tally;  ///< empty: as the form has it
  std::int32_t body = 1;
  DetailChanges changes;
  std::optional<std::string> sub_project;
  std::optional<std::string> date;
  std::string pdf;
  std::string trace;
  bool force = false;
  std::array<std::optional<std::string>, 3> memos;
  std::optional<std::string> memo_position;
  std::optional<std::string> installed;
  std::optional<std::string> date_position;
  std::optional<std::int32_t> floor;  ///< of a form of one floor; nothing: every floor with weight
  std::optional<std::int32_t> part;   ///< of a form of one part; nothing: every part
};

std::vector<std::string> ReportNames() {
  std::vector<std::string> names;
  for (const ReportForm& form : ReportForms()) names.emplace_back(form.word);
  return names;
}

/// The three texts between the slashes, as typed; nothing when no date was given.
std::optional<DateTexts> TypedDate(const std::optional<std::string>& given) {
  if (!given) return std::nullopt;
  const std::string& date = *given;
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

/// The floors whose sheets are asked for, one or all; those without weight are told and have none.
std::vector<std::int32_t> FloorsToPrint(const TallyResult& result, const std::optional<std::int32_t>& asked) {
  std::vector<std::int32_t> floors;
  bool listed = false;
  for (const std::int16_t floor : ListedFloorsOf(result)) {
    if (asked && *asked != floor) continue;
    listed = true;
    if (HasFloorWeight(result, floor)) {
      floors.push_back(floor);
    } else {
      TellFloorIsSkipped(floor);
    }
  }
  if (asked && !listed) throw UsageError("--floor: " + std::to_string(*asked) + " is no floor of the tally");
  return floors;
}

std::vector<std::int32_t> PartsToPrint(const std::optional<std::int32_t>& asked) {
  if (asked) return {*asked};
  std::vector<std::int32_t> parts(kOtherParts);
  std::iota(parts.begin(), parts.end(), kFirstPart);
  return parts;
}

/// What each document tells of: a floor, a part, or, of a form that needs none, 0.
std::vector<std::int32_t> SubjectsOf(const ReportForm& form, const ReportOptions& options,
                                     const TallyResult& result) {
  switch (form.document_of) {
    case DocumentOf::floor:
      return FloorsToPrint(result, options.floor);
    case DocumentOf::part:
      return PartsToPrint(options.part);
    case DocumentOf::result:
      break;
  }
  return {0};
}

/// The documents that a report ends. This program knows no printers but the PDF device.
Documents DocumentsOf(const ReportForm& form, ReportArguments arguments, const TallyResult& result,
                      const std::vector<std::int32_t>& subjects) {
  DivertedDeliveries diverted(Printers(), DivertedDeliveries::From::every_device);
  for (const std::int32_t subject : subjects) {
    arguments.FloorOrPart = subject;
    PrintForm(form, arguments, result);
  }
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

/// What the forms of the purchase list take and the others do not.
void RequireNoDetailOptions(const ReportOptions& options) {
  const bool sets = std::ranges::any_of(
      options.changes, [](const auto& change) { return std::holds_alternative<CellChange>(change); });
  const std::pair<std::string_view, bool> given[] = {{"--set", sets},
                                                     {"--memo1", options.memos[0].has_value()},
                                                     {"--memo2", options.memos[1].has_value()},
                                                     {"--memo3", options.memos[2].has_value()},
                                                     {"--memo-position", options.memo_position.has_value()},
                                                     {"--installed", options.installed.has_value()},
                                                     {"--date-position", options.date_position.has_value()}};
  for (const auto& [option, is_given] : given) {
    if (is_given) throw UsageError(std::string(option) + ": only the forms meisai-... take it");
  }
}

/// The one tally that a form is drawn from; empty: any that fills the diameter-by-length tables.
std::string_view TallyOf(ReportFamily family) {
  switch (family) {
    case ReportFamily::floor:
      return "floor";
    case ReportFamily::part:
      return "part";
    default:
      return {};
  }
}

/// The word of the tally, which the form decides or `--tally` tells.
std::string TallyWordFor(const ReportForm& form, const ReportOptions& options) {
  const std::string own(TallyOf(form.family));
  const std::vector<std::string> fitting = own.empty() ? GridTallyWords() : std::vector{own};
  if (options.tally.empty()) return own.empty() ? "bulk" : own;
  if (std::ranges::find(fitting, options.tally) == fitting.end()) {
    throw UsageError("--tally: " + std::string(form.word) + " is not drawn from the tally " + options.tally);
  }
  return options.tally;
}

/// What the forms of floors and parts take, and what they do not.
void RequireFloorPartOptions(const ReportForm& form, const ReportOptions& options) {
  if (options.floor && form.document_of != DocumentOf::floor) {
    throw UsageError("--floor: only the form kai-kakukai takes it");
  }
  if (options.part && form.document_of != DocumentOf::part) {
    throw UsageError("--part: only the form bui-kakubui takes it");
  }
  if (options.part && (*options.part < kFirstPart || *options.part > kOtherParts)) {
    throw UsageError("--part: " + std::to_string(*options.part) + " is no part of 1 to 11");
  }
  if (TallyOf(form.family).empty()) return;
  if (options.sub_project)
    throw UsageError("--subproject: " + std::string(form.word) + " has no place for it");
  if (!options.changes.empty()) throw UsageError("--percent: --uplift raises the floor and part tallies");
}

/// The uplift of Ulbon, the last one given: a whole number.
std::int32_t UlbonPercent(const DetailChanges& changes) {
  if (changes.empty()) return 0;
  const std::string& text = std::get<PercentChange>(changes.back()).text;
  const bool is_whole = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
  if (!is_whole || PercentOfText(text) > kHighestUlbonPercent) {
    throw UsageError("--percent: " + text + " is no whole number of 0 to " +
                     std::to_string(kHighestUlbonPercent));
  }
  return static_cast<std::int32_t>(PercentOfText(text));
}

/// What is not told is as the detail screen has it at first.
DetailArguments DetailArgumentsOf(const ReportOptions& options) {
  DetailArguments arguments = DetailArgumentsOf(Settings);
  for (std::size_t i = 0; i < options.memos.size(); ++i) arguments.Memos[i] = options.memos[i].value_or("");
  if (options.memo_position) {
    arguments.MemoPosition = *options.memo_position == "1" ? MemoPlace::above : MemoPlace::below;
  }
  if (options.installed) arguments.Installed = *options.installed == "1";
  if (options.date_position) {
    arguments.DatePosition = *options.date_position == "right" ? DatePlace::right : DatePlace::centre;
  }
  return arguments;
}

/// The result that a form shows: its list changed, or its Ulbon rows raised.
TallyResult ResultFor(const ReportForm& form, const ReportOptions& options) {
  const bool is_detail = form.family == ReportFamily::detail;
  RequireFloorPartOptions(form, options);
  if (is_detail) {
    RequireCells(options.changes);
  } else {
    RequireNoDetailOptions(options);
  }
  const std::int32_t ulbon_percent = is_detail ? 0 : UlbonPercent(options.changes);
  const std::string tally = TallyWordFor(form, options);
  TallyResult counted = CountAskedTally(tally, options.common, options.selection);
  if (is_detail) return Changed(std::move(counted), options.changes);
  if (std::holds_alternative<TallyTable>(counted.tables)) {
    return WithUlbonRaised(std::move(counted), ulbon_percent);
  }
  return counted;
}

void RunReport(const ReportOptions& options) {
  const std::optional<DateTexts> typed = TypedDate(options.date);
  RequireFiles(options);
  const ReportForm& form = FindReportForm(options.name);
  const TallyResult result = ResultFor(form, options);
  const DateTexts date = typed ? *typed : DefaultDateTexts(Now());
  const ReportArguments arguments{
      options.sub_project.value_or(""), date.year, date.month, date.day, options.body, result.ulbon_percent,
      DetailArgumentsOf(options)};
  const std::vector<std::int32_t> subjects = SubjectsOf(form, options, result);
  WriteDocuments(DocumentsOf(form, arguments, result, subjects), options);
}

void AddText(CommandLine& line, const std::string& name, const std::string& form,
             std::optional<std::string>& target, const std::string& description) {
  const auto take = [&target](const std::string& text) {
    target = text;
    return true;
  };
  line.FormOption(name, form, take, description);
}

void AddNumber(CommandLine& line, const std::string& name, std::optional<std::int32_t>& target,
               const std::string& description) {
  const auto take = [&target](const std::string& text) {
    target = WholeNumber(text);
    return target.has_value();
  };
  line.FormOption(name, "N", take, description);
}

/// A text, or one of two words.
void AddDetailOptions(CommandLine& line, ReportOptions& options) {
  const auto take = [](std::optional<std::string>& target, const std::vector<std::string>& words) {
    return [&target, words](const std::string& text) {
      target = text;
      return words.empty() || std::ranges::find(words, text) != words.end();
    };
  };
  for (std::size_t i = 0; i < options.memos.size(); ++i) {
    const std::string number = std::to_string(i + 1);
    line.FormOption("--memo" + number, "TEXT", take(options.memos[i], {}),
                    "memo line " + number + " of a purchase list");
  }
  line.FormOption("--memo-position", "0|1", take(options.memo_position, {"0", "1"}),
                  "memo lines below (0) or above (1) the table, on A4 landscape");
  line.FormOption("--installed", "0|1", take(options.installed, {"0", "1"}),
                  "1 with installed weights, on A4 landscape");
  line.FormOption("--date-position", "centre|right", take(options.date_position, {"centre", "right"}),
                  "where the date of a purchase list stands");
}

}  // namespace

Action DefineReport(CommandLine& line) {
  auto options = std::make_shared<ReportOptions>();
  line.WordArgument("NAME", options->name, ReportNames(), "the report form");
  AddCommonOptions(line, options->common);
  AddSelectionOptions(line, options->selection);
  AddFloorOptions(line, options->selection);
  line.WordOption(
      "--tally", "KIND", options->tally, TallyWords(),
      "the kind of tally that fills the report; default bulk, floor for kai-..., part for bui-...");
  line.NumberOption("--body", options->body, 0, 1, "1 with Ulbon and spirals, 0 deformed bars only");
  AddChangeOptions(line, options->changes, "uplift of the Ulbon weights, or of the bars of a purchase list");
  AddText(line, "--subproject", "TEXT", options->sub_project, "a line under the project's name");
  AddText(line, "--date", "YEAR/MONTH/DAY", options->date,
          "the date as typed, the year of the era with era dates; default today");
  AddDetailOptions(line, *options);
  AddNumber(line, "--floor", options->floor, "the one floor of kai-kakukai; default all with weight");
  AddNumber(line, "--part", options->part, "the one part of bui-kakubui, 1 to 11; default all");
  line.FileOption("-o", "FILE.pdf", options->pdf, "the PDF file to write");
  line.FileOption("--trace", "FILE", options->trace, "writes what the report drew, one operation a line");
  AddForceOption(line, options->force);
  return [options] { RunReport(*options); };
}

}  // namespace rbt
