// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <span>

#include <sqlite3.h>

#include "store/connection.h"

namespace rbt {

/// Gets the values of one row, which end with the call.
using RowTaker = std::function<void(sqlite3_value** values)>;

/// Runs a statement that hands its rows to `kEachRow`, whose first argument tells by its parameter which of
/// the takers gets them. What one throws ends it and comes through; else throws what `Statement::Step` does.
void TakeRows(Statement& statement, std::span<const RowTaker> takers);
/// The same for one.
void TakeRows(Statement& statement, const RowTaker& take);

/// Registers the function on a connection.
void RegisterRowTaker(sqlite3* connection);

}  // namespace rbt
