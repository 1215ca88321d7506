// SPDX-License-Identifier: MIT
#include <cstddef>

#include "archive/csv/csv_fittings.h"
#include "archive/csv/plain_record.h"
#include "archive/csv/records.h"
#include "tally/floorpart/floor_list.h"
#include "tally/floorpart/floor_marginals.h"
#include "tally/floorpart/floor_words.h"

namespace rbt {

namespace {

static_assert(kFloorFittings.size() == kCsvFittings.size());

/// Rows of the list that are floors: all but the total row.
std::size_t ListedFloorCount(const FloorTables& tables) {
  return tables.KaiGyou.empty() ? 0 : tables.KaiGyou.size() - 1;
}

std::string FloorRecord(const FloorTables& tables, std::size_t row) {
  const ListRow& floor = tables.KaiGyou.at(row);
  const int f = FloorIndex(tables.KaiGyouKai.at(row));
  PlainRecord record;
  record.Put(floor.label).PutParts(floor.parts, floor.total);
  for (const FloorFittingName& fitting : kFloorFittings) record.Put((tables.*fitting.tables).KaiSou[f]);
  return record.Line();
}

/// "12階", "2Ｂ階", "Ｒ階".
std::string BlockFloorText(int floor_code) {
  const std::string_view special = SpecialFloorWord(floor_code);
  return special.empty() ? FloorListLabel(floor_code) : std::string(special);
}

std::string BlockHead(std::string_view floor) {
  PlainRecord record;
  record.Put(floor).Put("部位");
  for (int d = 0; d < kDeformedRows; ++d) record.Put(DiameterLabel(d));
  return record.Put(kCsvTotal).Line();
}

/// `weight_of(d)` gives the kilograms of a deformed diameter.
template <typename WeightOf>
std::string BlockLine(std::string_view label, const WeightOf& weight_of, Currency total) {
  PlainRecord record;
  record.Put("").Put(label);
  for (int d = 0; d < kDeformedRows; ++d) record.Put(weight_of(d));
  return record.Put(total).Line();
}

std::string BlockOfFloor(const FloorTables& tables, const CsvSite& site, int floor_code) {
  const ColumnRun columns = ColumnsInUse(site.with_13m);
  const int f = FloorIndex(floor_code);
  std::string text = BlockHead(BlockFloorText(floor_code));
  for (int p = kFirstPart; p < kPartEntries; ++p) {
    const auto weight = [&](int d) { return WeightOfFloorPart(tables, f, p, d, columns); };
    text += BlockLine(CsvPartName(site, p), weight, tables.KaiBuiGoukei[f][p]);
  }
  const auto weight = [&](int d) { return tables.KaiTaisaGoukei[f][d]; };
  return text + BlockLine(kCsvTotal, weight, tables.KaiGoukei[f]) + EmptyLine();
}

std::string BlockOfAllFloors(const FloorTables& tables, const CsvSite& site) {
  const ColumnRun columns = ColumnsInUse(site.with_13m);
  std::string text = BlockHead(kCsvTotal);
  for (int p = kFirstPart; p < kPartEntries; ++p) {
    const auto weight = [&](int d) { return WeightOfPart(tables, p, d, columns); };
    text += BlockLine(CsvPartName(site, p), weight, tables.BuiGoukei[p]);
  }
  const auto weight = [&](int d) { return WeightOfDiameter(tables, d); };
  return text + BlockLine(kCsvTotal, weight, tables.SouGoukei) + EmptyLine();
}

}  // namespace

std::string FloorRecords(const FloorTables& tables, const CsvSite& site) {
  std::string text = HeadRecord(site, tables.SouGoukei) + PartCaptionRecord("階", site);
  for (std::size_t row = 0; row < ListedFloorCount(tables); ++row) text += FloorRecord(tables, row);
  PlainRecord total;
  total.Put(kCsvTotal).PutParts(tables.BuiGoukei, tables.SouGoukei);
  for (const FloorFittingName& fitting : kFloorFittings) {
    total.Put(CsvFittingTotal((tables.*fitting.tables).Taisa));
  }
  return text + total.Line();
}

std::string FloorPartRecords(const FloorTables& tables, const CsvSite& site) {
  std::string text;
  for (std::size_t row = 0; row < ListedFloorCount(tables); ++row) {
    text += BlockOfFloor(tables, site, tables.KaiGyouKai.at(row));
  }
  return text + BlockOfAllFloors(tables, site);
}

}  // namespace rbt
