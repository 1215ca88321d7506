// SPDX-License-Identifier: MIT
#include "session/settings/settings_presenter.h"

#include "platform/pass_over_faults.h"
#include "platform/system/message.h"
#include "platform/text/cp932.h"
#include "shell/config/settings.h"

namespace rbt {

namespace {

constexpr std::string_view kTitle = "その他設定";
constexpr std::int32_t kEraStyle = 2;
constexpr std::int32_t kOwnTitle = 3;
/// No option stands for this number.
constexpr std::int32_t kNoOption = -1;
/// Ten full-width characters, which the report's title has room for.
constexpr std::size_t kTitleBytes = 20;

std::int32_t OneOrZero(bool on) { return on ? 1 : 0; }

bool CodePageHolds(std::string_view text) {
  return !PassOverFaults([&] { ToCp932(text); });
}

}  // namespace

SettingsPresenter::SettingsPresenter() : stored_title_(ReadSteelIni(kReportTitleTextKey)) {
  for (const NumberKey& key :
       {kDateStyleKey, kComparisonKindKey, kReportTitleChoiceKey, kWeldedHoopWeldsKey}) {
    ReadOrNote(key);
  }
  TellUnreadable();
  values_[kAlternateRowColoursKey.key] = OneOrZero(Settings.AlternateRowColours == 1);
  values_[kDetailShowsWeightKey.key] = OneOrZero(Settings.DetailShowsWeight == 1);
  values_[kPrintEmptyDiametersKey.key] = OneOrZero(Settings.PrintEmptyDiameters == 1);
}

/// One that cannot be read stands for none of its options until the user chooses anew.
void SettingsPresenter::ReadOrNote(const NumberKey& key) {
  const auto fault = PassOverFaultsOfContent([&] { values_[key.key] = ReadSetting(key); });
  if (!fault) return;
  values_[key.key] = kNoOption;
  unreadable_ += "\n" + fault->Where();
}

void SettingsPresenter::TellUnreadable() const {
  if (!unreadable_.empty()) MsgBox("読めない設定があります。選び直して下さい。\n" + unreadable_, kTitle);
}

SettingsView SettingsPresenter::View() const {
  SettingsView view;
  for (const SettingOption& option : SettingOptions()) {
    if (values_.at(option.key.key) == option.value) view.chosen.push_back(option.control);
  }
  view.counts_hoop_welds = values_.at(kWeldedHoopWeldsKey.key) == 1;
  view.title = stored_title_;
  return view;
}

std::string_view SettingsPresenter::FirstOption() const {
  return values_.at(kDateStyleKey.key) == kEraStyle ? "optNenGou" : "optAD";
}

bool SettingsPresenter::HasOwnTitle() const { return values_.at(kReportTitleChoiceKey.key) == kOwnTitle; }

void SettingsPresenter::Save(const NumberKey& key, std::int32_t value) {
  SaveSetting(key, value);
  values_[key.key] = value;
}

void SettingsPresenter::Choose(std::string_view control) {
  const SettingOption& option = FindSettingOption(control);
  Save(option.key, option.value);
}

void SettingsPresenter::TakeBack(std::string_view control) {
  const NumberKey& key = FindSettingOption(control).key;
  values_[key.key] = ReadSetting(key);
}

void SettingsPresenter::CountHoopWelds(bool count) { Save(kWeldedHoopWeldsKey, OneOrZero(count)); }

void SettingsPresenter::TakeBackHoopWelds() {
  values_[kWeldedHoopWeldsKey.key] = ReadSetting(kWeldedHoopWeldsKey);
}

std::string_view SettingsPresenter::KeptTitle(std::string_view text) {
  return Cp932Prefix(text, kTitleBytes);
}

bool SettingsPresenter::WriteTitle(const std::string& title) const {
  if (!HasOwnTitle() || title.empty()) return true;
  if (!CodePageHolds(title)) {
    MsgBox("印字タイトルに使えない文字があります", kTitle);
    return false;
  }
  WriteSteelIni(kReportTitleTextKey, title);
  return true;
}

void SettingsPresenter::Reread() {
  LoadGridColours();
  RereadTitleSettings();
  UnreadableSettings told_at_load;
  Settings.AlternateRowColours = ReadLook(kAlternateRowColoursKey, {}, told_at_load);
  Settings.PrintEmptyDiameters = ReadLook(kPrintEmptyDiametersKey, {}, told_at_load);
  Settings.DateStyle = ReadSetting(kDateStyleKey);
  Settings.ComparisonKind = ReadSetting(kComparisonKindKey);
}

}  // namespace rbt
