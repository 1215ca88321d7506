// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/numbers/checked_array.h"
#include "platform/numbers/currency.h"

namespace rbt {

/// Stock for one group of equal pieces.
struct StockResult {
  std::int32_t StockBars = 0;     ///< stock bars that the group takes
  std::int32_t PiecesPerBar = 0;  ///< pieces out of one bar
  double StockLengthM = 0.0;      ///< metres; not always a length that has a column

  friend bool operator==(const StockResult&, const StockResult&) = default;
};

/// What the engine keeps between calls.
struct EngineStateData {
  StockResult TeijyakuResult;     ///< of the last call
  std::int16_t Plus = 0;          ///< as last read: mm that a bar may be longer than its stock length
  std::int32_t LossPriority = 0;  ///< as last read: 1 chooses by the waste of the whole group
};

extern EngineStateData EngineState;

/// Shortest and longest stock of each diameter in mm. Diameters 6, 7, 9, 11 and 12 follow D10; a code from 6
/// to 51 that no bar has is 0, one outside is `subscript out of range`.
class StockLengthLimits {
 public:
  std::int32_t Min(std::int32_t diameter_code) const { return min_[Index(diameter_code)]; }
  std::int32_t Max(std::int32_t diameter_code) const { return max_[Index(diameter_code)]; }
  void Set(std::int32_t diameter_code, std::int32_t min_mm, std::int32_t max_mm);

  std::int32_t ones_rounding = 2;  ///< １の位まるめ: read with the limits for the family; no tally uses it

 private:
  static constexpr std::int32_t kThinnest = 6;
  static constexpr std::int32_t kThickest = 51;
  static int Index(std::int32_t diameter_code);

  CheckedArray<std::int32_t, kThickest - kThinnest + 1> min_;
  CheckedArray<std::int32_t, kThickest - kThinnest + 1> max_;
};

/// The limits as STEEL.INI has them: the number that a text begins with, 0 when there is none; 3500 and 12000
/// where the key is missing.
StockLengthLimits GetStockLengthLimits();

/// The setting that holds a diameter's shortest stock, for a fault: "STEEL.INI [加工帳] D10最小値", also for
/// the thin diameters that follow it; for a code that no bar has "diameter 8".
std::string PlaceOfShortestStock(std::int32_t diameter_code);

/// Fixed stock length in mm for a cut length in mm and a diameter code; not above 0 when there is none.
using FixedStockLookup = std::function<std::int32_t(std::int32_t cut_mm, std::int32_t diameter_code)>;

/// What the engine is given besides the group.
struct EngineSettings {
  StockLengthLimits limits;
  std::int16_t plus = 0;
  std::int32_t loss_priority = 0;
  FixedStockLookup fixed_stock = nullptr;  ///< nothing: the table of fixed stock lengths is not asked
};

/// The settings as they stand now; `Plus` and `LossPriority` are left in `EngineState`.
EngineSettings ReadEngineSettings();
/// `長さ` of プラス: a leading number, rounded, 16 bits; left in `EngineState.Plus` too.
std::int16_t ReadPlus();

/// Stock length and bars for `count` pieces (a whole number) of `cut_mm`. Faults: `subscript out of range`
/// for a diameter that has no stock, `division by zero` for a cut of 0 or longer than its fixed stock,
/// `overflow`.
StockResult ComputeStock(std::int32_t cut_mm, Currency count, std::int32_t diameter_code,
                         const EngineSettings& settings);
/// Bars of a stock length that is given, `pieces_per_bar` pieces each; all 0 when a bar holds none.
StockResult BarsOfGivenStock(Currency count, std::int32_t pieces_per_bar, double stock_m);
/// Pieces out of one bar of a given stock length, `plus` allowed for. Faults: `division by zero`, `overflow`.
std::int32_t PiecesOfGivenStock(double stock_m, std::int32_t cut_mm, std::int16_t plus);

/// `ComputeStock` with the settings read anew, into `EngineState.TeijyakuResult`.
void Teijyaku_Keisan(std::int32_t cut, Currency count, std::int32_t diameter);
/// `BarsOfGivenStock` into `EngineState.TeijyakuResult`; `cut` and `diameter` are not looked at.
void Teijyaku_Shitei(std::int32_t cut, Currency count, std::int32_t diameter, std::int32_t pieces,
                     double stock);
/// The text of the whole number of pieces of `cut` mm in a stock of `stock` mm.
std::string Get_KiriHonsu(std::int32_t cut, std::int32_t stock);

}  // namespace rbt
