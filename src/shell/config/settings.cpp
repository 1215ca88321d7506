// SPDX-License-Identifier: MIT
#include "shell/config/settings.h"

#include <fmt/format.h>

#include "platform/numbers/number_words.h"
#include "platform/profile/ini_file.h"
#include "platform/profile/registry.h"
#include "platform/system/clock.h"
#include "platform/system/paths.h"

namespace rbt {

SettingsData Settings;

namespace {

struct NumberBinding {
  NumberKey key;
  std::int32_t SettingsData::*field;
};

constexpr NumberBinding kTallyNumbers[] = {
    {kUseFixedTableKey, &SettingsData::UseFixedTable},
    {kAlternateRowColoursKey, &SettingsData::AlternateRowColours},
    {kPrintEmptyDiametersKey, &SettingsData::PrintEmptyDiameters},
    {kUse13mColumnKey, &SettingsData::Use13mColumn},
    {kCapInstalledWeightKey, &SettingsData::CapInstalledWeight},
};

constexpr NumberBinding kTitleNumbers[] = {
    {kDetailShowsWeightKey, &SettingsData::DetailShowsWeight},
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
    {kPrintOwnCompanyKey, &SettingsData::PrintOwnCompany},
};

struct TextBinding {
  TextKey key;
  std::string SettingsData::*field;
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

template <typename Binding>
void Load(const Binding& binding, const RegistryReading& registry) {
  Settings.*binding.field = ReadSetting(binding.key, registry);
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

std::string PlaceOf(const IniKey& key, std::string_view text) {
  return fmt::format("STEEL.INI [{}] {} \"{}\"", key.section, key.key, text);
}

std::string ReadSteelIni(const IniKey& key) {
  return ReadIniText(kSteelIni, key.section, key.key, key.fallback);
}

std::int32_t ReadSteelIniColour(const IniKey& key) {
  const std::string text = ReadSteelIni(key);
  return ToInt32(LeadingNumber(text.empty() ? key.fallback : text), PlaceOf(key, text));
}

void WriteSteelIni(const IniKey& key, std::string_view value) {
  WriteProfileText(MapPath(kSteelIni), key.section, key.key, value);
}

std::string ReadHandOver(std::string_view key) { return ReadIniText(kNextPrgIni, kHandOverSection, key, ""); }

void WriteHandOver(std::string_view key, std::string_view value) {
  WriteProfileText(MapPath(kNextPrgIni), kHandOverSection, key, value);
}

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

void SaveSetting(const NumberKey& key, std::int32_t value) {
  SetRegistryText(key.app, key.section, key.key, std::to_string(value));
}

void SaveSetting(const TextKey& key, std::string_view value) {
  SetRegistryText(key.app, key.section, key.key, value);
}

void SaveSetting(const BooleanKey& key, bool value) {
  SetRegistryText(key.app, key.section, key.key, value ? "True" : "False");
}

void LoadGridColours() {
  Settings.GridRowBackColor = ReadSteelIniColour(kGridRowBackColorKey);
  Settings.GridRowForeColor = ReadSteelIniColour(kGridRowForeColorKey);
}

void LoadTallySettings(const RegistryReading& registry) {
  for (const NumberBinding& binding : kTallyNumbers) Load(binding, registry);
}

void LoadRemainingSettings(const RegistryReading& registry) {
  for (const NumberBinding& binding : kRemainingNumbers) Load(binding, registry);
  for (const TextBinding& binding : kRemainingTexts) Load(binding, registry);
  // The stock check is kept in 16 bits.
  ToInt16(Settings.StockCheck, Place(kStockCheckKey.app, kStockCheckKey.section, kStockCheckKey.key,
                                     std::to_string(Settings.StockCheck)));
  Settings.EraCalendar = ReadSetting(kEraCalendarKey, registry);
  const std::string next_year = std::to_string(Now().year + 1);
  Settings.ClosingYear = ReadSetting(
      TextKey{kClosingYearKey.app, kClosingYearKey.section, kClosingYearKey.key, next_year}, registry);
  RereadTitleSettings(registry);
}

void RereadTitleSettings(const RegistryReading& registry) {
  constexpr std::int32_t kOwnText = 3;
  for (const NumberBinding& binding : kTitleNumbers) Load(binding, registry);
  Settings.ReportTitleText =
      Settings.ReportTitleChoice == kOwnText ? ReadSteelIni(kReportTitleTextKey) : std::string();
}

}  // namespace rbt
