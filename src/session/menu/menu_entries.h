// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>
#include <variant>

#include "session/menu/siblings.h"
#include "tally/tally_kind.h"

namespace rbt {

/// The screen of a kind of tally.
struct OpensTally {
  TallyKind kind;
  std::string_view form;  ///< object name
};
struct RunsSibling {
  const Sibling& sibling;
};
/// The companion that works with registered names.
struct RunsNameCompanion {};
/// The program that fits bars to stock and returns to this one.
struct RunsStockFitter {};
struct OpensSettings {};
struct Leaves {};

/// An entry of the menu: its control and key, and what they start.
struct MenuEntry {
  std::string_view control;
  std::string_view key;  ///< as it is called: "F1", "0", "Esc"; empty: the button alone
  std::variant<OpensTally, RunsSibling, RunsNameCompanion, RunsStockFitter, OpensSettings, Leaves> starts;
  std::string_view hint;  ///< what the user is told of that
};

/// All entries, in the order of their keys.
std::span<const MenuEntry> MenuEntries();
/// Faults: `subscript out of range` for a control that is no entry.
const MenuEntry& FindMenuEntry(std::string_view control);

}  // namespace rbt
