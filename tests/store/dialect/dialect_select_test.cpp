// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "store/dialect/dialect_database.h"

namespace rbt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The value that one expression gives on a row of its own.
std::string Evaluate(std::string_view expression) {
  DialectDatabase db;
  db.DeclareTable("T", "a LONG, b TEXT(20), c CURRENCY, d DOUBLE, e LONG, f BOOLEAN");
  db.Execute("INSERT INTO T(a,b,c,d,f) VALUES(7,'Ab',1200,0.1,True)");
  const std::vector<std::string> lines = db.Lines("SELECT " + std::string(expression) + " FROM T");
  return lines.at(0);
}

TEST(DialectExpression, ANullAddsAnEmptyTextToAConcatenation) {
  EXPECT_EQ(Evaluate("b & \",\" & e & \",\""), "Ab,,");
  EXPECT_EQ(Evaluate("e & e"), "");
}

TEST(DialectExpression, AConcatenatedNumberHasItsShortestDecimalForm) {
  EXPECT_EQ(Evaluate("c & \"kg\""), "1200kg");
  EXPECT_EQ(Evaluate("d & \"\""), "0.1");
  EXPECT_EQ(Evaluate("d + 1100 & \"\""), "1100.1");
  EXPECT_EQ(Evaluate("c / 7 & \"\""), "171.428571428571");  // 15 significant digits
  EXPECT_EQ(Evaluate("a & f"), "7-1");
}

TEST(DialectExpression, TheConcatenationBindsLooserThanTheSum) {
  EXPECT_EQ(Evaluate("a & a + 1 & a"), "787");
}

TEST(DialectExpression, TheSlashDividesAsARealNumber) {
  EXPECT_EQ(Evaluate("a / 2"), "3.5");
  EXPECT_EQ(Evaluate("c / 1000"), "1.2");
}

TEST(DialectExpression, ANullOperandGivesNull) {
  EXPECT_EQ(Evaluate("a / e"), "null");
  EXPECT_EQ(Evaluate("e / 0"), "null");
  EXPECT_EQ(Evaluate("a + e"), "null");
  EXPECT_EQ(Evaluate("Fix(e)"), "null");
  EXPECT_EQ(Evaluate("e mod 2"), "null");
}

TEST(DialectExpression, TheBackslashAndModRoundTheirOperandsHalvesToEven) {
  EXPECT_EQ(Evaluate("a \\ 2"), "3");
  EXPECT_EQ(Evaluate("-a \\ 2"), "-3");
  EXPECT_EQ(Evaluate("a mod 4"), "3");
  EXPECT_EQ(Evaluate("-a mod 4"), "-3");
  EXPECT_EQ(Evaluate("7.5 \\ 2.5"), "4");  // 8 \ 2
}

TEST(DialectExpression, OperatorsBindFromTheSignToTheConcatenation) {
  EXPECT_EQ(Evaluate("2 + 3 * 4 - 1"), "13");
  EXPECT_EQ(Evaluate("10 - 4 - 3"), "3");
  EXPECT_EQ(Evaluate("7 \\ 2 * 2"), "1");    // 7 \ 4
  EXPECT_EQ(Evaluate("9 mod 5 \\ 2"), "1");  // 9 mod 2
  EXPECT_EQ(Evaluate("1 + 9 mod 5"), "5");   // 1 + 4
  EXPECT_EQ(Evaluate("-(2 - 5) * - -2"), "6");
}

TEST(DialectExpression, FixCutsTowardsZeroAndIntGoesDown) {
  EXPECT_EQ(Evaluate("Fix(-1.6 + 0.5)"), "-1");
  EXPECT_EQ(Evaluate("fix(2.5 + 0.5)"), "3");
  EXPECT_EQ(Evaluate("Int(-0.5)"), "-1");
  EXPECT_EQ(Evaluate("Int(a)"), "7");
}

TEST(DialectExpression, ValReadsTheNumberAtTheStartOfAText) {
  EXPECT_EQ(Evaluate("Val('12mm')"), "12");
  EXPECT_EQ(Evaluate("Val(b)"), "0");
  EXPECT_THAT([] { Evaluate("Val(e)"); },
              testing::ThrowsMessage<std::runtime_error>(testing::StartsWith("invalid use of null")));
}

TEST(DialectExpression, ADivisionByZeroEndsTheStatement) {
  EXPECT_THAT([] { Evaluate("a / 0"); },
              testing::ThrowsMessage<std::runtime_error>(testing::StartsWith("division by zero")));
  EXPECT_THAT([] { Evaluate("a \\ 0.4"); },
              testing::ThrowsMessage<std::runtime_error>(testing::StartsWith("division by zero")));
}

