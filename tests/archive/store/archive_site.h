// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "archive/store/load_tally.h"
#include "archive/store/save_tally.h"
#include "shell/config/settings.h"
#include "support/site_fixture.h"
#include "tally/selection.h"

namespace rbt::test {

inline constexpr const char* kArchiveTables[] = {"重量集計名称", "重量集計",       "階部位重量集計",
                                                 "階別重量集計", "部位別重量集計", "部位別本重集計"};

/// A grade and a maker of its own for every diameter.
inline BarOrigins SampleSupply() {
  BarOrigins supply;
  for (std::size_t d = 0; d < supply.grades.size(); ++d) {
    supply.grades.at(d) = "SD" + std::to_string(d);
    supply.makers.at(d) = "O'Neill " + std::to_string(d);
  }
  return supply;
}

/// A site whose archive is looked into and written.
class ArchiveSite : public SiteFixture {
 public:
  Database Open() const { return Database::Open(Data(kScheduleFile)); }

  /// A save on 2026-11-21 at 09:00 and so many seconds (below 60).
  static SaveOrder Order(const std::string& name, int second = 0, bool with_13m = false) {
    const std::string seconds = std::to_string(second);
    return {.key = {"20261121", std::string("0900") + (second < 10 ? "0" : "") + seconds},
            .name = name,
            .supply = SampleSupply(),
            .with_13m = with_13m};
  }
  bool Save(const TallyResult& result, const SaveOrder& order) const {
    Database site = Open();
    return SaveTally(site, result, order);
  }
  std::vector<SavedTally> List(TallyKind kind, bool with_13m = false) const {
    Database site = Open();
    return SavedTallies(site, kind, with_13m);
  }
  LoadedTally Load(TallyKind kind, const std::string& name, bool with_13m = false) const {
    Database site = Open();
    const std::vector<SavedTally> list = SavedTallies(site, kind, with_13m);
    return LoadTally(site, *FindSaved(list, name), with_13m);
  }
  /// The rows of a SELECT as "a|b|c".
  std::vector<std::string> Lines(const std::string& statement) const {
    std::vector<std::string> lines;
    for (const std::vector<Value>& row : Rows(kScheduleFile, statement)) {
      std::string line;
      for (const Value& value : row) line += (line.empty() ? "" : "|") + Shown(value);
      lines.push_back(line);
    }
    return lines;
  }
  /// Everything that the archive holds.
  std::vector<std::vector<std::string>> Dump() const {
    std::vector<std::vector<std::string>> tables;
    for (const char* table : kArchiveTables) tables.push_back(Lines(std::string("SELECT * FROM ") + table));
    return tables;
  }
  std::size_t Count(const std::string& table) const { return Lines("SELECT * FROM " + table).size(); }
};

/// A bulk tally with one diameter: 10 bars of D19 by 6.0 m, 135 kg in stock, 120.5 kg installed, 4 welds.
inline TallyResult SmallTally(TallyKind kind = TallyKind::bulk) {
  TallyResult result;
  result.kind = kind;
  TallyTable table;
  table.BarCount[3][5] = 10;
  table.StockWeight[3][5] = Currency::FromInteger(135);
  table.StockWeightByDia[3] = table.TotalStockWeight = Currency::FromInteger(135);
  table.InstalledWeightByDia[3] = table.TotalInstalledWeight = Currency::FromDouble(120.5);
  table.WeldCount[3] = table.TotalWeldCount = 4;
  table.LossRatePercent = (135.0 - 120.5) / 120.5 * 100.0;
  result.tables = table;
  return result;
}

}  // namespace rbt::test
