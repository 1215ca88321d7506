// SPDX-License-Identifier: MIT
#include "data/table_layouts.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace rbt {
namespace {

using Keys = std::map<std::string, std::vector<std::string>>;

TEST(TableLayouts, archive_tables_carry_their_named_keys) {
  const Keys expected = {
      {"重量集計名称", {"作成日", "作成時間"}},
      {"重量集計", {"太さ", "ＳＤ", "メーカー", "階", "部位", "材質", "作成日", "作成時間"}},
      {"階部位重量集計", {"階", "部位", "太さ", "ＳＤ", "メーカー", "材質", "作成日", "作成時間"}},
      {"階別重量集計", {"階", "太さ", "SD", "メーカー", "材質", "作成日", "作成時間"}},
      {"部位別重量集計", {"太さ", "SD", "メーカー", "材質", "作成日", "作成時間"}},
      {"部位別本重集計", {"部位", "太さ", "SD", "メーカー", "材質", "作成日", "作成時間"}},
  };
  Keys keys;
  for (const TableDef& table : ArchiveTables()) {
    ASSERT_EQ(table.indexes.size(), 1U) << table.name;
    EXPECT_TRUE(table.indexes[0].primary);
    EXPECT_EQ(table.indexes[0].name, table.name + "_pkey");
    keys[table.name] = table.indexes[0].fields;
  }
  EXPECT_EQ(keys, expected);
}

TEST(TableLayouts, key_columns_of_the_archive_refuse_null_and_have_a_default) {
  for (const TableDef& table : ArchiveTables()) {
    for (const std::string& name : table.indexes[0].fields) {
      const auto field = std::find_if(table.fields.begin(), table.fields.end(),
                                      [&](const FieldDef& candidate) { return candidate.name == name; });
      ASSERT_NE(field, table.fields.end()) << table.name << "." << name;
      EXPECT_TRUE(field->required);
      EXPECT_EQ(field->default_value, field->type == FieldType::text ? "''" : "0");
    }
  }
}

TEST(TableLayouts, archive_tables_have_a_column_for_each_stock_length) {
  for (const TableDef& table : ArchiveTables()) {
    std::set<std::string> names;
    for (const FieldDef& field : table.fields) names.insert(field.name);
    EXPECT_EQ(names.size(), table.fields.size()) << table.name;
    if (table.name != "重量集計" && table.name != "階部位重量集計" && table.name != "部位別本重集計")
      continue;
    for (const char* column : {"3500mm", "12000mm", "13000mm", "3500mm重量", "12000mm重量", "13000mm重量"}) {
      EXPECT_TRUE(names.contains(column)) << table.name << "." << column;
    }
    EXPECT_FALSE(names.contains("12500mm"));
  }
}

TEST(TableLayouts, schedule_columns_stand_as_the_entry_programs_make_them) {
  const TableDef schedule = ScheduleFileTables().front();
  std::vector<std::string> columns;
  for (const FieldDef& field : schedule.fields) columns.push_back(field.name + " " + DeclaredType(field));
  const std::vector<std::string> expected = {
      "行No LONG",      "頁 LONG",        "行 LONG",         "階 LONG",        "部位 LONG",
      "名称 TEXT(50)",  "太さ SHORT",     "形状No LONG",     "寸法1 TEXT(20)", "寸法2 TEXT(20)",
      "寸法3 TEXT(20)", "寸法4 TEXT(20)", "寸法5 TEXT(20)",  "寸法6 TEXT(20)", "寸法7 TEXT(20)",
      "寸法8 TEXT(20)", "寸法9 TEXT(20)", "寸法10 TEXT(20)", "本数 LONG",      "ヶ所 LONG",
      "合計 LONG",      "伸切寸 LONG",    "伸定尺 DOUBLE",   "伸本定 LONG",    "伸総計 LONG",
      "圧接 LONG",      "圧接太さ LONG",  "ネジ数 LONG",     "定着板数 LONG",  "切断 LONG",
      "予備2 LONG",     "予備3 LONG",     "予備5 TEXT(255)", "登録名 LONG"};
  EXPECT_EQ(columns, expected);
}

TEST(TableLayouts, maker_names_follow_the_grades_of_the_twelve_diameters) {
  const TableDef sites = MasterFileTables().front();
  ASSERT_EQ(sites.fields.size(), 8U + 12U + 12U);
  EXPECT_EQ(sites.fields[8].name, "SD10");
  EXPECT_EQ(sites.fields[19].name, "SD51");
  EXPECT_EQ(sites.fields[20].name, "MK10");
  EXPECT_EQ(sites.fields[31].name, "MK51");
}

}  // namespace
}  // namespace rbt
