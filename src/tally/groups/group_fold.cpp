// SPDX-License-Identifier: MIT
#include "tally/groups/group_fold.h"

#include <utility>

#include "data/bar_tables.h"
#include "data/diameters.h"
#include "data/shapes.h"
#include "platform/fault.h"
#include "platform/numbers/number_words.h"
#include "platform/text/characters.h"
#include "tally/count_cells.h"

namespace rbt {
namespace {

/// Metres of installed bar in a group; a null length makes none.
double InstalledMetres(const BarGroup& group) {
  return group.cut_length_mm.value_or(0) / 1000.0 * group.pieces.ToDouble();
}

/// A weld between two diameters counts at the thicker.
int WeldRow(const BarGroup& group, int row, int (*row_of_diameter)(int)) {
  const bool welded_to_thicker = group.weld_diameter_code && *group.weld_diameter_code > group.diameter_code;
  return welded_to_thicker ? row_of_diameter(*group.weld_diameter_code) : row;
}

/// As the store groups texts: which of its rows a group shows the text of is no matter.
bool AreSameDimensions(const std::optional<std::string>& a, const std::optional<std::string>& b) {
  return a.has_value() == b.has_value() && (!a || EqualIgnoringCase(*a, *b));
}

/// The sum of the welds is asked for where it counts, and so is its range.
std::int32_t WeldsOf(const BarGroup& group) {
  return ToInt32(group.welds.value_or(0.0), "加工テーブル.合計圧接");
}

bool CountsWelds(const BarGroup& group, bool count_hoop_welds) {
  return count_hoop_welds || group.shape != kWeldedHoopShape;
}

/// For faults of a step of a fold: they name the group.
auto PlaceIn(const BarGroup& group) {
  return [&group] { return PlaceOf(group); };
}

/// The statement gives the sum of ネジ数 another name than the one that is read for a thin bar: a gap that
/// stays, as thin bars are Ulbon and never come here.
[[noreturn]] void ThrowThinBar(const BarGroup& group) {
  const int u = UlbonIndex(group.diameter_code);
  if (u < 0) throw Fault(FaultKind::subscript_out_of_range, "diameter row " + std::to_string(u));
  throw Fault(FaultKind::field_not_found, "ネジ数");
}

void AddUlbonGroup(TallyTable& table, const BarGroup& group, bool count_hoop_welds) {
  const int u = UlbonIndex(group.diameter_code);
  table.UlbonLengthM[u] += InstalledMetres(group);
  table.UlbonWeight[u] = table.UlbonLengthM[u] * UnitWeight(u);
  if (CountsWelds(group, count_hoop_welds)) {
    AddCount(table.UlbonWeldCount, WeldRow(group, u, UlbonIndex), WeldsOf(group), "合計圧接");
  }
  AddCount(table.UlbonThreadCount, u, group.threads, "合計ネジ数");
  AddCount(table.UlbonPlateCount, u, group.plates, "合計定着板数");
}

}  // namespace

void FoldUlbonGroup(TallyTable& table, const BarGroup& group, bool count_hoop_welds) {
  At(PlaceIn(group), [&] { AddUlbonGroup(table, group, count_hoop_welds); });
}

GroupFold::GroupFold(TallyTable& table, GroupRules rules) : table_(table), rules_(std::move(rules)) {}

void GroupFold::Add(const BarGroup& group) {
  if (!held_) {
    held_ = group;
    held_->pieces = Currency();
  }
  if (DiameterIndex(held_->diameter_code) < 0) At(PlaceIn(*held_), [&] { ThrowThinBar(*held_); });
  if (HasSamePieces(group)) {
    held_->pieces += group.pieces;
  } else {
    Finish();
    held_ = group;
  }
  At(PlaceIn(group), [&] { CountWeldsThreadsPlates(group); });
}

bool GroupFold::HasSamePieces(const BarGroup& group) const {
  const BarGroup& held = *held_;
  return held.diameter_code == group.diameter_code && held.shape == group.shape &&
         held.cut_length_mm == group.cut_length_mm && AreSameDimensions(held.dimensions, group.dimensions) &&
         (!rules_.keep_schedule_stock || held.stock_length_m == group.stock_length_m);
}

/// A weld row is asked for even when there is no weld to add, and a row that is no diameter ends the tally.
void GroupFold::CountWeldsThreadsPlates(const BarGroup& group) {
  const int d = DiameterIndex(group.diameter_code);
  if (CountsWelds(group, rules_.count_hoop_welds)) {
    AddCount(table_.WeldCount, WeldRow(group, d, DiameterIndex), WeldsOf(group), "合計圧接");
  }
  AddCount(table_.ThreadCount, d, group.threads, "合計ネジ数");
  AddCount(table_.PlateCount, d, group.plates, "合計定着板数");
}

void GroupFold::BuyStock() {
  const int d = DiameterIndex(held_->diameter_code);
  const StockResult stock = rules_.choose_stock(*held_);
  const int l = StockIndex(stock.StockLengthM);
  AddCount(table_.BarCount[d], l, stock.StockBars, "StockBars");
  table_.StockWeight[d][l] += Currency::FromDouble(rules_.bar_weight(d, l) * stock.StockBars);
  table_.CutLengthM[d][l] += InstalledMetres(*held_);
}

void GroupFold::Finish() {
  if (!held_) return;
  At(PlaceIn(*held_), [&] { BuyStock(); });
}

}  // namespace rbt
