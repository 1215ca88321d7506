// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace rbt::jet {

/// Bytes of a Jet file with the place they come from. Nothing read from the file is trusted: every access is
/// checked, and one outside throws `Fault` of kind `file` that names the file, the page and the cause.
/// Integers are little-endian.
class PageView {
 public:
  PageView() = default;
  PageView(std::span<const unsigned char> bytes, const std::string* file, std::uint32_t page)
      : bytes_(bytes), file_(file), page_(page) {}

  std::size_t size() const { return bytes_.size(); }
  std::uint32_t Page() const { return page_; }
  std::span<const unsigned char> Bytes() const { return bytes_; }

  std::uint8_t U8(std::size_t at) const { return *At(at, 1); }
  std::uint16_t U16(std::size_t at) const { return static_cast<std::uint16_t>(Read(at, 2)); }
  std::uint32_t U24(std::size_t at) const { return static_cast<std::uint32_t>(Read(at, 3)); }
  std::uint32_t U32(std::size_t at) const { return static_cast<std::uint32_t>(Read(at, 4)); }
  std::uint64_t U64(std::size_t at) const { return Read(at, 8); }
  double F64(std::size_t at) const;
  float F32(std::size_t at) const;

  PageView Part(std::size_t at, std::size_t count) const {
    return {std::span(At(at, count), count), file_, page_};
  }

  /// Ends with the damage named: "FILE: page N: CAUSE".
  [[noreturn]] void Damaged(const std::string& cause) const;

 private:
  const unsigned char* At(std::size_t at, std::size_t count) const {
    if (at > bytes_.size() || count > bytes_.size() - at) OutOfPage(at, count);
    return bytes_.data() + at;
  }
  std::uint64_t Read(std::size_t at, std::size_t count) const {
    const unsigned char* bytes = At(at, count);
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < count; ++i) value |= static_cast<std::uint64_t>(bytes[i]) << (8 * i);
    return value;
  }
  [[noreturn]] void OutOfPage(std::size_t at, std::size_t count) const;

  std::span<const unsigned char> bytes_;
  const std::string* file_ = nullptr;
  std::uint32_t page_ = 0;
};

/// A pointer to a row: page and slot on it.
struct RowPointer {
  std::uint32_t page = 0;
  std::uint8_t slot = 0;

  friend bool operator==(const RowPointer&, const RowPointer&) = default;
  friend bool operator<(const RowPointer& a, const RowPointer& b) {
    return a.page != b.page ? a.page < b.page : a.slot < b.slot;
  }
};

/// As it stands in usage-map references and long values: slot in the low byte, page above it.
inline RowPointer RowPointerOf(std::uint32_t word) {
  return {word >> 8, static_cast<std::uint8_t>(word & 0xFF)};
}

}  // namespace rbt::jet
