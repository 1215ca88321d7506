// SPDX-License-Identifier: MIT
#include "store/database_file.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <memory>
#include <string>
#include <system_error>

#include <fmt/format.h>

#include "platform/files/system_error.h"
#include "platform/text/characters.h"
#include "store/connection.h"

namespace rbt {
namespace {

constexpr std::string_view kStoreMark{"SQLite format 3\0", 16};
constexpr std::string_view kJetMark = "Standard Jet DB";
constexpr std::size_t kJetMarkAt = 4;

bool HasJetMark(std::string_view first_bytes) {
  return first_bytes.substr(std::min(kJetMarkAt, first_bytes.size())).starts_with(kJetMark);
}

/// A word that a shell hands on as it is; plain paths are left alone.
std::string ShellWord(const std::string& word) {
  if (word.find_first_of(" \t\n'\"$&()*;<>?[]`{|}~!#\\") == std::string::npos) return word;
  return "'" + ReplaceAll(word, "'", "'\\''") + "'";
}

}  // namespace

void RequireRegularFile(const std::filesystem::path& file) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(file, error);
  switch (status.type()) {
    case std::filesystem::file_type::regular:
      return;
    case std::filesystem::file_type::not_found:
      throw FileFaultText(file, "the file does not exist");
    case std::filesystem::file_type::none:
      throw FileFault(file, "cannot be opened", error.value());
    default:
      throw FileFaultText(file, "is not a file");
  }
}

void RequireStoreMark(const std::filesystem::path& file, std::string_view first_bytes) {
  if (first_bytes.empty()) throw FileFaultText(file, "the file is empty, not a database");
  if (HasJetMark(first_bytes)) {
    throw JetFileFault(
        FaultKind::file,
        fmt::format("{0}: a real Jet file (Standard Jet DB), which is neither read nor written "
                    "here; to take it over: rbtally import {1} {1}",
                    file.string(), ShellWord(file.string())));
  }
  if (!first_bytes.starts_with(kStoreMark)) throw FileFaultText(file, "the file is not a database");
}

bool BeginsAsDatabase(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return false;
  std::ifstream in(file, std::ios::binary);
  std::string bytes(kMarkBytes, '\0');
  errno = 0;
  if (!in.read(bytes.data(), kMarkBytes) && !in.eof()) throw FileFault(file, "cannot be read");
  bytes.resize(static_cast<std::size_t>(in.gcount()));
  return bytes.starts_with(kStoreMark) || HasJetMark(bytes);
}

void CreateDatabaseFile(const std::filesystem::path& file) {
  std::FILE* const fresh = std::fopen(file.c_str(), "wbx");
  if (fresh == nullptr) throw FileFaultText(file, std::generic_category().message(errno));
  std::fclose(fresh);
  try {
    Connection::InitialiseFile(file);
  } catch (const Fault&) {
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
    throw;
  }
}

void CopyDatabaseFile(const std::filesystem::path& source, const std::filesystem::path& target) {
  const Connection from(source, OpenMode::read_only);
  const Statement one_moment = from.Hold();
  const auto at_target = [](auto action) {
    try {
      return action();
    } catch (const Fault& fault) {
      throw CopyTargetFault(fault.Kind(), fault.Where());
    }
  };
  at_target([&] { CreateDatabaseFile(target); });
  const auto to = at_target([&] { return std::make_unique<Connection>(target, OpenMode::read_write); });
  from.CopyInto(*to);
}

}  // namespace rbt
