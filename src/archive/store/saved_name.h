// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/date_time.h"
#include "tally/tally_result.h"

namespace rbt {

/// The tallies that stand on floors and parts, 階別集計 and 部位別集計: the dialog offers no choice about
/// memos, the name has no sub-project.
constexpr bool IsOfFloors(TallyKind kind) { return kind == TallyKind::floor || kind == TallyKind::part; }

/// The name that a save proposes: the kinds of bars, date and time, of the page tallies the range, and the
/// sub-project text where there is one.
std::string ProposedName(const TallyResult& result, const DateTime& now, std::string_view subproject);

/// Why a name cannot be taken, with the message that says so.
struct NameRefusal {
  std::string text;
  std::string_view title;
};

/// A name of more than 60 characters as it was typed, blanks and all: each counts two of 120 bytes.
std::optional<NameRefusal> RefusedLength(std::string_view name);
/// A name of blanks alone.
std::optional<NameRefusal> RefusedEmptiness(std::string_view name);
/// A text with a character that names must not hold: the first of them.
std::optional<NameRefusal> RefusedCharacter(std::string_view text);
/// What became part of a text by one key press, drop or paste: what stands between the common beginning and
/// the common end.
std::string_view InsertedText(std::string_view before, std::string_view after);

}  // namespace rbt
