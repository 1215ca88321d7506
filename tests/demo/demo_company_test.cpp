// SPDX-License-Identifier: MIT
#include "demo/demo_company.h"

#include <set>
#include <string>
#include <tuple>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "demo/schedule_generator.h"
#include "platform/text/characters.h"
#include "platform/text/cp932.h"

namespace rbt::demo {
namespace {

TEST(DemoCompany, sites_take_the_three_forms_of_project_names_in_turn) {
  const Site plain = DemoSite(1);
  EXPECT_FALSE(plain.long_name.has_value());
  EXPECT_FALSE(plain.break_width.has_value());
  const Site broken = DemoSite(2);
  ASSERT_TRUE(broken.long_name.has_value());
  EXPECT_EQ(broken.break_width, 20);
  EXPECT_GT(CharacterCount(*broken.long_name), 20U);
  const Site unbroken = DemoSite(3);
  EXPECT_TRUE(unbroken.long_name.has_value());
  EXPECT_FALSE(unbroken.break_width.has_value());
}

TEST(DemoCompany, every_site_has_its_own_name_that_fits_its_column) {
  std::set<std::string> names;
  for (std::int32_t number = 1; number <= 999; ++number) {
    const Site site = DemoSite(number);
    EXPECT_TRUE(names.insert(site.name).second) << site.name;
    EXPECT_LE(CharacterCount(site.name), 60U);
    EXPECT_LE(CharacterCount(site.long_name.value_or("")), 120U);
    // Encodes, or throws.
    EXPECT_FALSE(ToCp932(site.name + site.long_name.value_or("")).empty());
  }
}

TEST(DemoCompany, files_of_a_site_carry_its_number) {
  EXPECT_EQ(DemoSite(7).ScheduleFile(), "GENBA007.MDB");
  EXPECT_EQ(DemoSite(7).CompanionFile(), "HIROI007.mdb");
}

TEST(DemoCompany, registered_names_come_to_more_than_ten_exactly_ten_and_fewer) {
  EXPECT_EQ(DemoSite(1).registered_names.size(), 12U);
  EXPECT_EQ(DemoSite(2).registered_names.size(), 10U);
  EXPECT_EQ(DemoSite(3).registered_names.size(), 7U);
}

TEST(DemoCompany, spirals_come_in_all_three_materials) {
  std::set<std::int32_t> materials;
  for (const Spiral& spiral : DemoSite(1).spirals) materials.insert(spiral.material);
  EXPECT_EQ(materials, (std::set<std::int32_t>{1, 2, 3}));
}

TEST(DemoCompany, no_two_sites_have_the_same_spirals) {
  std::set<std::vector<std::tuple<std::int32_t, std::int32_t, double>>> seen;
  for (std::int32_t number = 1; number <= 999; ++number) {
    std::vector<std::tuple<std::int32_t, std::int32_t, double>> spirals;
    for (const Spiral& s : DemoSite(number).spirals)
      spirals.emplace_back(s.material, s.diameter, s.weight_kg);
    EXPECT_FALSE(spirals.empty()) << number;
    EXPECT_TRUE(seen.insert(spirals).second) << number;
  }
}

TEST(DemoCompany, sites_in_turn_lack_deformed_spirals_and_have_ulbon_spirals_alone) {
  const auto materials_of = [](std::int32_t number) {
    std::set<std::int32_t> materials;
    for (const Spiral& spiral : DemoSite(number).spirals) materials.insert(spiral.material);
    return materials;
  };
  EXPECT_EQ(materials_of(2), (std::set<std::int32_t>{2, 3}));
  EXPECT_EQ(materials_of(3), (std::set<std::int32_t>{2}));
  EXPECT_EQ(materials_of(4), (std::set<std::int32_t>{1, 2, 3}));
}

TEST(DemoCompany, no_fixed_stock_is_shorter_than_what_is_cut_from_it) {
  for (const FixedStock& rule : FixedStocks()) {
    EXPECT_GE(rule.stock_mm, rule.cut_to == 0 ? rule.cut_from : rule.cut_to);
  }
}

TEST(DemoCompany, steel_ini_binds_the_site_and_names_the_company) {
  const std::string text = SteelIniText("GENBA001.MDB");
  for (const char* line :
       {"[データ]\n選択ＤＢ名=GENBA001.MDB\n", "[加工帳]\n", "D10最小値=3500\n", "D51最大値=12000\n",
        "１の位まるめ=2\n", "[自社名]\n会社名=", "住所3=", "郵便番号2=", "MAIL2="}) {
    EXPECT_THAT(text, ::testing::HasSubstr(line));
  }
  EXPECT_FALSE(ToCp932(text).empty());
}

}  // namespace
}  // namespace rbt::demo
