// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/database.h"

namespace rbt {

/// A site's row of `工事テーブル`.
struct SiteHead {
  std::int32_t number = 0;       ///< 番号
  std::string name;              ///< 工事名, empty when null
  std::string data_path;         ///< データパス
  std::int32_t client_code = 0;  ///< 取引先コード, 0 when null
};

/// The statement that finds a site's row by the name of its schedule file.
std::string SiteHeadStatement(std::string_view file_name);
/// The row of a site, here and below by the name of its schedule file, around which blanks may stand in
/// データパス. One that the master database lacks throws `database`.
SiteHead ReadSiteHead(Database& master, std::string_view file_name);
/// The rows of all sites, by their numbers.
std::vector<SiteHead> AllSiteHeads(Database& master);
/// The row of a site by its number; nothing when there is none.
std::optional<SiteHead> FindSiteHead(Database& master, std::int32_t number);

/// 会社名 of a client, empty when it is null or the code has no row.
std::string ClientName(Database& master, std::int32_t code);

/// The second, longer name of a site as sheets print it.
struct LongName {
  std::string name;         ///< 長い工事名, empty when null
  std::int32_t width = 50;  ///< 工事名区切り文字数, characters on the first line
};
/// The long name of a site. Where there is one and its width is null, 50 is written into the row, unless the
/// file may only be read.
LongName ReadLongName(Database& master, std::string_view file_name);
/// メーカーNo of a site, 0 when null.
std::int32_t ReadMakerNumber(Database& master, std::string_view file_name);
/// Who supplies the steel of a site, 支給形態.
enum class SteelSupply : std::int32_t { own = 0, supplied = 1 };
/// That of a site; null and numbers without a meaning count as own.
SteelSupply ReadSteelSupply(Database& master, std::string_view file_name);

/// What a site's row of `工事テーブル` tells of its bars, by diameter D10, D13, ..., D51.
struct SiteGrades {
  std::array<std::int32_t, 12> codes{};  ///< SD10 to SD51: grade codes, 0 when null
  std::array<std::string, 12> makers;    ///< the twelve columns behind SD51, empty when null
};
SiteGrades ReadSiteGrades(Database& master, std::string_view file_name);

/// SD名 of a grade code, trimmed; nothing when the code has no row.
std::optional<std::string> GradeName(Database& master, std::int32_t code);
/// The names of grades 1 to 10 under their codes. A code without a row is told by a message and stays empty.
std::array<std::string, 11> ReadGradeNames(Database& master);

/// The table that a part's name is looked up in.
enum class PartNaming { first, second };  ///< 部位名テーブル, 部位名２テーブル
/// 部位名 of a part, empty when it is null or the code has no row.
std::string PartName(Database& master, std::int32_t part, PartNaming naming);

}  // namespace rbt
