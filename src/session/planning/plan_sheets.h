// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "planning/outcome/outcome.h"
#include "reports/plan/plan_sheet.h"
#include "session/panels/print_or_show.h"

namespace rbt {

/// The sheets of a plan.
enum class PlanSheet { purchase, shop };

/// What they have at their head: the bound site's client and project, and what the selection leaves out of
/// it, or nothing for pieces of a file; today's date.
PlanSheetHead PlanHeadOfSite();
PlanSheetHead PlanHeadOfFile();

/// The same in a title: the project, and what is left out of it.
std::string PlanSubjectOfSite();

/// Draws a sheet on the current printer. Figures that its fields cut are told in a message.
void PrintPlanSheet(PlanSheet sheet, const PlanSheetHead& head, const planning::Outcome& outcome);

/// The same to look at first; returns what `PrintOrShow` does.
std::string ShowPlanSheet(PlanSheet sheet, const planning::Outcome& outcome, const Preview& preview);

}  // namespace rbt
