// SPDX-License-Identifier: MIT
#include "platform/files/sha256.h"

#include <array>
#include <nettle/sha2.h>

namespace rbt {

std::string Sha256Of(std::span<const unsigned char> bytes) {
  sha256_ctx state{};
  sha256_init(&state);
  sha256_update(&state, bytes.size(), bytes.data());
  std::array<unsigned char, SHA256_DIGEST_SIZE> digest{};
  sha256_digest(&state, digest.size(), digest.data());
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text;
  text.reserve(2 * digest.size());
  for (const unsigned char byte : digest) {
    text += kDigits[byte >> 4U];
    text += kDigits[byte & 0xFU];
  }
  return text;
}

std::string Sha256Of(std::string_view bytes) {
  return Sha256Of(std::span(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()));
}

}  // namespace rbt
