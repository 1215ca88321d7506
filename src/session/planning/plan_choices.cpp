// SPDX-License-Identifier: MIT
#include "session/planning/plan_choices.h"

#include <algorithm>
#include <filesystem>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "planning/input/plan_files.h"
#include "planning/input/scopes.h"
#include "planning/outcome/plan_text.h"
#include "planning/problem/refusal.h"
#include "platform/files/files.h"
#include "platform/numbers/decimal_text.h"
#include "platform/profile/registry.h"
#include "platform/system/paths.h"
#include "platform/text/characters.h"
#include "shell/config/settings.h"
#include "shell/context/site_context.h"

namespace rbt {
namespace {

using planning::BarSteel;
using planning::kLongestMm;

constexpr int kMostLengths = 1000;
constexpr int kLongestTime = 3600;
constexpr int kHighestKind = 1'000'000;
constexpr std::string_view kApp = "Kakou";
constexpr std::string_view kSection = "切断計画 ";
constexpr std::string_view kBetween = "   ";

/// What was typed, in half-width characters.
std::string Plain(std::string_view text) {
  constexpr char32_t kToHalfWidth = U'！' - U'!';
  std::string plain;
  for (char32_t character : CharactersOf(text)) {
    if (character == U'、') character = U',';
    if (character == U'　') character = U' ';
    if (character >= U'！' && character <= U'～') character -= kToHalfWidth;
    plain += Utf8Of(character);
  }
  return std::string(Trim(plain));
}

/// The parts of a text between any of the separators, none of them empty.
std::vector<std::string_view> PartsOf(std::string_view text, std::string_view separators) {
  std::vector<std::string_view> parts;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of(separators), text.size());
    if (end > 0) parts.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return parts;
}

/// Lengths between commas or blanks, rising, each once.
std::optional<std::vector<int>> LengthsOf(std::string_view text) {
  const std::vector<std::string_view> parts = PartsOf(text, ", ");
  std::vector<int> lengths;
  lengths.reserve(parts.size());
  for (const std::string_view part : parts) {
    const std::optional<int> mm = WholeNumberIn(part, 1, kLongestMm);
    if (!mm) return std::nullopt;
    lengths.push_back(*mm);
  }
  std::ranges::sort(lengths);
  lengths.erase(std::unique(lengths.begin(), lengths.end()), lengths.end());
  return lengths;
}

std::string TextOf(const std::vector<int>& lengths) { return fmt::format("{}", fmt::join(lengths, ",")); }

template <int PlanChoices::*field>
std::string NumberText(const PlanChoices& of) {
  return std::to_string(of.*field);
}
template <int PlanChoices::*field, int least, int most>
bool TakeNumber(PlanChoices& into, std::string_view text) {
  const std::optional<int> number = WholeNumberIn(Plain(text), least, most);
  if (number) into.*field = *number;
  return number.has_value();
}

template <bool PlanChoices::*field>
std::string TickText(const PlanChoices& of) {
  return of.*field ? "1" : "0";
}
template <bool PlanChoices::*field>
bool TakeTick(PlanChoices& into, std::string_view text) {
  if (text != "0" && text != "1") return false;
  into.*field = text == "1";
  return true;
}

template <std::string PlanChoices::*field>
std::string PlainText(const PlanChoices& of) {
  return of.*field;
}
template <std::string PlanChoices::*field>
bool TakeFile(PlanChoices& into, std::string_view text) {
  into.*field = Trim(text);
  return true;
}

std::string PlusText(const PlanChoices& of) { return of.plus ? std::to_string(*of.plus) : ""; }
bool TakePlus(PlanChoices& into, std::string_view text) {
  const std::string plain = Plain(text);
  const std::optional<int> plus = WholeNumberIn(plain, 0, kLongestMm);
  if (!plus && !plain.empty()) return false;
  into.plus = plus;
  return true;
}

bool TakeScope(PlanChoices& into, std::string_view text) {
  const std::string plain = Plain(text);
  if (!planning::Scopes::Of(plain)) return false;
  into.scope = plain;
  return true;
}

std::string LengthsText(const PlanChoices& of) { return TextOf(of.lengths); }
bool TakeLengths(PlanChoices& into, std::string_view text) {
  std::optional<std::vector<int>> lengths = LengthsOf(Plain(text));
  if (lengths) into.lengths = std::move(*lengths);
  return lengths.has_value();
}

/// "16 1 0:6000,12000/19 1 1:7000": diameter, kind and hoop before their lengths.
std::string StoredSets(const PlanChoices& of) {
  std::string text;
  for (const auto& [steel, lengths] : of.sets) {
    text += fmt::format("{}{} {} {}:{}", text.empty() ? "" : "/", steel.diameter, steel.kind,
                        steel.hoop ? 1 : 0, TextOf(lengths));
  }
  return text;
}

std::optional<BarSteel> SteelOf(std::string_view text) {
  const std::vector<std::string_view> parts = PartsOf(text, " ");
  if (parts.size() != 3) return std::nullopt;
  const std::optional<int> diameter = WholeNumberIn(parts[0], 0, kLongestMm);
  const std::optional<int> kind = WholeNumberIn(parts[1], 1, kHighestKind);
  const std::optional<int> hoop = WholeNumberIn(parts[2], 0, 1);
  if (!diameter || !kind || !hoop) return std::nullopt;
  return BarSteel{*diameter, *kind, *hoop == 1};
}

bool TakeStoredSets(PlanChoices& into, std::string_view text) {
  std::map<BarSteel, std::vector<int>> sets;
  for (const std::string_view part : PartsOf(text, "/")) {
    const std::size_t colon = std::min(part.find(':'), part.size());
    const std::optional<BarSteel> steel = SteelOf(part.substr(0, colon));
    std::optional<std::vector<int>> lengths = LengthsOf(part.substr(std::min(colon + 1, part.size())));
    if (!steel || !lengths || lengths->empty()) return false;
    sets[*steel] = std::move(*lengths);
  }
  into.sets = std::move(sets);
  return true;
}

std::string SetsTick(const PlanChoices& of) { return of.sets.empty() ? "0" : "1"; }
/// They are taken elsewhere; here they can be given up.
bool TakeSetsTick(PlanChoices& into, std::string_view text) {
  if (text == "0") into.sets.clear();
  return text == "0" || text == "1";
}

using C = PlanChoices;
using K = PlanFieldKind;
constexpr std::string_view kWrongMm = "0 以上の長さを mm の数で入れて下さい。";
constexpr std::string_view kWrongCount = "0 から 1000 までの数を入れて下さい。0 は制限なしです。";

constexpr PlanField kFields[] = {
    {K::text, "txtKerf", "切断しろ", NumberText<&C::kerf>, TakeNumber<&C::kerf, 0, kLongestMm>, kWrongMm},
    {K::text, "txtTrim", "端切り", NumberText<&C::trim>, TakeNumber<&C::trim, 0, kLongestMm>, kWrongMm},
    {K::text, "txtPlus", "プラス", PlusText, TakePlus,
     "0 以上の長さを mm の数で入れるか、空のままにして下さい。"},
    {K::text, "txtMix", "切寸の種類", NumberText<&C::mix>, TakeNumber<&C::mix, 0, kMostLengths>, kWrongCount},
    {K::text, "txtUsable", "使える残材", NumberText<&C::usable>, TakeNumber<&C::usable, 0, kLongestMm>,
     kWrongMm},
    {K::text, "txtLengths", "定尺", LengthsText, TakeLengths,
     "定尺を mm の数で、間に , を入れて並べて下さい。空ならば定尺の表の定尺、表も無ければ設定の定尺です。"},
    {K::text, "txtMaxLengths", "定尺の種類", NumberText<&C::max_lengths>,
     TakeNumber<&C::max_lengths, 0, kMostLengths>, kWrongCount},
    {K::file, "txtLengthsFile", "定尺の表", PlainText<&C::lengths_file>, TakeFile<&C::lengths_file>},
    {K::file, "txtRestsFile", "残材の表", PlainText<&C::rests_file>, TakeFile<&C::rests_file>},
    {K::unseen, "", "助言の定尺", StoredSets, TakeStoredSets},
    {K::tick, "chkSets", "", SetsTick, TakeSetsTick},
    {K::text, "txtScope", "範囲", PlainText<&C::scope>, TakeScope,
     "site（現場全体）、floor（階ごと）、または -1..2/3..5 のように階の範囲を入れて下さい。"},
    {K::text, "txtTimeLimit", "時間", NumberText<&C::time_limit>, TakeNumber<&C::time_limit, 0, kLongestTime>,
     "0 から 3600 までの秒数を入れて下さい。"},
    {K::tick, "chkKeepWelded", "圧接は加工帳のまま", TickText<&C::keep_welded>, TakeTick<&C::keep_welded>},
    {K::tick, "chkMoney", "金額を最小に", TickText<&C::by_money>, TakeTick<&C::by_money>},
    {K::tick, "chkGreedy", "簡易計画", TickText<&C::greedy>, TakeTick<&C::greedy>},
};

/// A path as part of a section's name, which holds neither brackets nor control characters.
std::string SectionPath(const std::filesystem::path& path) {
  std::string name;
  for (const char8_t character : path.generic_u8string()) {
    const bool stands = character >= u8' ' && character != u8']' && character != u8'%';
    name += stands ? std::string(1, static_cast<char>(character))
                   : fmt::format("%{:02X}", static_cast<unsigned>(character));
  }
  return name;
}

std::string SectionOfSite() {
  const std::filesystem::path data = std::filesystem::weakly_canonical(MapPath("\\RBK\\DATA"));
  return std::string(kSection) + SectionPath(data / SiteContext.SelectedDbName);
}

std::string WordsOf(const PlanField& field, const PlanChoices& choices) {
  const std::string key(field.key);
  switch (field.kind) {
    case K::tick:
      return std::string(field.key);
    case K::file:
      return key + " " + std::filesystem::path(field.text(choices)).filename().string();
    case K::unseen:
      return key + " " + SetsText(choices);
    case K::text:
      break;
  }
  return key + " " + field.text(choices);
}

/// What a parser makes of a file; its refusals name the file.
template <typename Parse>
auto Parsed(const std::string& path, const Parse& parse) {
  const std::string bytes = ReadFileBytes(path);
  try {
    return parse(bytes);
  } catch (const planning::Refusal& refusal) {
    throw planning::Refusal(path + ": " + refusal.what());
  }
}

}  // namespace