TEST(DialectExpression, AConditionsValueIsMinusOneOrZero) {
  EXPECT_EQ(Evaluate("a = 7"), "-1");
  EXPECT_EQ(Evaluate("a <> 7"), "0");
  EXPECT_EQ(Evaluate("e = 7"), "null");
  EXPECT_EQ(Evaluate("f"), "-1");
  EXPECT_EQ(Evaluate("f = True"), "-1");
}

TEST(DialectExpression, ProductsOfWholeNumbersAreExactBeyond32Bits) {
  EXPECT_EQ(Evaluate("12000 * 1000000"), "12000000000");
}

TEST(DialectExpression, ADecimalIsTheNearestDouble) {
  // Decimals whose nearest double a long-double quotient may miss.
  for (const std::string_view digits : {"0.235", "15.9", "7.2057594037927935", "1E-3", ".5", "12."}) {
    DialectDatabase db;
    db.DeclareTable("T", "a DOUBLE");
    db.Execute("INSERT INTO T(a) VALUES(0)");
    const Row row = db.Rows("SELECT " + std::string(digits) + " FROM T").at(0);
    EXPECT_EQ(std::get<double>(row.at(0)), std::strtod(std::string(digits).c_str(), nullptr)) << digits;
  }
}

class DialectSelect : public testing::Test {
 protected:
  DialectSelect() {
    db_.DeclareTable(
        "加工テーブル",
        "行No LONG, 形状No LONG, 予備2 LONG, 太さ SHORT, 伸定尺 DOUBLE, 名称 TEXT(50), ＳＤ TEXT(20)");
    Add(1, "1", "NULL", "10", "'縦ｽﾘｯﾄ筋　'");
    Add(2, "87", "2", "6", "'hoop'");
    Add(3, "NULL", "5", "13", "'HOOP'");
    Add(4, "138", "4", "10", "NULL");
    Add(5, "1", "2", "13", "'Ab'");
  }

  void Add(int line, std::string_view shape, std::string_view kind, std::string_view diameter,
           std::string_view name) {
    db_.Execute("INSERT INTO 加工テーブル(行No,形状No,予備2,太さ,名称) VALUES(" + std::to_string(line) + "," +
                std::string(shape) + "," + std::string(kind) + "," + std::string(diameter) + "," +
                std::string(name) + ")");
  }

  std::vector<std::string> Lines(std::string_view where) {
    return db_.Lines("SELECT 行No FROM 加工テーブル WHERE " + std::string(where));
  }

  DialectDatabase db_;
};

TEST_F(DialectSelect, ComparisonWithNullHoldsForNoRow) {
  EXPECT_THAT(Lines("予備2<>2"), ElementsAre("3", "4"));
  EXPECT_THAT(Lines("NOT 予備2=2"), ElementsAre("3", "4"));
  EXPECT_THAT(Lines("予備2 NOT IN(2,4)"), ElementsAre("3"));
  EXPECT_THAT(Lines("形状No Not Between 1 And 87"), ElementsAre("4"));
  EXPECT_THAT(Lines("予備2=Null"), IsEmpty());
}

TEST_F(DialectSelect, IsNullAndItsSpellingsAgree) {
  EXPECT_THAT(Lines("IsNull(予備2)"), ElementsAre("1"));
  EXPECT_THAT(Lines("予備2 is null "), ElementsAre("1"));
  EXPECT_THAT(Lines("Not IsNull(形状No)"), ElementsAre("1", "2", "4", "5"));
  EXPECT_THAT(Lines("not isnull(形状No) AND 形状No is not NULL"), ElementsAre("1", "2", "4", "5"));
}

TEST_F(DialectSelect, AndBindsTighterThanOrSoThatAnEarlyClosedClauseLetsItsRowsOut) {
  EXPECT_THAT(Lines("太さ is not NULL AND 行No Between 3 AND 4 AND (予備2=5) or 予備2=2"),
              ElementsAre("2", "3", "5"));
  EXPECT_THAT(Lines("行No=1 OR 行No=2 AND 予備2=5"), ElementsAre("1"));
}

TEST_F(DialectSelect, NotInvertsTheWholeComparisonBehindIt) {
  EXPECT_THAT(Lines("Not 行No > 2 AND Not 行No = 1"), ElementsAre("2"));
}

TEST_F(DialectSelect, ANumberMayRunIntoTheWordBehindIt) {
  EXPECT_THAT(Lines("予備2=4or 予備2=5"), ElementsAre("3", "4"));
  EXPECT_THAT(Lines("行No Between 1AND 2"), ElementsAre("1", "2"));
  EXPECT_THAT(Lines("形状No IN(1)AND 予備2=2"), ElementsAre("5"));
}

TEST_F(DialectSelect, BetweenWithCrossedEndsFindsNothing) {
  EXPECT_THAT(Lines("行No Between 4 And 2"), IsEmpty());
}

