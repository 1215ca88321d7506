// SPDX-License-Identifier: MIT
// What the reader makes of single features of the format, and what it refuses.
#include <algorithm>
#include <bit>
#include <functional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "jet/data_page.h"
#include "jet/samples.h"
#include "jet/table.h"
#include "jet/table_values.h"
#include "platform/fault.h"
#include "support/jet_writer.h"
#include "support/temporary_folder.h"

namespace rbt::jet {
namespace {

using test::RowsOf;
using test::Sample;
using test::Whole;
using test::Words;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// The message of the fault that an action ends with.
std::string FaultOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::file);
    return fault.what();
  }
  ADD_FAILURE() << "no fault";
  return "";
}

std::string RefusalOf(std::vector<unsigned char> bytes) {
  return FaultOf([&] { JetFile::FromBytes(std::move(bytes), "GENBA001.MDB"); });
}

TEST(JetReader, JapaneseTextOfJet3IsTheWindowsCodePage932) {
  const auto file = JetFile::Open(Sample("jet3/japanese-cp932-patched.mdb"));
  EXPECT_EQ(file->Version(), JetVersion::jet3);
  EXPECT_EQ(file->CodePage(), 932);
  const auto rows = RowsOf(*file, "鉄筋表");
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[1][0], Words("①～ｱ表"));
  EXPECT_EQ(rows[1][1], Words("㈱髙ソ能~"));
}

TEST(JetReader, JapaneseNamesAndTextOfJet4AreRead) {
  const auto file = JetFile::Open(Sample("jet4/japanese-generated.mdb"));
  EXPECT_EQ(file->Version(), JetVersion::jet4);
  const TableDefinition table = FindTable(*file, "鉄筋単価表");
  ASSERT_EQ(table.columns.size(), 6U);
  EXPECT_EQ(table.columns[0].name, "コード");
  EXPECT_EQ(table.row_count, 400U);
  const auto rows = RowsOf(*file, "鉄筋単価表");
  ASSERT_EQ(rows.size(), 400U);
  EXPECT_EQ(rows[1][0], Words("①ャドャ柱２所86"));
  EXPECT_EQ(rows[1][2], Value{Currency::FromTenThousandths(12500)});
}

TEST(JetReader, EveryNumberComesBitForBit) {
  const auto file = JetFile::Open(Sample("jet3/testV1997.mdb"));
  const auto rows = RowsOf(*file, "Table1");
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[1][2], Whole(2));
  EXPECT_EQ(rows[1][3], Whole(222));
  EXPECT_EQ(rows[1][4], Whole(333333333));
  // 444.555 as the file's eight bytes have it: 7B 14 AE 47 E1 C8 7B 40.
  EXPECT_EQ(std::bit_cast<std::uint64_t>(std::get<double>(rows[1][5])), 0x407BC8E147AE147BU);
  EXPECT_EQ(rows[1][6], Value{27293.0});  // 1974-09-21
  EXPECT_EQ(rows[1][7], Value{Currency::FromTenThousandths(35000)});
  EXPECT_EQ(rows[1][8], Whole(-1));
  EXPECT_EQ(rows[0][8], Whole(0));
}

TEST(JetReader, NumericKeepsSignAndScale) {
  const auto file = JetFile::Open(Sample("jet4/mdbreader-numeric.mdb"));
  const auto rows = RowsOf(*file, "test");
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_THAT(rows[0], ElementsAre(Words("some data"), Words("1"), Words("0"), Words("0"), Words("4"),
                                   Words("-1"), Words("1")));
}

TEST(JetReader, DeletedColumnsLeaveTheOthersInPlace) {
  for (const char* name : {"jet3/delColTestV1997.mdb", "jet4/delColTestV2000.mdb"}) {
    const auto file = JetFile::Open(Sample(name));
    const TableDefinition table = FindTable(*file, "Table1");
    std::vector<std::string> names;
    for (const Column& column : table.columns) names.push_back(column.name);
    EXPECT_THAT(names, ElementsAre("id", "id2", "data", "data2"));
    std::vector<int> numbers;
    for (const Column& column : table.columns) numbers.push_back(column.number);
    // Jet 3 numbered the columns anew when the file was compacted, Jet 4 kept the gaps.
    if (file->Version() == JetVersion::jet3) {
      EXPECT_THAT(numbers, ElementsAre(0, 1, 2, 3));
    } else {
      EXPECT_THAT(numbers, ElementsAre(0, 2, 3, 5));
    }
    EXPECT_THAT(RowsOf(*file, "Table1"),
                ElementsAre(ElementsAre(Whole(0), Whole(2), Words("foo"), Words("foo2")),
                            ElementsAre(Whole(3), Whole(5), Words("bar"), Words("bar2"))));
  }
}

