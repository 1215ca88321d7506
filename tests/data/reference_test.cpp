// SPDX-License-Identifier: MIT
#include "data/reference.h"

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/system/message.h"
#include "platform/system/paths.h"
#include "support/root_folder.h"

namespace rbt {
namespace {

FieldDef Whole(std::string name) { return {std::move(name), FieldType::integer32}; }

FieldDef Words(std::string name, int size) { return {std::move(name), FieldType::text, size}; }

/// A master database with the family's tables; the maker columns stand behind SD51 in an order of their own.
class MasterDatabase : public testing::Test {
 protected:
  MasterDatabase() {
    Database database = Database::CreateDatabase(root.Data("SORANO.MDB"));
    TableDef sites{
        "工事テーブル",
        {Whole("番号"), Words("工事名", 60), Words("データパス", 60), Whole("取引先コード"),
         Words("長い工事名", 120), Whole("工事名区切り文字数"), Whole("メーカーNo"), Whole("支給形態")},
        {}};
    for (const char* diameter : kDiameters) sites.fields.push_back(Whole(std::string("SD") + diameter));
    for (const char* diameter : kDiameters) sites.fields.push_back(Words(std::string("MK") + diameter, 20));
    database.CreateTable(sites);
    database.CreateTable({"T_取引先", {Whole("会社コード"), Words("会社名", 60)}, {}});
    database.CreateTable({"T_SD", {Whole("SDコード"), Words("SD名", 20)}, {}});
    for (const char* table : {"部位名テーブル", "部位名２テーブル"}) {
      database.CreateTable({table, {Whole("番号"), Words("部位名", 20), Words("記号", 10)}, {}});
    }
    master_.emplace(std::move(database));
  }

  Database& Master() { return *master_; }
  void Run(const std::string& statement) { Master().Execute(statement); }
  Value Get(const std::string& select) {
    Recordset rows = Master().OpenSnapshot(select);
    return rows.Get(FieldHandle{0});
  }

  static constexpr const char* kDiameters[] = {"10", "13", "16", "19", "22", "25",
                                               "29", "32", "35", "38", "41", "51"};
  test::RootFolder root;

