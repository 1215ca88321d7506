// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/numbers/currency.h"
#include "store/database.h"

namespace rbt {

/// A row of 登録名: a named group of bars, with the weights that the last summary found for it.
struct RegisteredName {
  std::optional<std::int32_t> number;  ///< 登録AN, what a row of the schedule carries
  std::string name;
  bool marked = false;      ///< 表示番号 = 1: selected for the tally
  Currency stock = {};      ///< 定尺重量合計, kilograms
  Currency installed = {};  ///< 取付重量合計, kilograms

  friend bool operator==(const RegisteredName&, const RegisteredName&) = default;
};

/// By 登録AN or by 登録名; a null stands before all others.
enum class NameOrder { by_number, by_name };

/// The list of a companion database; a weight that is null, or that the file lacks, reads as 0.
std::vector<RegisteredName> ReadNames(Database& companion, NameOrder order);

/// The numbers of the marked names in their order. A marked row without a number is none.
std::vector<std::int32_t> MarkedNumbers(Database& companion);

/// Marks the names of these numbers, or takes their marks away; a number that the table lacks does nothing.
void MarkNames(Database& companion, std::span<const std::int32_t> numbers, bool marked);

/// Marks the names of these numbers and no other, and holds the list so: another program's marks do not come
/// in between. See `Database::Hold`.
void HoldMarks(Database& companion, std::span<const std::int32_t> numbers);
/// Marks the names from a number to another, both included.
void MarkNamesBetween(Database& companion, std::int32_t first, std::int32_t last);
/// True when a name has the number.
bool HasName(Database& companion, std::int32_t number);

}  // namespace rbt
