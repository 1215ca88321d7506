// SPDX-License-Identifier: MIT
#include "planning/input/make_problem.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <string>
#include <tuple>
#include <utility>

#include "data/bar_tables.h"
#include "data/diameters.h"
#include "planning/problem/bar_rule.h"
#include "planning/problem/refusal.h"
#include "planning/problem/weights.h"
#include "platform/fault.h"

namespace rbt::planning {
namespace {

int MmOf(double metres) { return static_cast<int>(std::lround(metres * 1000.0)); }

std::int64_t BarsOf(const SteelRow& row) { return std::max(0, row.stock_bars); }

/// True when the tally's sums have the row's stock length.
bool IsInSums(double metres, const ClosingRules& closing) {
  const int column = StockIndex(metres);
  return column >= 0 && (column != kColumn13m || closing.sum_13m_column);
}

bool FitsOne(const BarRule& rule, const std::vector<StockLength>& lengths, int cut_mm) {
  return std::ranges::any_of(lengths,
                             [&](const StockLength& l) { return PiecesPerBar(rule, l.mm, cut_mm) > 0; });
}

/// Gathers pieces into groups and supplies, which come out in their order.
class ProblemBuilder {
 public:
  ProblemBuilder(const BarOffer& offer, const SiteLengths* site, const PlanOptions& options)
      : offer_(offer), site_(site) {
    problem_.options = options;
  }

  const PlanOptions& Options() const { return problem_.options; }

  /// The lengths that the pieces of a steel may be cut from.
  const std::vector<StockLength>& LengthsOf(const BarSteel& steel) {
    const auto known = lengths_.find(steel);
    if (known != lengths_.end()) return known->second;
    return lengths_[steel] = LengthsOfSteel(offer_, site_, steel, Options().aim);
  }

  void Plan(const Scopes::Scope& scope, const BarSteel& steel, int cut_mm, PlannedRow row) {
    names_[scope.place] = scope.name;
    Cut& cut = groups_[{scope.place, steel}][cut_mm];
    cut.mm = cut_mm;
    cut.count += row.pieces;
    row.place = rows_++;
    cut.rows.push_back(std::move(row));
  }

  void Keep(KeptRow row) {
    if (row.stock_mm > 0) {
      row.table_weight = TableMilligrams(row.steel.diameter, row.stock_mm);
      row.price = PriceOf(offer_, row.steel.diameter, row.stock_mm);
    }
    problem_.kept.push_back(row);
  }

  Problem Build() {
    std::map<BarSteel, std::size_t> supplies;
    for (const auto& [key, cuts] : groups_) supplies[key.second] = 0;
    for (auto& [steel, index] : supplies) {
      index = problem_.supplies.size();
      problem_.supplies.push_back({steel, LengthsOf(steel), RestsOf(offer_, steel)});
    }
    for (auto& [key, cuts] : groups_) {
      Group group{names_[key.first], supplies[key.second], {}};
      for (auto& [mm, cut] : cuts) group.cuts.push_back(std::move(cut));
      CheckSize(group);
      problem_.groups.push_back(std::move(group));
    }
    return std::move(problem_);
  }

 private:
  using Cuts = std::map<int, Cut, std::greater<>>;

  /// Even every cut by itself, from the length that is dearest for it, must leave the costs and weights of
  /// all groups within 64 bits.
  void CheckSize(const Group& group) {
    constexpr double kMost = static_cast<double>(std::numeric_limits<std::int64_t>::max()) / 2.0;
    for (const Cut& cut : group.cuts) {
      double dearest = 0.0;
      for (const StockLength& length : problem_.supplies[group.supply].lengths) {
        const int per_bar = PiecesPerBar(Options().bar, length.mm, cut.mm);
        if (per_bar == 0) continue;
        const double bars = std::ceil(static_cast<double>(cut.count) / per_bar);
        dearest = std::max(dearest, bars * static_cast<double>(std::max(length.cost, length.table_weight)));
      }
      dearest_ += dearest;
    }
    if (dearest_ > kMost) throw Fault(FaultKind::overflow, "pieces of a plan");
  }

