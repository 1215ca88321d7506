// SPDX-License-Identifier: MIT
#include "tally/names/name_summary.h"

#include <initializer_list>
#include <iterator>
#include <string_view>
#include <utility>

#include <fmt/format.h>

#include "data/bar_tables.h"
#include "data/diameters.h"
#include "platform/numbers/value.h"

namespace rbt {

namespace {

constexpr std::string_view kWorkTables[] = {"WorkTable", "WorkSumTable", "WorkSumResultsTable"};

constexpr std::string_view kCreateTables[] = {
    "CREATE TABLE WorkTable (ID AUTOINCREMENT PRIMARY KEY, 登録AN LONG, 太さ LONG, 材質 LONG, 伸定尺 Double, "
    "定尺基準重量 Currency, S伸切寸 Currency, S伸定_本 LONG, 単位重量 Currency, 取付重量 Currency, "
    "定尺重量 Currency, 作業１ Double)",
    "CREATE TABLE WorkSumTable (ID AUTOINCREMENT PRIMARY KEY, 登録AN LONG, 材質 LONG, 太さ LONG, "
    "取付重量合計 Currency, 定尺重量合計 Currency, 作業１ Double)",
    "CREATE TABLE WorkSumResultsTable (ID AUTOINCREMENT PRIMARY KEY, 登録AN LONG, 登録名 TEXT(50), "
    "取付重量合計 Currency, 定尺重量合計 Currency, 作業１ Double)",
};

/// Rows by name, diameter and stock length: deformed bars and the like, then Ulbon.
constexpr std::string_view kFillDeformed =
    "INSERT into WorkTable(登録AN,太さ,S伸切寸,S伸定_本,伸定尺) SELECT 登録名,太さ,sum(伸切寸 * 合計),"
    "sum(伸総計),伸定尺 from 加工テーブル where 予備2<>2 group by 登録名,太さ,伸定尺";
constexpr std::string_view kFillUlbon =
    "INSERT into WorkTable(登録AN,太さ,S伸切寸,S伸定_本,伸定尺) SELECT 登録名,太さ,sum(伸切寸 * 合計),"
    "sum(伸総計),伸定尺 from 加工テーブル where 予備2=2 group by 登録名,太さ,伸定尺";
constexpr std::string_view kFillWorkTable[] = {
    kFillDeformed,
    "UPDATE WorkTAble SET 材質=1",
    kFillUlbon,
    "UPDATE WorkTAble SET 材質=2 WHERE isnull(材質)",
    "DELETE 登録AN FROM WorkTable WHERE 登録AN Is Null",
    "DELETE 登録AN FROM WorkTable WHERE 登録AN =0",
};

/// The diameters that the unit weights of the deformed rows go to, as the statements have them. The last is
/// that of D51 and names D41 once more. It stays so: the list keeps the weights that it has always shown, and
/// the tally itself weighs both right.
constexpr std::string_view kUnitWeightRows[] = {
    "太さ=10", "太さ=13", "太さ=16 ", "太さ=19 ", "太さ=22 ", "太さ=25",
    "太さ=29", "太さ=32", "太さ=35 ", "太さ=38 ", "太さ=41 ", "太さ=41 ",
};
static_assert(std::size(kUnitWeightRows) == kDeformedRows);

constexpr std::string_view kWeighRows[] = {
    "UPDATE WorkTable SET 取付重量 = (S伸切寸*単位重量)/1000, 定尺重量 = S伸定_本*定尺基準重量",
    "UPDATE WorkTable SET 取付重量 = 0 WHERE IsNull(取付重量)",
    "UPDATE WorkTable SET 定尺重量 = 0 WHERE IsNull(定尺重量)",
};

/// Stock bar weights of the deformed diameters.
void AddStockWeights(std::vector<std::string>& statements, int columns) {
  for (int d = 0; d < kDeformedRows; ++d) {
    for (int l = 0; l < columns; ++l) {
      statements.push_back(
          fmt::format("UPDATE WorkTAble SET 定尺基準重量={} WHERE (太さ={} AND 伸定尺={} AND (材質=1or "
                      "材質=3 OR 材質=0 OR "
                      "IsNull(材質) OR 材質=4))",
                      BarWeight(d, l), DiameterCode(d), StockMetres(l)));
    }
  }
}

void AddUnitWeights(std::vector<std::string>& statements) {
  for (int d = 0; d < kDeformedRows; ++d) {
    statements.push_back(
        fmt::format("UPDATE WorkTAble SET 単位重量={} WHERE ({} AND (材質<>2 or IsNull(材質)))",
                    UnitWeight(d), kUnitWeightRows[d]));
  }
  for (const Diameter& ulbon : kUlbonDiameters) {
    statements.push_back(fmt::format("UPDATE WorkTAble SET 単位重量={} WHERE 太さ={} AND 材質=2",
                                     ulbon.kilograms_per_metre, ulbon.code));
  }
}

void DropTables(Database& schedule, std::initializer_list<std::string_view> tables) {
  for (const std::string_view table : tables) {
    if (schedule.FindTable(table) != nullptr) schedule.Execute(fmt::format("DROP TABLE {} ", table));
  }
}

/// A weight that no sum gave is 0.
Value ZeroIfNull(Value weight) { return IsNull(weight) ? Value{Currency()} : std::move(weight); }

bool IsHeavier(const Value& weight, const Value& than) {
  return !IsNull(weight) && !IsNull(than) &&
         NumberOf(weight, "WorkSumTable") > NumberOf(than, "WorkSumTable");
}

/// The sums that are above their stock come down to it.
void CapInstalledWeights(Database& schedule) {
  std::vector<std::string> caps;
  {
    Recordset rows = schedule.OpenSnapshot("SELECT * FROM WorkSumTable WHERE 材質=1");
    const FieldHandle id = rows.Field("ID");
    const FieldHandle stock_field = rows.Field("定尺重量合計");
    const FieldHandle installed = rows.Field("取付重量合計");
    for (; !rows.Eof(); rows.MoveNext()) {
      const Value stock = rows.Get(stock_field);
      if (!IsHeavier(rows.Get(installed), stock)) continue;
      caps.push_back(fmt::format("UPDATE WorkSumTable SET 取付重量合計={} WHERE ID={}", TextOf(stock),
                                 TextOf(rows.Get(id))));
    }
  }
  for (const std::string& cap : caps) schedule.Execute(cap);
}

}  // namespace

std::vector<std::string> WorkTableStatements(const NameSummaryRules& rules) {
  std::vector<std::string> statements(std::begin(kFillWorkTable), std::end(kFillWorkTable));
  AddStockWeights(statements, StockColumnsInUse(rules.weigh_13m_stock));
  AddUnitWeights(statements);
  statements.insert(statements.end(), std::begin(kWeighRows), std::end(kWeighRows));
  return statements;
}

std::string WorkSumStatement(const NameSummaryRules& rules) {
  // Weights that are capped are summed as the rows keep them, rounded to four places each.
  const std::string_view installed =
      rules.cap_installed_weight ? "fix(Sum(取付重量)+0.5)" : "fix(Sum(S伸切寸*単位重量/1000)+0.5)";
  return fmt::format(
      "INSERT into WorkSumTable(登録AN,太さ,取付重量合計,定尺重量合計,材質) "
      "SELECT 登録AN,太さ,{},Sum(fix(定尺重量+0.5)),材質 from WorkTable group by 登録AN,太さ,材質 ",
      installed);
}

void SumNamesInWorkTables(Database& schedule, const NameSummaryRules& rules) {
  DropTables(schedule, {kWorkTables[0], kWorkTables[1], kWorkTables[2]});
  for (const std::string_view statement : kCreateTables) schedule.Execute(statement);
  for (const std::string& statement : WorkTableStatements(rules)) schedule.Execute(statement);
  schedule.Execute(WorkSumStatement(rules));
  if (rules.cap_installed_weight) CapInstalledWeights(schedule);
  schedule.Execute(
      "INSERT into WorkSumResultsTable(登録AN,取付重量合計,定尺重量合計) "
      "SELECT 登録AN,sum(取付重量合計),sum(定尺重量合計) from WorkSumTable group by 登録AN ");
}

void WriteNameWeights(Database& schedule, Database& companion) {
  Transaction transaction(companion);
  companion.Execute("UPDATE 登録名 SET 表示番号=0");
  // A name that has no rows any more keeps no weight of former ones.
  companion.Execute("UPDATE 登録名 SET 定尺重量合計=0 ,取付重量合計=0");
  Recordset rows = schedule.OpenSnapshot(
      "SELECT * "
      "FROM WorkSumResultsTable "
      "ORDER BY 登録AN ");
  const FieldHandle number = rows.Field("登録AN");
  const FieldHandle stock = rows.Field("定尺重量合計");
  const FieldHandle installed = rows.Field("取付重量合計");
  for (; !rows.Eof(); rows.MoveNext()) {
    companion.Execute(fmt::format("UPDATE 登録名 SET 定尺重量合計={} ,取付重量合計={} WHERE 登録AN= {}",
                                  TextOf(ZeroIfNull(rows.Get(stock))),
                                  TextOf(ZeroIfNull(rows.Get(installed))), TextOf(rows.Get(number))));
  }
  transaction.Commit();
}

void ClearNames(Database& companion) {
  const auto table = companion.FindTable("登録名");
  Transaction transaction(companion);
  for (const std::string_view column : {"表示番号", "定尺重量合計", "取付重量合計"}) {
    if (table == nullptr || table->FindField(column) == nullptr) continue;
    companion.Execute(fmt::format("UPDATE 登録名 SET {}=0", column));
  }
  transaction.Commit();
}

void DropNameWorkTables(Database& schedule) { DropTables(schedule, {kWorkTables[0], kWorkTables[2]}); }

}  // namespace rbt
