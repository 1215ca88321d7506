// SPDX-License-Identifier: MIT
#include <cstddef>

#include "archive/csv/csv_fittings.h"
#include "archive/csv/plain_record.h"
#include "archive/csv/records.h"
#include "data/bar_tables.h"
#include "platform/numbers/number_mask.h"
#include "tally/detail/detail_cell.h"

namespace rbt {

namespace {

static_assert(kFittingWords.size() == kCsvFittings.size() && kFittingWords[0].fitting == Fitting::welds &&
              kFittingWords[1].fitting == Fitting::threads && kFittingWords[2].fitting == Fitting::plates &&
              kFittingWords[3].fitting == Fitting::cuts);

std::string GradeRecord(const CsvSite& site) {
  PlainRecord record;
  for (int d = 0; d < kDeformedRows; ++d) {
    record.Put(DiameterLabel(d)).Put(site.grades.at(static_cast<std::size_t>(d)));
  }
  return record.Line();
}

std::string CaptionRecord() {
  PlainRecord record;
  record.Put("m");
  for (int d = 0; d < kDeformedRows; ++d) record.Put("本数").Put("重量");
  return record.Line();
}

std::string LengthRecord(const TallyTable& table, int l) {
  PlainRecord record;
  record.Put(FormatNumber(StockMetres(l), "#.0") + " m");
  for (int d = 0; d < kDeformedRows; ++d) record.Put(table.BarCount[d][l]).Put(table.StockWeight[d][l]);
  return record.Line();
}

std::string WeightRecord(const TallyTable& table) {
  PlainRecord record;
  record.Put("重量");
  for (int d = 0; d < kDeformedRows; ++d) record.Put(table.StockWeightByDia[d]);
  return record.Line();
}

std::string FittingRecord(const TallyTable& table, std::size_t fitting) {
  PlainRecord record;
  record.Put(kCsvFittings.at(fitting));
  for (int d = 0; d < kDeformedRows; ++d) {
    record.Put(FittingCount(table, d, kFittingWords.at(fitting).fitting));
  }
  return record.Line();
}

}  // namespace

std::string GridRecords(const CsvOfTally& tally, const CsvSite& site) {
  const TallyTable& table = tally.result.Grid();
  std::string text = HeadRecord(site, table.TotalStockWeight) + EmptyLine();
  text += GradeRecord(site) + CaptionRecord();
  for (int l = 0; l < StockColumnsInUse(site.with_13m); ++l) text += LengthRecord(table, l);
  text += WeightRecord(table);
  for (std::size_t fitting = 0; fitting < kCsvFittings.size(); ++fitting)
    text += FittingRecord(table, fitting);
  text += EmptyLine();
  for (std::size_t i = 0; i < tally.memos.size(); ++i) {
    text += PlainRecord().Put("メモ" + std::to_string(i + 1)).Put(tally.memos.at(i)).Line();
  }
  return text;
}

}  // namespace rbt
