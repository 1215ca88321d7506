// SPDX-License-Identifier: MIT
#include "store/group_table.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <numeric>
#include <utility>

namespace rbt {
namespace {

constexpr std::uint32_t kFree = 0xFFFF'FFFF;
constexpr std::size_t kFirstSlots = 1024;
/// A text's place and length share 64 bits.
constexpr int kLengthBits = 24;
constexpr std::size_t kLongestText = (1U << kLengthBits) - 1;

std::uint64_t Mixed(std::uint64_t hash, std::uint64_t with) {
  constexpr std::uint64_t kOdd = 0x9E37'79B9'7F4A'7C15;
  hash = (hash ^ with) * kOdd;
  return hash ^ hash >> 32U;
}

unsigned char Lower(char c) { return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c); }

/// Texts that are equal but for the case of letters have one: the bit of the case is set everywhere.
std::uint64_t HashOf(std::string_view text) {
  constexpr std::uint64_t kCase = 0x2020'2020'2020'2020;
  std::uint64_t hash = text.size();
  while (!text.empty()) {
    std::uint64_t part = 0;
    const std::size_t length = std::min(text.size(), sizeof part);
    std::memcpy(&part, text.data(), length);
    hash = Mixed(hash, part | kCase);
    text.remove_prefix(length);
  }
  return hash;
}

int CompareTexts(std::string_view a, std::string_view b) {
  const std::size_t common = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < common; ++i) {
    if (a[i] == b[i]) continue;
    const int difference = Lower(a[i]) - Lower(b[i]);
    if (difference != 0) return difference;
  }
  return a.size() < b.size() ? -1 : static_cast<int>(a.size() > b.size());
}

bool AreSameTexts(std::string_view a, std::string_view b) { return a == b || CompareTexts(a, b) == 0; }

template <typename Number>
int CompareNumbers(Number a, Number b) {
  return a < b ? -1 : static_cast<int>(a > b);
}

}  // namespace

GroupTable::GroupTable(std::vector<Key> keys, std::size_t sums)
    : keys_(std::move(keys)), width_(keys_.size() + sums), slots_(kFirstSlots, kFree) {}

bool GroupTable::ReadKey(std::size_t key, sqlite3_value* value) {
  const int type = sqlite3_value_type(value);
  if (type == SQLITE_NULL) {
    row_.nulls |= 1U << key;
    row_.cells[key] = 0;
    row_.hash = Mixed(row_.hash, key + 1);
    return true;
  }
  switch (keys_[key]) {
    case Key::whole:
      row_.cells[key] = sqlite3_value_int64(value);
      row_.hash = Mixed(row_.hash, static_cast<std::uint64_t>(row_.cells[key]));
      return type == SQLITE_INTEGER;
    case Key::real: {
      const double real = sqlite3_value_double(value);
      row_.cells[key] = std::bit_cast<Cell>(real);
      // 0 and -0 are equal.
      row_.hash = Mixed(row_.hash, std::bit_cast<std::uint64_t>(real == 0.0 ? 0.0 : real));
      return type == SQLITE_FLOAT;
    }
    case Key::text:
      break;
  }
  if (type != SQLITE_TEXT) return false;
  const unsigned char* const text = sqlite3_value_text(value);
  if (text == nullptr) return false;
  row_.texts[key] = {reinterpret_cast<const char*>(text),
                     static_cast<std::size_t>(sqlite3_value_bytes(value))};
  row_.hash = Mixed(row_.hash, HashOf(row_.texts[key]));
  // The store compares texts up to a NUL in them.
  return row_.texts[key].size() <= kLongestText && row_.texts[key].find('\0') == std::string_view::npos;
}

bool GroupTable::Add(sqlite3_value** values) {
  row_.nulls = 0;
  row_.hash = 0;
  for (std::size_t key = 0; key < keys_.size(); ++key) {
    if (!ReadKey(key, values[key])) return false;
  }
  return AddSums(GroupOfRow(), values);
}

bool GroupTable::IsSame(std::uint32_t group) const {
  if (hashes_[group] != row_.hash) return false;
  const std::uint32_t of_keys = (1U << keys_.size()) - 1;
  if ((nulls_[group] & of_keys) != row_.nulls) return false;
  for (std::size_t key = 0; key < keys_.size(); ++key) {
    if ((row_.nulls >> key & 1U) != 0) continue;
    const Cell cell = CellAt(group, key);
    switch (keys_[key]) {
      case Key::whole:
        if (cell != row_.cells[key]) return false;
        break;
      case Key::real:
        if (std::bit_cast<double>(cell) != std::bit_cast<double>(row_.cells[key])) return false;
        break;
      case Key::text:
        if (!AreSameTexts(TextOf(cell), row_.texts[key])) return false;
        break;
    }
  }
  return true;
}

