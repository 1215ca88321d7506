// SPDX-License-Identifier: MIT
#include "tally/views/json_text.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace rbt {

std::string JsonText(std::int32_t number) { return std::to_string(number); }

std::string JsonText(Currency value) { return value.ToText(); }

std::string JsonText(double number) { return fmt::format("{:.17g}", number); }

std::string JsonText(bool flag) { return flag ? "true" : "false"; }

std::string JsonText(std::string_view text) { return nlohmann::json(text).dump(); }

void JsonObject::Add(std::string_view name, std::string_view json) {
  fields_ += fmt::format("{}\n  {}: {}", fields_.empty() ? "" : ",", JsonText(name), json);
}

}  // namespace rbt
