// SPDX-License-Identifier: MIT
#include "shell/context/site_context.h"

#include "platform/system/paths.h"
#include "platform/text/characters.h"

namespace rbt {

namespace {

constexpr std::string_view kMasterDatabase = "\\RBK\\DATA\\SORANO.MDB";

}  // namespace

SiteContextData SiteContext;

std::string SiteNumberOf(std::string_view file_name) { return std::string(Mid(file_name, 6, 3)); }

void SelectSite(std::string_view file_name) {
  SiteContext.SelectedDbName = file_name;
  SiteContext.SiteNumberText = SiteNumberOf(file_name);
}

void OpenWorkDatabase() {
  SiteContext.WorkDatabase.reset();
  SiteContext.WorkDatabase =
      std::make_unique<Database>(Database::Open(MapPath("\\RBK\\DATA\\" + SiteContext.SelectedDbName)));
}

void OpenMasterDatabase() {
  SiteContext.MasterDatabase.reset();
  SiteContext.MasterDatabase = std::make_unique<Database>(Database::Open(MapPath(kMasterDatabase)));
}

std::string CompanionDatabasePath() { return "\\RBK\\DATA\\HIROI" + SiteContext.SiteNumberText + ".mdb"; }

}  // namespace rbt
