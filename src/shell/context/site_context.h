// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "shell/live/live_database.h"
#include "store/database.h"

namespace rbt {

/// The bound site: its names, grades and open databases.
struct SiteContextData {
  std::string SelectedDbName;                ///< 選択ＤＢ名, for instance "GENBA001.MDB"
  std::string SiteFolder = "\\RBK\\DATA\\";  ///< the folder of it and of its companion, a family path
  std::string SiteNumberText;                ///< characters 6 to 8 of it, "001"
  std::string LongSiteName;                  ///< 長い工事名, empty when null
  std::int32_t LongSiteNameWidth = 50;       ///< 工事名区切り文字数
  std::int32_t MakerNumber = 0;              ///< メーカーNo, 0 when null
  std::array<std::string, 11> GradeNames;    ///< entries 1 to 10: SD名 of SDコード, trimmed

  /// The site is only read: what has to be worked out in its files is worked out on private copies.
  bool OnlyRead = false;
  /// What becomes of real Jet files among the site's databases.
  JetChoice JetFiles = JetChoice::read_in_place;

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
  std::string ReadiedCopy;  ///< mark of the working copy that was readied as the load does; empty: none
};

extern SiteContextData SiteContext;

/// Characters 6 to 8 of a schedule file's name: "001" of "GENBA001.MDB"; a shorter name gives fewer.
std::string SiteNumberOf(std::string_view file_name);
/// Binds the context to a schedule file by its name in DATA or by a family path that begins with `\`; the
/// database is not opened.
void SelectSite(std::string_view site);
/// The bound site as `SelectSite` takes it.
std::string SelectedSite();
/// The file of a site as `SelectSite` takes it, and of the bound one.
std::filesystem::path FileOfSite(std::string_view site);
std::filesystem::path PathOfSite();
/// How the databases of the bound site are opened.
LiveUse UseOfSite();
/// Opens `PathOfSite()` and leaves it in `SiteContext`; where it stands open there, and is up to date, it
/// stays open. A file that is no site throws `file`: it must hold 加工テーブル, and be none of the family's
/// other databases whatever its name.
void OpenWorkDatabase();
/// True where what is open for the site, be it a private copy, stands for its file as it is now.
bool SiteStandsOpen();
/// True where what is open for the site is a working copy of a Jet file.
bool SiteIsWorkingCopy();
/// True where a working copy of a Jet file stands for the site that has not been readied as the load does.
bool SiteIsAnotherCopy();
/// Notes that it has been.
void NoteSiteReadied();

/// Opens the site's companion file: for reading where the site is only read.
Database OpenCompanionDatabase();
Database OpenCompanionForReading();

/// Opens `\RBK\DATA\SORANO.MDB` for the run, into `SiteContext`.
void OpenMasterDatabase();
/// True where that is a working copy and its Jet file has changed.
bool MasterIsOutdated();
/// True where that is a working copy: the family's databases are Jet files that are read in place.
bool MasterIsWorkingCopy();
/// `HIROI` + `SiteNumberText` + ".mdb" in the site's folder, as a family path.
std::string CompanionDatabasePath();

}  // namespace rbt
