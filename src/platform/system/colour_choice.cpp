// SPDX-License-Identifier: MIT
#include "platform/system/colour_choice.h"

#include "platform/system/services.h"

namespace rbt {

std::optional<std::int32_t> ChooseColour(std::string_view title, std::int32_t rgb) {
  return Services.Colours(title, rgb);
}

std::optional<std::int32_t> ChooseNoColour(std::string_view /*title*/, std::int32_t /*rgb*/) {
  return std::nullopt;
}

}  // namespace rbt
