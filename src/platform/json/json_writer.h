// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/numbers/currency.h"

namespace rbt {

/// Writes one JSON text, value after value; in an object each value follows its `Name`. Currency has four
/// decimals at most, doubles 17 significant digits. Calls that make no JSON throw `std::logic_error`.
class JsonWriter {
 public:
  /// How the outermost object or array stands: each of its entries on a line of its own, or all on one. What
  /// is inside them stands on their line.
  enum class Layout { entry_a_line, one_line };

  explicit JsonWriter(Layout layout) : layout_(layout) {}

  JsonWriter& BeginObject() { return Begin({.closes = '}'}); }
  JsonWriter& EndObject() { return End('}'); }
  JsonWriter& BeginArray() { return Begin({.closes = ']'}); }
  JsonWriter& EndArray() { return End(']'); }

  JsonWriter& Name(std::string_view name);
  JsonWriter& Value(std::int32_t number);
  JsonWriter& Value(std::int64_t number);
  JsonWriter& Value(double number);
  JsonWriter& Value(Currency value);
  JsonWriter& Value(bool flag);
  JsonWriter& Value(std::string_view text);
  JsonWriter& Value(const char* text) { return Value(std::string_view(text)); }
  JsonWriter& Null();

  template <typename T>
  JsonWriter& Field(std::string_view name, const T& value) {
    return Name(name).Value(value);
  }
  /// An array of these values.
  template <typename... T>
  JsonWriter& Row(const T&... values) {
    BeginArray();
    (Value(values), ...);
    return EndArray();
  }

  /// The whole text, closed by a line feed.
  std::string Text() const;

 private:
  struct Level {
    char closes = 0;
    bool entry_a_line = false;
    bool empty = true;
  };

  JsonWriter& Begin(Level level);
  JsonWriter& End(char closes);
  JsonWriter& Put(std::string_view json);
  /// Where a value may stand: in the text's beginning, in an array, or behind a name.
  void BeforeValue();
  void BeforeEntry();

  Layout layout_;
  std::vector<Level> levels_;  ///< the objects and arrays that are open
  bool named_ = false;         ///< a name waits for its value
  std::string text_;
};

}  // namespace rbt
