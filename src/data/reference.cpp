// SPDX-License-Identifier: MIT
#include "data/reference.h"

#include "data/diameters.h"
#include "data/quoted_text.h"
#include "platform/fault.h"
#include "platform/system/message.h"
#include "platform/text/characters.h"

namespace rbt {

namespace {

constexpr std::int32_t kDefaultWidth = 50;
constexpr std::int32_t kGradeCount = 10;

std::int32_t IntegerOrZero(const Recordset& rows, FieldHandle field) { return rows.Int32(field).value_or(0); }

std::string TextOrEmpty(const Recordset& rows, FieldHandle field) { return rows.Text(field).value_or(""); }

constexpr std::string_view kDataPaths = "SELECT データパス FROM 工事テーブル";

/// データパス as the site's row has it: blanks may stand around the name of the file there. A site without a
/// row in the master database cannot be worked on.
std::string PathInRow(Database& master, std::string_view file_name) {
  Recordset same =
      master.OpenSnapshot(std::string(kDataPaths) + " WHERE データパス = " + QuotedText(file_name, '\''));
  if (!same.Eof()) return std::string(file_name);
  const std::string name = FoldIdentifier(Trim(file_name));
  for (Recordset rows = master.OpenSnapshot(kDataPaths); !rows.Eof(); rows.MoveNext()) {
    std::string path = TextOrEmpty(rows, rows.Field("データパス"));
    if (FoldIdentifier(Trim(path)) == name) return path;
  }
  throw Fault(FaultKind::database,
              "工事テーブル: no current record with データパス \"" + std::string(file_name) + "\"");
}

SiteHead HeadOf(const Recordset& site) {
  return {IntegerOrZero(site, site.Field("番号")), TextOrEmpty(site, site.Field("工事名")),
          TextOrEmpty(site, site.Field("データパス")), IntegerOrZero(site, site.Field("取引先コード"))};
}

}  // namespace

std::string SiteHeadStatement(std::string_view file_name) {
  return "SELECT [番号], [工事名], [データパス], [取引先コード] FROM 工事テーブル WHERE データパス = " +
         QuotedText(file_name, '\'');
}

SiteHead ReadSiteHead(Database& master, std::string_view file_name) {
  return HeadOf(master.OpenSnapshot(SiteHeadStatement(PathInRow(master, file_name))));
}

std::vector<SiteHead> AllSiteHeads(Database& master) {
  Recordset rows = master.OpenSnapshot(
      "SELECT [番号], [工事名], [データパス], [取引先コード] FROM 工事テーブル ORDER BY 番号");
  std::vector<SiteHead> sites;
  sites.reserve(static_cast<std::size_t>(rows.RecordCount()));
  for (; !rows.Eof(); rows.MoveNext()) sites.push_back(HeadOf(rows));
  return sites;
}

std::optional<SiteHead> FindSiteHead(Database& master, std::int32_t number) {
  Recordset rows = master.OpenSnapshot("SELECT * FROM 工事テーブル WHERE 番号 = " + std::to_string(number));
  if (rows.Eof()) return std::nullopt;
  return HeadOf(rows);
}

std::string ClientName(Database& master, std::int32_t code) {
  Recordset rows = master.OpenSnapshot("SELECT [会社コード], [会社名] FROM T_取引先 WHERE [会社コード] = " +
                                       std::to_string(code));
  return rows.Eof() ? std::string() : TextOrEmpty(rows, rows.Field("会社名"));
}

LongName ReadLongName(Database& master, std::string_view file_name) {
  const std::string site = "データパス=" + QuotedText(PathInRow(master, file_name), '"');
  LongName found;
  {
    Recordset rows =
        master.OpenSnapshot("SELECT 長い工事名,工事名区切り文字数 FROM 工事テーブル WHERE " + site);
    const FieldHandle name = rows.Field("長い工事名");
    const FieldHandle width = rows.Field("工事名区切り文字数");
    if (rows.IsNull(name)) return {};
    found = {TextOrEmpty(rows, name), rows.Int32(width).value_or(kDefaultWidth)};
    if (!rows.IsNull(width)) return found;
  }
  if (master.MayBeWritten()) {
    master.Execute("UPDATE 工事テーブル SET 工事名区切り文字数=" + std::to_string(kDefaultWidth) + " WHERE " +
                   site + " AND Not IsNull(長い工事名) AND IsNull(工事名区切り文字数)");
  }
  return found;
}

SteelSupply ReadSteelSupply(Database& master, std::string_view file_name) {
  Recordset rows = master.OpenSnapshot("SELECT 支給形態 FROM 工事テーブル WHERE データパス=" +
                                       QuotedText(PathInRow(master, file_name), '"'));
  const bool supplied =
      IntegerOrZero(rows, rows.Field("支給形態")) == static_cast<std::int32_t>(SteelSupply::supplied);
  return supplied ? SteelSupply::supplied : SteelSupply::own;
}

std::int32_t ReadMakerNumber(Database& master, std::string_view file_name) {
  Recordset rows = master.OpenSnapshot("SELECT メーカーNo FROM 工事テーブル WHERE データパス=" +
                                       QuotedText(PathInRow(master, file_name), '"'));
  return IntegerOrZero(rows, rows.Field("メーカーNo"));
}

SiteGrades ReadSiteGrades(Database& master, std::string_view file_name) {
  Recordset rows = master.OpenSnapshot("SELECT * FROM 工事テーブル WHERE データパス = " +
                                       QuotedText(PathInRow(master, file_name), '\''));
  SiteGrades grades;
  FieldHandle grade{};
  for (std::size_t i = 0; i < kDeformedDiameters.size(); ++i) {
    grade = rows.Field("SD" + std::to_string(kDeformedDiameters[i].code));
    grades.codes[i] = IntegerOrZero(rows, grade);
  }
  // The maker columns have no agreed names: they are the twelve behind the last grade column.
  const int first = grade.index + 1;
  if (first + static_cast<int>(grades.makers.size()) > rows.FieldCount()) {
    throw Fault(FaultKind::field_not_found, "工事テーブル: twelve maker names behind SD51");
  }
  for (std::size_t i = 0; i < grades.makers.size(); ++i) {
    grades.makers[i] = TextOrEmpty(rows, FieldHandle{first + static_cast<int>(i)});
  }
  return grades;
}

std::optional<std::string> GradeName(Database& master, std::int32_t code) {
  Recordset rows =
      master.OpenSnapshot("SELECT [SDコード], [SD名] FROM T_SD WHERE SDコード = " + std::to_string(code));
  if (rows.Eof()) return std::nullopt;
  return std::string(Trim(TextOrEmpty(rows, rows.Field("SD名"))));
}

std::array<std::string, 11> ReadGradeNames(Database& master) {
  std::array<std::string, 11> names;
  for (std::int32_t code = 1; code <= kGradeCount; ++code) {
    if (auto name = GradeName(master, code)) {
      names[static_cast<std::size_t>(code)] = std::move(*name);
    } else {
      MsgBox("ＳＤ名が登録されていません。");
    }
  }
  return names;
}

std::string PartName(Database& master, std::int32_t part, PartNaming naming) {
  const std::string_view table = naming == PartNaming::second ? "部位名２テーブル" : "部位名テーブル";
  Recordset rows = master.OpenSnapshot("SELECT [番号], [部位名], [記号] FROM " + std::string(table) +
                                       " WHERE 番号 = " + std::to_string(part));
  return rows.Eof() ? std::string() : TextOrEmpty(rows, rows.Field("部位名"));
}

}  // namespace rbt
