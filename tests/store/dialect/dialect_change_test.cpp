// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "store/dialect/dialect_database.h"

namespace rbt::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;
using testing::ThrowsMessage;

class DialectChange : public testing::Test {
 protected:
  DialectChange() {
    db_.DeclareTable("T",
                     "s SHORT, n LONG, y BYTE, c CURRENCY, d DOUBLE, t TEXT(3), m MEMO, b BOOLEAN, f SINGLE, "
                     "w TEXT(20), z DATETIME");
    db_.Execute("INSERT INTO T(n) VALUES(1)");
  }

  /// The field's value after `SET field = value`.
  std::string Set(const std::string& field, const std::string& value) {
    db_.Execute("UPDATE T SET " + field + " = " + value);
    return db_.Lines("SELECT " + field + " FROM T").at(0);
  }

  auto Setting(const std::string& field, const std::string& value) {
    return [this, field, value] { Set(field, value); };
  }

  DialectDatabase db_;
};

TEST_F(DialectChange, WholeFieldsRoundHalvesToEven) {
  EXPECT_EQ(Set("n", "2.5"), "2");
  EXPECT_EQ(Set("n", "3.5"), "4");
  EXPECT_EQ(Set("s", "-0.5"), "0");
  EXPECT_EQ(Set("y", "n / 8"), "0");
}

TEST_F(DialectChange, AValueOutsideTheFieldsRangeOverflows) {
  EXPECT_EQ(Set("n", "2147483647"), "2147483647");
  EXPECT_EQ(Set("n", "-2147483648"), "-2147483648");
  EXPECT_THAT(Setting("n", "2147483648"),
              ThrowsMessage<std::runtime_error>(StartsWith("overflow: n = 2147483648")));
  EXPECT_THAT(Setting("s", "32768"), ThrowsMessage<std::runtime_error>(StartsWith("overflow")));
  EXPECT_THAT(Setting("y", "-1"), ThrowsMessage<std::runtime_error>(StartsWith("overflow")));
  EXPECT_THAT(Setting("s", "n"), ThrowsMessage<std::runtime_error>(StartsWith("overflow")));
  EXPECT_THAT(Setting("f", "1E39"), ThrowsMessage<std::runtime_error>(StartsWith("overflow")));
  EXPECT_THAT(Setting("d", "1E200 * 1E200"), ThrowsMessage<std::runtime_error>(StartsWith("overflow")));
}

TEST_F(DialectChange, CurrencyRoundsToFourPlacesHalvesToEven) {
  // Multiples of 1/32 that are halves of a ten-thousandth in the double, too.
  EXPECT_EQ(Set("c", "0.03125"), "0.0312");
  EXPECT_EQ(Set("c", "0.09375"), "0.0938");
  EXPECT_EQ(Set("c", "-0.03125"), "-0.0312");
  EXPECT_EQ(Set("c", "12"), "12");
  EXPECT_EQ(Set("c", "n / 3"), "0.3333");
}

TEST_F(DialectChange, CurrencyEndsAtNineHundredThousandMillion) {
  EXPECT_EQ(Set("c", "900000000000"), "900000000000");
  EXPECT_EQ(Set("c", "-900000000000"), "-900000000000");
  EXPECT_THAT(Setting("c", "900000000000.0001"),
              ThrowsMessage<std::runtime_error>(StartsWith("overflow: c = ")));
  EXPECT_THAT(Setting("c", "900000000001"), ThrowsMessage<std::runtime_error>(StartsWith("overflow")));
  EXPECT_THAT(Setting("c", "1E30"), ThrowsMessage<std::runtime_error>(StartsWith("overflow")));
}

TEST_F(DialectChange, NullPassesEveryConversion) {
  for (const std::string field : {"s", "n", "y", "c", "d", "t", "m", "b", "f"}) {
    Set(field, field == "t" || field == "m" ? "'1'" : "0");
    EXPECT_EQ(Set(field, "Null"), "null") << field;
  }
  EXPECT_EQ(Set("s", "c * 2"), "null");
}

TEST_F(DialectChange, ATextLongerThanItsFieldIsRefused) {
  EXPECT_EQ(Set("t", "'部位１'"), "部位１");
  EXPECT_EQ(Set("w", "'部位１１'"), "部位１１");
  EXPECT_THAT(Setting("t", "'部位１１'"),
              ThrowsMessage<std::runtime_error>(StartsWith("the field t is too small")));
  EXPECT_THAT(Setting("t", "w"), ThrowsMessage<std::runtime_error>(StartsWith("the field t is too small")));
  EXPECT_THAT(Setting("t", "12 & 34"),
              ThrowsMessage<std::runtime_error>(StartsWith("the field t is too small")));
}

TEST_F(DialectChange, ANumberGoesIntoATextInItsShortestForm) {
  EXPECT_EQ(Set("t", "1.5"), "1.5");
  EXPECT_EQ(Set("m", "120 * 10"), "1200");
}

TEST_F(DialectChange, ATextGoesIntoANumberFieldOnlyWhenItIsANumber) {
  EXPECT_EQ(Set("n", "'1,200'"), "1200");
  EXPECT_EQ(Set("d", "'0.5'"), "0.5");
  EXPECT_THAT(Setting("n", "'12mm'"), ThrowsMessage<std::runtime_error>(StartsWith("type mismatch")));
  EXPECT_THAT(Setting("c", "''"), ThrowsMessage<std::runtime_error>(StartsWith("type mismatch")));
}

