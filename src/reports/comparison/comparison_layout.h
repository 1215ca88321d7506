// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "reports/comparison/comparison_head.h"
#include "reports/frame/grid_head_parts.h"
#include "reports/frame/head_layout.h"

namespace rbt {

/// Layout constants of the nine comparison reports, twips. Read the rows against the sheets that they print.

inline constexpr std::string_view kComparisonTitle = "重  量  対  比  表";

/// 総重量: on A4 portrait a part of the head, on landscape paper drawn behind it by the body.
constexpr WeightPart ComparisonTotal(float margin, float rule_to) {
  return {.kilograms = &ReportHead::total_weight, .place = {margin, margin, EndsAt(rule_to)}};
}

/// The heads of A4 portrait, A4 landscape and B5 landscape.
inline constexpr std::array<HeadPart, 5> kHeadPartsA4T{
    ClientFrom(500), ProjectFrom(500, 1567, 960), SubProjectFrom(500, 7, 7000), ComparisonTotal(500, 3700),
    DatePart{{8500, 8400, EndsAt(10800)}, {8300, 8200, EndsAt(11000)}, {1, -1500}}};
inline constexpr std::array<HeadPart, 4> kHeadPartsA4Y{
    ClientFrom(1800), ProjectFrom(1800, 2760, 960), SubProjectFrom(1800, 7, 0),
    DatePart{{11800, 11700, EndsAt(14100)}, {11600, 11500, EndsAt(14300)}, {1, -1300}}};
inline constexpr std::array<HeadPart, 4> kHeadPartsB5Y{
    ClientFrom(700), ProjectFrom(700, 1767, 1067), SubProjectFrom(700, 7, 0),
    DatePart{{10700, 10600, EndsAt(13000)}, {10500, 10400, EndsAt(13200)}, {1, -1300}}};

inline constexpr HeadLayout kHeadA4T{{3800, 3600, EndsAt(7400)},
                                     1000,
                                     {.text_size = 13, .gap = 100, .title_lines = 2, .client_rows = 2},
                                     kHeadPartsA4T};
inline constexpr HeadLayout kHeadA4Y{{6000, 5800, EndsAt(9500)},
                                     500,
                                     {.text_size = 13, .gap = 100, .title_lines = 2, .client_rows = 2},
                                     kHeadPartsA4Y};
inline constexpr HeadLayout kHeadB5Y{{5200, 5000, EndsAt(8750)},
                                     500,
                                     {.text_size = 13, .gap = 35, .title_lines = 2, .client_rows = 2},
                                     kHeadPartsB5Y};

/// What a column of the table shows.
enum class Figure { stock_weight, installed_weight, difference, welds, cuts };

struct ComparisonColumn {
  Figure figure;
  std::string_view heading;
  float heading_x;
  float value_x;
  float total_x;           ///< of the total row; of the installed weight and the welds also of the Ulbon rows
  std::size_t characters;  ///< the number stands right-aligned in them
};

struct LossRateLine {
  RuledText place;
  std::string_view gap;  ///< between label and number
  std::size_t characters;
  int rows_below;  ///< from the row below the last rule
};

struct ComparisonForm {
  char kind;  ///< 'A' stock and installed weight, 'B' stock, 'C' installed
  HeadRoutine head;
  std::span<const float> rules;  ///< vertical ones; the last bounds the cut column
  std::string_view diameter_heading;
  float diameter_heading_x;  ///< of the total row's label too
  float label_x;
  std::string_view total_label;
  std::span<const ComparisonColumn> columns;  ///< the cut column is the last
  std::optional<WeightPart> total_line;       ///< where the head leaves it to the body: on landscape paper
  std::optional<LossRateLine> loss_rate;
  std::optional<OwnCompanyPart> own_company;
};

/// X of a diameter's grade, from its label.
inline constexpr float kGradeShift = 1000;

inline constexpr std::array<float, 7> kRulesAA4T{500, 2500, 4500, 6500, 8300, 9600, 10900};
inline constexpr std::array<ComparisonColumn, 5> kColumnsAA4T{{
    {Figure::stock_weight, "定　尺　重　量", 2700, 2700, 2600, 11},
    {Figure::installed_weight, "取　付　重　量", 4700, 4600, 4700, 11},
    {Figure::difference, "差　　引", 6900, 6550, 6550, 9},
    {Figure::welds, "圧　　接", 8550, 8500, 8500, 7},
    {Figure::cuts, "切　　断", 9850, 9800, 9800, 7},
}};

inline constexpr std::array<float, 5> kRulesBA4T{500, 3500, 6500, 8700, 10900};
inline constexpr std::array<ComparisonColumn, 3> kColumnsBA4T{{
    {Figure::stock_weight, "定　　尺　　重　　量", 3800, 4500, 4500, 11},
    {Figure::welds, "圧　　　接", 6950, 7600, 7600, 7},
    {Figure::cuts, "切　　　断", 9150, 9800, 9800, 7},
}};
inline constexpr std::array<ComparisonColumn, 3> kColumnsCA4T{{
    {Figure::installed_weight, "取　　付　　重　　量", 3800, 4500, 4500, 11},
    {Figure::welds, "圧　　　接", 6950, 7600, 7600, 7},
    {Figure::cuts, "切　　　断", 9150, 9800, 9800, 7},
}};

inline constexpr std::array<float, 7> kRulesAA4Y{1800, 3800, 6300, 8800, 11300, 12800, 14300};
inline constexpr std::array<ComparisonColumn, 5> kColumnsAA4Y{{
    {Figure::stock_weight, "定   尺   重   量", 4000, 4400, 4400, 11},
    {Figure::installed_weight, "取   付   重   量", 6500, 6900, 6900, 11},
    {Figure::difference, "差            引", 9150, 9400, 9400, 11},
    {Figure::welds, "圧　　接", 11550, 11600, 11600, 7},
    {Figure::cuts, "切　　断", 13050, 13100, 13100, 7},
}};

inline constexpr std::array<float, 5> kRulesBA4Y{1800, 5300, 9800, 11800, 13800};
inline constexpr std::array<ComparisonColumn, 3> kColumnsBA4Y{{
    {Figure::stock_weight, "定    尺    重    量", 6300, 7300, 7300, 11},
    {Figure::welds, "圧        接", 10100, 10600, 10600, 7},
    {Figure::cuts, "切        断", 12050, 12500, 12500, 7},
}};
inline constexpr std::array<ComparisonColumn, 3> kColumnsCA4Y{{
    {Figure::installed_weight, "取    付    重    量", 6300, 7300, 7300, 11},
    {Figure::welds, "圧        接", 10100, 10600, 10600, 7},
    {Figure::cuts, "切        断", 12050, 12500, 12500, 7},
}};

inline constexpr std::array<float, 7> kRulesAB5Y{700, 2700, 5200, 7700, 10200, 11700, 13200};
inline constexpr std::array<ComparisonColumn, 5> kColumnsAB5Y{{
    {Figure::stock_weight, "定  尺  重  量", 3100, 3300, 3300, 11},
    {Figure::installed_weight, "取  付  重  量", 5600, 5800, 5800, 11},
    {Figure::difference, "差　　　　引", 8250, 8200, 8200, 11},
    {Figure::welds, "圧　　接", 10500, 10700, 10700, 7},
    {Figure::cuts, "切　　断", 12000, 12200, 12200, 7},
}};

inline constexpr std::array<float, 5> kRulesBB5Y{1000, 4500, 8000, 10500, 13000};
inline constexpr std::array<ComparisonColumn, 3> kColumnsBB5Y{{
    {Figure::stock_weight, "定　　　尺　　重　　　量", 4800, 6000, 6000, 11},
    {Figure::welds, "圧　　　接", 8600, 9000, 9000, 7},
    {Figure::cuts, "切　　　断", 11100, 11500, 11500, 7},
}};
inline constexpr std::array<ComparisonColumn, 3> kColumnsCB5Y{{
    {Figure::installed_weight, "取　　　付　　重　　　量", 4800, 6000, 6000, 11},
    {Figure::welds, "圧　　　接", 8600, 9000, 9000, 7},
    {Figure::cuts, "切　　　断", 11100, 11500, 11500, 7},
}};

inline constexpr OwnCompanyPart kOwnCompanyA4T{6600, 2200};

inline constexpr ComparisonForm kTaihiAA4T{.kind = 'A',
                                           .head = Taihi_Head_A4T,
                                           .rules = kRulesAA4T,
                                           .diameter_heading = "太　　さ",
                                           .diameter_heading_x = 1000,
                                           .label_x = 700,
                                           .total_label = "合　　計",
                                           .columns = kColumnsAA4T,
                                           .total_line = std::nullopt,
                                           .loss_rate = LossRateLine{{6700, 6500, EndsAt(8600)}, "　", 6, 1},
                                           .own_company = kOwnCompanyA4T};
inline constexpr ComparisonForm kTaihiBA4T{.kind = 'B',
                                           .head = Taihi_Head_A4T,
                                           .rules = kRulesBA4T,
                                           .diameter_heading = "太　　　　さ",
                                           .diameter_heading_x = 1250,
                                           .label_x = 700,
                                           .total_label = "合　　　　計",
                                           .columns = kColumnsBA4T,
                                           .total_line = std::nullopt,
                                           .loss_rate = std::nullopt,
                                           .own_company = kOwnCompanyA4T};
inline constexpr ComparisonForm kTaihiCA4T{.kind = 'C',
                                           .head = Taihi_Head_A4T,
                                           .rules = kRulesBA4T,
                                           .diameter_heading = "太　　　　さ",
                                           .diameter_heading_x = 1250,
                                           .label_x = 700,
                                           .total_label = "合　　　　計",
                                           .columns = kColumnsCA4T,
                                           .total_line = std::nullopt,
                                           .loss_rate = std::nullopt,
                                           .own_company = kOwnCompanyA4T};
inline constexpr ComparisonForm kTaihiAA4Y{.kind = 'A',
                                           .head = Taihi_Head_A4Y,
                                           .rules = kRulesAA4Y,
                                           .diameter_heading = "太　　　　さ",
                                           .diameter_heading_x = 2100,
                                           .label_x = 2000,
                                           .total_label = "異　形　合　計",
                                           .columns = kColumnsAA4Y,
                                           .total_line = ComparisonTotal(1800, 5100),
                                           .loss_rate = LossRateLine{{9000, 8800, EndsAt(10900)}, "　", 6, 0},
                                           .own_company = std::nullopt};
inline constexpr ComparisonForm kTaihiBA4Y{.kind = 'B',
                                           .head = Taihi_Head_A4Y,
                                           .rules = kRulesBA4Y,
                                           .diameter_heading = "太          さ",
                                           .diameter_heading_x = 2700,
                                           .label_x = 2500,
                                           .total_label = "合          計",
                                           .columns = kColumnsBA4Y,
                                           .total_line = ComparisonTotal(1800, 5100),
                                           .loss_rate = std::nullopt,
                                           .own_company = std::nullopt};
inline constexpr ComparisonForm kTaihiCA4Y{.kind = 'C',
                                           .head = Taihi_Head_A4Y,
                                           .rules = kRulesBA4Y,
                                           .diameter_heading = "太          さ",
                                           .diameter_heading_x = 2700,
                                           .label_x = 2500,
                                           .total_label = "合          計",
                                           .columns = kColumnsCA4Y,
                                           .total_line = ComparisonTotal(1800, 5100),
                                           .loss_rate = std::nullopt,
                                           .own_company = std::nullopt};
inline constexpr ComparisonForm kTaihiAB5Y{
    .kind = 'A',
    .head = Taihi_Head_B5Y,
    .rules = kRulesAB5Y,
    .diameter_heading = "太　　　さ",
    .diameter_heading_x = 1100,
    .label_x = 900,
    .total_label = "合　　　計",
    .columns = kColumnsAB5Y,
    .total_line = ComparisonTotal(700, 4200),
    .loss_rate = LossRateLine{{10400, 10200, EndsAt(12900)}, " ", 12, 0},
    .own_company = std::nullopt};
inline constexpr ComparisonForm kTaihiBB5Y{
    .kind = 'B',
    .head = Taihi_Head_B5Y,
    .rules = kRulesBB5Y,
    .diameter_heading = "太　　　　　　　さ",
    .diameter_heading_x = 1650,
    .label_x = 1400,
    .total_label = "合　　　　　　　計",
    .columns = kColumnsBB5Y,
    .total_line = ComparisonTotal(700, 4000),
    .loss_rate = LossRateLine{{10700, 10500, EndsAt(13200)}, " ", 12, 0},
    .own_company = std::nullopt};
inline constexpr ComparisonForm kTaihiCB5Y{
    .kind = 'C',
    .head = Taihi_Head_B5Y,
    .rules = kRulesBB5Y,
    .diameter_heading = "太　　　　　　　さ",
    .diameter_heading_x = 1650,
    .label_x = 1400,
    .total_label = "合　　　　　　　計",
    .columns = kColumnsCB5Y,
    .total_line = ComparisonTotal(700, 4000),
    .loss_rate = LossRateLine{{10700, 10500, EndsAt(13200)}, " ", 12, 0},
    .own_company = std::nullopt};

}  // namespace rbt