std::uint32_t GroupTable::GroupOfRow() {
  if (2 * nulls_.size() >= slots_.size()) GrowSlots();
  const std::size_t mask = slots_.size() - 1;
  std::size_t slot = row_.hash & mask;
  while (slots_[slot] != kFree) {
    if (IsSame(slots_[slot])) return slots_[slot];
    slot = (slot + 1) & mask;
  }
  slots_[slot] = AppendRow();
  return slots_[slot];
}

std::uint32_t GroupTable::AppendRow() {
  const auto group = static_cast<std::uint32_t>(nulls_.size());
  if (group % kGroupsOfBlock == 0) blocks_.emplace_back(kGroupsOfBlock * width_);
  Cell* const cells = CellsOf(group);
  for (std::size_t key = 0; key < keys_.size(); ++key) {
    const bool is_text = keys_[key] == Key::text && (row_.nulls >> key & 1U) == 0;
    if (!is_text) {
      cells[key] = row_.cells[key];
      continue;
    }
    cells[key] = static_cast<Cell>(texts_.size() << kLengthBits | row_.texts[key].size());
    texts_ += row_.texts[key];
  }
  std::uint32_t nulls = row_.nulls;
  for (std::size_t value = keys_.size(); value < width_; ++value) nulls |= 1U << value;
  nulls_.push_back(nulls);
  hashes_.push_back(row_.hash);
  return group;
}

void GroupTable::GrowSlots() {
  slots_.assign(2 * slots_.size(), kFree);
  const std::size_t mask = slots_.size() - 1;
  for (std::uint32_t group = 0; group < hashes_.size(); ++group) {
    std::size_t slot = hashes_[group] & mask;
    while (slots_[slot] != kFree) slot = (slot + 1) & mask;
    slots_[slot] = group;
  }
}

bool GroupTable::AddSums(std::uint32_t group, sqlite3_value** values) {
  for (std::size_t value = keys_.size(); value < width_; ++value) {
    const int type = sqlite3_value_type(values[value]);
    if (type == SQLITE_NULL) continue;
    if (type != SQLITE_INTEGER) return false;
    Cell& sum = CellsOf(group)[value];
    if (__builtin_add_overflow(sum, sqlite3_value_int64(values[value]), &sum)) return false;
    nulls_[group] &= ~(1U << value);
  }
  return true;
}

int GroupTable::Compare(std::uint32_t a, std::uint32_t b) const {
  for (std::size_t key = 0; key < keys_.size(); ++key) {
    if (NullAt(a, key) || NullAt(b, key)) {
      if (NullAt(a, key) != NullAt(b, key)) return NullAt(a, key) ? -1 : 1;
      continue;
    }
    const Cell of_a = CellAt(a, key);
    const Cell of_b = CellAt(b, key);
    int order = 0;
    switch (keys_[key]) {
      case Key::whole:
        order = CompareNumbers(of_a, of_b);
        break;
      case Key::real:
        order = CompareNumbers(std::bit_cast<double>(of_a), std::bit_cast<double>(of_b));
        break;
      case Key::text:
        order = CompareTexts(TextOf(of_a), TextOf(of_b));
        break;
    }
    if (order != 0) return order;
  }
  return 0;
}

void GroupTable::Sort() {
  order_.resize(nulls_.size());
  std::iota(order_.begin(), order_.end(), 0U);
  std::ranges::sort(order_, [this](std::uint32_t a, std::uint32_t b) { return Compare(a, b) < 0; });
}

bool GroupTable::IsNull(std::size_t group, std::size_t value) const { return NullAt(order_[group], value); }

std::int64_t GroupTable::Whole(std::size_t group, std::size_t value) const {
  return CellAt(order_[group], value);
}

double GroupTable::Real(std::size_t group, std::size_t value) const {
  return std::bit_cast<double>(CellAt(order_[group], value));
}

std::string_view GroupTable::Text(std::size_t group, std::size_t value) const {
  return TextOf(CellAt(order_[group], value));
}

std::string_view GroupTable::TextOf(Cell cell) const {
  const auto place = static_cast<std::uint64_t>(cell);
  return std::string_view(texts_).substr(place >> kLengthBits, place & kLongestText);
}

}  // namespace rbt
