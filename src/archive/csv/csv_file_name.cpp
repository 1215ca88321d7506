// SPDX-License-Identifier: MIT
#include "archive/csv/csv_file_name.h"

#include <array>
#include <cstddef>

#include <fmt/format.h>

#include "platform/text/characters.h"

namespace rbt {

namespace {

/// By the number of the kind; the registered names, which are no tally, come last.
constexpr std::array<std::string_view, 7> kFileWords{"一括集計", "形状別",     "頁行別",    "形状別頁行別",
                                                     "階別集計", "部位別集計", "登録名集計"};

constexpr std::u32string_view kDropped = U"\\/：*?\"<>|";
constexpr char32_t kFirstPrintable = U' ';
constexpr char32_t kDelete = 0x7F;

bool IsDropped(char32_t character) {
  return character < kFirstPrintable || character == kDelete ||
         kDropped.find(character) != std::u32string_view::npos;
}

std::string_view FileWord(const CsvSubject& subject) {
  const auto* tally = std::get_if<CsvOfTally>(&subject);
  return tally == nullptr ? kFileWords.back() : kFileWords.at(static_cast<std::size_t>(tally->result.kind));
}

}  // namespace

std::string CreanFileName(std::string_view name) {
  std::string clean;
  for (const char32_t character : CharactersOf(name)) {
    if (!IsDropped(character)) clean += Utf8Of(character);
  }
  return clean;
}

std::string CsvFileName(const CsvSubject& subject, std::string_view project, const DateTime& now) {
  return CreanFileName(fmt::format("{}{}{}{:02}{:02}{:02}{:02}{:02}.csv", project, FileWord(subject),
                                   now.year, now.month, now.day, now.hour, now.minute, now.second));
}

}  // namespace rbt
