// SPDX-License-Identifier: MIT
// Jet files taken into the store.
#include <cmath>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "jet/import/import_file.h"
#include "jet/import/table_mapping.h"
#include "jet/jet_file.h"
#include "jet/lock_file.h"
#include "platform/fault.h"
#include "platform/files/files.h"
#include "store/database.h"
#include "support/child_process.h"
#include "support/fault_of.h"
#include "support/jet_writer.h"
#include "support/temporary_folder.h"

namespace rbt::jet {
namespace {

namespace fs = std::filesystem;

using test::JetTable;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

FieldDef Field(std::string name, FieldType type, int size = 0, int scale = 0) {
  FieldDef field;
  field.name = std::move(name);
  field.type = type;
  field.size = size;
  field.scale = scale;
  return field;
}

Value Words(std::string text) { return Value{std::move(text)}; }
Value Whole(std::int64_t number) { return Value{number}; }

class Import : public ::testing::TestWithParam<JetVersion> {
 protected:
  ImportReport Take(const std::vector<JetTable>& tables) {
    test::WriteJetFile(source_, GetParam(), tables);
    return ImportJetFile(source_, target_);
  }

  std::vector<std::vector<Value>> Rows(const std::string& table) const {
    Database database = Database::OpenReadOnly(target_);
    std::vector<std::vector<Value>> all;
    for (Recordset rows = database.OpenSnapshot("SELECT * FROM [" + table + "]"); !rows.Eof();
         rows.MoveNext()) {
      auto& row = all.emplace_back();
      for (int i = 0; i < rows.FieldCount(); ++i) row.push_back(rows.Get(FieldHandle{i}));
    }
    return all;
  }

  /// The number that the store gives to the next row of 登録名.
  Value NumberOfNewRow() const {
    Database database = Database::Open(target_);
    {
      Recordset rows = database.OpenDynaset("SELECT * FROM 登録名");
      rows.AddNew();
      rows.Set("登録名", Words("床"));
      rows.Update();
    }
    Recordset rows = database.OpenSnapshot("SELECT 登録AN FROM 登録名 WHERE 登録名 = '床'");
    return rows.Get("登録AN");
  }

  static JetTable OneRow() { return {"表", {Field("番号", FieldType::integer32)}, {{Whole(1)}}}; }
  static bool IsJet3() { return GetParam() == JetVersion::jet3; }
  static std::size_t PageAt(std::size_t page) { return page * (IsJet3() ? 2048U : 4096U); }
  void PutSource(const Bytes& image) const {
    WriteFileAtomically(source_, {reinterpret_cast<const char*>(image.data()), image.size()});
  }

  std::vector<std::string> NamesInFolder() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_.Path()))
      names.push_back(entry.path().filename().string());
    return names;
  }

  test::TemporaryFolder folder_;
  fs::path source_ = folder_ / "old.mdb";
  fs::path target_ = folder_ / "GENBA001.MDB";
};

TEST_P(Import, EveryColumnTypeIsKept) {
  const JetTable table{
      "全種類",
      {Field("真偽", FieldType::boolean), Field("バイト", FieldType::byte),
       Field("短整数", FieldType::integer16), Field("長整数", FieldType::integer32),
       Field("通貨", FieldType::currency), Field("単精度", FieldType::single),
       Field("倍精度", FieldType::real), Field("日付", FieldType::date_time),
       Field("２進", FieldType::binary, 20), Field("文字", FieldType::text, 50), Field("OLE", FieldType::ole),
       Field("メモ", FieldType::memo), Field("GUID", FieldType::guid),
       Field("十進", FieldType::decimal, 18, 4)},
      {{Whole(-1), Whole(255), Whole(-32768), Whole(2147483647),
        Value{Currency::FromTenThousandths(12345678)}, Value{static_cast<double>(0.1F)}, Value{0.1 + 0.2},
        Value{46347.375}, Value{Bytes{0, 255, 1}}, Words("①㈱髙～ソ能"), Value{Bytes{1, 2, 3}},
        Words("縦ｽﾘｯﾄ筋　"), Words("{8E39276A-BCA8-4AC4-891E-49911D8438DD}"), Words("-123456789.0125")},
       {Whole(0), {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}}}};
  const ImportReport report = Take({table});
  EXPECT_EQ(report.Refused(), 0U);
  EXPECT_THAT(report.warnings, IsEmpty());
  EXPECT_EQ(Rows("全種類"), table.rows);
  const auto stored = Database::OpenReadOnly(target_).FindTable("全種類");
  ASSERT_NE(stored, nullptr);
  EXPECT_EQ(stored->fields, table.fields);
}

