// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "platform/fault.h"

namespace rbt {

/// The place of an index in a table of `size` entries. Faults: `subscript out of range`.
inline std::size_t CheckedIndex(int index, int size) {
  if (index < 0 || index >= size) {
    throw Fault(FaultKind::subscript_out_of_range,
                "index " + std::to_string(index) + " of a table of " + std::to_string(size));
  }
  return static_cast<std::size_t>(index);
}

/// An array whose index is checked on every access, in release builds too.
template <typename T, int N>
class CheckedArray {
 public:
  static constexpr int kSize = N;

  T& operator[](int index) { return cells_[CheckedIndex(index, N)]; }
  const T& operator[](int index) const { return cells_[CheckedIndex(index, N)]; }
  void Clear() { cells_.fill(T{}); }

  auto begin() const { return cells_.begin(); }
  auto end() const { return cells_.end(); }

  friend bool operator==(const CheckedArray&, const CheckedArray&) = default;

 private:
  std::array<T, N> cells_{};
};

/// `table[row][column]`, both checked.
template <typename T, int Rows, int Columns>
class Checked2D {
 public:
  CheckedArray<T, Columns>& operator[](int row) { return rows_[row]; }
  const CheckedArray<T, Columns>& operator[](int row) const { return rows_[row]; }
  void Clear() { rows_.Clear(); }

  friend bool operator==(const Checked2D&, const Checked2D&) = default;

 private:
  CheckedArray<CheckedArray<T, Columns>, Rows> rows_;
};

}  // namespace rbt
