// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "platform/fault.h"

namespace rbt::test {

/// Files as another program makes and reads them, through SQLite's C interface alone.
void RunPlain(const std::filesystem::path& file, const std::string& sql);
std::string PlainText(const std::filesystem::path& file, const std::string& sql);
std::int64_t PlainInteger(const std::filesystem::path& file, const std::string& sql);

void WriteBytes(const std::filesystem::path& file, const std::string& bytes);

/// Runs what must fault, of that kind, with those words in its text.
void ExpectFault(FaultKind kind, const std::string& words, const std::function<void()>& action);

}  // namespace rbt::test
