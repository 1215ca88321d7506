// SPDX-License-Identifier: MIT
#include "support/site_fixture.h"

#include <algorithm>
#include <fstream>

#include "data/table_layouts.h"
#include "platform/profile/ini_file.h"
#include "platform/system/clock.h"
#include "platform/text/cp932.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"
#include "tally/engine/stock_engine.h"
#include "tally/floor_tables.h"
#include "tally/part_tables.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"

namespace rbt::test {

namespace {

constexpr std::string_view kSchedule = "加工テーブル";

Value Whole(std::int64_t number) { return number; }

const TableDef& TableNamed(const std::vector<TableDef>& tables, std::string_view name) {
  return *std::find_if(tables.begin(), tables.end(),
                       [&](const TableDef& table) { return table.name == name; });
}

void AppendRow(Recordset& rows, const Cells& cells) {
  rows.AddNew();
  for (const auto& [field, value] : cells) rows.Set(field, value);
  rows.Update();
}

Recordset OpenTable(Database& database, std::string_view table) {
  return database.OpenDynaset("SELECT * FROM " + std::string(table));
}

void MakeDatabase(const std::filesystem::path& file, const std::vector<TableDef>& tables) {
  Database database = Database::CreateDatabase(file);
  Transaction transaction(database);
  for (const TableDef& table : tables) database.CreateTable(table);
  transaction.Commit();
}

void FillMaster(const std::filesystem::path& file) {
  Database database = Database::Open(file);
  Transaction transaction(database);
  Recordset sites = OpenTable(database, "工事テーブル");
  AppendRow(sites, {{"番号", Whole(1)},
                    {"工事名", "試験工事"},
                    {"データパス", kScheduleFile},
                    {"取引先コード", Whole(1)},
                    {"支給形態", Whole(0)}});
  Recordset clients = OpenTable(database, "T_取引先");
  AppendRow(clients, {{"会社コード", Whole(1)}, {"会社名", "試験商店"}});
  Recordset grades = OpenTable(database, "T_SD");
  for (std::int64_t code = 1; code <= 10; ++code) {
    AppendRow(grades, {{"SDコード", Whole(code)}, {"SD名", "SD" + std::to_string(code)}});
  }
  Recordset parts = OpenTable(database, "部位名テーブル");
  Recordset second = OpenTable(database, "部位名２テーブル");
  for (std::int64_t part = 1; part <= 11; ++part) {
    AppendRow(parts, {{"番号", Whole(part)}, {"部位名", "部位" + std::to_string(part)}});
    AppendRow(second, {{"番号", Whole(part)}, {"部位名", "別名" + std::to_string(part)}});
  }
  transaction.Commit();
}

void WriteIni(const std::filesystem::path& file, std::string_view text) {
  std::ofstream(file, std::ios::binary) << ToCp932(text);
}

/// Fields without a value of their own get the fixture's.
Cells Completed(const Cells& cells, std::int64_t number) {
  Cells completed = cells;
  const auto name = [&](const char* field, std::int64_t value) {
    const bool named =
        std::any_of(cells.begin(), cells.end(), [&](const auto& cell) { return cell.first == field; });
    if (!named) completed.emplace_back(field, Whole(value));
  };
  name("行No", number);
  name("頁", 1);
  name("行", number);
  return completed;
}

}  // namespace

SiteFixture::SiteFixture() {
  ResetGlobalState();
  Services.Clock = StandingClock({2026, 11, 21, 9, 0, 0});
  Services.Messages = [this](std::string_view text, std::string_view title, MessageButtons buttons) {
    messages_.push_back({std::string(text), std::string(title), buttons});
    if (answers_.empty()) {
      const bool cautious =
          buttons == MessageButtons::yes_no_default_no || buttons == MessageButtons::import_or_read;
      if (cautious) return MessageAnswer::no;
      const bool asks = buttons == MessageButtons::yes_no || buttons == MessageButtons::yes_no_cancel;
      return asks ? MessageAnswer::yes : MessageAnswer::ok;
    }
    const MessageAnswer answer = answers_.front();
    answers_.pop_front();
    return answer;
  };
  Services.Launch = [this](std::string_view command_line, WindowStyle style, bool polling) {
    launches_.push_back({std::string(command_line), style, polling});
  };

  MakeDatabase(Data(kScheduleFile), ScheduleFileTables());
  MakeDatabase(Data(kCompanionFile), CompanionFileTables());
  MakeDatabase(Data(kMasterFile), MasterFileTables());
  MakeDatabase(Data(kFixedStockFile), FixedStockFileTables());
  MakeDatabase(Data("MTTeijyaku_ORG.mdb"), FixedStockFileTables());
  MakeDatabase(Data(kTemplateFile), ArchiveTables());
  FillMaster(Data(kMasterFile));
  for (const char* folder : {"KAKOU", "rbshopTM"}) std::filesystem::create_directories(root_ / folder);
  WriteIni(Data(kNextPrgFile), "[データ]\r\n材料明細=0\r\nCALL PRG=\r\n重量集計=\r\n");
  WriteIni(Data(kSteelFile),
           "[データ]\r\n選択ＤＢ名=GENBA001.MDB\r\n\r\n[加工帳]\r\n行の背景色=16777152\r\n");
}

SiteFixture::~SiteFixture() { ResetGlobalState(); }

void SiteFixture::AddRows(const std::vector<Cells>& rows) {
  Database database = Database::Open(Data(kScheduleFile));
  Transaction transaction(database);
  Recordset schedule = OpenTable(database, kSchedule);
  for (const Cells& cells : rows) AppendRow(schedule, Completed(cells, next_row_++));
  transaction.Commit();
}

void SiteFixture::Add(const std::string& file, std::string_view table, const Cells& cells) {
  Database database = Database::Open(Data(file));
  Recordset rows = OpenTable(database, table);
  AppendRow(rows, cells);
}

void SiteFixture::LeaveOutColumns(std::initializer_list<std::string_view> columns) {
  const std::vector<TableDef> tables = ScheduleFileTables();
  TableDef table = TableNamed(tables, kSchedule);
  std::erase_if(table.fields, [&](const FieldDef& field) {
    return std::find(columns.begin(), columns.end(), field.name) != columns.end();
  });
  Database database = Database::Open(Data(kScheduleFile));
  database.Execute("DROP TABLE " + std::string(kSchedule));
  database.CreateTable(table);
}

void SiteFixture::Execute(const std::string& file, std::string_view jet_sql) {
  Database::Open(Data(file)).Execute(jet_sql);
}

std::vector<std::vector<Value>> SiteFixture::Rows(const std::string& file, std::string_view jet_sql) const {
  Database database = Database::Open(Data(file));
  std::vector<std::vector<Value>> all;
  for (Recordset rows = database.OpenSnapshot(jet_sql); !rows.Eof(); rows.MoveNext()) {
    std::vector<Value>& row = all.emplace_back();
    for (int i = 0; i < rows.FieldCount(); ++i) row.push_back(rows.Get(FieldHandle{i}));
  }
  return all;
}

std::vector<std::string> SiteFixture::Column(const std::string& column) const {
  std::vector<std::string> texts;
  for (const auto& row : Rows(kScheduleFile, "SELECT " + column + " FROM 加工テーブル ORDER BY 行No")) {
    texts.push_back(Shown(row.front()));
  }
  return texts;
}

void SiteFixture::SetIni(const std::string& file, std::string_view section, std::string_view key,
                         std::string_view value) const {
  WriteProfileText(Data(file), section, key, value);
}

void SiteFixture::ResetGlobalState() {
  Selection = {};
  Settings = {};
  SiteContext = {};
  RunState = {};
  TallyGrid = {};
  FloorTally = {};
  PartTally = {};
  EngineState = {};
}

std::string Shown(const Value& value) { return IsNull(value) ? "null" : TextOf(value); }

}  // namespace rbt::test
