// SPDX-License-Identifier: MIT
// Files made by the writer of the tests: this reader, the packaged C tools and the npm reader give back what
// was put in, and the check finds them sound.
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "jet/check.h"
#include "jet/independent_readers.h"
#include "jet/properties.h"
#include "jet/table.h"
#include "jet/table_values.h"
#include "support/field.h"
#include "support/jet_writer.h"
#include "support/temporary_folder.h"

namespace rbt::jet {
namespace {

using test::Field;
using test::JetTable;
using test::RowsOf;
using test::Whole;
using test::Words;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class WrittenFile : public ::testing::TestWithParam<JetVersion> {
 protected:
  std::unique_ptr<JetFile> Write(const std::vector<JetTable>& tables) {
    test::WriteJetFile(path_, GetParam(), tables);
    auto file = JetFile::Open(path_);
    EXPECT_THAT(CheckFile(*file).damages, IsEmpty());
    return file;
  }

  test::TemporaryFolder folder_;
  std::filesystem::path path_ = folder_ / "GENBA001.MDB";
};

JetTable EveryType() {
  return {"全種類",
          {Field("真偽", FieldType::boolean), Field("バイト", FieldType::byte),
           Field("短整数", FieldType::integer16), Field("長整数", FieldType::integer32),
           Field("通貨", FieldType::currency), Field("単精度", FieldType::single),
           Field("倍精度", FieldType::real), Field("日付", FieldType::date_time),
           Field("２進", FieldType::binary, 20), Field("文字", FieldType::text, 50),
           Field("OLE", FieldType::ole), Field("メモ", FieldType::memo), Field("GUID", FieldType::guid),
           Field("十進", FieldType::decimal, 18, 4)},
          {{Whole(-1), Whole(255), Whole(-32768), Whole(2147483647),
            Value{Currency::FromTenThousandths(9223372036854775807)}, Value{static_cast<double>(0.1F)},
            Value{0.1 + 0.2}, Value{46347.375}, Value{Bytes{0, 255, 1}}, Words("①㈱髙～ソ能"),
            Value{Bytes{1, 2, 3}}, Words("縦ｽﾘｯﾄ筋　"), Words("{8E39276A-BCA8-4AC4-891E-49911D8438DD}"),
            Words("-123456789.0125")},
           {Whole(0), Whole(0), Whole(32767), Whole(-2147483647 - 1),
            Value{Currency::FromTenThousandths(-9223372036854775807 - 1)}, Value{-1.5}, Value{-0.0},
            Value{2.0}, Value{Bytes{7}}, Words(""), Value{Bytes(100, 0xAB)}, Words("2"),
            Words("{00000000-0000-0000-0000-000000000001}"), Words("0.0000")},
           {Whole(0), {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}}}};
}

TEST_P(WrittenFile, EveryColumnTypeComesBack) {
  const JetTable table = EveryType();
  const auto file = Write({table});
  const auto rows = RowsOf(*file, table.name);
  ASSERT_EQ(rows.size(), table.rows.size());
  for (std::size_t r = 0; r < rows.size(); ++r) {
    for (std::size_t c = 0; c < table.fields.size(); ++c) {
      EXPECT_EQ(rows[r][c], table.rows[r][c]) << r << " " << table.fields[c].name;
    }
  }
  EXPECT_TRUE(std::signbit(std::get<double>(rows[1][6])));
}

TEST_P(WrittenFile, FieldsHaveTheTypesAndSizesTheyWereGiven) {
  const JetTable table = EveryType();
  const auto file = Write({table});
  const TableDefinition definition = FindTable(*file, table.name);
  for (std::size_t c = 0; c < table.fields.size(); ++c) {
    EXPECT_EQ(definition.columns[c].ToField(GetParam()), table.fields[c]) << table.fields[c].name;
  }
}

TEST_P(WrittenFile, IsReadByTheCTools) {
  Write({EveryType()});
  const test::PrintedTable printed = test::TableByCTools(path_, "全種類", "CP932");
  ASSERT_EQ(printed.rows.size(), 3U);
  EXPECT_EQ(printed.columns[9], "文字");
  EXPECT_EQ(printed.rows[0][9], "①㈱髙～ソ能");
  EXPECT_EQ(printed.rows[0][3], "2147483647");
  EXPECT_EQ(printed.rows[0][4], "922337203685477.5807");
  // Jet 3 knew no numeric of its own, and the tools look for its scale elsewhere there.
  if (GetParam() == JetVersion::jet4) {
    EXPECT_EQ(printed.rows[0][13], "-123456789.0125");
  }
  EXPECT_EQ(printed.rows[2][3], std::nullopt);
}

TEST_P(WrittenFile, IsReadByTheNpmReader) {
  Write({EveryType()});
  const nlohmann::json tables = test::TablesByNpmReader(path_);
  ASSERT_EQ(tables.size(), 1U);
  const auto& row = tables[0]["rows"][0];
  EXPECT_EQ(row[4], "922337203685477.5807");
  EXPECT_EQ(row[6], 0.1 + 0.2);
  EXPECT_EQ(row[12], "8e39276a-bca8-4ac4-891e-49911d8438dd");
  if (GetParam() == JetVersion::jet4) {
    EXPECT_EQ(row[9], "①㈱髙～ソ能");
  } else {
    EXPECT_TRUE(test::IsLatinReadingOf("①㈱髙～ソ能", row[9]));
  }
}

TEST_P(WrittenFile, ARowOlderThanAColumnHasNullThere) {
  const JetTable table{"古い行",
                       {Field("番号", FieldType::integer32), Field("名称", FieldType::text, 10),
                        Field("切断", FieldType::integer32), Field("印", FieldType::boolean)},
                       {{Whole(1), Words("柱")}, {Whole(2), Words("梁"), Whole(3), Whole(-1)}}};
  const auto file = Write({table});
  EXPECT_THAT(RowsOf(*file, table.name),
              ElementsAre(ElementsAre(Whole(1), Words("柱"), Value{}, Whole(0)),
                          ElementsAre(Whole(2), Words("梁"), Whole(3), Whole(-1))));
}

TEST_P(WrittenFile, LongRowsKeepEveryField) {
  // In Jet 3 offsets are single bytes: rows beyond 256, 512, ... bytes need its jump table.
  JetTable table{"長い行", {}, {}};
  for (int i = 0; i < 7; ++i) table.fields.push_back(Field("列" + std::to_string(i), FieldType::text, 250));
  for (std::size_t length = 0; length < 250; length += 3) {
    std::vector<Value>& row = table.rows.emplace_back();
    for (std::size_t i = 0; i < 7; ++i) row.push_back(Words(std::string(length, static_cast<char>('a' + i))));
  }
  const auto file = Write({table});
  EXPECT_EQ(RowsOf(*file, table.name), table.rows);
  const test::PrintedTable printed = test::TableByCTools(path_, table.name, "CP932");
  ASSERT_EQ(printed.rows.size(), table.rows.size());
  EXPECT_EQ(printed.rows.back()[6], std::get<std::string>(table.rows.back()[6]));
}

TEST_P(WrittenFile, RowsOfEveryLengthAroundAJumpAreReadAsByTheCTools) {
  JetTable table{"長さ",
                 {Field("前", FieldType::text, 255), Field("無", FieldType::text, 255),
                  Field("後", FieldType::text, 255), Field("文", FieldType::memo)},
                 {}};
  for (const std::size_t jump : {256U, 512U}) {
    for (std::size_t length = jump - 40; length < jump + 20; ++length) {
      const std::size_t half = length / 2;
      table.rows.push_back({Words(std::string(half, 'a')), {}, {}, Words(std::string(length - half, 'm'))});
      if (half < 250)
        table.rows.push_back({Words(std::string(length - half, 'a')), {}, Words(std::string(half, 'b')), {}});
      table.rows.push_back({{}, {}, {}, Words(std::string(length, 'm'))});
    }
  }
  const auto file = Write({table});
  EXPECT_EQ(RowsOf(*file, table.name), table.rows);
  const test::PrintedTable printed = test::TableByCTools(path_, table.name, "CP932");
  ASSERT_EQ(printed.rows.size(), table.rows.size());
  for (std::size_t r = 0; r < table.rows.size(); ++r) {
    for (std::size_t c = 0; c < table.fields.size(); ++c) {
      const Value& value = table.rows[r][c];
      EXPECT_EQ(printed.rows[r][c], IsNull(value) ? std::nullopt : std::optional(TextOf(value)))
          << r << " " << c;
    }
  }
}

TEST_P(WrittenFile, OfTablesWhoseNamesDifferInWidthTheOneSpelledSoIsFound) {
  const auto file = Write({{"SD", {Field("番号", FieldType::integer32)}, {{Whole(1)}}},
                           {"ＳＤ", {Field("番号", FieldType::integer32)}, {{Whole(2)}}}});
  EXPECT_THAT(RowsOf(*file, "SD"), ElementsAre(ElementsAre(Whole(1))));
  EXPECT_THAT(RowsOf(*file, "ＳＤ"), ElementsAre(ElementsAre(Whole(2))));
  EXPECT_THAT(RowsOf(*file, "sd"), ElementsAre(ElementsAre(Whole(1))));
}

TEST_P(WrittenFile, ManyPagesAreFoundByUsageMapsOfTheSecondSort) {
  JetTable table{
      "多数", {Field("番号", FieldType::integer32), Field("名称", FieldType::text, 200)}, {}, {"番号"}};
  for (int i = 40000; i > 0; --i) table.rows.push_back({Whole(i), Words(std::string(100, 'x'))});
  const auto file = Write({table});
  EXPECT_GT(file->PageCount(), 1100U);
  EXPECT_EQ(RowsOf(*file, table.name).size(), 40000U);
  EXPECT_EQ(FindTable(*file, table.name).indexes.at(0).kind, Index::Kind::primary);
}

TEST_P(WrittenFile, BytesThatAreNoTextComeAsBytes) {
  const Bytes no_text = GetParam() == JetVersion::jet4 ? Bytes{0x41, 0x00, 0x3D, 0xD8} : Bytes{0x41, 0x8C};
  const JetTable table{"表", {Field("名称", FieldType::text, 10)}, {{Value{no_text}}}};
  const auto file = Write({table});
  EXPECT_THAT(RowsOf(*file, table.name), ElementsAre(ElementsAre(Value{no_text})));
}

TEST_P(WrittenFile, PropertiesOfColumnsAreRead) {
  JetTable table{"表", {Field("階", FieldType::integer32), Field("名称", FieldType::text, 10)}, {}};
  table.properties =
      test::JetProperties(GetParam(), {{"階", "DefaultValue", "0"}, {"名称", "ValidationRule", "<>\"\""}});
  const auto file = Write({table});
  for (const CatalogEntry& entry : ReadCatalog(*file)) {
    if (entry.name != "表") continue;
    EXPECT_EQ(entry.properties, table.properties);
    const auto maps = ReadProperties(*file, entry.properties);
    ASSERT_EQ(maps.size(), 2U);
    EXPECT_EQ(maps[0].owner, "階");
    EXPECT_EQ(PropertyText(*file, maps[0], "DefaultValue"), "0");
    EXPECT_EQ(PropertyText(*file, maps[1], "ValidationRule"), "<>\"\"");
  }
}

INSTANTIATE_TEST_SUITE_P(Versions, WrittenFile, ::testing::Values(JetVersion::jet3, JetVersion::jet4),
                         [](const auto& version) {
                           return version.param == JetVersion::jet3 ? "Jet3" : "Jet4";
                         });

}  // namespace
}  // namespace rbt::jet
