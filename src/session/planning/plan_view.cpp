// SPDX-License-Identifier: MIT
#include "session/planning/plan_view.h"

#include <array>
#include <iterator>
#include <map>
#include <optional>
#include <set>

#include <fmt/format.h>

#include "data/bar_tables.h"
#include "planning/outcome/pattern_shares.h"
#include "planning/outcome/plan_text.h"
#include "platform/numbers/number_mask.h"

namespace rbt {
namespace {

using planning::BarSteel;
using planning::Outcome;
using planning::OutcomeGroup;
using planning::PurchaseLine;

constexpr std::size_t kFirstLength = 1;
constexpr std::size_t kRests = kFirstLength + kStockColumns + 2;  // behind number and weight
constexpr double kUnit = 1e6;

std::string Count(std::int64_t number) { return FormatNumber(number, "#,###"); }
std::string Kilograms(planning::Milligrams weight) {
  return FormatNumber(static_cast<double>(weight) / kUnit, "#,##0");
}
std::string Yen(std::int64_t micros) {
  return FormatNumber(static_cast<double>(micros) / kUnit, "#,##0") + " 円";
}
std::string Percent(double percent) { return FormatNumber(percent, "0.000") + " %"; }

std::string LossText(const planning::Figures& figures) {
  std::string text = Percent(figures.loss_percent);
  if (!figures.tally) return text;
  return text + "（集計 " + FormatNumber(figures.tally->loss_rate_percent, "0.00") + " %）";
}

/// The column of a stock length; nothing for one that the tally has no column for.
std::optional<std::size_t> ColumnOf(int mm) {
  const int column = StockIndex(mm / 1000.0);
  if (column < 0) return std::nullopt;
  return kFirstLength + static_cast<std::size_t>(column);
}

/// The steels that bars are bought or cut of, in the order of the rows.
std::vector<BarSteel> SteelsOf(const Outcome& outcome) {
  std::set<BarSteel> steels;
  for (const PurchaseLine& line : outcome.purchase) steels.insert(line.steel);
  for (const OutcomeGroup& group : outcome.groups) steels.insert(group.steel);
  return {steels.begin(), steels.end()};
}

struct SumRow {
  std::vector<std::int64_t> bars = std::vector<std::int64_t>(kStockColumns, 0);
  std::int64_t all = 0;
  planning::Milligrams weight = 0;
  std::int64_t rests = 0;

