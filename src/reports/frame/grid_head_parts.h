// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "reports/frame/head_layout.h"

namespace rbt {

/// The parts that the heads of the reports over the tally grid (comparison, Ulbon) share, moved to the left
/// margin of their sheet.

/// 取引先 and the client in row 0. Its rule leaves room for a 御中 (6 bytes) that the line does not carry.
/// Beyond `end` stands the own-company block, 0 where there is none.
constexpr ClientPart ClientFrom(float margin, float end = 0) {
  constexpr double kTwipsPerByte = 283.0 / 2.0;
  return {.place = {margin, margin, {RuleBy::bytes, kTwipsPerByte, 6 * kTwipsPerByte + 100.0, end}},
          .before = "取引先  ",
          .text_end = end};
}

/// The project line: a short name at an X of its own, long names `indent` behind the margin. `rule_end` as
/// the end of the client line.
constexpr ProjectPart ProjectFrom(float margin, float short_name_x, float indent, float rule_end = 0,
                                  std::optional<RowPlace> short_rule_row = RowPlace{2.7}) {
  constexpr float kLongNameEnd = 6000;
  constexpr double kTwipsPerPoint = 20.1;
  const RuleEnd by_name{RuleBy::name_size, kTwipsPerPoint, indent + 100.0, rule_end};
  return {.x = margin,
          .long_name_width = kLongNameEnd - indent,
          .short_form = {"工事名  ", 12, short_name_x, 12, {RuleBy::characters, 264, 1600, rule_end}},
          .long_form = {"工事名", 12, margin + indent, 12, by_name},
          .broken_form = {"工事名　", 12, margin + indent, 13, by_name},
          .short_row = {2},
          .short_rule_row = short_rule_row,
          .long_row = {2, 400, true},
          .long_row_over_sub_project = {1.3, 400, true},
          .first_row = {2.5, 0, true},
          .second_row = {3.5, 0, true},
          .rule_width = 2,
          .rule_width_without_client = 4};  // that of the title
}

/// The sub-project text on the line below the name.
constexpr SubProjectPart SubProjectFrom(float margin, float long_text_size, float text_end) {
  return {.x = margin,
          .under_short = RowPlace{3.3},
          .under_long = RowPlace{1.3, 400},
          .under_broken = RowPlace{3.5, kTextDrop},
          .size = 12,
          .long_text_size = long_text_size,
          .text_end = text_end};
}

}  // namespace rbt
