// SPDX-License-Identifier: MIT
#include "tally/groups/stock_chooser.h"

#include <map>
#include <memory>
#include <optional>
#include <utility>

namespace rbt {
namespace {

FixedStockLookup Remembered(FixedStockLookup look_up) {
  using Known = std::map<std::pair<std::int32_t, std::int32_t>, std::int32_t>;
  return [look_up = std::move(look_up), known = std::make_shared<Known>()](std::int32_t cut_mm,
                                                                           std::int32_t diameter_code) {
    const auto [entry, is_new] = known->try_emplace({cut_mm, diameter_code}, 0);
    if (is_new) entry->second = look_up(cut_mm, diameter_code);
    return entry->second;
  };
}

EngineSettings ReadSettingsOnce() {
  EngineSettings settings = ReadEngineSettings();
  if (settings.fixed_stock) settings.fixed_stock = Remembered(std::move(settings.fixed_stock));
  return settings;
}

StockResult OfScheduleStock(const BarGroup& group) {
  const std::int32_t cut = group.cut_length_mm.value_or(0);
  const std::int32_t pieces = PiecesOfGivenStock(group.stock_length_m, cut, EngineState.Plus);
  Teijyaku_Shitei(cut, group.pieces, group.diameter_code, pieces, group.stock_length_m);
  return EngineState.TeijyakuResult;
}

}  // namespace

std::function<StockResult(const BarGroup& group)> StockChooser(bool keep_schedule_stock) {
  if (keep_schedule_stock) return OfScheduleStock;
  return [settings = std::make_shared<std::optional<EngineSettings>>()](const BarGroup& group) {
    if (!*settings) *settings = ReadSettingsOnce();
    EngineState.TeijyakuResult = {};
    EngineState.TeijyakuResult =
        ComputeStock(group.cut_length_mm.value_or(0), group.pieces, group.diameter_code, **settings);
    return EngineState.TeijyakuResult;
  };
}

}  // namespace rbt
