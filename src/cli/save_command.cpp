// SPDX-License-Identifier: MIT
#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include <fmt/format.h>

#include "archive/store/save_tally.h"
#include "archive/store/saved_name.h"
#include "archive/store/site_file.h"
#include "cli/asked_tally.h"
#include "cli/command_line.h"
#include "cli/detail_changes.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/saved_lists.h"
#include "platform/fault.h"
#include "platform/system/clock.h"
#include "platform/text/characters.h"
#include "session/floorpart/floor_questions.h"
#include "shell/context/site_context.h"
#include "tally/floorpart/floor_range.h"

namespace rbt {

namespace {

struct SaveOptions {
  std::string kind;
  CommonOptions common;
  SelectionOptions selection;
  DetailChanges changes;
  std::optional<std::string> name;  ///< nothing: what the dialog proposes
  SavedMemos memos;
  bool replace = false;
};

/// All floors as the screen's button enters them, with every special floor that has rows and no other.
bool IsWholeSite(const SelectionData& selection, Database& site) {
  const std::optional<FloorExtent> extent = ReadFloorExtent(site);
  const FloorRange range{selection.KaiStart, selection.KaiEnd};
  if (!extent || range != AllFloors(*extent)) return false;
  // A range of special floors alone has them all, and nothing is asked.
  if (IsSpecialFloor(range.end) && selection.TokubetuMask.IsNone()) return true;
  return selection.TokubetuMask == SpecialFloorsOf(site);
}

void RequireWholeSite(const TallyResult& result) {
  if (std::holds_alternative<TallyTable>(result.tables)) return;
  if (!IsWholeSite(result.selection, *SiteContext.WorkDatabase)) {
    throw Fault(FaultKind::database, "すべての階を選択しているときだけ保存できます");
  }
}

constexpr std::string_view kWriteFailed = "書き込みに失敗しました。終了します。";

/// The name as it is kept.
std::string NameToSave(const SaveOptions& options, const std::vector<SavedTally>& list,
                       const TallyResult& result, const DateTime& now) {
  const std::string name = options.name.value_or(ProposedName(result, now, Trim(options.memos[0])));
  RequireName(RefusedLength(name));
  RequireName(RefusedEmptiness(name));
  const bool is_listed = FindSaved(list, name) != nullptr;
  if (is_listed && !options.replace) throw Fault(FaultKind::database, "同じ名前があります");
  if (options.name && !is_listed) RequireName(RefusedCharacter(name));
  return std::string(Trim(name));
}

void WriteSave(const TallyResult& result, const SaveOrder& order, const std::vector<SavedTally>& replaced) {
  const SiteFile site;
  const auto write = [&] { return SaveTally(*site, result, order, replaced); };
  if (!At([] { return std::string(kWriteFailed); }, write)) {
    throw Fault(FaultKind::database, "データがありません");
  }
}

void RunSave(const SaveOptions& options) {
  RequireChangesOfKind(options.kind, options.changes);
  TallyResult result = CountAskedTally(options.kind, options.common, options.selection);
  RequireWholeSite(result);
  if (!options.changes.empty()) result = Changed(std::move(result), options.changes);
  const DateTime now = Now();
  const std::vector<SavedTally> list = ListOfKind(result.kind);
  SaveOrder order{.key = SavedKeyOf(now),
                  .name = NameToSave(options, list, result, now),
                  .memos = options.memos,
                  .supply = ReadBarOrigins(),
                  .with_13m = Has13m()};
  std::vector<SavedTally> replaced;
  std::copy_if(list.begin(), list.end(), std::back_inserter(replaced),
               [&](const SavedTally& old) { return IsSameName(old.name, order.name); });
  WriteSave(result, order, replaced);
  WriteResult(fmt::format("{}\t{}\t{}\n", order.key.date, order.key.time, order.name));
}

}  // namespace

Action DefineSave(CommandLine& line) {
  auto options = std::make_shared<SaveOptions>();
  line.WordArgument("KIND", options->kind, SavedWords(), "the kind of tally");
  AddCommonOptions(line, options->common);
  AddSelectionOptions(line, options->selection);
  AddFloorOptions(line, options->selection);
  AddChangeOptions(line, options->changes, "uplift of the bars, each cell on its own");
  line.FormOption(
      "--name", "NAME",
      [options](const std::string& text) {
        options->name = text;
        return true;
      },
      "the name to save under; default what the dialog proposes");
  for (std::size_t i = 0; i < options->memos.size(); ++i) {
    line.TextOption("--memo" + std::to_string(i + 1), "TEXT", options->memos.at(i),
                    "a memo of the saved tally");
  }
  line.Flag("--replace", options->replace, "replace the tallies that have the name");
  return [options] { RunSave(*options); };
}

}  // namespace rbt
