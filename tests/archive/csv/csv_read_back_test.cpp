// SPDX-License-Identifier: MIT
// Files of random tallies, read back and held against what the screens show.
#include <gtest/gtest.h>

#include "archive/csv/csv_samples.h"
#include "archive/store/random_tallies.h"
#include "platform/text/characters.h"
#include "platform/text/cp932.h"
#include "tally/detail/detail_cell.h"
#include "tally/views/floorpart_grid.h"

namespace rbt::test {

namespace {

using Records = std::vector<std::vector<std::string>>;

constexpr int kTallies = 20;
constexpr std::size_t kPartColumns = 11;

/// The records as another program reads them.
Records ReadBack(TallyResult result, const CsvSite& site, FloorCsvLayout layout = FloorCsvLayout::total) {
  CsvOfTally tally;
  tally.result = std::move(result);
  return ReadCsv(FromCp932(ToCp932(CsvText(tally, site, layout))));
}

std::int64_t NumberIn(const std::vector<std::string>& record, std::size_t column) {
  return std::stoll(record.at(column));
}

std::string Whole(Currency kilograms) { return WholeKilograms(kilograms).ToText(); }

/// Records `first` to `last` of the file show the rows, but for their first cell, from the second field on.
void ExpectRows(const Records& records, std::size_t first, const GridRows& rows) {
  ASSERT_GE(records.size(), first + rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (std::size_t column = 1; column < rows[i].size(); ++column) {
      EXPECT_EQ(records[first + i].at(column), ReplaceAll(rows[i][column], ",", "")) << i << " " << column;
    }
  }
}

/// In every column from `column` on the last record is the sum of those from `first` on.
void ExpectLastIsSum(const Records& records, std::size_t first, std::size_t column) {
  for (; column < records.back().size(); ++column) {
    std::int64_t sum = 0;
    for (std::size_t i = first; i + 1 < records.size(); ++i) sum += NumberIn(records[i], column);
    EXPECT_EQ(NumberIn(records.back(), column), sum) << "column " << column;
  }
}

/// Blocks of a file: the lines up to each empty one.
std::vector<Records> BlocksOf(const Records& records) {
  std::vector<Records> blocks(1);
  for (const auto& record : records) {
    if (record.empty()) {
      blocks.emplace_back();
    } else {
      blocks.back().push_back(record);
    }
  }
  blocks.pop_back();
  return blocks;
}

}  // namespace

TEST(CsvReadBack, ATallyByDiameterAndLengthHasEveryCellOfTheTable) {
  RandomTallies random(11);
  for (int n = 0; n < kTallies; ++n) {
    const bool with_13m = n % 2 == 1;
    const TallyResult result = random.Grid(TallyKind::bulk, with_13m);
    const TallyTable& table = result.Grid();
    const Records records = ReadBack(result, SampleCsvSite(with_13m));
    const int columns = StockColumnsInUse(with_13m);
    EXPECT_EQ(records[0][7], Whole(table.TotalStockWeight));
    for (int d = 0; d < kDeformedRows; ++d) {
      const std::size_t at = 1 + 2 * static_cast<std::size_t>(d);
      for (int l = 0; l < columns; ++l) {
        const std::vector<std::string>& record = records.at(4 + static_cast<std::size_t>(l));
        EXPECT_EQ(record.at(at), std::to_string(table.BarCount[d][l]));
        EXPECT_EQ(record.at(at + 1), Whole(table.StockWeight[d][l]));
      }
      const std::size_t below = 4 + static_cast<std::size_t>(columns);
      EXPECT_EQ(records.at(below).at(1 + static_cast<std::size_t>(d)), Whole(table.StockWeightByDia[d]));
      for (std::size_t fitting = 0; fitting < kFittingWords.size(); ++fitting) {
        EXPECT_EQ(records.at(below + 1 + fitting).at(1 + static_cast<std::size_t>(d)),
                  std::to_string(FittingCount(table, d, kFittingWords.at(fitting).fitting)));
      }
    }
  }
}

TEST(CsvReadBack, FloorsAreThoseOfTheScreenAndAddUp) {
  RandomTallies random(12);
  for (int n = 0; n < kTallies; ++n) {
    SCOPED_TRACE(n);
    const RandomTally how{.thin = n % 3 == 1,
                          .with_13m = n % 2 == 1,
                          .installed = n % 4 == 2,
                          .uplift = n % 5 == 0 ? 0.1 : 0.0};
    const TallyResult result = random.Floors(how);
    const Records records = ReadBack(result, SampleCsvSite(how.with_13m));
    const GridRows rows = ShowFloors(result.Floors());
    ASSERT_EQ(records.size(), 2 + rows.size());
    ExpectRows(records, 2, rows);
    ExpectLastIsSum(records, 2, 1);
    EXPECT_EQ(records[0][7], records.back()[1 + kPartColumns]) << "the head tells the total";
  }
}

TEST(CsvReadBack, PartsAreThoseOfTheScreenAndAddUp) {
  RandomTallies random(13);
  for (int n = 0; n < kTallies; ++n) {
    SCOPED_TRACE(n);
    const RandomTally how{.thin = n % 3 == 1, .with_13m = n % 2 == 1, .uplift = n % 5 == 0 ? 0.1 : 0.0};
    const TallyResult result = random.Parts(how);
    const Records records = ReadBack(result, SampleCsvSite(how.with_13m));
    GridRows rows = ShowParts(result.Parts());
    std::erase_if(rows, [](const auto& row) { return row.front() == kGapLabel; });
    ASSERT_EQ(records.size(), 2 + rows.size());
    ExpectRows(records, 2, rows);
    ExpectLastIsSum(records, 2, 1);
    EXPECT_EQ(records[0][7], records.back()[1 + kPartColumns]);
  }
}

TEST(CsvReadBack, BlocksOfFloorsAddUpToTheTableOfFloors) {
  RandomTallies random(14);
  for (int n = 0; n < kTallies; ++n) {
    SCOPED_TRACE(n);
    const RandomTally how{.with_13m = n % 2 == 1, .installed = n % 4 == 2, .uplift = n % 5 == 0 ? 0.1 : 0.0};
    const TallyResult result = random.Floors(how);
    const Records table = ReadBack(result, SampleCsvSite(how.with_13m));
    const std::vector<Records> blocks =
        BlocksOf(ReadBack(result, SampleCsvSite(how.with_13m), FloorCsvLayout::parts));
    ASSERT_EQ(blocks.size(), table.size() - 2);
    for (std::size_t floor = 0; floor < blocks.size(); ++floor) {
      const Records& block = blocks[floor];
      ASSERT_EQ(block.size(), 2 + kPartColumns);
      ExpectLastIsSum(block, 1, 2);
      for (std::size_t part = 0; part <= kPartColumns; ++part) {
        const std::vector<std::string>& line = block[1 + part];
        EXPECT_EQ(line.back(), table[2 + floor][1 + part]) << "the cell of the table";
        std::int64_t across = 0;
        for (std::size_t d = 2; d + 1 < line.size(); ++d) across += NumberIn(line, d);
        EXPECT_EQ(NumberIn(line, line.size() - 1), across);
      }
    }
  }
}

TEST(CsvReadBack, ThinBarsCountInTheTotalsOfBlocksAlone) {
  RandomTallies random(15);
  const TallyResult result = random.Floors({.thin = true});
  const std::vector<Records> blocks = BlocksOf(ReadBack(result, SampleCsvSite(), FloorCsvLayout::parts));
  const std::vector<std::string>& total = blocks.back().back();
  EXPECT_EQ(total.back(), Whole(result.Floors().SouGoukei));
  for (std::size_t d = 2; d + 1 < total.size(); ++d) EXPECT_EQ(total[d], "0");
}

}  // namespace rbt::test
