// SPDX-License-Identifier: MIT
#include "platform/json/json_writer.h"

#include <stdexcept>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace rbt {

namespace {

std::string Quoted(std::string_view text) { return nlohmann::json(text).dump(); }

void Require(bool makes_json, const char* call) {
  if (!makes_json) throw std::logic_error(fmt::format("JsonWriter: {} where none can stand", call));
}

}  // namespace

JsonWriter& JsonWriter::Name(std::string_view name) {
  Require(!levels_.empty() && levels_.back().closes == '}' && !named_, "a name");
  BeforeEntry();
  text_ += Quoted(name) + ": ";
  named_ = true;
  return *this;
}

JsonWriter& JsonWriter::Value(std::int32_t number) { return Put(std::to_string(number)); }

JsonWriter& JsonWriter::Value(std::int64_t number) { return Put(std::to_string(number)); }

JsonWriter& JsonWriter::Value(double number) { return Put(fmt::format("{:.17g}", number)); }

JsonWriter& JsonWriter::Value(Currency value) { return Put(value.ToText()); }

JsonWriter& JsonWriter::Value(bool flag) { return Put(flag ? "true" : "false"); }

JsonWriter& JsonWriter::Value(std::string_view text) { return Put(Quoted(text)); }

JsonWriter& JsonWriter::Null() { return Put("null"); }

std::string JsonWriter::Text() const {
  Require(levels_.empty() && !text_.empty(), "the end");
  return text_ + '\n';
}

JsonWriter& JsonWriter::Begin(Level level) {
  BeforeValue();
  level.entry_a_line = levels_.empty() && layout_ == Layout::entry_a_line;
  text_ += level.closes == '}' ? '{' : '[';
  levels_.push_back(level);
  return *this;
}

JsonWriter& JsonWriter::End(char closes) {
  Require(!levels_.empty() && levels_.back().closes == closes && !named_, "an end");
  const Level level = levels_.back();
  levels_.pop_back();
  if (!level.empty && level.entry_a_line) text_ += '\n';
  if (!level.empty && !level.entry_a_line && closes == '}') text_ += ' ';
  text_ += closes;
  return *this;
}

JsonWriter& JsonWriter::Put(std::string_view json) {
  BeforeValue();
  text_ += json;
  return *this;
}

void JsonWriter::BeforeValue() {
  const bool in_array = !levels_.empty() && levels_.back().closes == ']';
  Require(levels_.empty() ? text_.empty() : in_array || named_, "a value");
  if (in_array) BeforeEntry();
  named_ = false;
}

void JsonWriter::BeforeEntry() {
  Level& level = levels_.back();
  if (!level.empty) text_ += ',';
  if (level.entry_a_line) {
    text_ += "\n  ";
  } else if (!level.empty || level.closes == '}') {
    text_ += ' ';
  }
  level.empty = false;
}

}  // namespace rbt
