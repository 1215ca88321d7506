// SPDX-License-Identifier: MIT
#include "planning/input/bar_offer.h"

#include <algorithm>
#include <string>

#include "data/bar_tables.h"
#include "planning/problem/refusal.h"
#include "planning/problem/weights.h"

namespace rbt::planning {
namespace {

constexpr Milligrams kMilligramsPerKilogram = 1'000'000;
constexpr Micros kMicrosPerMm = 1'000'000;
constexpr int kMmOf13m = 13000;

int MmOfColumn(int column) { return static_cast<int>(StockMetres(column) * 1000.0); }

bool HasColumn(int mm, bool use_13m) {
  const int column = StockIndex(mm / 1000.0);
  return column >= 0 && (column != kColumn13m || use_13m);
}

/// What the lines say of a length: a line of the diameter itself before one of all.
const LengthLine* FindLine(const BarOffer& offer, int diameter, int mm) {
  const LengthLine* found = nullptr;
  if (!offer.length_lines) return found;
  for (const LengthLine& line : *offer.length_lines) {
    if (line.length != mm || (line.diameter != diameter && line.diameter != 0)) continue;
    if (found == nullptr || line.diameter != 0) found = &line;
  }
  return found;
}

std::set<int> LengthsOfLines(const std::vector<LengthLine>& lines, int diameter) {
  std::set<int> lengths;
  for (const LengthLine& line : lines) {
    if (line.diameter == 0 || line.diameter == diameter) lengths.insert(line.length);
  }
  return lengths;
}

std::set<int> LengthsOfSite(const SiteLengths& site, int diameter) {
  std::set<int> lengths;
  for (int column = 0; column < kColumnsTo12m; ++column) {
    const int mm = MmOfColumn(column);
    if (mm >= site.limits.Min(diameter) && mm <= site.limits.Max(diameter)) lengths.insert(mm);
  }
  if (site.use_13m) lengths.insert(kMmOf13m);
  const auto rows = site.of_rows.find(diameter);
  if (rows != site.of_rows.end()) lengths.insert(rows->second.begin(), rows->second.end());
  return lengths;
}

std::set<int> LengthsOf(const BarOffer& offer, const SiteLengths* site, int diameter) {
  if (offer.lengths) return {offer.lengths->begin(), offer.lengths->end()};
  if (offer.length_lines) return LengthsOfLines(*offer.length_lines, diameter);
  return site != nullptr ? LengthsOfSite(*site, diameter) : std::set<int>();
}

void CheckColumn(int mm, bool use_13m) {
  if (!HasColumn(mm, use_13m)) throw Refusal("length " + std::to_string(mm) + " has no column");
}

[[noreturn]] void RefuseDiameter(int diameter) {
  throw Refusal("no stock length is allowed for " + DiameterName(diameter));
}

}  // namespace

std::string DiameterName(int diameter) { return "D" + std::to_string(diameter); }

void CheckColumns(const BarOffer& offer, bool use_13m) {
  for (const int mm : offer.lengths.value_or(std::vector<int>())) CheckColumn(mm, use_13m);
  if (offer.lengths) return;  // the lines say no more than prices and lots
  for (const LengthLine& line : offer.length_lines.value_or(std::vector<LengthLine>())) {
    CheckColumn(line.length, use_13m);
  }
}

std::optional<std::int64_t> PriceOf(const BarOffer& offer, int diameter, int mm) {
  const LengthLine* line = FindLine(offer, diameter, mm);
  return line != nullptr ? line->price : std::nullopt;
}

std::vector<StockLength> AllowedLengths(const BarOffer& offer, const SiteLengths* site, int diameter,
                                        Aim aim) {
  std::vector<StockLength> lengths;
  for (const int mm : LengthsOf(offer, site, diameter)) {
    StockLength length{mm, TableMilligrams(diameter, mm)};
    length.cost = mm * kMicrosPerMm;
    if (const LengthLine* line = FindLine(offer, diameter, mm)) {
      length.price = line->price;
      length.least_lot = line->least_kg * kMilligramsPerKilogram;
    }
    if (aim == Aim::money) {
      if (!length.price) throw Refusal("no price for " + DiameterName(diameter) + " " + std::to_string(mm));
      length.cost = std::max<Micros>(1, length.table_weight * *length.price / kPriceByWeightPerMicro);
    }
    lengths.push_back(length);
  }
  if (lengths.empty()) RefuseDiameter(diameter);
  return lengths;
}

std::vector<StockLength> LengthsOfSteel(const BarOffer& offer, const SiteLengths* site, const BarSteel& steel,
                                        Aim aim) {
  std::vector<StockLength> lengths = AllowedLengths(offer, site, steel.diameter, aim);
  const auto set = offer.sets.find(steel);
  if (set == offer.sets.end()) return lengths;
  const std::vector<int>& taken = set->second;
  std::erase_if(
      lengths, [&](const StockLength& length) { return std::ranges::find(taken, length.mm) == taken.end(); });
  if (lengths.empty()) RefuseDiameter(steel.diameter);
  return lengths;
}

std::vector<RestBar> RestsOf(const BarOffer& offer, const BarSteel& steel) {
  std::map<int, std::int64_t> counts;
  for (const RestLine& rest : offer.rests) {
    const bool of_steel = rest.diameter == steel.diameter && rest.kind == steel.kind && !steel.hoop;
    if (of_steel && rest.count > 0) counts[rest.length] += rest.count;
  }
  std::vector<RestBar> rests;
  rests.reserve(counts.size());
  for (const auto& [mm, count] : counts) rests.push_back({mm, count});
  return rests;
}

}  // namespace rbt::planning
