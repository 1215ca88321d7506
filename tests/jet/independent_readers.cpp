// SPDX-License-Identifier: MIT
#include "jet/independent_readers.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>
#include <stdexcept>
#include <string_view>
#include <sys/wait.h>

#include "platform/text/characters.h"
#include "platform/text/cp932.h"

namespace rbt::test {

namespace {

// Words that no sample holds; single control characters do occur.
constexpr std::string_view kFieldEnd = "\x1F|field|";
constexpr std::string_view kRowEnd = "\x1E|row|";
constexpr std::string_view kNull = "\x01|null|";

std::string Quoted(std::string_view word) {
  std::string quoted = "'";
  for (const char c : word) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

/// Standard output of a shell command that must succeed.
std::string OutputOf(const std::string& command) {
  std::FILE* pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) throw std::runtime_error("cannot start " + command);
  std::string output;
  std::array<char, 65536> buffer{};
  for (std::size_t n; (n = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0;)
    output.append(buffer.data(), n);
  const int status = pclose(pipe);
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) throw std::runtime_error("failed: " + command);
  return output;
}

/// The parts before each separator; what follows the last one is left out when it is empty.
std::vector<std::string> SplitAt(std::string_view text, std::string_view end) {
  std::vector<std::string> parts;
  while (!text.empty()) {
    const std::size_t at = text.find(end);
    parts.emplace_back(text.substr(0, at));
    text.remove_prefix(at == std::string_view::npos ? text.size() : at + end.size());
  }
  return parts;
}

std::string Tool(const std::string& name, const std::string& jet3_charset) {
  return "MDB_JET3_CHARSET=" + jet3_charset + " " + name + " ";
}

/// The byte of a character of code page 1252.
char LatinByte(char32_t c) {
  constexpr char32_t kUpper[] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,   // 0x80
                                 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,        // 0x88
                                 0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,   // 0x90
                                 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};  // 0x98
  const auto* upper = std::find(std::begin(kUpper), std::end(kUpper), c);
  return static_cast<char>(upper == std::end(kUpper) ? c : 0x80 + (upper - std::begin(kUpper)));
}

}  // namespace

std::vector<std::string> TablesByCTools(const std::filesystem::path& file, const std::string& jet3_charset) {
  return SplitAt(OutputOf(Tool("mdb-tables", jet3_charset) + "-1 " + Quoted(file.string())), "\n");
}

PrintedTable TableByCTools(const std::filesystem::path& file, const std::string& table,
                           const std::string& jet3_charset) {
  std::string command = Tool("mdb-export", jet3_charset) + "-Q -b hex -T '%Y-%m-%d %H:%M:%S'";
  command += " -d " + Quoted(kFieldEnd) + " -R " + Quoted(kRowEnd) + " -0 " + Quoted(kNull);
  command += " " + Quoted(file.string()) + " " + Quoted(table);
  const std::vector<std::string> lines = SplitAt(OutputOf(command), kRowEnd);
  PrintedTable printed;
  if (lines.empty()) return printed;
  printed.columns = SplitAt(lines.front(), kFieldEnd);
  for (std::size_t i = 1; i < lines.size(); ++i) {
    auto& row = printed.rows.emplace_back();
    // A last field that is empty leaves nothing behind its separator.
    for (std::string& field : SplitAt(lines[i] + std::string(kFieldEnd), kFieldEnd)) {
      row.push_back(field == kNull ? std::nullopt : std::optional(std::move(field)));
    }
  }
  return printed;
}

nlohmann::json TablesByNpmReader(const std::filesystem::path& file) {
  const std::string folder = RBT_NPM_READER_FOLDER;
  OutputOf(Quoted(RBT_NPM_READER_INSTALL) + " " + Quoted(folder));
  return nlohmann::json::parse(
      OutputOf("node " + Quoted(folder + "/dump.mjs") + " " + Quoted(file.string())));
}

bool IsLatinReadingOf(const std::string& text, const std::string& latin) {
  constexpr std::string_view kLost = "\x81\x8D\x8F\x90\x9D";
  std::vector<std::string> readings{""};
  for (const char32_t c : CharactersOf(latin)) {
    std::vector<std::string> longer;
    for (const std::string& bytes : readings) {
      if (c == 0xFFFD) {
        for (const char byte : kLost) longer.push_back(bytes + byte);
      } else {
        longer.push_back(bytes + LatinByte(c));
      }
    }
    readings = std::move(longer);
  }
  return std::any_of(readings.begin(), readings.end(),
                     [&](const std::string& bytes) { return FromCp932Lenient(bytes) == text; });
}

}  // namespace rbt::test
