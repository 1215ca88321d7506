// SPDX-License-Identifier: MIT
// Real Jet files: import, check, dump.
#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "cli/command_line.h"
#include "cli/output.h"
#include "jet/check.h"
#include "jet/csv_dump.h"
#include "jet/import/import_file.h"
#include "jet/lock_file.h"
#include "platform/fault.h"
#include "platform/text/cp932.h"
#include "platform/text/csv.h"
#include "shell/import/import_folder.h"
#include "shell/live/import_saved.h"
#include "shell/live/second_copy.h"
#include "shell/live/working_copy.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

/// Steel that was not taken, or perhaps not rightly, is told where a script that reads no report meets it.
void TellWhatIsMissing(const jet::ImportReport& report) {
  const std::string source = report.source.string();
  if (report.Refused() > 0) {
    ReportError(fmt::format("{}: {} rows were refused, see REFUSED", source, report.Refused()));
  }
  if (!report.damages.empty()) {
    ReportError(fmt::format("{}: damage found in its tables: {}, see DAMAGE", source, report.damages.size()));
  }
}

void ImportFolder(const fs::path& folder, const fs::path& root) {
  const FolderReport report = ImportDataFolder(folder, root);
  WriteResult(ReportText(report));
  for (const jet::ImportReport& file : report.files) TellWhatIsMissing(file);
  if (!report.failed.empty()) {
    throw Fault(FaultKind::file,
                fmt::format("{} of the databases could not be imported, see FAILED", report.failed.size()));
  }
}

void Import(const fs::path& source, const fs::path& target, jet::OnDamage on_damage) {
  if (fs::is_directory(source)) {
    ImportFolder(source, target);
    return;
  }
  std::error_code not_there;
  const bool in_place = fs::equivalent(source, target, not_there);
  const jet::ImportReport report =
      in_place ? ImportInPlaceWithSaved(source, on_damage) : jet::ImportJetFile(source, target);
  WriteResult(jet::ReportText(report));
  TellWhatIsMissing(report);
}

constexpr std::pair<CopyState, std::string_view> kStates[] = {
    {CopyState::missing, "is not there yet and would be made"},
    {CopyState::fresh, "is up to date"},
    {CopyState::stale, "would be made anew: the Jet file has changed"},
    {CopyState::outdated, "would be made anew: another version of the program made it"},
    {CopyState::foreign, "cannot be used: it would be set aside and made anew"},
};

/// Working copies that are not the one a session takes.
std::string TextOfSecondCopies(const std::vector<SecondCopy>& copies) {
  std::string text;
  for (const SecondCopy& second : copies) {
    text +=
        second.is_readable
            ? fmt::format("session: another working copy {}, with tallies that are saved there alone: {}\n",
                          second.copy.string(), second.lacking)
            : fmt::format("session: another working copy {}, which cannot be read\n", second.copy.string());
  }
  return text;
}

/// A file of the store that took a Jet file's place may lack what was saved while that was read in place.
void TellOfCopiesBesideStore(const fs::path& file) {
  if (!jet::IsJetFile(file)) WriteResult(TextOfSecondCopies(SecondCopies(file)));
}

/// What a session would do with the file.
std::string TextOfSession(const fs::path& file, bool is_damaged) {
  if (is_damaged) return "session: would not read it in place: it is damaged\n";
  const CopyLook look = LookAtWorkingCopy(file);
  const auto* const state =
      std::ranges::find(kStates, look.state, &std::pair<CopyState, std::string_view>::first);
  std::string text = "session: would read it in place\n";
  text += fmt::format("session: its working copy {} {}\n", look.copy.string(), state->second);
  text += TextOfSecondCopies(SecondCopies(file));
  if (look.saved_tallies > 0) {
    text += fmt::format("session: tallies that are saved there alone: {}\n", look.saved_tallies);
  }
  if (look.refused_rows > 0) {
    text += fmt::format("session: rows that it could not take, missing in tallies: {}\n", look.refused_rows);
  }
  return text;
}

