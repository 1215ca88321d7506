// SPDX-License-Identifier: MIT
#include "jet/import/import_file.h"

#include <cerrno>
#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fmt/format.h>

#include "jet/check.h"
#include "jet/import/kept_original.h"
#include "jet/import/row_copy.h"
#include "jet/lock_file.h"
#include "platform/fault.h"
#include "platform/files/file_descriptor.h"
#include "platform/files/file_in_work.h"
#include "platform/files/file_lock.h"
#include "platform/files/file_sync.h"
#include "platform/files/files.h"
#include "platform/files/system_error.h"
#include "platform/pass_over_faults.h"
#include "platform/text/characters.h"

namespace rbt::jet {

namespace fs = std::filesystem;

namespace {

struct KindName {
  CatalogEntry::Kind kind;
  std::string_view name;
};
constexpr KindName kNotTaken[] = {
    {CatalogEntry::Kind::query, "query"},
    {CatalogEntry::Kind::form, "form"},
    {CatalogEntry::Kind::report, "report"},
    {CatalogEntry::Kind::macro, "macro"},
    {CatalogEntry::Kind::module, "module"},
    {CatalogEntry::Kind::link, "link"},
    {CatalogEntry::Kind::relationship, "relationship"},
};

/// How a file stands, to see whether somebody wrote it.
class FileState {
 public:
  explicit FileState(const fs::path& file) {
    if (::stat(file.c_str(), &state_) != 0) throw FileFault(file, "cannot be read");
  }
  bool operator==(const FileState& other) const {
    return state_.st_size == other.state_.st_size && state_.st_mtim.tv_sec == other.state_.st_mtim.tv_sec &&
           state_.st_mtim.tv_nsec == other.state_.st_mtim.tv_nsec && state_.st_ino == other.state_.st_ino;
  }

