// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "jet/import/import_report.h"
#include "jet/jet_file.h"
#include "platform/fault.h"
#include "platform/files/file_in_work.h"
#include "store/database.h"

namespace rbt::jet {

/// Not the Jet file is at fault but the place of the new one: a full disk, a folder that cannot be written.
class TargetFault : public Fault {
 public:
  using Fault::Fault;
};

/// Takes a real Jet file into a new file of the store: user tables with their columns, sizes, literal
/// defaults, primary keys and unique indexes, rows in key order. The Jet file is only read. `target` must not
/// exist; it appears when it is complete. The tables that are taken are checked first, and the report lists
/// what is damaged in them. A Jet file that cannot be read, or that changes meanwhile, throws `Fault` of kind
/// `file`, and so does, as `TargetFault`, a target that cannot be written; no `target` is left then.
ImportReport ImportJetFile(const std::filesystem::path& source, const std::filesystem::path& target);

/// Raised whenever an import makes something else of the same Jet file than before.
inline constexpr int kImportVersion = 1;

/// What becomes of an import in place when the check finds damage in what is to be taken.
enum class OnDamage { refuse, take };

/// What the check finds in the tables that an import takes: what keeps it from being taken in place.
std::vector<std::string> DamageOfTables(JetFile& file);

/// A row that was taken.
struct TakenRow {
  const std::string& table;
  std::int64_t number = 0;  ///< of the row in the store's table
  RowPointer place;         ///< in the Jet file
};
/// What an import does beside taking tables, in the same transaction. What is not set is not done.
struct ImportExtras {
  std::function<void(Database& target)> begin;
  std::function<void(const TakenRow& row)> row_taken;
  std::function<void(Database& target, const ImportReport& report)> end;
};

/// Takes the tables of an open Jet file into a database that this makes in work; it is to take the place of
/// `target`, which faults and the report name. All of it is one transaction. Damage and faults as with
/// `ImportJetFile` and `ImportJetFileInPlace`; whether the file changes meanwhile is the caller's to see.
ImportReport ImportTables(JetFile& file, const FileInWork& work, const std::filesystem::path& target,
                          OnDamage on_damage, const ImportExtras& extras = {});

/// Puts a store file with the contents of a real Jet file under the Jet file's own name. The Jet file stays
/// as `NAME.MDB.jet` beside it, where nothing else may stand yet, and the report as `NAME.MDB.jet.txt`. At
/// every moment a whole file stands under the name; after a fault nothing has changed. A file that another
/// program has open, or is importing, throws `file`, too, and so does one with damage, unless that is to be
/// taken. What `extras` writes is in the file when it takes the name.
ImportReport ImportJetFileInPlace(const std::filesystem::path& file, OnDamage on_damage = OnDamage::refuse,
                                  const ImportExtras& extras = {});
/// Where the Jet file is kept then.
std::filesystem::path KeptJetFile(const std::filesystem::path& file);
/// Where the report stands then.
std::filesystem::path ReportFile(const std::filesystem::path& file);

}  // namespace rbt::jet
