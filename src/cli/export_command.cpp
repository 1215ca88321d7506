// SPDX-License-Identifier: MIT
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "archive/csv/csv_file_name.h"
#include "archive/csv/csv_site.h"
#include "archive/csv/csv_text.h"
#include "archive/csv/do_backup.h"
#include "archive/store/saved_tallies.h"
#include "cli/asked_tally.h"
#include "cli/command_line.h"
#include "cli/detail_changes.h"
#include "cli/listed_names.h"
#include "cli/options.h"
#include "cli/output_options.h"
#include "cli/saved_lists.h"
#include "cli/session.h"
#include "platform/files/system_error.h"
#include "platform/system/clock.h"
#include "platform/system/message.h"
#include "tally/kinds/tally_kinds.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

struct ExportOptions {
  std::string kind;
  CommonOptions common;
  SelectionOptions selection;
  DetailChanges changes;
  SavedMemos memos;
  std::optional<std::string> saved;  ///< the name of a saved tally in place of a new one
  std::string layout;                ///< of a floor tally; empty: total
  std::string output;                ///< a file, or a folder that takes the dialog's name
  bool force = false;
};

FloorCsvLayout LayoutOf(const ExportOptions& options) {
  return options.layout == "parts" ? FloorCsvLayout::parts : FloorCsvLayout::total;
}

bool IsOfNames(const ExportOptions& options) {
  const TallyKindRow* row = FindTallyKind(options.kind);
  return row != nullptr && row->range == TallyRange::names;
}

void RequireOptionsOfKind(const ExportOptions& options) {
  if (options.output.empty()) throw UsageError("-o is required");
  const TallyKindRow* row = FindTallyKind(options.kind);
  if (!options.layout.empty() && (row == nullptr || row->kind != TallyKind::floor)) {
    throw UsageError("--layout: only the floor tally takes it");
  }
  RequireChangesOfKind(options.kind, options.changes);
  if (!IsOfNames(options)) return;
  if (options.saved) throw UsageError("--saved: tallies of registered names are not saved");
  if (!options.changes.empty()) throw UsageError("--percent, --set: not for the list of registered names");
}

bool IsFolder(const fs::path& output) {
  std::error_code error;
  const bool is_folder = fs::is_directory(output, error);
  if (!is_folder && !output.has_filename()) throw FileFaultText(output, "is no folder");
  return is_folder;
}

void RequireFile(const fs::path& file, bool force) {
  RequireOutputs({{"-o", {file, OutputKind::csv}}}, force);
}

CsvSubject SubjectOf(const ExportOptions& options) {
  if (IsOfNames(options)) return CsvOfNames{WeighedNames(options.common, options.selection.names)};
  CsvOfTally subject;
  if (options.saved) {
    OpenSite(options.common);
    LoadedTally loaded = LoadNamed(options.kind, *options.saved);
    subject.result = std::move(loaded.result);
    subject.memos = std::move(loaded.memos);
  } else {
    subject.result = CountAskedTally(options.kind, options.common, options.selection);
    subject.memos = options.memos;
  }
  if (!options.changes.empty()) subject.result = Changed(std::move(subject.result), options.changes);
  return subject;
}

void RunExport(const ExportOptions& options) {
  RequireOptionsOfKind(options);
  const bool into_folder = IsFolder(options.output);
  if (!into_folder) RequireFile(options.output, options.force);
  const CsvSubject subject = SubjectOf(options);
  const CsvSite site = ReadCsvSite(subject);
  fs::path file = options.output;
  if (into_folder) {
    file /= CsvFileName(subject, site.name, Now());
    RequireFile(file, options.force);
  }
  const std::string lacking = Do_BackUP(file, CsvText(subject, site, LayoutOf(options)));
  if (!lacking.empty()) MsgBox(ReplacedCharactersNotice(lacking));
}

}  // namespace

Action DefineExport(CommandLine& line) {
  auto options = std::make_shared<ExportOptions>();
  line.WordArgument(
      "KIND", options->kind, TallyWords(),
      "the kind of tally; names: the list of all, whatever the selection; takes the marks away");
  AddCommonOptions(line, options->common);
  AddSelectionOptions(line, options->selection);
  AddFloorOptions(line, options->selection);
  AddChangeOptions(line, options->changes, "uplift of the bars, each cell on its own");
  line.FormOption(
      "--saved", "NAME",
      [options](const std::string& text) {
        options->saved = text;
        return true;
      },
      "a saved tally of the kind, with its memos, in place of a new one; selection and memo options do not "
      "apply");
  for (std::size_t i = 0; i < options->memos.size(); ++i) {
    line.TextOption("--memo" + std::to_string(i + 1), "TEXT", options->memos.at(i),
                    "a memo below a tally by diameter and length");
  }
  line.WordOption("--layout", "", options->layout, {"total", "parts"},
                  "a floor tally as one table (default) or for each floor one of parts by diameter");
  line.FileOption("-o", "FILE.csv", options->output,
                  "the file to write, or a folder that it gets a name of its own in");
  AddForceOption(line, options->force);
  return [options] { RunExport(*options); };
}

}  // namespace rbt
