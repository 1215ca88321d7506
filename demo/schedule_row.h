// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace rbt::demo {

/// One line of a bar schedule as the entry programs leave it: not yet classified. `圧接太さ` 0 stands for the
/// bar's own diameter; `予備3`, `予備5` and `定着板数` are null and have no member.
struct ScheduleRow {
  std::int32_t number = 0;                    ///< 行No, from 1
  std::int32_t page = 0;                      ///< 頁, from 1
  std::int32_t line = 0;                      ///< 行, from 1 on each page
  std::optional<std::int32_t> floor;          ///< 階, -5 to 78; null in lines of old entry programs
  std::optional<std::int32_t> part;           ///< 部位, 1 to 11; null likewise
  std::string_view name;                      ///< 名称
  std::int32_t diameter = 0;                  ///< 太さ
  std::int32_t shape = 1;                     ///< 形状No
  std::array<std::int32_t, 10> dimensions{};  ///< 寸法1 to 寸法10, mm; 0 is null
  std::int32_t bars = 0;                      ///< 本数 per place
  std::int32_t places = 0;                    ///< ヶ所
  std::int32_t total = 0;                     ///< 合計 = 本数 x ヶ所
  std::int32_t cut_mm = 0;                    ///< 伸切寸
  double stock_m = 0.0;                       ///< 伸定尺
  std::int32_t pieces_per_bar = 0;            ///< 伸本定
  std::int32_t stock_bars = 0;                ///< 伸総計 = 合計 / 伸本定, rounded up
  std::int32_t welds = 0;                     ///< 圧接
  std::int32_t weld_diameter = 0;             ///< 圧接太さ
  std::int32_t threads = 0;                   ///< ネジ数
  std::int32_t cuts = 0;                      ///< 切断
  std::optional<std::int32_t> kind;  ///< 予備2: null, 0, 2 U16, 3 high strength, 4 threaded above 200
  std::optional<std::int32_t> registered_name;  ///< 登録名
};

}  // namespace rbt::demo