TEST_F(DialectSelect, NamesIgnoreLetterCaseAndWidth) {
  const auto statement = std::get<SelectStatement>(
      TranslateJetSql("select 形状NO, SD, [ｓｄ], 加工テーブル.行ｎｏ from 加工テーブル", db_));
  ASSERT_EQ(statement.columns.size(), 4U);
  EXPECT_EQ(statement.columns[0].name, "形状No");
  EXPECT_EQ(statement.columns[1].name, "ＳＤ");
  EXPECT_EQ(statement.columns[2].name, "Expr1002");
  EXPECT_EQ(statement.columns[3].name, "行No");
  EXPECT_EQ(statement.tables, std::vector<std::string>{"加工テーブル"});
}

TEST_F(DialectSelect, TextComparesWithoutRegardToLetterCaseButToWidth) {
  EXPECT_THAT(Lines("名称='Hoop'"), ElementsAre("2", "3"));
  EXPECT_THAT(Lines("名称 IN(\"HOOP\",'ab')"), ElementsAre("2", "3", "5"));
  EXPECT_THAT(Lines("名称 Between 'HOO' And 'hoopz'"), ElementsAre("2", "3"));
  EXPECT_THAT(Lines("名称='縦ｽﾘｯﾄ筋　'"), ElementsAre("1"));
  EXPECT_THAT(Lines("名称='縦ｽﾘｯﾄ筋'"), IsEmpty());
  EXPECT_THAT(Lines("名称='Ａｂ'"), IsEmpty());
}

TEST_F(DialectSelect, DoubledQuotesInsideATextStandForOne) {
  db_.Execute("INSERT INTO 加工テーブル(行No,名称) VALUES(6,'5\"6''7')");
  EXPECT_THAT(Lines("名称=\"5\"\"6'7\""), ElementsAre("6"));
}

TEST_F(DialectSelect, RowsComeInTableOrderWhateverAnIndexWouldGive) {
  db_.ExecuteSqlite("CREATE INDEX i ON 加工テーブル (形状No)");
  EXPECT_THAT(Lines("形状No > 0"), ElementsAre("1", "2", "4", "5"));
}

TEST_F(DialectSelect, OrderByKeepsTableOrderAmongEquals) {
  EXPECT_THAT(db_.Lines("SELECT 行No FROM 加工テーブル ORDER BY 太さ DESC"),
              ElementsAre("3", "5", "1", "4", "2"));
  EXPECT_THAT(db_.Lines("SELECT 行No FROM 加工テーブル ORDER BY 名称 asc, 行No DESC"),
              ElementsAre("4", "5", "3", "2", "1"));
}

TEST_F(DialectSelect, AnAliasOfTheNameOfAnotherFieldDoesNotCatchTheOrder) {
  EXPECT_THAT(db_.Lines("SELECT -行No AS 太さ FROM 加工テーブル ORDER BY 太さ"),
              ElementsAre("-2", "-1", "-4", "-3", "-5"));
}

TEST_F(DialectSelect, GroupsComeAscendingByTheColumnsAsListedNullsFirst) {
  const std::string_view sql = "SELECT 予備2,太さ,Count(*) FROM 加工テーブル GROUP BY 太さ,予備2";
  EXPECT_THAT(db_.Lines(sql), ElementsAre("2|6|1", "null|10|1", "4|10|1", "2|13|1", "5|13|1"));
  EXPECT_THAT(db_.Lines(std::string(sql) + " ORDER BY 予備2 DESC"),
              ElementsAre("5|13|1", "4|10|1", "2|6|1", "2|13|1", "null|10|1"));
  const auto statement = std::get<SelectStatement>(TranslateJetSql(sql, db_));
  EXPECT_TRUE(statement.grouped);
  EXPECT_EQ(statement.columns[2].name, "Expr1002");
  EXPECT_EQ(statement.columns[2].field, std::nullopt);
  EXPECT_EQ(statement.columns[1].field->type, FieldType::integer16);
  EXPECT_EQ(db_.RowsOfSqlite(statement.count_sql), (std::vector<Row>{{5L}}));
}

TEST_F(DialectSelect, TextGroupsWithoutRegardToLetterCaseAndShowsItsFirstRow) {
  EXPECT_THAT(db_.Lines("SELECT 名称,Count(名称) FROM 加工テーブル GROUP BY 名称"),
              ElementsAre("null|0", "Ab|1", "hoop|2", "縦ｽﾘｯﾄ筋　|1"));
}

TEST_F(DialectSelect, AggregatesOverNoRowGiveOneRowOfNull) {
  EXPECT_THAT(
      db_.Lines("SELECT Min(形状No), Max(形状No), Sum(形状No), Count(*) FROM 加工テーブル WHERE 行No > 99"),
      ElementsAre("null|null|null|0"));
  EXPECT_THAT(db_.Lines("SELECT Sum(伸定尺) FROM 加工テーブル"), ElementsAre("null"));
}