TEST_P(Import, RowsStandInTheOrderOfThePrimaryKey) {
  JetTable table{"加工テーブル",
                 {Field("行No", FieldType::integer32), Field("名称", FieldType::text, 50)},
                 {},
                 {"行No"}};
  for (const int number : {30, -5, 10, 2147483647, 20}) table.rows.push_back({Whole(number), Words("柱")});
  const ImportReport report = Take({table});
  EXPECT_THAT(report.warnings, IsEmpty());
  std::vector<std::int64_t> numbers;
  for (const auto& row : Rows("加工テーブル")) numbers.push_back(std::get<std::int64_t>(row[0]));
  EXPECT_THAT(numbers, ElementsAre(-5, 10, 20, 30, 2147483647));
  const auto stored = Database::OpenReadOnly(target_).FindTable("加工テーブル");
  ASSERT_EQ(stored->indexes.size(), 1U);
  EXPECT_TRUE(stored->indexes[0].primary);
  EXPECT_EQ(stored->indexes[0].name, "PrimaryKey");
  EXPECT_THAT(stored->indexes[0].fields, ElementsAre("行No"));
}

TEST_P(Import, RowsWithoutAKeyStandAsTheyLie) {
  JetTable table{"表", {Field("番号", FieldType::integer32)}, {}};
  for (const int number : {3, 1, 2, 1}) table.rows.push_back({Whole(number)});
  Take({table});
  EXPECT_EQ(Rows("表"), table.rows);
}

TEST_P(Import, AnAutonumberGoesOnBehindItsRows) {
  JetTable table{"登録名",
                 {Field("登録AN", FieldType::integer32), Field("登録名", FieldType::text, 50)},
                 {{Whole(7), Words("柱")}, {Whole(41), Words("梁")}},
                 {"登録AN"}};
  table.fields[0].autonumber = true;
  Take({table});
  EXPECT_EQ(NumberOfNewRow(), Whole(42));
}

TEST_P(Import, AnAutonumberGoesOnBehindTheLastNumberGivenThoughItsRowIsGone) {
  JetTable table{"登録名",
                 {Field("登録AN", FieldType::integer32), Field("登録名", FieldType::text, 50)},
                 {{Whole(7), Words("柱")}},
                 {"登録AN"}};
  table.fields[0].autonumber = true;
  Bytes image = test::JetImage(GetParam(), {table});
  image.at(PageAt(3) + (IsJet3() ? 16 : 20)) = 50;
  PutSource(image);
  ImportJetFile(source_, target_);
  EXPECT_EQ(NumberOfNewRow(), Whole(51));
}

TEST_P(Import, AKeyThatStandsTwiceIsRefusedByName) {
  const ImportReport report =
      Take({{"表", {Field("番号", FieldType::integer32)}, {{Whole(1)}, {Whole(1)}}, {"番号"}}});
  EXPECT_THAT(report.tables.at(0).refused_rows,
              ElementsAre("page 4, row 2, 番号 1: another row has the same key: 表.番号"));
  EXPECT_EQ(Rows("表").size(), 1U);
}

TEST_P(Import, ATableThatTheStoreDoesNotTakeEndsTheImportByItsName) {
  const std::string fault = test::FaultTextOf([&] {
    Take({{"表", {Field("SD", FieldType::integer32), Field("ＳＤ", FieldType::integer32)}, {}}});
  });
  EXPECT_EQ(fault, source_.string() + ": page 3: table 表 cannot be taken: table 表 has two fields ＳＤ");
  EXPECT_THAT(NamesInFolder(), ElementsAre("old.mdb"));
}

TEST_P(Import, AFaultNamesPageAndJetFileAndNoStatement) {
  EXPECT_EQ(test::FaultTextOf([&] {
              Take({{"sqlite_x", {Field("番号", FieldType::integer32)}, {{Whole(1)}}}});
            }),
            source_.string() +
                ": page 3: table sqlite_x cannot be taken: object name reserved for internal "
                "use: sqlite_x");
}