  void Add(const PurchaseLine& line) {
    if (const auto column = ColumnOf(line.stock_mm)) bars[*column - kFirstLength] += line.Bars();
    all += line.Bars();
    weight += line.table_weight;
  }
  std::vector<std::string> Texts(std::string name) const {
    std::vector<std::string> texts{std::move(name)};
    texts.reserve(bars.size() + 4);
    for (const std::int64_t count : bars) texts.push_back(Count(count));
    texts.push_back(Count(all));
    texts.push_back(Kilograms(weight));
    texts.push_back(Count(rests));
    return texts;
  }
};

std::int64_t RestBars(const OutcomeGroup& group) {
  std::int64_t bars = 0;
  for (const planning::OutcomePattern& of : group.patterns) bars += of.pattern.rest ? of.pattern.bars : 0;
  return bars;
}

std::string RowsText(const std::vector<planning::CutShares>& shares) {
  std::string text;
  for (const planning::CutShares& cut : shares) {
    text += fmt::format("{}{}:", text.empty() ? "" : "  ", cut.cut_mm);
    for (const planning::OutcomeShare& share : cut.rows) {
      text += " " + planning::PlaceText(share);
    }
  }
  return text;
}

PlanBarView BarOf(const planning::OutcomePattern& of, const planning::BarRule& rule,
                  const std::vector<planning::CutShares>& shares) {
  PlanBarView bar;
  bar.stock_mm = of.pattern.stock_mm;
  bar.marks = planning::MarksOf(rule, of.pattern);
  bar.cuts.reserve(bar.marks.size());
  for (const auto& [cut, pieces] : of.pattern.pieces) {
    for (int piece = 0; piece < pieces; ++piece) bar.cuts.push_back(cut);
  }
  bar.left_mm = of.left_mm;
  bar.trim_mm = planning::TrimOf(rule, of.pattern);
  bar.head = fmt::format("{} x {} 本   {}   残 {} mm", of.pattern.stock_mm, of.pattern.bars,
                         planning::PiecesText(of.pattern), of.left_mm);
  bar.rows = RowsText(shares);
  return bar;
}

/// What a cell stands for: a steel and a stock length.
struct CellBars {
  BarSteel steel;
  std::size_t column;
};
std::optional<CellBars> CellOf(const Outcome& outcome, std::size_t row, std::size_t column) {
  const std::vector<BarSteel> steels = SteelsOf(outcome);
  const bool of_length = column >= kFirstLength && column < kFirstLength + kStockColumns;
  if (row >= steels.size() || (!of_length && column != kRests)) return std::nullopt;
  return CellBars{steels[row], column};
}

bool IsOf(const planning::Pattern& pattern, std::size_t column) {
  return pattern.rest ? column == kRests : ColumnOf(pattern.stock_mm) == column;
}

/// Bars of the cell that rows which stay as scheduled buy.
std::int64_t KeptBars(const Outcome& outcome, std::size_t row, std::size_t column) {
  const std::optional<CellBars> cell = CellOf(outcome, row, column);
  std::int64_t kept = 0;
  for (const PurchaseLine& line : outcome.purchase) {
    if (cell && line.steel == cell->steel && ColumnOf(line.stock_mm) == cell->column) kept += line.kept;
  }
  return kept;
}

constexpr std::array<ControlHint, 6> kHints{{
    {"dbgPlan", "矢印で移る、Enter でその定尺の切断パターンを見る"},
    {"cmdPurchase", "購買計画表を印字する"},
    {"cmdOptions", "切断しろ・定尺・残材など、計画の条件を変える"},
    {"cmdShop", "切断指示書を印字する"},
    {"cmdAdvice", "買う定尺の種類を減らしたときのロスを比べて選ぶ"},
    {"cmdExit", "探すのをやめて今の計画を残す、次に一つ前に戻る"},
}};

}  // namespace

std::vector<std::string> PlanCaptions() {
  std::vector<std::string> captions{"鋼材"};
  captions.reserve(kStockColumns + 4);
  for (int column = 0; column < kStockColumns; ++column) {
    captions.push_back(FormatNumber(StockMetres(column), "0.0"));
  }
  captions.insert(captions.end(), {"本数", "㎏", "残材"});
  return captions;
}

GridRows PlanRows(const Outcome& outcome) {
  std::map<BarSteel, SumRow> sums;
  SumRow total;
  for (const PurchaseLine& line : outcome.purchase) {
    sums[line.steel].Add(line);
    total.Add(line);
  }
  for (const OutcomeGroup& group : outcome.groups) {
    const std::int64_t rests = RestBars(group);
    sums[group.steel].rests += rests;
    total.rests += rests;
  }
  GridRows rows;
  rows.reserve(sums.size() + 1);
  for (const auto& [steel, sum] : sums) rows.push_back(sum.Texts(planning::SteelText(steel)));
  rows.push_back(total.Texts("合計"));
  return rows;
}

std::vector<PlanBarView> BarsOfCell(const Outcome& outcome, std::size_t row, std::size_t column) {
  std::vector<PlanBarView> bars;
  const std::optional<CellBars> cell = CellOf(outcome, row, column);
  for (const OutcomeGroup& group : cell ? outcome.groups : std::vector<OutcomeGroup>()) {
    if (group.steel != cell->steel) continue;
    const auto shares = planning::SharesOf(group);
    for (std::size_t p = 0; p < group.patterns.size(); ++p) {
      const planning::OutcomePattern& of = group.patterns[p];
      if (!IsOf(of.pattern, cell->column)) continue;
      bars.push_back(BarOf(of, outcome.options.bar, shares[p]));
    }
  }
  return bars;
}

std::string NameOfCell(const Outcome& outcome, std::size_t row, std::size_t column) {
  const std::optional<CellBars> cell = CellOf(outcome, row, column);
  if (!cell) return "";
  return planning::SteelText(cell->steel) + " " + PlanCaptions()[column] + (column == kRests ? "" : " m");
}

std::string KeptText(const Outcome& outcome, std::size_t row, std::size_t column) {
  const std::int64_t kept = KeptBars(outcome, row, column);
  return kept == 0 ? "" : "   加工帳のまま " + Count(kept) + " 本";
}

bool HoldsBars(const Outcome& outcome, std::size_t row, std::size_t column) {
  return KeptBars(outcome, row, column) > 0 || !BarsOfCell(outcome, row, column).empty();
}

std::vector<std::string> LossTexts(const Outcome& outcome) {
  std::vector<std::string> texts;
  if (outcome.schedule) texts.push_back("加工帳 " + LossText(*outcome.schedule));
  texts.push_back("行ごと " + LossText(outcome.per_row));
  texts.push_back("計画 " + LossText(outcome.plan.common));
  return texts;
}

std::string BoundText(const Outcome& outcome) {
  std::string text;
  if (outcome.bound.loss_percent) {
    text = "下限 " + Percent(*outcome.bound.loss_percent);
  } else {
    text = "下限 " + Yen(outcome.bound.cost) + "   計画 " + Yen(outcome.bound.plan_cost);
  }
  if (outcome.bound.gap_percent) text += "   差 " + Percent(*outcome.bound.gap_percent);
  return text;
}

std::string CountsText(const Outcome& outcome) {
  std::string text =
      fmt::format("切断 {}   パターン {}   定尺 {} 種類", FormatNumber(outcome.plan.common.cuts, "#,##0"),
                  FormatNumber(outcome.plan.patterns, "#,##0"), outcome.plan.lengths);
  if (outcome.plan.usable_weight > 0)
    text += "   使える残材 " + Kilograms(outcome.plan.usable_weight) + " ㎏";
  if (!outcome.kept.empty()) text += fmt::format("   計画外 {} 行", Count(std::ssize(outcome.kept)));
  if (!outcome.short_rows.empty())
    text += fmt::format("   不足 {} 行", Count(std::ssize(outcome.short_rows)));
  return text;
}

std::span<const ControlHint> PlanHints() { return kHints; }

}  // namespace rbt
