// SPDX-License-Identifier: MIT
#include "archive/store/load_tally.h"

#include <utility>

#include "archive/store/saved_name.h"
#include "archive/store/saved_rows.h"
#include "tally/floorpart/floor_tally.h"
#include "tally/floorpart/part_tally.h"

namespace rbt {

namespace {

/// How the tallies of a family come back: their place is cleared, their rows are read, and what was read is
/// put into that place and closed.
struct Family {
  void (*clear)();
  TallyTables (*current)();
  bool (*read)(Database& site, const SavedKey& key, bool with_13m, TallyResult& result);
  void (*close)(TallyTables&& tables);
};

constexpr Family kGrids{
    .clear = [] { TallyGrid = {}; },
    .current = []() -> TallyTables { return TallyGrid; },
    .read = ReadGridRows,
    .close = [](TallyTables&& tables) { TallyGrid = std::get<TallyTable>(std::move(tables)); }};

constexpr Family kFloors{.clear = [] { FloorTally = FloorTables(); },
                         .current = []() -> TallyTables { return FloorTally; },
                         .read = ReadFloorRows,
                         .close =
                             [](TallyTables&& tables) {
                               FloorTally = std::get<FloorTables>(std::move(tables));
                               Kai_Jyuuryo_Syukei_Load();
                             }};

constexpr Family kParts{.clear = [] { PartTally = PartTables(); },
                        .current = []() -> TallyTables { return PartTally; },
                        .read = ReadPartRows,
                        .close =
                            [](TallyTables&& tables) {
                              PartTally = std::get<PartTables>(std::move(tables));
                              Bui_Jyuuryo_Syukei_Load();
                            }};

const Family& FamilyOf(TallyKind kind) {
  if (kind == TallyKind::floor) return kFloors;
  return kind == TallyKind::part ? kParts : kGrids;
}

/// The selection of now, without what the saved figures carry already.
SelectionData SelectionFor(const SavedTally& saved) {
  SelectionData selection = Selection;
  selection.HoopMode = saved.hoops;
  selection.UwanoseRitu = selection.BuiUwanoseRitu = 0.0;
  return selection;
}

/// Puts a selection in force; without `Keep` the one before is back at the end.
class SelectionInForce {
 public:
  explicit SelectionInForce(const SelectionData& selection) : before_(std::exchange(Selection, selection)) {}
  SelectionInForce(const SelectionInForce&) = delete;
  SelectionInForce& operator=(const SelectionInForce&) = delete;
  ~SelectionInForce() {
    if (!kept_) Selection = before_;
  }
  void Keep() { kept_ = true; }

 private:
  SelectionData before_;
  bool kept_ = false;
};

}  // namespace

LoadedTally LoadTally(Database& site, const SavedTally& saved, bool with_13m) {
  const Family& family = FamilyOf(saved.kind);
  family.clear();
  LoadedTally loaded{.result = {}, .memos = saved.memos};
  TallyResult& result = loaded.result;
  result.kind = saved.kind;
  result.origin = ResultOrigin::loaded;
  result.was_saved = true;
  result.saved_as_corrected = saved.corrected;
  result.selection = SelectionFor(saved);
  loaded.has_rows = family.read(site, saved.key, with_13m, result);
  if (!loaded.has_rows) {
    result.tables = family.current();
    return loaded;
  }
  // No kind at all is how the floor and part tallies take Ulbon alone.
  if (IsOfFloors(saved.kind)) result.selection.UlbonOnly = result.selection.MaterialKindMask.IsNone();
  SelectionInForce selection(result.selection);
  family.close(std::move(result.tables));
  selection.Keep();
  result.tables = family.current();
  return loaded;
}

}  // namespace rbt
