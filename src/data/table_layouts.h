// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "store/schema/schema.h"

namespace rbt {

/// The six tables of saved tallies with their named keys, as the template JSyukeiORG.mdb holds them.
std::vector<TableDef> ArchiveTables();
/// GENBAnnn.MDB: schedule, shapes, version, archive.
std::vector<TableDef> ScheduleFileTables();
/// HIROInnn.mdb: registered names and spirals.
std::vector<TableDef> CompanionFileTables();
/// SORANO.MDB: sites, clients, grades, part names.
std::vector<TableDef> MasterFileTables();
/// MTTeijyaku.mdb and MTTeijyaku_ORG.mdb.
std::vector<TableDef> FixedStockFileTables();

}  // namespace rbt
