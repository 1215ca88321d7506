// SPDX-License-Identifier: MIT
#include "store/plain_file.h"

#include <fstream>
#include <stdexcept>

#include <sqlite3.h>

namespace rbt::test {
namespace {

/// Runs every statement of the text; the first column of the last row.
std::string RunAll(const std::filesystem::path& file, const std::string& sql) {
  sqlite3* connection = nullptr;
  if (sqlite3_open(file.c_str(), &connection) != SQLITE_OK)
    throw std::runtime_error("cannot open " + file.string());
  std::string first;
  char* message = nullptr;
  const auto take = [](void* result, int, char** values, char**) {
    *static_cast<std::string*>(result) = values[0] == nullptr ? "null" : values[0];
    return 0;
  };
  const int code = sqlite3_exec(connection, sql.c_str(), take, &first, &message);
  const std::string text = message == nullptr ? "" : message;
  sqlite3_free(message);
  sqlite3_close(connection);
  if (code != SQLITE_OK) throw std::runtime_error(text + ": " + sql);
  return first;
}

}  // namespace

void RunPlain(const std::filesystem::path& file, const std::string& sql) { RunAll(file, sql); }

std::string PlainText(const std::filesystem::path& file, const std::string& sql) { return RunAll(file, sql); }

std::int64_t PlainInteger(const std::filesystem::path& file, const std::string& sql) {
  return std::stoll(RunAll(file, sql));
}

void WriteBytes(const std::filesystem::path& file, const std::string& bytes) {
  std::ofstream(file, std::ios::binary) << bytes;
}

void ExpectFault(FaultKind kind, const std::string& words, const std::function<void()>& action) {
  try {
    action();
  } catch (const Fault& fault) {
    EXPECT_EQ(static_cast<int>(fault.Kind()), static_cast<int>(kind)) << fault.what();
    EXPECT_NE(std::string(fault.what()).find(words), std::string::npos) << fault.what();
    return;
  }
  ADD_FAILURE() << "no fault; expected: " << words;
}

}  // namespace rbt::test
