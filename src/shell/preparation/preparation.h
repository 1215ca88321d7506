// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "data/start_mode.h"
#include "store/database.h"

namespace rbt {

/// The statements that classify the schedule, in their order: material form (`予備3`), dimension
/// string (`予備5`), material kind (`予備2`), weld diameter (`圧接太さ`). The form statements read `予備2` as
/// the last start left it: a threaded shape above 200 of a new schedule takes its form from the next start
/// on.
std::vector<std::string> ClassificationStatements(const StartModeTraits& start_mode);

/// The statements of the activation: thin bars are Ulbon, others that were Ulbon become deformed
/// (of 16 both are possible, and a null `太さ` keeps its kind), anchor plates are counted (none in a start
/// mode that knows none), slit bars are marked, in this order. Files of old layouts have no `定着板数`.
std::vector<std::string> ActivationStatements(const StartModeTraits& start_mode, bool has_plate_counts);
std::vector<std::string> RefreshStatements(Database& schedule, const StartModeTraits& start_mode);
/// Runs them as one. Rows that do not change are not written.
void RefreshSchedule(Database& schedule, const StartModeTraits& start_mode);

/// Those of the load and, behind them, those of an activation: what a schedule has to be like before it is
/// tallied.
std::vector<std::string> PreparationStatements(Database& schedule, const StartModeTraits& start_mode);

/// The statements of `FillFloorsAndParts`.
std::vector<std::string> FillStatements();
/// No floor for a null `階`, no part for a null `部位`: before floors or parts are tallied.
void FillFloorsAndParts(Database& schedule);

/// Adds the columns that the work with registered names needs to the schedule and to the site's companion
/// file where they are missing, and turns null weights into 0.
void AddNameWorkColumns(Database& schedule, Database& companion);

}  // namespace rbt
