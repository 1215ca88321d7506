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

constexpr std::string_view kMasterDatabase = "\\RBK\\DATA\\SORANO.MDB";
/// What a site's file is not, beside its own companion.
constexpr std::string_view kOtherDatabases[] = {kMasterDatabase, "\\RBK\\DATA\\MTTeijyaku.mdb",
                                                "\\RBK\\DATA\\MTTeijyaku_ORG.mdb",
                                                "\\RBK\\DATA\\JSyukeiORG.mdb", "\\RBK\\DATA\\hozon.MDB"};
constexpr std::string_view kScheduleTable = "加工テーブル";

Database OpenFamilyDatabase(const fs::path& file) {
  return SiteContext.OnlyRead ? Database::OpenReadOnly(file) : Database::Open(file);
}

/// True where a database is open as it would be opened now, and its name still leads to it.
bool StandsOpen(const std::unique_ptr<Database>& database, const fs::path& file) {
  return database && database->File() == file && !database->IsPrivateCopy() &&
         database->MayBeWritten() != SiteContext.OnlyRead && !database->HasMoved();
}

void RequireSite(Database& database) {
  const auto refuse_if = [&](std::string_view other) {
    std::error_code not_there;
    if (!fs::equivalent(database.File(), MapPath(other), not_there)) return;
    throw FileFaultText(database.File(),
                        fmt::format("is no site but {}", MapPath(other).filename().string()));
  };
  for (const std::string_view other : kOtherDatabases) refuse_if(other);
  refuse_if(CompanionDatabasePath());
  if (database.FindTable(kScheduleTable) == nullptr) {
    throw FileFaultText(database.File(), fmt::format("is no site: it has no table {}", kScheduleTable));
  }
}

}  // namespace

SiteContextData SiteContext;

std::string SiteNumberOf(std::string_view file_name) { return std::string(Mid(file_name, 6, 3)); }

void SelectSite(std::string_view file_name) {
  if (SiteContext.SelectedDbName != file_name) {
    SiteContext.ClassifiedAt.reset();
    SiteContext.CopiedAt.reset();
    SiteContext.ToldOfCopy = false;
    SiteContext.NameDatabase.reset();
  }
  SiteContext.SelectedDbName = file_name;
  SiteContext.SiteNumberText = SiteNumberOf(file_name);
}

void OpenWorkDatabase() {
  // With a fault none is open.
  std::unique_ptr<Database> site = std::move(SiteContext.WorkDatabase);
  const fs::path file = MapPath("\\RBK\\DATA\\" + SiteContext.SelectedDbName);
  if (!StandsOpen(site, file)) {
    site.reset();
    site = std::make_unique<Database>(OpenFamilyDatabase(file));
  }
  site->LetGo();
  RequireSite(*site);
  SiteContext.WorkDatabase = std::move(site);
}

Database OpenCompanionDatabase() { return OpenFamilyDatabase(MapPath(CompanionDatabasePath())); }

void OpenMasterDatabase() {
  SiteContext.MasterDatabase.reset();
  SiteContext.MasterDatabase = std::make_unique<Database>(OpenFamilyDatabase(MapPath(kMasterDatabase)));
}

std::string CompanionDatabasePath() { return "\\RBK\\DATA\\HIROI" + SiteContext.SiteNumberText + ".mdb"; }

}  // namespace rbt
