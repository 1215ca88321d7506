// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "archive/csv/csv_subject.h"
#include "platform/date_time.h"

namespace rbt {

/// A file name without the characters \ / ： * ? " < > | and without control characters. A half-width colon
/// stays.
std::string CreanFileName(std::string_view name);

/// The file name that is proposed: project, kind, moment. "見本町住宅一括集計20261121090000.csv".
std::string CsvFileName(const CsvSubject& subject, std::string_view project, const DateTime& now);

}  // namespace rbt
