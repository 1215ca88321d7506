// SPDX-License-Identifier: MIT
#include "shell/import/import_folder.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string_view>
#include <system_error>

#include <fmt/format.h>

#include "data/table_layouts.h"
#include "jet/import/import_file.h"
#include "jet/jet_file.h"
#include "platform/fault.h"
#include "platform/files/file_in_work.h"
#include "platform/files/file_sync.h"
#include "platform/files/files.h"
#include "platform/files/system_error.h"
#include "platform/text/characters.h"
#include "store/database.h"
#include "store/database_file.h"

namespace rbt {

namespace fs = std::filesystem;

namespace {

using Layout = std::vector<TableDef> (*)();

/// The databases of the family that this program works with. `stem` ends in `???` where a site's number
/// follows.
struct KnownDatabase {
  std::string_view stem;
  Layout layout;  ///< the tables that are looked for in it; null: none
};
constexpr KnownDatabase kKnownDatabases[] = {
    {"GENBA???", ScheduleFileTables},
    {"HIROI???", CompanionFileTables},
    {"SORANO", MasterFileTables},
    {"MTTeijyaku", FixedStockFileTables},
    {"MTTeijyaku_ORG", FixedStockFileTables},
    {"JSyukeiORG", nullptr},
};
constexpr std::string_view kSitePrefix = "GENBA";
constexpr std::size_t kSiteDigits = 3;
constexpr std::string_view kCompanionPrefix = "HIROI";
constexpr std::string_view kMaster = "SORANO.MDB";
constexpr std::string_view kFixedStock = "MTTeijyaku.mdb";
constexpr std::string_view kFixedStockOriginal = "MTTeijyaku_ORG.mdb";
constexpr std::string_view kTemplate = "JSyukeiORG.mdb";
constexpr std::string_view kIniFiles[] = {"STEEL.INI", "NEXTPRG.INI"};
constexpr std::string_view kScheduleTable = "加工テーブル";

/// Columns that files of older programs lack, or that are added when they are needed.
constexpr std::string_view kLateColumns[] = {"ネジ数", "定着板数", "切断", "予備3", "予備5"};
/// Tables that older sites lack, or that are made at load.
bool MayBeMissing(std::string_view table) {
  const std::vector<TableDef> archive = ArchiveTables();
  return table == "データーベースバージョン" || table == "形状テーブル" ||
         std::any_of(archive.begin(), archive.end(), [&](const TableDef& t) { return t.name == table; });
}

bool Matches(std::string_view stem, std::string_view pattern) {
  if (!pattern.ends_with("???")) return EqualIgnoringCase(stem, pattern);
  const std::string_view prefix = pattern.substr(0, pattern.size() - 3);
  return stem.size() > prefix.size() && EqualIgnoringCase(stem.substr(0, prefix.size()), prefix);
}

const KnownDatabase* KnownByName(const fs::path& name) {
  if (!EqualIgnoringCase(name.extension().string(), ".mdb")) return nullptr;
  const std::string stem = name.stem().string();
  const auto* known = std::find_if(std::begin(kKnownDatabases), std::end(kKnownDatabases),
                                   [&](const KnownDatabase& d) { return Matches(stem, d.stem); });
  return known == std::end(kKnownDatabases) ? nullptr : known;
}

/// File names are the same without regard to the case of ASCII letters; full-width letters are themselves.
struct NameLess {
  static char Fold(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
  bool operator()(const std::string& a, const std::string& b) const {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return Fold(x) < Fold(y); });
  }
};
using FilesByName = std::map<std::string, fs::path, NameLess>;

/// The files of a folder. Two names that differ in letter case only throw: to
/// the program they are one.
FilesByName FilesOf(const fs::path& folder) {
  FilesByName files;
  std::error_code error;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
    // A link that leads nowhere is a file that cannot be read.
    std::error_code nowhere;
    if (!entry.is_regular_file(nowhere) && (!entry.is_symlink() || entry.is_directory(nowhere))) continue;
    const std::string name = entry.path().filename().string();
    const auto [other, fresh] = files.emplace(name, entry.path());
    if (!fresh) {
      throw FileFaultText(folder, fmt::format("{} and {} are one name to the program", name,
                                              other->second.filename().string()));
    }
  }
  if (error) throw FileFault(folder, "cannot be read", error.value());
  return files;
}

