// SPDX-License-Identifier: MIT
#include "jet/index.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <set>

#include <fmt/format.h>

namespace rbt::jet {

namespace {

constexpr std::size_t kRowPointerBytes = 4;  // page in three bytes, big-endian, and slot
constexpr std::size_t kChildBytes = 4;       // in branches: the page below

struct RawEntry {
  IndexEntry entry;
  std::uint32_t child = 0;
};

/// The entries of one index page, their shared prefix restored.
std::vector<RawEntry> EntriesOf(const JetFile& file, const PageView& page, bool branch) {
  const Layout& layout = file.layout();
  const std::size_t prefix_length = file.Version() == JetVersion::jet3 ? page.U8(layout.index_prefix_length)
                                                                       : page.U16(layout.index_prefix_length);
  std::vector<RawEntry> entries;
  std::vector<unsigned char> prefix;
  std::size_t start = 0;
  const std::size_t bits = (layout.index_entries - layout.index_bitmap) * 8;
  // Each set bit of the bitmap is the place behind an entry.
  for (std::size_t bit = 0; bit < bits; ++bit) {
    if (((page.U8(layout.index_bitmap + bit / 8) >> (bit % 8)) & 1) == 0) continue;
    const auto part = page.Part(layout.index_entries + start, bit - start).Bytes();
    start = bit;
    std::vector<unsigned char> bytes;
    if (!entries.empty()) bytes = prefix;
    bytes.insert(bytes.end(), part.begin(), part.end());
    const std::size_t tail = kRowPointerBytes + (branch ? kChildBytes : 0);
    if (bytes.size() < tail) page.Damaged(fmt::format("an index entry of {} bytes", bytes.size()));
    if (entries.empty()) {
      if (prefix_length > bytes.size()) page.Damaged(fmt::format("a prefix of {} bytes", prefix_length));
      prefix.assign(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(prefix_length));
    }
    const std::size_t key = bytes.size() - tail;
    RawEntry raw;
    raw.entry.row.page = (static_cast<std::uint32_t>(bytes[key]) << 16) |
                         (static_cast<std::uint32_t>(bytes[key + 1]) << 8) | bytes[key + 2];
    raw.entry.row.slot = bytes[key + 3];
    if (branch) {
      for (std::size_t i = 0; i < kChildBytes; ++i)
        raw.child = (raw.child << 8) | bytes[key + kRowPointerBytes + i];
    }
    raw.entry.key.assign(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(key));
    entries.push_back(std::move(raw));
  }
  return entries;
}

class Walker {
 public:
  Walker(JetFile& file, const std::function<void(const IndexEntry&)>& handle)
      : file_(file), handle_(handle) {}

  void Visit(std::uint32_t number, int depth) {
    if (depth > 32) file_.Damaged(number, "the index is deeper than any can be");
    if (!seen_.insert(number).second) file_.Damaged(number, "the index runs in a circle");
    walk_.pages.push_back(number);
    const PageView page = file_.Page(number);
    const auto type = static_cast<PageType>(page.U8(0));
    if (type == PageType::index_branch) {
      const std::uint32_t tail = page.U32(file_.layout().index_previous + 8);
      for (const std::uint32_t child : ChildrenOf(page)) Visit(child, depth + 1);
      // The newest leaf of a growing index hangs at the tail and is not named by an entry yet.
      if (tail != 0 && seen_.count(tail) == 0) Visit(tail, depth + 1);
    } else if (type == PageType::index_leaf) {
      const std::size_t links = file_.layout().index_previous;
      walk_.leaves.push_back({number, page.U32(links), page.U32(links + 4)});
      for (const RawEntry& entry : EntriesOf(file_, page, false)) {
        ++walk_.entries;
        handle_(entry.entry);
      }
    } else {
      page.Damaged("is no index page, but the index names it");
    }
  }

  IndexWalk Result() { return std::move(walk_); }

 private:
  std::vector<std::uint32_t> ChildrenOf(const PageView& branch) const {
    std::vector<std::uint32_t> children;
    for (const RawEntry& entry : EntriesOf(file_, branch, true)) children.push_back(entry.child);
    return children;
  }

  JetFile& file_;
  const std::function<void(const IndexEntry&)>& handle_;
  std::set<std::uint32_t> seen_;
  IndexWalk walk_;
};

/// Bytes of a number, the highest first, so that they sort as the numbers do.
std::vector<unsigned char> BigEndian(std::uint64_t number, std::size_t count) {
  std::vector<unsigned char> bytes;
  for (std::size_t i = count; i-- > 0;) bytes.push_back(static_cast<unsigned char>(number >> (8 * i)));
  return bytes;
}

/// The part of a key that stands for a value of a known type.
std::vector<unsigned char> KeyPartOf(ColumnType type, const Value& value) {
  const auto signed_number = [](std::int64_t number, std::size_t count) {
    return BigEndian(static_cast<std::uint64_t>(number) ^ (std::uint64_t{1} << (8 * count - 1)), count);
  };
  switch (type) {
    case ColumnType::byte:
      return BigEndian(static_cast<std::uint64_t>(std::get<std::int64_t>(value)), 1);
    case ColumnType::integer16:
      return signed_number(std::get<std::int64_t>(value), 2);
    case ColumnType::integer32:
      return signed_number(std::get<std::int64_t>(value), 4);
    case ColumnType::currency:
      return signed_number(std::get<Currency>(value).TenThousandths(), 8);
    case ColumnType::real:
    case ColumnType::date_time: {
      const auto bits = std::bit_cast<std::uint64_t>(std::get<double>(value));
      const bool negative = (bits >> 63) != 0;
      return BigEndian(negative ? ~bits : bits | (std::uint64_t{1} << 63), 8);
    }
    default:
      return {};
  }
}

constexpr ColumnType kKnownTypes[] = {ColumnType::byte,     ColumnType::integer16, ColumnType::integer32,
                                      ColumnType::currency, ColumnType::real,      ColumnType::date_time};

bool Knows(ColumnType type) {
  return std::find(std::begin(kKnownTypes), std::end(kKnownTypes), type) != std::end(kKnownTypes);
}

}  // namespace

bool KnowsKeysOf(const TableDefinition& table, const PhysicalIndex& index) {
  return !index.columns.empty() && Knows(table.FindNumber(index.columns.front().number)->type);
}

std::vector<unsigned char> KnownKeyOf(const TableDefinition& table, const PhysicalIndex& index,
                                      const std::vector<Value>& values) {
  constexpr unsigned char kNull = 0;
  constexpr unsigned char kValue = 0x7F;
  std::vector<unsigned char> key;
  for (const IndexColumn& column : index.columns) {
    const Column* const field = table.FindNumber(column.number);
    if (!Knows(field->type)) break;
    const Value& value = values[static_cast<std::size_t>(field - table.columns.data())];
    std::vector<unsigned char> part{kNull};
    if (!IsNull(value)) {
      part = KeyPartOf(field->type, value);
      part.insert(part.begin(), kValue);
    }
    for (const unsigned char byte : part) {
      key.push_back(column.descending ? static_cast<unsigned char>(~byte) : byte);
    }
  }
  return key;
}

IndexWalk WalkIndex(JetFile& file, const PhysicalIndex& index,
                    const std::function<void(const IndexEntry&)>& handle) {
  Walker walker(file, handle);
  walker.Visit(index.root, 0);
  return walker.Result();
}

}  // namespace rbt::jet
