// SPDX-License-Identifier: MIT
// Single damages of a small file, by hand: what the check says of each, and how a reader meets structures
// that run in circles or lie about their size.
#include "jet/check.h"

#include <functional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "jet/index.h"
#include "jet/table.h"
#include "platform/fault.h"
#include "support/field.h"
#include "support/jet_writer.h"

namespace rbt::jet {
namespace {

using test::Field;
using test::JetTable;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// A Jet 4 file of one table with a key: page 1 holds the usage maps (slot 0 the free pages, slot 1 the pages
/// of the table, slot 3 those of its index), page 2 the definition of the catalog, 3 that of the table, 4 its
/// rows, 5 its index, 6 the rows of the catalog.
class OneTable {
 public:
  OneTable() {
    const JetTable table{
        "表", {Field("番号", FieldType::integer32)}, {{Whole(1)}, {Whole(2)}, {Whole(3)}}, {"番号"}};
    image_ = test::JetImage(JetVersion::jet4, {table});
  }

  unsigned char& At(std::size_t page, std::size_t at) { return image_.at(page * kPageSize + at); }
  void Put32(std::size_t page, std::size_t at, std::uint32_t value) {
    for (std::size_t i = 0; i < 4; ++i) At(page, at + i) = static_cast<unsigned char>(value >> (8 * i));
  }
  /// The byte of a usage map that stands for pages 0 to 7.
  unsigned char& MapByte(std::size_t slot) {
    const std::size_t offset = 14 + 2 * slot;
    return At(1, (At(1, offset) | static_cast<std::size_t>(At(1, offset + 1) << 8)) + 5);
  }
  /// An entry of the index: 0x7F, the number with its sign bit turned, big-endian, three bytes of page, one
  /// of slot.
  unsigned char& EntryByte(std::size_t entry, std::size_t at) { return At(5, 0x1E0 + 9 * entry + at); }
  void AppendPage() { image_.resize(image_.size() + kPageSize); }
  void AppendCopyOf(std::size_t page) {
    const Bytes copy(image_.begin() + static_cast<std::ptrdiff_t>(page * kPageSize),
                     image_.begin() + static_cast<std::ptrdiff_t>((page + 1) * kPageSize));
    image_.insert(image_.end(), copy.begin(), copy.end());
  }

  std::unique_ptr<JetFile> Open() const { return JetFile::FromBytes(image_, "one.mdb"); }
  std::vector<std::string> Damages() const { return CheckFile(*Open()).damages; }
  std::string FaultOfReading() const {
    try {
      const auto file = Open();
      ScanTable(*file, FindTable(*file, "表"), [](RowPointer, std::vector<Value>&) {});
    } catch (const Fault& fault) {
      return fault.what();
    }
    return "no fault";
  }

