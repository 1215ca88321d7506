// SPDX-License-Identifier: MIT
#include "archive/csv/csv_text.h"

#include "archive/csv/records.h"

namespace rbt {

namespace {

const FloorTables* FloorsOf(const CsvSubject& subject) {
  const auto* tally = std::get_if<CsvOfTally>(&subject);
  return tally == nullptr ? nullptr : std::get_if<FloorTables>(&tally->result.tables);
}

}  // namespace

bool HasFloorLayouts(const CsvSubject& subject) { return FloorsOf(subject) != nullptr; }

std::string CsvText(const CsvSubject& subject, const CsvSite& site, FloorCsvLayout layout) {
  if (const auto* names = std::get_if<CsvOfNames>(&subject)) return NameRecords(*names, site);
  if (const FloorTables* floors = FloorsOf(subject)) {
    return layout == FloorCsvLayout::total ? FloorRecords(*floors, site) : FloorPartRecords(*floors, site);
  }
  const auto& tally = std::get<CsvOfTally>(subject);
  if (const auto* parts = std::get_if<PartTables>(&tally.result.tables)) return PartRecords(*parts, site);
  return GridRecords(tally, site);
}

}  // namespace rbt
