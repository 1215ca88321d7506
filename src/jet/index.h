// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>

#include "jet/table_definition.h"
#include "platform/numbers/value.h"

namespace rbt::jet {

/// One entry of an index: its key as it is compared, byte by byte, and the row it stands for.
struct IndexEntry {
  std::vector<unsigned char> key;
  RowPointer row;
};

/// A leaf and the leaves that it names as its neighbours; 0 is none.
struct IndexLeaf {
  std::uint32_t page = 0;
  std::uint32_t previous = 0;
  std::uint32_t next = 0;
};

/// What a walk over a B-tree met: its pages, branches included, and its leaves in their order.
struct IndexWalk {
  std::vector<std::uint32_t> pages;
  std::vector<IndexLeaf> leaves;
  std::size_t entries = 0;
};

/// Calls back for each entry of the index in the order of its leaves. Circles, pages of another sort and
/// broken entries throw `Fault` of kind `file`.
IndexWalk WalkIndex(JetFile& file, const PhysicalIndex& index,
                    const std::function<void(const IndexEntry&)>& handle);

/// What the key of a row begins with: its parts up to the first column whose keys are not known here (texts,
/// which are sorted by language, and others). `values` are parallel to the columns of the table.
std::vector<unsigned char> KnownKeyOf(const TableDefinition& table, const PhysicalIndex& index,
                                      const std::vector<Value>& values);
/// True when the keys of its first column are known.
bool KnowsKeysOf(const TableDefinition& table, const PhysicalIndex& index);

}  // namespace rbt::jet
