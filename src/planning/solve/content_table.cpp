// SPDX-License-Identifier: MIT
#include "planning/solve/content_table.h"

#include <algorithm>
#include <vector>

namespace rbt::planning {
namespace {

/// Prices as whole numbers, as large as the worth of a full bar allows in 32 bits: four cells of a table are
/// computed at once.
class WholePrices {
 public:
  using Worth = std::int32_t;

  void Set(const CuttingTask& task, ViewByIndex<const double> prices) {
    double dearest = 0.0;  // by weight: no content is worth more than the largest bar full of it
    for (std::size_t i = 0; i < prices.size(); ++i) {
      dearest = std::max(dearest, prices[i] / task.items[i].weight);
    }
    const double most = dearest * std::max(1, task.LargestCapacity());
    scale_ = most > 0.0 ? kLargest / most : 1.0;
    whole_.resize(prices.size());
    // An item that fits no bar may be worth more: it is in no content.
    for (std::size_t i = 0; i < prices.size(); ++i) {
      whole_[i] = static_cast<Worth>(std::min(prices[i] * scale_, kLargest));
    }
  }
  Worth Of(int item) const { return whole_[item]; }
  double Back(Worth worth) const { return worth / scale_; }

 private:
  static constexpr double kLargest = 1 << 30;

  double scale_ = 1.0;
  ByIndex<Worth> whole_;
};

int Most(const CuttingTask& task, int item, int capacity, std::int64_t left) {
  return static_cast<int>(std::min<std::int64_t>(left, capacity / task.items[item].weight));
}

/// What it takes to go through so many cells, a few of them at once.
std::int64_t StepsOfRow(std::size_t cells) { return static_cast<std::int64_t>(cells) / 2; }

/// A bar that the leading item fills alone.
class NothingMore : public ContentTable {
 public:
  bool Fill(ViewByIndex<const double> /*prices*/, ViewByIndex<const std::int64_t> /*left*/,
            Pace& /*pace*/) override {
    return true;
  }
  double Worth(int /*capacity*/) const override { return 0.0; }
  Content ContentAt(int /*capacity*/) const override { return {}; }
  std::int64_t Steps() const override { return 0; }
};

/// One item by itself.
class OneItem : public ContentTable {
 public:
  explicit OneItem(const CuttingTask& task)
      : task_(task), cells_(static_cast<std::size_t>(task.LargestCapacity()) + 1) {}

  bool Fill(ViewByIndex<const double> prices, ViewByIndex<const std::int64_t> left, Pace& pace) override {
    std::ranges::fill(cells_, Cell{});
    const int capacity = task_.LargestCapacity();
    for (int i = 0; i < static_cast<int>(prices.size()); ++i) {
      const int most = Most(task_, i, capacity, left[i]);
      if (pace.StoppedAfter(most)) return false;
      for (int pieces = 1; pieces <= most; ++pieces) {
        Cell& cell = cells_[pieces * task_.items[i].weight];
        if (prices[i] * pieces > cell.worth) cell = {prices[i] * pieces, i, pieces};
      }
    }
    for (std::size_t c = 1; c < cells_.size(); ++c) {
      if (cells_[c - 1].worth >= cells_[c].worth) cells_[c] = cells_[c - 1];
    }
    return true;
  }
  double Worth(int capacity) const override { return cells_[capacity].worth; }
  Content ContentAt(int capacity) const override {
    const Cell& cell = cells_[capacity];
    return cell.pieces == 0 ? Content{} : Content{{cell.item, cell.pieces}};
  }
  std::int64_t Steps() const override { return 2 * static_cast<std::int64_t>(cells_.size()); }

 private:
  struct Cell {
    double worth = 0.0;
    int item = 0;
    int pieces = 0;
  };

  const CuttingTask& task_;
  ByIndex<Cell> cells_;
};

/// Any items: the pieces of an item come in bundles of 1, 2, 4, ... and the rest, each taken or not.
class AnyItems : public ContentTable {
 public:
  explicit AnyItems(const CuttingTask& task)
      : task_(task), size_(static_cast<std::size_t>(task.LargestCapacity()) + 1), next_(size_) {}

  bool Fill(ViewByIndex<const double> prices, ViewByIndex<const std::int64_t> left, Pace& pace) override {
    prices_.Set(task_, prices);
    bundles_.clear();
    worth_.assign(size_, 0);
    const int capacity = static_cast<int>(size_) - 1;
    for (int i = 0; i < static_cast<int>(prices.size()); ++i) {
      if (prices_.Of(i) == 0) continue;
      int most = Most(task_, i, capacity, left[i]);
      for (int pieces = 1; most > 0; pieces *= 2) {
        bundles_.push_back({i, std::min(pieces, most)});
        most -= bundles_.back().pieces;
      }
    }
    taken_.resize(bundles_.size() * size_);
    for (std::size_t b = 0; b < bundles_.size(); ++b) {
      if (pace.StoppedAfter(StepsOfRow(size_))) return false;
      TakeOrLeave(b);
    }
    return true;
  }

  double Worth(int capacity) const override { return prices_.Back(worth_[capacity]); }

  Content ContentAt(int capacity) const override {
    Content content;
    for (std::size_t b = bundles_.size(); b-- > 0;) {
      if (taken_[b * size_ + static_cast<std::size_t>(capacity)] == 0) continue;
      const auto [item, pieces] = bundles_[b];
      capacity -= pieces * task_.items[item].weight;
      if (content.empty() || content.back().first != item) content.emplace_back(item, 0);
      content.back().second += pieces;
    }
    std::ranges::reverse(content);
    return content;
  }

