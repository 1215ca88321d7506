// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "archive/csv/csv_text.h"
#include "tally/floorpart/add_share.h"
#include "tally/floorpart/floor_tally.h"
#include "tally/floorpart/part_list.h"
#include "tally/floorpart/part_tally.h"

namespace rbt::test {

/// Grades S1 to S12, parts 柱, 部位2 to 部位10.
inline CsvSite SampleCsvSite(bool with_13m = false) {
  CsvSite site;
  site.number = 7;
  site.name = "見本\"町\"住宅";
  site.client = "見本建設";
  for (std::size_t d = 0; d < site.grades.size(); ++d) site.grades.at(d) = "S" + std::to_string(d + 1);
  for (std::size_t p = 0; p < site.parts.size(); ++p) site.parts.at(p) = "部位" + std::to_string(p + 1);
  site.parts[0] = "柱";
  site.with_13m = with_13m;
  return site;
}

/// D19: 10 bars of 6.0 m, 135.5 kg, and 3 of 13.0 m, 12.5 kg; D51: 1 of 3.5 m, 55.4 kg. Fittings at D10 and
/// D51.
inline CsvOfTally SampleGrid(TallyKind kind) {
  TallyTable table;
  table.BarCount[3][5] = 10;
  table.StockWeight[3][5] = Currency::FromDouble(135.5);
  table.BarCount[3][18] = 3;
  table.StockWeight[3][18] = Currency::FromDouble(12.5);
  table.BarCount[11][0] = 1;
  table.StockWeight[11][0] = Currency::FromDouble(55.4);
  table.StockWeightByDia[3] = Currency::FromInteger(136);
  table.StockWeightByDia[11] = Currency::FromInteger(55);
  table.TotalStockWeight = Currency::FromInteger(191);
  table.InstalledWeightByDia[3] = Currency::FromInteger(1000);
  table.WeldCount[0] = 4;
  table.ThreadCount[0] = 3;
  table.PlateCount[11] = 2;
  table.CutCount[11] = -1;
  CsvOfTally tally;
  tally.result.kind = kind;
  tally.result.tables = table;
  tally.memos = {"一、\"甲\"", "", "a,b"};
  return tally;
}

/// Ten bars of 6.0 m: 60 kg of D13, 135 of D19, 239 of D25.
inline RowShare TenBarsOf(int row, int part) {
  return {.part = part,
          .row = row,
          .column = 5,
          .bars = 10,
          .installed_kilograms = 1.0,
          .welds = {},
          .threads = {},
          .plates = {},
          .cuts = {}};
}

/// The three lots of the samples: D19 in part 1 with 4 welds, D25 in part 11 with 3 threads, D13 in part 2
/// with 2 plates and 5 cuts.
inline std::vector<RowShare> SampleLots() {
  RowShare welded = TenBarsOf(3, 1);
  welded.welds = {3, 4};
  RowShare threaded = TenBarsOf(5, 11);
  threaded.threads = {5, 3};
  RowShare anchored = TenBarsOf(1, 2);
  anchored.plates = {1, 2};
  anchored.cuts = {1, 5};
  return {welded, threaded, anchored};
}

/// One lot each on the floors -2, 1 and R; floor 2 is listed and has nothing.
inline CsvOfTally SampleFloors() {
  const std::vector<RowShare> lots = SampleLots();
  FloorTables tables;
  AddShare(tables, FloorIndex(-2), lots[0], CellWeight::none);
  AddShare(tables, FloorIndex(1), lots[1], CellWeight::none);
  AddShare(tables, FloorIndex(kRoofFloor), lots[2], CellWeight::none);
  CloseFloorTally(tables, {});
  ListFloors(tables, {-2, 1, 2, kRoofFloor});
  CsvOfTally tally;
  tally.result.kind = TallyKind::floor;
  tally.result.tables = std::move(tables);
  return tally;
}

/// The lots by part.
inline CsvOfTally SampleParts() {
  PartTables tables;
  for (const RowShare& lot : SampleLots()) AddShare(tables, lot, CellWeight::stock);
  ClosePartTally(tables, {});
  ListParts(tables, false);
  CsvOfTally tally;
  tally.result.kind = TallyKind::part;
  tally.result.tables = std::move(tables);
  return tally;
}

/// Three names, one without a number, one without a text; 113.5 kg in stock.
inline CsvOfNames SampleNames() {
  return {{{std::nullopt, "無番", false, Currency::FromInteger(1), Currency()},
           {2, "基礎\"Ａ\"", true, Currency::FromInteger(100), Currency::FromInteger(99)},
           {1, "", false, Currency::FromDouble(12.5), Currency::FromDouble(12.4)}}};
}

/// The fields of a file, record by record; an empty line is a record of none.
inline std::vector<std::vector<std::string>> ReadCsv(std::string_view text) {
  std::vector<std::vector<std::string>> records(1);
  std::string field;
  bool quoted = false;
  bool started = false;
  const auto end_field = [&] {
    if (started) records.back().push_back(field);
    field.clear();
    started = false;
  };
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (quoted && c == '"' && text.substr(i + 1, 1) == "\"") {
      field += text[++i];
    } else if (c == '"') {
      quoted = !quoted;
      started = true;
    } else if (quoted || (c != ',' && c != '\r' && c != '\n')) {
      field += c;
      started = true;
    } else if (c == ',') {
      started = true;
      end_field();
      started = true;  // a field follows, empty as it may be
    } else if (c == '\n') {
      end_field();
      records.emplace_back();
    }
  }
  records.pop_back();
  return records;
}

}  // namespace rbt::test
