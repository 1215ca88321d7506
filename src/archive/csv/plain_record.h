// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "archive/csv/csv_subject.h"
#include "platform/numbers/checked_array.h"
#include "platform/text/csv.h"
#include "tally/list_row.h"

namespace rbt {

inline constexpr std::string_view kCsvTotal = "合計";

/// One line of a CSV file: texts in double quotes, numbers bare.
class PlainRecord {
 public:
  PlainRecord& Put(std::string_view text);
  PlainRecord& Put(std::int32_t number);
  /// As whole kilograms, halves upwards.
  PlainRecord& Put(Currency kilograms);
  /// A field that holds nothing.
  PlainRecord& PutNull();
  /// The parts 1 to 11, then their sum.
  PlainRecord& PutParts(const CheckedArray<Currency, kPartEntries>& parts, Currency total);

  std::string Line() const { return record_.Text(); }

 private:
  CsvRecord record_;
};

/// What a file begins with: site, client, total weight.
std::string HeadRecord(const CsvSite& site, Currency total);
/// The captions of a table by part: `first`, the parts, the total, the fittings.
std::string PartCaptionRecord(std::string_view first, const CsvSite& site);
/// The name of a part, 1 to 11.
std::string_view CsvPartName(const CsvSite& site, int part);
/// A line that holds nothing.
std::string EmptyLine();

}  // namespace rbt
