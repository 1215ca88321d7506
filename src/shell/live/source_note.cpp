// SPDX-License-Identifier: MIT
#include "shell/live/source_note.h"

#include <cstdlib>
#include <unistd.h>

#include <fmt/format.h>

#include "jet/import/import_file.h"
#include "jet/lock_file.h"
#include "platform/files/files.h"
#include "platform/files/sha256.h"

namespace rbt {

namespace {

constexpr std::string_view kTable = "~jet_source";
constexpr std::string_view kSelect = "SELECT * FROM [~jet_source]";

std::string CurrentVersion() { return std::to_string(jet::kImportVersion); }

TableDef Layout() {
  return {std::string(kTable),
          {{"version", FieldType::text, 20},
           {"stamp", FieldType::text, 255},
           {"settled", FieldType::boolean},
           {"size", FieldType::text, 20},
           {"digest", FieldType::text, 64},
           {"mark", FieldType::text, 60},
           {"refused", FieldType::integer32}},
          {}};
}

/// Of the process and the moment: no two copies are made by one process at one moment.
std::string NewMark() {
  const auto now = std::filesystem::file_time_type::clock::now().time_since_epoch().count();
  return fmt::format("{} {}", ::getpid(), now);
}

}  // namespace

bool SourceNote::IsOfThisVersion() const { return version == CurrentVersion(); }

bool SourceNote::Tells(const std::optional<FileStamp>& now) const {
  return now && settled && IsOfThisVersion() && stamp == now->text;
}

bool SourceNote::StandsFor(const std::filesystem::path& jet_file) const {
  return Tells(StampOf(jet_file)) && (!jet::IsOpenElsewhere(jet_file) || TellsBytesOf(jet_file));
}

bool SourceNote::TellsBytesOf(const JetOriginal& original) const {
  return IsOfThisVersion() && size == original.stamp.size && digest == original.digest;
}

bool SourceNote::TellsBytesOf(const std::filesystem::path& file) const {
  const std::optional<FileStamp> now = StampOf(file);
  return now && IsOfThisVersion() && size == now->size && digest == Sha256Of(ReadFileBytes(file));
}

SourceNote NoteOf(const JetOriginal& original) {
  return {.version = CurrentVersion(),
          .stamp = original.stamp.text,
          .settled = original.settled,
          .size = original.stamp.size,
          .digest = original.digest,
          .mark = NewMark()};
}

std::optional<SourceNote> ReadSourceNote(Database& database) {
  if (database.FindTable(kTable) == nullptr) return std::nullopt;
  const Recordset row = database.OpenSnapshot(kSelect);
  if (row.Eof()) return std::nullopt;
  const auto text = [&](std::string_view name) { return row.Text(row.Field(name)).value_or(""); };
  return SourceNote{.version = text("version"),
                    .stamp = text("stamp"),
                    .settled = row.Int32(row.Field("settled")).value_or(0) != 0,
                    .size = std::strtoll(text("size").c_str(), nullptr, 10),
                    .digest = text("digest"),
                    .mark = text("mark"),
                    .refused = row.Int32(row.Field("refused")).value_or(0)};
}

void WriteSourceNote(Database& working_copy, const SourceNote& note) {
  if (working_copy.FindTable(kTable) == nullptr) working_copy.CreateTable(Layout());
  Recordset row = working_copy.OpenDynaset(kSelect);
  if (row.Eof()) {
    row.AddNew();
  } else {
    row.Edit();
  }
  row.Set("version", note.version);
  row.Set("stamp", note.stamp);
  row.Set("settled", std::int64_t{note.settled ? -1 : 0});
  row.Set("size", std::to_string(note.size));
  row.Set("digest", note.digest);
  row.Set("mark", note.mark);
  row.Set("refused", note.refused);
  row.Update();
}

}  // namespace rbt