TEST_F(DialectChange, ABooleanHoldsMinusOneForAnythingButZero) {
  EXPECT_EQ(Set("b", "True"), "-1");
  EXPECT_EQ(Set("b", "n = 2"), "0");
  EXPECT_EQ(Set("b", "5"), "-1");
}

TEST_F(DialectChange, ASingleKeepsItsTwentyFourBits) { EXPECT_EQ(Set("f", "0.1"), "0.10000000149011612"); }

TEST_F(DialectChange, AWholeNumberInADoubleFieldIsADouble) {
  db_.Execute("UPDATE T SET d = n");
  EXPECT_EQ(db_.Rows("SELECT d FROM T"), (std::vector<Row>{{1.0}}));
}

TEST_F(DialectChange, ValuesOnTheRightAreThoseBeforeTheUpdate) {
  db_.Execute("UPDATE T SET n = 2, s = n");
  EXPECT_THAT(db_.Lines("SELECT n,s FROM T"), ElementsAre("2|1"));
}

TEST_F(DialectChange, RowsWhoseValuesStayAreNotWritten) {
  db_.Execute("INSERT INTO T(n,c) VALUES(2,1.5)");
  EXPECT_EQ(db_.Execute("UPDATE T SET c = 1.5"), 1);
  EXPECT_EQ(db_.Execute("UPDATE T SET c = 1.5"), 0);
  EXPECT_EQ(db_.Execute("UPDATE T SET c = 1.50004, s = NULL"), 0);
  EXPECT_EQ(db_.Execute("UPDATE T SET c = NULL WHERE n = 1 or n = 3"), 1);
  EXPECT_EQ(db_.Execute("UPDATE T SET t = 'a'"), 2);
  EXPECT_EQ(db_.Execute("UPDATE T SET t = 'A'"), 2);  // another text, though it compares equal
}

TEST_F(DialectChange, TheGuardDoesNotLetRowsInThatTheConditionKeepsOut) {
  db_.Execute("INSERT INTO T(n) VALUES(2)");
  EXPECT_EQ(db_.Execute("UPDATE T SET s = 1, y = 1 WHERE n = 1 OR n = 7"), 1);
  EXPECT_THAT(db_.Lines("SELECT n FROM T WHERE s = 1"), ElementsAre("1"));
}

TEST_F(DialectChange, AValueIsWorkedOutOnlyForTheRowsThatTheStatementMeans) {
  db_.Execute("INSERT INTO T(n) VALUES(0)");
  EXPECT_EQ(db_.Execute("UPDATE T SET d = 1 / n WHERE n <> 0"), 1);
  EXPECT_THAT(Setting("d", "1 / n"), ThrowsMessage<std::runtime_error>(StartsWith("division by zero")));
}

TEST_F(DialectChange, AWholeFieldTakesAProductOnlyWithinItsRange) {
  Set("n", "2000000000");
  EXPECT_EQ(Set("c", "n * 100"), "200000000000");
  EXPECT_THAT(Setting("n", "n * 2"), ThrowsMessage<std::runtime_error>(StartsWith("overflow")));
}

TEST_F(DialectChange, InsertFromASelectConvertsAndKeepsItsOrder) {
  db_.DeclareTable("U", "id AUTOINCREMENT, total CURRENCY, name TEXT(5)");
  db_.Execute("INSERT INTO T(n,d,w) VALUES(2,0.03125,'b')");
  db_.Execute("INSERT INTO T(n,d,w) VALUES(2,0.5,'b')");
  db_.Execute("INSERT into U(total,name) SELECT sum(d),w from T group by w");
  EXPECT_THAT(db_.Lines("SELECT total,name FROM U"), ElementsAre("null|null", "0.5312|b"));
  EXPECT_THAT([this] { db_.Execute("INSERT INTO U(name) SELECT 'abcdef' FROM T"); },
              ThrowsMessage<std::runtime_error>(StartsWith("the field name is too small")));
}

TEST_F(DialectChange, DeleteTakesTheWholeRowWhateverItNames) {
  for (int i = 2; i <= 4; ++i) db_.Execute("INSERT INTO T(n) VALUES(" + std::to_string(i) + ")");
  EXPECT_EQ(db_.Execute("DELETE s FROM T WHERE n =2"), 1);
  EXPECT_EQ(db_.Execute("DELETE * FROM T WHERE n=3"), 1);
  EXPECT_EQ(db_.Execute("DELETE FROM T WHERE n=4;"), 1);
  EXPECT_EQ(db_.Execute("DELETE * FROM T WHERE s=1"), 0);
  EXPECT_EQ(db_.Execute("DELETE * FROM T"), 1);
}

TEST_F(DialectChange, ARequiredFieldRefusesNull) {
  TableDef table{.name = "R", .fields = {*FieldOfDeclaredType("LONG")}, .indexes = {}};
  table.fields[0].name = "k";
  table.fields[0].required = true;
  db_.Add(table);
  EXPECT_ANY_THROW(db_.Execute("INSERT INTO R(k) VALUES(NULL)"));
}

}  // namespace
}  // namespace rbt::test
