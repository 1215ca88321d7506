// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <memory>

#include "platform/numbers/checked_array.h"

namespace rbt {

/// An array of large blocks, each of which comes into being when it is first asked for on an array that may
/// change; until then it reads as an empty one. So a table is copied, compared and walked at the cost of what
/// was put into it. The index is checked on every access, in release builds too.
template <typename Block, int N>
class BlockArray {
 public:
  static constexpr int kSize = N;

  BlockArray() = default;
  BlockArray(const BlockArray& other) { *this = other; }
  BlockArray(BlockArray&&) noexcept = default;
  BlockArray& operator=(const BlockArray& other) {
    if (this == &other) return *this;
    for (std::size_t i = 0; i < blocks_.size(); ++i) {
      blocks_[i] = other.blocks_[i] ? std::make_unique<Block>(*other.blocks_[i]) : nullptr;
    }
    return *this;
  }
  BlockArray& operator=(BlockArray&&) noexcept = default;
  ~BlockArray() = default;

  Block& operator[](int index) {
    std::unique_ptr<Block>& block = blocks_[CheckedIndex(index, N)];
    if (!block) block = std::make_unique<Block>();
    return *block;
  }
  const Block& operator[](int index) const {
    const Block* const block = Find(index);
    return block != nullptr ? *block : Empty();
  }
  /// Null where nothing was put yet.
  const Block* Find(int index) const { return blocks_[CheckedIndex(index, N)].get(); }

  /// Equal where both read the same, whether their blocks are there or not.
  friend bool operator==(const BlockArray& a, const BlockArray& b) {
    for (int i = 0; i < N; ++i) {
      if ((a.Find(i) != nullptr || b.Find(i) != nullptr) && !(a[i] == b[i])) return false;
    }
    return true;
  }

 private:
  static const Block& Empty() {
    static const Block empty{};
    return empty;
  }

  std::array<std::unique_ptr<Block>, N> blocks_;
};

}  // namespace rbt
