// SPDX-License-Identifier: MIT
// Any bytes can be read as code page 932, and their text as a number and as a number mask.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "platform/fault.h"
#include "platform/numbers/number_mask.h"
#include "platform/numbers/number_words.h"
#include "platform/text/characters.h"
#include "platform/text/cp932.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

/// What a rule gives, or nothing when it refuses its text with one of the two faults it may throw.
template <typename Rule>
auto UnlessRefused(Rule rule) -> std::optional<decltype(rule())> {
  try {
    return rule();
  } catch (const rbt::Fault& fault) {
    Require(fault.Kind() == rbt::FaultKind::type_mismatch || fault.Kind() == rbt::FaultKind::overflow);
    return std::nullopt;
  }
}

void ConvertBothWays(std::string_view bytes) {
  const std::string text = rbt::FromCp932Lenient(bytes);
  const auto strict = UnlessRefused([&] { return rbt::FromCp932(bytes); });
  const bool all_read = text.find("\uFFFD") == std::string::npos;
  Require(strict.has_value() == all_read);
  if (!all_read) return;
  Require(*strict == text);
  // Some characters have two codes, so the text comes back, not always the bytes.
  const std::string again = rbt::ToCp932(text);
  Require(rbt::FromCp932(again) == text);
  Require(rbt::Cp932Length(text) == again.size() && again.size() == bytes.size());
  for (std::size_t limit = 0; limit < 16; ++limit) {
    const std::string_view prefix = rbt::Cp932Prefix(text, limit);
    Require(text.starts_with(prefix) && rbt::ToCp932(prefix).size() <= limit);
  }
}

void CutCharacters(std::string_view text) {
  const std::size_t count = rbt::CharacterCount(text);
  Require(rbt::CharactersOf(text).size() == count);
  for (const std::size_t cut : {std::size_t{0}, std::size_t{1}, count / 2, count, count + 1}) {
    const std::string joined = std::string(rbt::Left(text, cut)).append(rbt::Mid(text, cut + 1));
    Require(joined == text);
  }
}

void ReadNumber(std::string_view text) {
  const double leading = rbt::LeadingNumber(text);
  Require(!std::isnan(leading));
  const auto whole = UnlessRefused([&] { return rbt::NumberOfText(text, "fuzz"); });
  if (whole && text.find_first_of(",TtFf") == std::string_view::npos) Require(*whole == leading);
  if (std::isfinite(leading)) {
    // Fifteen digits lose less than one in 10^14.
    const double again = rbt::LeadingNumber(rbt::ShortestDecimal(leading));
    Require(std::fabs(again - leading) <= std::fabs(leading) * 1e-14 || !std::isfinite(again) ||
            std::fabs(leading) < 1e-300);
  }
  for (const std::string_view mask : {std::string_view("#,##0"), std::string_view("0.00"), text}) {
    rbt::FormatNumber(leading, mask);
    rbt::FormatNumber(static_cast<std::int64_t>(text.size()), mask);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  ConvertBothWays(bytes);
  CutCharacters(bytes);
  ReadNumber(bytes);
  ReadNumber(rbt::FromCp932Lenient(bytes));
  return 0;
}
