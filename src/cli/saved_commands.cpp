// SPDX-License-Identifier: MIT
// What is done with saved tallies: load, list, rename, delete.
#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "archive/store/manage_tallies.h"
#include "archive/store/saved_name.h"
#include "archive/store/site_file.h"
#include "cli/command_line.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/result_text.h"
#include "cli/saved_lists.h"
#include "cli/session.h"
#include "platform/fault.h"
#include "platform/json/json_writer.h"
#include "platform/text/characters.h"
#include "platform/text/csv.h"
#include "shell/context/site_context.h"
#include "tally/kinds/tally_kinds.h"
#include "tally/views/grid_text.h"

namespace rbt {

namespace {

struct SavedOptions {
  std::string kind;
  std::vector<std::string> names;
  std::string new_name;
  CommonOptions common;
  std::string format = "table";
};

/// Load and activation; what else there is to do keeps nobody waiting.
void OpenSiteOf(const SavedOptions& options) {
  OpenSite(options.common);
  SiteContext.WorkDatabase->LetGo();
}

// load

void RunLoad(const SavedOptions& options) {
  OpenSite(options.common);
  const LoadedTally loaded = LoadNamed(options.kind, options.names.front());
  WriteResult(ResultText(loaded.result, options.format));
}

// list

constexpr std::array<std::string_view, 7> kListCaptions{"作成日", "作成時間", "集計区分", "名前",
                                                        "メモ１", "メモ２",   "メモ３"};

std::string ListJson(const std::vector<SavedTally>& list) {
  JsonWriter json(JsonWriter::Layout::entry_a_line);
  json.BeginArray();
  for (const SavedTally& saved : list) {
    json.BeginObject().Field("date", saved.key.date).Field("time", saved.key.time);
    json.Field("kind", RowOf(saved.kind).word).Field("name", saved.name);
    json.Name("memos").Row(saved.memos[0], saved.memos[1], saved.memos[2]).EndObject();
  }
  return json.EndArray().Text();
}

GridRows ListRows(const std::vector<SavedTally>& list) {
  GridRows rows;
  rows.reserve(list.size());
  for (const SavedTally& saved : list) {
    rows.push_back({saved.key.date, saved.key.time, std::string(RowOf(saved.kind).word), saved.name,
                    saved.memos[0], saved.memos[1], saved.memos[2]});
  }
  return rows;
}

/// Names and memos as they stand, commas and all.
std::string ListCsv(const std::vector<SavedTally>& list) {
  CsvRecord head;
  for (const std::string_view caption : kListCaptions) head.Add(caption);
  std::string csv = head.Text();
  for (const auto& row : ListRows(list)) {
    CsvRecord record;
    for (const std::string& cell : row) record.Add(cell);
    csv += record.Text();
  }
  return csv;
}

void RunList(const SavedOptions& options) {
  OpenSiteOf(options);
  const SiteFile site(ArchiveUse::reads);
  const std::vector<SavedTally> list =
      options.kind.empty() ? AllSavedTallies(*site, Has13m()) : ListOfWord(options.kind);
  if (options.format == "json") return WriteResult(ListJson(list));
  WriteResult(options.format == "csv" ? ListCsv(list) : GridTable(kListCaptions, ListRows(list)));
}

// rename

void RunRename(const SavedOptions& options) {
  OpenSiteOf(options);
  const std::vector<SavedTally> list = ListOfWord(options.kind);
  const SavedTally& saved = RequireSaved(list, options.names.front());
  RequireName(RefusedLength(options.new_name));
  RequireName(RefusedEmptiness(options.new_name));
  RequireName(RefusedCharacter(options.new_name));
  if (FindSaved(list, options.new_name) != nullptr) throw Fault(FaultKind::database, "同じ名前があります");
  const SiteFile site;
  RenameTally(*site, saved, Trim(options.new_name));
}

// delete

/// The tally of each name; a name that is given twice takes two of them.
std::vector<SavedTally> TalliesOfNames(std::vector<SavedTally> list, const std::vector<std::string>& names) {
  std::vector<SavedTally> found;
  found.reserve(names.size());
  for (const std::string& name : names) {
    found.push_back(RequireSaved(list, name));
    list.erase(std::find(list.begin(), list.end(), found.back()));
  }
  return found;
}

void RunDelete(const SavedOptions& options) {
  OpenSiteOf(options);
  const SiteFile site;
  for (const SavedTally& saved : TalliesOfNames(ListOfWord(options.kind), options.names))
    DeleteTally(*site, saved);
}

std::shared_ptr<SavedOptions> OptionsOfKind(CommandLine& line) {
  auto options = std::make_shared<SavedOptions>();
  line.WordArgument("KIND", options->kind, SavedWords(), "the kind of tally");
  AddCommonOptions(line, options->common);
  return options;
}

}  // namespace

Action DefineLoad(CommandLine& line) {
  auto options = OptionsOfKind(line);
  line.Argument("NAME", options->names.emplace_back(), "the name that it was saved under");
  AddFormatOption(line, options->format);
  return [options] { RunLoad(*options); };
}

Action DefineList(CommandLine& line) {
  auto options = std::make_shared<SavedOptions>();
  line.WordOption("--kind", "", options->kind, SavedWords(), "of this kind of tally alone");
  AddCommonOptions(line, options->common);
  AddFormatOption(line, options->format);
  return [options] { RunList(*options); };
}

Action DefineRename(CommandLine& line) {
  auto options = OptionsOfKind(line);
  line.Argument("OLD", options->names.emplace_back(), "the name that it was saved under");
  line.Argument("NEW", options->new_name, "the name that it gets");
  return [options] { RunRename(*options); };
}

Action DefineDelete(CommandLine& line) {
  auto options = OptionsOfKind(line);
  line.Arguments("NAME", options->names, "the names that they were saved under");
  return [options] { RunDelete(*options); };
}

}  // namespace rbt
