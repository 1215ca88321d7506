// SPDX-License-Identifier: MIT
#include "archive/check_jsyukei.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/table_layouts.h"
#include "platform/fault.h"
#include "platform/files/files.h"
#include "shell/context/site_context.h"
#include "support/child_process.h"
#include "support/fault_of.h"
#include "support/site_fixture.h"

namespace rbt::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* kNames = "重量集計名称";
constexpr const char* kBulk = "重量集計";

void ExpectSame(const TableDef& table, const TableDef& wanted) {
  EXPECT_EQ(table.name, wanted.name);
  EXPECT_EQ(table.fields, wanted.fields) << wanted.name;
  EXPECT_EQ(table.indexes, wanted.indexes) << wanted.name;
}

class CheckJSyukei : public testing::Test {
 protected:
  CheckJSyukei() { SelectSite(kScheduleFile); }

  void Check() {
    OpenWorkDatabase();
    Check_JSyukei();
    SiteContext.WorkDatabase.reset();
  }
  void Ready() {
    OpenWorkDatabase();
    ReadyArchiveTables();
    SiteContext.WorkDatabase.reset();
  }
  std::vector<TableDef> Tables(const char* file) const {
    return Database::Open(site_.Data(file)).TableDefs();
  }
  TableDef Table(const std::string& name) const {
    const auto table = Database::Open(site_.Data(kScheduleFile)).FindTable(name);
    return table ? *table : TableDef{};
  }
  /// The template's table of a name, changed to make an old layout of it.
  TableDef Layout(const std::string& name) const {
    for (const TableDef& table : ArchiveTables()) {
      if (table.name == name) return table;
    }
    ADD_FAILURE() << name;
    return {};
  }
  void Replace(const TableDef& table) {
    Database database = Database::Open(site_.Data(kScheduleFile));
    database.Execute("DROP TABLE " + table.name);
    database.CreateTable(table);
  }
  void AddSaved(const char* date, const char* time) {
    site_.Add(kScheduleFile, kNames, {{"作成日", date}, {"作成時間", time}, {"重量集計名称", "保存"}});
  }

  SiteFixture site_;
};

TableDef Without(TableDef table, std::initializer_list<std::string_view> fields) {
  std::erase_if(table.fields, [&](const FieldDef& field) {
    return std::find(fields.begin(), fields.end(), field.name) != fields.end();
  });
  return table;
}

TEST_F(CheckJSyukei, AppendsTheFieldThatAnOldNameTableLacksAndMakesItsKeyAgain) {
  TableDef old = Without(Layout(kNames), {"定尺１３ｍ"});
  old.indexes.front().name = "PrimaryKey";
  Replace(old);
  AddSaved("20261101", "101500");
  Check();

  const TableDef table = Table(kNames);
  ASSERT_FALSE(table.fields.empty());
  EXPECT_EQ(table.fields.back().name, "定尺１３ｍ");
  EXPECT_EQ(table.fields.back().type, FieldType::integer32);
  ASSERT_THAT(table.indexes, SizeIs(1));
  EXPECT_EQ(table.indexes.front().name, "重量集計名称_pkey");
  EXPECT_TRUE(table.indexes.front().primary);
  EXPECT_THAT(table.indexes.front().fields, ElementsAre("作成日", "作成時間"));
  EXPECT_EQ(site_.Rows(kScheduleFile, "SELECT 重量集計名称 FROM 重量集計名称"),
            (std::vector<std::vector<Value>>{{"保存"}}));
  EXPECT_THAT(site_.Messages(), IsEmpty());
}

TEST_F(CheckJSyukei, AppendedFieldsHaveTheTypeAndSizeOfTheTemplate) {
  Replace(Without(Layout(kBulk), {"材料", "13000mm重量", "13000mm"}));
  Replace(Without(Layout(kNames), {"メモ３"}));
  Check();
  const TableDef bulk = Table(kBulk);
  ASSERT_NE(bulk.FindField("13000mm重量"), nullptr);
  EXPECT_EQ(bulk.FindField("13000mm重量")->type, FieldType::currency);
  ASSERT_NE(bulk.FindField("13000mm"), nullptr);
  EXPECT_EQ(bulk.FindField("13000mm")->type, FieldType::integer32);
  const FieldDef wanted = *Layout(kNames).FindField("メモ３");
  const TableDef names = Table(kNames);
  ASSERT_NE(names.FindField("メモ３"), nullptr);
  EXPECT_EQ(names.FindField("メモ３")->type, FieldType::text);
  EXPECT_EQ(names.FindField("メモ３")->size, wanted.size);
}

