// SPDX-License-Identifier: MIT
#include <string>

#include "data/fixed_stock.h"
#include "platform/numbers/number_words.h"
#include "shell/config/settings.h"
#include "tally/bar_tables.h"
#include "tally/stock_engine.h"

namespace rbt {

EngineStateData EngineState;

namespace {

std::int32_t ReadLimit(const std::string& key, std::string_view fallback) {
  return ToInt32(LeadingNumber(ReadIniText(kSteelIni, "加工帳", key, fallback)), key);
}

}  // namespace

StockLengthLimits GetStockLengthLimits() {
  StockLengthLimits limits;
  for (int d = 0; d < kDeformedRows; ++d) {
    const std::string diameter(DiameterLabel(d));
    limits.Set(DiameterCode(d), ReadLimit(diameter + "最小値", "3500"),
               ReadLimit(diameter + "最大値", "12000"));
  }
  for (const int thin : {6, 7, 9, 11, 12}) limits.Set(thin, limits.Min(10), limits.Max(10));
  return limits;
}

std::int16_t ReadPlus() {
  EngineState.Plus =
      ToInt16(LeadingNumber(ReadSetting("Kakou", "プラス", "長さ", std::string_view("0"))), "プラス 長さ");
  return EngineState.Plus;
}

EngineSettings ReadEngineSettings() {
  EngineSettings settings;
  settings.limits = GetStockLengthLimits();
  settings.plus = ReadPlus();
  settings.loss_priority = ReadSetting("Kakou", "定尺計算", "ロス優先", std::int32_t{0});
  EngineState.LossPriority = settings.loss_priority;
  if (Settings.UseFixedTable == 1) settings.fixed_stock = GetFixedStockLength;
  return settings;
}

void Teijyaku_Keisan(std::int32_t cut, Currency count, std::int32_t diameter) {
  const EngineSettings settings = ReadEngineSettings();
  EngineState.TeijyakuResult = {};
  EngineState.TeijyakuResult = ComputeStock(cut, count, diameter, settings);
}

void Teijyaku_Shitei(std::int32_t /*cut*/, Currency count, std::int32_t /*diameter*/, std::int32_t pieces,
                     double stock) {
  EngineState.TeijyakuResult = BarsOfGivenStock(count, pieces, stock);
}

}  // namespace rbt
