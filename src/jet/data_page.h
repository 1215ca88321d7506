// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "jet/jet_file.h"

namespace rbt::jet {

/// One slot of a data page.
struct Slot {
  bool deleted = false;
  bool moved = false;  ///< holds a pointer to where the row stands now
  bool body = false;   ///< holds a row that another slot points to
  std::size_t start = 0;
  std::size_t length = 0;
};

/// The definition page of the table whose rows a data page holds; of pages of long values "LVAL".
std::uint32_t OwnerOf(const PageView& page);

/// The slots of a data page. Damage throws `Fault` of kind `file`.
std::vector<Slot> SlotsOf(const JetFile& file, const PageView& page);
Slot SlotOf(const JetFile& file, const PageView& page, std::uint8_t slot);

/// The bytes of a live row, wherever it has moved to. A deleted slot is damage here: something points to it.
std::vector<unsigned char> ReadRowBytes(JetFile& file, RowPointer row);

/// A memo or OLE value from the field of its row: nothing at all (an empty value), inline, on one page, or a
/// chain. The length in the field's head bounds what is gathered.
std::vector<unsigned char> ReadLongValue(JetFile& file, const PageView& field);

}  // namespace rbt::jet