 private:
  std::optional<Database> master_;
};

TEST_F(MasterDatabase, GivesTheHeadOfASite) {
  Run("INSERT INTO 工事テーブル (番号, 工事名, データパス, 取引先コード) VALUES (12, '駅前ビル', "
      "'GENBA012.MDB', 7)");
  Run("INSERT INTO T_取引先 (会社コード, 会社名) VALUES (7, '山田建設')");
  const SiteHead head = ReadSiteHead(Master(), "genba012.mdb");
  EXPECT_EQ(head.number, 12);
  EXPECT_EQ(head.name, "駅前ビル");
  EXPECT_EQ(head.data_path, "GENBA012.MDB");
  EXPECT_EQ(head.client_code, 7);
  EXPECT_EQ(ClientName(Master(), head.client_code), "山田建設");
}

TEST_F(MasterDatabase, ListsSitesByNumberAndFindsOneByIts) {
  Run("INSERT INTO 工事テーブル (番号, 工事名, データパス) VALUES (12, '駅前ビル', 'GENBA012.MDB')");
  Run("INSERT INTO 工事テーブル (番号, 工事名, データパス) VALUES (3, '倉庫', 'GENBA003.MDB')");
  const std::vector<SiteHead> sites = AllSiteHeads(Master());
  ASSERT_EQ(sites.size(), 2U);
  EXPECT_EQ(sites[0].name, "倉庫");
  EXPECT_EQ(sites[1].data_path, "GENBA012.MDB");
  ASSERT_TRUE(FindSiteHead(Master(), 12));
  EXPECT_EQ(FindSiteHead(Master(), 12)->name, "駅前ビル");
  EXPECT_FALSE(FindSiteHead(Master(), 4));
}

TEST_F(MasterDatabase, ReadsNullsOfASiteAsNothing) {
  Run("INSERT INTO 工事テーブル (データパス) VALUES ('GENBA001.MDB')");
  const SiteHead head = ReadSiteHead(Master(), "GENBA001.MDB");
  EXPECT_EQ(head.number, 0);
  EXPECT_EQ(head.name, "");
  EXPECT_EQ(head.client_code, 0);
  EXPECT_EQ(ReadMakerNumber(Master(), "GENBA001.MDB"), 0);
  EXPECT_EQ(ReadLongName(Master(), "GENBA001.MDB").name, "");
}

TEST_F(MasterDatabase, WithoutTheSiteFaultsAndNamesIt) {
  const auto expect_fault = [](auto read) {
    try {
      read();
      ADD_FAILURE() << "no fault";
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.Kind(), FaultKind::database);
      EXPECT_NE(std::string(fault.what()).find("GENBA009.MDB"), std::string::npos) << fault.what();
    }
  };
  expect_fault([this] { ReadSiteHead(Master(), "GENBA009.MDB"); });
  expect_fault([this] { ReadLongName(Master(), "GENBA009.MDB"); });
  expect_fault([this] { ReadMakerNumber(Master(), "GENBA009.MDB"); });
  expect_fault([this] { ReadSiteGrades(Master(), "GENBA009.MDB"); });
}

TEST_F(MasterDatabase, FindsASiteWhoseFileNameHoldsQuotes) {
  Recordset rows = Master().OpenDynaset("SELECT * FROM 工事テーブル");
  rows.AddNew();
  rows.Set("データパス", Value{std::string("O'Hara\" OR 1=1.MDB")});
  rows.Set("番号", Value{std::int64_t{5}});
  rows.Set("メーカーNo", Value{std::int64_t{6}});
  rows.Update();
  EXPECT_EQ(ReadSiteHead(Master(), "O'Hara\" OR 1=1.MDB").number, 5);
  EXPECT_EQ(ReadMakerNumber(Master(), "O'Hara\" OR 1=1.MDB"), 6);
  EXPECT_THROW(ReadMakerNumber(Master(), "x\" OR \"\"=\""), Fault);
  EXPECT_THROW(ReadSiteHead(Master(), "x' OR ''='"), Fault);
}

TEST_F(MasterDatabase, FindsASiteWhoseDataPathHasBlanksAroundTheFileName) {
  Run("INSERT INTO 工事テーブル (番号, データパス, 長い工事名, メーカーNo, 支給形態, SD10) "
      "VALUES (5, ' GENBA005.MDB  ', '長い名前', 6, 1, 3)");
  EXPECT_EQ(ReadSiteHead(Master(), "genba005.mdb").number, 5);
  EXPECT_EQ(ReadSiteHead(Master(), "GENBA005.MDB").data_path, " GENBA005.MDB  ");
  EXPECT_EQ(ReadLongName(Master(), "GENBA005.MDB").name, "長い名前");
  EXPECT_EQ(Get("SELECT 工事名区切り文字数 FROM 工事テーブル"), Value{std::int64_t{50}}) << "written there";
  EXPECT_EQ(ReadMakerNumber(Master(), "GENBA005.MDB"), 6);
  EXPECT_EQ(ReadSteelSupply(Master(), "GENBA005.MDB"), SteelSupply::supplied);
  EXPECT_EQ(ReadSiteGrades(Master(), "GENBA005.MDB").codes[0], 3);
  Run("INSERT INTO 工事テーブル (番号, データパス) VALUES (7, 'GENBA005.MDB')");
  EXPECT_EQ(ReadSiteHead(Master(), "GENBA005.MDB").number, 7) << "the one without blanks comes first";
}

TEST_F(MasterDatabase, ComposesTheHeadStatementWordForWord) {
  EXPECT_EQ(SiteHeadStatement("GENBA001.MDB"),
            "SELECT [番号], [工事名], [データパス], [取引先コード] FROM 工事テーブル WHERE データパス = "
            "'GENBA001.MDB'");
}

TEST_F(MasterDatabase, GivesAnEmptyClientNameForNullAndForNoRow) {
  Run("INSERT INTO T_取引先 (会社コード) VALUES (7)");
  EXPECT_EQ(ClientName(Master(), 7), "");
  EXPECT_EQ(ClientName(Master(), 8), "");
}

TEST_F(MasterDatabase, GivesTheLongNameWithItsWidth) {
  Run("INSERT INTO 工事テーブル (データパス, 長い工事名, 工事名区切り文字数) "
      "VALUES ('GENBA001.MDB', '駅前再開発ビル新築工事', 12)");
  const LongName name = ReadLongName(Master(), "GENBA001.MDB");
  EXPECT_EQ(name.name, "駅前再開発ビル新築工事");
  EXPECT_EQ(name.width, 12);
}

TEST_F(MasterDatabase, WritesTheUsualWidthWhereALongNameHasNone) {
  Run("INSERT INTO 工事テーブル (データパス, 長い工事名) VALUES ('GENBA001.MDB', '長い名前')");
  EXPECT_EQ(ReadLongName(Master(), "GENBA001.MDB").width, 50);
  EXPECT_EQ(Get("SELECT 工事名区切り文字数 FROM 工事テーブル"), Value{std::int64_t{50}});
}

TEST_F(MasterDatabase, LeavesTheWidthAloneWhereThereIsNoLongName) {
  Run("INSERT INTO 工事テーブル (データパス) VALUES ('GENBA001.MDB')");
  EXPECT_EQ(ReadLongName(Master(), "GENBA001.MDB").width, 50);
  EXPECT_TRUE(IsNull(Get("SELECT 工事名区切り文字数 FROM 工事テーブル")));
}

TEST_F(MasterDatabase, TellsWhoSuppliesTheSteelOfASite) {
  Run("INSERT INTO 工事テーブル (データパス, 支給形態) VALUES ('A', 0)");
  Run("INSERT INTO 工事テーブル (データパス, 支給形態) VALUES ('B', 1)");
  Run("INSERT INTO 工事テーブル (データパス, 支給形態) VALUES ('C', 2)");
  Run("INSERT INTO 工事テーブル (データパス) VALUES ('D')");
  EXPECT_EQ(ReadSteelSupply(Master(), "A"), SteelSupply::own);
  EXPECT_EQ(ReadSteelSupply(Master(), "B"), SteelSupply::supplied);
  EXPECT_EQ(ReadSteelSupply(Master(), "C"), SteelSupply::own);
  EXPECT_EQ(ReadSteelSupply(Master(), "D"), SteelSupply::own);
  EXPECT_THROW(ReadSteelSupply(Master(), "E"), Fault);
}

TEST_F(MasterDatabase, GivesGradeCodesAndMakersByDiameter) {
  Run("INSERT INTO 工事テーブル (データパス, SD10, SD51, MK10, MK51, 支給形態) "
      "VALUES ('GENBA001.MDB', 1, 4, '東', '西', 9)");
  const SiteGrades grades = ReadSiteGrades(Master(), "GENBA001.MDB");
  EXPECT_EQ(grades.codes, (std::array<std::int32_t, 12>{1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 4}));
  EXPECT_EQ(grades.makers.front(), "東");
  EXPECT_EQ(grades.makers[1], "");
  EXPECT_EQ(grades.makers.back(), "西");
}

TEST_F(MasterDatabase, TakesTheMakersByTheirPlaceBehindTheLastGrade) {
  Run("DROP TABLE 工事テーブル");
  TableDef sites{"工事テーブル", {Words("データパス", 60)}, {}};
  for (const char* diameter : kDiameters) sites.fields.push_back(Whole(std::string("SD") + diameter));
  for (int i = 1; i <= 12; ++i) sites.fields.push_back(Words("m" + std::to_string(i), 20));
  Master().CreateTable(sites);
  Run("INSERT INTO 工事テーブル (データパス, m1, m12) VALUES ('A', 'first', 'last')");
  EXPECT_EQ(ReadSiteGrades(Master(), "A").makers.front(), "first");
  EXPECT_EQ(ReadSiteGrades(Master(), "A").makers.back(), "last");
}

TEST_F(MasterDatabase, WithTooFewMakerColumnsFaults) {
  Run("DROP TABLE 工事テーブル");
  TableDef sites{"工事テーブル", {Words("データパス", 60)}, {}};
  for (const char* diameter : kDiameters) sites.fields.push_back(Whole(std::string("SD") + diameter));
  for (int i = 1; i <= 11; ++i) sites.fields.push_back(Words("m" + std::to_string(i), 20));
  Master().CreateTable(sites);
  Run("INSERT INTO 工事テーブル (データパス) VALUES ('A')");
  EXPECT_THROW(ReadSiteGrades(Master(), "A"), Fault);
}

TEST_F(MasterDatabase, TrimsGradeNamesAndTellsOfEachMissingOne) {
  for (int code = 1; code <= 10; ++code) {
    if (code == 3 || code == 9) continue;
    Run("INSERT INTO T_SD (SDコード, SD名) VALUES (" + std::to_string(code) + ", ' SD" +
        std::to_string(code) + "  ')");
  }
  Run("UPDATE T_SD SET SD名 = Null WHERE SDコード = 10");
  std::vector<std::string> messages;
  Services.Messages = [&](std::string_view text, std::string_view, MessageButtons) {
    messages.emplace_back(text);
    return MessageAnswer::ok;
  };
  const std::array<std::string, 11> names = ReadGradeNames(Master());
  EXPECT_EQ(names,
            (std::array<std::string, 11>{"", "SD1", "SD2", "", "SD4", "SD5", "SD6", "SD7", "SD8", "", ""}));
  EXPECT_EQ(messages, (std::vector<std::string>(2, "ＳＤ名が登録されていません。")));
}

}  // namespace
}  // namespace rbt
