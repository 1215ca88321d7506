// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "store/database.h"

namespace rbt {

/// What the summary of the registered names takes from the settings.
struct NameSummaryRules {
  bool weigh_13m_stock = false;  ///< 定尺13有無: stock of 13.0 m has a weight
  bool cap_installed_weight =
      false;  ///< 定尺取付書換: deformed bars never weigh more installed than as stock
};

/// The statements that fill WorkTable from the schedule and weigh its rows, in the order in which they run.
/// Rows whose kind is null are in none; D41 is weighed installed at the metre of D51, and D51 not at all.
std::vector<std::string> WorkTableStatements(const NameSummaryRules& rules);
/// The statement that sums WorkTable by name, diameter and kind.
std::string WorkSumStatement(const NameSummaryRules& rules);

/// Works the weights of the registered names out in the schedule's file: WorkTable, WorkSumTable and
/// WorkSumResultsTable are made anew. Run it in a transaction.
void SumNamesInWorkTables(Database& schedule, const NameSummaryRules& rules);
/// Takes all marks away and writes the weights of WorkSumResultsTable to the names of the companion file, 0
/// to a name that has none there. One transaction.
void WriteNameWeights(Database& schedule, Database& companion);
/// Takes all marks and all weights away that the companion file has.
void ClearNames(Database& companion);
/// What the end of the work with names drops: WorkTable and WorkSumResultsTable, WorkSumTable stays. A table
/// that is not there is none.
void DropNameWorkTables(Database& schedule);

}  // namespace rbt
