// SPDX-License-Identifier: MIT
#include "tally/schedule_site.h"

#include <algorithm>

#include "data/run_state.h"
#include "data/site_context.h"
#include "shell/config/settings.h"
#include "tally/selection.h"
#include "tally/stock_engine.h"
#include "tally/tally_grid.h"

namespace rbt::test {
namespace {

TableDef ScheduleTable(const std::vector<std::string>& absent) {
  TableDef table;
  table.name = "加工テーブル";
  const auto add = [&](const std::string& name, FieldType type, int size = 0) {
    if (std::find(absent.begin(), absent.end(), name) != absent.end()) return;
    table.fields.push_back({.name = name, .type = type, .size = size});
  };
  for (const char* name : {"行No", "頁", "行", "階", "部位"}) add(name, FieldType::integer32);
  add("名称", FieldType::text, 50);
  add("太さ", FieldType::integer16);
  add("形状No", FieldType::integer32);
  for (int i = 1; i <= 10; ++i) add("寸法" + std::to_string(i), FieldType::text, 20);
  for (const char* name : {"本数", "ヶ所", "合計", "伸切寸"}) add(name, FieldType::integer32);
  add("伸定尺", FieldType::real);
  for (const char* name :
       {"伸本定", "伸総計", "圧接", "圧接太さ", "ネジ数", "定着板数", "切断", "予備2", "予備3"}) {
    add(name, FieldType::integer32);
  }
  add("予備5", FieldType::text, 255);
  add("登録名", FieldType::integer32);
  return table;
}

void Insert(Database& database, const std::string& table, const Fields& fields) {
  Recordset rows = database.OpenDynaset("SELECT * FROM " + table);
  rows.AddNew();
  for (const auto& [name, value] : fields) rows.Set(name, value);
  rows.Update();
}

void SetToDefaults() {
  Selection = SelectionData();
  Settings = SettingsData();
  RunState = RunStateData();
  EngineState = EngineStateData();
  TallyGrid = TallyTable();
}

}  // namespace

ScheduleSite::ScheduleSite(const std::vector<std::string>& absent) : absent_(absent) {
  SetToDefaults();
  Database::CreateDatabase(folder_.Data("GENBA001.MDB")).CreateTable(ScheduleTable(absent));
  Database::CreateDatabase(folder_.Data("HIROI001.mdb"));
  SiteContext.SelectedDbName = "GENBA001.MDB";
  SiteContext.SiteNumberText = "001";
  OpenWorkDatabase();
}

ScheduleSite::~ScheduleSite() {
  SiteContext = SiteContextData();
  SetToDefaults();
}

Database& ScheduleSite::Work() { return *SiteContext.WorkDatabase; }

void ScheduleSite::AddRow(const Fields& fields) {
  ++rows_;
  Fields row = {{"行No", Number(rows_)},  {"頁", Number(1)},      {"行", Number(rows_)},
                {"部位", Number(1)},      {"太さ", Number(19)},   {"形状No", Number(1)},
                {"本数", Number(4)},      {"ヶ所", Number(1)},    {"合計", Number(4)},
                {"伸切寸", Number(3000)}, {"伸定尺", Value{6.0}}, {"伸本定", Number(2)},
                {"伸総計", Number(2)},    {"予備2", Number(1)},   {"予備3", Number(3)}};
  row.insert(row.end(), fields.begin(), fields.end());
  std::erase_if(row, [this](const auto& field) {
    return std::find(absent_.begin(), absent_.end(), field.first) != absent_.end();
  });
  Insert(Work(), "加工テーブル", row);
}

void ScheduleSite::AddSpiral(const Value& material, const Value& diameter, double weight) {
  Database companion = Database::Open(folder_.Data("HIROI001.mdb"));
  if (companion.FindTable("スパイラル") == nullptr) {
    companion.CreateTable(
        {.name = "スパイラル",
         .fields = {{.name = "材質"}, {.name = "径"}, {.name = "全重量", .type = FieldType::currency}},
         .indexes = {}});
  }
  Insert(companion, "スパイラル",
         {{"材質", material}, {"径", diameter}, {"全重量", Value{Currency::FromDouble(weight)}}});
}

}  // namespace rbt::test
