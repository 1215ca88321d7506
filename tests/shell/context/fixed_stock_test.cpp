// SPDX-License-Identifier: MIT
#include "shell/context/fixed_stock.h"

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/files/files.h"
#include "shell/context/site_context.h"
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
  }
  static void Add(const std::string& diameter, const std::string& from, const std::string& to,
                  const std::string& material, const std::string& stock) {
    SiteContext.FixedStockDatabase->Execute(
        "INSERT INTO 固定定尺テーブル (太さ, 開始切り寸, 終了切り寸, 材質, 定尺) VALUES (" + diameter + ", " +
        from + ", " + to + ", " + material + ", " + stock + ")");
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
  SiteContext.FixedStockDatabase->Execute("DROP TABLE 固定定尺テーブル");
  EXPECT_EQ(GetFixedStockLength(4200, 13), 0) << "no table";
}

TEST_F(FixedStock, StartsAsACopyAndKeepsAnExistingFile) {
  MakeTable("MTTeijyaku_ORG.mdb");
  ProvideFixedStockDatabase();
  EXPECT_EQ(ReadFileBytes(root.Data("MTTeijyaku.mdb")), ReadFileBytes(root.Data("MTTeijyaku_ORG.mdb")));
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

}  // namespace
}  // namespace rbt
