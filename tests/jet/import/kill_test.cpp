// SPDX-License-Identifier: MIT
// Imports that are killed, or that the disk has no room for: the old state or the whole new one, and nothing
// that stands in the way of the next.
#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "jet/import/import_file.h"
#include "jet/jet_file.h"
#include "platform/fault.h"
#include "platform/files/file_in_work.h"
#include "platform/files/files.h"
#include "store/database.h"
#include "support/child_process.h"
#include "support/fault_of.h"
#include "support/jet_writer.h"
#include "support/sample.h"
#include "support/temporary_folder.h"

namespace rbt::jet {
namespace {

namespace fs = std::filesystem;

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr int kRows = 300;

test::JetTable Table(const std::string& name, int rows, std::size_t text = 10) {
  FieldDef number;
  number.name = "番号";
  FieldDef words;
  words.name = "名称";
  words.type = FieldType::memo;
  test::JetTable table{name, {number, words}, {}, {"番号"}};
  for (int i = 1; i <= rows; ++i) {
    table.rows.push_back({Value{std::int64_t{i}}, Value{std::string(text, 'x')}});
  }
  return table;
}

class StoppedImport : public ::testing::Test {
 protected:
  StoppedImport() {
    test::WriteJetFile(source_, JetVersion::jet4, {Table("加工テーブル", kRows), Table("形状テーブル", 3)});
    jet_ = ReadFileBytes(source_);
  }

  /// The names in the folder; what imports have in work under one name.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_.Path())) {
      const std::string name = entry.path().filename().string();
      names.push_back(name.starts_with(".rbk-import-") ? "in work" : name);
    }
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
  }
  std::vector<std::string> NamesButInWork() const {
    std::vector<std::string> names = Names();
    std::erase(names, "in work");
    return names;
  }

  static void ExpectWhole(const fs::path& store) {
    Database database = Database::Open(store);
    EXPECT_EQ(CountOf(database, "加工テーブル"), kRows);
    EXPECT_EQ(CountOf(database, "形状テーブル"), 3);
    EXPECT_EQ(database.FindTable("形状テーブル")->indexes.size(), 1U);
  }
  static std::int64_t CountOf(Database& database, const std::string& table) {
    return *database.OpenSnapshot("SELECT Count(*) FROM [" + table + "]").Int32(FieldHandle{0});
  }

  test::TemporaryFolder folder_;
  fs::path source_ = folder_ / "old.mdb";
  fs::path target_ = folder_ / "new.mdb";
  std::string jet_;
};

TEST_F(StoppedImport, KilledAtAnyMomentLeavesNoTargetOrAWholeOneAndTheNextOneSucceeds) {
  int absent = 0;
  int whole = 0;
  test::TryMoments([&](int n) {
    SCOPED_TRACE(n);
    const bool killed = test::KilledBeforeChange(n, [&] { ImportJetFile(source_, target_); });
    EXPECT_EQ(ReadFileBytes(source_), jet_);
    if (fs::exists(target_)) {
      whole += killed ? 1 : 0;
      EXPECT_THAT(NamesButInWork(), ElementsAre("new.mdb", "old.mdb"));
      ExpectWhole(target_);
      fs::remove(target_);
    } else {
      ++absent;
    }
    ImportJetFile(source_, target_);
    ExpectWhole(target_);
    EXPECT_THAT(Names(), ElementsAre("new.mdb", "old.mdb"));
    fs::remove(target_);
    return killed;
  });
  EXPECT_GT(absent, 10 / test::SampleStep(8));
  EXPECT_GT(whole, 0);
}

TEST_F(StoppedImport, KilledAtAnyMomentInPlaceLeavesTheJetFileOrTheStoreUnderTheName) {
  const auto import = [&] { ImportJetFileInPlace(source_); };
  int before = 0;
  int after = 0;
  test::TryMoments([&](int n) {
    SCOPED_TRACE(n);
    const bool killed = test::KilledBeforeChange(n, import);
    if (IsJetFile(source_)) {
      ++before;
      EXPECT_EQ(ReadFileBytes(source_), jet_);
      import();
    } else {
      after += killed ? 1 : 0;
    }
    ExpectWhole(source_);
    EXPECT_EQ(ReadFileBytes(folder_ / "old.mdb.jet"), jet_);
    EXPECT_THAT(ReadFileBytes(folder_ / "old.mdb.jet.txt"), HasSubstr("table 加工テーブル: 300 rows"));
    EXPECT_THAT(Names(), ElementsAre("old.mdb", "old.mdb.jet", "old.mdb.jet.txt"));
    for (const char* name : {"old.mdb", "old.mdb.jet", "old.mdb.jet.txt"}) fs::remove(folder_ / name);
    WriteFileAtomically(source_, jet_);
    return killed;
  });
  EXPECT_GT(before, 10 / test::SampleStep(8));
  EXPECT_GT(after, 0);
}

TEST_F(StoppedImport, WhatAnotherImportHasInWorkIsLeftAlone) {
  const WorkPlace place(folder_.Path());
  FileInWork other(target_, place, ReadOnlyTarget::replaced);
  other.Write("half");
  ImportJetFile(source_, target_);
  EXPECT_EQ(ReadFileBytes(other.Path()), "half");
}