TEST_F(CheckJSyukei, AnAppendedKeyFieldTakesTheOldRowsUnderTheNewKey) {
  TableDef old = Without(Layout(kBulk), {"階", "部位"});
  old.indexes.front().fields = {"太さ", "ＳＤ", "メーカー", "材質", "作成日", "作成時間"};
  Replace(old);
  site_.Add(kScheduleFile, kBulk,
            {{"太さ", 19},
             {"ＳＤ", "SD345"},
             {"メーカー", ""},
             {"材質", 1},
             {"作成日", "20261101"},
             {"作成時間", "101500"}});
  Check();
  EXPECT_THAT(Table(kBulk).indexes.front().fields,
              ElementsAre("太さ", "ＳＤ", "メーカー", "階", "部位", "材質", "作成日", "作成時間"));
  EXPECT_EQ(site_.Rows(kScheduleFile, "SELECT 階, 部位 FROM 重量集計"),
            (std::vector<std::vector<Value>>{{std::int64_t{0}, std::int64_t{0}}}));
}

TEST_F(CheckJSyukei, MakesMissingTablesWithFieldsAttributesAndIndexes) {
  for (const TableDef& table : ArchiveTables()) site_.Execute(kScheduleFile, "DROP TABLE " + table.name);
  Check();
  for (const TableDef& wanted : Tables(kTemplateFile)) ExpectSame(Table(wanted.name), wanted);
}

TEST_F(CheckJSyukei, ASiteThatIsUpToDateIsNotWritten) {
  Check();
  const std::string bytes = ReadFileBytes(site_.Data(kScheduleFile));
  Check();
  EXPECT_EQ(ReadFileBytes(site_.Data(kScheduleFile)), bytes);
}

TEST_F(CheckJSyukei, AKeyOfAnotherNameStaysWhileNoFieldIsMissing) {
  TableDef other = Layout(kNames);
  other.indexes.front().name = "PrimaryKey";
  Replace(other);
  Check();
  EXPECT_EQ(Table(kNames).indexes.front().name, "PrimaryKey");
}

TEST_F(CheckJSyukei, WithoutTheTemplateThereIsOneMessageAndNoTableIsTouched) {
  std::filesystem::remove(site_.Data(kTemplateFile));
  site_.Execute(kScheduleFile, "DROP TABLE 重量集計");
  const std::string bytes = ReadFileBytes(site_.Data(kScheduleFile));
  Check();
  ASSERT_THAT(site_.Messages(), SizeIs(1));
  EXPECT_EQ(site_.Messages().front().title, "ファイル無し");
  EXPECT_EQ(site_.Messages().front().text, "ひな形ファイル[JSyukeiORG.mdb]が無いため、集計保存が出来ません");
  EXPECT_EQ(ReadFileBytes(site_.Data(kScheduleFile)), bytes);
}

TEST_F(CheckJSyukei, ADamagedTemplateIsAFault) {
  WriteFileAtomically(site_.Data(kTemplateFile), "no database");
  EXPECT_THAT(FaultTextOf([&] { Check(); }), HasSubstr("JSyukeiORG.mdb: the file is not a database"));
}

TEST_F(CheckJSyukei, AFullDiskIsAFaultAndLeavesTheSiteAsItWas) {
  for (const TableDef& table : ArchiveTables()) site_.Execute(kScheduleFile, "DROP TABLE " + table.name);
  const std::string bytes = ReadFileBytes(site_.Data(kScheduleFile));
  EXPECT_TRUE(
      WithFilesOfAtMost(512, [&] { EXPECT_THAT(FaultTextOf([&] { Ready(); }), HasSubstr("GENBA001.MDB")); }));
  EXPECT_EQ(ReadFileBytes(site_.Data(kScheduleFile)), bytes);
  EXPECT_THAT(Tables(kScheduleFile), SizeIs(3));
}

TEST_F(CheckJSyukei, ALockThatIsWaitedForInVainIsAFault) {
  site_.Execute(kScheduleFile, "DROP TABLE 重量集計");
  Services.LockPatience = std::chrono::milliseconds(0);
  Database other = Database::Open(site_.Data(kScheduleFile));
  const Transaction writing(other);
  EXPECT_THAT(FaultTextOf([&] { Ready(); }), HasSubstr("another program holds the file"));
}

