// SPDX-License-Identifier: MIT
#include "session/accumulation/site_choice.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/files/system_error.h"
#include "platform/numbers/number_words.h"
#include "platform/system/message.h"
#include "platform/system/paths.h"
#include "platform/system/process.h"
#include "platform/text/characters.h"
#include "session/menu/siblings.h"
#include "shell/config/settings.h"
#include "shell/context/run_state.h"
#include "shell/context/site_context.h"

namespace rbt {

namespace {

constexpr std::string_view kNoSites = "データーベースファイルが存在しません。\n作成して下さい。";
constexpr std::string_view kDatabaseTool = "\\RBK\\DBTOOL\\rbdbtool.exe";
constexpr std::string_view kFirstSite = "GENBA001.MDB";

/// `\RBK\DATA\genba*`. A folder that cannot be read is a fault.
bool HasSiteDatabases() {
  const std::filesystem::path folder = MapPath("\\RBK\\DATA");
  std::error_code error;
  const std::filesystem::directory_iterator files(folder, error);
  if (error == std::errc::no_such_file_or_directory) return false;
  if (error) throw FileFault(folder, "cannot be read", error.value());
  return std::ranges::any_of(files, [](const std::filesystem::directory_entry& file) {
    return FoldIdentifier(file.path().filename().string()).starts_with(FoldIdentifier("genba"));
  });
}

/// Whoever reads the hand-over later finds what was read here.
void ProvideHandOver(std::string_view key, std::string_view fallback) {
  if (ReadHandOver(key).empty() && HandOverMayBeWritten()) WriteHandOver(key, fallback);
}

}  // namespace

SiteChoicePresenter::SiteChoicePresenter() {
  if (!HasSiteDatabases()) {
    SendForSites();
    return;
  }
  ProvideHandOver(kSiteNumberKey, "0");
  ProvideHandOver(kPickOrBendKey, "hiroi");
  if (!SiteContext.MasterDatabase) OpenMasterDatabase();
  ReadGradeNames(*SiteContext.MasterDatabase);  // one that is missing is told
  ReadSites();
}

void SiteChoicePresenter::SendForSites() {
  MsgBox(kNoSites, kSiteChoiceTitle);
  if (RequireSibling(kDatabaseTool)) RunAndWait(kDatabaseTool, WindowStyle::normal);
  choice_ = ProgramEnds();
  RunState.IsEnding = true;
  left_ = true;
}

void SiteChoicePresenter::ReadSites() {
  sites_ = AllSiteHeads(*SiteContext.MasterDatabase);
  const std::string bound =
      ReadIniText(kSteelIni, kSelectedDbNameKey.section, kSelectedDbNameKey.key, kFirstSite);
  const auto site = std::ranges::find_if(sites_, [&](const SiteHead& each) {
    return FoldIdentifier(Trim(each.data_path)) == FoldIdentifier(bound);
  });
  if (!sites_.empty()) GoTo(site == sites_.end() ? 0 : static_cast<std::size_t>(site - sites_.begin()));
}

SiteChoiceView SiteChoicePresenter::View() {
  SiteChoiceView view;
  view.rows.reserve(sites_.size());
  for (const SiteHead& site : sites_) view.rows.push_back({std::to_string(site.number), site.name});
  view.current = current_;
  view.number = number_;
  view.focus = std::exchange(focus_, SiteChoiceFocus::stays);
  view.left = left_;
  return view;
}

void SiteChoicePresenter::TypeNumber(std::string number) {
  number_ = std::move(number);
  if (Trim(number_).empty()) return;
  const double typed = LeadingNumber(number_);
  const auto site =
      std::ranges::find_if(sites_, [typed](const SiteHead& each) { return each.number == typed; });
  if (site != sites_.end()) current_ = static_cast<std::size_t>(site - sites_.begin());
}

void SiteChoicePresenter::GoTo(std::size_t row) {
  current_ = row;
  number_ = std::to_string(sites_.at(row).number);
}

void SiteChoicePresenter::Execute() {
  focus_ = SiteChoiceFocus::number;
  const std::int32_t number = ToInt32(LeadingNumber(number_), "txtKojNo");
  const std::optional<SiteHead> site =
      Trim(number_).empty() ? std::nullopt : FindSiteHead(*SiteContext.MasterDatabase, number);
  if (!site) {
    MsgBox("工事ＮＯ の工事がありません。", kSiteChoiceTitle);
    return;
  }
  std::string data_path(Trim(site->data_path));
  if (data_path.empty()) {
    MsgBox("この工事にはデータがありません。", kSiteChoiceTitle);
    return;
  }
  choice_ = AddedSite{site->number, site->name, std::move(data_path)};
  left_ = true;
}

}  // namespace rbt
