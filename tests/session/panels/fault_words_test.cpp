// SPDX-License-Identifier: MIT
#include "session/panels/fault_words.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "planning/problem/refusal.h"
#include "platform/fault.h"
#include "platform/files/system_error.h"

namespace rbt::test {

namespace {

std::string Told(FaultKind kind, const std::string& where) { return FaultWords(Fault(kind, where)); }

}  // namespace

TEST(FaultWords, NameTheFileWhatIsWrongAndWhatToDoAboveTheFaultsOwnText) {
  const Fault fault = FileFault("/rbk/DATA/GENBA001.MDB", "cannot be opened", EACCES);
  EXPECT_EQ(FaultWords(fault),
            "「GENBA001.MDB」\n"
            "使う権利がありません。\n"
            "ファイルとフォルダの読み書きの権利を確かめて下さい。\n"
            "\n"
            "/rbk/DATA/GENBA001.MDB: cannot be opened: Permission denied");
}

TEST(FaultWords, GoByTheCauseBeforeTheKind) {
  struct Case {
    FaultKind kind;
    const char* where;
    const char* begin;
  };
  const Case cases[] = {
      {FaultKind::file, "/r/DATA/STEEL.INI: the file does not exist",
       "「STEEL.INI」\nファイルが見つかりません。"},
      {FaultKind::file, "/r/DATA/STEEL.INI: no site: [データ] 選択ＤＢ名 is empty",
       "「STEEL.INI」\n現場が選ばれていません。"},
      {FaultKind::file, "/r/DATA/GENBA002.MDB: needs the newer program",
       "「GENBA002.MDB」\n新しい形式の現場です。\nこの現場は、新しい形式を読むプログラムで"},
      {FaultKind::file, "/r/DATA/X.MDB: keeps changing while it is read; try again when nobody writes it",
       "「X.MDB」\nほかのプログラムが書き込みを続けています。\n書き込みが終わってから"},
      {FaultKind::file, "/r/DATA/X.MDB: cannot be opened: File name too long",
       "「X.MDB」\nファイルの場所の名前が長すぎます。"},
      {FaultKind::file, "/r/DATA/X.MDB: cannot be opened: Too many levels of symbolic links",
       "「X.MDB」\nリンクが自分自身を指しています。"},
      {FaultKind::file, "/r/DATA/STEEL.INI: is no regular file", "「STEEL.INI」\nファイルではありません。"},
      {FaultKind::file, "/r/DATA/X.MDB: page 0: password or damaged header; open it in its own program",
       "「X.MDB」\nパスワードが付いているか、先頭が壊れています。"},
      {FaultKind::file, "/r/DATA/X.MDB: page 0: encrypted pages or a damaged header; open it",
       "「X.MDB」\n暗号化されているか、先頭が壊れています。"},
      {FaultKind::file, "/r/DATA/X.MDB: 9 bytes are no whole number of pages of 4096: the file is cut off",
       "「X.MDB」\nファイルが途中で切れています。"},
      {FaultKind::storage, "attempt to write a readonly database: /r/DATA/X.MDB: UPDATE T SET a = 1",
       "「X.MDB」\n書き込む権利がありません。"},
      {FaultKind::storage, "database or disk is full: /r/DATA/X.MDB: INSERT",
       "「X.MDB」\nディスクに空きがありません。"},
      {FaultKind::storage, "database disk image is malformed: /r/X.MDB: SELECT",
       "「X.MDB」\nファイルが壊れています。"},
      {FaultKind::storage, "disk I/O error: /r/X.MDB: SELECT",
       "「X.MDB」\nファイルの読み書きができませんでした。"},
      {FaultKind::locked, "another program holds the file: /r/X.MDB: BEGIN",
       "「X.MDB」\nほかのプログラムが使用しています。"},
      {FaultKind::database, "no such table: 階: /r/X.MDB: SELECT",
       "「X.MDB」\nデータベースの処理ができませんでした。"},
      {FaultKind::file, "甲: the printer is gone", "処理ができませんでした。"},
  };
  for (const Case& row : cases) {
    const std::string told = Told(row.kind, row.where);
    EXPECT_EQ(told.rfind(row.begin, 0), 0U) << told;
    EXPECT_NE(told.find(std::string("\n\n") + row.where), std::string::npos) << told;
  }
}

TEST(FaultWords, TellEveryKindInJapaneseWithItsTechnicalLine) {
  for (const FaultKind kind :
       {FaultKind::subscript_out_of_range, FaultKind::overflow, FaultKind::division_by_zero,
        FaultKind::type_mismatch, FaultKind::invalid_use_of_null, FaultKind::field_not_found,
        FaultKind::database, FaultKind::storage, FaultKind::locked, FaultKind::file}) {
    const Fault fault(kind, "伸切寸");
    const std::string told = FaultWords(fault);
    EXPECT_EQ(told.substr(told.find("\n\n")), std::string("\n\n") + fault.what());
    EXPECT_EQ(told.find("続けられない"), std::string::npos) << told;
  }
}

TEST(FaultWords, TellWhyNoPlanCanBeMadeInJapaneseAboveTheRefusalsOwnText) {
  struct Case {
    const char* refusal;
    const char* begin;
  };
  const Case cases[] = {
      {"no stock length is allowed for D16", "使える定尺がありません。\n計画の条件の定尺、"},
      {"length 5250 has no column", "集計表に無い定尺です。"},
      {"no price for D16 6500", "単価の無い定尺があります。"},
      {"D16: no length can fill its least lot", "最小の注文量に届く定尺がありません。"},
      {"D16: 2 lengths do not hold every piece", "定尺の種類が少なすぎて、"},
      {"line 7: piece 12500 is longer than the longest bar 12000", "どの定尺よりも長い部材があります。"},
      {"/home/u/rests.csv: line 3: not a whole number: 12x", "「rests.csv」\n表の行が読めません。"},
      {"the plan failed its check: D16: a piece is cut twice", "計画の検算が合いません。"},
      {"something else", "計画ができません。"},
  };
  for (const Case& row : cases) {
    const std::string told = FaultWords(planning::Refusal(row.refusal));
    EXPECT_EQ(told.rfind(row.begin, 0), 0U) << told;
    EXPECT_NE(told.find(std::string("\n\n") + row.refusal), std::string::npos) << told;
  }
}

TEST(FaultWords, TellWhatTheLibrariesThrowWithItsText) {
  EXPECT_EQ(FaultWords(std::runtime_error("bad_alloc")), "続けられない誤りが起きました。\n\nbad_alloc");
}

TEST(FaultWords, KnowAFaultOfALock) {
  EXPECT_TRUE(IsOfLock(Fault(FaultKind::locked, "x")));
  EXPECT_FALSE(IsOfLock(Fault(FaultKind::storage, "x")));
  EXPECT_FALSE(IsOfLock(std::runtime_error("x")));
}

}  // namespace rbt::test
