// SPDX-License-Identifier: MIT
#include "platform/numbers/currency.h"

#include <cmath>
#include <string>

#include <fmt/format.h>

#include "platform/fault.h"

namespace rbt {

namespace {

constexpr std::int64_t kUnits = 10000;
constexpr double kInt64Range = 9223372036854775808.0;  // 2^63

[[noreturn]] void Overflow(const std::string& what) {
  throw Fault(FaultKind::overflow, "Currency of " + what);
}

}  // namespace

Currency Currency::FromInteger(std::int64_t whole) {
  std::int64_t units = 0;
  if (__builtin_mul_overflow(whole, kUnits, &units)) Overflow(std::to_string(whole));
  return Currency(units);
}

Currency Currency::FromDouble(double x) {
  const double units = std::nearbyint(x * 10000.0);
  if (!(units >= -kInt64Range && units < kInt64Range)) Overflow(fmt::format("{}", x));
  return Currency(static_cast<std::int64_t>(units));
}

std::string Currency::ToText() const {
  const std::uint64_t magnitude =
      units_ < 0 ? 0 - static_cast<std::uint64_t>(units_) : static_cast<std::uint64_t>(units_);
  std::string text = fmt::format("{}{}.{:04}", units_ < 0 ? "-" : "", magnitude / 10000, magnitude % 10000);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

Currency Currency::operator*(Currency other) const {
  __extension__ using Wide = __int128;
  const Wide product = static_cast<Wide>(units_) * other.units_;
  Wide units = product / kUnits;
  const Wide rest = product < 0 ? -(product % kUnits) : product % kUnits;
  const bool is_odd = units % 2 != 0;
  if (2 * rest > kUnits || (2 * rest == kUnits && is_odd)) units += product < 0 ? -1 : 1;
  const auto narrow = static_cast<std::int64_t>(units);
  if (narrow != units) Overflow("a product");
  return Currency(narrow);
}

Currency Currency::operator-() const { return Currency() - *this; }

Currency& Currency::operator+=(Currency other) {
  if (__builtin_add_overflow(units_, other.units_, &units_)) Overflow("a sum");
  return *this;
}

Currency& Currency::operator-=(Currency other) {
  if (__builtin_sub_overflow(units_, other.units_, &units_)) Overflow("a difference");
  return *this;
}

Currency WholeKilograms(Currency x) {
  const Currency raised = x + Currency::FromTenThousandths(kUnits / 2);
  return Currency::FromTenThousandths(raised.TenThousandths() / kUnits * kUnits);
}

}  // namespace rbt