TEST_F(CheckJSyukei, RowsThatTheNewKeyRefusesLeaveTheirTableAsItWas) {
  TableDef old = Without(Layout(kNames), {"定尺１３ｍ"});
  old.indexes.clear();
  Replace(old);
  AddSaved("20261101", "101500");
  AddSaved("20261101", "101500");
  EXPECT_NO_THROW(Check());
  EXPECT_THAT(site_.Messages(), IsEmpty());
  ExpectSame(Table(kNames), old);
}

TEST_F(CheckJSyukei, OpensTheSiteWhenNoneIsOpen) {
  site_.Execute(kScheduleFile, "DROP TABLE 重量集計");
  Check_JSyukei();
  EXPECT_TRUE(Table_Exists(kBulk, *SiteContext.WorkDatabase));
}

TEST_F(CheckJSyukei, ATableExistsUnderItsExactNameOnly) {
  OpenWorkDatabase();
  EXPECT_TRUE(Table_Exists(kBulk, *SiteContext.WorkDatabase));
  EXPECT_FALSE(Table_Exists("重量", *SiteContext.WorkDatabase));
  EXPECT_FALSE(Table_Exists("t_sd", *SiteContext.WorkDatabase));
  Database master = Database::Open(site_.Data(kMasterFile));
  EXPECT_TRUE(Table_Exists("T_SD", master));
  EXPECT_FALSE(Table_Exists("t_sd", master));
}

TEST_F(CheckJSyukei, OnlyArchiveTablesHaveAKeyToAdd) {
  OpenWorkDatabase();
  EXPECT_THROW(Add_PrimaryKey("加工テーブル"), Fault);
  SiteContext.WorkDatabase.reset();
  EXPECT_THROW(Add_PrimaryKey(kBulk), Fault);
}

TEST_F(CheckJSyukei, AnEmptyOldTableIsMadeAnewAndAFilledOneKeepsItsRows) {
  TableDef bulk = Without(Layout(kBulk), {"材料"});
  bulk.fields.push_back({"余分", FieldType::integer32});
  Replace(bulk);
  TableDef names = Layout(kNames);
  names.fields.push_back({"余分", FieldType::integer32});
  Replace(names);
  AddSaved("20261101", "101500");
  Ready();
  ExpectSame(Table(kBulk), Layout(kBulk));
  ExpectSame(Table(kNames), names);
  EXPECT_THAT(site_.Rows(kScheduleFile, "SELECT 重量集計名称 FROM 重量集計名称"), SizeIs(1));
}

TEST_F(CheckJSyukei, ARowThatIsSavedMeanwhileStays) {
  Replace(Without(Layout(kNames), {"定尺１３ｍ"}));
  // Another program saves when ours asks for the lock, behind its look.
  Database other = Database::Open(site_.Data(kScheduleFile));
  auto saving = std::make_unique<Transaction>(other);
  Recordset rows = other.OpenDynaset("SELECT * FROM 重量集計名称");
  rows.AddNew();
  rows.Set("作成日", std::string("20261101"));
  rows.Set("作成時間", std::string("101500"));
  rows.Update();
  Services.LockPatience = std::chrono::milliseconds(0);
  Services.WaitOn = [&](const std::filesystem::path&) {
    if (saving) saving->Commit();
    saving.reset();
    return true;
  };
  Ready();
  EXPECT_THAT(site_.Rows(kScheduleFile, "SELECT 作成日 FROM 重量集計名称"), SizeIs(1));
  EXPECT_NE(Table(kNames).FindField("定尺１３ｍ"), nullptr);
}

TEST_F(CheckJSyukei, OnASiteWhoseArchiveIsReadyNothingIsWrittenOrLocked) {
  AddSaved("20261101", "101500");
  Services.LockPatience = std::chrono::milliseconds(0);
  Database other = Database::Open(site_.Data(kScheduleFile));
  const Transaction writing(other);
  const std::string bytes = ReadFileBytes(site_.Data(kScheduleFile));
  Ready();
  EXPECT_EQ(ReadFileBytes(site_.Data(kScheduleFile)), bytes);
}

TEST_F(CheckJSyukei, ASiteThatIsOnlyReadIsLeftAsItIs) {
  site_.Execute(kScheduleFile, "DROP TABLE 重量集計");
  SiteContext.OnlyRead = true;
  Ready();
  EXPECT_TRUE(Table(kBulk).fields.empty());
}

TEST_F(CheckJSyukei, AnUnusedArchiveIsMadeAnewFromTheTemplate) {
  Replace(Without(Layout(kNames), {"定尺１３ｍ"}));
  Ready();
  ExpectSame(Table(kNames), Layout(kNames));
}

}  // namespace
}  // namespace rbt::test