  std::int64_t Steps() const override { return static_cast<std::int64_t>(bundles_.size() * size_) / 2; }

 private:
  struct Bundle {
    int item;
    int pieces;
  };

  void TakeOrLeave(std::size_t bundle) {
    const auto [item, pieces] = bundles_[bundle];
    const std::size_t weight =
        static_cast<std::size_t>(task_.items[item].weight) * static_cast<std::size_t>(pieces);
    const WholePrices::Worth worth = prices_.Of(item) * pieces;
    std::uint8_t* taken = taken_.data() + bundle * size_;
    const WholePrices::Worth* before = worth_.data();
    WholePrices::Worth* after = next_.data();
    std::fill_n(taken, weight, std::uint8_t{0});
    std::copy_n(before, weight, after);
    for (std::size_t c = weight; c < size_; ++c) {
      const WholePrices::Worth with = before[c - weight] + worth;
      taken[c] = with > before[c];
      after[c] = std::max(with, before[c]);
    }
    worth_.swap(next_);
  }

  const CuttingTask& task_;
  std::size_t size_;
  WholePrices prices_;
  std::vector<Bundle> bundles_;
  ByIndex<WholePrices::Worth> worth_;  ///< by capacity
  std::vector<WholePrices::Worth> next_;
  std::vector<std::uint8_t> taken_;  ///< bundle by bundle, by capacity
};

/// At most so many items: a row of the table for each number of them.
class FewItems : public ContentTable {
 public:
  FewItems(const CuttingTask& task, int kinds)
      : task_(task),
        kinds_(kinds),
        size_(static_cast<std::size_t>(task.LargestCapacity()) + 1),
        worth_(static_cast<std::size_t>(kinds) + 1),
        pieces_(task.items.size() * static_cast<std::size_t>(kinds) * size_) {}

  bool Fill(ViewByIndex<const double> prices, ViewByIndex<const std::int64_t> left, Pace& pace) override {
    prices_.Set(task_, prices);
    for (auto& row : worth_) row.assign(size_, 0);
    for (int i = 0; i < static_cast<int>(prices.size()); ++i) {
      const int most = std::min(kMostPieces, Most(task_, i, static_cast<int>(size_) - 1, left[i]));
      // From the most items down, so that the row below is still the one without this item.
      for (int kinds = kinds_; kinds >= 1; --kinds) {
        if (!TakeSome(i, kinds, prices_.Of(i) == 0 ? 0 : most, pace)) return false;
      }
    }
    return true;
  }

  double Worth(int capacity) const override { return prices_.Back(worth_[kinds_][capacity]); }

  Content ContentAt(int capacity) const override {
    Content content;
    int kinds = kinds_;
    for (int i = static_cast<int>(task_.items.size()) - 1; i >= 0 && kinds > 0; --i) {
      const int pieces = Pieces(i, kinds)[capacity];
      if (pieces == 0) continue;
      content.emplace_back(i, pieces);
      capacity -= pieces * task_.items[i].weight;
      --kinds;
    }
    std::ranges::reverse(content);
    return content;
  }

  std::int64_t Steps() const override { return static_cast<std::int64_t>(pieces_.size()) * 2; }

 private:
  ViewByIndex<const std::uint8_t> Pieces(int item, int kinds) const {
    return std::span(pieces_).subspan(Row(item, kinds) * size_, size_);
  }
  /// Where the pieces of an item stand as one of so many items.
  std::size_t Row(int item, int kinds) const { return static_cast<std::size_t>(item * kinds_ + kinds - 1); }

  /// False where it was stopped.
  bool TakeSome(int item, int kinds, int most, Pace& pace) {
    std::uint8_t* taken = pieces_.data() + Row(item, kinds) * size_;
    std::fill_n(taken, size_, std::uint8_t{0});
    const WholePrices::Worth* fewer = worth_[kinds - 1].data();
    WholePrices::Worth* row = worth_[kinds].data();
    for (int pieces = 1; pieces <= most; ++pieces) {
      if (pace.StoppedAfter(StepsOfRow(size_))) return false;
      const std::size_t weight =
          static_cast<std::size_t>(task_.items[item].weight) * static_cast<std::size_t>(pieces);
      const WholePrices::Worth worth = prices_.Of(item) * pieces;
      for (std::size_t c = weight; c < size_; ++c) {
        const WholePrices::Worth with = fewer[c - weight] + worth;
        taken[c] = with > row[c] ? static_cast<std::uint8_t>(pieces) : taken[c];
        row[c] = std::max(with, row[c]);
      }
    }
    return true;
  }

  static constexpr int kMostPieces = 255;  ///< of one item on a bar; more would only make the table larger

  const CuttingTask& task_;
  int kinds_;
  std::size_t size_;
  WholePrices prices_;
  ByIndex<ByIndex<WholePrices::Worth>> worth_;  ///< by number of items, by capacity
  std::vector<std::uint8_t> pieces_;            ///< by item, number of items, capacity
};

}  // namespace

std::unique_ptr<ContentTable> MakeContentTable(const CuttingTask& task, int kinds) {
  if (kinds < 0) return std::make_unique<AnyItems>(task);
  if (kinds == 0) return std::make_unique<NothingMore>();
  if (kinds == 1) return std::make_unique<OneItem>(task);
  return std::make_unique<FewItems>(task, kinds);
}

}  // namespace rbt::planning
