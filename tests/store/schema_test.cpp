// SPDX-License-Identifier: MIT
#include "store/schema/schema.h"

#include <gtest/gtest.h>

namespace rbt {
namespace {

TEST(DeclaredType, OfAFileReadsBackAsItself) {
  for (const std::string_view declared :
       {"BOOLEAN", "BYTE", "SHORT", "LONG", "SINGLE", "DOUBLE", "CURRENCY", "DATETIME", "DECIMAL_TEXT(18,4)",
        "TEXT(50)", "MEMO_TEXT", "GUID_TEXT", "BINARY_BLOB(16)", "OLE_BLOB", "COUNTER_LONG"}) {
    const std::optional<FieldDef> field = FieldOfDeclaredType(declared);
    ASSERT_TRUE(field) << declared;
    EXPECT_EQ(DeclaredType(*field), declared);
  }
}

TEST(DeclaredType, OfAStatementMapsToThatOfAFile) {
  const std::pair<std::string_view, std::string_view> words[] = {{"long", "LONG"},
                                                                 {"Integer", "LONG"},
                                                                 {"Currency", "CURRENCY"},
                                                                 {"Double", "DOUBLE"},
                                                                 {"TEXT", "TEXT(255)"},
                                                                 {"text ( 50 )", "TEXT(50)"},
                                                                 {"varchar(7)", "TEXT(7)"},
                                                                 {"memo", "MEMO_TEXT"},
                                                                 {"YesNo", "BOOLEAN"},
                                                                 {"date", "DATETIME"},
                                                                 {"AUTOINCREMENT", "COUNTER_LONG"},
                                                                 {"decimal(9,2)", "DECIMAL_TEXT(9,2)"}};
  for (const auto& [word, declared] : words) {
    const std::optional<FieldDef> field = FieldOfDeclaredType(word);
    ASSERT_TRUE(field) << word;
    EXPECT_EQ(DeclaredType(*field), declared) << word;
  }
}

TEST(DeclaredType, AnAutonumberIsOne) {
  EXPECT_TRUE(FieldOfDeclaredType("COUNTER_LONG")->autonumber);
  EXPECT_TRUE(FieldOfDeclaredType("autoincrement")->autonumber);
  EXPECT_FALSE(FieldOfDeclaredType("LONG")->autonumber);
}

TEST(DeclaredType, UnknownOrImpossibleOnesGiveNothing) {
  for (const std::string_view declared :
       {"", "WORD", "LONG(4)", "TEXT(0)", "TEXT(256)", "TEXT(5", "TEXT(a)", "TEXT()", "TEXT(5,2)", "TEXT(-1)",
        "DECIMAL(2,3)", "TEXT(99999999999)"}) {
    EXPECT_EQ(FieldOfDeclaredType(declared), std::nullopt) << declared;
  }
}

TEST(TableDef, FindsAFieldWithoutRegardToLetterCaseAndWidth) {
  TableDef table;
  table.fields.push_back({.name = "形状No"});
  table.fields.push_back({.name = "ＳＤ"});
  EXPECT_EQ(table.FindField("形状ｎｏ"), table.fields.data());
  EXPECT_EQ(table.FindField("sd"), &table.fields[1]);
  EXPECT_EQ(table.FindField("形状"), nullptr);
}

TEST(WholeRangeOf, IsWhatTheTypesHold) {
  EXPECT_EQ(WholeRangeOf(FieldType::boolean)->low, -1);
  EXPECT_EQ(WholeRangeOf(FieldType::byte)->high, 255);
  EXPECT_EQ(WholeRangeOf(FieldType::integer16)->low, -32768);
  EXPECT_EQ(WholeRangeOf(FieldType::integer32)->high, 2147483647);
  EXPECT_FALSE(WholeRangeOf(FieldType::real));
  EXPECT_FALSE(WholeRangeOf(FieldType::currency)) << "of ten-thousandths";
}

TEST(TableDef, NamesItsFieldsInTheirOrder) {
  TableDef table{"T", {*FieldOfDeclaredType("LONG"), *FieldOfDeclaredType("TEXT")}, {}};
  table.fields[0].name = "頁";
  table.fields[1].name = "名称";
  EXPECT_EQ(table.FieldNames(), (std::vector<std::string>{"頁", "名称"}));
}

}  // namespace
}  // namespace rbt
