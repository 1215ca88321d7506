// SPDX-License-Identifier: MIT
#include <algorithm>
#include <string>

#include <fmt/format.h>

#include "data/diameters.h"
#include "platform/numbers/number_words.h"
#include "shell/config/settings.h"
#include "shell/context/fixed_stock.h"
#include "tally/engine/stock_engine.h"

namespace rbt {

EngineStateData EngineState;

namespace {

static_assert(std::equal(StockLimitKeys.begin(), StockLimitKeys.end(), kDeformedDiameters.begin(),
                         kDeformedDiameters.end(), [](const StockLimitKey& key, const Diameter& deformed) {
                           return key.diameter_code == deformed.code;
                         }));

std::int32_t ReadNumber(const IniKey& key) {
  const std::string text = ReadSteelIni(key);
  return ToInt32(LeadingNumber(text), PlaceOf(key, text));
}

}  // namespace

StockLengthLimits GetStockLengthLimits() {
  StockLengthLimits limits;
  for (const StockLimitKey& key : StockLimitKeys) {
    limits.Set(key.diameter_code, ReadNumber(key.shortest), ReadNumber(key.longest));
  }
  limits.ones_rounding = ReadNumber(kOnesRoundingKey);
  for (const int thin : kUlbonOnlyCodes) limits.Set(thin, limits.Min(10), limits.Max(10));
  return limits;
}

std::string PlaceOfShortestStock(std::int32_t diameter_code) {
  const auto* const thin = std::find(kUlbonOnlyCodes.begin(), kUlbonOnlyCodes.end(), diameter_code);
  const std::int32_t code =
      thin == kUlbonOnlyCodes.end() ? diameter_code : StockLimitKeys.front().diameter_code;
  const auto* const key =
      std::find_if(StockLimitKeys.begin(), StockLimitKeys.end(),
                   [code](const StockLimitKey& each) { return each.diameter_code == code; });
  if (key == StockLimitKeys.end()) return fmt::format("diameter {}", diameter_code);
  return fmt::format("STEEL.INI [{}] {}", key->shortest.section, key->shortest.key);
}

std::int16_t ReadPlus() {
  const std::string text = ReadSetting(kPlusKey);
  EngineState.Plus = ToInt16(LeadingNumber(text), PlaceOf(kPlusKey, text));
  return EngineState.Plus;
}

EngineSettings ReadEngineSettings() {
  EngineSettings settings;
  settings.limits = GetStockLengthLimits();
  settings.plus = ReadPlus();
  settings.loss_priority = ReadSetting(kLossPriorityKey);
  EngineState.LossPriority = settings.loss_priority;
  if (Settings.UseFixedTable == 1) {
    ReadFixedStockTable();
    settings.fixed_stock = GetFixedStockLength;
  }
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
