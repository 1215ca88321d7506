// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "data/diameters.h"
#include "data/parts.h"
#include "tally/names/name_list.h"
#include "tally/tally_result.h"

namespace rbt {

/// A tally that is written to a CSV file.
struct CsvOfTally {
  TallyResult result = {};
  std::array<std::string, 3> memos = {};
  std::string data_name = {};  ///< what the tally is saved under, or would be
};

/// The list of registered names that is written to a CSV file, in the order in which it stands there.
struct CsvOfNames {
  std::vector<RegisteredName> names = {};
};

using CsvSubject = std::variant<CsvOfTally, CsvOfNames>;

/// How a floor tally is written: a table of floors by part, or for each floor one of parts by diameter.
enum class FloorCsvLayout { total, parts };
/// Whether that is to be chosen.
bool HasFloorLayouts(const CsvSubject& subject);

/// What a CSV file tells of the site.
struct CsvSite {
  std::int32_t number = 0;
  std::string name = {};
  std::string client = {};
  std::array<std::string, kDeformedRows> grades = {};  ///< of D10 to D51
  std::array<std::string, kLastNamedPart> parts = {};  ///< names of the parts 1 to 10
  bool with_13m = false;                               ///< the 13.0 m column is in use
};

}  // namespace rbt