TEST_F(DialectSelect, FieldsNarrowAStarToThoseThatTheTableHas) {
  const std::string_view wanted[] = {"太さ", "ネジ数", "形状ＮＯ"};
  const auto statement =
      std::get<SelectStatement>(TranslateJetSql("SELECT * FROM 加工テーブル", db_, {.fields = wanted}));
  ASSERT_EQ(statement.columns.size(), 2U);
  EXPECT_EQ(statement.columns[0].name, "形状No");
  EXPECT_EQ(statement.columns[1].name, "太さ");
  EXPECT_EQ(db_.RowsOfSqlite(statement.sql).size(), 5U);
  const std::string_view none[] = {"ネジ数"};
  const auto empty =
      std::get<SelectStatement>(TranslateJetSql("SELECT * FROM 加工テーブル", db_, {.fields = none}));
  EXPECT_THAT(empty.columns, IsEmpty());
  EXPECT_EQ(db_.RowsOfSqlite(empty.sql).size(), 5U);
}

TEST_F(DialectSelect, TheRowNumberStandsLastWhenItIsAskedFor) {
  const std::vector<Row> rows = db_.Rows("SELECT 行No FROM 加工テーブル WHERE 予備2=2", {.with_rowid = true});
  EXPECT_EQ(rows, (std::vector<Row>{{2L, 2L}, {5L, 5L}}));
}

TEST(DialectSum, AWholeSumIsAWholeNumber) {
  DialectDatabase db;
  db.DeclareTable("T", "a LONG");
  for (int i = 0; i < 3; ++i) db.Execute("INSERT INTO T(a) VALUES(2147483647)");
  EXPECT_EQ(db.Rows("SELECT sum(a) FROM T"), (std::vector<Row>{{3L * 2147483647L}}));
}

TEST(DialectSum, ATextThatIsNoNumberEndsTheStatement) {
  DialectDatabase db;
  db.DeclareTable("T", "a LONG, b DOUBLE, c CURRENCY, d LONG");
  db.Execute("INSERT INTO T(a,b,c,d) VALUES(1,1,1,2)");
  db.ExecuteSqlite("INSERT INTO T VALUES ('壁', '壁', '壁', 1)");
  for (const auto& [sum, field] :
       {std::pair("sum(a)", "a"), std::pair("sum(b)", "b"), std::pair("sum(c)", "c"),
        std::pair("sum(a*d)", "a"), std::pair("sum(d+b)", "b")}) {
    try {
      db.Rows("SELECT " + std::string(sum) + " FROM T");
      ADD_FAILURE() << sum;
    } catch (const std::exception& fault) {
      EXPECT_THAT(fault.what(), testing::HasSubstr("type mismatch: T." + std::string(field)));
    }
  }
  EXPECT_EQ(db.Rows("SELECT count(a), sum(d) FROM T"), (std::vector<Row>{{2L, 3L}}));
}

TEST(DialectSum, ACurrencySumIsExactInItsFourPlaces) {
  DialectDatabase db;
  db.DeclareTable("T", "a CURRENCY, g LONG");
  // Ten times 0.1 added as doubles is 0.9999999999999999.
  for (int i = 0; i < 10; ++i) db.Execute("INSERT INTO T(a,g) VALUES(0.1,1)");
  db.Execute("INSERT INTO T(a,g) VALUES(NULL,2)");
  EXPECT_EQ(db.Rows("SELECT g,Sum(a) FROM T GROUP BY g"),
            (std::vector<Row>{{1L, 1.0}, {2L, std::monostate{}}}));
  EXPECT_EQ(db.Rows("SELECT fix(Sum(a)+0.5) FROM T"), (std::vector<Row>{{1.0}}));
}

TEST(DialectSum, ASumOfDoublesAddsInTableOrderAlsoBesideAnIndex) {
  DialectDatabase db;
  db.DeclareTable("T", "a DOUBLE, g LONG, k LONG");
  db.ExecuteSqlite("CREATE INDEX i ON T (g, k DESC)");
  const double values[] = {1e16, 1.0, -1e16, 1.0};
  double expected = 0;
  for (int i = 0; i < 4; ++i) {
    db.ExecuteSqlite("INSERT INTO T VALUES (" + std::to_string(values[i]) + ", 1, " + std::to_string(i) +
                     ")");
    expected += values[i];
  }
  // 1e16 takes up the first 1, so the order shows: 1 here, 0 or 2 in others.
  EXPECT_EQ(db.Rows("SELECT g,Sum(a) FROM T GROUP BY g"), (std::vector<Row>{{1L, expected}}));
  EXPECT_EQ(expected, 1.0);
}

}  // namespace
}  // namespace rbt::test
