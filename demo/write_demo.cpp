// SPDX-License-Identifier: MIT
#include "demo/write_demo.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "data/table_layouts.h"
#include "demo/demo_company.h"
#include "demo/schedule_generator.h"
#include "demo/shapes.h"
#include "platform/fault.h"
#include "platform/files/file_in_work.h"
#include "platform/files/file_sync.h"
#include "platform/files/files.h"
#include "platform/files/work_place.h"
#include "platform/text/characters.h"
#include "platform/text/cp932.h"
#include "store/database.h"

namespace rbt::demo {

namespace {

namespace fs = std::filesystem;

Value Whole(std::int32_t number) { return static_cast<std::int64_t>(number); }
Value Words(std::string_view text) { return std::string(text); }
template <typename T>
Value OrNull(const std::optional<T>& value) {
  if (!value) return std::monostate{};
  if constexpr (std::is_same_v<T, std::string>) {
    return *value;
  } else {
    return Whole(*value);
  }
}

/// Appends rows to one table: the columns are resolved once, values come in their order.
class TableWriter {
 public:
  TableWriter(Database& database, const TableDef& table)
      : rows_(database.OpenDynaset("SELECT * FROM " + table.name)) {
    for (const FieldDef& field : table.fields) fields_.push_back(rows_.Field(field.name));
  }

  void Append(const std::vector<Value>& values) {
    rows_.AddNew();
    for (std::size_t i = 0; i < values.size(); ++i) {
      if (!IsNull(values[i])) rows_.Set(fields_[i], values[i]);
    }
    rows_.Update();
  }

