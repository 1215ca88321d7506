// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "store/database.h"

namespace rbt {

/// The bound site: its names, grades and open databases.
struct SiteContextData {
  std::string SelectedDbName;              ///< 選択ＤＢ名, for instance "GENBA001.MDB"
  std::string SiteNumberText;              ///< characters 6 to 8 of it, "001"
  std::string LongSiteName;                ///< 長い工事名, empty when null
  std::int32_t LongSiteNameWidth = 50;     ///< 工事名区切り文字数
  std::int32_t MakerNumber = 0;            ///< メーカーNo, 0 when null
  std::array<std::string, 11> GradeNames;  ///< entries 1 to 10: SD名 of SDコード, trimmed

  /// The site is only read: what has to be worked out in its files is worked out on private copies.
  bool OnlyRead = false;

  std::unique_ptr<Database> WorkDatabase;  ///< GENBAnnn.MDB, or a private copy of it
  /// HIROInnn.mdb while registered names are worked with, or a private copy of it; null otherwise.
  std::unique_ptr<Database> NameDatabase;
  std::unique_ptr<Database> MasterDatabase;  ///< SORANO.MDB, open for the run
  std::unique_ptr<Database> FixedStockDatabase;  ///< MTTeijyaku.mdb, open for the run when テーブル有無 is 1
  /// Its table as the current tally reads it, a private copy; null where the file has none that can be read.
  std::unique_ptr<Database> FixedStockTable;
  std::optional<FileState> FixedStockReadAt;  ///< how the file stood when the table was read

  /// How the schedule file stood when it was last known to be classified for the start mode.
  std::optional<FileState> ClassifiedAt;
  /// How it stood when the private copy was made.
  std::optional<FileState> CopiedAt;
  bool ToldOfCopy = false;  ///< the user knows that a copy stands in for the site's file
};

extern SiteContextData SiteContext;

/// Characters 6 to 8 of a schedule file's name: "001" of "GENBA001.MDB"; a shorter name gives fewer.
std::string SiteNumberOf(std::string_view file_name);
/// Binds the context to a schedule file by its name; the database is not opened.
void SelectSite(std::string_view file_name);
/// Opens `\RBK\DATA\` + `SelectedDbName` and leaves it in `SiteContext`; where it stands open there, and the
/// name still leads to it, it stays open. A file that is no site throws `file`: it must hold 加工テーブル,
/// and be none of the family's other databases whatever its name.
void OpenWorkDatabase();
/// Opens the site's companion file: for reading where the site is only read.
Database OpenCompanionDatabase();

/// Opens `\RBK\DATA\SORANO.MDB` for the run, into `SiteContext`.
void OpenMasterDatabase();
/// `\RBK\DATA\HIROI` + `SiteNumberText` + ".mdb", as a family path.
std::string CompanionDatabasePath();

}  // namespace rbt
