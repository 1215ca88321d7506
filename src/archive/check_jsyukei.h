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

/// Drops the tables of saved bulk tallies and of their names where they hold no rows, so that they are made
/// again from the template. The site database is opened anew and left open.
void DropEmptyArchiveTables();

/// Brings the archive tables of the site database up to the template: missing fields are appended and the
/// key made again, missing tables are made with their fields and indexes; each table is one transaction. A
/// missing template is told by a message. Errors end the check without a message: a site that cannot be
/// brought up to date fails when a tally is saved. The site database is opened if need be and left open.
void Check_JSyukei();

}  // namespace rbt
