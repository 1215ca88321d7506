// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>

#include "platform/jet/table_definition.h"

namespace rbt::jet {

/// One entry of an index: its key as it is compared, byte by byte, and the row it stands for.
struct IndexEntry {
  std::vector<unsigned char> key;
  RowPointer row;
};

/// What a walk over a B-tree met: its pages, branches included.
struct IndexWalk {
  std::vector<std::uint32_t> pages;
  std::size_t entries = 0;
};

/// Calls back for each entry of the index in the order of its leaves. Circles, pages of another sort and
/// broken entries throw `Fault` of kind `file`.
IndexWalk WalkIndex(JetFile& file, const PhysicalIndex& index,
                    const std::function<void(const IndexEntry&)>& handle);

}  // namespace rbt::jet