TEST(JetReader, FieldsOfJet3StandInTheOrderOfTheirOrdinals) {
  FieldDef first;
  first.name = "後";
  first.type = FieldType::integer32;
  FieldDef second = first;
  second.name = "先";
  Bytes image = test::JetImage(JetVersion::jet3, {{"表", {first, second}, {{Whole(1), Whole(2)}}}});
  // The records of the columns begin at 43 of the table's definition on page 3, the ordinal at 5 of each.
  const auto ordinal = [&](std::size_t record) -> unsigned char& {
    return image.at(3 * 2048 + 43 + 18 * record + 5);
  };
  std::swap(ordinal(0), ordinal(1));
  const auto file = JetFile::FromBytes(std::move(image), "GENBA001.MDB");
  EXPECT_EQ(FindTable(*file, "表").columns[0].name, "先");
  EXPECT_THAT(RowsOf(*file, "表"), ElementsAre(ElementsAre(Whole(2), Whole(1))));
}

TEST(JetReader, DeletedRowsAreGone) {
  for (const char* name : {"jet3/delTestV1997.mdb", "jet4/delTestV2000.mdb"}) {
    const auto file = JetFile::Open(Sample(name));
    EXPECT_THAT(RowsOf(*file, "Table"),
                ElementsAre(ElementsAre(Words("z"), Words("y")), ElementsAre(Words("v"), Words("u"))));
  }
}

TEST(JetReader, AMovedRowComesOnceAtTheSlotItHadFirst) {
  for (const char* name : {"jet3/overflowTestV1997.mdb", "jet4/overflowTestV2000.mdb"}) {
    const auto file = JetFile::Open(Sample(name));
    std::vector<std::string> rows;
    for (const auto& row : RowsOf(*file, "Table1")) {
      const auto filled =
          std::find_if(row.begin(), row.end(), [](const Value& value) { return !IsNull(value); });
      rows.push_back(TextOf(*filled).substr(0, 4));
    }
    EXPECT_THAT(rows, ElementsAre("row1", "row2", "row3", "row4", "row5", "row6", "row7")) << name;
  }
}

TEST(JetReader, LongValuesOfSeveralPagesComeWhole) {
  for (const char* name : {"jet3/test2V1997.mdb", "jet4/test2V2000.mdb"}) {
    const auto file = JetFile::Open(Sample(name));
    const TableDefinition table = FindTable(*file, "MSP_PROJECTS");
    const auto rows = RowsOf(*file, "MSP_PROJECTS");
    const Value& value =
        rows.at(0).at(static_cast<std::size_t>(table.Find("RESERVED_BINARY_DATA") - table.columns.data()));
    EXPECT_EQ(std::get<Bytes>(value).size(), 22970U) << name;
  }
}

TEST(JetReader, CompressedAndPlainTextOfJet4AreTheSame) {
  const auto file = JetFile::Open(Sample("jet4/testUnicodeCompV2003.mdb"));
  const auto rows = RowsOf(*file, "Table");
  EXPECT_EQ(rows.at(1).at(1), Words("ääkkösiä"));
  EXPECT_EQ(rows.at(4).at(1), Words("漢字仮名交じり文"));
  EXPECT_EQ(rows.at(6).at(1), Words("ümlaut"));
}

TEST(JetReader, CompressedTextSwitchesAtZeroBytesAndBack) {
  const std::vector<unsigned char> bytes{0xFF, 0xFE, 'D', 0, 0x44, 0x92, 0, '1', '0'};
  EXPECT_EQ(TextOfJet4(bytes).text, "D鉄10");
  EXPECT_TRUE(TextOfJet4(bytes).exact);
}

