// SPDX-License-Identifier: MIT
#include <cstddef>

#include "archive/csv/csv_fittings.h"
#include "archive/csv/plain_record.h"
#include "archive/csv/records.h"

namespace rbt {

namespace {

static_assert(kPartFittings.size() == kCsvFittings.size());

std::string DiameterRecord(const PartTables& tables, const ListRow& diameter, int r) {
  PlainRecord record;
  record.Put(diameter.label).PutParts(diameter.parts, diameter.total);
  for (const PartFittingName& fitting : kPartFittings) record.Put((tables.*fitting.tables).Taisa[r]);
  return record.Line();
}

}  // namespace

std::string PartRecords(const PartTables& tables, const CsvSite& site) {
  std::string text = HeadRecord(site, tables.SouGoukei) + PartCaptionRecord("太さ", site);
  for (std::size_t row = 0; row < tables.BuiGyou.size(); ++row) {
    // The gap and the total are no diameters.
    const std::optional<int>& r = tables.BuiGyouTaisa.at(row);
    if (r) text += DiameterRecord(tables, tables.BuiGyou.at(row), *r);
  }
  PlainRecord total;
  total.Put(kCsvTotal).PutParts(tables.BuiGoukei, tables.SouGoukei);
  for (const PartFittingName& fitting : kPartFittings) {
    total.Put(CsvFittingTotal((tables.*fitting.tables).Taisa));
  }
  return text + total.Line();
}

}  // namespace rbt