TEST_P(Import, AnIndexOutOfOrderIsWarnedOfAndRowsStandAsTheyLie) {
  Bytes image = test::JetImage(
      GetParam(), {{"表", {Field("番号", FieldType::integer32)}, {{Whole(2)}, {Whole(1)}}, {"番号"}}});
  // Page 5 is the index; each of its two entries takes nine bytes.
  const auto entries = image.begin() + static_cast<std::ptrdiff_t>(PageAt(5) + (IsJet3() ? 0xF8 : 0x1E0));
  std::swap_ranges(entries, entries + 9, entries + 9);
  PutSource(image);
  EXPECT_THAT(ImportJetFile(source_, target_).warnings,
              ElementsAre(AllOf(HasSubstr("the primary key of 表 is damaged"), HasSubstr("out of order"))));
  EXPECT_THAT(Rows("表"), ElementsAre(ElementsAre(Whole(2)), ElementsAre(Whole(1))));
}

TEST_P(Import, PropertiesThatCannotBeReadAreWarnedOfAndTheRowsTaken) {
  JetTable table{"表", {Field("番号", FieldType::integer32)}, {{Whole(1)}}};
  table.properties = Bytes{'X', 'X', 'X', 0, 1, 2};
  EXPECT_THAT(Take({table}).warnings,
              ElementsAre(HasSubstr("table 表: default values and rules cannot be read: ")));
  EXPECT_EQ(Rows("表"), table.rows);
}

TEST_P(Import, InPlaceWhoCouldWorkWithTheJetFileCanWorkWithTheStore) {
  test::WriteJetFile(source_, GetParam(), {});
  fs::permissions(source_, static_cast<fs::perms>(0464));
  ImportJetFileInPlace(source_);
  EXPECT_EQ(fs::status(source_).permissions(), static_cast<fs::perms>(0664));
  EXPECT_EQ(fs::status(folder_ / "old.mdb.jet").permissions(), static_cast<fs::perms>(0464));
}

TEST_P(Import, InPlaceWithoutSecondNamesOfFilesTheJetFileIsCopied) {
  test::WriteJetFile(source_, GetParam(), {{"表", {Field("番号", FieldType::integer32)}, {{Whole(1)}}}});
  const std::string before = ReadFileBytes(source_);
  const auto time = fs::last_write_time(source_);
  EXPECT_TRUE(test::InChild([&] {
    test::ForbidHardLinks();
    ImportJetFileInPlace(source_);
    return true;
  }));
  EXPECT_EQ(ReadFileBytes(folder_ / "old.mdb.jet"), before);
  EXPECT_EQ(fs::last_write_time(folder_ / "old.mdb.jet"), time);
  EXPECT_NE(Database::Open(source_).FindTable("表"), nullptr);
  EXPECT_THAT(NamesInFolder(), ::testing::UnorderedElementsAre("old.mdb", "old.mdb.jet", "old.mdb.jet.txt"));
}

TEST_P(Import, WithoutSecondNamesOfFilesTheTargetIsRenamed) {
  test::WriteJetFile(source_, GetParam(), {});
  EXPECT_TRUE(test::InChild([&] {
    test::ForbidHardLinks();
    ImportJetFile(source_, target_);
    return true;
  }));
  EXPECT_NO_THROW(Database::Open(target_));
  EXPECT_THAT(NamesInFolder(), ::testing::UnorderedElementsAre("old.mdb", "GENBA001.MDB"));
}

TEST_P(Import, AnAutonumberThatIsNoKeyTakesNoLongerThanAnyOther) {
  JetTable table{"表", {Field("番号", FieldType::integer32), Field("名称", FieldType::text, 50)}, {}};
  table.fields[0].autonumber = true;
  for (int i = 1; i <= 20000; ++i) table.rows.push_back({Whole(i), Words("柱")});
  const ImportReport report = Take({table});
  EXPECT_EQ(report.Rows(), 20000U);
  EXPECT_TRUE(Database::OpenReadOnly(target_).FindTable("表")->fields[0].autonumber);
}