TEST(JetReader, HalvesOfCharactersAreToldAndReplaced) {
  const std::vector<unsigned char> lone_half{0x41, 0x00, 0x3D, 0xD8};
  EXPECT_EQ(TextOfJet4(lone_half).text, "A\xEF\xBF\xBD");
  EXPECT_FALSE(TextOfJet4(lone_half).exact);
  const std::vector<unsigned char> pair{0x3D, 0xD8, 0x00, 0xDE};
  EXPECT_EQ(TextOfJet4(pair).text, "😀");
  EXPECT_TRUE(TextOfJet4(pair).exact);
  const std::vector<unsigned char> half_unit{0x41, 0x00, 0x42};
  EXPECT_FALSE(TextOfJet4(half_unit).exact);
  const std::vector<unsigned char> half_kanji{0x8C};
  EXPECT_FALSE(TextOfCodePage(half_kanji, 932).exact);
}

TEST(JetReader, AnAutonumberIsMarkedAndItsLastNumberKnown) {
  const auto file = JetFile::Open(Sample("jet4/testUnicodeCompV2003.mdb"));
  const TableDefinition table = FindTable(*file, "Table");
  EXPECT_TRUE(table.Find("ID")->autonumber);
  EXPECT_FALSE(table.Find("Unicode")->autonumber);
  EXPECT_EQ(table.last_autonumber, RowsOf(*file, "Table").size());
}

TEST(JetReader, ColumnsTellTheirTypesAndSizesInCharacters) {
  const auto jet3 = JetFile::Open(Sample("jet3/testV1997.mdb"));
  EXPECT_EQ(FindTable(*jet3, "Table1").Find("B")->ToField(jet3->Version()).size, 100);
  const auto jet4 = JetFile::Open(Sample("jet4/japanese-generated.mdb"));
  EXPECT_EQ(FindTable(*jet4, "鉄筋単価表").Find("コード")->ToField(jet4->Version()).size, 20);
  EXPECT_EQ(FindTable(*jet4, "鉄筋単価表").Find("単価")->ToField(jet4->Version()).type, FieldType::currency);
}

TEST(JetReader, PropertiesOfObjectsAreCarried) {
  const auto file = JetFile::Open(Sample("jet4/testUnicodeCompV2003.mdb"));
  const auto entries = ReadCatalog(*file);
  const auto table =
      std::find_if(entries.begin(), entries.end(), [](const auto& entry) { return entry.name == "Table"; });
  ASSERT_NE(table, entries.end());
  ASSERT_GT(table->properties.size(), 4U);
  EXPECT_EQ(std::string(table->properties.begin(), table->properties.begin() + 3), "MR2");
}

/// Decodes a row of a file of no importance.
std::vector<Value> Decoded(const TableDefinition& table, const Bytes& row) {
  const auto file = JetFile::Open(Sample("jet4/emptyJet4.mdb"));
  return DecodeRow(*file, table, PageView(row, &file->Name(), 9));
}

Column NumberedColumn(std::uint16_t number, ColumnType type, bool fixed) {
  Column column;
  column.name = std::to_string(number);
  column.number = number;
  column.type = type;
  column.fixed = fixed;
  return column;
}

TEST(JetReader, ARowOlderThanItsTablesFirstVariableColumnMayStandWithoutOffsets) {
  TableDefinition table;
  table.variable_columns = 1;
  table.columns = {NumberedColumn(0, ColumnType::integer32, true),
                   NumberedColumn(1, ColumnType::boolean, true), NumberedColumn(2, ColumnType::text, false)};
  EXPECT_THAT(Decoded(table, {2, 0, 0x0D, 0, 0, 0, 3}), ElementsAre(Whole(13), Whole(-1), Value{}));
  // Written since then, with the text "A" from 6 to 8.
  EXPECT_THAT(Decoded(table, {3, 0, 0x0D, 0, 0, 0, 'A', 0, 8, 0, 6, 0, 1, 0, 5}),
              ElementsAre(Whole(13), Whole(0), Words("A")));
}