PlanRequest RequestOf(const PlanChoices& choices) {
  PlanRequest request;
  planning::BarOffer& offer = request.offer;
  if (!choices.lengths.empty()) offer.lengths = choices.lengths;
  if (!choices.lengths_file.empty())
    offer.length_lines = Parsed(choices.lengths_file, planning::ParseLengths);
  if (!choices.rests_file.empty()) offer.rests = Parsed(choices.rests_file, planning::ParseRests);
  offer.sets = choices.sets;
  planning::PlanOptions& options = request.options;
  options.bar = {choices.kerf, choices.trim, choices.plus ? *choices.plus : DefaultPlus()};
  options.mix = choices.mix;
  options.max_lengths = choices.max_lengths;
  options.usable = choices.usable;
  options.scope = choices.scope;
  options.keep_welded = choices.keep_welded;
  options.aim = choices.by_money ? planning::Aim::money : planning::Aim::steel;
  options.effort = choices.greedy ? planning::Effort::greedy : planning::Effort::full;
  return request;
}

std::span<const PlanField> PlanFields() { return kFields; }

RememberedPlan RememberedChoices() {
  RememberedPlan remembered;
  const RegistryReading registry;
  const std::string section = SectionOfSite();
  for (const PlanField& field : kFields) {
    if (field.key.empty()) continue;
    const std::optional<std::string> stored = registry.Text(kApp, section, field.key);
    if (!stored || field.take(remembered.choices, *stored)) continue;
    remembered.unreadable.push_back(PlaceOf(TextKey{kApp, section, field.key, ""}, *stored));
  }
  return remembered;
}

void RememberChoices(const PlanChoices& choices) {
  const RegistryReading registry;
  const std::string section = SectionOfSite();
  for (const PlanField& field : kFields) {
    if (field.key.empty()) continue;
    const std::string now = field.text(choices);
    const std::string before = registry.Text(kApp, section, field.key).value_or(field.text(PlanChoices()));
    if (now != before) SaveSetting(kApp, section, field.key, now);
  }
}

std::string ChoicesText(const PlanChoices& choices) {
  const PlanChoices defaults;
  std::string words;
  for (const PlanField& field : kFields) {
    if (field.key.empty() || field.text(choices) == field.text(defaults)) continue;
    if (!words.empty()) words += kBetween;
    words += WordsOf(field, choices);
  }
  return words;
}

std::string SetsText(const PlanChoices& choices) {
  std::string words;
  for (const auto& [steel, lengths] : choices.sets) {
    if (!words.empty()) words += kBetween;
    words += planning::SteelText(steel) + " " + TextOf(lengths);
  }
  return words;
}

}  // namespace rbt
