// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "store/database.h"

namespace rbt {

/// True when the database has a table of exactly this name.
bool Table_Exists(std::string_view TableName, Database& database);

/// Drops the primary key of a table of the open site database.
void Drop_Indexes(std::string_view TableName);
/// Adds the primary key of one of the six archive tables of the open site database; any other table throws
/// `database`.
void Add_PrimaryKey(std::string_view TableName);

/// Readies the archive tables of the open site database as every start does: the tables of saved bulk tallies
/// and of their names that hold no rows are dropped, so that they are made anew, then the tables are brought
/// up to the template: missing fields are appended and the key made again, missing tables are made with their
/// fields and indexes. What is right already is left alone, and a site in which all is right is not written.
/// Everything else is one transaction. A missing template is told by a message. What the site's own rows
/// stand against ends the check without a message: a tally cannot be saved then. A lock, a full disk, a
/// damaged file are faults. A site that may only be read is left as it is.
void ReadyArchiveTables();

/// The second part of that alone, with nothing dropped. The site database is opened if need be and left open.
void Check_JSyukei();

}  // namespace rbt