TEST_P(Import, RowsThatTheStoreCannotHoldAreRefusedByName) {
  const Bytes no_text = GetParam() == JetVersion::jet4 ? Bytes{0x41, 0x00, 0x3D, 0xD8} : Bytes{0x41, 0x8C};
  const JetTable table{"表",
                       {Field("番号", FieldType::integer32), Field("名称", FieldType::text, 3),
                        Field("重量", FieldType::currency), Field("長さ", FieldType::real)},
                       {{Whole(1), Words("ABC"), Value{Currency::FromInteger(900000000000)}, Value{1.5}},
                        {Whole(2), Words("ABCD"), {}, {}},
                        {Whole(3), {}, Value{Currency::FromInteger(900000000001)}, {}},
                        {Whole(4), Value{no_text}, {}, {}},
                        {Whole(5), {}, {}, Value{std::nan("")}},
                        {Whole(6), {}, {}, {}}},
                       {"番号"}};
  const ImportReport report = Take({table});
  ASSERT_EQ(report.tables.size(), 1U);
  EXPECT_EQ(report.tables[0].rows, 2U);
  EXPECT_EQ(report.Refused(), 4U);
  EXPECT_THAT(
      report.tables[0].refused_rows,
      ElementsAre(AllOf(HasSubstr("page 4, row 2, 番号 2"), HasSubstr("表.名称"), HasSubstr("too small")),
                  AllOf(HasSubstr("番号 3"), HasSubstr("overflow"), HasSubstr("表.重量")),
                  AllOf(HasSubstr("番号 4"), HasSubstr("表.名称"), HasSubstr("bytes for a text")),
                  AllOf(HasSubstr("番号 5"), HasSubstr("表.長さ"))));
  EXPECT_THAT(ReportText(report),
              AllOf(HasSubstr("2 rows, 4 REFUSED"), HasSubstr("    refused: page 4, row 2")));
  EXPECT_EQ(Rows("表").size(), 2U);
}

TEST_P(Import, LiteralDefaultsAreKept) {
  JetTable table{"重量集計",
                 {Field("階", FieldType::integer32), Field("ＳＤ", FieldType::text, 20),
                  Field("日", FieldType::date_time)},
                 {{{}, {}, {}}}};
  table.properties = test::JetProperties(
      GetParam(),
      {{"階", "DefaultValue", "0"}, {"ＳＤ", "DefaultValue", "\"\""}, {"日", "DefaultValue", "Now()"}});
  const ImportReport report = Take({table});
  const auto stored = Database::OpenReadOnly(target_).FindTable("重量集計");
  EXPECT_EQ(stored->fields[0].default_value, "0");
  EXPECT_EQ(stored->fields[1].default_value, "''");
  EXPECT_EQ(stored->fields[2].default_value, std::nullopt);
  EXPECT_THAT(report.not_taken, Contains("table 重量集計: default Now() of column 日"));
  // A null that stands in the file is no missing value.
  EXPECT_EQ(Rows("重量集計"), table.rows);
}

TEST_P(Import, AnExistingTargetIsLeftAlone) {
  WriteFileAtomically(target_, "mine");
  EXPECT_THAT(test::FaultTextOf([&] { Take({}); }), HasSubstr("is there already and is not overwritten"));
  EXPECT_EQ(ReadFileBytes(target_), "mine");
}

TEST_P(Import, TheSourceIsOnlyRead) {
  test::WriteJetFile(source_, GetParam(), {{"表", {Field("番号", FieldType::integer32)}, {{Whole(1)}}}});
  fs::permissions(source_, fs::perms::owner_read);
  const std::string before = ReadFileBytes(source_);
  const auto time = fs::last_write_time(source_);
  ImportJetFile(source_, target_);
  EXPECT_EQ(ReadFileBytes(source_), before);
  EXPECT_EQ(fs::last_write_time(source_), time);
}

TEST_P(Import, ADamagedFileLeavesNothingBehind) {
  Bytes image =
      test::JetImage(GetParam(), {{"表", {Field("番号", FieldType::integer32)}, {{Whole(1)}, {Whole(2)}}}});
  const std::ptrdiff_t page_size = GetParam() == JetVersion::jet3 ? 2048 : 4096;
  image.erase(image.end() - page_size, image.end());  // the catalog's rows
  WriteFileAtomically(source_, {reinterpret_cast<const char*>(image.data()), image.size()});
  EXPECT_THAT(test::FaultTextOf([&] { ImportJetFile(source_, target_); }), HasSubstr("old.mdb: page "));
  EXPECT_THAT(NamesInFolder(), ElementsAre("old.mdb"));
}

TEST_P(Import, FewerRowsThanTheFileCountsAreDamage) {
  Bytes image =
      test::JetImage(GetParam(), {{"表", {Field("番号", FieldType::integer32)}, {{Whole(1)}, {Whole(2)}}}});
  // The definition of the only table stands on page 3.
  const bool jet3 = GetParam() == JetVersion::jet3;
  image.at(3 * (jet3 ? 2048U : 4096U) + (jet3 ? 12U : 16U)) = 3;
  WriteFileAtomically(source_, {reinterpret_cast<const char*>(image.data()), image.size()});
  EXPECT_THAT(
      test::FaultTextOf([&] { ImportJetFile(source_, target_); }),
      HasSubstr("old.mdb: page 3: the definition of 表 counts 3 rows, its usage map leads to 2, and 2 "
                "stand on the pages that point to it: which are right cannot be told"));
}

