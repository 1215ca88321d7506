// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/numbers/currency.h"

namespace rbt {

/// JSON values: Currency with four decimals at most, doubles with 17 significant digits.
std::string JsonText(std::int32_t number);
std::string JsonText(Currency value);
std::string JsonText(double number);
std::string JsonText(bool flag);
std::string JsonText(std::string_view text);

/// One JSON object, a field a line, closed by a line feed.
class JsonObject {
 public:
  /// `json` is a value, not a text.
  void Add(std::string_view name, std::string_view json);
  std::string Text() const { return '{' + fields_ + "\n}\n"; }

 private:
  std::string fields_;
};

}  // namespace rbt
