// SPDX-License-Identifier: MIT
#include "demo/schedule_generator.h"

#include <cmath>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "demo/shapes.h"
#include "demo/stock_choice.h"

namespace rbt::demo {
namespace {

std::vector<ScheduleRow> Draw(std::int32_t rows, std::uint64_t seed = 1) {
  ScheduleGenerator generator(rows, 12, seed);
  std::vector<ScheduleRow> drawn;
  while (!generator.Done()) drawn.push_back(generator.Next());
  return drawn;
}

auto Figures(const ScheduleRow& row) {
  return std::tuple(row.number, row.page, row.line, row.floor, row.part, row.name, row.diameter, row.shape,
                    row.cut_mm, row.total, row.stock_m, row.welds, row.weld_diameter, row.kind);
}

TEST(StockChoice, takes_a_stock_length_whole_where_the_cut_is_one) {
  const StockChoice choice = ChooseStock(25, 6000, 7);
  EXPECT_EQ(choice.stock_m, 6.0);
  EXPECT_EQ(choice.pieces_per_bar, 1);
  EXPECT_EQ(choice.stock_bars, 7);
}

TEST(StockChoice, takes_the_length_with_the_least_waste) {
  // 10 pieces of 2.4 m: 12.0 m gives five pieces without rest, two bars.
  const StockChoice choice = ChooseStock(16, 2400, 10);
  EXPECT_EQ(choice.stock_m, 12.0);
  EXPECT_EQ(choice.pieces_per_bar, 5);
  EXPECT_EQ(choice.stock_bars, 2);
}

TEST(StockChoice, takes_the_shorter_of_two_lengths_with_equal_waste) {
  // 12 pieces of 2.0 m: 4.0, 6.0, 8.0 and 12.0 m all come out even.
  EXPECT_EQ(ChooseStock(16, 2000, 12).stock_m, 4.0);
}

TEST(StockChoice, cuts_no_more_pieces_from_a_bar_than_the_line_needs) {
  const StockChoice choice = ChooseStock(13, 1000, 2);
  EXPECT_EQ(choice.stock_m, 3.5);
  EXPECT_EQ(choice.pieces_per_bar, 2);
  EXPECT_EQ(choice.stock_bars, 1);
}

TEST(StockChoice, keeps_to_the_shortest_length_of_a_thick_diameter) {
  EXPECT_EQ(ChooseStock(51, 2000, 1).stock_m, 5.0);
}

TEST(StockChoice, takes_thirteen_metres_beyond_twelve) {
  const StockChoice choice = ChooseStock(32, 12600, 3);
  EXPECT_EQ(choice.stock_m, 13.0);
  EXPECT_EQ(choice.stock_bars, 3);
}

TEST(ScheduleGenerator, gives_exactly_the_lines_asked_for) {
  for (const std::int32_t rows : {0, 1, 7, 999, 3000})
    EXPECT_EQ(Draw(rows).size(), static_cast<std::size_t>(rows));
}

TEST(ScheduleGenerator, gives_the_same_lines_for_the_same_seed_and_others_for_another) {
  const auto figures = [](std::uint64_t seed) {
    std::vector<decltype(Figures(ScheduleRow{}))> all;
    for (const ScheduleRow& row : Draw(500, seed)) all.push_back(Figures(row));
    return all;
  };
  EXPECT_EQ(figures(7), figures(7));
  EXPECT_NE(figures(7), figures(8));
}

TEST(ScheduleGenerator, numbers_lines_pages_and_lines_of_a_page_in_order) {
  std::int32_t number = 0;
  std::int32_t page = 1;
  std::int32_t line = 0;
  for (const ScheduleRow& row : Draw(3000)) {
    EXPECT_EQ(row.number, ++number);
    const bool turned = row.page == page + 1;
    EXPECT_TRUE(turned || row.page == page);
    EXPECT_EQ(row.line, turned ? 1 : line + 1);
    EXPECT_LE(row.line, 20);
    page = row.page;
    line = row.line;
  }
}

TEST(ScheduleGenerator, every_line_agrees_with_itself) {
  for (const ScheduleRow& row : Draw(3000)) {
    SCOPED_TRACE(row.number);
    EXPECT_EQ(row.total, row.bars * row.places);
    EXPECT_EQ(row.stock_bars, (row.total + row.pieces_per_bar - 1) / row.pieces_per_bar);
    EXPECT_LE(row.pieces_per_bar * row.cut_mm, std::lround(row.stock_m * 1000));
    const double half_metres = row.stock_m * 2;
    EXPECT_EQ(half_metres, std::floor(half_metres));
    EXPECT_TRUE(row.stock_m == 13.0 || (row.stock_m >= 3.5 && row.stock_m <= 12.0)) << row.stock_m;
    EXPECT_GE(row.dimensions[0], 50);
    EXPECT_GE(row.diameter, 6);
    EXPECT_EQ(row.threads > 0, ShapeOf(row.shape).thread_ends > 0);
    EXPECT_TRUE(row.weld_diameter == 0 || (row.weld_diameter > row.diameter && row.welds > 0));
  }
}

TEST(ScheduleGenerator, a_straight_bar_has_its_cut_length_as_its_one_dimension) {
  for (const ScheduleRow& row : Draw(3000)) {
    if (row.shape != 1) continue;
    EXPECT_EQ(row.dimensions[0], row.cut_mm);
    EXPECT_EQ(row.dimensions[1], 0);
  }
}

TEST(ScheduleGenerator, the_default_schedule_shows_everything_a_site_may_hold) {
  std::set<std::int32_t> floors, parts, diameters, kinds, shapes, names;
  std::set<std::string_view> bar_names;
  std::set<double> stocks;
  int no_floor = 0, no_part = 0, stepped_welds = 0, cuts = 0, thin_16 = 0;
  for (const ScheduleRow& row : Draw(3000)) {
    row.floor ? static_cast<void>(floors.insert(*row.floor)) : static_cast<void>(++no_floor);
    row.part ? static_cast<void>(parts.insert(*row.part)) : static_cast<void>(++no_part);
    kinds.insert(row.kind.value_or(-1));
    names.insert(row.registered_name.value_or(-1));
    diameters.insert(row.diameter);
    shapes.insert(row.shape);
    stocks.insert(row.stock_m);
    bar_names.insert(row.name);
    stepped_welds += row.weld_diameter != 0 ? 1 : 0;
    cuts += row.cuts > 0 ? 1 : 0;
    thin_16 += row.diameter == 16 && row.kind == 2 ? 1 : 0;
  }
  EXPECT_EQ(floors, (std::set<std::int32_t>{-2, -1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 76, 77, 78}));
  EXPECT_EQ(parts, (std::set<std::int32_t>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
  EXPECT_EQ(diameters,
            (std::set<std::int32_t>{6, 7, 9, 10, 11, 12, 13, 16, 19, 22, 25, 29, 32, 35, 38, 41, 51}));
  EXPECT_EQ(kinds, (std::set<std::int32_t>{-1, 0, 2, 3, 4}));
  EXPECT_EQ(stocks.size(), 19U) << "18 lengths to 12 m, and 13 m";
  for (const Shape& shape : Shapes()) EXPECT_TRUE(shapes.contains(shape.number)) << shape.number;
  EXPECT_TRUE(bar_names.contains("縦ｽﾘｯﾄ筋　"));
  EXPECT_TRUE(bar_names.contains("横ｽﾘｯﾄ筋　"));
  EXPECT_GT(names.size(), 12U);
  EXPECT_GT(no_floor, 0);
  EXPECT_GT(no_part, 0);
  EXPECT_GT(stepped_welds, 10);
  EXPECT_GT(cuts, 100);
  EXPECT_GT(thin_16, 0);
}

TEST(ScheduleGenerator, carries_no_registered_name_where_the_site_has_none) {
  ScheduleGenerator generator(200, 0, 1);
  while (!generator.Done()) EXPECT_EQ(generator.Next().registered_name.value_or(0), 0);
}

TEST(Shapes, threaded_ends_stand_exactly_on_the_threaded_numbers) {
  for (const Shape& shape : Shapes()) {
    const std::int32_t n = shape.number;
    const bool threaded = (n >= 138 && n <= 143) || n == 162 || n == 163 || (n >= 166 && n <= 177) || n > 200;
    EXPECT_EQ(shape.thread_ends > 0, threaded) << n;
  }
}

}  // namespace
}  // namespace rbt::demo