/// The DATA folder of a root, as it is spelled where there is one: to the program letter case is nothing.
fs::path DataFolderOf(const fs::path& root) {
  constexpr std::string_view kName = "DATA";
  std::error_code no_root;
  for (const fs::directory_entry& entry : fs::directory_iterator(root, no_root)) {
    if (EqualIgnoringCase(entry.path().filename().string(), kName)) return entry.path();
  }
  return root / kName;
}

/// The same, which holds nothing yet or is not there.
fs::path FreeDataFolderOf(const fs::path& root) {
  fs::path folder = DataFolderOf(root);
  std::error_code error;
  if (!fs::exists(fs::symlink_status(folder))) return folder;
  if (!fs::is_directory(folder, error) || !fs::is_empty(folder, error)) {
    throw FileFaultText(folder, kIsThereAlready);
  }
  return folder;
}

bool HasFile(const fs::path& folder, std::string_view name) {
  std::error_code error;
  const fs::directory_iterator files(folder, error);
  return std::any_of(begin(files), end(files), [&](const fs::directory_entry& entry) {
    return EqualIgnoringCase(entry.path().filename().string(), name);
  });
}

/// The folder with the databases, or the DATA folder below it when it is a root.
fs::path DatabaseFolderOf(const fs::path& folder) {
  const fs::path below = DataFolderOf(folder);
  return !HasFile(folder, kMaster) && fs::is_directory(below) ? below : folder;
}

class FolderImport {
 public:
  FolderImport(const fs::path& data_folder, const fs::path& root)
      : source_(data_folder),
        target_(FreeDataFolderOf(root)),
        files_(FilesOf(data_folder)),
        root_(root),
        place_(root),
        work_(place_) {}

  FolderReport Run() {
    const std::string in_work = work_.Path().string();
    try {
      TakeAll();
    } catch (const Fault& fault) {
      // The folder in work is gone when the message is read.
      throw Fault(fault.Kind(), ReplaceAll(fault.Where(), in_work, target_.string()));
    }
    return std::move(report_);
  }

 private:
  void TakeAll() {
    for (const auto& [name, file] : files_) Take(file);
    for (const std::string_view name : kIniFiles) RequireIni(name);
    RequireCompanions();
    MakeFixedStock();
    MakeTemplate();
    work_.PutInPlace(target_);
  }

  bool Has(std::string_view name) const { return fs::exists(work_ / OwnName(name)); }

  /// The name as the folder spells it, or as it is given when the folder has none.
  std::string OwnName(std::string_view name) const {
    const auto found = files_.find(std::string(name));
    return found == files_.end() ? std::string(name) : found->second.filename().string();
  }

  void Take(const fs::path& file) {
    const std::string name = file.filename().string();
    const bool ini = std::any_of(std::begin(kIniFiles), std::end(kIniFiles),
                                 [&](std::string_view known) { return EqualIgnoringCase(known, name); });
    if (const KnownDatabase* known = KnownByName(name)) {
      TakeDatabase(file, *known);
    } else if (ini) {
      WriteCopy(name, ReadFileBytes(file));
    } else {
      report_.not_taken.push_back(name);
    }
  }

  void WriteCopy(const std::string& name, std::string_view bytes) {
    WriteFileAtomically(work_ / name, bytes);
    report_.copied.push_back(name);
  }

  void TakeDatabase(const fs::path& file, const KnownDatabase& known) {
    const std::string name = file.filename().string();
    try {
      if (jet::IsJetFile(file)) {
        jet::ImportReport report = jet::ImportJetFile(file, work_ / name);
        report.target = target_ / name;
        report_.files.push_back(std::move(report));
      } else {
        CopyDatabaseFile(file, work_ / name);
        report_.copied.push_back(name);
      }
    } catch (const CopyTargetFault&) {
      throw;
    } catch (const jet::TargetFault&) {
      throw;  // a full disk is no reason to leave out one file and go on
    } catch (const Fault& fault) {
      if (EqualIgnoringCase(name, kMaster) || fault.Kind() == FaultKind::stopped) throw;
      report_.failed.emplace_back(fault.what());
      return;
    }
    if (known.layout != nullptr) NoteMissingTables(name, known.layout());
  }

