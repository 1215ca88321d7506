// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "data/shapes.h"
#include "data/start_mode.h"
#include "tally/floorpart/floor_range.h"
#include "tally/schedule_positions.h"
#include "tally/selection.h"

namespace rbt {

class CommandLine;

/// The options that every command on a site takes beside `--root`.
struct CommonOptions {
  std::string site;  ///< schedule file in place of 選択ＤＢ名, see `SiteOfOption`; empty: as STEEL.INI says
  std::int32_t start_mode = kNoStartMode;
  bool no_prepare = false;   ///< leave the schedule as it stands
  std::string jet = "read";  ///< "read", "import" or "refuse": what becomes of real Jet files
};

/// The filters of a tally.
struct SelectionOptions {
  std::int32_t kinds = 15;  ///< MaterialKindMask; 0 (thin bars alone) is for the floor and part tallies
  std::int16_t forms = 15;  ///< MaterialFormMask
  std::int32_t ulbon = 1;   ///< IncludeUlbon
  std::int16_t calc = 2;    ///< MaterialCalcChoice
  std::int32_t hoops = 0;   ///< HoopMode
  std::int32_t plates = 0;  ///< AnchorPlateMode
  std::optional<ShapeRange> shapes;      ///< of the shape tally; nothing: all
  std::optional<SchedulePosition> from;  ///< of the tallies by page and line; nothing: the first
  std::optional<SchedulePosition> to;    ///< nothing: the last
  std::vector<std::int32_t> names;       ///< 登録AN of the names of the tally of registered names
  std::optional<FloorRange> floors;      ///< of the floor and part tallies; nothing: all
  std::int16_t special = 0;              ///< TokubetuMask
  double uplift = 0.0;                   ///< percent, of the floor and part tallies
};

/// Adds the options of a group to a command; what is given there ends in `options`.
void AddCommonOptions(CommandLine& line, CommonOptions& options);
void AddSelectionOptions(CommandLine& line, SelectionOptions& options);
/// Those of the floor and part tallies alone.
void AddFloorOptions(CommandLine& line, SelectionOptions& options);
/// `--format`: "table", "json" or "csv".
void AddFormatOption(CommandLine& line, std::string& format);

/// Takes the filters over as given; what a screen would reset stays.
void ApplySelection(const SelectionOptions& options, SelectionData& selection);

}  // namespace rbt
