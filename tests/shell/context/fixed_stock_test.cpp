// SPDX-License-Identifier: MIT
#include "shell/context/fixed_stock.h"

#include <chrono>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/files/files.h"
#include "shell/context/site_context.h"
#include "store/database_impl.h"
#include "support/fault_of.h"
#include "support/jet_writer.h"
#include "support/root_folder.h"

namespace rbt {
namespace {

TEST(FixedStockStatements, StandWordForWord) {
  const auto statements = FixedStockStatements(4200, 13);
  EXPECT_EQ(statements[0],
            "SELECT * FROM 固定定尺テーブル WHERE 太さ = 13 AND 開始切り寸 = 4200 AND 終了切り寸 = 0  AND "
            "材質 = 1 ");
  EXPECT_EQ(statements[1],
            "SELECT * FROM 固定定尺テーブル WHERE 太さ = 13 AND 開始切り寸 <= 4200 AND 終了切り寸 >= 4200 "
            "AND 材質 = 1 ");
  EXPECT_EQ(
      statements[2],
      "SELECT * FROM 固定定尺テーブル WHERE 太さ = 0 AND 開始切り寸 = 4200 AND 終了切り寸 = 0 AND 材質 = 1 ");
  EXPECT_EQ(statements[3],
            "SELECT * FROM 固定定尺テーブル WHERE 太さ = 0 AND 開始切り寸 <= 4200 AND 終了切り寸 >= 4200 AND "
            "材質 = 1 ");
}

class FixedStock : public testing::Test {
 protected:
  ~FixedStock() override { SiteContext = SiteContextData{}; }

  void MakeTable(const std::string& file) const {
    Database database = Database::CreateDatabase(root.Data(file));
    TableDef table{"固定定尺テーブル", {}, {}};
    for (const char* name : {"太さ", "開始切り寸", "終了切り寸", "材質", "定尺"}) {
      table.fields.push_back({name, FieldType::integer32});
    }
    database.CreateTable(table);
  }
  void Open() const {
    MakeTable("MTTeijyaku_ORG.mdb");
    ProvideFixedStockDatabase();
    OpenFixedStockDatabase();
    ReadFixedStockTable();
  }
  void Execute(const std::string& statement) const {
    Database::Open(root.Data("MTTeijyaku.mdb")).Execute(statement);
    ReadFixedStockTable();
  }
  void Add(const std::string& diameter, const std::string& from, const std::string& to,
           const std::string& material, const std::string& stock) const {
    Execute("INSERT INTO 固定定尺テーブル (太さ, 開始切り寸, 終了切り寸, 材質, 定尺) VALUES (" + diameter +
            ", " + from + ", " + to + ", " + material + ", " + stock + ")");
  }

