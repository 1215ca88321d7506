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

TEST_F(CarriedOver, MarksOfRegisteredNamesSurviveByTheirNumbers) {
  const std::filesystem::path companion = site.Data("HIROI001.mdb");
  const auto put = [&](std::int64_t names) {
    std::vector<JetTable> tables;
    for (const TableDef& table : CompanionFileTables()) {
      JetTable jet{table.name, table.fields, {}};
      for (std::int64_t number = 1; table.name == "登録名" && number <= names; ++number) {
        std::vector<Value> row(table.fields.size());
        row[static_cast<std::size_t>(table.FindField("登録AN") - table.fields.data())] = number;
        jet.rows.push_back(std::move(row));
      }
      tables.push_back(std::move(jet));
    }
    WriteJetFile(companion, jet::JetVersion::jet3, tables);
  };
  put(3);
  {
    Database open = OpenLive(companion, {});
    open.Execute("UPDATE 登録名 SET 表示番号=1 WHERE 登録AN=2");
  }
  put(4);
  Database open = OpenLive(companion, {});
  std::vector<std::string> marks;
  Recordset rows = open.OpenSnapshot("SELECT 登録AN, 表示番号 FROM 登録名 ORDER BY 登録AN");
  for (; !rows.Eof(); rows.MoveNext()) {
    marks.push_back(TextOf(rows.Get(FieldHandle{0})) + ":" + TextOf(rows.Get(FieldHandle{1})));
  }
  EXPECT_THAT(marks, ElementsAre("1:", "2:1", "3:", "4:"));
}

}  // namespace
}  // namespace rbt::test