  void NoteMissingTables(const std::string& name, const std::vector<TableDef>& layout) {
    Database database = Database::OpenReadOnly(work_ / name);
    for (const TableDef& expected : layout) {
      const auto table = database.FindTable(expected.name);
      if (table == nullptr) {
        if (!MayBeMissing(expected.name)) {
          report_.warnings.push_back(fmt::format("{} has no table {}", name, expected.name));
        }
      } else if (expected.name == kScheduleTable) {
        NoteMissingColumns(name, *table, expected);
      }
    }
  }

  void NoteMissingColumns(const std::string& name, const TableDef& table, const TableDef& expected) {
    for (const FieldDef& field : expected.fields) {
      const bool late =
          std::find(std::begin(kLateColumns), std::end(kLateColumns), field.name) != std::end(kLateColumns);
      if (!late && table.FindField(field.name) == nullptr) {
        report_.warnings.push_back(
            fmt::format("{}: table {} has no column {}", name, table.name, field.name));
      }
    }
  }

  void RequireIni(std::string_view name) {
    if (!Has(name)) report_.warnings.push_back(fmt::format("{} is missing", name));
  }

  /// A site needs its companion; one made up would be one without spirals.
  void RequireCompanions() {
    if (!Has(kMaster)) throw FileFaultText(source_ / kMaster, "the master database is missing");
    for (const auto& [name, file] : files_) {
      if (name.size() <= kSitePrefix.size() || KnownByName(name) == nullptr ||
          !EqualIgnoringCase(name.substr(0, kSitePrefix.size()), kSitePrefix)) {
        continue;
      }
      const std::string number = file.stem().string().substr(kSitePrefix.size(), kSiteDigits);
      const std::string companion = fmt::format("{}{}.mdb", kCompanionPrefix, number);
      if (!Has(companion))
        report_.warnings.push_back(fmt::format("{}: its companion {} is missing", name, companion));
    }
  }

  void MakeFixedStock() {
    if (Has(kFixedStockOriginal)) return;
    if (Has(kFixedStock)) {
      CopyDatabaseFile(work_ / OwnName(kFixedStock), work_ / kFixedStockOriginal);
      report_.made.push_back(fmt::format("{}, a copy of {}", kFixedStockOriginal, kFixedStock));
    } else {
      MakeEmpty(kFixedStockOriginal, FixedStockFileTables());
      report_.warnings.push_back(fmt::format("{} is missing: no fixed stock lengths are known", kFixedStock));
    }
  }

  void MakeTemplate() {
    if (!Has(kTemplate)) MakeEmpty(kTemplate, ArchiveTables());
  }

  void MakeEmpty(std::string_view name, const std::vector<TableDef>& tables) {
    Database database = Database::CreateDatabase(work_ / name);
    Transaction transaction(database);
    for (const TableDef& table : tables) database.CreateTable(table);
    transaction.Commit();
    report_.made.push_back(fmt::format("{}, empty", name));
  }

  fs::path source_;
  fs::path target_;
  FilesByName files_;
  MadeFolder root_;
  WorkPlace place_;
  FolderInWork work_;
  FolderReport report_;
};

}  // namespace

FolderReport ImportDataFolder(const fs::path& data_folder, const fs::path& root) {
  if (!fs::is_directory(data_folder)) throw FileFaultText(data_folder, "is no folder");
  return FolderImport(DatabaseFolderOf(data_folder), root).Run();
}

std::string ReportText(const FolderReport& report) {
  std::string text;
  for (const jet::ImportReport& file : report.files) text += jet::ReportText(file);
  const auto list = [&](std::string_view what, const std::vector<std::string>& names) {
    for (const std::string& name : names) text += fmt::format("{}: {}\n", what, name);
  };
  list("copied", report.copied);
  list("made", report.made);
  list("not taken", report.not_taken);
  list("warning", report.warnings);
  list("FAILED", report.failed);
  return text;
}

}  // namespace rbt