TEST(JetReader, ALongValueWithoutAHeadIsEmpty) {
  TableDefinition table;
  table.variable_columns = 2;
  table.columns = {NumberedColumn(0, ColumnType::memo, false), NumberedColumn(1, ColumnType::ole, false)};
  table.columns[1].variable_slot = 1;
  EXPECT_THAT(Decoded(table, {2, 0, 2, 0, 2, 0, 2, 0, 2, 0, 3}), ElementsAre(Words(""), Value{Bytes{}}));
}

TEST(JetReader, ALongValueOfMoreThan16MegabytesIsNeverCutShort) {
  auto bytes = test::BytesOf(Sample("jet4/emptyJet4.mdb"));
  const std::size_t page = bytes.size() / 4096;
  const std::vector<unsigned char> piece{0, 0, 0, 0, 'A', 0};  // the last of its chain
  bytes.resize(bytes.size() + 4096);
  const auto at = bytes.end() - 4096;
  at[0] = 1;
  std::copy_n("LVAL", 4, at + 4);
  at[12] = 1;
  at[14] = static_cast<unsigned char>((4096 - piece.size()) & 0xFF);
  at[15] = static_cast<unsigned char>((4096 - piece.size()) >> 8);
  std::copy(piece.begin(), piece.end(), bytes.end() - static_cast<std::ptrdiff_t>(piece.size()));
  const auto file = JetFile::FromBytes(std::move(bytes), "GENBA001.MDB");
  const auto field = [&](unsigned char high) {
    return Bytes{2, 0, 0, high, 0, static_cast<unsigned char>(page), 0, 0, 0, 0, 0, 0};
  };
  const Bytes two = field(0);
  EXPECT_EQ(ReadLongValue(*file, PageView(two, &file->Name(), 9)), (Bytes{'A', 0}));
  const Bytes many = field(1);
  EXPECT_EQ(FaultOf([&] { ReadLongValue(*file, PageView(many, &file->Name(), 9)); }),
            "GENBA001.MDB: page 9: a long value has 2 bytes of 16777218");
}

TEST(JetReader, ADefinitionThatRunsOnAndOnIsDamage) {
  auto bytes = test::BytesOf(Sample("jet4/emptyJet4.mdb"));
  const std::size_t first = bytes.size() / 4096;
  const auto continue_at = [&](std::size_t page, std::size_t next) {
    bytes[page * 4096] = 2;
    bytes[page * 4096 + 4] = static_cast<unsigned char>(next & 0xFF);
    bytes[page * 4096 + 5] = static_cast<unsigned char>(next >> 8);
  };
  bytes.resize(bytes.size() + std::size_t{1000} * 4096);
  continue_at(2, first);
  for (std::size_t page = first; page + 1 < first + 1000; ++page) continue_at(page, page + 1);
  const auto file = JetFile::FromBytes(std::move(bytes), "GENBA001.MDB");
  EXPECT_THAT(FaultOf([&] { ReadCatalog(*file); }), HasSubstr("a table definition runs over too many pages"));
}

TEST(JetReader, AnUnknownCodePageOfJet3IsRefused) {
  auto bytes = test::BytesOf(Sample("jet3/testV1997.mdb"));
  bytes[0x3D] ^= 0xF0;  // 1252 becomes a number that is no code page
  EXPECT_THAT(RefusalOf(std::move(bytes)), HasSubstr("GENBA001.MDB: page 0: its code page "));
}

TEST(JetReader, AFileNotClosedCleanlyIsReadAllTheSameAndItsCommitBytesAreTold) {
  auto bytes = test::BytesOf(Sample("jet4/delTestV2000.mdb"));
  bytes[0xE00] = bytes[0xE01] = 0;  // the first user's commit is under way
  const auto file = JetFile::FromBytes(std::move(bytes), "GENBA001.MDB");
  EXPECT_THAT(file->CommitNotes(),
              ElementsAre(AllOf(HasSubstr("GENBA001.MDB: page 0: a commit was under way"),
                                HasSubstr("commit bytes 00 00"))));
  const ScanReport report =
      ScanTable(*file, FindTable(*file, "Table"), [](RowPointer, std::vector<Value>&) {});
  EXPECT_EQ(report.rows, 2U);
  EXPECT_EQ(report.warning, "");
  EXPECT_TRUE(JetFile::Open(Sample("jet4/delTestV2000.mdb"))->CommitNotes().empty());
}

