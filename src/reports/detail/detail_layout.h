// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "reports/frame/head_layout.h"
#include "reports/frame/paper_table.h"

namespace rbt {

/// Layout constants of the four purchase lists, twips. Read the rows against the sheets that they print.

// The head.

/// Rows of the page: row 0 at 500, each as high as a line of the title and 30 twips.
inline constexpr HeadRows kDetailHeadRows{.text_size = 18, .gap = 30, .title_lines = 0, .client_rows = 0};
inline constexpr float kTitleY = 500;
inline constexpr double kMemosAboveRow = 5.9;
inline constexpr double kTableRow = 6.6;
/// The block of the own company may reach below these rows; memos and table then stand so many rows lower.
inline constexpr double kRowsBelowTallBlock = 1;

/// The client's line, clear of the own company to the right of `text_end`.
constexpr ClientPart DetailClient(float text_end) {
  return {.place = {500, 500, EndsBehindText(100)},
          .row = {1.5},
          .size = 14,
          .behind = "　御中",
          .text_end = text_end};
}

/// The project's name, on one line in the row of the second of two, in the same size as its label of four
/// full-width characters.
constexpr ProjectPart DetailProject(float text_end) {
  constexpr float kSize = 14;
  constexpr float kNameX = 500 + 4 * 20 * kSize;
  const NameForm form{"工事名　", kSize, kNameX, kSize, EndsBehindText(100)};
  NameForm short_form = form;
  short_form.label = "工事名  ";
  return {.x = 500,
          .long_name_width = text_end - kNameX,
          .short_form = short_form,
          .long_form = form,
          .broken_form = form,
          .short_row = {3.5},
          .short_rule_row = std::nullopt,
          .long_row = {3.5},
          .long_row_over_sub_project = {3.5},
          .first_row = {2.5},
          .second_row = {3.5},
          .short_name_width = text_end - kNameX,
          .rest_label = "　　　  "};
}

inline constexpr WeightPart kStockTotal{
    .kilograms = &ReportHead::total_weight, .place = {700, 500, EndsAt(4400)}, .row = {5}};
inline constexpr WeightPart kInstalledTotal{.kilograms = &ReportHead::installed_weight,
                                            .place = {7000, 6800, EndsAt(10700)},
                                            .row = {5},
                                            .label = "取付総重量"};

/// The date over a rule from 100 before it to 100 behind it; that of an era is longer and starts 200 further
/// left.
constexpr DatePart DetailDate(float x, double row) {
  return {.western = {x, x - 100, EndsAt(x + 2000)},
          .era = {x - 200, x - 300, EndsAt(x + 2100)},
          .row = {row},
          .size = 10};
}

inline constexpr float kTextEndA4Y = 11000;
inline constexpr float kTextEndA4T = 6400;
using PartsA4Y = std::array<HeadPart, 5>;
using PartsA4T = std::array<HeadPart, 4>;
constexpr PartsA4Y HeadPartsA4Y(const DatePart& date) {
  return {DetailClient(kTextEndA4Y), DetailProject(kTextEndA4Y), date, kStockTotal, kInstalledTotal};
}
constexpr PartsA4T HeadPartsA4T(const DatePart& date) {
  return {DetailClient(kTextEndA4T), DetailProject(kTextEndA4T), date, kStockTotal};
}

inline constexpr double kCentreDateRow = 4.25;
inline constexpr double kRightDateRow = -0.25;  ///< above the own company, whose block may start at 700
inline constexpr PartsA4Y kCentrePartsA4Y = HeadPartsA4Y(DetailDate(7000, kCentreDateRow));
inline constexpr PartsA4Y kRightPartsA4Y = HeadPartsA4Y(DetailDate(13600, kRightDateRow));
inline constexpr PartsA4T kCentrePartsA4T = HeadPartsA4T(DetailDate(4300, kCentreDateRow));
inline constexpr PartsA4T kRightPartsA4T = HeadPartsA4T(DetailDate(8500, kRightDateRow));

/// The user's own title is spread over 3500; every title's rule ends 200 behind it.
constexpr HeadLayout DetailHead(float title_x, std::span<const HeadPart> parts) {
  return {.title = {title_x, title_x - 200, EndsBehindText(200)},
          .title_y = kTitleY,
          .rows = kDetailHeadRows,
          .parts = parts,
          .title_width = 3500};
}

/// The heads of a paper, by where the date stands.
struct DetailHeads {
  HeadLayout centre;
  HeadLayout right;
};
inline constexpr DetailHeads kHeadsA4Y{DetailHead(6500, kCentrePartsA4Y), DetailHead(6500, kRightPartsA4Y)};
inline constexpr DetailHeads kHeadsA4T{DetailHead(2800, kCentrePartsA4T), DetailHead(2800, kRightPartsA4T)};

// The table.

inline constexpr float kLabelSize = 9;
inline constexpr float kCellSize = 10;
/// A half-width character of a cell.
inline constexpr float kCellPitch = kCellSize * 20 / 2;
/// Cells of the list show nothing for zero.
constexpr TableCell NumberEndingAt(float x, std::size_t characters) {
  return {.x = x - static_cast<float>(characters) * kCellPitch, .number = {characters, kBlankZeroMask}};
}

/// What a column of a diameter shows.
enum class DetailColumn { label, bars, weight };

/// A diameter's place in a repeat of the frame: its columns, the label first, and where its name, its grade
/// and the rows below the lengths stand.
struct DetailBlock {
  std::span<const TableColumn<DetailColumn>> columns;
  TableCell sum;      ///< of weights
  TableCell fitting;  ///< of welds, couplers, plates, cuts
  float name_x = 0;
  float grade_x = 0;
  float grade_width = 0;  ///< a wider one shrinks
};

constexpr TableColumn<DetailColumn> LabelColumn(float left, float width, float text_x, float unit_x) {
  return {DetailColumn::label, {left, width}, {"ｍ", unit_x}, {.x = text_x}};
}
/// A column of bars, whose numbers end `end`.
constexpr TableColumn<DetailColumn> BarColumn(std::string_view caption, float left, float width, float end) {
  return {DetailColumn::bars, {left, width}, {caption, 0, Align::middle}, NumberEndingAt(end, 7)};
}
constexpr TableColumn<DetailColumn> WeightColumn(const ColumnBox& box, const Caption& caption, float end) {
  return {DetailColumn::weight, box, caption, NumberEndingAt(end, 9)};
}
/// Sums end at `sums_end`, the grade at `right`.
constexpr DetailBlock BlockOf(std::span<const TableColumn<DetailColumn>> columns, float sums_end,
                              float name_x, float right) {
  constexpr float kGradeBehindName = 500;
  const float grade_x = name_x + kGradeBehindName;
  return {.columns = columns,
          .sum = NumberEndingAt(sums_end, 11),
          .fitting = NumberEndingAt(sums_end, 7),
          .name_x = name_x,
          .grade_x = grade_x,
          .grade_width = right - grade_x};
}

/// The rows that a vertical rule parts. In the row of names a diameter is one cell, and where bars and
/// weights stand side by side its sums are one cell too, so that a long number runs through no rule.
enum class RuleRows { all, below_names, lengths };
struct RepeatRule {
  float x = 0;
  std::int32_t draw_width = 1;
  RuleRows rows = RuleRows::all;
  bool first_repeat_alone = false;
};

/// What the rows below the lengths show.
enum class DetailSum { stock_weight, installed_weight, welds, threads, plates, cuts };
struct SumRow {
  DetailSum shows;
  std::string_view label;
};
inline constexpr std::array<SumRow, 6> kSumsA4Y{{{DetailSum::stock_weight, "重量"},
                                                 {DetailSum::installed_weight, "取重"},
                                                 {DetailSum::welds, "圧接"},
                                                 {DetailSum::threads, "ｶﾌﾟﾗ"},
                                                 {DetailSum::plates, "ＤＢ"},
                                                 {DetailSum::cuts, "切断"}}};
inline constexpr std::array<SumRow, 3> kSumsA4T{
    {{DetailSum::stock_weight, "重量"}, {DetailSum::welds, "圧接"}, {DetailSum::cuts, "切断"}}};

/// Memo lines under the table, and on A4 landscape above it too.
struct MemoLayout {
  std::array<float, 3> x;
  float line = 0;  ///< each so much below the one before; 0: side by side
  float width = 0;
  float size = 12;
  bool bold = false;
  std::size_t characters = 0;  ///< those of a memo that are printed; 0: all
  bool may_stand_above = false;
};
inline constexpr MemoLayout kMemosA4Y{
    .x = {530, 5530, 10530}, .width = 4900, .size = 12, .bold = true, .may_stand_above = true};
inline constexpr MemoLayout kMemosA4T{
    .x = {530, 530, 530}, .line = 300, .width = 10300, .size = 13, .characters = 30};

/// A purchase list on one paper.
struct DetailPaper {
  const DetailHeads& heads;
  GroupBand band;  ///< repeats of the frame
  std::span<const RepeatRule> rules;
  std::span<const DetailBlock> blocks;  ///< diameters of a repeat
  std::span<const SumRow> sums;
  float row_gap;  ///< what a row of the table is higher than its text
  MemoLayout memos;
  OwnCompanyPart own_company;
};

inline constexpr std::array<TableColumn<DetailColumn>, 3> kColumnsA4Y{
    LabelColumn(0, 450, 30, 150), BarColumn("本 数", 450, 750, 1150),
    WeightColumn({1200, 990}, {"重 量", 1500}, 2150)};
inline constexpr std::array<DetailBlock, 1> kBlocksA4Y{BlockOf(kColumnsA4Y, 2150, 100, 2160)};
inline constexpr std::array<RepeatRule, 3> kRulesA4Y{
    {{0, 3}, {450, 2, RuleRows::below_names}, {1200, 1, RuleRows::lengths}}};

inline constexpr std::array<TableColumn<DetailColumn>, 2> kColumnsA4YCount{
    LabelColumn(0, 450, 30, 150), BarColumn("本 数", 450, 1460, 1800)};
inline constexpr std::array<DetailBlock, 1> kBlocksA4YCount{BlockOf(kColumnsA4YCount, 1800, 100, 1880)};
inline constexpr std::array<RepeatRule, 2> kRulesA4YCount{{{0, 3}, {450, 2, RuleRows::below_names}}};

// The strips beside 1725, 1950 and 2225 stay empty: they line up with the diameters of the list of counts
// alone.
inline constexpr std::array<TableColumn<DetailColumn>, 3> kColumnsA4T{
    LabelColumn(0, 700, 170, 260), BarColumn("本　数", 700, 1025, 1705),
    WeightColumn({2225, 1225}, {"重　量", 0, Align::middle}, 3400)};
inline constexpr std::array<DetailBlock, 1> kBlocksA4T{BlockOf(kColumnsA4T, 3400, 170, 3420)};
inline constexpr std::array<RepeatRule, 5> kRulesA4T{{{0, 3},
                                                      {700, 2, RuleRows::below_names},
                                                      {1725, 1, RuleRows::lengths, true},
                                                      {1950, 1, RuleRows::lengths},
                                                      {2225, 1, RuleRows::lengths}}};

inline constexpr std::array<TableColumn<DetailColumn>, 2> kFirstColumnsA4TCount{
    LabelColumn(0, 700, 170, 260), BarColumn("本　数", 700, 1025, 1705)};
inline constexpr std::array<TableColumn<DetailColumn>, 2> kSecondColumnsA4TCount{
    LabelColumn(1725, 500, 1795, 1885), BarColumn("本　数", 2225, 1225, 3400)};
inline constexpr std::array<DetailBlock, 2> kBlocksA4TCount{
    BlockOf(kFirstColumnsA4TCount, 1705, 170, 1705), BlockOf(kSecondColumnsA4TCount, 3400, 1895, 3420)};
inline constexpr std::array<RepeatRule, 4> kRulesA4TCount{
    {{0, 3}, {700, 2, RuleRows::below_names}, {1725, 3}, {2225, 2, RuleRows::below_names}}};

inline constexpr OwnCompanyPart kOwnCompanyA4Y{.x = 11200, .y = 1000};
inline constexpr OwnCompanyPart kOwnCompanyA4T{.x = 6550, .y = 1100};
inline constexpr float kRowGapA4Y = 80;
inline constexpr float kRowGapA4T = 120;

inline constexpr DetailPaper kMeisaiA4Y{kHeadsA4Y, {500, 2190, 7}, kRulesA4Y, kBlocksA4Y,
                                        kSumsA4Y,  kRowGapA4Y,     kMemosA4Y, kOwnCompanyA4Y};
inline constexpr DetailPaper kMeisaiA4YCount{kHeadsA4Y, {500, 1910, 8}, kRulesA4YCount, kBlocksA4YCount,
                                             kSumsA4Y,  kRowGapA4Y,     kMemosA4Y,      kOwnCompanyA4Y};
inline constexpr DetailPaper kMeisaiA4T{kHeadsA4T, {500, 3450, 3}, kRulesA4T, kBlocksA4T,
                                        kSumsA4T,  kRowGapA4T,     kMemosA4T, kOwnCompanyA4T};
inline constexpr DetailPaper kMeisaiA4TCount{kHeadsA4T, {500, 3450, 3}, kRulesA4TCount, kBlocksA4TCount,
                                             kSumsA4T,  kRowGapA4T,     kMemosA4T,      kOwnCompanyA4T};

}  // namespace rbt
