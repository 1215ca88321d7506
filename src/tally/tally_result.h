// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <variant>

#include "tally/floor_tables.h"
#include "tally/part_tables.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"
#include "tally/tally_kind.h"

namespace rbt {

/// How a result came to be.
enum class ResultOrigin {
  counted,      ///< from the schedule
  raised,       ///< by the user's percentage
  corrected,    ///< by hand
  loaded,       ///< a saved tally
  accumulated,  ///< counted, on top of the sites counted before
};

/// The tables of a result, by the family of its kind.
using TallyTables = std::variant<TallyTable, FloorTables, PartTables>;

/// What a tally gives, and all that its readers look at: grids, reports, files. A value: what happens to
/// `TallyGrid`, `FloorTally`, `PartTally` or to the selection later does not reach it.
struct TallyResult {
  TallyKind kind = TallyKind::bulk;
  SelectionData selection = {};  ///< what was asked for
  ResultOrigin origin = ResultOrigin::counted;
  bool has_hoop_rows = false;          ///< what the presence probes of the tally found
  bool has_anchor_plate_rows = false;  ///< likewise
  std::int32_t ulbon_percent = 0;      ///< the Ulbon rows are shown and printed so much higher
  bool bars_raised = false;            ///< the bars of the purchase list were raised by a percentage
  bool was_saved = false;              ///< loaded, whatever was changed in it since
  bool saved_as_corrected = false;     ///< loaded, and corrected by hand before it was saved
  TallyTables tables = {};

  /// The diameter-by-length tables. Throws `std::bad_variant_access` for a result of another family.
  const TallyTable& Grid() const { return std::get<TallyTable>(tables); }
  TallyTable& Grid() { return std::get<TallyTable>(tables); }
  /// The tables by floor; those by part. Likewise.
  const FloorTables& Floors() const { return std::get<FloorTables>(tables); }
  const PartTables& Parts() const { return std::get<PartTables>(tables); }

  friend bool operator==(const TallyResult&, const TallyResult&) = default;
};

/// More is not typed into the box of six digits, and the command line refuses it.
inline constexpr std::int32_t kHighestUlbonPercent = 999999;

/// The result with its Ulbon rows raised by `percent`, counted from the tables each time: raising twice is
/// raising by the last. With 0 they stand as tallied.
TallyResult WithUlbonRaised(TallyResult result, std::int32_t percent);

}  // namespace rbt
