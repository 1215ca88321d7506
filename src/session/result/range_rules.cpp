// SPDX-License-Identifier: MIT
#include "session/result/range_rules.h"

#include <fmt/format.h>

namespace rbt {

namespace {

constexpr std::string_view kInputError = "入力エラー";
constexpr std::size_t kLeftBox = 0;
constexpr std::size_t kRightBox = 1;

RangeRefusal Refused(PositionBox box, std::string text) {
  return {std::move(text), "", static_cast<std::size_t>(box), std::nullopt};
}

}  // namespace

std::optional<RangeRefusal> PositionRefusal(PositionBox box, const PositionRange& entered,
                                            const ScheduleRows& rows) {
  const auto& [first, last] = entered;
  const bool at_start = box == PositionBox::start_page || box == PositionBox::start_line;
  const SchedulePosition& at = at_start ? first : last;
  switch (box) {
    case PositionBox::start_page:
    case PositionBox::end_page:
      if (!rows.has_page(at.page))
        return Refused(box, fmt::format("{}頁にはデーターがありません。", at.page));
      break;
    case PositionBox::start_line:
    case PositionBox::end_line:
      if (!rows.has_position(at)) {
        return Refused(box, fmt::format("{}頁{}行にはデーターがありません。", at.page, at.line));
      }
      break;
  }
  if (box == PositionBox::end_page && last.page < first.page) {
    return Refused(box, "開始頁より大きい頁を入力して下さい。");
  }
  // On a later page any line comes after the start.
  if (box == PositionBox::end_line && last.page <= first.page && last.line < first.line) {
    return Refused(box, "開始行より大きい行を入力して下さい。");
  }
  return std::nullopt;
}

ScheduleRows RowsOf(Database& schedule) {
  return {
      [&schedule](std::int32_t page) { return schedule.HasRows(RowsOfPage(page)); },
      [&schedule](const SchedulePosition& position) { return schedule.HasRows(RowsOfPosition(position)); }};
}

std::optional<RangeRefusal> PositionsRefusal(Database& schedule, const PositionRange& entered,
                                             std::span<const PositionBox> boxes) {
  const ScheduleRows rows = RowsOf(schedule);
  for (const PositionBox box : boxes) {
    if (auto refusal = PositionRefusal(box, entered, rows)) return refusal;
  }
  return std::nullopt;
}

std::optional<RangeRefusal> ShapeRangeRefusal(const ShapeRange& entered, const ShapeRange& whole) {
  if (entered.first < whole.first) {
    return RangeRefusal{"形状Noの最小値より小さい値は、入力できません", kInputError, kLeftBox, whole.first};
  }
  if (entered.last > whole.last) {
    return RangeRefusal{"形状Noの最大値より大きい値は、入力できません", kInputError, kRightBox, whole.last};
  }
  if (entered.last < entered.first) {
    return RangeRefusal{"左側より小さい値は、入力できません", kInputError, kRightBox, std::nullopt};
  }
  return std::nullopt;
}

std::string RowsOfPage(std::int32_t page) {
  return fmt::format(
      "SELECT 行No, 頁, 行 "
      "FROM 加工テーブル "
      "WHERE 頁 = {}",
      page);
}

std::string RowsOfPosition(const SchedulePosition& position) {
  return RowsOfPage(position.page) + fmt::format(" AND 行 = {}", position.line);
}

std::string HighStrengthRowsOf(const ShapeRange& shapes) {
  return fmt::format("SELECT 予備2 FROM 加工テーブル WHERE 予備2=3 AND 形状No>={} AND 形状No<={}",
                     shapes.first, shapes.last);
}

}  // namespace rbt
