// SPDX-License-Identifier: MIT
#include "jet/data_page.h"

#include <algorithm>
#include <optional>
#include <set>

#include <fmt/format.h>

namespace rbt::jet {

namespace {

constexpr std::uint16_t kOffsetMask = 0x1FFF;
constexpr std::uint16_t kMoved = 0x4000;
constexpr std::uint16_t kBody = 0x8000;
constexpr std::size_t kOwnerAt = 4;
constexpr std::size_t kLongValueHead = 12;
// The two highest bits of a long value's length tell where it stands; neither: in a chain.
constexpr std::uint32_t kInlineValue = 0x80000000;
constexpr std::uint32_t kOnePageValue = 0x40000000;
constexpr std::uint32_t kLengthMask = 0x3FFFFFFF;

std::size_t RowCount(const JetFile& file, const PageView& page) {
  const std::size_t at = file.layout().data_row_count;
  const std::size_t count = page.U16(at);
  if (count > 256 || at + 2 + 2 * count > page.size()) page.Damaged(fmt::format("{} rows do not fit", count));
  return count;
}

Slot ReadSlot(const JetFile& file, const PageView& page, std::size_t number) {
  const std::size_t offsets = file.layout().data_row_count + 2;
  const std::uint16_t word = page.U16(offsets + 2 * number);
  const std::size_t end = number == 0
                              ? page.size()
                              : static_cast<std::size_t>(page.U16(offsets + 2 * (number - 1)) & kOffsetMask);
  Slot slot;
  slot.deleted = (word & kMoved) != 0 && (word & kBody) != 0;
  slot.moved = (word & kMoved) != 0 && !slot.deleted;
  slot.body = (word & kBody) != 0 && !slot.deleted;
  slot.start = word & kOffsetMask;
  if (slot.start > end || end > page.size()) {
    page.Damaged(fmt::format("row {} runs from {} to {}", number, slot.start, end));
  }
  slot.length = end - slot.start;
  return slot;
}

}  // namespace

std::uint32_t OwnerOf(const PageView& page) { return page.U32(kOwnerAt); }

std::vector<Slot> SlotsOf(const JetFile& file, const PageView& page) {
  std::vector<Slot> slots(RowCount(file, page));
  for (std::size_t i = 0; i < slots.size(); ++i) slots[i] = ReadSlot(file, page, i);
  return slots;
}

Slot SlotOf(const JetFile& file, const PageView& page, std::uint8_t slot) {
  if (slot >= RowCount(file, page)) page.Damaged(fmt::format("has no row {}", slot));
  return ReadSlot(file, page, slot);
}

std::vector<unsigned char> ReadRowBytes(JetFile& file, RowPointer row) {
  std::optional<std::uint32_t> owner;
  for (int moves = 0; moves < 8; ++moves) {
    const PageView page = file.Page(row.page, PageType::data);
    const Slot slot = SlotOf(file, page, row.slot);
    if (slot.deleted) page.Damaged(fmt::format("row {} is deleted but something points to it", row.slot));
    if (owner && (*owner != OwnerOf(page) || !(slot.body || slot.moved))) {
      page.Damaged(fmt::format("row {} is not where a row of the other page has moved to", row.slot));
    }
    owner = OwnerOf(page);
    const PageView bytes = page.Part(slot.start, slot.length);
    if (!slot.moved) return {bytes.Bytes().begin(), bytes.Bytes().end()};
    row = RowPointerOf(bytes.U32(0));
  }
  file.Damaged(row.page, "a row has moved in a circle");
}

std::vector<unsigned char> ReadLongValue(JetFile& file, const PageView& field) {
  if (field.size() == 0) return {};
  const std::uint32_t sort = field.U32(0) & ~kLengthMask;
  const std::size_t length = field.U32(0) & kLengthMask;
  if ((sort & kInlineValue) != 0) {
    const auto bytes = field.Part(kLongValueHead, length).Bytes();
    return {bytes.begin(), bytes.end()};
  }
  std::vector<unsigned char> value;
  std::set<RowPointer> seen;
  for (RowPointer at = RowPointerOf(field.U32(4)); at.page != 0 && value.size() < length;) {
    if (!seen.insert(at).second) file.Damaged(at.page, "a long value runs in a circle");
    std::vector<unsigned char> row = ReadRowBytes(file, at);
    if ((sort & kOnePageValue) != 0) {
      value = std::move(row);
      break;
    }
    const PageView chunk(row, &file.Name(), at.page);
    if (row.size() <= 4) chunk.Damaged("a piece of a long value is empty");
    value.insert(value.end(), row.begin() + 4, row.end());
    at = RowPointerOf(chunk.U32(0));
  }
  if (value.size() < length)
    field.Damaged(fmt::format("a long value has {} bytes of {}", value.size(), length));
  value.resize(length);
  return value;
}

}  // namespace rbt::jet
