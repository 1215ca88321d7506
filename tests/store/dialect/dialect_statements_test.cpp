// SPDX-License-Identifier: MIT
#include "store/dialect/dialect_statements.h"

#include <string>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "store/dialect/dialect_database.h"

namespace rbt::test {
namespace {

std::string Join(std::initializer_list<std::string_view> parts) {
  return fmt::format("{}", fmt::join(parts, ""));
}

/// " , [3500mm] LONG, ... [3500mm重量] CURRENCY, ..." as the archive tables have them, with the 13 m column.
std::string StockColumns() {
  std::string columns;
  const auto append = [&](std::string_view suffix, std::string_view type) {
    for (int millimetres = 3500; millimetres <= 12000; millimetres += 500) {
      columns += fmt::format(", {}mm{} {}", millimetres, suffix, type);
    }
    columns += fmt::format(", 13000mm{} {}", suffix, type);
  };
  append("", "LONG");
  append("重量", "CURRENCY");
  return columns;
}

std::string PartColumns() {
  std::string columns;
  for (const std::string_view number :
       {"１", "２", "３", "４", "５", "６", "７", "８", "９", "１０", "１１"}) {
    columns += fmt::format(", 部位{} CURRENCY", number);
  }
  return columns;
}

void DeclareSite(DialectDatabase& db) {
  std::string dimensions;
  for (int i = 1; i <= 10; ++i) dimensions += fmt::format("寸法{} TEXT(20), ", i);
  db.DeclareTable(
      "加工テーブル",
      "行No LONG, 頁 LONG, 行 LONG, 階 LONG, 部位 LONG, 名称 TEXT(50), 太さ SHORT, 形状No LONG, " +
          dimensions +
          "本数 LONG, ヶ所 LONG, 合計 LONG, 伸切寸 LONG, 伸定尺 DOUBLE, 伸本定 LONG, 伸総計 LONG, "
          "圧接 LONG, 圧接太さ LONG, ネジ数 LONG, 定着板数 LONG, 切断 LONG, 予備2 LONG, 予備3 LONG, "
          "予備5 TEXT(255), 登録名 LONG");
  db.DeclareTable("形状テーブル", "形状No LONG, 形状名 TEXT(50)");
  db.DeclareTable("登録名", "登録AN LONG, 登録名 TEXT(50), 表示番号 LONG");
  db.DeclareTable("スパイラル", "材質 LONG, 径 LONG, 全重量 CURRENCY");
}

void DeclareReferences(DialectDatabase& db) {
  db.DeclareTable("工事テーブル",
                  "番号 LONG, 工事名 TEXT(60), データパス TEXT(60), 取引先コード LONG, 長い工事名 TEXT(120), "
                  "工事名区切り文字数 LONG, メーカーNo LONG, 支給形態 LONG, SD10 LONG");
  db.DeclareTable("T_取引先", "会社コード LONG, 会社名 TEXT(60)");
  db.DeclareTable("T_SD", "SDコード LONG, SD名 TEXT(20)");
  db.DeclareTable("部位名テーブル", "番号 LONG, 部位名 TEXT(20), 記号 TEXT(10)");
  db.DeclareTable("部位名２テーブル", "番号 LONG, 部位名 TEXT(20), 記号 TEXT(10)");
  db.DeclareTable("固定定尺テーブル", "太さ LONG, 開始切り寸 LONG, 終了切り寸 LONG, 材質 LONG, 定尺 LONG");
}

void DeclareArchive(DialectDatabase& db) {
  const std::string head =
      "太さ TEXT(10), ＳＤ TEXT(20), メーカー TEXT(20), 材質 TEXT(20), 材質タイプ LONG, 材料 TEXT(40)";
  const std::string tail =
      ", 定尺重量 CURRENCY, 取付重量 CURRENCY, 圧接 LONG, ネジ数 LONG, 定着板数 LONG, 切断 LONG, "
      "定尺合計 CURRENCY, 取付合計 CURRENCY, 開始階 TEXT(10), 終了階 TEXT(10), 特別階 TEXT(10), 作成日 "
      "TEXT(8), 作成時間 TEXT(6)";
  db.DeclareTable("重量集計", "列番号 LONG, 階 TEXT(10), 部位 LONG, " + head + StockColumns() + tail);
  db.DeclareTable("階部位重量集計", "行No LONG, 階 TEXT(10), 部位 LONG, " + head + StockColumns() + tail);
  db.DeclareTable("階別重量集計", "行No LONG, 階 TEXT(10), " + head + PartColumns() + tail);
  db.DeclareTable("部位別本重集計", "行No LONG, 部位 LONG, " + head + StockColumns() + tail);
  db.DeclareTable("部位別重量集計", head + PartColumns() + tail);
  TableDef names{.name = "重量集計名称", .fields = {}, .indexes = {}};
  const auto add = [&](std::string_view name, std::string_view type) {
    names.fields.push_back(*FieldOfDeclaredType(type));
    names.fields.back().name = name;
  };
  for (const std::string_view name : {"作成日", "作成時間", "重量集計名称", "メモ１", "メモ２", "メモ３"})
    add(name, "TEXT(120)");
  for (const std::string_view name : {"集計区分", "溶接閉鎖型", "合計値変更", "定尺１３ｍ"})
    add(name, "LONG");
  names.indexes.push_back(
      {.name = "PrimaryKey", .primary = true, .unique = true, .fields = {"作成日", "作成時間"}});
  db.Add(names);
}

class DialectStatements : public testing::Test {
 protected:
  DialectStatements() {
    DeclareSite(db_);
    DeclareReferences(db_);
    DeclareArchive(db_);
    db_.Execute(
        "INSERT INTO "
        "加工テーブル(行No,頁,行,階,部位,名称,太さ,形状No,寸法1,寸法2,本数,ヶ所,合計,伸切寸,伸定尺,伸本定,"
        "伸総計,圧接,圧接太さ,ネジ数,定着板数,切断,予備2,予備3,登録名) "
        "VALUES(1,1,1,2,1,'柱主筋',25,138,'3500','120',12,4,48,7000,7.0,1,48,48,0,96,0,0,4,0,1)");
    db_.Execute(
        "INSERT INTO 加工テーブル(行No,頁,行,太さ,形状No,本数,合計,伸切寸,伸定尺,伸総計,予備2,登録名) "
        "VALUES(2,1,2,6,87,100,400,1800,5.5,134,2,1)");
    db_.Execute("INSERT INTO スパイラル(材質,径,全重量) VALUES(2,6,120.5)");
    db_.Execute("INSERT INTO 登録名(登録AN,登録名,表示番号) VALUES(1,'Ａ棟柱',1)");
  }

