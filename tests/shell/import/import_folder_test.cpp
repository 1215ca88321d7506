// SPDX-License-Identifier: MIT
#include "shell/import/import_folder.h"

#include <chrono>
#include <csignal>
#include <functional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/table_layouts.h"
#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/system/services.h"
#include "store/database.h"
#include "store/database_impl.h"
#include "support/child_process.h"
#include "support/fault_of.h"
#include "support/jet_writer.h"
#include "support/kept_services.h"
#include "support/sample.h"
#include "support/temporary_folder.h"

namespace rbt::test {
namespace {

namespace fs = std::filesystem;

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

std::vector<std::string> NamesIn(const fs::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename().string());
  return names;
}

class ImportFolder : public ::testing::Test {
 protected:
  ImportFolder() { fs::create_directory(data_); }

  void Put(const std::string& name, const std::vector<TableDef>& layout,
           jet::JetVersion version = jet::JetVersion::jet4) {
    std::vector<JetTable> tables;
    for (const TableDef& table : layout) tables.push_back({table.name, table.fields, {}});
    WriteJetFile(data_ / name, version, tables);
  }
  void PutWholeFolder() {
    Put("GENBA001.MDB", ScheduleFileTables());
    Put("HIROI001.mdb", CompanionFileTables(), jet::JetVersion::jet3);
    Put("SORANO.MDB", MasterFileTables());
    Put("MTTeijyaku.mdb", FixedStockFileTables());
    Put("MTTeijyaku_ORG.mdb", FixedStockFileTables());
    Put("JSyukeiORG.mdb", ArchiveTables());
    WriteFileAtomically(data_ / "STEEL.INI", kIni);
    WriteFileAtomically(data_ / "NEXTPRG.INI", "[\x83\x66]\r\n; \x81 odd \xFF bytes");
  }

  FolderReport Take() { return ImportDataFolder(data_, root_); }

