// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "reports/frame/head_layout.h"
#include "reports/frame/print_frame.h"

namespace rbt {

/// Heads of the floor and part reports, twips. Row r of a page stands at 500 + r times a line of the title
/// and 30.

inline constexpr HeadRows kFloorPartRows{.text_size = 18, .gap = 30};
inline constexpr float kFloorPartTitleY = 500;
inline constexpr double kFloorPartTableRow = 6.25;
/// Heads end here: the postal code of the own company stands 100 before the block.
inline constexpr float kFloorPartTextEnd = 11000;

inline constexpr ClientPart kFloorPartClient{.place = {500, 500, EndsBehindText(0, 6000)},
                                             .row = {1.5},
                                             .size = 14,
                                             .rule_width = 3,
                                             .behind = "　御中",
                                             .text_end = kFloorPartTextEnd};

constexpr ProjectPart FloorPartProject() {
  constexpr float kIndent = 960;
  constexpr float kShortNameX = 1567;
  const RuleEnd by_name{RuleBy::name_size, 20.1, kIndent + 100};
  return {.x = 500,
          .long_name_width = 6000 - kIndent - 1,  // the name ends below that, never at it
          .short_form = {"工事名  ", 12, kShortNameX, 12, {RuleBy::characters, 264, 1600, kFloorPartTextEnd}},
          .long_form = {"工事名　", 12, 500 + kIndent, 13, by_name},
          .broken_form = {"工事名　", 12, 500 + kIndent, 13, by_name},
          .short_row = {3.5},
          .short_rule_row = std::nullopt,
          .long_row = {3.5},
          .long_row_over_sub_project = {3.5},
          .first_row = {2.5},
          .second_row = {3.5},
          .rule_width = 3,
          .rule_width_without_client = 3,
          .short_name_width = kFloorPartTextEnd - kShortNameX};
}

constexpr WeightPart FloorPartWeight(float rule_to, std::string_view label = "総重量",
                                     std::string_view tonnes_mask = kTonnesMask) {
  return {.place = {600, 500, EndsAt(rule_to)}, .row = {5}, .label = label, .tonnes_mask = tonnes_mask};
}

/// Where the sheets of lists tell their scope, and those of diameters.
inline constexpr TextPart kScopeBesideWeight{.x = 3900, .row = {5}};
inline constexpr TextPart kScopeAboveWeight{.x = 500, .row = {4.25}};

constexpr DatePart FloorPartDate(const RuledText& western, const RuledText& era) {
  return {.western = western, .era = era, .row = {4.25}};
}
constexpr DatePart FloorPartDate(const RuledText& both) { return FloorPartDate(both, both); }

/// The page's number, so far below the title's top.
constexpr PagePart FloorPartPage(float x, float below_title = 120) {
  return {.x = x, .row = {0, below_title}};
}

/// A block that would run into the table moves up.
constexpr OwnCompanyPart FloorPartCompany(std::string_view label_font) {
  return {.x = 11200, .y = 1000, .label_font = label_font, .clear_of_row = kFloorPartTableRow};
}
inline constexpr std::string_view kProportionalFont = "ＭＳ Ｐゴシック";

constexpr HeadLayout FloorPartHead(float title_x, std::span<const HeadPart> parts) {
  return {.title = {title_x, title_x - 200, EndsBehindText()},
          .title_y = kFloorPartTitleY,
          .rows = kFloorPartRows,
          .parts = parts};
}

inline constexpr RuledText kListDate{7050, 6750, EndsAt(9550)};
inline constexpr RuledText kDiameterDate{7000, 6700, EndsAt(9500)};

// 階別合計数量表 and 部位別合計数量表, as lists.
inline constexpr std::array<HeadPart, 7> kKaiGoukeiParts{kFloorPartClient,
                                                         FloorPartProject(),
                                                         FloorPartWeight(3800),
                                                         kScopeBesideWeight,
                                                         FloorPartDate(kListDate),
                                                         FloorPartPage(9600),
                                                         FloorPartCompany(kProportionalFont)};
inline constexpr HeadLayout kKaiGoukeiHead = FloorPartHead(5900, kKaiGoukeiParts);
inline constexpr std::array<HeadPart, 6> kBuiGoukeiParts{
    kFloorPartClient,   FloorPartProject(),       FloorPartWeight(3800),
    kScopeBesideWeight, FloorPartDate(kListDate), FloorPartCompany(kProportionalFont)};
inline constexpr HeadLayout kBuiGoukeiHead = FloorPartHead(5900, kBuiGoukeiParts);

// Sheets of diameters: of one floor, of the range, of one part.
constexpr std::array<HeadPart, 7> DiameterSheetParts(std::string_view weight_label, const PagePart& page) {
  return {kFloorPartClient,
          FloorPartProject(),
          FloorPartWeight(4400, weight_label),
          kScopeAboveWeight,
          FloorPartDate(kDiameterDate),
          page,
          FloorPartCompany(ReportFont)};
}
inline constexpr std::array<HeadPart, 7> kKakukaiParts = DiameterSheetParts("階重量", FloorPartPage(10200));
inline constexpr HeadLayout kKakukaiHead = FloorPartHead(6500, kKakukaiParts);
inline constexpr std::array<HeadPart, 7> kMeisaiParts = DiameterSheetParts("総重量", FloorPartPage(10200));
inline constexpr HeadLayout kMeisaiHead = FloorPartHead(6500, kMeisaiParts);
/// The number stands above the own company, whose block it reaches into.
inline constexpr std::array<HeadPart, 7> kKakubuiParts =
    DiameterSheetParts("総重量", FloorPartPage(10860, -40));
inline constexpr HeadLayout kKakubuiHead = FloorPartHead(6500, kKakubuiParts);

// Floors by part and diameter.
inline constexpr std::array<HeadPart, 7> kFutoParts{kFloorPartClient,
                                                    FloorPartProject(),
                                                    FloorPartWeight(3800, "総重量", "# t ##0 Kg"),
                                                    kScopeBesideWeight,
                                                    FloorPartDate(kListDate),
                                                    FloorPartPage(9600),
                                                    FloorPartCompany(ReportFont)};
inline constexpr HeadLayout kFutoHead = FloorPartHead(4280, kFutoParts);

// All parts on one page.
inline constexpr std::array<HeadPart, 6> kZenbuiParts{
    kFloorPartClient, FloorPartProject(), FloorPartWeight(4200), kScopeBesideWeight,
    FloorPartDate({8500, 8400, EndsAt(10800)}, {8300, 8200, EndsAt(11000)}),
    // The table ends before the block, which may reach below its top.
    OwnCompanyPart{.x = 11200, .y = 1000, .label_font = kProportionalFont}};
inline constexpr HeadLayout kZenbuiHead = FloorPartHead(5900, kZenbuiParts);

}  // namespace rbt
