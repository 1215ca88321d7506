// SPDX-License-Identifier: MIT
#include "archive/csv/plain_record.h"

#include "archive/csv/csv_fittings.h"

namespace rbt {

PlainRecord& PlainRecord::Put(std::string_view text) {
  record_.AddWritten(QuotedCsvCell(text));
  return *this;
}

PlainRecord& PlainRecord::Put(std::int32_t number) {
  record_.AddWritten(std::to_string(number));
  return *this;
}

PlainRecord& PlainRecord::Put(Currency kilograms) {
  record_.AddWritten(WholeKilograms(kilograms).ToText());
  return *this;
}

PlainRecord& PlainRecord::PutNull() {
  record_.AddWritten("");
  return *this;
}

PlainRecord& PlainRecord::PutParts(const CheckedArray<Currency, kPartEntries>& parts, Currency total) {
  for (int p = kFirstPart; p < kPartEntries; ++p) Put(parts[p]);
  return Put(total);
}

std::string HeadRecord(const CsvSite& site, Currency total) {
  PlainRecord record;
  record.Put("工事No").Put(site.number).Put("工事名").Put(site.name);
  record.Put("取引先").Put(site.client).Put("総重量").Put(total);
  return record.Line();
}

std::string PartCaptionRecord(std::string_view first, const CsvSite& site) {
  PlainRecord record;
  record.Put(first);
  for (int p = kFirstPart; p < kPartEntries; ++p) record.Put(CsvPartName(site, p));
  record.Put(kCsvTotal);
  for (const std::string_view word : kCsvFittings) record.Put(word);
  return record.Line();
}

std::string_view CsvPartName(const CsvSite& site, int part) {
  if (part == kOtherParts) return kOtherPartsLabel;
  return site.parts.at(static_cast<std::size_t>(part - kFirstPart));
}

std::string EmptyLine() { return PlainRecord().Line(); }

}  // namespace rbt
