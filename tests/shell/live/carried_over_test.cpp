// SPDX-License-Identifier: MIT
// What was saved in a working copy goes with it when its Jet file changes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/live/live_site.h"
#include "shell/live/working_copy.h"

namespace rbt::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CarriedOver : public testing::Test {
 protected:
  void Save(const Tally& tally) {
    Database open = site.Open();
    LiveSite::Save(open, tally);
  }
  std::vector<std::string> Tallies() {
    Database open = site.Open();
    return LiveSite::Tallies(open);
  }

  LiveSite site;
  const Tally ours{"20261121", "090000", "別館", 7};
};

TEST_F(CarriedOver, ATallyThatWasSavedHereSurvivesInAFileWithoutAnArchive) {
  site.PutJet(3);
  Save(ours);
  site.PutJet(4);
  EXPECT_THAT(Tallies(), ElementsAre("20261121 090000 別館: 7"));
  site.PutJet(5);
  EXPECT_THAT(Tallies(), ElementsAre("20261121 090000 別館: 7")) << "and again";
  EXPECT_THAT(site.messages, IsEmpty());
}

TEST_F(CarriedOver, ATallyOfTheFileGoesWithIt) {
  site.PutJet(3, 1, {{"20261120", "080000", "本館"}, {"20261120", "080001", "倉庫"}});
  Save(ours);
  EXPECT_EQ(LookAtWorkingCopy(site.File()).saved_tallies, 1U);
  site.PutJet(4, 1, {{"20261120", "080000", "本館"}});
  EXPECT_THAT(Tallies(), ElementsAre("20261120 080000 本館: 1", "20261121 090000 別館: 7"));
}

TEST_F(CarriedOver, ATallyThatWasDeletedHereComesBackWithTheFile) {
  site.PutJet(3, 1, {{"20261120", "080000", "本館"}});
  {
    Database open = site.Open();
    open.Execute("DELETE FROM 重量集計名称");
    open.Execute("DELETE FROM 重量集計");
    // It gets the numbers of the rows that went.
    LiveSite::Save(open, ours);
  }
  site.PutJet(4, 1, {{"20261120", "080000", "本館"}});
  EXPECT_THAT(Tallies(), ElementsAre("20261120 080000 本館: 1", "20261121 090000 別館: 7"));
}

TEST_F(CarriedOver, WhereBothHaveAMomentTheFilesWinsAndOursIsKeptBesideIt) {
  site.PutJet(3);
  Save(ours);
  site.PutJet(4, 1, {{ours.date, ours.time, "本館"}});
  EXPECT_THAT(Tallies(), ElementsAre("20261121 090000 本館: 1", "20261121 090001 別館(控え): 7"));
  site.PutJet(5, 1, {{ours.date, ours.time, "本館"}});
  EXPECT_THAT(Tallies(), ElementsAre("20261121 090000 本館: 1", "20261121 090001 別館(控え): 7"));
}

TEST_F(CarriedOver, WhereBothHaveANameTheFilesWinsAndOursIsKeptUnderAnother) {
  site.PutJet(3);
  Save(ours);
  site.PutJet(4, 1, {{"20261122", "080000", "別館"}});
  EXPECT_THAT(Tallies(), ElementsAre("20261121 090000 別館(控え): 7", "20261122 080000 別館: 1"));
  Save({"20261123", "070000", "別館", 8});
  site.PutJet(5, 1, {{"20261122", "080000", "別館"}});
  EXPECT_THAT(Tallies(), ElementsAre("20261121 090000 別館(控え): 7", "20261122 080000 別館: 1",
                                     "20261123 070000 別館(控え)2: 8"));
}

TEST_F(CarriedOver, ATallyOfTheFileThatWasSavedAnewAtItsMomentIsOurs) {
  site.PutJet(3, 1, {{"20261120", "080000", "本館", 1}});
  {
    Database open = site.Open();
    open.Execute("DELETE FROM 重量集計名称");
    open.Execute("DELETE FROM 重量集計");
    LiveSite::Save(open, {"20261120", "080000", "本館", 9});
  }
  site.PutJet(4, 1, {{"20261120", "080000", "本館", 1}});
  EXPECT_THAT(Tallies(), ElementsAre("20261120 080000 本館: 1", "20261120 080001 本館(控え): 9"));
}

TEST_F(CarriedOver, ATallyOfTheFileThatWasRenamedHereIsKeptBesideIt) {
  site.PutJet(3, 1, {{"20261120", "080000", "本館"}});
  {
    Database open = site.Open();
    open.Execute("UPDATE 重量集計名称 SET 重量集計名称='新館'");
  }
  site.PutJet(4, 1, {{"20261120", "080000", "本館"}});
  EXPECT_THAT(Tallies(), ElementsAre("20261120 080000 本館: 1", "20261120 080001 新館(控え): 1"));
}

