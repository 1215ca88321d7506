// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>

namespace rbt {

/// Codes chosen together, told as one number: the first of `kCodes` is 1 in the sum, the second 2, the third
/// 4 and so on. Dialogs tick them as boxes; the command line and the archive hold the number. A number beyond
/// the sum of all is kept as it came, and no text knows it.
template <typename NumberType, auto kCodes>
class CodeMask {
 public:
  using Number = NumberType;
  using Code = typename decltype(kCodes)::value_type;
  /// Whether each code is chosen, in their order.
  using Ticks = std::array<bool, kCodes.size()>;

  constexpr CodeMask() = default;  ///< none
  constexpr explicit CodeMask(Number number) : number_(number) {}

  static constexpr CodeMask All() { return CodeMask(static_cast<Number>(BitAt(kCodes.size()) - 1)); }

  static constexpr CodeMask Of(std::initializer_list<Code> codes) {
    int sum = 0;
    for (const Code code : codes) sum |= BitOf(code);
    return CodeMask(static_cast<Number>(sum));
  }

  static constexpr CodeMask OfTicks(const Ticks& ticks) {
    int sum = 0;
    for (std::size_t i = 0; i < ticks.size(); ++i) sum |= ticks[i] ? BitAt(i) : 0;
    return CodeMask(static_cast<Number>(sum));
  }

  constexpr Number AsNumber() const { return number_; }

  constexpr Ticks AsTicks() const {
    Ticks ticks{};
    for (std::size_t i = 0; i < ticks.size(); ++i) ticks[i] = (number_ & BitAt(i)) != 0;
    return ticks;
  }

  constexpr bool IsNone() const { return number_ == 0; }
  constexpr bool IsAll() const { return *this == All(); }
  /// True when exactly one code is chosen.
  constexpr bool IsOne() const {
    return std::any_of(kCodes.begin(), kCodes.end(), [&](Code code) { return *this == Of({code}); });
  }
  /// False for a code that has no place in the mask.
  constexpr bool Has(Code code) const { return (number_ & BitOf(code)) != 0; }
  /// True when something is chosen, and nothing that `others` lacks.
  constexpr bool IsWithin(CodeMask others) const {
    return number_ != 0 && (number_ & others.number_) == number_;
  }

  friend constexpr bool operator==(CodeMask, CodeMask) = default;

 private:
  static constexpr int BitAt(std::size_t place) { return 1 << place; }
  static constexpr int BitOf(Code code) {
    const auto found = std::find(kCodes.begin(), kCodes.end(), code);
    return found == kCodes.end() ? 0 : BitAt(static_cast<std::size_t>(found - kCodes.begin()));
  }

  Number number_ = 0;
};

}  // namespace rbt
