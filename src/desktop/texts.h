// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include <QString>

namespace rbt {

/// A text of the logic, UTF-8, as Qt takes it.
inline QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace rbt
