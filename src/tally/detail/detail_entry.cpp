// SPDX-License-Identifier: MIT
#include "tally/detail/detail_entry.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <string>

#include "data/diameters.h"
#include "platform/numbers/number_words.h"
#include "platform/text/characters.h"

namespace rbt {

namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kSigns = "+-";

bool IsMadeOf(std::string_view text, std::string_view characters) {
  return text.find_first_not_of(characters) == std::string_view::npos;
}

/// Digits with at most one point among them, behind at most one sign.
bool IsDecimal(std::string_view text) {
  if (!text.empty() && kSigns.find(text.front()) != std::string_view::npos) text.remove_prefix(1);
  return IsMadeOf(text, "0123456789.") && std::count(text.begin(), text.end(), '.') <= 1 &&
         text.find_first_of(kDigits) != std::string_view::npos;
}

/// The place of a word in a row of words; nothing when it is not there.
template <typename Words, typename WordOf>
std::optional<int> PlaceOf(std::string_view word, const Words& words, const WordOf& word_of) {
  const auto at =
      std::find_if(words.begin(), words.end(), [&](const auto& each) { return word_of(each) == word; });
  if (at == words.end()) return std::nullopt;
  return static_cast<int>(std::distance(words.begin(), at));
}

}  // namespace

bool IsPercentText(std::string_view text) { return IsMadeOf(text, "0123456789.+-"); }

bool IsCountText(std::string_view text) { return IsMadeOf(text, "0123456789,"); }

double PercentOfText(std::string_view text) { return IsDecimal(text) ? LeadingNumber(text) : 0.0; }

std::int32_t CountOfText(std::string_view text) {
  return ToInt32(LeadingNumber(ReplaceAll(text, ",", "")), "count");
}

std::optional<DetailCell> CellOfWords(std::string_view row, std::string_view column, int columns) {
  const auto d = PlaceOf(row, kDeformedDiameters, [](const Diameter& each) { return each.label; });
  if (!d) return std::nullopt;
  const auto lengths = std::span(kStockLengthTexts).first(static_cast<std::size_t>(columns));
  if (const auto l = PlaceOf(column, lengths, [](std::string_view each) { return each; }))
    return BarCell{*d, *l};
  const auto fitting = PlaceOf(column, kFittingWords, [](const FittingWord& each) { return each.word; });
  if (!fitting) return std::nullopt;
  return FittingCell{*d, kFittingWords[static_cast<std::size_t>(*fitting)].fitting};
}

}  // namespace rbt
