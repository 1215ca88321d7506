// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "jet/index.h"

namespace rbt::jet {

/// A live row and which of its fields are null, parallel to the columns of its table.
struct RowNulls {
  RowPointer place;
  std::vector<bool> nulls;
};

/// Walks an index and tells what does not agree with the table's live rows (ascending by place): entries out
/// of order, twice, without a row or with the key of another; rows without an entry; equal keys where it is
/// unique; leaves that name the wrong neighbours. A tree that cannot be walked throws `Fault` of kind `file`.
IndexWalk CheckIndex(JetFile& file, const TableDefinition& table, const PhysicalIndex& index,
                     const std::vector<RowNulls>& rows, const std::function<void(const std::string&)>& tell);

}  // namespace rbt::jet
