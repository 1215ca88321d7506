// SPDX-License-Identifier: MIT
#include "tally/engine/stock_engine.h"

#include <algorithm>
#include <optional>

#include <fmt/format.h>

#include "platform/fault.h"
#include "platform/numbers/number_words.h"

namespace rbt {
namespace {

constexpr std::int32_t kLongestCut = 12000;
constexpr double kStep = 500.0;  ///< mm between two stock lengths
constexpr int kLast = 19;        ///< 12.5 m: never searched, but it takes part in the choice of the best
constexpr int kLastSearched = 18;
constexpr int kPlaces = 21;  ///< 3.0 m to 13.0 m, the last at which the search can begin
constexpr double kUntouchedLoss = 5000.0;
constexpr double kUntouchedWaste = 2147483647.0;

[[noreturn]] void ThrowDivisionByZero(std::int32_t cut_mm) {
  throw Fault(FaultKind::division_by_zero, "a cut of " + std::to_string(cut_mm) + " mm");
}

/// In 64 bits, as the smallest 32-bit number has no remainder by -1 in 32.
std::int32_t Remainder(std::int64_t dividend, std::int32_t divisor) {
  return static_cast<std::int32_t>(dividend % divisor);
}

/// The group as the rules count with it.
struct Group {
  std::int32_t cut;
  double count;
  std::int32_t diameter_code;
  double plus;

  /// Asked only where the rules round: a count beyond 32 bits faults there and not before.
  std::int32_t RoundedCount() const { return ToInt32(count, "count"); }
  double PiecesIn(double stock_mm) const {
    if (cut == 0) ThrowDivisionByZero(cut);
    return Fix((stock_mm + plus) / cut);
  }
  std::int32_t LeftOver(double pieces) const {
    if (pieces == 0.0) ThrowDivisionByZero(cut);
    return Remainder(RoundedCount(), ToInt32(pieces, "pieces of a bar"));
  }
  double FullBars(double pieces) const {
    if (pieces == 0.0) ThrowDivisionByZero(cut);
    return Fix(count / pieces);
  }
  std::int32_t Bars(double pieces) const { return WithLastBar(FullBars(pieces), pieces); }
  /// One more bar for the pieces that fill none.
  std::int32_t WithLastBar(double full_bars, double pieces) const {
    return ToInt32(full_bars + (LeftOver(pieces) != 0 ? 1.0 : 0.0), "StockBars");
  }
};

struct Choice {
  double stock_m;
  std::int32_t bars;
};

StockResult FromFixedTable(const Group& group, std::int32_t stock_mm) {
  const double pieces = LeadingNumber(Get_KiriHonsu(group.cut, stock_mm));
  if (pieces == 0.0) ThrowDivisionByZero(group.cut);
  // The table's bars are rounded down where the search cuts off: only a count below 0 tells.
  const std::int32_t bars = group.WithLastBar(Int(group.count / pieces), pieces);
  return {bars, ToInt32(pieces, "PiecesPerBar"), Currency::FromDouble(stock_mm / 1000.0).ToDouble()};
}

/// The cut length is a stock length itself, or the pieces laid end to end fit one bar.
std::optional<Choice> WithoutSearch(const Group& group, std::int32_t total, std::int32_t min,
                                    std::int32_t max) {
  const std::int32_t half_metres = group.cut / 500;
  if (min / kStep <= half_metres && group.cut % 500 == 0) {
    return Choice{half_metres / 2.0, group.RoundedCount()};
  }
  const auto plus = static_cast<std::int32_t>(group.plus);
  if (total <= AddInt32(min, plus, "shortest stock")) return Choice{min / 1000.0, 1};
  if (total <= AddInt32(max, plus, "longest stock")) {
    const std::int32_t fitting = total / 500;
    const bool longer = total - (fitting * 500 + plus) >= 1;
    return Choice{(longer ? fitting + 1 : fitting) / 2.0, 1};
  }
  return std::nullopt;
}

/// Looks through the stock lengths of a diameter, the shortest first.
class Search {
 public:
  Search(const Group& group, bool by_waste) : group_(group), by_waste_(by_waste) {
    for (int k = 1; k <= kLast; ++k) {
      loss_[k] = kUntouchedLoss;
      waste_[k] = kUntouchedWaste;
    }
  }

  Choice Run(std::int32_t min, std::int32_t max) {
    double stock = min;
    int k = ToInt32(Round(min / kStep - 6.0), "shortest stock");
    RequirePlace(k, min);
    while (true) {
      if (const auto hit = Try(k, stock)) return *hit;
      if (stock == max) break;  // a longest stock that the steps of 500 do not hit stops nothing
      stock += kStep;
      if (++k > kLastSearched) break;
    }
    return group_.cut > stock ? LongerThanAnyStock() : Best();
  }

 private:
  /// A length that has no place in the table faults before anything is divided.
  void RequirePlace(int k, std::int32_t min) const {
    if (k >= 0 && k < kPlaces) return;
    throw Fault(FaultKind::subscript_out_of_range,
                fmt::format("{}: no stock is as short or as long as {} mm",
                            PlaceOfShortestStock(group_.diameter_code), min));
  }

