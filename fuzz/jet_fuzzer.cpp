// SPDX-License-Identifier: MIT
// Any bytes are a Jet file, a damaged one or none: looking at all of it ends, and only damage is told.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "jet/check.h"
#include "jet/csv_dump.h"
#include "jet/import/table_mapping.h"
#include "platform/fault.h"

namespace {

/// Tables as an import and a dump look at them.
void LookIntoTables(rbt::jet::JetFile& file) {
  int tables = 0;
  for (const rbt::jet::CatalogEntry& entry : rbt::jet::ReadCatalog(file)) {
    if (entry.kind != rbt::jet::CatalogEntry::Kind::table || ++tables > 8) continue;
    rbt::jet::MapTable(file, entry);
    rbt::jet::DumpRows(file, entry.name, [](std::string_view) {});
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    const auto file = rbt::jet::JetFile::FromBytes({data, data + size}, "fuzz.mdb");
    const rbt::jet::CheckReport report = rbt::jet::CheckFile(*file);
    if (report.lines.size() > size) std::abort();
    LookIntoTables(*file);
  } catch (const rbt::Fault& fault) {
    // Only what stands in the way of looking at anything leaves the check.
    if (fault.Kind() != rbt::FaultKind::file || std::string(fault.what()).rfind("fuzz.mdb: ", 0) != 0) {
      std::abort();
    }
  }
  return 0;
}