  inline static const std::string kIni = "[\x83\x66\x81\x5B\x83\x5E]\r\nx=1\r\n\r\n";  // [データ]
  TemporaryFolder folder_;
  fs::path data_ = folder_ / "windows";
  fs::path root_ = folder_ / "rbk";
};

TEST_F(ImportFolder, BringsEverythingThatTheProgramWorksWith) {
  PutWholeFolder();
  const FolderReport report = Take();
  EXPECT_EQ(report.files.size(), 6U);
  EXPECT_THAT(report.copied, UnorderedElementsAre("STEEL.INI", "NEXTPRG.INI"));
  EXPECT_THAT(report.made, IsEmpty());
  EXPECT_THAT(report.failed, IsEmpty());
  EXPECT_THAT(report.warnings, IsEmpty());
  EXPECT_THAT(NamesIn(root_), ElementsAre("DATA"));
  EXPECT_THAT(NamesIn(root_ / "DATA"),
              UnorderedElementsAre("GENBA001.MDB", "HIROI001.mdb", "SORANO.MDB", "MTTeijyaku.mdb",
                                   "MTTeijyaku_ORG.mdb", "JSyukeiORG.mdb", "STEEL.INI", "NEXTPRG.INI"));
  EXPECT_NE(Database::Open(root_ / "DATA" / "GENBA001.MDB").FindTable("加工テーブル"), nullptr);
}

TEST_F(ImportFolder, OfARootTakesTheDataFolderBelowIt) {
  data_ = folder_ / "windows" / "Data";
  fs::create_directory(data_);
  PutWholeFolder();
  WriteFileAtomically(folder_ / "windows" / "readme.txt", "a sibling's");
  const FolderReport report = ImportDataFolder(folder_ / "windows", root_);
  EXPECT_EQ(report.files.size(), 6U);
  EXPECT_THAT(report.not_taken, IsEmpty());
  EXPECT_NE(Database::Open(root_ / "DATA" / "GENBA001.MDB").FindTable("加工テーブル"), nullptr);
}

TEST_F(ImportFolder, OfADataFolderWithADataFolderBelowItIsThatOne) {
  PutWholeFolder();
  fs::create_directory(data_ / "DATA");
  EXPECT_EQ(Take().files.size(), 6U);
}

TEST_F(ImportFolder, KeepsTheBytesOfIniFiles) {
  PutWholeFolder();
  Take();
  for (const char* name : {"STEEL.INI", "NEXTPRG.INI"}) {
    EXPECT_EQ(ReadFileBytes(root_ / "DATA" / name), ReadFileBytes(data_ / name));
  }
}

TEST_F(ImportFolder, MakesWhatTheFolderLacks) {
  PutWholeFolder();
  fs::remove(data_ / "MTTeijyaku_ORG.mdb");
  fs::remove(data_ / "JSyukeiORG.mdb");
  const FolderReport report = Take();
  EXPECT_THAT(report.made,
              UnorderedElementsAre("MTTeijyaku_ORG.mdb, a copy of MTTeijyaku.mdb", "JSyukeiORG.mdb, empty"));
  EXPECT_EQ(ReadFileBytes(root_ / "DATA" / "MTTeijyaku_ORG.mdb"),
            ReadFileBytes(root_ / "DATA" / "MTTeijyaku.mdb"));
  Database archive = Database::Open(root_ / "DATA" / "JSyukeiORG.mdb");
  for (const TableDef& expected : ArchiveTables()) {
    const auto table = archive.FindTable(expected.name);
    ASSERT_NE(table, nullptr) << expected.name;
    EXPECT_EQ(table->fields, expected.fields);
    EXPECT_EQ(table->indexes, expected.indexes);
  }
}

TEST_F(ImportFolder, WithoutAnyFixedStockTableMakesAnEmptyOneAndSaysSo) {
  PutWholeFolder();
  fs::remove(data_ / "MTTeijyaku_ORG.mdb");
  fs::remove(data_ / "MTTeijyaku.mdb");
  const FolderReport report = Take();
  EXPECT_THAT(report.warnings, ElementsAre("MTTeijyaku.mdb is missing: no fixed stock lengths are known"));
  EXPECT_NE(Database::Open(root_ / "DATA" / "MTTeijyaku_ORG.mdb").FindTable("固定定尺テーブル"), nullptr);
}

TEST_F(ImportFolder, NeverMakesUpACompanionOrAnIniFile) {
  PutWholeFolder();
  fs::remove(data_ / "HIROI001.mdb");
  fs::remove(data_ / "STEEL.INI");
  const FolderReport report = Take();
  EXPECT_THAT(report.warnings, UnorderedElementsAre("GENBA001.MDB: its companion HIROI001.mdb is missing",
                                                    "STEEL.INI is missing"));
  EXPECT_FALSE(fs::exists(root_ / "DATA" / "HIROI001.mdb"));
}

TEST_F(ImportFolder, TellsTablesAndColumnsThatAreMissing) {
  PutWholeFolder();
  std::vector<TableDef> tables = ScheduleFileTables();
  std::erase_if(tables[0].fields,
                [](const FieldDef& field) { return field.name == "伸切寸" || field.name == "切断"; });
  Put("GENBA002.MDB", tables);
  Put("HIROI002.mdb", {CompanionFileTables()[0]});
  EXPECT_THAT(Take().warnings, UnorderedElementsAre("GENBA002.MDB: table 加工テーブル has no column 伸切寸",
                                                    "HIROI002.mdb has no table スパイラル"));
}

TEST_F(ImportFolder, LeavesOutASiteThatCannotBeReadAndNamesIt) {
  PutWholeFolder();
  WriteFileAtomically(data_ / "GENBA007.MDB",
                      std::string("\0\1\0\0Standard Jet DB\0", 20) + std::string(3000, 'x'));
  WriteFileAtomically(data_ / "GENBA008.MDB", "no database at all");
  const FolderReport report = Take();
  EXPECT_THAT(report.failed, UnorderedElementsAre(HasSubstr("GENBA007.MDB"), HasSubstr("GENBA008.MDB")));
  EXPECT_THAT(ReportText(report), HasSubstr("FAILED: "));
  EXPECT_FALSE(fs::exists(root_ / "DATA" / "GENBA007.MDB"));
  EXPECT_TRUE(fs::exists(root_ / "DATA" / "GENBA001.MDB"));
}

TEST_F(ImportFolder, ALinkThatLeadsNowhereIsAFileThatCannotBeRead) {
  PutWholeFolder();
  fs::create_symlink("gone.MDB", data_ / "GENBA009.MDB");
  fs::create_symlink("HIROI009.mdb", data_ / "HIROI009.mdb");
  EXPECT_THAT(Take().failed, UnorderedElementsAre(HasSubstr("GENBA009.MDB"), HasSubstr("HIROI009.mdb")));
}

TEST_F(ImportFolder, WithoutAReadableMasterDatabaseLeavesNothing) {
  PutWholeFolder();
  fs::resize_file(data_ / "SORANO.MDB", 5000);
  EXPECT_THAT(FaultTextOf([&] { Take(); }), AllOf(HasSubstr("SORANO.MDB"), HasSubstr("cut off")));
  EXPECT_FALSE(fs::exists(root_));
  fs::remove(data_ / "SORANO.MDB");
  EXPECT_THAT(FaultTextOf([&] { Take(); }), HasSubstr("the master database is missing"));
  EXPECT_FALSE(fs::exists(root_));
}

TEST_F(ImportFolder, AnExistingDataFolderIsLeftAlone) {
  PutWholeFolder();
  fs::create_directories(root_ / "DATA");
  WriteFileAtomically(root_ / "DATA" / "mine.txt", "mine");
  EXPECT_THAT(FaultTextOf([&] { Take(); }), HasSubstr("is there already and is not overwritten"));
  EXPECT_THAT(NamesIn(root_ / "DATA"), ElementsAre("mine.txt"));
  fs::remove(root_ / "DATA" / "mine.txt");
  Take();  // an empty one is no loss
  EXPECT_EQ(NamesIn(root_ / "DATA").size(), 8U);
}

TEST_F(ImportFolder, FilesOfTheStoreAreCopiedAndOthersNotTaken) {
  PutWholeFolder();
  fs::remove(data_ / "MTTeijyaku.mdb");
  Database::CreateDatabase(data_ / "MTTeijyaku.mdb").CreateTable(FixedStockFileTables()[0]);
  WriteFileAtomically(data_ / "readme.txt", "x");
  Put("ZAIKO.MDB", {});
  const FolderReport report = Take();
  EXPECT_THAT(report.copied, Contains("MTTeijyaku.mdb"));
  EXPECT_THAT(report.not_taken, UnorderedElementsAre("readme.txt", "ZAIKO.MDB"));
}

TEST_F(ImportFolder, FilesOfTheStoreAreNotCopiedFromTheMidstOfAWrite) {
  const KeptServices services;
  Services.LockPatience = std::chrono::milliseconds(0);
  PutWholeFolder();
  fs::remove(data_ / "MTTeijyaku.mdb");
  Database::CreateDatabase(data_ / "MTTeijyaku.mdb").CreateTable(FixedStockFileTables()[0]);
  Database writer = Database::Open(data_ / "MTTeijyaku.mdb");
  writer.impl().Connected().Run("BEGIN EXCLUSIVE");
  const FolderReport report = Take();
  EXPECT_THAT(report.failed,
              ElementsAre(AllOf(HasSubstr("another program holds"), HasSubstr("MTTeijyaku.mdb"))));
  EXPECT_FALSE(fs::exists(root_ / "DATA" / "MTTeijyaku.mdb")) << "nothing is better than half of it";
}

TEST_F(ImportFolder, NamesThatDifferInLetterCaseOnlyAreRefused) {
  PutWholeFolder();
  Put("genba001.mdb", ScheduleFileTables());
  EXPECT_THAT(FaultTextOf([&] { Take(); }), HasSubstr("are one name to the program"));
  EXPECT_FALSE(fs::exists(root_));
}

TEST_F(ImportFolder, AFullWidthNameIsAnotherName) {
  PutWholeFolder();
  WriteFileAtomically(data_ / "ＳＴＥＥＬ.INI", "x");
  EXPECT_THAT(Take().not_taken, ElementsAre("ＳＴＥＥＬ.INI"));
}

TEST_F(ImportFolder, ADataFolderOfAnotherLetterCaseIsTheSame) {
  PutWholeFolder();
  fs::create_directories(root_ / "Data");
  WriteFileAtomically(root_ / "Data" / "mine.txt", "mine");
  EXPECT_THAT(FaultTextOf([&] { Take(); }), HasSubstr("Data: is there already and is not overwritten"));
  fs::remove(root_ / "Data" / "mine.txt");
  Take();
  EXPECT_THAT(NamesIn(root_), ElementsAre("Data"));
}

TEST_F(ImportFolder, TheCompanionIsFoundByTheThreeDigitsOfTheSite) {
  PutWholeFolder();
  Put("GENBA001A.MDB", ScheduleFileTables());
  EXPECT_THAT(Take().warnings, IsEmpty());
}

TEST_F(ImportFolder, KilledAtAnyMomentLeavesNoDataFolderOrAWholeOneAndTheNextOneSucceeds) {
  // Sites without an archive, so that there are not too many moments.
  Put("GENBA001.MDB", {ScheduleFileTables()[0]});
  Put("HIROI001.mdb", CompanionFileTables());
  Put("SORANO.MDB", MasterFileTables());
  Put("MTTeijyaku.mdb", FixedStockFileTables());
  WriteFileAtomically(data_ / "STEEL.INI", kIni);
  WriteFileAtomically(data_ / "NEXTPRG.INI", kIni);
  const auto whole = UnorderedElementsAre("GENBA001.MDB", "HIROI001.mdb", "SORANO.MDB", "MTTeijyaku.mdb",
                                          "MTTeijyaku_ORG.mdb", "JSyukeiORG.mdb", "STEEL.INI", "NEXTPRG.INI");
  const auto import = [&] { Take(); };
  int absent = 0;
  int complete = 0;
  TryMoments([&](int n) {
    SCOPED_TRACE(n);
    const bool killed = KilledBeforeChange(n, import);
    if (fs::exists(root_ / "DATA")) {
      complete += killed ? 1 : 0;
    } else {
      ++absent;
      Take();
      EXPECT_THAT(NamesIn(root_), ElementsAre("DATA"));
    }
    EXPECT_THAT(NamesIn(root_ / "DATA"), whole);
    EXPECT_NE(Database::Open(root_ / "DATA" / "GENBA001.MDB").FindTable("加工テーブル"), nullptr);
    fs::remove_all(root_);
    return killed;
  });
  EXPECT_GT(absent, 20);
  EXPECT_GT(complete, 0);
}

TEST_F(ImportFolder, WithoutRoomNamesTheFileAndTheCauseAndLeavesNothing) {
  PutWholeFolder();
  EXPECT_TRUE(WithFilesOfAtMost(8192, [&] {
    EXPECT_THAT(FaultTextOf([&] { Take(); }),
                AllOf(HasSubstr((root_ / "DATA" / "GENBA001.MDB").string()), HasSubstr("disk I/O error")));
  }));
  EXPECT_FALSE(fs::exists(root_));
}

TEST_F(ImportFolder, WhatIsNoFolderIsNamed) {
  fs::remove(data_);
  EXPECT_THAT(FaultTextOf([&] { Take(); }), HasSubstr("windows: is no folder"));
}

}  // namespace
}  // namespace rbt::test