  test::RootFolder root;
};

TEST_F(FixedStock, PrefersTheDiameterToAnyAndAnExactLengthToARange) {
  Open();
  EXPECT_EQ(GetFixedStockLength(4200, 13), -1);
  Add("0", "4000", "5000", "1", "9000");
  EXPECT_EQ(GetFixedStockLength(4200, 13), 9000);
  Add("0", "4200", "0", "1", "8500");
  EXPECT_EQ(GetFixedStockLength(4200, 13), 8500);
  Add("13", "4000", "4200", "1", "8000");
  EXPECT_EQ(GetFixedStockLength(4200, 13), 8000);
  Add("13", "4200", "0", "1", "7500");
  EXPECT_EQ(GetFixedStockLength(4200, 13), 7500);
  EXPECT_EQ(GetFixedStockLength(4201, 13), 9000) << "beyond the diameter's own entries";
  EXPECT_EQ(GetFixedStockLength(5001, 16), -1);
}

TEST_F(FixedStock, LooksAtRowsOfTheFirstMaterialAlone) {
  Open();
  Add("13", "4200", "0", "2", "7500");
  EXPECT_EQ(GetFixedStockLength(4200, 13), -1);
}

TEST_F(FixedStock, TakesTheFirstOfSeveralRowsInTableOrder) {
  Open();
  Add("13", "4200", "0", "1", "7500");
  Add("13", "4200", "0", "1", "6000");
  EXPECT_EQ(GetFixedStockLength(4200, 13), 7500);
}

TEST_F(FixedStock, IsNotAboveZeroWithoutAUsableTable) {
  EXPECT_EQ(GetFixedStockLength(4200, 13), 0) << "no database open";
  Open();
  Add("13", "4200", "0", "1", "Null");
  EXPECT_EQ(GetFixedStockLength(4200, 13), 0) << "a null stock length";
  Execute("DROP TABLE 固定定尺テーブル");
  EXPECT_EQ(GetFixedStockLength(4200, 13), 0) << "no table";
}

TEST_F(FixedStock, StartsAsACopyAndKeepsAnExistingFile) {
  MakeTable("MTTeijyaku_ORG.mdb");
  ProvideFixedStockDatabase();
  EXPECT_NE(Database::Open(root.Data("MTTeijyaku.mdb")).FindTable("固定定尺テーブル"), nullptr);
  root.Put("DATA/MTTeijyaku.mdb", "own");
  ProvideFixedStockDatabase();
  EXPECT_EQ(ReadFileBytes(root.Data("MTTeijyaku.mdb")), "own");
}

TEST_F(FixedStock, WithoutFileAndTemplateFaultsAndNamesTheTemplate) {
  try {
    ProvideFixedStockDatabase();
    ADD_FAILURE() << "no fault";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::file);
    EXPECT_NE(std::string(fault.what()).find("MTTeijyaku_ORG.mdb"), std::string::npos);
  }
}

TEST_F(FixedStock, IsWhatTheTableWasWhenItWasRead) {
  Open();
  Add("13", "4200", "0", "1", "7500");
  Database::Open(root.Data("MTTeijyaku.mdb")).Execute("UPDATE 固定定尺テーブル SET 定尺 = 8000");
  EXPECT_EQ(GetFixedStockLength(4200, 13), 7500) << "one tally, one state";
  ReadFixedStockTable();
  EXPECT_EQ(GetFixedStockLength(4200, 13), 8000);
}

TEST_F(FixedStock, WithoutOneOfItsFieldsIsNoTable) {
  Open();
  Add("13", "4200", "0", "1", "7500");
  Execute("DROP TABLE 固定定尺テーブル");
  Execute("CREATE TABLE 固定定尺テーブル (太さ long, 開始切り寸 long, 終了切り寸 long, 材質 long)");
  EXPECT_EQ(GetFixedStockLength(4200, 13), 0);
}

TEST_F(FixedStock, ThatIsLockedOrDamagedIsAFault) {
  Open();
  Services.LockPatience = std::chrono::milliseconds(0);
  {
    Database other = Database::Open(root.Data("MTTeijyaku.mdb"));
    other.Execute("UPDATE 固定定尺テーブル SET 定尺 = 1");
    other.impl().Connected().Run("BEGIN EXCLUSIVE");
    EXPECT_THAT(test::FaultTextOf([] { ReadFixedStockTable(); }),
                testing::HasSubstr("another program holds the file"));
  }
  std::string bytes = ReadFileBytes(root.Data("MTTeijyaku.mdb"));
  bytes.replace(4096, 4096, std::string(4096, 'x'));
  root.Put("DATA/MTTeijyaku.mdb", bytes);
  EXPECT_THAT(test::FaultTextOf([] {
                OpenFixedStockDatabase();
                ReadFixedStockTable();
                GetFixedStockLength(1, 1);
              }),
              testing::HasSubstr("MTTeijyaku.mdb"));
}

TEST_F(FixedStock, OfASiteThatIsOnlyReadIsThatOfTheOriginalWhereNoCopyWasMade) {
  MakeTable("MTTeijyaku_ORG.mdb");
  SiteContext.OnlyRead = true;
  ProvideFixedStockDatabase();
  EXPECT_FALSE(std::filesystem::exists(root.Data("MTTeijyaku.mdb")));
  OpenFixedStockDatabase();
  ReadFixedStockTable();
  EXPECT_EQ(GetFixedStockLength(4200, 13), -1);
}

TEST_F(FixedStock, OfJetFilesIsReadFromTheTemplateAndNoneIsMadeUnderTheNameOfTheOther) {
  MakeTable("MTTeijyaku_ORG.mdb");
  Database::Open(root.Data("MTTeijyaku_ORG.mdb"))
      .Execute(
          "INSERT INTO 固定定尺テーブル (太さ, 開始切り寸, 終了切り寸, 材質, 定尺) VALUES (19, 4200, 0, 1, "
          "4500)");
  const auto tables = [&] {
    Database store = Database::Open(root.Data("MTTeijyaku_ORG.mdb"));
    return test::JetTablesOf(store);
  }();
  std::filesystem::remove(root.Data("MTTeijyaku_ORG.mdb"));
  test::WriteJetFile(root.Data("MTTeijyaku_ORG.mdb"), jet::JetVersion::jet4, tables);
  const auto read = [] {
    ProvideFixedStockDatabase();
    OpenFixedStockDatabase();
    ReadFixedStockTable();
    return GetFixedStockLength(4200, 19);
  };
  EXPECT_EQ(read(), 4500);
  EXPECT_FALSE(std::filesystem::exists(root.Data("MTTeijyaku.mdb")));
  auto changed = tables;
  changed[0].rows[0].back() = std::int64_t{5000};
  test::WriteJetFile(root.Data("MTTeijyaku_ORG.mdb"), jet::JetVersion::jet4, changed);
  ReadFixedStockTable();
  EXPECT_EQ(GetFixedStockLength(4200, 19), 5000) << "what another program changes is seen by the next tally";
}

}  // namespace
}  // namespace rbt
