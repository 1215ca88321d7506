// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "tally/tally_kind.h"
#include "tally/tally_result.h"

namespace rbt {

/// The range of the schedule that a tally asks for.
enum class TallyRange {
  whole_site,
  shapes,     ///< `ShapeStart` to `ShapeEnd`
  positions,  ///< `StartPage`, `StartLine` to `EndPage`, `EndLine`
  floors,     ///< `KaiStart` to `KaiEnd` and the special floors of `TokubetuMask`
  names,      ///< the registered names that are marked in the site's companion file
};

/// A kind of tally. What comes in kinds of tallies loops over these rows: screens, menu, command line.
struct TallyKindRow {
  TallyKind kind;
  std::string_view word;  ///< on the command line and in JSON
  std::string_view name;  ///< in messages
  TallyRange range;
  /// Tallies the selection into the place of the current result. Null: this program cannot tally it yet.
  void (*count)();
  TallyTables (*current)();  ///< what stands in that place
};

/// All kinds, in the order in which the command line lists them.
std::span<const TallyKindRow> TallyKinds();

/// The row of a kind; a number that no kind has throws `subscript out of range`.
const TallyKindRow& RowOf(TallyKind kind);
/// The kind of a word; null when no kind that can be tallied has it.
const TallyKindRow* FindTallyKind(std::string_view word);

/// Tallies the selection over the open site and gives what stands in the place of the current result. Throws
/// what the tally throws; nothing is left in that place then.
TallyResult CountTally(TallyKind kind);

}  // namespace rbt