  /// Runs a statement of any kind; what it does not take it throws.
  void Run(std::string_view jet_sql) {
    SCOPED_TRACE(jet_sql);
    const Translated translated = TranslateJetSql(jet_sql, db_);
    if (const auto* const select = std::get_if<SelectStatement>(&translated)) {
      const std::vector<Row> rows = db_.RowsOfSqlite(select->sql);
      for (const Row& row : rows) EXPECT_EQ(row.size(), select->columns.size());
      EXPECT_EQ(db_.RowsOfSqlite(select->count_sql),
                (std::vector<Row>{{static_cast<std::int64_t>(rows.size())}}));
    } else {
      db_.Execute(jet_sql);
    }
    ++run_;
  }

  template <typename Statements>
  void RunAll(const Statements& statements) {
    for (const std::string_view statement : statements) Run(statement);
  }

  DialectDatabase db_;
  std::size_t run_ = 0;
};

TEST_F(DialectStatements, PrepareTheSchedule) {
  RunAll(kPreparation);
  RunAll(kPreparationOfOldKinds);
  EXPECT_EQ(run_, std::size(kPreparation) + std::size(kPreparationOfOldKinds));
  // Row 1, where only shape 1 is straight: 7000 from stock, whole, bent: 2. Row 2: 1800 cut and bent: 4.
  EXPECT_EQ(db_.Lines("SELECT 予備2,予備3,予備5 FROM 加工テーブル"),
            (std::vector<std::string>{"4|2|3500,120,,,,,,,,,", "2|4|,,,,,,,,,,"}));
}

TEST_F(DialectStatements, LookUpAndRepair) { RunAll(kStatements); }

TEST_F(DialectStatements, SumTheRegisteredNames) {
  db_.Execute("ALTER TABLE 登録名 ADD COLUMN 取付重量合計 Currency;");
  db_.Execute("ALTER TABLE 登録名 ADD COLUMN 定尺重量合計 Currency;");
  RunAll(kNameSummary);
  EXPECT_EQ(db_.Find("WorkTable"), nullptr);
}

TEST_F(DialectStatements, SaveLoadRenameAndDeleteATally) {
  RunAll(kArchive);
  EXPECT_EQ(db_.Find("重量集計"), nullptr);
}

TEST_F(DialectStatements, KeepTheAccumulation) { RunAll(kAccumulation); }

TEST_F(DialectStatements, TallyTheBulkByEveryFormAndKind) {
  for (const std::string_view form : kFormClauses) {
    for (const std::string_view kind : kKindClauses) Run(Join({kBulkHead, form, kind}));
    Run(Join({kPageHead, form}));
    // The names' tally closes its own parenthesis behind the kind.
    for (const std::string_view kind : kKindClauses) Run(Join({kNamesHead, form, kind, ")"}));
  }
  for (const std::string_view anchors : kAnchorClauses) Run(Join({kBulkHead, kKindClauses[0], anchors}));
  for (const std::string_view hoops : kHoopClauses) Run(Join({kPageHead, hoops}));
}

TEST_F(DialectStatements, TallyShapesByEveryKindAndRange) {
  for (const std::string_view kind : kShapeKindClauses) {
    for (const std::string_view range : kShapeRanges) {
      Run(Join({kShapeMainHead, kind, ")", range, kShapeMainTail}));
      Run(Join({kShapeCutHead, kind, ")", range, kShapeCutTail}));
      Run(Join({kShapeCutHead, kind, ")", range, kShapeCutTailOfPart2}));
      Run(Join({kUlbonHead, range, kUlbonTail}));
    }
    Run(Join({kPageShapeMainHead, kind, kShapeMainTail}));
    Run(Join({kPageShapeCutHead, kind, kShapeCutTail}));
    for (const std::string_view anchors : kAnchorClauses) {
      Run(Join({kShapeProbeHead, kind, anchors}));
      Run(Join({kPageShapeMainHead, kind, anchors, kShapeMainTail}));
    }
  }
  for (const std::string_view hoops : kHoopClauses) {
    Run(Join({kPageShapeUlbonHead, hoops, kShapeMainTail}));
    Run(Join({kShapeProbeHead, hoops}));
  }
}

TEST_F(DialectStatements, TallyFloorsAndPartsByEveryRange) {
  for (const std::string_view range : kFloorRanges) {
    for (const std::string_view special : kFloorSpecials) {
      Run(Join({kFloorHead, range, special, kFloorClose, kFormClauses[0], ")", kFloorKindClauses[1]}));
    }
    for (const std::string_view kind : kFloorKindClauses)
      Run(Join({kFloorHead, range, kFloorClose, ")", kind}));
  }
  for (const std::string_view range : kPartRanges) Run(Join({kFloorHead, range, kPartClose}));
  for (const std::string_view range : kPartRangesBeforeSpecials) {
    for (const std::string_view special : kPartSpecials) Run(Join({kFloorHead, range, special, kPartClose}));
  }
}

}  // namespace
}  // namespace rbt::test
