// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <variant>

#include "session/accumulation/site_choice.h"
#include "support/site_fixture.h"

namespace rbt::test {

/// Makes site `number` (2 to 9) as a copy of site 1 as it stands, with its row of the master file.
inline std::string AddSiteLikeTheFirst(SiteFixture& site, int number) {
  const std::string digits = "00" + std::to_string(number);
  const std::string schedule = "GENBA" + digits + ".MDB";
  std::filesystem::copy_file(site.Data(kScheduleFile), site.Data(schedule));
  std::filesystem::copy_file(site.Data(kCompanionFile), site.Data("HIROI" + digits + ".mdb"));
  site.Add(kMasterFile, "工事テーブル",
           {{"番号", std::int64_t{number}},
            {"工事名", "工事" + std::to_string(number)},
            {"データパス", schedule}});
  return schedule;
}

/// What stands in the place of the stored sum can be neither read nor deleted.
inline void PutFolderInPlaceOfTheFile(const SiteFixture& site) {
  std::filesystem::remove(site.Data("hozon.MDB"));
  site.PutProgram("DATA/hozon.MDB/kept");
}

/// The site that was chosen in a dialog; null when there is none.
template <typename Dialog>
const AddedSite* Chosen(const Dialog& dialog) {
  return std::get_if<AddedSite>(&dialog.Choice());
}

}  // namespace rbt::test
