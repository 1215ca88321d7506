// SPDX-License-Identifier: MIT
#include "shell/live/joined_saved.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "platform/files/files.h"
#include "platform/files/sha256.h"
#include "shell/live/jet_original.h"

namespace rbt {

namespace {

constexpr std::string_view kJoined = "~jet_joined";

/// Fields that say nothing are left out: not every copy has them.
std::string WordsOf(std::string_view table, const NamedValues& row) {
  std::vector<std::string> words;
  words.reserve(row.size());
  for (const auto& [field, value] : row) {
    const std::string text = TextOf(value);
    if (!text.empty() && text != "0") words.push_back(fmt::format("{}={}", field, text));
  }
  std::ranges::sort(words);
  return fmt::format("{}\n{}", table, fmt::join(words, "\n"));
}

std::string DigestOfTally(const KeptTally& tally) {
  std::vector<std::string> rows;
  rows.reserve(tally.rows.size() + 1);
  rows.push_back(WordsOf("", tally.name_row));
  for (const auto& [table, row] : tally.rows) rows.push_back(WordsOf(table, row));
  std::ranges::sort(rows);
  return Sha256Of(fmt::format("{}", fmt::join(rows, "\n\n")));
}

std::set<std::string> DigestsOfTallies(const SavedHere& saved) {
  std::set<std::string> digests;
  for (const KeptTally& tally : saved.tallies) digests.insert(DigestOfTally(tally));
  return digests;
}

std::set<std::string> ReadJoined(Database& working_copy) {
  std::set<std::string> joined;
  if (working_copy.FindTable(kJoined) == nullptr) return joined;
  Recordset row = working_copy.OpenSnapshot(fmt::format("SELECT * FROM [{}]", kJoined));
  for (; !row.Eof(); row.MoveNext()) joined.insert(row.Text(row.Field("digest")).value_or(""));
  return joined;
}

}  // namespace

SavedAndJoined ReadSavedAndJoined(Database& working_copy) {
  return {.saved = ReadSavedHere(working_copy), .joined = ReadJoined(working_copy)};
}

void NoteJoined(Database& working_copy, const std::set<std::string>& joined) {
  if (working_copy.FindTable(kJoined) == nullptr) {
    working_copy.CreateTable({std::string(kJoined), {{"digest", FieldType::text, 64}}, {}});
  }
  const std::set<std::string> there = ReadJoined(working_copy);
  for (const std::string& digest : joined) {
    if (digest.empty() || there.contains(digest)) continue;
    working_copy.Execute(fmt::format("INSERT INTO [{}] ([digest]) VALUES ('{}')", kJoined, digest));
  }
}

std::vector<KeptTally> LackingTallies(const SavedAndJoined& copy, const SavedAndJoined& other) {
  const std::set<std::string> there = DigestsOfTallies(copy.saved);
  std::vector<KeptTally> lacking;
  for (const KeptTally& tally : other.saved.tallies) {
    const std::string digest = DigestOfTally(tally);
    const bool was_here = there.contains(digest) || copy.joined.contains(digest);
    if (!was_here && !other.joined.contains(digest)) lacking.push_back(tally);
  }
  return lacking;
}

void Join(SavedAndJoined& copy, const SavedAndJoined& other) {
  const std::vector<KeptTally> lacking = LackingTallies(copy, other);
  if (!lacking.empty()) {
    copy.saved.tables.insert(copy.saved.tables.end(), other.saved.tables.begin(), other.saved.tables.end());
  }
  copy.saved.tallies.insert(copy.saved.tallies.end(), lacking.begin(), lacking.end());
  copy.joined.merge(DigestsOfTallies(other.saved));
}

bool HaveSameTallies(const SavedAndJoined& a, const SavedAndJoined& b) {
  return DigestsOfTallies(a.saved) == DigestsOfTallies(b.saved);
}

Standing StandingOf(const std::filesystem::path& other) {
  const std::optional<FileStamp> stamp = StampOf(other);
  if (!stamp) return {};
  return {.digest = Sha256Of(fmt::format("{}\n{}", other.string(), stamp->text)),
          .settled = stamp->HasSettled()};
}

bool HasJoined(Database& working_copy, const std::filesystem::path& other) {
  return !IsTaken(other) || ReadJoined(working_copy).contains(StandingOf(other).digest);
}

}  // namespace rbt
