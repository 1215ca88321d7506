// SPDX-License-Identifier: MIT
#pragma once

#include "archive/csv/csv_subject.h"

namespace rbt {

/// What the file of a subject tells of the bound site, from the open master database and the settings; of
/// grades and parts what that file holds. Faults: `database` when the master database lacks the site.
CsvSite ReadCsvSite(const CsvSubject& subject);

}  // namespace rbt