 private:
  struct stat state_ {};
};

/// The right to put something else in a file's place: one import at a time has it. Where the file system
/// knows no locks everybody has.
class SoleImport {
 public:
  explicit SoleImport(const fs::path& file) : lock_(::open(file.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (!lock_.IsOpen()) throw FileFault(file, "cannot be opened");
    if (!Lock(lock_, LOCK_EX | LOCK_NB) && !HasNoLocks(errno)) {
      throw FileFaultText(file, "another program is importing it");
    }
    struct stat locked {};
    struct stat named {};
    if (::fstat(lock_.Number(), &locked) != 0 || ::stat(file.c_str(), &named) != 0) {
      throw FileFault(file, "cannot be read");
    }
    // The one before may have come to its end in between.
    if (locked.st_ino != named.st_ino || locked.st_dev != named.st_dev) {
      throw FileFaultText(file, "another program has imported it");
    }
  }

 private:
  FileDescriptor lock_;
};

void NoteNotTaken(const CatalogEntry& entry, ImportReport& report) {
  for (const KindName& kind : kNotTaken) {
    // The queries behind forms and the relationships of the system tables are nobody's.
    if (kind.kind == entry.kind && !entry.name.starts_with("~") && !entry.name.starts_with("MSys")) {
      report.not_taken.push_back(fmt::format("{} {}", kind.name, entry.name));
    }
  }
}

bool IsUserTable(const CatalogEntry& entry) {
  return entry.kind == CatalogEntry::Kind::table && !entry.system && !entry.name.starts_with("~");
}

/// The cause that a fault of the store tells, without the file in work and the statement behind it.
std::string CauseIn(const Fault& fault, const FileInWork& work) {
  const std::string text = fault.what();
  return text.substr(0, text.find(": " + work.Path().string() + ": "));
}

/// Runs a step that writes the target, whose faults name the target in place of the file in work. `what` is
/// written; empty: the file as such.
template <typename Step>
auto OnTarget(const FileInWork& work, const fs::path& target, const std::string& what, Step step) {
  const std::string in_work = work.Path().string();
  try {
    return step();
  } catch (const Fault& fault) {
    const std::string cause = ReplaceAll(CauseIn(fault, work), in_work, target.string());
    if (cause.starts_with(target.string())) throw TargetFault(FaultKind::file, cause);
    throw TargetFault(FaultKind::file, target.string() + ": " + (what.empty() ? "" : what + ": ") + cause);
  }
}

/// A table that the store does not take is the Jet file's own matter, a full disk is not.
void MakeTable(const JetFile& file, const TableMapping& mapping, Database& database, const FileInWork& work,
               const fs::path& target) {
  const auto fault = OnTarget(work, target, "", [&] {
    return PassOverFaultsOfContent([&] { database.CreateTable(mapping.target); });
  });
  if (fault) {
    file.Damaged(mapping.source.page,
                 fmt::format("table {} cannot be taken: {}", mapping.source.name, CauseIn(*fault, work)));
  }
}

/// Copies the rows of one table; the report gets what became of them.
void CopyRows(JetFile& file, const TableMapping& mapping, Database& database, const FileInWork& work,
              const ImportExtras& extras, ImportReport& report) {
  RowCopy copy(file, mapping, database, report.warnings);
  const std::string a_row = "a row of " + mapping.source.name;
  while (copy.ReadNext()) {
    OnTarget(work, report.target, a_row, [&] {
      const auto number = copy.Append();
      if (number && extras.row_taken) extras.row_taken({mapping.source.name, *number, copy.Place()});
    });
  }
  OnTarget(work, report.target, "", [&] { copy.Finish(); });
  report.tables.push_back(copy.Result());
}

void CopyTables(JetFile& file, const std::vector<CatalogEntry>& entries, const FileInWork& work,
                const ImportExtras& extras, ImportReport& report) {
  const auto on_target = [&](auto step) { return OnTarget(work, report.target, "", step); };
  Database database = on_target([&] { return Database::CreateDatabase(work.Path()); });
  Transaction transaction(database);
  if (extras.begin) on_target([&] { extras.begin(database); });
  for (const CatalogEntry& entry : entries) {
    if (!IsUserTable(entry)) {
      NoteNotTaken(entry, report);
      continue;
    }
    const TableMapping mapping = MapTable(file, entry);
    report.warnings.insert(report.warnings.end(), mapping.warnings.begin(), mapping.warnings.end());
    report.not_taken.insert(report.not_taken.end(), mapping.not_taken.begin(), mapping.not_taken.end());
    MakeTable(file, mapping, database, work, report.target);
    CopyRows(file, mapping, database, work, extras, report);
  }
  if (report.tables.empty()) {
    report.warnings.push_back(fmt::format("{}: no table was taken", report.source.string()));
  }
  if (extras.end) extras.end(database, report);
  on_target([&] { transaction.Commit(); });
}

void CheckWhatIsTaken(JetFile& file, std::vector<CatalogEntry> entries, ImportReport& report) {
  std::erase_if(entries, [](const CatalogEntry& entry) { return !IsUserTable(entry); });
  CheckReport check = CheckTables(file, entries);
  report.warnings.insert(report.warnings.end(), check.warnings.begin(), check.warnings.end());
  report.damages = std::move(check.damages);
}

/// Nobody looks at a report of what already stands in the place of the old file.
void RequireSound(const ImportReport& report) {
  if (report.damages.empty()) return;
  const std::size_t more = report.damages.size() - 1;
  throw FileFaultText(report.source,
                      fmt::format("damaged, nothing was imported: {}{}", report.damages.front(),
                                  more == 0 ? "" : fmt::format(" (and {} more)", more)));
}

/// Writes everything into `work`; the report names `target`, where it will stand.
ImportReport Copy(const fs::path& source, const FileInWork& work, const fs::path& target, OnDamage on_damage,
                  const ImportExtras& extras = {}) {
  const auto note = NoteOnLockFile(source);
  const FileState before(source);
  const auto file = JetFile::Open(source);
  ImportReport report = ImportTables(*file, work, target, on_damage, extras);
  if (note) report.warnings.insert(report.warnings.begin(), *note);
  if (!(FileState(source) == before)) {
    throw FileFaultText(source, "was changed by another program while it was read; nothing was imported");
  }
  return report;
}

void RequireFree(const fs::path& target) {
  if (IsTaken(target)) throw FileFaultText(target, kIsThereAlready);
}

}  // namespace

std::vector<std::string> DamageOfTables(JetFile& file) {
  ImportReport report;
  const auto fault = PassOverFaultsOfContent([&] { CheckWhatIsTaken(file, ReadCatalog(file), report); });
  if (fault) report.damages.emplace_back(fault->what());
  return std::move(report.damages);
}

ImportReport ImportTables(JetFile& file, const FileInWork& work, const fs::path& target, OnDamage on_damage,
                          const ImportExtras& extras) {
  ImportReport report;
  report.source = file.Name();
  report.target = target;
  const std::vector<CatalogEntry> entries = ReadCatalog(file);
  CheckWhatIsTaken(file, entries, report);
  if (on_damage == OnDamage::refuse) RequireSound(report);
  CopyTables(file, entries, work, extras, report);
  return report;
}

ImportReport ImportJetFile(const fs::path& source, const fs::path& target) {
  RequireFree(target);
  const WorkPlace place(FolderOf(target));
  FileInWork work(target, place, ReadOnlyTarget::replaced);
  ImportReport report = Copy(source, work, target, OnDamage::take);
  OnTarget(work, target, "", [&] { work.PutInPlace(); });
  return report;
}

fs::path KeptJetFile(const fs::path& file) {
  fs::path kept = file;
  kept += ".jet";
  return kept;
}

fs::path ReportFile(const fs::path& file) {
  fs::path report = KeptJetFile(file);
  report += ".txt";
  return report;
}

ImportReport ImportJetFileInPlace(const fs::path& name, OnDamage on_damage, const ImportExtras& extras) {
  // A link stays, and what it leads to is replaced.
  const fs::path file = fs::is_symlink(name) ? fs::canonical(name) : name;
  const SoleImport sole(file);
  const fs::path kept = KeptJetFile(file);
  // What the other program saves later would go into the Jet file that nobody reads any more.
  if (IsOpenElsewhere(file)) throw FileFaultText(file, "is open in another program; close it there first");
  RequireKeepable(file, kept);
  const WorkPlace place(FolderOf(file));
  FileInWork work(file, place, ReadOnlyTarget::replaced);
  ImportReport report = Copy(file, work, file, on_damage, extras);
  const bool kept_now = KeepUnder(file, kept);
  try {
    // Before the swap: what was refused is not to be forgotten, whatever happens behind it.
    FileInWork text(ReportFile(file), place, ReadOnlyTarget::replaced);
    OnTarget(text, ReportFile(file), "", [&] {
      text.Write(ReportText(report));
      text.Replace();
    });
    OnTarget(work, file, "", [&] { work.Replace(); });
  } catch (const Fault&) {
    // Behind the swap the Jet file stands under its second name alone.
    if (IsJetFile(file)) {
      ::unlink(ReportFile(file).c_str());
      if (kept_now) ::unlink(kept.c_str());
    }
    throw;
  }
  return report;
}

}  // namespace rbt::jet
