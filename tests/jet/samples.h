// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace rbt::test {

/// A sample of tests/data/jet by its name there, "jet4/delTestV2000.mdb".
std::filesystem::path Sample(const std::string& name);
/// The names of all samples that can be read (the one with a password is left out), ascending.
std::vector<std::string> ReadableSamples();
/// A sample's name as a part of a test's name.
std::string TestNameOf(const std::string& sample);

std::vector<unsigned char> BytesOf(const std::filesystem::path& file);

}  // namespace rbt::test
