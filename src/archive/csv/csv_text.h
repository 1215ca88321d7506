// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "archive/csv/csv_subject.h"

namespace rbt {

/// The CSV file of a subject, UTF-8, lines ending in CR LF. Texts stand in double quotes, inner ones doubled,
/// numbers bare; weights are whole kilograms. `layout` is for a floor tally.
std::string CsvText(const CsvSubject& subject, const CsvSite& site, FloorCsvLayout layout);

}  // namespace rbt