  const BarOffer& offer_;
  const SiteLengths* site_;
  Problem problem_;
  std::size_t rows_ = 0;
  double dearest_ = 0.0;  ///< what all cuts cost or weigh by themselves
  std::map<BarSteel, std::vector<StockLength>> lengths_;
  std::map<int, std::string> names_;
  std::map<std::pair<int, BarSteel>, Cuts> groups_;  ///< by the scope's place and the steel
};

/// Sorts a site's rows into planned and kept.
class SiteRows {
 public:
  SiteRows(ProblemBuilder& builder, const ClosingRules& closing, const Scopes& scopes)
      : builder_(builder), closing_(closing), scopes_(scopes) {}

  /// True when the row is planned.
  bool Take(const SteelRow& row) {
    const BarSteel steel{row.diameter, row.kind, row.hoop};
    const std::optional<Scopes::Scope> scope = scopes_.ScopeOf(row.floor);
    if (const auto reason = ReasonToKeep(row, steel, scope.has_value())) {
      builder_.Keep({row.page, row.line, *reason, steel, std::max(0, MmOf(row.stock_m)), BarsOf(row)});
      return false;
    }
    builder_.Plan(*scope, steel, *row.cut_length_mm,
                  {row.page, row.line, *row.pieces, MmOf(row.stock_m), BarsOf(row), {}, 0});
    return true;
  }

 private:
  std::optional<KeptReason> ReasonToKeep(const SteelRow& row, const BarSteel& steel, bool in_scope) {
    const PlanOptions& options = builder_.Options();
    if (!IsInSums(row.stock_m, closing_)) return KeptReason::column;
    if (row.pieces.value_or(0) < 1 || row.cut_length_mm.value_or(0) < 1) return KeptReason::empty;
    if (*row.cut_length_mm > MmOf(row.stock_m) + options.bar.plus) return KeptReason::joined;
    if (options.keep_welded && row.welded) return KeptReason::welded;
    if (!in_scope) return KeptReason::scope;
    const std::vector<StockLength>& lengths = builder_.LengthsOf(steel);
    if (!FitsOne(options.bar, lengths, *row.cut_length_mm)) return KeptReason::too_long;
    return std::nullopt;
  }

  ProblemBuilder& builder_;
  const ClosingRules& closing_;
  const Scopes& scopes_;
};

void TakeBarsOut(TallyTable& table, const SteelRow& row) {
  const int d = DiameterIndex(row.diameter);
  const int l = StockIndex(row.stock_m);
  table.BarCount[d][l] -= row.stock_bars;
  table.StockWeight[d][l] -= Currency::FromDouble(BarWeight(d, l) * row.stock_bars);
}

[[noreturn]] void RefusePiece(const PieceLine& piece, int longest) {
  throw Refusal("line " + std::to_string(piece.line) + ": piece " + std::to_string(piece.length) +
                " is longer than the longest bar " + std::to_string(longest));
}

}  // namespace

Problem MakeProblem(const SiteSchedule& schedule, const SiteLengths& lengths, const BarOffer& offer,
                    const Scopes& scopes, const PlanOptions& options) {
  CheckColumns(offer, lengths.use_13m);
  ProblemBuilder builder(offer, &lengths, options);
  SiteRows rows(builder, schedule.closing, scopes);
  SiteTally tally{schedule.table, schedule.table, schedule.closing};
  for (const SteelRow& row : schedule.rows) {
    if (rows.Take(row)) TakeBarsOut(tally.kept, row);
  }
  CloseSums(tally.schedule, schedule.closing);
  Problem problem = builder.Build();
  problem.site_tally = std::move(tally);
  return problem;
}

Problem MakeProblem(const std::vector<PieceLine>& pieces, const BarOffer& offer, const PlanOptions& options) {
  ProblemBuilder builder(offer, nullptr, options);
  const Scopes::Scope site{0, "site"};
  for (const PieceLine& piece : pieces) {
    if (piece.count == 0) continue;
    const BarSteel steel{piece.diameter, piece.kind, false};
    const std::vector<StockLength>& lengths = builder.LengthsOf(steel);
    if (!FitsOne(options.bar, lengths, piece.length)) RefusePiece(piece, lengths.back().mm);
    builder.Plan(site, steel, piece.length, {0, piece.line, piece.count, 0, 0, piece.mark, 0});
  }
  return builder.Build();
}

std::map<int, std::set<int>> LengthsOfRows(const SiteSchedule& schedule) {
  std::map<int, std::set<int>> lengths;
  for (const SteelRow& row : schedule.rows) {
    if (IsInSums(row.stock_m, schedule.closing)) lengths[row.diameter].insert(MmOf(row.stock_m));
  }
  return lengths;
}

}  // namespace rbt::planning
