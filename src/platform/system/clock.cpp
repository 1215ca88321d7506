// SPDX-License-Identifier: MIT
#include "platform/system/clock.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <ctime>
#include <string>
#include <string_view>

#include "platform/fault.h"
#include "platform/system/services.h"

namespace rbt {

namespace {

bool ReadNumber(std::string_view text, int& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc{} && end == text.data() + text.size();
}

/// Reads "2026-11-21T09:00:00".
DateTime ParseClock(std::string_view text) {
  constexpr std::string_view kShape = "dddd-dd-ddTdd:dd:dd";
  bool shaped = text.size() == kShape.size();
  for (std::size_t i = 0; shaped && i < kShape.size(); ++i) {
    const bool digit = text[i] >= '0' && text[i] <= '9';
    shaped = kShape[i] == 'd' ? digit : text[i] == kShape[i];
  }
  DateTime at;
  if (shaped) {
    shaped = ReadNumber(text.substr(0, 4), at.year) && ReadNumber(text.substr(5, 2), at.month) &&
             ReadNumber(text.substr(8, 2), at.day) && ReadNumber(text.substr(11, 2), at.hour) &&
             ReadNumber(text.substr(14, 2), at.minute) && ReadNumber(text.substr(17, 2), at.second);
  }
  if (!shaped || !IsValid(at)) {
    throw Fault(FaultKind::type_mismatch,
                "RBK_CLOCK is \"" + std::string(text) + "\", not a time like 2026-11-21T09:00:00");
  }
  return at;
}

}  // namespace

DateTime Now() { return Services.Clock(); }

DateTime SystemClock() {
  if (const char* fixed = std::getenv("RBK_CLOCK"); fixed != nullptr && *fixed != '\0')
    return ParseClock(fixed);
  const std::time_t seconds = std::time(nullptr);
  std::tm local{};
  localtime_r(&seconds, &local);
  return {local.tm_year + 1900, local.tm_mon + 1,          local.tm_mday, local.tm_hour,
          local.tm_min,         std::min(local.tm_sec, 59)};  // a leap second is the 59th once more
}

}  // namespace rbt
