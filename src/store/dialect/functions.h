// SPDX-License-Identifier: MIT
#pragma once

struct sqlite3;

namespace rbt {

/// Registers on a connection the functions that translated statements call: Jet's division, Fix, Val, text of
/// a number, and the checked assignments to the declared types. A failing function ends the statement with an
/// error whose message begins with the runtime's words ("overflow", "division by zero", "type mismatch").
void RegisterJetFunctions(sqlite3* connection);

}  // namespace rbt