TEST_P(Import, InPlaceTheJetFileIsKeptUnderAnotherName) {
  test::WriteJetFile(source_, GetParam(), {{"表", {Field("番号", FieldType::integer32)}, {{Whole(1)}}}});
  const std::string before = ReadFileBytes(source_);
  ImportJetFileInPlace(source_);
  EXPECT_EQ(ReadFileBytes(folder_ / "old.mdb.jet"), before);
  EXPECT_NE(Database::Open(source_).FindTable("表"), nullptr);
  EXPECT_THAT(NamesInFolder(), ::testing::UnorderedElementsAre("old.mdb", "old.mdb.jet", "old.mdb.jet.txt"));
  EXPECT_THAT(ReadFileBytes(folder_ / "old.mdb.jet.txt"), HasSubstr("table 表: 1 rows"));
}

TEST_P(Import, InPlaceNothingHappensWhenTheOtherNameIsTaken) {
  test::WriteJetFile(source_, GetParam(), {});
  const std::string before = ReadFileBytes(source_);
  WriteFileAtomically(folder_ / "old.mdb.jet", "an older one");
  EXPECT_THAT(test::FaultTextOf([&] { ImportJetFileInPlace(source_); }),
              HasSubstr("old.mdb.jet: is there already"));
  EXPECT_EQ(ReadFileBytes(source_), before);
  EXPECT_EQ(ReadFileBytes(folder_ / "old.mdb.jet"), "an older one");
}

TEST_P(Import, InPlaceALinkStaysALink) {
  test::WriteJetFile(source_, GetParam(), {});
  const fs::path link = folder_ / "link.mdb";
  fs::create_symlink(source_, link);
  ImportJetFileInPlace(link);
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_NO_THROW(Database::Open(link));
  EXPECT_TRUE(fs::exists(folder_ / "old.mdb.jet"));
}

/// Another process that holds a lock on the lock file, as an engine does while a database is open.
class LockHolder {
 public:
  explicit LockHolder(const fs::path& lock_file) {
    int ready[2];
    if (pipe(ready) != 0) throw std::runtime_error("no pipe");
    child_ = fork();
    if (child_ == 0) {
      const int file = open(lock_file.c_str(), O_RDWR | O_CREAT, 0666);
      struct flock lock {};
      lock.l_type = F_WRLCK;
      lock.l_start = 0x10000001;
      lock.l_len = 1;
      const char done = fcntl(file, F_SETLK, &lock) == 0 ? 'y' : 'n';
      if (write(ready[1], &done, 1) != 1) _exit(1);
      pause();
      _exit(0);
    }
    char done = 0;
    if (read(ready[0], &done, 1) != 1 || done != 'y') throw std::runtime_error("no lock");
    close(ready[0]);
    close(ready[1]);
  }
  LockHolder(const LockHolder&) = delete;
  LockHolder& operator=(const LockHolder&) = delete;
  ~LockHolder() {
    kill(child_, SIGKILL);
    waitpid(child_, nullptr, 0);
  }

 private:
  pid_t child_;
};

TEST_P(Import, AFileThatSomebodyHasOpenIsWarnedOf) {
  const LockHolder holder(folder_ / "OLD.LDB");
  const ImportReport report = Take({OneRow()});
  EXPECT_THAT(report.warnings, ElementsAre(HasSubstr("old.mdb is open in another program")));
}

TEST_P(Import, InPlaceAFileThatSomebodyHasOpenIsRefused) {
  test::WriteJetFile(source_, GetParam(), {});
  const std::string before = ReadFileBytes(source_);
  {
    const LockHolder holder(folder_ / "old.ldb");
    EXPECT_THAT(test::FaultTextOf([&] { ImportJetFileInPlace(source_); }),
                HasSubstr("old.mdb: is open in another program; close it there first"));
  }
  EXPECT_EQ(ReadFileBytes(source_), before);
  EXPECT_THAT(NamesInFolder(), ::testing::UnorderedElementsAre("old.mdb", "old.ldb"));
  ImportJetFileInPlace(source_);
  EXPECT_FALSE(IsJetFile(source_));
}

TEST_P(Import, ALockFileThatNobodyHoldsIsMentioned) {
  WriteFileAtomically(folder_ / "OLD.ldb", std::string(64, ' '));
  EXPECT_FALSE(IsOpenElsewhere(source_));
  EXPECT_THAT(Take({OneRow()}).warnings, ElementsAre(AllOf(HasSubstr("old.mdb: the lock file OLD.ldb"),
                                                           HasSubstr("nobody here holds"))));
}

