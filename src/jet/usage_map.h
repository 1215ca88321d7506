// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "jet/jet_file.h"

namespace rbt::jet {

/// Where a usage map is due and there is none.
inline constexpr RowPointer kNoUsageMap{0, 0};
/// The map of the file's free pages.
inline constexpr RowPointer kFreePages{1, 0};

/// The page numbers that the usage map at a row names, ascending: an inline bitmap with its start page, or a
/// list of bitmap pages. Damage throws `Fault` of kind `file`, and so does a page behind the end of the file,
/// except in the map of free pages, where such pages are left out.
std::vector<std::uint32_t> PagesOfUsageMap(JetFile& file, RowPointer map);

/// Whether page numbers in ascending order, as a usage map names them, hold a page.
inline bool Lists(const std::vector<std::uint32_t>& ascending, std::uint32_t page) {
  return std::binary_search(ascending.begin(), ascending.end(), page);
}

/// The bitmap pages that a usage map of the second sort keeps, for the check of who owns which page.
std::vector<std::uint32_t> BitmapPagesOfUsageMap(JetFile& file, RowPointer map);

}  // namespace rbt::jet
