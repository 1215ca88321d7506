// SPDX-License-Identifier: MIT
#include "planning/outcome/plan_text.h"

#include <algorithm>
#include <array>

#include "data/materials.h"
#include "platform/numbers/number_mask.h"
#include "tally/views/grid_text.h"

namespace rbt::planning {
namespace {

using Captions = std::span<const std::string_view>;

constexpr double kMicrosInWhole = 1e6;
constexpr std::string_view kCount = "#,##0";
constexpr std::string_view kWeight = "#,##0.0";
constexpr std::string_view kPercent = "0.000";

std::string Count(std::int64_t number) { return FormatNumber(number, kCount); }
std::string Units(std::int64_t millionths, std::string_view mask) {
  return FormatNumber(static_cast<double>(millionths) / kMicrosInWhole, mask);
}
std::string Percent(const std::optional<double>& percent) {
  return percent ? FormatNumber(*percent, kPercent) : "";
}

GridRows PurchaseRows(const Outcome& outcome) {
  GridRows rows;
  for (const PurchaseLine& line : outcome.purchase) {
    rows.push_back({DiameterText(line.steel.diameter), KindText(line.steel.kind), HoopText(line.steel),
                    Count(line.stock_mm), Count(line.planned), Count(line.kept), Count(line.Bars()),
                    Units(line.table_weight, kWeight), line.yen ? Units(*line.yen, kCount) : ""});
  }
  return rows;
}

std::vector<std::string> FiguresRow(std::string_view name, const Figures& figures) {
  std::vector<std::string> row{std::string(name),
                               Count(figures.bars),
                               Units(figures.steel_weight, kWeight),
                               Units(figures.table_weight, kWeight),
                               Percent(figures.loss_percent),
                               Count(figures.cuts)};
  if (!figures.tally) return row;
  row.push_back(FormatNumber(figures.tally->stock_weight, kCount));
  row.push_back(FormatNumber(figures.tally->installed_weight, kCount));
  row.push_back(Percent(figures.tally->loss_rate_percent));
  return row;
}

GridRows FiguresRows(const Outcome& outcome) {
  GridRows rows;
  if (outcome.schedule) rows.push_back(FiguresRow("加工帳", *outcome.schedule));
  rows.push_back(FiguresRow("行ごと", outcome.per_row));
  rows.push_back(FiguresRow("計画", outcome.plan.common));
  return rows;
}

GridRows BoundRows(const Outcome& outcome) {
  const std::string_view unit = outcome.options.aim == Aim::money ? "円" : "㎏";
  const auto cost = [&](std::int64_t millionths) {
    return Units(millionths, kWeight) + " " + std::string(unit);
  };
  GridRows rows{{"下限", cost(outcome.bound.cost)},
                {"計画", cost(outcome.bound.plan_cost)},
                {"差 %", Percent(outcome.bound.gap_percent)}};
  if (outcome.bound.loss_percent) rows.push_back({"下限ロス %", Percent(outcome.bound.loss_percent)});
  rows.push_back({"切断パターン", Count(outcome.plan.patterns)});
  rows.push_back({"定尺の種類", Count(outcome.plan.lengths)});
  rows.push_back({"使える残材", Units(outcome.plan.usable_weight, kWeight) + " ㎏"});
  rows.push_back({"計画外の行", Count(static_cast<std::int64_t>(outcome.kept.size()))});
  rows.push_back({"本数不足の行", Count(static_cast<std::int64_t>(outcome.short_rows.size()))});
  if (outcome.stopped != Stopped::no) {
    rows.push_back({"途中で終了", outcome.stopped == Stopped::time ? "時間" : "中止"});
  }
  return rows;
}

GridRows AdviceRows(const Outcome& outcome) {
  GridRows rows;
  for (const OutcomeAdvice& advice : outcome.advice) {
    for (const OutcomeAdvice::Point& point : advice.curve) {
      std::string lengths;
      for (const int mm : point.lengths) lengths += (lengths.empty() ? "" : " ") + std::to_string(mm);
      rows.push_back({DiameterText(advice.steel.diameter), KindText(advice.steel.kind),
                      HoopText(advice.steel), std::to_string(point.count), Units(point.steel_weight, kWeight),
                      Percent(point.loss_percent), lengths});
    }
  }
  return rows;
}

constexpr std::array<std::string_view, 9> kPurchaseCaptions{"鋼材",   "種別", "形状", "定尺 mm", "計画",
                                                            "加工帳", "本数", "㎏",   "円"};
constexpr std::array<std::string_view, 9> kFiguresCaptions{
    "", "本数", "鋼材 ㎏", "表 ㎏", "ロス %", "切断", "定尺重量", "取付重量", "ロス率 %"};
constexpr std::array<std::string_view, 7> kAdviceCaptions{"鋼材", "種別",   "形状",   "定尺の種類",
                                                          "㎏",   "ロス %", "定尺 mm"};
constexpr std::array<std::string_view, 11> kCsvCaptions{"scope", "diameter", "kind", "hoop", "stock", "rest",
                                                        "bars",  "pieces",   "used", "left", "cuts"};

}  // namespace

std::string DiameterText(int diameter) { return diameter == 0 ? "-" : "D" + std::to_string(diameter); }

std::string KindText(int kind) {
  for (const KindWord& of : kKindWords) {
    if (static_cast<int>(of.kind) == kind) return std::string(of.word);
  }
  return std::to_string(kind);
}

std::string HoopText(const BarSteel& steel) { return steel.hoop ? "フープ" : ""; }

std::string SteelText(const BarSteel& steel) {
  return DiameterText(steel.diameter) + " " + KindText(steel.kind) +
         (steel.hoop ? " " + HoopText(steel) : "");
}

std::string PlaceText(const OutcomeShare& share) {
  const auto number = [](const std::optional<int>& of) { return of ? std::to_string(*of) : "-"; };
  // A line of a file has no page.
  std::string place = (share.page == 0 ? "" : number(share.page) + "頁") + number(share.line) + "行";
  if (!share.mark.empty()) place += "[" + share.mark + "]";
  return place + "x" + std::to_string(share.pieces);
}

std::string PiecesText(const Pattern& pattern) {
  std::string text;
  for (const auto& [cut, pieces] : pattern.pieces) {
    if (!text.empty()) text += '+';
    text += std::to_string(cut) + 'x' + std::to_string(pieces);
  }
  return text;
}

std::string PlanTable(const Outcome& outcome) {
  const auto captions = Captions(kFiguresCaptions).first(outcome.schedule ? kFiguresCaptions.size() : 6);
  std::string text = GridTable(kPurchaseCaptions, PurchaseRows(outcome)) + '\n' +
                     GridTable(captions, FiguresRows(outcome)) + '\n' + GridTable(BoundRows(outcome));
  if (outcome.options.advise > 0) text += '\n' + GridTable(kAdviceCaptions, AdviceRows(outcome));
  return text;
}

std::string PlanCsv(const Outcome& outcome) {
  GridRows rows;
  for (const OutcomeGroup& group : outcome.groups) {
    for (const OutcomePattern& of : group.patterns) {
      rows.push_back({group.scope, std::to_string(group.steel.diameter), std::to_string(group.steel.kind),
                      group.steel.hoop ? "1" : "0", std::to_string(of.pattern.stock_mm),
                      of.pattern.rest ? "1" : "0", std::to_string(of.pattern.bars), PiecesText(of.pattern),
                      std::to_string(of.used_mm), std::to_string(of.left_mm), std::to_string(of.cuts)});
    }
  }
  return GridCsv(kCsvCaptions, rows);
}

}  // namespace rbt::planning
