// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace rbt {

/// The SHA-256 of bytes as 64 hexadecimal digits in small letters.
std::string Sha256Of(std::span<const unsigned char> bytes);
std::string Sha256Of(std::string_view bytes);

}  // namespace rbt
