// SPDX-License-Identifier: MIT
#include "support/schedule_site.h"

#include <algorithm>

#include "data/table_layouts.h"
#include "shell/context/site_context.h"
#include "store/database_impl.h"
#include "support/site_fixture.h"

namespace rbt::test {
namespace {

bool IsAmong(const std::vector<std::string>& names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

TableDef TableOf(const std::vector<TableDef>& tables, std::string_view name) {
  return *std::find_if(tables.begin(), tables.end(),
                       [&](const TableDef& table) { return table.name == name; });
}

void Insert(Database& database, const std::string& table, const Fields& fields) {
  Recordset rows = database.OpenDynaset("SELECT * FROM " + table);
  rows.AddNew();
  for (const auto& [name, value] : fields) rows.Set(name, value);
  rows.Update();
}

}  // namespace

ScheduleSite::ScheduleSite(const std::vector<std::string>& absent) : absent_(absent) {
  SiteFixture::ResetGlobalState();
  TableDef schedule = TableOf(ScheduleFileTables(), "加工テーブル");
  std::erase_if(schedule.fields, [&](const FieldDef& field) { return IsAmong(absent, field.name); });
  Database::CreateDatabase(folder_.Data("GENBA001.MDB")).CreateTable(schedule);
  Database::CreateDatabase(folder_.Data("HIROI001.mdb"));
  SiteContext.SelectedDbName = "GENBA001.MDB";
  SiteContext.SiteNumberText = "001";
  OpenWorkDatabase();
}

ScheduleSite::~ScheduleSite() { SiteFixture::ResetGlobalState(); }

Database& ScheduleSite::Work() { return *SiteContext.WorkDatabase; }

void ScheduleSite::AddRow(const Fields& fields) {
  ++rows_;
  Fields row = {{"行No", Number(rows_)},  {"頁", Number(1)},      {"行", Number(rows_)},
                {"部位", Number(1)},      {"太さ", Number(19)},   {"形状No", Number(1)},
                {"本数", Number(4)},      {"ヶ所", Number(1)},    {"合計", Number(4)},
                {"伸切寸", Number(3000)}, {"伸定尺", Value{6.0}}, {"伸本定", Number(2)},
                {"伸総計", Number(2)},    {"予備2", Number(1)},   {"予備3", Number(3)}};
  row.insert(row.end(), fields.begin(), fields.end());
  std::erase_if(row, [this](const auto& field) { return IsAmong(absent_, field.first); });
  Insert(Work(), "加工テーブル", row);
}

void ScheduleSite::PutText(const std::string& column, const std::string& text) {
  Work().impl().Connected().Run("UPDATE 加工テーブル SET \"" + column + "\" = '" + text + "'");
}

void ScheduleSite::AddSpiral(const Value& material, const Value& diameter, double weight) {
  Database companion = Database::Open(folder_.Data("HIROI001.mdb"));
  if (companion.FindTable("スパイラル") == nullptr) {
    companion.CreateTable(TableOf(CompanionFileTables(), "スパイラル"));
  }
  Insert(companion, "スパイラル",
         {{"材質", material}, {"径", diameter}, {"全重量", Value{Currency::FromDouble(weight)}}});
}

void ScheduleSite::AddName(const Value& number, const std::string& name, const Value& mark) {
  Database companion = Database::Open(folder_.Data("HIROI001.mdb"));
  if (companion.FindTable("登録名") == nullptr) {
    companion.CreateTable(TableOf(CompanionFileTables(), "登録名"));
  }
  Insert(companion, "登録名", {{"登録AN", number}, {"登録名", Value{name}}, {"表示番号", mark}});
}

}  // namespace rbt::test