TEST_F(StoppedImport, ACopyOfTheJetFileUnderTheOtherNameIsNothingToRefuse) {
  fs::copy_file(source_, folder_ / "old.mdb.jet");
  ImportJetFileInPlace(source_);
  ExpectWhole(source_);
  EXPECT_EQ(ReadFileBytes(folder_ / "old.mdb.jet"), jet_);
}

TEST_F(StoppedImport, AFileThatAnotherProgramChangesMeanwhileIsNotImported) {
  const auto import = [&] {
    const std::string fault = test::FaultTextOf([&] { ImportJetFile(source_, target_); });
    if (fault.find("old.mdb: was changed by another program while it was read") == std::string::npos)
      throw std::runtime_error(fault);
  };
  test::MeddleBeforeChange(3, import,
                           [&] { fs::last_write_time(source_, fs::file_time_type::clock::now()); });
  EXPECT_THAT(Names(), ElementsAre("old.mdb"));
}

TEST_F(StoppedImport, WithoutRoomNamesTheTargetAndTheCauseAndLeavesNothing) {
  EXPECT_TRUE(test::WithFilesOfAtMost(8192, [&] {
    EXPECT_THAT(test::FaultTextOf([&] { ImportJetFile(source_, target_); }),
                AllOf(HasSubstr(target_.string()), HasSubstr("disk I/O error")));
  }));
  EXPECT_THAT(Names(), ElementsAre("old.mdb"));
}

TEST_F(StoppedImport, WithoutRoomInPlaceChangesNothing) {
  EXPECT_TRUE(test::WithFilesOfAtMost(8192, [&] {
    EXPECT_THAT(test::FaultTextOf([&] { ImportJetFileInPlace(source_); }),
                AllOf(HasSubstr(source_.string()), HasSubstr("disk I/O error")));
  }));
  EXPECT_THAT(Names(), ElementsAre("old.mdb"));
  EXPECT_EQ(ReadFileBytes(source_), jet_);
}

/// The store writes when its memory is used up, in the midst of the rows: none of them is a refused one.
TEST_F(StoppedImport, WithoutRoomInTheMidstOfTheRowsEndsTheImport) {
  const fs::path large = folder_ / "large.mdb";
  test::WriteJetFile(large, JetVersion::jet4, {Table("加工テーブル", 25000, 1800)});
  EXPECT_TRUE(test::WithFilesOfAtMost(1 << 20, [&] {
    EXPECT_THAT(
        test::FaultTextOf([&] { ImportJetFile(large, target_); }),
        AllOf(HasSubstr(target_.string()), HasSubstr("File too large"), HasSubstr("a row of 加工テーブル")));
  }));
  EXPECT_THAT(Names(), ElementsAre("large.mdb", "old.mdb"));
}

TEST_F(StoppedImport, InPlaceASecondOneAtAnyMomentIsRefusedAndNothingIsLost) {
  // How far the first one has come when the second begins.
  for (int n = 1;; n += 3) {
    SCOPED_TRACE(n);
    std::string refusal;
    try {
      test::MeddleBeforeChange(
          n, [&] { ImportJetFileInPlace(source_); },
          [&] { refusal = test::FaultTextOf([&] { ImportJetFileInPlace(source_); }); });
    } catch (const std::runtime_error&) {
      break;  // it makes fewer changes
    }
    EXPECT_THAT(refusal,
                ::testing::AnyOf(HasSubstr("another program is importing it"), HasSubstr("no Jet file")));
    ExpectWhole(source_);
    EXPECT_EQ(ReadFileBytes(KeptJetFile(source_)), jet_);
    fs::remove(KeptJetFile(source_));
    fs::remove(ReportFile(source_));
    WriteFileAtomically(source_, jet_);
  }
}

TEST_F(StoppedImport, WithASystemCallThatFailsIsAFaultOrWholeAndNothingIsLost) {
  if (!test::CanFailCalls()) GTEST_SKIP() << "calls cannot be made to fail on this machine";
  int faults = 0;
  for (int n = 1;; n += test::FailingCallStep(11)) {
    SCOPED_TRACE(n);
    const test::Ending ending = test::WithFailingCall(n, [&] {
      ImportJetFileInPlace(source_);
      return !IsJetFile(source_);
    });
    if (ending == test::Ending::too_few_calls) break;
    EXPECT_NE(ending, test::Ending::wrong);
    EXPECT_NE(ending, test::Ending::crash);
    if (ending == test::Ending::fault) ++faults;
    if (IsJetFile(source_)) {
      EXPECT_EQ(ReadFileBytes(source_), jet_);
      ImportJetFileInPlace(source_);
    }
    ExpectWhole(source_);
    EXPECT_EQ(ReadFileBytes(KeptJetFile(source_)), jet_);
    fs::remove(KeptJetFile(source_));
    fs::remove(ReportFile(source_));
    WriteFileAtomically(source_, jet_);
  }
  EXPECT_GT(faults, 10);
}

}  // namespace
}  // namespace rbt::jet
