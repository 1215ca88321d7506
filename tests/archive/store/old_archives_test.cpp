// SPDX-License-Identifier: MIT
// Sites whose archive tables are of an earlier template.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "archive/check_jsyukei.h"
#include "archive/store/archive_site.h"
#include "archive/store/random_tallies.h"
#include "data/table_layouts.h"
#include "shell/context/site_context.h"
#include "support/fault_of.h"

namespace rbt::test {

namespace {

using testing::ElementsAre;

class OldArchive : public testing::Test {
 protected:
  /// Makes a table anew without some of its fields.
  void Age(const std::string& name, std::initializer_list<std::string_view> fields) {
    for (TableDef table : ArchiveTables()) {
      if (table.name != name) continue;
      std::erase_if(table.fields, [&](const FieldDef& field) {
        return std::find(fields.begin(), fields.end(), field.name) != fields.end();
      });
      for (IndexDef& index : table.indexes) {
        std::erase_if(index.fields, [&](const std::string& field) {
          return std::find(fields.begin(), fields.end(), field) != fields.end();
        });
      }
      Database site = site_.Open();
      site.Execute("DROP TABLE " + name);
      site.CreateTable(table);
    }
  }
  /// As every archive was before the 13.0 m column, memos and masks of forms.
  void AgeAll() {
    Age("重量集計名称", {"定尺１３ｍ", "メモ２", "メモ３"});
    Age("重量集計", {"13000mm", "13000mm重量", "材料", "階", "部位"});
    site_.Execute(
        kScheduleFile,
        "INSERT INTO 重量集計名称(作成日,作成時間,重量集計名称,集計区分,溶接閉鎖型,合計値変更,メモ１) "
        "VALUES('20010203','040506','古い',0,0,0,'控え')");
    site_.Execute(
        kScheduleFile,
        "INSERT INTO 重量集計(列番号,太さ,ＳＤ,メーカー,材質,[6000mm],[6000mm重量],定尺重量,取付重量,作成日,"
        "作成時間) VALUES(3,19,'SD345','',15,10,135,135,120,'20010203','040506')");
  }
  void ExpectTheOldTally() {
    const LoadedTally loaded = site_.Load(TallyKind::bulk, "古い");
    EXPECT_TRUE(loaded.has_rows);
    EXPECT_EQ(loaded.result.Grid().BarCount[3][5], 10);
    EXPECT_EQ(loaded.result.Grid().TotalStockWeight, Currency::FromInteger(135));
    EXPECT_THAT(loaded.memos, ElementsAre("控え", "", ""));
  }
  void BringUpToDate() {
    SelectSite(kScheduleFile);
    OpenWorkDatabase();
    ReadyArchiveTables();
    SiteContext.WorkDatabase.reset();
  }

  ArchiveSite site_;
};

}  // namespace

TEST_F(OldArchive, IsListedAndLoadedAsItStands) {
  AgeAll();
  ExpectTheOldTally();
  EXPECT_TRUE(site_.List(TallyKind::bulk, true).empty());
}

TEST_F(OldArchive, IsListedAndLoadedOnceItIsBroughtUpToDate) {
  AgeAll();
  BringUpToDate();
  ExpectTheOldTally();
  EXPECT_TRUE(site_.List(TallyKind::bulk, true).empty());
  EXPECT_THAT(site_.Lines("SELECT 定尺１３ｍ FROM 重量集計名称"), ElementsAre("null"));
}

TEST_F(OldArchive, ThatIsBroughtUpToDateTakesNewTalliesBesideTheOld) {
  AgeAll();
  BringUpToDate();
  ASSERT_TRUE(site_.Save(SmallTally(), ArchiveSite::Order("新しい")));
  EXPECT_EQ(site_.Load(TallyKind::bulk, "新しい").result.Grid(), SmallTally().Grid());
  ExpectTheOldTally();
}

TEST_F(OldArchive, ThatCouldNotBeBroughtUpToDateFailsAtTheSaveAndStaysAsItWas) {
  AgeAll();
  const auto before = site_.Lines("SELECT * FROM 重量集計");
  EXPECT_EQ(FaultOf([&] { site_.Save(SmallTally(), ArchiveSite::Order("新しい")); }), FaultKind::database);
  EXPECT_EQ(site_.Lines("SELECT * FROM 重量集計"), before);
  ExpectTheOldTally();
}

TEST_F(OldArchive, OfFloorsWithoutThe13MetreFieldsIsLoadedWhileTheColumnIsOff) {
  RandomTallies random(1);
  const TallyResult floors = random.Floors({});
  Age("階部位重量集計", {"13000mm", "13000mm重量"});
  ASSERT_TRUE(site_.Save(floors, ArchiveSite::Order("全階")));
  EXPECT_TRUE(site_.Load(TallyKind::floor, "全階").result.Floors() == floors.Floors());
}

}  // namespace rbt::test
