// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "archive/csv/csv_subject.h"

namespace rbt {

/// The records of each kind of file, line by line.

/// Diameters side by side, bars and weight of each by stock length, then sums, fittings and memos.
std::string GridRecords(const CsvOfTally& tally, const CsvSite& site);
/// The listed floors with their parts and fittings, then all of them together.
std::string FloorRecords(const FloorTables& tables, const CsvSite& site);
/// For each listed floor, then for all of them, a block of parts by deformed diameter. The totals are those
/// of the floor list, which know thin bars and hand corrections too.
std::string FloorPartRecords(const FloorTables& tables, const CsvSite& site);
/// The listed diameters with their parts and fittings, then all of them together.
std::string PartRecords(const PartTables& tables, const CsvSite& site);
/// The registered names.
std::string NameRecords(const CsvOfNames& names, const CsvSite& site);

}  // namespace rbt
