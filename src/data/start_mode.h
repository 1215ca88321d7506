// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace rbt {

/// The start mode of a command line without a number: the program runs by itself.
inline constexpr std::int32_t kNoStartMode = -1;

enum class MenuExtent { none, reduced, full };

/// What a start mode means. The programs of the family start this one with their number; each knows some
/// things of bars and not others, and this one follows. The defaults are those of a number that means
/// nothing.
struct StartModeTraits {
  MenuExtent menu = MenuExtent::none;
  bool offers_coupler_counter = true;  ///< in the menu, where the counting program is on disk
  bool offers_plate_counter = true;    ///< likewise
  /// Command line of the companion that takes over once the schedule is prepared: the menu is never usable.
  /// Empty: no companion does.
  std::string_view pass_on_to = "";
  /// Command line of the companion that works with registered names.
  std::string_view name_companion = "\\rbk\\rbtally2.exe";

  bool only_plain_bars_are_straight = false;  ///< bars with threaded or anchored ends count as bent
  bool counts_plates = true;                  ///< else no row of the schedule has an anchor plate
  bool probes_presence = true;                ///< tallies ask for hoops and anchor plates in their range
  bool probes_plates_of_names = true;         ///< the tally of registered names asks for anchor plates
  bool offers_shape_filters = true;           ///< result screens have buttons for hoops and anchor plates
  bool hides_slit = false;                    ///< captions of kinds and total rows lose the slit word
  bool hides_slit_in_bulk_kinds = false;      ///< the caption of kinds of the bulk screen loses it
  bool hides_cuts = false;                    ///< comparison reports have no column of cuts

  constexpr bool PassesOn() const { return !pass_on_to.empty(); }

  friend bool operator==(const StartModeTraits&, const StartModeTraits&) = default;
};

struct StartModeRow {
  std::int32_t number = kNoStartMode;
  StartModeTraits traits;
};

inline constexpr StartModeRow kStartModes[] = {
    {kNoStartMode, {.menu = MenuExtent::full, .hides_slit_in_bulk_kinds = true}},
    {1,
     {.menu = MenuExtent::reduced,
      .offers_coupler_counter = false,
      .offers_plate_counter = false,
      .name_companion = "\\rbk\\rbtally2.exe 0",
      .only_plain_bars_are_straight = true,
      .counts_plates = false,
      .probes_presence = false,
      .probes_plates_of_names = false,
      .offers_shape_filters = false,
      .hides_slit = true,
      .hides_slit_in_bulk_kinds = true,
      .hides_cuts = true}},
    {2, {.pass_on_to = "\\rbk\\rbtally2.exe 2", .probes_plates_of_names = false}},
    {3,
     {.menu = MenuExtent::reduced,
      .offers_coupler_counter = false,
      .offers_plate_counter = false,
      .pass_on_to = "\\rbk\\rbtally2.exe 3",
      .name_companion = "\\rbk\\rbtally2.exe 0",
      .only_plain_bars_are_straight = true,
      .counts_plates = false,
      .probes_presence = false,
      .probes_plates_of_names = false,
      .offers_shape_filters = false,
      .hides_slit = true,
      .hides_slit_in_bulk_kinds = true,
      .hides_cuts = true}},
    {4,
     {.menu = MenuExtent::reduced,
      .offers_plate_counter = false,
      .name_companion = "\\rbk\\rbtally2.exe 4",
      .only_plain_bars_are_straight = true,
      .offers_shape_filters = false,
      .hides_slit = true,
      .hides_slit_in_bulk_kinds = true}},
};

/// The traits of the first number of a command line; every number has some.
constexpr StartModeTraits TraitsOfStartMode(std::int32_t number) {
  for (const StartModeRow& row : kStartModes) {
    if (row.number == number) return row.traits;
  }
  return {};
}

}  // namespace rbt
