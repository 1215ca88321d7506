// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "platform/numbers/value.h"
#include "store/database.h"

namespace rbt {

/// A row by the names of its fields.
using NamedValues = std::vector<std::pair<std::string, Value>>;

/// A tally that nobody has but the working copy.
struct KeptTally {
  std::string date;  ///< 作成日, "yyyymmdd"
  std::string time;  ///< 作成時間, "hhnnss"
  std::string name;
  NamedValues name_row;                                   ///< of 重量集計名称
  std::vector<std::pair<std::string, NamedValues>> rows;  ///< of the other tables, with their names
};

/// What was saved in a working copy and is not in its Jet file.
struct SavedHere {
  std::vector<TableDef> tables;  ///< of the archive, as the copy has them
  std::vector<KeptTally> tallies;
  /// 表示番号 of the registered names, by 登録AN.
  std::vector<std::pair<Value, Value>> marks;
};

/// Notes in a working copy which tallies came with the Jet file, and how they stood.
void NoteTalliesOfOriginal(Database& working_copy);

/// Reads what was saved in a working copy. A tally that was changed here, be it by a new name, was saved
/// here.
SavedHere ReadSavedHere(Database& working_copy);
/// How many tallies that are.
std::size_t CountSavedHere(Database& working_copy);

/// Writes it beside the rows of another import of the Jet file. Archive tables and fields that the file lacks
/// are made. A tally whose moment, or whose name among those of its kind, is taken by one that is there goes
/// under its name with "(控え)", and a number behind that where this is taken too; a moment that is taken
/// goes on by seconds until one is free.
void WriteSavedHere(Database& fresh, const SavedHere& saved);

}  // namespace rbt
