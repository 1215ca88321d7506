// SPDX-License-Identifier: MIT
#include "platform/jet/import/import_file.h"

#include <string_view>
#include <sys/stat.h>

#include <fmt/format.h>

#include "platform/fault.h"
#include "platform/jet/import/row_copy.h"
#include "platform/jet/import/swap_in.h"
#include "platform/jet/lock_file.h"
#include "platform/system/system_error.h"

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

void CopyTables(JetFile& file, const fs::path& target, ImportReport& report) {
  Database database = Database::CreateDatabase(target);
  Transaction transaction(database);
  for (const CatalogEntry& entry : ReadCatalog(file)) {
    if (!IsUserTable(entry)) {
      NoteNotTaken(entry, report);
      continue;
    }
    const TableMapping mapping = MapTable(file, entry);
    database.CreateTable(mapping.target);
    report.tables.push_back(CopyRows(file, mapping, database, report.warnings));
    report.not_taken.insert(report.not_taken.end(), mapping.not_taken.begin(), mapping.not_taken.end());
  }
  transaction.Commit();
}

/// Writes everything into `work`; the report names `target`, where it will stand.
ImportReport Copy(const fs::path& source, const FileInWork& work, const fs::path& target) {
  ImportReport report;
  report.source = source;
  report.target = target;
  if (IsOpenElsewhere(source)) {
    report.warnings.push_back(fmt::format(
        "{} is open in another program; what has not been saved there is missing here", source.string()));
  }
  const FileState before(source);
  const auto file = JetFile::Open(source);
  CopyTables(*file, work.Path(), report);
  if (!(FileState(source) == before)) {
    throw FileFaultText(source, "was changed by another program while it was read; nothing was imported");
  }
  return report;
}

void RequireFree(const fs::path& target) {
  std::error_code error;
  if (fs::exists(fs::symlink_status(target, error))) {
    throw FileFaultText(target, "is there already and is not overwritten");
  }
}

}  // namespace

ImportReport ImportJetFile(const fs::path& source, const fs::path& target) {
  RequireFree(target);
  FileInWork work(target);
  ImportReport report = Copy(source, work, target);
  work.PutInPlace(target);
  return report;
}

fs::path KeptJetFile(const fs::path& file) {
  fs::path kept = file;
  kept += ".jet";
  return kept;
}

ImportReport ImportJetFileInPlace(const fs::path& name) {
  // A link stays, and what it leads to is replaced.
  const fs::path file = fs::is_symlink(name) ? fs::canonical(name) : name;
  const fs::path kept = KeptJetFile(file);
  RequireFree(kept);
  FileInWork work(file);
  ImportReport report = Copy(file, work, file);
  work.PutInPlaceOf(file, kept);
  return report;
}

}  // namespace rbt::jet
