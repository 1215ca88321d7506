// SPDX-License-Identifier: MIT
#include "jet/samples.h"

#include <algorithm>
#include <cctype>

#include "platform/files/files.h"

namespace rbt::test {

namespace fs = std::filesystem;

namespace {

const fs::path kSamples = RBT_JET_SAMPLES;

}  // namespace

fs::path Sample(const std::string& name) { return kSamples / name; }

std::vector<std::string> ReadableSamples() {
  std::vector<std::string> names;
  for (const char* folder : {"jet3", "jet4"}) {
    for (const fs::directory_entry& entry : fs::directory_iterator(kSamples / folder)) {
      const std::string name = entry.path().filename().string();
      if (name != "V2000_with-password.mdb") names.push_back(std::string(folder) + "/" + name);
    }
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string TestNameOf(const std::string& sample) {
  std::string name = fs::path(sample).stem().string();
  std::replace_if(
      name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return name;
}

std::vector<unsigned char> BytesOf(const fs::path& file) {
  const std::string bytes = ReadFileBytes(file);
  return {bytes.begin(), bytes.end()};
}

}  // namespace rbt::test