TEST_P(Import, AFileWithoutAnyTableIsWarnedOf) {
  EXPECT_THAT(Take({}).warnings, ElementsAre(source_.string() + ": no table was taken"));
}

TEST_P(Import, HowTheFileWasClosedIsWarnedOf) {
  Bytes image = test::JetImage(GetParam(), {OneRow()});
  const std::size_t commits = IsJet3() ? 0x600 : 0xE00;
  image.at(commits) = 1;
  image.at(commits + 1) = 0;
  image.at(commits + 3) = 0;
  PutSource(image);
  EXPECT_THAT(ImportJetFile(source_, target_).warnings,
              ElementsAre(HasSubstr("old.mdb: page 0: a commit was under way"),
                          HasSubstr("old.mdb: page 0: a user of it met damage (commit bytes 01 00)")));
  EXPECT_EQ(Rows("表").size(), 1U);
}

/// Puts a file as source whose index has an entry for a row that is not there.
class DamagedImport : public Import {
 protected:
  void PutDamaged() const {
    JetTable table = OneRow();
    table.key = {"番号"};
    Bytes image = test::JetImage(GetParam(), {table});
    image.at(PageAt(5) + (IsJet3() ? 0xF8 : 0x1E0) + 8) = 77;  // the slot of the only entry
    PutSource(image);
  }
};

TEST_P(DamagedImport, DamageInWhatIsTakenIsListed) {
  PutDamaged();
  const ImportReport report = ImportJetFile(source_, target_);
  EXPECT_THAT(report.damages,
              ElementsAre("table 表, index PrimaryKey: an entry points to row 4:77, which is not there",
                          "table 表, index PrimaryKey: row 4:0 has no entry"));
  EXPECT_THAT(ReportText(report), HasSubstr("  DAMAGE: table 表, index PrimaryKey: an entry points to row"));
  EXPECT_EQ(Rows("表").size(), 1U);
}

TEST_P(DamagedImport, InPlaceDamageIsRefusedUnlessItIsToBeTaken) {
  PutDamaged();
  const std::string before = ReadFileBytes(source_);
  EXPECT_THAT(test::FaultTextOf([&] { ImportJetFileInPlace(source_); }),
              AllOf(HasSubstr("old.mdb: damaged, nothing was imported: table 表, index PrimaryKey"),
                    HasSubstr("(and 1 more)")));
  EXPECT_EQ(ReadFileBytes(source_), before);
  EXPECT_THAT(NamesInFolder(), ElementsAre("old.mdb"));
  EXPECT_EQ(ImportJetFileInPlace(source_, OnDamage::take).damages.size(), 2U);
  EXPECT_THAT(ReadFileBytes(ReportFile(source_)), HasSubstr("DAMAGE"));
  EXPECT_EQ(ReadFileBytes(KeptJetFile(source_)), before);
}

INSTANTIATE_TEST_SUITE_P(Versions, DamagedImport, ::testing::Values(JetVersion::jet3, JetVersion::jet4),
                         [](const auto& version) {
                           return version.param == JetVersion::jet3 ? "Jet3" : "Jet4";
                         });

INSTANTIATE_TEST_SUITE_P(Versions, Import, ::testing::Values(JetVersion::jet3, JetVersion::jet4),
                         [](const auto& version) {
                           return version.param == JetVersion::jet3 ? "Jet3" : "Jet4";
                         });

TEST(DefaultValues, LiteralsAreTakenAndExpressionsAreNot) {
  EXPECT_EQ(LiteralOfDefault("0"), "0");
  EXPECT_EQ(LiteralOfDefault(" =-1.5 "), "-1.5");
  EXPECT_EQ(LiteralOfDefault("\"\""), "''");
  EXPECT_EQ(LiteralOfDefault("\"D'10 \"\"x\"\"\""), "'D''10 \"x\"'");
  EXPECT_EQ(LiteralOfDefault("True"), "-1");
  EXPECT_EQ(LiteralOfDefault("=No"), "0");
  for (const char* expression :
       {"", "=", "Now()", "GenGUID()", "1+1", "\"a\" & \"b\"", "\"", "-", ".", "1-2"}) {
    EXPECT_EQ(LiteralOfDefault(expression), std::nullopt) << expression;
  }
}

}  // namespace
}  // namespace rbt::jet
