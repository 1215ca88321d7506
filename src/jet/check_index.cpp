// SPDX-License-Identifier: MIT
#include "jet/check_index.h"

#include <algorithm>

#include <fmt/format.h>

#include "jet/table.h"

namespace rbt::jet {

namespace {

std::string PlaceText(RowPointer place) { return fmt::format("{}:{}", place.page, place.slot); }

class IndexCheck {
 public:
  IndexCheck(const TableDefinition& table, const PhysicalIndex& index, const std::vector<RowNulls>& rows,
             const std::function<void(const std::string&)>& tell)
      : index_(index), rows_(rows), seen_(rows.size()), tell_(tell) {
    for (const IndexColumn& key : index.columns) {
      keys_.push_back(static_cast<std::size_t>(table.FindNumber(key.number) - table.columns.data()));
    }
  }

  /// False when the entry stands for no row.
  bool Visit(const IndexEntry& entry) {
    CheckOrder(entry);
    const auto row = std::lower_bound(rows_.begin(), rows_.end(), entry.row,
                                      [](const RowNulls& r, RowPointer place) { return r.place < place; });
    const bool found = row != rows_.end() && row->place == entry.row;
    if (!found) {
      tell_(fmt::format("an entry points to row {}, which is not there", PlaceText(entry.row)));
    } else {
      const auto at = static_cast<std::size_t>(row - rows_.begin());
      if (seen_[at]) tell_(fmt::format("row {} has two entries", PlaceText(entry.row)));
      seen_[at] = true;
      // Nulls are no equals of each other.
      if (index_.unique && started_ && entry.key == last_.key && !HasNullKey(*row)) {
        tell_(fmt::format("rows {} and {} have the same key", PlaceText(last_.row), PlaceText(entry.row)));
      }
    }
    last_ = entry;
    started_ = true;
    return found;
  }

  /// A key that is not its row's leads searches astray, in whatever order the keys stand.
  void CheckKey(const IndexEntry& entry, const std::vector<unsigned char>& known) const {
    if (known.size() > entry.key.size() || !std::equal(known.begin(), known.end(), entry.key.begin())) {
      tell_(fmt::format("the entry of row {} has not its key", PlaceText(entry.row)));
    }
  }

  void CheckNeighbours(const std::vector<IndexLeaf>& leaves) const {
    for (std::size_t i = 0; i < leaves.size(); ++i) {
      const std::uint32_t previous = i == 0 ? 0 : leaves[i - 1].page;
      const std::uint32_t next = i + 1 == leaves.size() ? 0 : leaves[i + 1].page;
      if (leaves[i].previous != previous || leaves[i].next != next) {
        tell_(fmt::format("page {} names {} and {} as its neighbours, which are {} and {}", leaves[i].page,
                          leaves[i].previous, leaves[i].next, previous, next));
      }
    }
  }

  void CheckComplete() const {
    for (std::size_t i = 0; i < rows_.size(); ++i) {
      if (!seen_[i] && !(index_.ignores_null && HasNullKey(rows_[i]))) {
        tell_(fmt::format("row {} has no entry", PlaceText(rows_[i].place)));
      }
    }
  }

 private:
  void CheckOrder(const IndexEntry& entry) const {
    if (!started_) return;
    if (entry.key < last_.key || (entry.key == last_.key && entry.row < last_.row)) {
      tell_(fmt::format("the entry of row {} is out of order", PlaceText(entry.row)));
    }
  }

  bool HasNullKey(const RowNulls& row) const {
    return std::any_of(keys_.begin(), keys_.end(), [&](std::size_t key) { return row.nulls[key]; });
  }

  const PhysicalIndex& index_;
  const std::vector<RowNulls>& rows_;
  std::vector<std::size_t> keys_;
  std::vector<bool> seen_;
  const std::function<void(const std::string&)>& tell_;
  IndexEntry last_;
  bool started_ = false;
};

}  // namespace

IndexWalk CheckIndex(JetFile& file, const TableDefinition& table, const PhysicalIndex& index,
                     const std::vector<RowNulls>& rows, const std::function<void(const std::string&)>& tell) {
  IndexCheck check(table, index, rows, tell);
  const bool known = KnowsKeysOf(table, index);
  IndexWalk walk = WalkIndex(file, index, [&](const IndexEntry& entry) {
    const bool row_is_there = check.Visit(entry);
    if (!row_is_there || !known) return;
    check.CheckKey(entry, KnownKeyOf(table, index, ReadRow(file, table, entry.row)));
  });
  check.CheckNeighbours(walk.leaves);
  check.CheckComplete();
  return walk;
}

}  // namespace rbt::jet
