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

/// A mark of a registered name that did not come with the Jet file.
struct KeptMark {
  Value number;  ///< 登録AN
  Value name;    ///< 登録名
  Value mark;    ///< 表示番号
};

/// What was saved in a working copy and is not in its Jet file.
struct SavedHere {
  std::vector<TableDef> tables;  ///< of the archive, as the copy has them
  std::vector<KeptTally> tallies;
  std::vector<KeptMark> marks;
};

/// Notes in a working copy which tallies came with the Jet file, and how they stood.
void NoteTalliesOfOriginal(Database& working_copy);
/// Notes in a working copy how the registered names were marked when they came with the Jet file.
void NoteMarksOfOriginal(Database& working_copy);

/// Reads what was saved in a working copy. A tally that was changed here, be it by a new name, was saved
/// here; a mark that stands as it came was not.
SavedHere ReadSavedHere(Database& working_copy);
/// How many tallies that are.
std::size_t CountSavedHere(Database& working_copy);

/// Writes it beside the rows of another import of the Jet file. Archive tables and fields that the file lacks
/// are made. A tally whose moment, or whose name among those of its kind, is taken by one that is there goes
/// under its name with "(控え)", and a number behind that where this is taken too; a moment that is taken
/// goes on by seconds until one is free. A mark goes to the name whose number and text it was set for.
void WriteSavedHere(Database& fresh, const SavedHere& saved);

}  // namespace rbt
