// SPDX-License-Identifier: MIT
#include "jet/usage_map.h"

#include <algorithm>

#include <fmt/format.h>

#include "jet/data_page.h"

namespace rbt::jet {

namespace {

constexpr std::uint8_t kInline = 0;
constexpr std::uint8_t kByReference = 1;
constexpr std::size_t kBitmapPageHead = 4;

/// What lies behind the end of the file, for the pages that the bits of a map stand for.
enum class BehindTheEnd { left_out, damage };

void AppendBits(const PageView& bitmap, std::uint64_t first_page, std::uint32_t page_count,
                BehindTheEnd behind, std::vector<std::uint32_t>& pages) {
  for (std::size_t byte = 0; byte < bitmap.size(); ++byte) {
    const unsigned bits = bitmap.U8(byte);
    for (unsigned bit = 0; bits != 0 && bit < 8; ++bit) {
      if ((bits & (1U << bit)) == 0) continue;
      const std::uint64_t page = first_page + byte * 8 + bit;
      if (page < page_count) {
        pages.push_back(static_cast<std::uint32_t>(page));
      } else if (behind == BehindTheEnd::damage) {
        bitmap.Damaged(fmt::format("a usage map names page {}, the file has {} pages", page, page_count));
      }
    }
  }
}

}  // namespace

std::vector<std::uint32_t> PagesOfUsageMap(JetFile& file, RowPointer map) {
  const std::vector<unsigned char> row = ReadRowBytes(file, map);
  const PageView view(row, &file.Name(), map.page);
  const BehindTheEnd behind = map == kFreePages ? BehindTheEnd::left_out : BehindTheEnd::damage;
  std::vector<std::uint32_t> pages;
  if (view.U8(0) == kInline) {
    AppendBits(view.Part(5, view.size() - std::min<std::size_t>(5, view.size())), view.U32(1),
               file.PageCount(), behind, pages);
    return pages;
  }
  if (view.U8(0) != kByReference) view.Damaged(fmt::format("a usage map of the unknown type {}", view.U8(0)));
  const std::uint64_t pages_a_bitmap = (file.layout().page_size - kBitmapPageHead) * 8;
  for (std::size_t i = 0; 1 + 4 * i + 4 <= view.size(); ++i) {
    const std::uint32_t bitmap_page = view.U32(1 + 4 * i);
    if (bitmap_page == 0) continue;
    const PageView bitmap = file.Page(bitmap_page, PageType::usage_bitmap);
    AppendBits(bitmap.Part(kBitmapPageHead, bitmap.size() - kBitmapPageHead), i * pages_a_bitmap,
               file.PageCount(), behind, pages);
  }
  return pages;
}

std::vector<std::uint32_t> BitmapPagesOfUsageMap(JetFile& file, RowPointer map) {
  const std::vector<unsigned char> row = ReadRowBytes(file, map);
  const PageView view(row, &file.Name(), map.page);
  std::vector<std::uint32_t> pages;
  if (view.U8(0) != kByReference) return pages;
  for (std::size_t at = 1; at + 4 <= view.size(); at += 4) {
    if (view.U32(at) != 0) pages.push_back(view.U32(at));
  }
  return pages;
}

}  // namespace rbt::jet
