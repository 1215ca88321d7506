// SPDX-License-Identifier: MIT
#include "shell/context/site_context.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include <fmt/format.h>

#include "platform/files/system_error.h"
#include "platform/system/paths.h"
#include "platform/text/characters.h"

namespace rbt {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kDataFolder = "\\RBK\\DATA\\";
constexpr std::string_view kMasterDatabase = "\\RBK\\DATA\\SORANO.MDB";
/// What a site's file is not, beside its own companion.
constexpr std::string_view kOtherDatabases[] = {kMasterDatabase, "\\RBK\\DATA\\MTTeijyaku.mdb",
                                                "\\RBK\\DATA\\MTTeijyaku_ORG.mdb",
                                                "\\RBK\\DATA\\JSyukeiORG.mdb", "\\RBK\\DATA\\hozon.MDB"};
constexpr std::string_view kScheduleTable = "加工テーブル";

/// True where a database is open as it would be opened now, and stands for the file as it is now.
bool StandsOpen(const std::unique_ptr<Database>& database, const fs::path& file) {
  return database && !database->IsPrivateCopy() && database->MayBeWritten() != SiteContext.OnlyRead &&
         StandsFor(*database, file);
}

/// Other databases are told apart before they are opened: a working copy is made of none of them.
void RequireNoOther(const fs::path& file) {
  const auto refuse_if = [&](std::string_view other) {
    std::error_code not_there;
    if (!fs::equivalent(file, MapPath(other), not_there)) return;
    throw FileFaultText(file, fmt::format("is no site but {}", MapPath(other).filename().string()));
  };
  for (const std::string_view other : kOtherDatabases) refuse_if(other);
  refuse_if(CompanionDatabasePath());
}

void RequireSite(Database& database, const fs::path& file) {
  if (database.FindTable(kScheduleTable) == nullptr) {
    throw FileFaultText(file, fmt::format("is no site: it has no table {}", kScheduleTable));
  }
}

}  // namespace

SiteContextData SiteContext;

std::string SiteNumberOf(std::string_view file_name) { return std::string(Mid(file_name, 6, 3)); }

void SelectSite(std::string_view site) {
  if (SelectedSite() != site) {
    SiteContext.ClassifiedAt.reset();
    SiteContext.CopiedAt.reset();
    SiteContext.ToldOfCopy = false;
    SiteContext.ReadiedCopy.clear();
    SiteContext.NameDatabase.reset();
  }
  const std::size_t name = site.starts_with('\\') ? site.find_last_of("\\/") + 1 : 0;
  SiteContext.SiteFolder = name == 0 ? kDataFolder : site.substr(0, name);
  SiteContext.SelectedDbName = site.substr(name);
  SiteContext.SiteNumberText = SiteNumberOf(SiteContext.SelectedDbName);
}

std::string SelectedSite() {
  return SiteContext.SiteFolder == kDataFolder ? SiteContext.SelectedDbName
                                               : SiteContext.SiteFolder + SiteContext.SelectedDbName;
}

fs::path FileOfSite(std::string_view site) {
  const std::string_view folder = site.starts_with('\\') ? std::string_view() : kDataFolder;
  return MapPath(fmt::format("{}{}", folder, site));
}

fs::path PathOfSite() { return MapPath(SiteContext.SiteFolder + SiteContext.SelectedDbName); }

LiveUse UseOfSite() { return {.jet = SiteContext.JetFiles, .only_read = SiteContext.OnlyRead}; }

void OpenWorkDatabase() {
  // With a fault none is open.
  std::unique_ptr<Database> site = std::move(SiteContext.WorkDatabase);
  const fs::path file = PathOfSite();
  RequireNoOther(file);
  if (!StandsOpen(site, file)) {
    site.reset();
    site = std::make_unique<Database>(OpenLive(file, UseOfSite()));
  }
  site->LetGo();
  RequireSite(*site, file);
  SiteContext.WorkDatabase = std::move(site);
}

bool SiteStandsOpen() { return StandsFor(*SiteContext.WorkDatabase, PathOfSite()); }

bool SiteIsWorkingCopy() {
  return SiteContext.WorkDatabase && SiteContext.WorkDatabase->File() != PathOfSite();
}

bool SiteIsAnotherCopy() {
  return SiteContext.WorkDatabase &&
         MarkOfCopy(*SiteContext.WorkDatabase, PathOfSite()) != SiteContext.ReadiedCopy;
}

void NoteSiteReadied() { SiteContext.ReadiedCopy = MarkOfCopy(*SiteContext.WorkDatabase, PathOfSite()); }

Database OpenCompanionDatabase() { return OpenLive(MapPath(CompanionDatabasePath()), UseOfSite()); }

Database OpenCompanionForReading() {
  return OpenLiveForReading(MapPath(CompanionDatabasePath()), UseOfSite());
}

void OpenMasterDatabase() {
  SiteContext.MasterDatabase.reset();
  SiteContext.MasterDatabase = std::make_unique<Database>(OpenLive(MapPath(kMasterDatabase), UseOfSite()));
}

bool MasterIsWorkingCopy() {
  return SiteContext.MasterDatabase && SiteContext.MasterDatabase->File() != MapPath(kMasterDatabase);
}

bool MasterIsOutdated() {
  if (!MasterIsWorkingCopy()) return false;
  const fs::path file = MapPath(kMasterDatabase);
  // Of a file that is too young to tell by its times the bytes tell.
  return !StandsFor(*SiteContext.MasterDatabase, file) && !HoldsBytesOf(*SiteContext.MasterDatabase, file);
}

std::string CompanionDatabasePath() {
  return SiteContext.SiteFolder + "HIROI" + SiteContext.SiteNumberText + ".mdb";
}

}  // namespace rbt
