// SPDX-License-Identifier: MIT
#include "shell/config/settings.h"

#include <optional>

#include <fmt/format.h>

#include "platform/files/files.h"
#include "platform/numbers/number_words.h"
#include "platform/pass_over_faults.h"
#include "platform/profile/ini_file.h"
#include "platform/profile/registry.h"
#include "platform/system/clock.h"
#include "platform/system/paths.h"

namespace rbt {

SettingsData Settings;

namespace {

struct NumberBinding {
  NumberKey key;
  std::int32_t SettingsData::*field = nullptr;
  bool of_look = false;  ///< yes or no, and no figure depends on it
};

constexpr NumberBinding kTallyNumbers[] = {
    {kUseFixedTableKey, &SettingsData::UseFixedTable},
    {kAlternateRowColoursKey, &SettingsData::AlternateRowColours, true},
    {kPrintEmptyDiametersKey, &SettingsData::PrintEmptyDiameters, true},
    {kUse13mColumnKey, &SettingsData::Use13mColumn},
    {kCapInstalledWeightKey, &SettingsData::CapInstalledWeight},
};

constexpr NumberBinding kTitleNumbers[] = {
    {kDetailShowsWeightKey, &SettingsData::DetailShowsWeight, true},
    {kReportTitleChoiceKey, &SettingsData::ReportTitleChoice},
};

constexpr NumberBinding kRemainingNumbers[] = {
    {kStockCheckKey, &SettingsData::StockCheck},
    {kLedgerWeightKey, &SettingsData::LedgerWeight},
    {kDateStyleKey, &SettingsData::DateStyle},
    {kComparisonKindKey, &SettingsData::ComparisonKind},
    {kDetailDatePositionKey, &SettingsData::DetailDatePosition},
    {kFloorTallyStockKey, &SettingsData::FloorTallyStock},
    {kDetailPrintKey, &SettingsData::DetailPrint},
    {kMemoPositionKey, &SettingsData::MemoPosition},
    {kShippingDateKey, &SettingsData::ShippingDate},
    {kTagLinesKey, &SettingsData::TagLines},
    {kTagMethodKey, &SettingsData::TagMethod},
    {kPrintOwnCompanyKey, &SettingsData::PrintOwnCompany, true},
};

struct TextBinding {
  TextKey key;
  std::string SettingsData::*field = nullptr;
};

constexpr TextBinding kRemainingTexts[] = {
    {kTallyPrinterKey, &SettingsData::TallyPrinter},
    {kTagPrinterKey, &SettingsData::TagPrinter},
    {kStockOrInstalledKey, &SettingsData::StockOrInstalled},
    {kEraNameKey, &SettingsData::EraName},
    {kEraStartYearKey, &SettingsData::EraStartYear},
    {kEraStartMonthKey, &SettingsData::EraStartMonth},
    {kEraStartDayKey, &SettingsData::EraStartDay},
    {kClosingMonthKey, &SettingsData::ClosingMonth},
    {kClosingDayKey, &SettingsData::ClosingDay},
};

void Load(const NumberBinding& binding, const RegistryReading& registry, UnreadableSettings& unreadable) {
  Settings.*binding.field =
      binding.of_look ? ReadLook(binding.key, registry, unreadable) : ReadSetting(binding.key, registry);
}

template <typename Key>
auto ReadOrDefault(const Key& key, const RegistryReading& registry, UnreadableSettings& unreadable) {
  auto value = key.fallback;
  const auto fault = PassOverFaultsOfContent([&] { value = ReadSetting(key, registry); });
  if (fault) unreadable.push_back(fault->Where());
  return value;
}

/// Nothing for a text that is no colour.
std::optional<std::int32_t> ColourOf(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(" \t");
  if (begin == std::string_view::npos || text.find_first_of("0123456789+-.&", begin) != begin)
    return std::nullopt;
  std::optional<std::int32_t> colour;
  PassOverFaults(FaultKind::overflow, [&] { colour = ToInt32(LeadingNumber(text), ""); });
  return colour;
}

std::string Place(std::string_view app, std::string_view section, std::string_view key,
                  std::string_view text) {
  return fmt::format("{}\\{}\\{} \"{}\"", app, section, key, text);
}

}  // namespace

std::string ReadIniText(std::string_view family_file, std::string_view section, std::string_view key,
                        std::string_view fallback) {
  // The length that the profile call returns counts bytes and the cut counts characters, so that the cut to
  // that length takes nothing away from what fitted the buffer.
  return GetProfileText(MapPath(family_file), section, key, fallback, 80);
}

std::string PlaceOf(const TextKey& key, std::string_view text) {
  return Place(key.app, key.section, key.key, text);
}

std::string PlaceOf(const NumberKey& key, std::string_view text) {
  return Place(key.app, key.section, key.key, text);
}

std::string PlaceOf(const IniKey& key, std::string_view text) {
  return fmt::format("STEEL.INI [{}] {} \"{}\"", key.section, key.key, text);
}

std::string ReadSteelIni(const IniKey& key) {
  return ReadIniText(kSteelIni, key.section, key.key, key.fallback);
}

std::int32_t ReadSteelIniColour(const IniKey& key, UnreadableSettings& unreadable) {
  const std::string text = ReadSteelIni(key);
  if (const std::optional<std::int32_t> colour = ColourOf(text)) return *colour;
  if (!text.empty()) unreadable.push_back(PlaceOf(key, text));
  return ColourOf(key.fallback).value();
}

void WriteSteelIni(const IniKey& key, std::string_view value) {
  WriteProfileText(MapPath(kSteelIni), key.section, key.key, value);
}

std::string ReadHandOver(std::string_view key) { return ReadIniText(kNextPrgIni, kHandOverSection, key, ""); }

void WriteHandOver(std::string_view key, std::string_view value) {
  WriteProfileText(MapPath(kNextPrgIni), kHandOverSection, key, value);
}

bool HandOverMayBeWritten() { return MayBeReplaced(MapPath(kNextPrgIni)); }

std::string ReadSetting(std::string_view app, std::string_view section, std::string_view key,
                        std::string_view fallback) {
  return ReadSetting(TextKey{app, section, key, fallback});
}

std::int32_t ReadSetting(std::string_view app, std::string_view section, std::string_view key,
                         std::int32_t fallback) {
  return ReadSetting(NumberKey{app, section, key, fallback});
}

void SaveSetting(std::string_view app, std::string_view section, std::string_view key,
                 std::string_view value) {
  SetRegistryText(app, section, key, value);
}

std::string ReadSetting(const TextKey& key, const RegistryReading& registry) {
  return registry.Text(key.app, key.section, key.key).value_or(std::string(key.fallback));
}

std::int32_t ReadSetting(const NumberKey& key, const RegistryReading& registry) {
  const std::optional<std::string> text = registry.Text(key.app, key.section, key.key);
  if (!text) return key.fallback;
  const std::string place = Place(key.app, key.section, key.key, *text);
  return ToInt32(NumberOfText(*text, place), place);
}

bool ReadSetting(const BooleanKey& key, const RegistryReading& registry) {
  const std::optional<std::string> text = registry.Text(key.app, key.section, key.key);
  if (!text) return key.fallback;
  return NumberOfText(*text, Place(key.app, key.section, key.key, *text)) != 0;
}

std::int32_t ReadLook(const NumberKey& key, const RegistryReading& registry, UnreadableSettings& unreadable) {
  return ReadOrDefault(key, registry, unreadable);
}

bool ReadLook(const BooleanKey& key, const RegistryReading& registry, UnreadableSettings& unreadable) {
  return ReadOrDefault(key, registry, unreadable);
}

void SaveSetting(const NumberKey& key, std::int32_t value) {
  SetRegistryText(key.app, key.section, key.key, std::to_string(value));
}

void SaveSetting(const TextKey& key, std::string_view value) {
  SetRegistryText(key.app, key.section, key.key, value);
}

void SaveSetting(const BooleanKey& key, bool value) {
  SetRegistryText(key.app, key.section, key.key, value ? "True" : "False");
}

UnreadableSettings LoadGridColours() {
  UnreadableSettings unreadable;
  Settings.GridRowBackColor = ReadSteelIniColour(kGridRowBackColorKey, unreadable);
  Settings.GridRowForeColor = ReadSteelIniColour(kGridRowForeColorKey, unreadable);
  return unreadable;
}

UnreadableSettings LoadTallySettings(const RegistryReading& registry) {
  UnreadableSettings unreadable;
  for (const NumberBinding& binding : kTallyNumbers) Load(binding, registry, unreadable);
  return unreadable;
}

UnreadableSettings LoadRemainingSettings(const RegistryReading& registry) {
  UnreadableSettings unreadable;
  for (const NumberBinding& binding : kRemainingNumbers) Load(binding, registry, unreadable);
  for (const TextBinding& binding : kRemainingTexts) {
    Settings.*binding.field = ReadSetting(binding.key, registry);
  }
  // The stock check is kept in 16 bits.
  ToInt16(Settings.StockCheck, Place(kStockCheckKey.app, kStockCheckKey.section, kStockCheckKey.key,
                                     std::to_string(Settings.StockCheck)));
  Settings.EraCalendar = ReadLook(kEraCalendarKey, registry, unreadable);
  const std::string next_year = std::to_string(Now().year + 1);
  Settings.ClosingYear = ReadSetting(
      TextKey{kClosingYearKey.app, kClosingYearKey.section, kClosingYearKey.key, next_year}, registry);
  const UnreadableSettings of_titles = RereadTitleSettings(registry);
  unreadable.insert(unreadable.end(), of_titles.begin(), of_titles.end());
  return unreadable;
}

UnreadableSettings RereadTitleSettings(const RegistryReading& registry) {
  constexpr std::int32_t kOwnText = 3;
  UnreadableSettings unreadable;
  for (const NumberBinding& binding : kTitleNumbers) Load(binding, registry, unreadable);
  Settings.ReportTitleText =
      Settings.ReportTitleChoice == kOwnText ? ReadSteelIni(kReportTitleTextKey) : std::string();
  return unreadable;
}

}  // namespace rbt