TEST(JetReader, APasswordIsRefusedByName) {
  const auto path = Sample("jet4/V2000_with-password.mdb");
  EXPECT_THAT(FaultOf([&] { JetFile::Open(path); }),
              AllOf(HasSubstr(path.string()), HasSubstr("password or damaged header")));
}

TEST(JetReader, APasswordOfJet3IsRefused) {
  auto bytes = test::BytesOf(Sample("jet3/testV1997.mdb"));
  bytes[0x42] ^= 'a';  // the coding is a bitwise one: this makes the first letter of the password "a"
  EXPECT_THAT(RefusalOf(std::move(bytes)), HasSubstr("GENBA001.MDB: page 0: password or damaged header"));
}

TEST(JetReader, EncryptedPagesAreRefused) {
  auto bytes = test::BytesOf(Sample("jet4/testUnicodeCompV2003.mdb"));
  bytes[0x3E] ^= 1;
  EXPECT_THAT(RefusalOf(std::move(bytes)),
              HasSubstr("GENBA001.MDB: page 0: encrypted pages or a damaged header"));
}

TEST(JetReader, FilesOfLaterEnginesAreRefused) {
  auto bytes = test::BytesOf(Sample("jet4/emptyJet4.mdb"));
  bytes[0x14] = 2;
  EXPECT_THAT(RefusalOf(bytes), HasSubstr("engine version 2 is later than Jet 4"));
  std::copy_n("Standard ACE DB", 15, bytes.begin() + 4);
  EXPECT_THAT(RefusalOf(std::move(bytes)), HasSubstr("a file of a later engine"));
}

TEST(JetReader, WhatIsNoJetFileIsRefused) {
  EXPECT_THAT(RefusalOf({}), HasSubstr("GENBA001.MDB: too short"));
  EXPECT_THAT(RefusalOf(std::vector<unsigned char>(4096)), HasSubstr("GENBA001.MDB: not a Jet file"));
  const test::TemporaryFolder folder;
  EXPECT_THAT(FaultOf([&] { JetFile::Open(folder.Path()); }), HasSubstr("not a file"));
  EXPECT_THAT(FaultOf([&] { JetFile::Open(folder.Path() / "none.mdb"); }),
              HasSubstr("none.mdb: No such file"));
}

TEST(JetReader, AFileCutOffInsideAPageIsRefused) {
  auto bytes = test::BytesOf(Sample("jet4/emptyJet4.mdb"));
  bytes.resize(bytes.size() - 1);
  EXPECT_THAT(RefusalOf(std::move(bytes)), HasSubstr("the file is cut off"));
}

TEST(JetReader, DamageNamesFilePageAndCause) {
  auto bytes = test::BytesOf(Sample("jet4/delTestV2000.mdb"));
  std::fill_n(bytes.begin() + std::ptrdiff_t{2} * 4096, 4096,
              static_cast<unsigned char>(0));  // the catalog's definition
  const auto file = JetFile::FromBytes(std::move(bytes), "GENBA001.MDB");
  EXPECT_EQ(FaultOf([&] { ReadCatalog(*file); }), "GENBA001.MDB: page 2: is of type 0 where type 2 is due");
}

TEST(JetReader, ATableIsFoundWhateverTheLetterCaseAndWidth) {
  const auto file = JetFile::Open(Sample("jet3/testV1997.mdb"));
  EXPECT_EQ(FindTable(*file, "ｔＡＢＬＥ1").name, "Table1");
}

TEST(JetReader, ATableThatIsNotThereIsNamed) {
  const auto file = JetFile::Open(Sample("jet4/delTestV2000.mdb"));
  EXPECT_THAT(FaultOf([&] { FindTable(*file, "加工テーブル"); }), HasSubstr("no table 加工テーブル"));
}

TEST(JetReader, JetFilesAreKnownByTheirFirstBytes) {
  EXPECT_TRUE(IsJetFile(Sample("jet3/testV1997.mdb")));
  EXPECT_TRUE(IsJetFile(Sample("jet4/V2000_with-password.mdb")));
  EXPECT_FALSE(IsJetFile(Sample("README.md")));
  EXPECT_FALSE(IsJetFile(Sample("none.mdb")));
}

}  // namespace
}  // namespace rbt::jet