  std::optional<Choice> Try(int k, double stock) {
    double& loss = loss_[k];
    loss = LossOf(stock);
    if (by_waste_ && stock >= group_.cut) waste_[k] = Waste(stock, loss);
    if (loss > group_.plus) return std::nullopt;
    const double pieces = group_.PiecesIn(stock);
    if (by_waste_ && group_.LeftOver(pieces) != 0) return std::nullopt;
    return Choice{stock / 1000.0, group_.Bars(pieces)};
  }

  double LossOf(double stock) const {
    if (group_.cut == 0) ThrowDivisionByZero(group_.cut);
    return Remainder(ToInt32(group_.plus + stock, "stock length"), group_.cut);
  }

  /// Unused pieces of the last bar count in full; that bar's own remainder does not.
  double Waste(double stock, double loss) const {
    const double pieces = group_.PiecesIn(stock);
    const std::int32_t left_over = group_.LeftOver(pieces);
    const double unused = left_over == 0 ? 0.0 : (pieces - left_over) * group_.cut;
    return ToInt32(unused + group_.FullBars(pieces) * loss, "Waste");
  }

  /// One piece a bar, of the next stock length that the cut length needs.
  Choice LongerThanAnyStock() const {
    const double needed = group_.cut - group_.plus;
    const double steps = Fix(needed / kStep);
    const double rounded_up = steps * kStep == needed ? steps : steps + 1.0;
    return {rounded_up * kStep / 1000.0, group_.RoundedCount()};
  }

  /// Among equals the longer stock.
  Choice Best() const {
    const auto& values = by_waste_ ? waste_ : loss_;
    int chosen = 1;
    for (int k = 1; k <= kLast; ++k) {
      if (values[k] <= values[chosen]) chosen = k;
    }
    const double stock_m = (chosen + 6) * 0.5;
    return {stock_m, group_.Bars(group_.PiecesIn(stock_m * 1000.0))};
  }

  const Group& group_;
  bool by_waste_;
  CheckedArray<double, kPlaces> loss_;   ///< remainder of one bar of (k + 6) x 0.5 m
  CheckedArray<double, kPlaces> waste_;  ///< waste of the whole group
};

Choice ChooseStock(const Group& group, const EngineSettings& settings) {
  const std::int32_t total = ToInt32(group.cut * group.count, "cut x count");  // faults before the diameter
  const std::int32_t min = settings.limits.Min(group.diameter_code);
  const std::int32_t max = settings.limits.Max(group.diameter_code);
  if (const auto choice = WithoutSearch(group, total, min, max)) return *choice;
  return Search(group, settings.loss_priority == 1).Run(min, max);
}

}  // namespace

int StockLengthLimits::Index(std::int32_t diameter_code) {
  if (diameter_code < kThinnest || diameter_code > kThickest) {
    throw Fault(FaultKind::subscript_out_of_range, "stock of diameter " + std::to_string(diameter_code));
  }
  return diameter_code - kThinnest;
}

void StockLengthLimits::Set(std::int32_t diameter_code, std::int32_t min_mm, std::int32_t max_mm) {
  min_[Index(diameter_code)] = min_mm;
  max_[Index(diameter_code)] = max_mm;
}

std::string Get_KiriHonsu(std::int32_t cut, std::int32_t stock) {
  if (cut == 0) ThrowDivisionByZero(cut);
  return ShortestDecimal(Int(static_cast<double>(stock) / cut));
}

StockResult ComputeStock(std::int32_t cut_mm, Currency count, std::int32_t diameter_code,
                         const EngineSettings& settings) {
  const Group group{std::min(cut_mm, kLongestCut), count.ToDouble(), diameter_code,
                    static_cast<double>(settings.plus)};
  if (settings.fixed_stock) {
    const std::int32_t fixed_mm = settings.fixed_stock(group.cut, diameter_code);
    if (fixed_mm > 0) return FromFixedTable(group, fixed_mm);
  }
  const Choice choice = ChooseStock(group, settings);
  const double pieces = group.PiecesIn(choice.stock_m * 1000.0);
  const double per_bar = group.count < pieces ? group.RoundedCount() : pieces;
  return {choice.bars, ToInt32(per_bar, "PiecesPerBar"), choice.stock_m};
}

StockResult BarsOfGivenStock(Currency count, std::int32_t pieces_per_bar, double stock_m) {
  if (pieces_per_bar == 0) return {};
  const double pieces_wanted = count.ToDouble();
  const std::int32_t rounded = ToInt32(pieces_wanted, "count");
  if (pieces_per_bar == 1) return {rounded, 1, stock_m};
  const double bars =
      Fix(pieces_wanted / pieces_per_bar) + (Remainder(rounded, pieces_per_bar) != 0 ? 1.0 : 0.0);
  return {ToInt32(bars, "StockBars"), pieces_per_bar, stock_m};
}

std::int32_t PiecesOfGivenStock(double stock_m, std::int32_t cut_mm, std::int16_t plus) {
  const std::int32_t usable_mm = ToInt32(stock_m * 1000.0 + plus, "stock length");
  if (cut_mm == 0) ThrowDivisionByZero(cut_mm);
  const std::int64_t pieces = std::int64_t{usable_mm} / cut_mm;
  return ToInt32(static_cast<double>(pieces), "pieces of a bar");
}

}  // namespace rbt
