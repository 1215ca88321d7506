// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <sqlite3.h>

#include "store/dialect/translate.h"

namespace rbt {

/// Groups rows by the values of some fields, as the store's GROUP BY would: null is a group of its own, text
/// goes without regard to ASCII letter case, a group shows the values of its first row. Sums up whole
/// numbers, nulls passed over; the sum of nothing is null.
class GroupTable {
 public:
  using Key = RowsToGroup::Key;

  /// A row has a value for each key and, behind them, one for each sum.
  GroupTable(std::vector<Key> keys, std::size_t sums);

  /// Takes a row in. False for one that only the store itself can group: a value in another form than its
  /// field's own, a sum beyond 64 bits.
  bool Add(sqlite3_value** values);
  /// Puts the groups into the store's order: ascending by the keys as listed, nulls first.
  void Sort();

  std::size_t Size() const { return order_.size(); }
  /// Of the group at a place in the order, by the value's place in a row. A text or a number of a null is
  /// nothing's: ask first.
  bool IsNull(std::size_t group, std::size_t value) const;
  std::int64_t Whole(std::size_t group, std::size_t value) const;
  double Real(std::size_t group, std::size_t value) const;
  std::string_view Text(std::size_t group, std::size_t value) const;
  /// Whether the value is a text, a real, or a whole number, sums among them.
  Key KindOf(std::size_t value) const { return value < keys_.size() ? keys_[value] : Key::whole; }

  /// Rows of so many values can be grouped at all.
  static constexpr std::size_t kMostValues = 31;

 private:
  static constexpr std::uint32_t kGroupsOfBlock = 1024;
  /// A value in 64 bits: a whole number, the bits of a real, or where a text stands in `texts_`.
  using Cell = std::int64_t;
  struct Row {
    std::array<Cell, kMostValues> cells{};
    std::array<std::string_view, kMostValues> texts;
    std::uint32_t nulls = 0;
    std::uint64_t hash = 0;
  };

  bool ReadKey(std::size_t key, sqlite3_value* value);
  bool IsSame(std::uint32_t group) const;
  std::uint32_t GroupOfRow();
  std::uint32_t AppendRow();
  void GrowSlots();
  bool AddSums(std::uint32_t group, sqlite3_value** values);
  /// Below, at, or above 0.
  int Compare(std::uint32_t a, std::uint32_t b) const;

  Cell CellAt(std::uint32_t group, std::size_t value) const { return CellsOf(group)[value]; }
  const Cell* CellsOf(std::uint32_t group) const {
    return &blocks_[group / kGroupsOfBlock][group % kGroupsOfBlock * width_];
  }
  Cell* CellsOf(std::uint32_t group) { return const_cast<Cell*>(std::as_const(*this).CellsOf(group)); }
  bool NullAt(std::uint32_t group, std::size_t value) const { return (nulls_[group] >> value & 1U) != 0; }
  std::string_view TextOf(Cell cell) const;

  std::vector<Key> keys_;
  std::size_t width_;
  /// Of each group its keys and sums, in blocks that stay where they are: many groups are not moved.
  std::vector<std::vector<Cell>> blocks_;
  std::vector<std::uint32_t> nulls_;   ///< of each group a bit for each value
  std::vector<std::uint64_t> hashes_;  ///< of each group
  std::string texts_;
  std::vector<std::uint32_t> slots_;  ///< groups by their hash, `kFree` where there is none
  std::vector<std::uint32_t> order_;
  Row row_;  ///< the one that is being taken in
};

}  // namespace rbt