 private:
  Recordset rows_;
  std::vector<FieldHandle> fields_;
};

/// A new database with its tables, filled in one transaction.
template <typename Fill>
void WriteDatabase(const fs::path& file, const std::vector<TableDef>& tables, Fill fill) {
  Database database = Database::CreateDatabase(file);
  Transaction transaction(database);
  for (const TableDef& table : tables) database.CreateTable(table);
  fill(database);
  transaction.Commit();
}

const TableDef& TableNamed(const std::vector<TableDef>& tables, std::string_view name) {
  for (const TableDef& table : tables) {
    if (table.name == name) return table;
  }
  throw Fault(FaultKind::database, fmt::format("no layout of table {}", name));
}

void AppendRow(std::vector<Value>& values, const ScheduleRow& row) {
  values.clear();
  for (const std::int32_t number : {row.number, row.page, row.line}) values.push_back(Whole(number));
  values.push_back(OrNull(row.floor));
  values.push_back(OrNull(row.part));
  values.push_back(Words(row.name));
  values.push_back(Whole(row.diameter));
  values.push_back(Whole(row.shape));
  for (const std::int32_t dimension : row.dimensions) {
    values.push_back(dimension == 0 ? Value{} : Value{std::to_string(dimension)});
  }
  for (const std::int32_t number : {row.bars, row.places, row.total, row.cut_mm})
    values.push_back(Whole(number));
  values.emplace_back(row.stock_m);
  for (const std::int32_t number :
       {row.pieces_per_bar, row.stock_bars, row.welds, row.weld_diameter, row.threads}) {
    values.push_back(Whole(number));
  }
  values.emplace_back();  // 定着板数 is worked out by the tally program
  values.push_back(Whole(row.cuts));
  values.push_back(OrNull(row.kind));
  values.emplace_back();  // 予備3
  values.emplace_back();  // 予備5
  values.push_back(OrNull(row.registered_name));
}

void WriteScheduleFile(const fs::path& data, const Site& site, const DemoOptions& options) {
  const std::vector<TableDef> tables = ScheduleFileTables();
  WriteDatabase(data / site.ScheduleFile(), tables, [&](Database& database) {
    TableWriter schedule(database, TableNamed(tables, "加工テーブル"));
    ScheduleGenerator lines(
        options.rows, static_cast<std::int32_t>(site.registered_names.size()),
        static_cast<std::uint64_t>(options.seed) * 1000 + static_cast<std::uint64_t>(site.number));
    std::vector<Value> values;
    while (!lines.Done()) {
      AppendRow(values, lines.Next());
      schedule.Append(values);
    }
    TableWriter shapes(database, TableNamed(tables, "形状テーブル"));
    for (const Shape& shape : Shapes()) shapes.Append({Whole(shape.number), Words(shape.name)});
    TableWriter(database, TableNamed(tables, "データーベースバージョン")).Append({Words("6.0")});
  });
}

void WriteCompanionFile(const fs::path& data, const Site& site) {
  const std::vector<TableDef> tables = CompanionFileTables();
  WriteDatabase(data / site.CompanionFile(), tables, [&](Database& database) {
    TableWriter names(database, TableNamed(tables, "登録名"));
    std::int32_t number = 0;
    for (const std::string& name : site.registered_names)
      names.Append({Whole(++number), Words(name), Whole(0)});
    TableWriter spirals(database, TableNamed(tables, "スパイラル"));
    for (const Spiral& spiral : site.spirals) {
      spirals.Append(
          {Whole(spiral.material), Whole(spiral.diameter), Currency::FromDouble(spiral.weight_kg)});
    }
  });
}

std::vector<Value> SiteRow(const Site& site) {
  std::vector<Value> values = {Whole(site.number), Words(site.name),       Words(site.ScheduleFile()),
                               Whole(site.client), OrNull(site.long_name), OrNull(site.break_width),
                               OrNull(site.maker), Whole(site.supply)};
  for (const std::int32_t grade : site.grades) values.push_back(Whole(grade));
  for (const std::string_view maker : site.makers) values.push_back(Words(maker));
  return values;
}

void WriteMasterFile(const fs::path& data, const std::vector<Site>& sites) {
  const std::vector<TableDef> tables = MasterFileTables();
  WriteDatabase(data / "SORANO.MDB", tables, [&](Database& database) {
    TableWriter site_rows(database, TableNamed(tables, "工事テーブル"));
    for (const Site& site : sites) site_rows.Append(SiteRow(site));
    TableWriter clients(database, TableNamed(tables, "T_取引先"));
    for (const NumberedName& client : Clients()) clients.Append({Whole(client.number), Words(client.name)});
    TableWriter grades(database, TableNamed(tables, "T_SD"));
    for (const NumberedName& grade : Grades()) grades.Append({Whole(grade.number), Words(grade.name)});
    const auto write_parts = [&](std::string_view table, std::span<const PartName> parts) {
      TableWriter writer(database, TableNamed(tables, table));
      for (const PartName& part : parts) {
        writer.Append({Whole(part.number), Words(part.name), Words(part.mark)});
      }
    };
    write_parts("部位名テーブル", PartNames());
    write_parts("部位名２テーブル", SecondPartNames());
  });
}

void WriteFixedStockFile(const fs::path& file) {
  const std::vector<TableDef> tables = FixedStockFileTables();
  WriteDatabase(file, tables, [&](Database& database) {
    TableWriter writer(database, tables.front());
    for (const FixedStock& rule : FixedStocks()) {
      writer.Append({Whole(rule.diameter), Whole(rule.cut_from), Whole(rule.cut_to), Whole(rule.material),
                     Whole(rule.stock_mm)});
    }
  });
}

void WriteIni(const fs::path& file, const std::string& text) {
  WriteFileAtomically(file, ToCp932(ReplaceAll(text, "\n", "\r\n")));
}

constexpr std::string_view kData = "DATA";
/// Folders of sibling programs, empty here.
constexpr std::string_view kSiblingFolders[] = {"KAKOU", "rbshopTM"};

/// What a demonstration that was killed may have put in place beside its folder in work.
bool IsLeftover(const fs::directory_entry& entry) {
  std::error_code error;
  const std::string name = entry.path().filename().string();
  return std::ranges::find(kSiblingFolders, name) != std::end(kSiblingFolders) && entry.is_directory(error) &&
         fs::is_empty(entry.path(), error) && !error;
}

void RefuseOccupied(const fs::path& root) {
  std::error_code error;
  const fs::file_status status = fs::status(root, error);
  if (!fs::exists(status)) return;
  if (!fs::is_directory(status)) {
    throw Fault(FaultKind::file, fmt::format("{} is no folder; nothing was written", root.string()));
  }
  for (fs::directory_iterator entry(root, error), end; !error && entry != end; entry.increment(error)) {
    if (IsLeftover(*entry) || entry->path().filename().string().starts_with(kWorkPlaceMark)) continue;
    throw Fault(
        FaultKind::file,
        fmt::format("{} is not empty; a demonstration is only made in a new or empty folder", root.string()));
  }
  if (error)
    throw Fault(FaultKind::file, fmt::format("cannot look into {}: {}", root.string(), error.message()));
}

void WriteData(const fs::path& data, const DemoOptions& options) {
  std::vector<Site> sites;
  for (std::int32_t number = 1; number <= options.sites; ++number) sites.push_back(DemoSite(number));
  for (const Site& site : sites) {
    WriteScheduleFile(data, site, options);
    WriteCompanionFile(data, site);
  }
  WriteMasterFile(data, sites);
  WriteFixedStockFile(data / "MTTeijyaku_ORG.mdb");
  WriteFixedStockFile(data / "MTTeijyaku.mdb");
  WriteDatabase(data / "JSyukeiORG.mdb", ArchiveTables(), [](Database&) {});
  WriteIni(data / "NEXTPRG.INI", NextPrgIniText());
  WriteIni(data / "STEEL.INI", SteelIniText(sites.front().ScheduleFile()));
}

}  // namespace

void WriteDemo(const fs::path& root, const DemoOptions& options) {
  RefuseOccupied(root);
  const MadeFolder folder(root);
  const WorkPlace place(root);
  FolderInWork data(place);
  try {
    WriteData(data.Path(), options);
  } catch (const Fault& fault) {
    // The folder in work is gone when the message is read.
    throw Fault(fault.Kind(), ReplaceAll(fault.Where(), data.Path().string(), (root / kData).string()));
  }
  for (const std::string_view name : kSiblingFolders) MakeFolders(root / name);
  // Last: a root is whole, or it is none.
  data.PutInPlace(root / kData);
}

}  // namespace rbt::demo