void Check(const std::string& name) {
  TellOfCopiesBesideStore(name);
  const auto file = jet::JetFile::Open(name);
  jet::CheckReport report = jet::CheckFile(*file);
  if (const auto note = jet::NoteOnLockFile(name)) report.warnings.push_back(*note);
  std::string text;
  for (const std::string& line : report.lines) text += line + "\n";
  for (const std::string& warning : report.warnings) text += "warning: " + warning + "\n";
  for (const std::string& damage : report.damages) text += "damage: " + damage + "\n";
  // Damage that lies in no table of the user is in nobody's way.
  text += TextOfSession(name, !report.damages.empty() && !jet::DamageOfTables(*file).empty());
  WriteResult(text);
  if (!report.damages.empty()) {
    throw Fault(FaultKind::file, fmt::format("{}: {} damages found", name, report.damages.size()));
  }
}

/// Writes pieces of a text in larger ones.
class ResultWriter {
 public:
  /// `name` stands for what is written, in faults.
  ResultWriter(bool cp932, std::string name) : cp932_(cp932), name_(std::move(name)) {}

  void Write(std::string_view text) {
    constexpr std::size_t kEnough = 1 << 16;
    waiting_ += cp932_ ? InCp932(text) : text;
    if (text.ends_with(kCsvRecordEnd)) ++records_;
    if (waiting_.size() >= kEnough) Flush();
  }
  void Flush() {
    WriteResult(waiting_);
    waiting_.clear();
  }

 private:
  std::string InCp932(std::string_view text) const {
    // Behind the header line the number of the record is that of the row.
    return At([&] { return fmt::format("{}: row {}", name_, records_); }, [&] { return ToCp932(text); });
  }

  bool cp932_;
  std::string name_;
  std::size_t records_ = 0;
  std::string waiting_;
};

void Dump(const std::string& name, const std::string& table, bool cp932) {
  const auto file = jet::JetFile::Open(name);
  ResultWriter writer(cp932, table.empty() ? name : fmt::format("{}: {}", name, table));
  const jet::TextSink sink = [&writer](std::string_view text) { writer.Write(text); };
  std::string warning;
  if (table.empty()) {
    jet::DumpTables(*file, sink);
  } else {
    warning = jet::DumpRows(*file, table, sink);
  }
  writer.Flush();
  if (!warning.empty()) ReportError(warning);
}

}  // namespace

Action DefineImport(CommandLine& line) {
  struct Options {
    std::string source;
    std::string target;
    bool despite_damage = false;
  };
  auto options = std::make_shared<Options>();
  line.FileArgument("SOURCE", options->source,
                    "a real Jet file, or a folder of such files: DATA, or the root above it");
  line.FileArgument(
      "TARGET", options->target,
      "the new file, or the root folder that gets a new DATA folder; SOURCE itself: a Jet file is "
      "replaced and kept as SOURCE.jet");
  line.Flag("--despite-damage", options->despite_damage,
            "import a Jet file in its own place though the check finds damage in it");
  return [options] {
    Import(options->source, options->target,
           options->despite_damage ? jet::OnDamage::take : jet::OnDamage::refuse);
  };
}

Action DefineCheck(CommandLine& line) {
  auto file = std::make_shared<std::string>();
  line.FileArgument("FILE", *file, "a real Jet file");
  return [file] { Check(*file); };
}

Action DefineDump(CommandLine& line) {
  struct Options {
    std::string file;
    std::string table;
    bool cp932 = false;
  };
  auto options = std::make_shared<Options>();
  line.FileArgument("FILE", options->file, "a real Jet file");
  line.OptionalArgument("TABLE", options->table, "the table whose rows to print; without it, the tables");
  line.Flag("--cp932", options->cp932, "in code page 932 in place of UTF-8");
  return [options] { Dump(options->file, options->table, options->cp932); };
}

}  // namespace rbt
