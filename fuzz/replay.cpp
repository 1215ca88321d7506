// SPDX-License-Identifier: MIT
// usage: NAME_fuzzer FILE...
// Feeds a fuzzer with files where no engine does; what it finds ends the program.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

#include "platform/fault.h"
#include "platform/files/files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int count, char** names) {
  try {
    for (int i = 1; i < count; ++i) {
      const std::string bytes = rbt::ReadFileBytes(names[i]);
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
  } catch (const rbt::Fault& fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    return 1;
  }
  return count > 1 ? 0 : 2;
}
