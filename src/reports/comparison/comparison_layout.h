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
#include "reports/frame/paper_table.h"

namespace rbt {

/// Layout constants of the nine comparison reports, twips. Read the rows against the sheets that they print.

inline constexpr std::string_view kComparisonTitle = "重  量  対  比  表";

/// 総重量: on A4 portrait a part of the head, on landscape paper drawn behind it by the body.
constexpr WeightPart ComparisonTotal(float margin, float rule_to, double row = 6) {
  return {.kilograms = &ReportHead::total_weight, .place = {margin, margin, EndsAt(rule_to)}, .row = {row}};
}

/// The rows of B5 are low: its total line would stand on the table's first rule.
inline constexpr double kTotalRowB5Y = 5.8;

/// X before the own-company block of A4 portrait.
inline constexpr float kHeadEndA4T = 6400;

/// The heads of A4 portrait, A4 landscape and B5 landscape.
inline constexpr std::array<HeadPart, 5> kHeadPartsA4T{
    ClientFrom(500, kHeadEndA4T), ProjectFrom(500, 1567, 960, kHeadEndA4T), SubProjectFrom(500, 7, 7000),
    ComparisonTotal(500, 3700),
    DatePart{{8500, 8400, EndsAt(10800)}, {8300, 8200, EndsAt(11000)}, {1, -1500}}};
inline constexpr std::array<HeadPart, 4> kHeadPartsA4Y{
    ClientFrom(1800), ProjectFrom(1800, 2760, 960), SubProjectFrom(1800, 7, 0),
    DatePart{{11800, 11700, EndsAt(14100)}, {11600, 11500, EndsAt(14300)}, {1, -1300}}};
// Below a name the rows of B5 are too low for a rule of their own.
inline constexpr std::array<HeadPart, 4> kHeadPartsB5Y{
    ClientFrom(700), ProjectFrom(700, 1767, 1067, 0, std::nullopt), SubProjectFrom(700, 7, 0),
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
enum class Figure { diameter, grade, stock_weight, installed_weight, difference, welds, cuts };
using ComparisonColumn = TableColumn<Figure>;

/// The two columns that name a row stand before those with its figures, the cut column is the last.
inline constexpr std::size_t kNameColumns = 2;

inline constexpr NumberField kWeightIn11{.characters = 11, .suffix = " Kg"};
inline constexpr NumberField kWeightIn9{.characters = 9, .suffix = " Kg"};
inline constexpr NumberField kCountIn7{.characters = 7};

struct LossRateLine {
  RuledText place;
  std::string_view gap;  ///< between label and number
  std::size_t characters;
};

struct ComparisonForm {
  char kind;  ///< 'A' stock and installed weight, 'B' stock, 'C' installed
  HeadRoutine head;
  std::span<const ComparisonColumn> columns;
  std::string_view total_label;
  std::optional<WeightPart> total_line;  ///< where the head leaves it to the body: on landscape paper
  std::optional<LossRateLine> loss_rate;
  std::optional<OwnCompanyPart> own_company;
};

/// Diameter and grade in one column of that width. The caption stands where the total row has its label; the
/// grade stands 1000 behind the diameter.
constexpr ComparisonColumn DiameterColumn(float left, float width, std::string_view caption, float caption_x,
                                          float label_x) {
  return {Figure::diameter, {left, width}, {caption, caption_x}, {label_x, caption_x}};
}
constexpr ComparisonColumn GradeColumn(float label_x, float right) {
  constexpr float kGradeShift = 1000;
  const float x = label_x + kGradeShift;
  return {Figure::grade, {x, right - x, 0}, {}, {x, x}};
}

/// Kind C has kind B's columns, with the installed weight in the place of the stock weight.
template <std::size_t N>
constexpr std::array<ComparisonColumn, N> WithInstalledWeight(std::array<ComparisonColumn, N> columns,
                                                              std::string_view caption) {
  columns[kNameColumns].shows = Figure::installed_weight;
  columns[kNameColumns].caption.text = caption;
  return columns;
}

inline constexpr std::array<ComparisonColumn, 7> kColumnsAA4T{{
    DiameterColumn(500, 2000, "太　　さ", 1000, 700),
    GradeColumn(700, 2500),
    {Figure::stock_weight, {2500, 2000}, {"定　尺　重　量", 2700}, {2700, 2600, kWeightIn11}},
    {Figure::installed_weight, {4500, 2000}, {"取　付　重　量", 4700}, {4600, 4700, kWeightIn11}},
    {Figure::difference, {6500, 1800}, {"差　　引", 6900}, {6550, 6550, kWeightIn9}},
    {Figure::welds, {8300, 1300}, {"圧　　接", 8550}, {8500, 8500, kCountIn7}},
    {Figure::cuts, {9600, 1300}, {"切　　断", 9850}, {9800, 9800, kCountIn7}},
}};

inline constexpr std::array<ComparisonColumn, 5> kColumnsBA4T{{
    DiameterColumn(500, 3000, "太　　　　さ", 1250, 700),
    GradeColumn(700, 3500),
    {Figure::stock_weight, {3500, 3000}, {"定　　尺　　重　　量", 3800}, {4500, 4500, kWeightIn11}},
    {Figure::welds, {6500, 2200}, {"圧　　　接", 6950}, {7600, 7600, kCountIn7}},
    {Figure::cuts, {8700, 2200}, {"切　　　断", 9150}, {9800, 9800, kCountIn7}},
}};
inline constexpr auto kColumnsCA4T = WithInstalledWeight(kColumnsBA4T, "取　　付　　重　　量");

inline constexpr std::array<ComparisonColumn, 7> kColumnsAA4Y{{
    DiameterColumn(1800, 2000, "太　　　　さ", 2100, 2000),
    GradeColumn(2000, 3800),
    {Figure::stock_weight, {3800, 2500}, {"定   尺   重   量", 4000}, {4400, 4400, kWeightIn11}},
    {Figure::installed_weight, {6300, 2500}, {"取   付   重   量", 6500}, {6900, 6900, kWeightIn11}},
    {Figure::difference, {8800, 2500}, {"差            引", 9150}, {9400, 9400, kWeightIn11}},
    {Figure::welds, {11300, 1500}, {"圧　　接", 11550}, {11600, 11600, kCountIn7}},
    {Figure::cuts, {12800, 1500}, {"切　　断", 13050}, {13100, 13100, kCountIn7}},
}};

inline constexpr std::array<ComparisonColumn, 5> kColumnsBA4Y{{
    DiameterColumn(1800, 3500, "太          さ", 2700, 2500),
    GradeColumn(2500, 5300),
    {Figure::stock_weight, {5300, 4500}, {"定    尺    重    量", 6300}, {7300, 7300, kWeightIn11}},
    {Figure::welds, {9800, 2000}, {"圧        接", 10100}, {10600, 10600, kCountIn7}},
    {Figure::cuts, {11800, 2000}, {"切        断", 12050}, {12500, 12500, kCountIn7}},
}};
inline constexpr auto kColumnsCA4Y = WithInstalledWeight(kColumnsBA4Y, "取    付    重    量");

inline constexpr std::array<ComparisonColumn, 7> kColumnsAB5Y{{
    DiameterColumn(700, 2000, "太　　　さ", 1100, 900),
    GradeColumn(900, 2700),
    {Figure::stock_weight, {2700, 2500}, {"定  尺  重  量", 3100}, {3300, 3300, kWeightIn11}},
    {Figure::installed_weight, {5200, 2500}, {"取  付  重  量", 5600}, {5800, 5800, kWeightIn11}},
    {Figure::difference, {7700, 2500}, {"差　　　　引", 8250}, {8200, 8200, kWeightIn11}},
    {Figure::welds, {10200, 1500}, {"圧　　接", 10500}, {10700, 10700, kCountIn7}},
    {Figure::cuts, {11700, 1500}, {"切　　断", 12000}, {12200, 12200, kCountIn7}},
}};

inline constexpr std::array<ComparisonColumn, 5> kColumnsBB5Y{{
    DiameterColumn(1000, 3500, "太　　　　　　　さ", 1650, 1400),
    GradeColumn(1400, 4500),
    {Figure::stock_weight, {4500, 3500}, {"定　　尺　　重　　量", 4800}, {6000, 6000, kWeightIn11}},
    {Figure::welds, {8000, 2500}, {"圧　　　接", 8600}, {9000, 9000, kCountIn7}},
    {Figure::cuts, {10500, 2500}, {"切　　　断", 11100}, {11500, 11500, kCountIn7}},
}};
inline constexpr auto kColumnsCB5Y = WithInstalledWeight(kColumnsBB5Y, "取　　付　　重　　量");

inline constexpr OwnCompanyPart kOwnCompanyA4T{6600, 2200};

inline constexpr ComparisonForm kTaihiAA4T{.kind = 'A',
                                           .head = Taihi_Head_A4T,
                                           .columns = kColumnsAA4T,
                                           .total_label = "合　　計",
                                           .total_line = std::nullopt,
                                           .loss_rate = LossRateLine{{6700, 6500, EndsAt(8600)}, "　", 6},
                                           .own_company = kOwnCompanyA4T};
inline constexpr ComparisonForm kTaihiBA4T{.kind = 'B',
                                           .head = Taihi_Head_A4T,
                                           .columns = kColumnsBA4T,
                                           .total_label = "合　　　　計",
                                           .total_line = std::nullopt,
                                           .loss_rate = std::nullopt,
                                           .own_company = kOwnCompanyA4T};
inline constexpr ComparisonForm kTaihiCA4T{.kind = 'C',
                                           .head = Taihi_Head_A4T,
                                           .columns = kColumnsCA4T,
                                           .total_label = "合　　　　計",
                                           .total_line = std::nullopt,
                                           .loss_rate = std::nullopt,
                                           .own_company = kOwnCompanyA4T};
inline constexpr ComparisonForm kTaihiAA4Y{.kind = 'A',
                                           .head = Taihi_Head_A4Y,
                                           .columns = kColumnsAA4Y,
                                           .total_label = "異　形　合　計",
                                           .total_line = ComparisonTotal(1800, 5100),
                                           .loss_rate = LossRateLine{{9000, 8800, EndsAt(10900)}, "　", 6},
                                           .own_company = std::nullopt};
inline constexpr ComparisonForm kTaihiBA4Y{.kind = 'B',
                                           .head = Taihi_Head_A4Y,
                                           .columns = kColumnsBA4Y,
                                           .total_label = "合          計",
                                           .total_line = ComparisonTotal(1800, 5100),
                                           .loss_rate = std::nullopt,
                                           .own_company = std::nullopt};
inline constexpr ComparisonForm kTaihiCA4Y{.kind = 'C',
                                           .head = Taihi_Head_A4Y,
                                           .columns = kColumnsCA4Y,
                                           .total_label = "合          計",
                                           .total_line = ComparisonTotal(1800, 5100),
                                           .loss_rate = std::nullopt,
                                           .own_company = std::nullopt};
inline constexpr ComparisonForm kTaihiAB5Y{.kind = 'A',
                                           .head = Taihi_Head_B5Y,
                                           .columns = kColumnsAB5Y,
                                           .total_label = "合　　　計",
                                           .total_line = ComparisonTotal(700, 4200, kTotalRowB5Y),
                                           .loss_rate = LossRateLine{{10400, 10200, EndsAt(12900)}, " ", 12},
                                           .own_company = std::nullopt};
inline constexpr ComparisonForm kTaihiBB5Y{.kind = 'B',
                                           .head = Taihi_Head_B5Y,
                                           .columns = kColumnsBB5Y,
                                           .total_label = "合　　　　　　　計",
                                           .total_line = ComparisonTotal(700, 4000, kTotalRowB5Y),
                                           .loss_rate = LossRateLine{{10700, 10500, EndsAt(13200)}, " ", 12},
                                           .own_company = std::nullopt};
inline constexpr ComparisonForm kTaihiCB5Y{.kind = 'C',
                                           .head = Taihi_Head_B5Y,
                                           .columns = kColumnsCB5Y,
                                           .total_label = "合　　　　　　　計",
                                           .total_line = ComparisonTotal(700, 4000, kTotalRowB5Y),
                                           .loss_rate = LossRateLine{{10700, 10500, EndsAt(13200)}, " ", 12},
                                           .own_company = std::nullopt};

}  // namespace rbt
