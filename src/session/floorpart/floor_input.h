// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "tally/floorpart/floor_range.h"

namespace rbt {

/// The boxes of the first and the last floor, as they are filled in: floor codes.
class FloorInput {
 public:
  static constexpr std::size_t kStart = 0;
  static constexpr std::size_t kEnd = 1;
  using Texts = std::array<std::string, 2>;

  explicit FloorInput(const FloorExtent& extent) : extent_(extent) {}

  void Type(std::size_t box, std::string text) { texts_.at(box) = std::move(text); }
  void Fill(const FloorRange& range);
  const Texts& AsTyped() const { return texts_; }
  bool IsEmpty(std::size_t box) const { return texts_.at(box).empty(); }

  /// The test that Enter makes in the box of the first floor. A fraction stands for the whole number that it
  /// rounds to, where there are storeys alone and it rounds down.
  bool StartPasses() const;
  /// True when the first floor is a special one: it stands by itself.
  bool StartIsSpecial() const;
  /// Puts the first floor into the box of the last one too.
  void CopyStartToEnd() { texts_[kEnd] = texts_[kStart]; }
  /// The range of two boxes that pass; nothing else.
  std::optional<FloorRange> Range() const;

 private:
  double Number(std::size_t box) const;
  std::optional<std::int16_t> Floor(std::size_t box) const;

  FloorExtent extent_;
  Texts texts_;
};

}  // namespace rbt
