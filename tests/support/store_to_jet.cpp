// SPDX-License-Identifier: MIT
// usage: store_to_jet 3|4 STORE JET
// Writes a database of the store as a real Jet file of that version.
#include <cstdio>
#include <exception>
#include <string_view>

#include "support/jet_writer.h"

int main(int argc, char** argv) {
  const std::string_view version = argc == 4 ? argv[1] : "";
  if (version != "3" && version != "4") {
    std::fprintf(stderr, "usage: store_to_jet 3|4 STORE JET\n");
    return 2;
  }
  try {
    rbt::Database database = rbt::Database::OpenReadOnly(argv[2]);
    rbt::test::WriteJetFile(argv[3], version == "3" ? rbt::jet::JetVersion::jet3 : rbt::jet::JetVersion::jet4,
                            rbt::test::JetTablesOf(database));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "store_to_jet: %s\n", error.what());
    return 1;
  }
  return 0;
}