 private:
  static Value Whole(std::int64_t number) { return Value{number}; }
  static constexpr std::size_t kPageSize = 4096;
  Bytes image_;
};

TEST(JetCheck, ASoundFileHasNoDamage) {
  const CheckReport report = CheckFile(*OneTable().Open());
  EXPECT_THAT(report.damages, IsEmpty());
  EXPECT_THAT(report.warnings, IsEmpty());
  EXPECT_THAT(report.lines, ElementsAre("table MSysObjects: 2 rows, 8 columns, 0 indexes",
                                        "table 表: 3 rows, 1 columns, 1 indexes"));
}

TEST(JetCheck, APageOfTwoOwnersIsTold) {
  OneTable file;
  file.MapByte(1) |= 1U << 6;
  EXPECT_THAT(file.Damages(), Contains("page 6 belongs to table MSysObjects and to table 表"));
  EXPECT_THAT(file.Damages(), Contains("table 表: page 6 is in its usage map but does not point to it"));
}

TEST(JetCheck, APageThatItsUsageMapLacksIsTold) {
  OneTable file;
  file.MapByte(1) = 0;
  EXPECT_THAT(file.Damages(), Contains("table 表: page 4 points to it but is not in its usage map"));
}

TEST(JetCheck, APageBehindTheEndIsTold) {
  OneTable file;
  file.MapByte(1) |= 1U << 7;
  EXPECT_THAT(file.Damages(), Contains(HasSubstr("a usage map names page 7, the file has 7 pages")));
}

TEST(JetCheck, APageOfAnIndexThatItsUsageMapLacksIsTold) {
  OneTable file;
  file.MapByte(3) = 0;
  EXPECT_THAT(file.Damages(), ElementsAre("table 表, index PrimaryKey: page 5 is not in its usage map"));
}

TEST(JetCheck, AFreePageThatSomebodyOwnsIsTold) {
  OneTable file;
  file.MapByte(0) |= 1U << 4;
  EXPECT_THAT(file.Damages(), ElementsAre("page 4 is called free but belongs to table 表"));
}

TEST(JetCheck, AGivenUpPageIsAWarning) {
  OneTable file;
  file.AppendPage();
  const CheckReport report = CheckFile(*file.Open());
  EXPECT_THAT(report.damages, IsEmpty());
  EXPECT_THAT(report.warnings,
              ElementsAre("pages that were given up, neither owned nor free: 1, page 7 first"));
}

TEST(JetCheck, AGivenUpPageFullOfLiveLookingRowsIsAWarningToo) {
  OneTable file;
  file.AppendCopyOf(4);
  const CheckReport report = CheckFile(*file.Open());
  EXPECT_THAT(report.damages, IsEmpty());
  EXPECT_THAT(report.warnings,
              ElementsAre("pages that were given up, neither owned nor free: 1, page 7 first"));
  EXPECT_THAT(report.lines, Contains("table 表: 3 rows, 1 columns, 1 indexes"));
}

TEST(JetCheck, ACountOfASystemTableThatLagsBehindItsRowsIsAWarning) {
  OneTable file;
  file.Put32(2, 16, 1);  // the catalog lists itself and the table
  const CheckReport report = CheckFile(*file.Open());
  EXPECT_THAT(report.damages, IsEmpty());
  EXPECT_THAT(report.warnings,
              ElementsAre("table MSysObjects: page 2: its definition counts 1 rows, 2 are there"));
  file.Put32(2, 16, 3);  // one that runs ahead has lost a table
  EXPECT_THAT(file.FaultOfReading(),
              HasSubstr("one.mdb: page 2: the definition of MSysObjects counts 3 rows"));
}

TEST(JetCheck, TablesAloneAreCheckedWithoutWhatBelongsToNone) {
  OneTable file;
  file.AppendPage();
  file.EntryByte(2, 8) = 77;
  const auto jet = file.Open();
  std::vector<CatalogEntry> tables = ReadCatalog(*jet);
  const CheckReport both = CheckTables(*jet, tables);
  EXPECT_EQ(both.lines.size(), 2U);
  EXPECT_EQ(both.damages.size(), 2U);
  EXPECT_THAT(both.warnings, IsEmpty());
  std::erase_if(tables, [](const CatalogEntry& entry) { return entry.name == "表"; });
  EXPECT_THAT(CheckTables(*jet, tables).damages, IsEmpty());
}

/// The rows that a reader gets of the one table, as numbers.
std::vector<std::int64_t> NumbersIn(const OneTable& file, std::string* warning = nullptr) {
  std::vector<std::int64_t> numbers;
  const auto jet = file.Open();
  const ScanReport report = ScanTable(
      *jet, FindTable(*jet, "表"),
      [&](RowPointer, std::vector<Value>& fields) { numbers.push_back(std::get<std::int64_t>(fields[0])); });
  if (warning != nullptr) *warning = report.warning;
  return numbers;
}

TEST(JetRows, OfGivenUpPagesDoNotComeBack) {
  OneTable file;
  file.AppendCopyOf(4);
  std::string warning;
  EXPECT_THAT(NumbersIn(file, &warning), ElementsAre(1, 2, 3));
  EXPECT_EQ(warning, "");
  file.At(0, 0xE01) = 0;  // nor when the file was not closed cleanly
  EXPECT_THAT(NumbersIn(file, &warning), ElementsAre(1, 2, 3));
}

TEST(JetRows, ComeFromAllPagesWhereTheUsageMapHasLostSomeAndTheCountAgrees) {
  OneTable file;
  file.MapByte(1) = 0;
  std::string warning;
  EXPECT_THAT(NumbersIn(file, &warning), ElementsAre(1, 2, 3));
  EXPECT_EQ(warning,
            "one.mdb: page 3: the definition of 表 counts 3 rows, its usage map leads to 0; all data pages "
            "were looked through");
}

TEST(JetRows, ComeFromAllPagesWhereTheUsageMapNamesAPageOfSomebodyElse) {
  OneTable file;
  file.MapByte(1) = 1U << 6;
  std::string warning;
  EXPECT_THAT(NumbersIn(file, &warning), ElementsAre(1, 2, 3));
  EXPECT_THAT(warning, HasSubstr("page 6: is in the usage map of 表 but does not point to it"));
}

TEST(JetRows, AreRefusedWhereNeitherTheUsageMapNorAllPagesAgreeWithTheCount) {
  OneTable file;
  file.AppendCopyOf(4);
  file.Put32(3, 16, 4);
  EXPECT_EQ(
      file.FaultOfReading(),
      "one.mdb: page 3: the definition of 表 counts 4 rows, its usage map leads to 3, and 6 stand on the "
      "pages that point to it: which are right cannot be told");
}

TEST(JetCheck, ARowCountThatIsOffIsTold) {
  OneTable file;
  file.Put32(3, 16, 4);
  EXPECT_THAT(
      file.Damages(),
      Contains("table 表, rows: one.mdb: page 3: the definition of 表 counts 4 rows, its usage map "
               "leads to 3, and 3 stand on the pages that point to it: which are right cannot be told"));
}

TEST(JetCheck, EntriesOutOfOrderAreTold) {
  OneTable file;
  file.EntryByte(0, 4) = 9;
  EXPECT_THAT(file.Damages(), Contains("table 表, index PrimaryKey: the entry of row 4:1 is out of order"));
}

TEST(JetCheck, AnEntryWithoutARowAndARowWithoutAnEntryAreTold) {
  OneTable file;
  file.EntryByte(2, 8) = 77;
  EXPECT_THAT(file.Damages(),
              ElementsAre("table 表, index PrimaryKey: an entry points to row 4:77, which is not there",
                          "table 表, index PrimaryKey: row 4:2 has no entry"));
}

TEST(JetCheck, ARowOfTwoEntriesIsTold) {
  OneTable file;
  file.EntryByte(2, 8) = 1;
  EXPECT_THAT(file.Damages(), ElementsAre("table 表, index PrimaryKey: row 4:1 has two entries",
                                          "table 表, index PrimaryKey: the entry of row 4:1 has not its key",
                                          "table 表, index PrimaryKey: row 4:2 has no entry"));
}

TEST(JetCheck, EqualKeysOfAUniqueIndexAreTold) {
  OneTable file;
  file.EntryByte(1, 4) = 1;
  EXPECT_THAT(file.Damages(), Contains("table 表, index PrimaryKey: rows 4:0 and 4:1 have the same key"));
}

TEST(JetCheck, AnEntryWithTheKeyOfAnotherRowIsTold) {
  OneTable file;
  file.At(4, 4096 - 7 + 2) = 9;  // the first row's number; its entry still has 1
  EXPECT_THAT(file.Damages(),
              ElementsAre("table 表, index PrimaryKey: the entry of row 4:0 has not its key"));
}

TEST(JetCheck, ALeafThatNamesAWrongNeighbourIsTold) {
  OneTable file;
  file.Put32(5, 0x10, 4);
  EXPECT_THAT(file.Damages(), ElementsAre("table 表, index PrimaryKey: page 5 names 0 and 4 as its "
                                          "neighbours, which are 0 and 0"));
}

TEST(JetCheck, KeysOfNumbersAreKnownAscendingAndDescending) {
  TableDefinition table;
  const auto column = [&](std::uint16_t number, ColumnType type) {
    table.columns.emplace_back().type = type;
    table.columns.back().number = number;
  };
  column(0, ColumnType::integer16);
  column(1, ColumnType::real);
  column(2, ColumnType::text);
  column(3, ColumnType::currency);
  PhysicalIndex index;
  index.columns = {{0, false}, {1, true}, {3, false}, {2, false}, {0, false}};
  const Value minus_one{std::int64_t{-1}};
  EXPECT_EQ(KnownKeyOf(table, index, {minus_one, Value{1.0}, Value{"柱"}, {}}),
            (std::vector<unsigned char>{0x7F, 0x7F, 0xFF, 0x80, 0x40, 0x0F, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF,
                                        0xFF, 0}));
  index.columns = {{1, false}, {3, true}};
  EXPECT_EQ(KnownKeyOf(table, index, {minus_one, Value{-1.0}, {}, Value{Currency::FromTenThousandths(1)}}),
            (std::vector<unsigned char>{0x7F, 0x40, 0x0F, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x80, 0x7F,
                                        0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFE}));
  index.columns = {{2, false}, {0, false}};
  EXPECT_FALSE(KnowsKeysOf(table, index));
  EXPECT_TRUE(KnownKeyOf(table, index, {minus_one, {}, {}, {}}).empty());
}

TEST(JetCheck, AFileNotClosedCleanlyIsAWarning) {
  OneTable file;
  file.At(0, 0xE01) = 0;
  const CheckReport report = CheckFile(*file.Open());
  EXPECT_THAT(report.damages, IsEmpty());
  EXPECT_THAT(report.warnings, ElementsAre(HasSubstr("one.mdb: page 0: a commit was under way")));
}

TEST(JetCheck, DamagesBeyondTwoHundredAreCounted) {
  std::vector<std::vector<Value>> rows;
  for (int i = 0; i < 300; ++i) rows.push_back({Value{std::int64_t{i}}});
  Bytes image =
      test::JetImage(JetVersion::jet4, {{"表", {Field("番号", FieldType::integer32)}, rows, {"番号"}}});
  const std::size_t leaf = std::size_t{6} * 4096;  // rows on pages 4 and 5, the index on 6
  ASSERT_EQ(image.at(leaf), 4);
  std::fill_n(image.begin() + static_cast<std::ptrdiff_t>(leaf) + 0x1B, 0x1E0 - 0x1B,
              static_cast<unsigned char>(0));
  const CheckReport report = CheckFile(*JetFile::FromBytes(image, "many.mdb"));
  ASSERT_EQ(report.damages.size(), 201U);
  EXPECT_EQ(report.damages.back(), "and 100 more");
}

TEST(HostileJet, ADefinitionThatRunsInACircleEnds) {
  OneTable file;
  file.Put32(3, 4, 3);
  EXPECT_THAT(file.FaultOfReading(), HasSubstr("a table definition runs in a circle"));
}

TEST(HostileJet, AnIndexThatRunsInACircleEnds) {
  OneTable file;
  file.At(5, 0) = 3;  // a branch whose one entry leads to the branch
  for (std::size_t at = 0x1B; at < 0x1E0; ++at) file.At(5, at) = 0;
  file.At(5, 0x1B + 13 / 8) = 1U << (13 % 8);
  for (std::size_t i = 9; i < 13; ++i) file.EntryByte(0, i) = i == 12 ? 5 : 0;
  EXPECT_THAT(file.Damages(), Contains(HasSubstr("the index runs in a circle")));
}

TEST(HostileJet, ARowThatMovesInACircleEnds) {
  OneTable file;
  file.At(4, 15) |= 0x40;  // slot 0 holds a pointer now
  const std::size_t start = file.At(4, 14) | static_cast<std::size_t>((file.At(4, 15) & 0x1F) << 8);
  file.Put32(4, start, 4U << 8);
  EXPECT_THAT(file.FaultOfReading(), HasSubstr("a row has moved in a circle"));
}

TEST(HostileJet, ARowThatMovedToAnotherTableIsDamage) {
  OneTable file;
  file.At(4, 15) |= 0x40;
  const std::size_t start = file.At(4, 14) | static_cast<std::size_t>((file.At(4, 15) & 0x1F) << 8);
  file.Put32(4, start, 6U << 8);
  EXPECT_THAT(file.FaultOfReading(), HasSubstr("row 0 is not where a row of the other page has moved to"));
}

TEST(HostileJet, HugeCountsAreDamage) {
  OneTable columns;
  columns.At(3, 45) = columns.At(3, 46) = 0xFF;
  EXPECT_THAT(columns.FaultOfReading(), HasSubstr("a table of 65535 columns"));
  OneTable indexes;
  indexes.Put32(3, 51, 0xFFFFFFFF);
  EXPECT_THAT(indexes.FaultOfReading(), HasSubstr("a table of 4294967295 indexes"));
  OneTable rows;
  rows.At(4, 12) = rows.At(4, 13) = 0xFF;
  EXPECT_THAT(rows.FaultOfReading(), HasSubstr("page 4: 65535 rows do not fit"));
}

/// A Jet 3 file with an OLE value and a page whose row begins with a pointer: one byte of column count, then
/// a number. The number's low three bytes are the page, so that the row points to itself.
std::string FaultOfLongValue(std::uint32_t length, unsigned char sort) {
  constexpr std::size_t kPageSize = 2048;
  constexpr std::int64_t kPieces = 6;  // pages: 3 and 5 definitions, 4 the value, 6 the pieces
  const JetTable value{"値", {Field("OLE", FieldType::ole)}, {{Value{Bytes{1, 2, 3, 4}}}}};
  const JetTable pieces{
      "片", {Field("次", FieldType::integer32)}, {{Value{std::int64_t{0}}}, {Value{kPieces}}}};
  Bytes image = test::JetImage(JetVersion::jet3, {value, pieces});
  // The row of the value: count of columns, then the field's head: length, sort, pointer.
  const int within_page = image.at(4 * kPageSize + 10) | (image.at(4 * kPageSize + 11) << 8U);
  const std::size_t row = 4 * kPageSize + static_cast<std::size_t>(within_page);
  for (std::size_t i = 0; i < 3; ++i) image.at(row + 1 + i) = static_cast<unsigned char>(length >> (8 * i));
  image.at(row + 4) = sort;
  image.at(row + 5) = 1;
  image.at(row + 6) = kPieces;
  try {
    const auto file = JetFile::FromBytes(image, "long.mdb");
    ScanTable(*file, FindTable(*file, "値"), [](RowPointer, std::vector<Value>&) {});
  } catch (const Fault& fault) {
    return fault.what();
  }
  return "no fault";
}

TEST(HostileJet, ALongValueThatRunsInACircleEnds) {
  EXPECT_THAT(FaultOfLongValue(100, 0), HasSubstr("a long value runs in a circle"));
}

TEST(HostileJet, LengthsThatLieAreDamage) {
  EXPECT_THAT(FaultOfLongValue(100, 0x80), HasSubstr("100 bytes at 12 lie outside"));
  EXPECT_THAT(FaultOfLongValue(0xFFFFFF, 0x40), HasSubstr("a long value has 6 bytes of 16777215"));
}

}  // namespace
}  // namespace rbt::jet
