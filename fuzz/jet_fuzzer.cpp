// SPDX-License-Identifier: MIT
// Any bytes are a Jet file, a damaged one or none: looking at all of it ends, and only damage is told.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/fault.h"
#include "platform/jet/check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    const auto file = rbt::jet::JetFile::FromBytes({data, data + size}, "fuzz.mdb");
    const rbt::jet::CheckReport report = rbt::jet::CheckFile(*file);
    if (report.lines.size() > size) std::abort();
  } catch (const rbt::Fault& fault) {
    // Only what stands in the way of looking at anything leaves the check.
    if (fault.Kind() != rbt::FaultKind::file || std::string(fault.what()).rfind("fuzz.mdb: ", 0) != 0) {
      std::abort();
    }
  }
  return 0;
}