TEST_F(CarriedOver, ColumnsThatTheFileLacksComeAlong) {
  site.PutJet(3, 1, {{"20261120", "080000", "本館"}});
  {
    Database open = site.Open();
    FieldDef field;
    field.name = "新項目";
    open.AppendField("重量集計", field);
    LiveSite::Save(open, ours);
    open.Execute("UPDATE 重量集計 SET 新項目=5 WHERE 作成日='20261121'");
  }
  site.PutJet(4, 1, {{"20261120", "080000", "本館"}});
  Database open = site.Open();
  EXPECT_EQ(open.OpenSnapshot("SELECT 新項目 FROM 重量集計 WHERE 作成日='20261121'").Int32(FieldHandle{0}),
            5);
  EXPECT_THAT(LiveSite::Tallies(open), ElementsAre("20261120 080000 本館: 1", "20261121 090000 別館: 7"));
}

TEST_F(CarriedOver, WhatTheFilesTablesDoNotTakeStaysInTheOldCopyWhichIsSetAside) {
  site.PutJet(3);
  Save({"20261121", "090000", "とても長い名前の別館"});
  std::vector<TableDef> archive = ArchiveTables();
  std::vector<JetTable> tables;
  for (TableDef& table : archive) {
    if (table.name != "重量集計名称" && table.name != "重量集計") continue;
    for (FieldDef& field : table.fields) {
      if (field.name == "作成日") field.size = 4;
    }
    tables.push_back({table.name, table.fields, {}});
  }
  WriteJetFile(site.File(), jet::JetVersion::jet4, tables);
  Database open = site.Open();
  EXPECT_THAT(LiveSite::Tallies(open), IsEmpty());
  Database aside = Database::Open(site.Data("GENBA001.MDB.work.bad"));
  EXPECT_EQ(LiveSite::Tallies(aside).size(), 1U);
  EXPECT_EQ(site.messages.size(), 1U);
}

/// A registered name as the Jet file has it, or as the working copy shows it.
struct MarkedName {
  std::int64_t number;
  std::string name;
  Value mark;
};

class CarriedOverMarks : public CarriedOver {
 protected:
  std::filesystem::path Companion() const { return site.Data("HIROI001.mdb"); }

  void Put(const std::vector<MarkedName>& names) const {
    std::vector<JetTable> tables;
    for (const TableDef& table : CompanionFileTables()) {
      JetTable jet{table.name, table.fields, {}};
      if (table.name == "登録名") {
        for (const MarkedName& name : names)
          jet.rows.push_back({Value{name.number}, Value{name.name}, name.mark});
      }
      tables.push_back(std::move(jet));
    }
    WriteJetFile(Companion(), jet::JetVersion::jet3, tables);
  }
  void Mark(std::int64_t number) const {
    OpenLive(Companion(), {}).Execute("UPDATE 登録名 SET 表示番号=1 WHERE 登録AN=" + std::to_string(number));
  }
  std::vector<std::string> Marks() const {
    Database open = OpenLive(Companion(), {});
    std::vector<std::string> marks;
    Recordset rows = open.OpenSnapshot("SELECT 登録AN, 表示番号 FROM 登録名 ORDER BY 登録AN");
    for (; !rows.Eof(); rows.MoveNext()) {
      marks.push_back(TextOf(rows.Get(FieldHandle{0})) + ":" + TextOf(rows.Get(FieldHandle{1})));
    }
    return marks;
  }

  const Value none{std::int64_t{0}};
  const Value set{std::int64_t{1}};
};

TEST_F(CarriedOverMarks, SurviveByTheNumbersOfTheirNames) {
  Put({{1, "柱", {}}, {2, "梁", {}}, {3, "壁", {}}});
  Mark(2);
  Put({{1, "柱", {}}, {2, "梁", {}}, {3, "壁", {}}, {4, "床", {}}});
  EXPECT_THAT(Marks(), ElementsAre("1:", "2:1", "3:", "4:"));
  Put({{1, "柱", {}}, {2, "梁", {}}});
  EXPECT_THAT(Marks(), ElementsAre("1:", "2:1")) << "and again";
}

TEST_F(CarriedOverMarks, LeaveThoseOfTheFileToTheFile) {
  Put({{1, "柱", set}, {2, "梁", none}, {3, "壁", none}});
  Mark(2);
  Put({{1, "柱", none}, {2, "梁", none}, {3, "壁", set}});
  EXPECT_THAT(Marks(), ElementsAre("1:0", "2:1", "3:1"));
}

TEST_F(CarriedOverMarks, DoNotPassToAnotherNameOfTheirNumber) {
  Put({{1, "柱", none}, {2, "梁", none}});
  Mark(2);
  Put({{1, "柱", none}, {2, "床", none}, {3, "梁", none}});
  EXPECT_THAT(Marks(), ElementsAre("1:0", "2:0", "3:0"));
}

}  // namespace
}  // namespace rbt::test
