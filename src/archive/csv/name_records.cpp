// SPDX-License-Identifier: MIT
#include "archive/csv/plain_record.h"
#include "archive/csv/records.h"

namespace rbt {

namespace {

std::string NameRecord(const RegisteredName& name) {
  PlainRecord record;
  if (name.number) {
    record.Put(*name.number);
  } else {
    record.PutNull();
  }
  return record.Put(name.name).Put(name.stock).Put(name.installed).Line();
}

}  // namespace

std::string NameRecords(const CsvOfNames& names, const CsvSite& site) {
  Currency total;
  for (const RegisteredName& name : names.names) total += name.stock;
  std::string text = HeadRecord(site, total);
  text += PlainRecord().Put("No").Put("登録名").Put("定尺重量").Put("取付重量").Line();
  for (const RegisteredName& name : names.names) text += NameRecord(name);
  return text;
}

}  // namespace rbt
