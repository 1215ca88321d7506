// SPDX-License-Identifier: MIT
#include "archive/store/saved_name.h"

#include <algorithm>

#include <fmt/format.h>

#include "platform/text/characters.h"
#include "shell/calendar/new_era_function.h"
#include "tally/mask_text.h"

namespace rbt {

namespace {

/// Slit bars have no word; nor has a tally of them alone.
constexpr MaskText<KindMask> kKindWords[] = {
    {1, "異形"},       {2, "ネジ"},           {3, "異形ネジ"},    {4, "高強度"},          {5, "異形高強度"},
    {6, "ネジ高強度"}, {7, "異形ネジ高強度"}, {9, "異形"},        {10, "ネジ"},           {11, "異形ネジ"},
    {12, "高強度"},    {13, "異形高強度"},    {14, "ネジ高強度"}, {15, "異形ネジ高強度"},
};
/// All kinds with the Ulbon rows among them.
constexpr std::string_view kAllWithUlbon = "異ネジ高強度";
constexpr std::string_view kUlbonAlone = "ウルボン";

constexpr std::string_view kRefusedCharacters = ",!\"#&%;:*|$'";
constexpr std::string_view kCheckTitle = "入力確認";
constexpr std::size_t kMostBytes = 120;

bool IsOfPages(TallyKind kind) { return kind == TallyKind::page || kind == TallyKind::page_shape; }

std::string_view KindWords(TallyKind kind, const SelectionData& selection) {
  const KindMask kinds = selection.MaterialKindMask;
  if (IsOfFloors(kind)) return kinds.IsNone() ? kUlbonAlone : TextOfMask(kKindWords, kinds);
  if (kinds.IsAll() && selection.IncludeUlbon) return kAllWithUlbon;
  return TextOfMask(kKindWords, kinds);
}

/// In the form of two bytes a character, four beyond the first 65536.
std::size_t ByteLength(std::string_view name) {
  std::size_t bytes = 0;
  for (const char32_t character : CharactersOf(name)) bytes += character > 0xFFFF ? 4 : 2;
  return bytes;
}

}  // namespace

std::string ProposedName(const TallyResult& result, const DateTime& now, std::string_view subproject) {
  const SelectionData& selection = result.selection;
  std::string name =
      fmt::format("{}  {} {}", KindWords(result.kind, selection), FormatSaveDate(now), FormatSaveTime(now));
  if (IsOfPages(result.kind)) {
    name += fmt::format("   {}/{}～{}/{}", selection.StartPage, selection.StartLine, selection.EndPage,
                        selection.EndLine);
  }
  if (!subproject.empty() && !IsOfFloors(result.kind)) name += fmt::format("  ( {} )", subproject);
  return name;
}

std::optional<NameRefusal> RefusedLength(std::string_view name) {
  if (ByteLength(name) <= kMostBytes) return std::nullopt;
  return NameRefusal{"名前が長すぎます\n全角６０文字までとしてください", kCheckTitle};
}

std::optional<NameRefusal> RefusedEmptiness(std::string_view name) {
  if (!Trim(name).empty()) return std::nullopt;
  return NameRefusal{"何も入力されていません\n名前を入力してください", kCheckTitle};
}

std::optional<NameRefusal> RefusedCharacter(std::string_view text) {
  const std::size_t at = text.find_first_of(kRefusedCharacters);
  if (at == std::string_view::npos) return std::nullopt;
  return NameRefusal{fmt::format("「 {} 」は使えません。他の文字に変えてください", text[at]), "注意"};
}

std::string_view InsertedText(std::string_view before, std::string_view after) {
  const auto [differs_before, differs_after] =
      std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  const auto beginning = static_cast<std::size_t>(differs_after - after.begin());
  const std::string_view old_rest = before.substr(beginning);
  const std::string_view rest = after.substr(beginning);
  const auto end = std::mismatch(old_rest.rbegin(), old_rest.rend(), rest.rbegin(), rest.rend()).second;
  return rest.substr(0, rest.size() - static_cast<std::size_t>(end - rest.rbegin()));
}

}  // namespace rbt
